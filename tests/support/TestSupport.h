#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <optional>

#include "UserDialogs.h"

// Answers the program's modal questions from a script and records what was
// shown, so tests drive the GUI without a modal loop. Installed for its
// lifetime.
class ScriptedDialogs : public UserDialogs
{
public:
    ScriptedDialogs();
    ~ScriptedDialogs() override;

    struct Message
    {
        QString text;
        QString caption;
        TMsgDlgType type;
        TMsgDlgButtons buttons;
    };

    // Queued answers, taken in order. A question with nothing queued answers
    // with the first of Cancel, No, OK that it offers and counts as unexpected.
    QList<TModalResult> messageAnswers;
    // Each file dialog takes the next entry: the chosen files, or an empty list for Cancel.
    QList<QStringList> fileAnswers;
    QList<std::optional<TColor>> colorAnswers;
    // The colour each colour dialog opened with.
    QList<TColor> colorInitials;
    QList<std::optional<QFont>> fontAnswers;
    QList<QString> directoryAnswers;
    // Each of our own modal windows is handed to the next function, which may
    // fill in its controls; its return value is the dialog's result.
    QList<std::function<int(QDialog *)>> dialogAnswers;

    QList<Message> messages;            // every message box shown
    QList<TFileDialog> fileDialogs;     // the dialog state as it was when shown
    QStringList dialogTitles;           // window titles of our own modal windows
    int unexpected = 0;

    // The texts of the message boxes shown, in order.
    QStringList messageTexts() const
    {
        QStringList texts;
        for (const Message &m : messages)
            texts << m.text;
        return texts;
    }

    TModalResult messageDlg(QWidget *parent, const QString &text, TMsgDlgType type, TMsgDlgButtons buttons,
                            const QString &caption) override;
    bool fileDialog(QWidget *parent, TFileDialog &dialog) override;
    std::optional<TColor> colorDialog(QWidget *parent, TColor initial) override;
    std::optional<QFont> fontDialog(QWidget *parent, const QFont &initial) override;
    QString directoryDialog(QWidget *parent, const QString &caption, const QString &initial) override;
    // Shows the dialog, hands it to the next answer, hides it again.
    int execDialog(QDialog *dialog) override;
};

// Reads a whole file; an empty array when it cannot be read.
QByteArray readFileBytes(const QString &path);
bool writeFileBytes(const QString &path, const QByteArray &bytes);
