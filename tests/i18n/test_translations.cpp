// The translations shipped with the program: every text in the code is
// translated, no translation is left over from a text that is gone, and the
// catalogue built into the program gives what the .ts file says.
#include <QtTest>

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include "I18nSetup.h"
#include "Localiser.h"
#include "helper_ts.h"

namespace {

QStringList fromArray(const char *const *items, int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QString::fromUtf8(items[i]));
    return list;
}

QStringList tsFiles()
{
    return fromArray(kTsFiles, int(std::size(kTsFiles)));
}

// "…/ferolith_en.ts" -> "en"
QString languageOf(const QString &tsFile)
{
    return QFileInfo(tsFile).completeBaseName().section(QLatin1Char('_'), 1);
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase();
    void everyTextTranslatedNoneObsolete_data();
    void everyTextTranslatedNoneObsolete();
    void builtInCatalogueMatchesTheFile_data();
    void builtInCatalogueMatchesTheFile();
};

void TestTranslations::cleanupTestCase()
{
    Localiser::install(QStringLiteral("de"));
}

void TestTranslations::everyTextTranslatedNoneObsolete_data()
{
    QTest::addColumn<QString>("tsFile");
    for (const QString &file : tsFiles())
        QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
}

void TestTranslations::everyTextTranslatedNoneObsolete()
{
    QFETCH(QString, tsFile);
    // lupdate brings a copy up to date with the code: a text new in the code
    // comes in unfinished, a translation whose text is gone is marked vanished.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString copy = dir.filePath(QFileInfo(tsFile).fileName());
    QVERIFY(QFile::copy(tsFile, copy));
    QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);

    QProcess lupdate;
    lupdate.setProcessChannelMode(QProcess::MergedChannels);
    lupdate.start(QStringLiteral(FEROLITH_LUPDATE),
                  fromArray(kLupdateOptions, int(std::size(kLupdateOptions)))
                      + fromArray(kTrSources, int(std::size(kTrSources))) + QStringList{QStringLiteral("-ts"), copy});
    QVERIFY2(lupdate.waitForFinished(120000), "lupdate did not finish");
    const QByteArray output = lupdate.readAll();
    QVERIFY2(lupdate.exitStatus() == QProcess::NormalExit && lupdate.exitCode() == 0, output.constData());

    TsFile ts;
    QString error;
    QVERIFY2(readTsFile(copy, &ts, &error), qPrintable(error));
    QCOMPARE(ts.sourceLanguage, QStringLiteral("de"));

    QStringList untranslated;
    QStringList obsolete;
    QStringList empty;
    for (const TsMessage &m : std::as_const(ts.messages)) {
        if (m.type == QLatin1String("unfinished"))
            untranslated.append(m.describe());
        else if (m.type == QLatin1String("vanished") || m.type == QLatin1String("obsolete"))
            obsolete.append(m.describe());
        else if (m.numerus ? m.numerusForms.contains(QString()) || m.numerusForms.isEmpty() : m.translation.isEmpty())
            empty.append(m.describe());
    }
    QString report;
    const auto list = [&report](const QString &what, const QStringList &items) {
        if (!items.isEmpty())
            report += QStringLiteral("\n") + what + QStringLiteral(":\n  ") + items.join(QStringLiteral("\n  "));
    };
    list(QStringLiteral("untranslated"), untranslated);
    list(QStringLiteral("obsolete (the text is no longer in the code)"), obsolete);
    list(QStringLiteral("finished but empty"), empty);
    if (!report.isEmpty()) {
        QFAIL(qPrintable(QFileInfo(tsFile).fileName() + report
                         + QStringLiteral("\nBring the file up to date with "
                                          "\"cmake --build <build> --target update_translations\" "
                                          "and translate what is new, in linguist or in the file.")));
    }
}

void TestTranslations::builtInCatalogueMatchesTheFile_data()
{
    everyTextTranslatedNoneObsolete_data();
}

void TestTranslations::builtInCatalogueMatchesTheFile()
{
    QFETCH(QString, tsFile);
    TsFile ts;
    QString error;
    QVERIFY2(readTsFile(tsFile, &ts, &error), qPrintable(error));
    if (ts.messages.isEmpty())
        QSKIP("no texts to translate yet");

    const QString language = languageOf(tsFile);
    QVERIFY2(ts.language.startsWith(language), qPrintable(ts.language));
    QVERIFY2(Localiser::install(language), qPrintable(language));
    for (const TsMessage &m : std::as_const(ts.messages)) {
        if (m.type == QLatin1String("vanished") || m.type == QLatin1String("obsolete"))
            continue;
        const QByteArray context = m.context.toUtf8();
        const QByteArray source = m.source.toUtf8();
        const QByteArray comment = m.comment.toUtf8();
        const char *disambiguation = m.comment.isEmpty() ? nullptr : comment.constData();
        if (m.numerus) {
            QString singular = m.numerusForms.value(0);
            singular.replace(QLatin1String("%n"), QLatin1String("1"));
            QCOMPARE(QCoreApplication::translate(context.constData(), source.constData(), disambiguation, 1), singular);
        } else {
            QCOMPARE(QCoreApplication::translate(context.constData(), source.constData(), disambiguation),
                     m.translation);
        }
    }

    // German is the source: no catalogue of ours stands between code and screen.
    QVERIFY(Localiser::install(QStringLiteral("de")));
    for (const TsMessage &m : std::as_const(ts.messages)) {
        if (m.numerus)
            continue;
        const QByteArray context = m.context.toUtf8();
        const QByteArray source = m.source.toUtf8();
        const QByteArray comment = m.comment.toUtf8();
        QCOMPARE(QCoreApplication::translate(context.constData(), source.constData(),
                                             m.comment.isEmpty() ? nullptr : comment.constData()),
                 m.source);
    }
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "test_translations.moc"
