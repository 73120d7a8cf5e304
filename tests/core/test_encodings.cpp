#include <QtTest>

#include "Colors.h"
#include "Components.h"
#include "TextCodec.h"
#include "ValueEncodings.h"

#include <QFont>
#include <QPalette>
#include <QSet>

using namespace Colors;

// Stand-ins for controls: the class name gives the name stem.
class TLabel : public QObject
{
    Q_OBJECT
};

class TEdit : public QObject
{
    Q_OBJECT
};

class TestEncodings : public QObject
{
    Q_OBJECT

private slots:
    void integers();
    void booleans();
    void fontStyles();
    void colorText();
    void colorPainting();
    void componentOwnership();
    void autoNames();
    void autoNameLimit();
    void codePageBytesRoundTrip();
    void codePageUnmappableCharacters();
    void fileTextDetection();
};

void TestEncodings::integers()
{
    const struct
    {
        const char *text;
        std::optional<qint32> value;
    } cases[] = {
        {"0", 0},
        {"42", 42},
        {" -17 ", -17},
        {"+5", 5},
        {"$FF", 255},
        {"0X1a", 26},
        {"-$10", -16},
        {"2147483647", 2147483647},
        {"-2147483648", std::numeric_limits<qint32>::min()},
        {"$ffffffff", -1},
        {"$80000000", std::numeric_limits<qint32>::min()},
        {"2147483648", std::nullopt},
        {"-2147483649", std::nullopt},
        {"$100000000", std::nullopt},
        {"99999999999999999999", std::nullopt},
        {"", std::nullopt},
        {"-", std::nullopt},
        {"$", std::nullopt},
        {"0x", std::nullopt},
        {"12abc", std::nullopt},
        {"1 2", std::nullopt},
        {"abc", std::nullopt},
        {"$fg", std::nullopt},
        {"--1", std::nullopt},
    };
    for (const auto &c : cases) {
        const QString text = QString::fromLatin1(c.text);
        QCOMPARE(StringToInt(text), c.value);
        QCOMPARE(StringToIntDef(text, -99), c.value.value_or(-99));
    }
    // Only ASCII digits count.
    QCOMPARE(StringToInt(QStringLiteral("١٢")), std::nullopt);
}

void TestEncodings::booleans()
{
    QCOMPARE(BoolToString(true), QStringLiteral("1"));
    QCOMPARE(BoolToString(false), QStringLiteral("0"));
    for (bool def : {false, true}) {
        QCOMPARE(StringToBool(QStringLiteral("1"), def), true);
        QCOMPARE(StringToBool(QStringLiteral("0"), def), false);
        QCOMPARE(StringToBool(QStringLiteral("-5"), def), true);
        QCOMPARE(StringToBool(QStringLiteral("$0"), def), false);
        QCOMPARE(StringToBool(QStringLiteral("abc"), def), def);
        QCOMPARE(StringToBool(QString(), def), def);
    }
}

void TestEncodings::fontStyles()
{
    QCOMPARE(FontStylesToString(StringToFontStyles(QStringLiteral("SIB"))), QStringLiteral("BIS"));
    QCOMPARE(FontStylesToString(StringToFontStyles(QStringLiteral("ub"))), QStringLiteral("BU"));
    QCOMPARE(FontStylesToString(StringToFontStyles(QString())), QString());
    QCOMPARE(StringToFontStyles(QStringLiteral("x")), TFontStyles());

    // Every combination survives text and a font.
    for (int bits = 0; bits < 16; ++bits) {
        const TFontStyles styles = TFontStyles::fromInt(bits);
        QCOMPARE(StringToFontStyles(FontStylesToString(styles)), styles);
        QFont font;
        applyFontStyles(font, styles);
        QCOMPARE(fontStylesOf(font), styles);
    }
}

