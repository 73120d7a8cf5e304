#include <QtTest>

#include "TextCodec.h"

class TestTextCodec : public QObject
{
    Q_OBJECT

private slots:
    void everyByteRoundTrips();
    void highRangeMapping();
    void unmappableCharacters();
    void fileTextDetection();
};

void TestTextCodec::everyByteRoundTrips()
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
}

void TestTextCodec::highRangeMapping()
{
    // The characters German masks use, the high range included.
    const QString german = QStringLiteral("Größe äöü ÄÖÜ ß € „Zitat“");
    const QByteArray bytes = TextCodec::encodeWindows1252(german);
    QCOMPARE(bytes, QByteArray("Gr\xF6\xDF" "e \xE4\xF6\xFC \xC4\xD6\xDC \xDF \x80 \x84Zitat\x93"));
    QCOMPARE(TextCodec::decodeWindows1252(bytes), german);
}

void TestTextCodec::unmappableCharacters()
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

void TestTextCodec::fileTextDetection()
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

QTEST_GUILESS_MAIN(TestTextCodec)
#include "test_textcodec.moc"
