#pragma once

#include <QDate>
#include <QString>
#include <functional>

// The macros of the auto-fill and default values: "%DATE", "%USER", "%TT",
// "%MM", "%JJ", and "%NUM" / "%?NUM" followed by a counter file name in
// double quotes. A value may mix macros and fixed text.
class TValueMacros
{
public:
    // Folder that relative counter file names are taken from (ends with a separator).
    QString CounterFolder;
    // "%?NUM": asks whether a number shall be drawn; false leaves it empty.
    std::function<bool(const QString &counterFile)> AskForNumber;
    // The day the date macros give (today unless set).
    QDate Today;
    QString UserName; // empty: the login name of the process

    // The value with every macro replaced. False with a German message when
    // a counter file cannot be used.
    bool expand(const QString &value, QString *result, QString *errorMessage);

    // The next number of a counter file, taken under a lock so that two
    // programs never get the same one. The file holds the last number given
    // (leading zeros keep their width); a missing file starts at 1.
    static bool nextNumber(const QString &counterFile, QString *number, QString *errorMessage);

    QString counterPath(const QString &name) const;
};