void TestEncodings::colorText()
{
    QCOMPARE(ColorToString(clWindow), QStringLiteral("clWindow"));
    QCOMPARE(ColorToString(clBlue), QStringLiteral("clBlue"));
    QCOMPARE(ColorToString(TColor(0xFF0000)), QStringLiteral("clBlue"));
    QCOMPARE(ColorToString(TColor::fromRgb(1, 2, 3)), QStringLiteral("$00030201"));
    QCOMPARE(ColorToString(TColor(qint32(0xFF0000FFu))), QStringLiteral("$ff0000ff"));
    QCOMPARE(ColorToIdent(TColor::fromRgb(1, 2, 3)), QString());

    QCOMPARE(StringToColor(QStringLiteral("clWindow")), std::optional<TColor>(clWindow));
    QCOMPARE(StringToColor(QStringLiteral(" CLWINDOW ")), std::optional<TColor>(clWindow));
    QCOMPARE(StringToColor(QStringLiteral("$00ff0000")), std::optional<TColor>(clBlue));
    QCOMPARE(StringToColor(QStringLiteral("0")), std::optional<TColor>(clBlack));
    QCOMPARE(StringToColor(QStringLiteral("-16777211")), std::optional<TColor>(clWindow));
    QCOMPARE(StringToColor(QStringLiteral("0x0000FF")), std::optional<TColor>(clRed));
    QCOMPARE(StringToColor(QStringLiteral("Blau")), std::nullopt);
    QCOMPARE(StringToColor(QString()), std::nullopt);

    // Every name is unique, reads back to its value and is written again the same.
    const QStringList &names = ColorIdents();
    QCOMPARE(QSet<QString>(names.cbegin(), names.cend()).size(), names.size());
    QSet<qint32> values;
    for (const QString &name : names) {
        const std::optional<TColor> color = StringToColor(name);
        QVERIFY2(color.has_value(), qPrintable(name));
        values.insert(color->value());
        QCOMPARE(ColorToString(*color), name);
        QCOMPARE(StringToColor(ColorToString(*color)), color);
    }
    QCOMPARE(values.size(), names.size());

    // Values without a name read back from their hex text.
    for (const qint32 v : {0x00abcdef, qint32(0x80000001), 0x1ffffffe})
        QCOMPARE(StringToColor(ColorToString(TColor(v))), std::optional<TColor>(TColor(v)));
}

void TestEncodings::colorPainting()
{
    QCOMPARE(clRed.toQColor(), QColor(255, 0, 0));
    QCOMPARE(clBlue.toQColor(), QColor(0, 0, 255));
    QCOMPARE(TColor::fromRgb(0x12, 0x34, 0x56).toQColor(), QColor(0x12, 0x34, 0x56));
    QCOMPARE(TColor::fromQColor(QColor(0x12, 0x34, 0x56)), TColor::fromRgb(0x12, 0x34, 0x56));
    QCOMPARE(clNone.toQColor().alpha(), 0);

    // System colours come from the palette they are painted with.
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(1, 2, 3));
    palette.setColor(QPalette::Highlight, QColor(4, 5, 6));
    palette.setColor(QPalette::Button, QColor(7, 8, 9));
    QCOMPARE(clWindow.toQColor(palette), QColor(1, 2, 3));
    QCOMPARE(clHighlight.toQColor(palette), QColor(4, 5, 6));
    QCOMPARE(clBtnFace.toQColor(palette), QColor(7, 8, 9));
    palette.setColor(QPalette::Base, QColor(10, 20, 30));
    QCOMPARE(clWindow.toQColor(palette), QColor(10, 20, 30));
    // Fixed colours ignore it.
    QCOMPARE(clWhite.toQColor(palette), QColor(255, 255, 255));
    // Without one, the application palette is used.
    QCOMPARE(clWindow.toQColor(), QGuiApplication::palette().color(QPalette::Base));
}

