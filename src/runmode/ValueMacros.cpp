#include "ValueMacros.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QSaveFile>

namespace {
QString loginName()
{
    QString name = qEnvironmentVariable("USER");
    if (name.isEmpty())
        name = qEnvironmentVariable("USERNAME");
    return name;
}
} // namespace

QString TValueMacros::counterPath(const QString &name) const
{
    if (QDir::isAbsolutePath(name) || CounterFolder.isEmpty())
        return QDir::cleanPath(name);
    return QDir::cleanPath(QDir(CounterFolder).filePath(name));
}

bool TValueMacros::nextNumber(const QString &counterFile, QString *number, QString *errorMessage)
{
    auto fail = [&](const QString &why) {
        if (errorMessage)
            *errorMessage
                = QCoreApplication::translate("TValueMacros", "Der Dateizähler „%1“ kann nicht benutzt werden: %2")
                      .arg(counterFile, why);
        return false;
    };
    if (counterFile.trimmed().isEmpty())
        return fail(QCoreApplication::translate("TValueMacros", "Kein Dateiname angegeben."));
    const QFileInfo info(counterFile);
    if (!QDir().mkpath(info.absolutePath()))
        return fail(QCoreApplication::translate("TValueMacros", "Der Ordner fehlt."));
    // The lock file makes read, count and write one step for every program
    // that draws from the counter; a lock left by a crashed program expires.
    QLockFile lock(counterFile + QStringLiteral(".lck"));
    lock.setStaleLockTime(30000);
    if (!lock.tryLock(10000))
        return fail(QCoreApplication::translate("TValueMacros", "Die Datei ist gesperrt."));
    QString last;
    QFile in(counterFile);
    if (in.exists()) {
        if (!in.open(QIODevice::ReadOnly))
            return fail(in.errorString());
        last = QString::fromLatin1(in.readAll()).trimmed();
        in.close();
    }
    qint64 value = 0;
    if (!last.isEmpty()) {
        bool ok = false;
        value = last.toLongLong(&ok);
        if (!ok || value < 0)
            return fail(
                QCoreApplication::translate("TValueMacros", "Sie enthält keine Zahl („%1“).").arg(last.left(40)));
    }
    const QString next = QStringLiteral("%1").arg(value + 1, int(last.size()), 10, QLatin1Char('0'));
    QSaveFile out(counterFile);
    if (!out.open(QIODevice::WriteOnly) || out.write(next.toLatin1() + "\r\n") < 0 || !out.commit())
        return fail(out.errorString());
    *number = next;
    return true;
}

bool TValueMacros::expand(const QString &value, QString *result, QString *errorMessage)
{
    static const QRegularExpression counter(QStringLiteral("%(\\?)?NUM\\s*\"([^\"]*)\""),
                                            QRegularExpression::CaseInsensitiveOption);
    QString text;
    int from = 0;
    for (auto it = counter.globalMatch(value); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        text += value.mid(from, m.capturedStart() - from);
        from = m.capturedEnd();
        const QString file = counterPath(m.captured(2).trimmed());
        if (!m.captured(1).isEmpty() && (!AskForNumber || !AskForNumber(file)))
            continue;
        QString number;
        if (!nextNumber(file, &number, errorMessage))
            return false;
        text += number;
    }
    text += value.mid(from);
    const QDate day = Today.isValid() ? Today : QDate::currentDate();
    text.replace(QStringLiteral("%DATE"), day.toString(QStringLiteral("dd.MM.yyyy")), Qt::CaseInsensitive);
    text.replace(QStringLiteral("%USER"), UserName.isEmpty() ? loginName() : UserName, Qt::CaseInsensitive);
    text.replace(QStringLiteral("%TT"), day.toString(QStringLiteral("dd")), Qt::CaseInsensitive);
    text.replace(QStringLiteral("%MM"), day.toString(QStringLiteral("MM")), Qt::CaseInsensitive);
    text.replace(QStringLiteral("%JJ"), day.toString(QStringLiteral("yy")), Qt::CaseInsensitive);
    *result = text;
    return true;
}
