#include "helper_properties.h"

#include <QtTest>

#include "Control.h"

QString describe(const TPropInfo &p, const QVariant &v)
{
    return p.name + QLatin1Char('=') + propertyValueToText(p, v);
}

// A value of the property's type that differs from the current one. Strings
// are lower case so that a CharCase set alongside leaves them alone.
QVariant otherValue(const TPropInfo &p, const QVariant &current, int salt)
{
    switch (p.type) {
    case TPropType::Integer: return current.toInt() + 7 + salt;
    case TPropType::Boolean: return !current.toBool();
    case TPropType::String: return QStringLiteral("wert-%1").arg(p.name.toLower());
    case TPropType::Color:
        return QVariant::fromValue(current.value<TColor>() == Colors::clYellow ? Colors::clRed : Colors::clYellow);
    case TPropType::Enum: return current.toInt() == 0 ? int(p.enumNames.size()) - 1 : 0;
    case TPropType::Font: {
        TFont f;
        f.Name = QStringLiteral("DejaVu Serif");
        f.Size = 14 + salt % 5;
        f.Color = Colors::clMaroon;
        f.Style = fsBold | fsItalic;
        return QVariant::fromValue(f);
    }
    case TPropType::Strings: return QStringList{QStringLiteral("eins=41"), QStringLiteral("zwei=42")};
    case TPropType::Set: break;
    }
    return current;
}

// Writes a new value to every published property (but those in skip), then
// reads them all back through the same descriptors: a setter writing the
// wrong attribute shows up as a value that did not stick or one that moved.
// The control sits second among two on its parent, so TabOrder can change.
QHash<QString, QVariant> writeEveryProperty(QWidget *w, const QStringList &skip)
{
    const TClassInfo &info = TControl::from(w)->classInfo();
    // The new values are chosen from the fresh state, so that a pair like
    // Font and ParentFont is written consistently.
    QHash<QString, QVariant> fresh;
    for (const TPropInfo &p : info.properties)
        fresh.insert(p.name, p.read(w));
    QHash<QString, QVariant> written;
    int salt = 0;
    for (const TPropInfo &p : info.properties) {
        if (skip.contains(p.name))
            continue;
        const QVariant before = fresh.value(p.name);
        const QVariant value = p.name == QLatin1String("TabOrder") ? QVariant(0) : otherValue(p, before, salt++);
        if (value == before) {
            QTest::qFail(qPrintable(info.className + ": no other value for " + describe(p, before)), __FILE__,
                         __LINE__);
            return written;
        }
        p.write(w, value);
        written.insert(p.name, value);
    }
    for (const TPropInfo &p : info.properties) {
        if (!written.contains(p.name))
            continue;
        const QVariant got = p.read(w);
        const QVariant want = written.value(p.name);
        if (got != want) {
            QTest::qFail(qPrintable(info.className + ": " + describe(p, got) + ", written " + describe(p, want)),
                         __FILE__, __LINE__);
            return written;
        }
    }
    // Every ordinal of every enumeration sticks.
    for (const TPropInfo &p : info.properties) {
        if (p.type != TPropType::Enum)
            continue;
        for (int ordinal = 0; ordinal < p.enumNames.size(); ++ordinal) {
            p.write(w, ordinal);
            if (p.read(w).toInt() != ordinal) {
                QTest::qFail(qPrintable(info.className + "." + p.name + " does not keep " + p.enumNames.at(ordinal)),
                             __FILE__, __LINE__);
                return written;
            }
        }
    }
    return written;
}

QWidget *createSecond(const TClassInfo &info, QWidget *parent)
{
    info.create()->setParent(parent);
    QWidget *w = info.create();
    w->setParent(parent);
    return w;
}


int countPixels(const QImage &image, const std::function<bool(QColor)> &match)
{
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            n += match(image.pixelColor(x, y)) ? 1 : 0;
    return n;
}

bool isReddish(QColor c)
{
    return c.red() > 120 && c.green() < 90 && c.blue() < 90;
}