void TestEncodings::componentOwnership()
{
    QObject owner;
    QObject other;
    auto *a = new TLabel;
    auto *b = new TEdit;
    auto *c = new TLabel;
    a->setObjectName(QStringLiteral("Label1"));
    b->setObjectName(QStringLiteral("Edit1"));
    c->setObjectName(QStringLiteral("Label2"));
    for (QObject *o : {static_cast<QObject *>(c), static_cast<QObject *>(a), static_cast<QObject *>(b)})
        Components::setOwner(o, &owner);

    QCOMPARE(Components::components(&owner), (QList<QObject *>{c, a, b}));
    QCOMPARE(Components::componentCount(&owner), 3);
    QCOMPARE(Components::componentIndex(a), 1);
    QCOMPARE(Components::owner(a), &owner);
    QCOMPARE(Components::findComponent(&owner, QStringLiteral("LABEL1")), a);
    QCOMPARE(Components::findComponent(&owner, QStringLiteral("edit1")), b);
    QCOMPARE(Components::findComponent(&owner, QStringLiteral("Label")), nullptr);
    QCOMPARE(Components::findComponent(&owner, QString()), nullptr);
    QCOMPARE(Components::findComponent(&other, QStringLiteral("Label1")), nullptr);

    // Renaming follows.
    a->setObjectName(QStringLiteral("Vorname"));
    QCOMPARE(Components::findComponent(&owner, QStringLiteral("vorname")), a);
    QCOMPARE(Components::findComponent(&owner, QStringLiteral("Label1")), nullptr);

    // A new owner appends; the old one forgets.
    Components::setOwner(c, &other);
    QCOMPARE(Components::components(&owner), (QList<QObject *>{a, b}));
    QCOMPARE(Components::components(&other), QList<QObject *>{c});
    QCOMPARE(Components::findComponent(&owner, QStringLiteral("Label2")), nullptr);
    QCOMPARE(Components::findComponent(&other, QStringLiteral("label2")), c);
    Components::setOwner(c, &owner);
    QCOMPARE(Components::components(&owner), (QList<QObject *>{a, b, c}));
    QCOMPARE(Components::componentIndex(c), 2);

    // A deleted component leaves the list.
    delete b;
    QCOMPARE(Components::components(&owner), (QList<QObject *>{a, c}));
    QCOMPARE(Components::findComponent(&owner, QStringLiteral("Edit1")), nullptr);

    Components::setOwner(a, nullptr);
    QCOMPARE(Components::owner(a), nullptr);
    QCOMPARE(Components::componentIndex(a), -1);
    QCOMPARE(Components::components(&owner), QList<QObject *>{c});
    delete a;

    // A component outlives its owner without harm.
    auto *temporary = new QObject;
    auto *d = new TLabel;
    Components::setOwner(d, temporary);
    delete temporary;
    QCOMPARE(Components::owner(d), nullptr);
    delete d;
    delete c;
    QCOMPARE(Components::componentCount(&owner), 0);

    // Owned components that are also children go with the owner in any order.
    auto *parent = new QObject;
    auto *first = new TLabel;
    first->setParent(parent);
    Components::setOwner(first, parent);
    auto *second = new TLabel;
    second->setParent(parent);
    Components::setOwner(second, parent);
    QCOMPARE(Components::componentCount(parent), 2);
    delete parent;
}

void TestEncodings::autoNames()
{
    QObject owner;
    QList<QObject *> labels;
    for (int i = 0; i < 3; ++i) {
        auto *l = new TLabel;
        QVERIFY(AutoName(l, &owner));
        Components::setOwner(l, &owner);
        labels << l;
    }
    QCOMPARE(labels.at(0)->objectName(), QStringLiteral("Label1"));
    QCOMPARE(labels.at(1)->objectName(), QStringLiteral("Label2"));
    QCOMPARE(labels.at(2)->objectName(), QStringLiteral("Label3"));

    // A freed number is taken again.
    delete labels.takeAt(1);
    auto *again = new TLabel;
    QVERIFY(AutoName(again, &owner));
    QCOMPARE(again->objectName(), QStringLiteral("Label2"));
    Components::setOwner(again, &owner);

    // A name no other bears is kept, owned or not yet.
    QVERIFY(!AutoName(again, &owner));
    QCOMPARE(again->objectName(), QStringLiteral("Label2"));
    auto *named = new TEdit;
    named->setObjectName(QStringLiteral("Kundennummer"));
    QVERIFY(!AutoName(named, &owner));
    QCOMPARE(named->objectName(), QStringLiteral("Kundennummer"));
    Components::setOwner(named, &owner);

    // A clash without regard to case gives the next free number.
    auto *clash = new TLabel;
    clash->setObjectName(QStringLiteral("label1"));
    QVERIFY(AutoName(clash, &owner));
    QCOMPARE(clash->objectName(), QStringLiteral("Label4"));
    auto *edit = new TEdit;
    edit->setObjectName(QStringLiteral("KUNDENNUMMER"));
    QVERIFY(AutoName(edit, &owner));
    QCOMPARE(edit->objectName(), QStringLiteral("Edit1"));

    // A name taken by another component of the list is replaced even for one already owned.
    Components::setOwner(clash, &owner);
    clash->setObjectName(QStringLiteral("LABEL3"));
    QVERIFY(AutoName(clash, &owner));
    QCOMPARE(clash->objectName(), QStringLiteral("Label4"));

    QVERIFY(!AutoName(nullptr, &owner));
    // Without an owner nothing clashes.
    auto *loose = new TLabel;
    QVERIFY(AutoName(loose, nullptr));
    QCOMPARE(loose->objectName(), QStringLiteral("Label1"));
    delete loose;
    delete edit;
    qDeleteAll(Components::components(&owner));
}

