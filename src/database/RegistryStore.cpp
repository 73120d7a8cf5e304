#include "RegistryStore.h"

#include <QCoreApplication>
#include <QSettings>
#include <QVariant>

namespace {
QString &testFile()
{
    static QString path;
    return path;
}

QString missing(const QString &name)
{
    return QCoreApplication::translate("RegistryStore", "Wert „%1“ fehlt.").arg(name);
}

QString malformed(const QString &name, const QString &what)
{
    return QCoreApplication::translate("RegistryStore", "Wert „%1“ ist %2.").arg(name, what);
}

void report(QString *errorMessage, const QString &text)
{
    if (errorMessage)
        *errorMessage = text;
}
} // namespace

RegistryStore::RegistryStore()
{
    if (testFile().isEmpty())
        m_settings = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                                 QStringLiteral("Tolvane"), QStringLiteral("QuorBex"));
    else
        m_settings = std::make_unique<QSettings>(testFile(), QSettings::IniFormat);
}

RegistryStore::~RegistryStore() = default;

void RegistryStore::setFileForTests(const QString &path)
{
    testFile() = path;
}

bool RegistryStore::valueExists(const QString &name) const
{
    return m_settings->contains(name);
}

QString RegistryStore::readString(const QString &name) const
{
    return m_settings->value(name).toString();
}

std::optional<qint32> RegistryStore::readInteger(const QString &name, QString *errorMessage) const
{
    if (!m_settings->contains(name)) {
        report(errorMessage, missing(name));
        return std::nullopt;
    }
    bool ok = false;
    const qint32 value = m_settings->value(name).toInt(&ok);
    if (!ok) {
        report(errorMessage, malformed(name, QCoreApplication::translate("RegistryStore", "keine Zahl")));
        return std::nullopt;
    }
    return value;
}

std::optional<bool> RegistryStore::readBool(const QString &name, QString *errorMessage) const
{
    if (!m_settings->contains(name)) {
        report(errorMessage, missing(name));
        return std::nullopt;
    }
    // The registry holds flags as numbers (0/1); the INI store Qt writes
    // holds them as "true"/"false". Both are accepted.
    const QVariant value = m_settings->value(name);
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    const QString text = value.toString().trimmed();
    if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    bool ok = false;
    const qint32 number = value.toInt(&ok);
    if (!ok) {
        report(errorMessage, malformed(name, QCoreApplication::translate("RegistryStore", "kein Wahrheitswert")));
        return std::nullopt;
    }
    return number != 0;
}
