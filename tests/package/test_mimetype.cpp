// The file type of masks as a desktop's MIME database sees it: masks are known
// by their name and, where the header starts the file, by their content;
// the table description files beside the database are not taken for masks.
#include <QtTest>

#include <QDir>
#include <QFile>
#include <QMimeDatabase>
#include <QTemporaryDir>

#include "TestSupport.h"

namespace {
const QString kMaskType = QStringLiteral("application/x-quorbex-mask");

QByteArray crlf(const char *text)
{
    return QByteArray(text).replace("\n", "\r\n");
}
} // namespace

class TestMimeType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleMasksByNameAndContent_data();
    void sampleMasksByNameAndContent();
    void otherMasksAndOtherFiles();

private:
    QTemporaryDir m_dir;
    QString write(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_dir.filePath(name);
        return writeFileBytes(path, bytes) ? path : QString();
    }
};

void TestMimeType::sampleMasksByNameAndContent_data()
{
    QTest::addColumn<QString>("file");
    const QDir masks(QStringLiteral(FEROLITH_MASKS));
    const QStringList files = masks.entryList({QStringLiteral("*.dbm")}, QDir::Files);
    QVERIFY(!files.isEmpty());
    for (const QString &f : files)
        QTest::newRow(qPrintable(f)) << masks.filePath(f);
}

void TestMimeType::sampleMasksByNameAndContent()
{
    QFETCH(QString, file);
    QMimeDatabase db;
    QCOMPARE(db.mimeTypeForFile(file, QMimeDatabase::MatchExtension).name(), kMaskType);
    const QByteArray bytes = readFileBytes(file);
    QCOMPARE(db.mimeTypeForData(bytes).name(), kMaskType);
    // Also when a mask was saved as UTF-8 with a byte-order mark, which the loader accepts.
    QCOMPARE(db.mimeTypeForData(QByteArray("\xEF\xBB\xBF") + bytes).name(), kMaskType);
    // Renamed, a mask is still recognised by its content.
    const QString renamed = write(QStringLiteral("maske-ohne-endung"), bytes);
    QCOMPARE(db.mimeTypeForFile(renamed).name(), kMaskType);
}

void TestMimeType::otherMasksAndOtherFiles()
{
    QMimeDatabase db;
    const QMimeType type = db.mimeTypeForName(kMaskType);
    QVERIFY(type.isValid());
    QVERIFY(type.inherits(QStringLiteral("text/plain"))); // masks open in text editors
    QCOMPARE(type.suffixes(), QStringList{QStringLiteral("dbm")});

    // The pick-list blocks of combo boxes stand before the header: known by name.
    const QString lists = write(QStringLiteral("Anrede.dbm"),
                                crlf("[Anrede]\nHerr\nFrau\n\n[Datenbank]\nTabelle=Kunden\nTitel=Kunden\n"));
    QCOMPARE(db.mimeTypeForFile(lists).name(), kMaskType);

    // A table description is no mask.
    const QByteArray description = crlf("[Datenbank]\nCadPath=\nDateizaehler=\nFelder=\nFokus=NAME\nIndex=KNR\n"
                                        "[Default]\nLAND=DE\n");
    QVERIFY(db.mimeTypeForData(description).name() != kMaskType);
    QVERIFY(db.mimeTypeForFile(write(QStringLiteral("Kunden.ini"), description)).name() != kMaskType);
}

// The type is read from the package's own file, put where a desktop's
// data folders hold theirs, before Qt's MIME database first looks.
int main(int argc, char *argv[])
{
    QTemporaryDir data;
    if (!data.isValid() || !QDir(data.path()).mkpath(QStringLiteral("mime/packages"))
        || !QFile::copy(QStringLiteral(FEROLITH_MIME_XML), data.filePath(QStringLiteral("mime/packages/ferolith.xml")))) {
        qCritical("cannot set up the MIME data folder");
        return 1;
    }
    QByteArray dirs = QFile::encodeName(data.path());
    const QByteArray system = qgetenv("XDG_DATA_DIRS");
    dirs += ':' + (system.isEmpty() ? QByteArray("/usr/local/share:/usr/share") : system);
    qputenv("XDG_DATA_DIRS", dirs);
    QCoreApplication app(argc, argv);
    TestMimeType test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_mimetype.moc"