void TestEncodings::autoNameLimit()
{
    // With Label1..Label32768 taken there is no name left to give.
    QObject owner;
    const int limit = 32768;
    for (int i = 1; i <= limit; ++i) {
        auto *l = new TLabel;
        l->setParent(&owner);
        l->setObjectName(QStringLiteral("Label%1").arg(i));
        Components::setOwner(l, &owner);
    }
    auto *extra = new TLabel;
    extra->setParent(&owner);
    QVERIFY(!AutoName(extra, &owner));
    QCOMPARE(extra->objectName(), QString());

    delete Components::findComponent(&owner, QStringLiteral("Label32768"));
    QVERIFY(AutoName(extra, &owner));
    QCOMPARE(extra->objectName(), QStringLiteral("Label32768"));
}

void TestEncodings::codePageBytesRoundTrip()
{
    QByteArray all;
    for (int b = 0; b < 256; ++b)
        all.append(char(b));
    const QString text = TextCodec::decodeWindows1252(all);
    QCOMPARE(text.size(), 256);
    QCOMPARE(TextCodec::encodeWindows1252(text), all);

    // Outside 0x80..0x9F the byte is the code point.
    for (int b = 0; b < 256; ++b) {
        if (b >= 0x80 && b < 0xA0)
            continue;
        QCOMPARE(int(text.at(b).unicode()), b);
    }
    // The unassigned bytes stand for the C1 control of their own number.
    for (int b : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        QCOMPARE(int(text.at(b).unicode()), b);

    QVERIFY(TextCodec::decodeWindows1252(QByteArray()).isEmpty());
    QVERIFY(TextCodec::encodeWindows1252(QString()).isEmpty());

    // The characters German masks use, the high range included.
    const QString german = QStringLiteral("Größe äöü ÄÖÜ ß € „Zitat“");
    const QByteArray bytes = TextCodec::encodeWindows1252(german);
    QCOMPARE(bytes,
             QByteArray("Gr\xF6\xDF"
                        "e \xE4\xF6\xFC \xC4\xD6\xDC \xDF \x80 \x84Zitat\x93"));
    QCOMPARE(TextCodec::decodeWindows1252(bytes), german);
}

void TestEncodings::codePageUnmappableCharacters()
{
    // Each character the code page lacks becomes exactly one "?".
    QCOMPARE(TextCodec::encodeWindows1252(QStringLiteral("Ω")), QByteArray("?"));
    QCOMPARE(TextCodec::encodeWindows1252(QStringLiteral("a\U0001F600b")), QByteArray("a?b"));
    QCOMPARE(TextCodec::encodeWindows1252(QStringLiteral("\U0001F600\U0001F600")), QByteArray("??"));
    // A lone surrogate is a character of its own, and a high one at the end too.
    QString lone;
    lone += QChar(0xD800);
    lone += QLatin1Char('x');
    lone += QChar(0xDC00);
    lone += QChar(0xD800);
    QCOMPARE(TextCodec::encodeWindows1252(lone), QByteArray("?x??"));
    // U+0080 and U+009F are not what bytes 0x80 and 0x9F mean, so they cannot be written.
    QCOMPARE(TextCodec::encodeWindows1252(QString(QChar(0x80))), QByteArray("?"));
    QCOMPARE(TextCodec::encodeWindows1252(QString(QChar(0x9F))), QByteArray("?"));
    QCOMPARE(TextCodec::encodeWindows1252(QString(QChar(0x8D))), QByteArray("\x8D"));
    QCOMPARE(TextCodec::encodeWindows1252(QStringLiteral("€uro\u0100")), QByteArray("\x80uro?"));
}

void TestEncodings::fileTextDetection()
{
    // With the UTF-8 mark the rest is UTF-8 and the mark is dropped.
    const QByteArray utf8 = QByteArray("\xEF\xBB\xBF") + QStringLiteral("Größe €").toUtf8();
    QCOMPARE(TextCodec::decodeFileText(utf8), QStringLiteral("Größe €"));
    QCOMPARE(TextCodec::decodeFileText(QByteArray("\xEF\xBB\xBF")), QString());

    // Without it, UTF-8 bytes are taken as Windows-1252 characters.
    const QByteArray plain = QStringLiteral("ä").toUtf8();
    QCOMPARE(TextCodec::decodeFileText(plain), QStringLiteral("Ã¤"));
    QCOMPARE(TextCodec::decodeFileText(QByteArray("\xE4\x80")), QStringLiteral("ä€"));
    // A partial mark is no mark.
    QCOMPARE(TextCodec::decodeFileText(QByteArray("\xEF\xBB")), QStringLiteral("ï»"));
    // NUL bytes are characters like any other.
    QCOMPARE(TextCodec::decodeFileText(QByteArray("a\0b", 3)).size(), 3);
}

QTEST_MAIN(TestEncodings)
#include "test_encodings.moc"
