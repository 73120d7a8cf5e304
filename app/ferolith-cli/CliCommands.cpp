// The batch commands: each loads a mask into a document as File Open does;
// only "render" puts it into a mask window.
#include "CliCommands.h"

#include "AppPaths.h"
#include "FormDesigner.h"
#include "ConnectionSettings.h"
#include "MaskDocument.h"
#include "MaskDump.h"
#include "MaskLoader.h"
#include "MaskResolutions.h"
#include "MaskWriter.h"
#include "Maske.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QJsonDocument>
#include <QMdiArea>
#include <QPixmap>
#include <memory>

namespace {

bool expectArgs(const QStringList &args, int count, const char *usage, QTextStream &err)
{
    if (args.size() == count)
        return true;
    err << "ferolith-cli: "
        << QCoreApplication::translate("ferolith-cli", "Aufruf: %1")
               .arg(QStringLiteral("ferolith-cli ") + QCoreApplication::translate("ferolith-cli", usage))
        << Qt::endl;
    return false;
}

// A readable mask file, or one line saying why not.
bool checkInput(const QString &file, QTextStream &err)
{
    const QFileInfo info(file);
    if (!info.exists()) {
        err << "ferolith-cli: "
            << QCoreApplication::translate("ferolith-cli", "Die Datei „%1“ gibt es nicht.").arg(file) << Qt::endl;
        return false;
    }
    if (!info.isFile() || !info.isReadable()) {
        err << "ferolith-cli: "
            << QCoreApplication::translate("ferolith-cli", "Die Datei „%1“ kann nicht gelesen werden.").arg(file)
            << Qt::endl;
        return false;
    }
    return true;
}

// The folder of the table settings files, as the settings window would show it.
QString databaseFolder()
{
    return TConnectionSettings::load(AppPaths::settingsFile()).DBPfad;
}

// Loads the file into document; false after a message on err.
bool load(TMaskDocument &document, const QString &file, QTextStream &err,
          const MaskLoader::HeaderRead &headerRead = {})
{
    if (!checkInput(file, err))
        return false;
    QString error;
    if (!MaskLoader::LoadMask(document, file, databaseFolder(), &error, headerRead)) {
        err << "ferolith-cli: " << error.simplified() << Qt::endl;
        return false;
    }
    return true;
}

} // namespace

namespace CliCommands {

int roundtrip(const QStringList &args, QTextStream &, QTextStream &err)
{
    if (!expectArgs(args, 2, QT_TRANSLATE_NOOP("ferolith-cli", "roundtrip EIN.dbm AUS.dbm"), err))
        return 2;
    TMaskDocument document;
    if (!load(document, args.at(0), err))
        return 1;
    QString error;
    if (!MaskWriter::SaveMask(document, args.at(1), &error)) {
        err << "ferolith-cli: " << error.simplified() << Qt::endl;
        return 1;
    }
    return 0;
}

int dump(const QStringList &args, QTextStream &out, QTextStream &err)
{
    if (!expectArgs(args, 1, QT_TRANSLATE_NOOP("ferolith-cli", "dump EIN.dbm"), err))
        return 2;
    TMaskDocument document;
    if (!load(document, args.at(0), err))
        return 1;
    out << QString::fromUtf8(QJsonDocument(MaskDump::MaskToJson(document)).toJson(QJsonDocument::Indented));
    out.flush();
    return 0;
}

int withMask(const QString &file, QTextStream &err, const std::function<int(const TMaskDocument &)> &use)
{
    TMaskDocument document;
    if (!load(document, file, err))
        return 1;
    return use(document);
}

int render(const QStringList &args, QTextStream &out, QTextStream &err)
{
    if (!expectArgs(args, 2, QT_TRANSLATE_NOOP("ferolith-cli", "render EIN.dbm AUS.png"), err))
        return 2;
    // A mask window in a window area, sized as the main window of a
    // 1280x1024 screen would size it, in run mode: no designer.
    const QSize mainWindow(1280, 1024);
    QMdiArea area;
    area.resize(mainWindow);
    auto *mask = new TMaske; // the area owns it
    area.addSubWindow(mask);
    area.show(); // on the offscreen platform: laid out, never seen
    mask->show();
    if (!load(*mask->document(), args.at(0), err, [&](TMaskDocument &document) {
            const QString text = QStringLiteral("%1x%2").arg(document.ScreenWidth()).arg(document.ScreenHeight());
            MaskResolutions::apply(mask, int(MaskResolutions::texts().indexOf(text)), mainWindow);
        }))
        return 1;
    mask->documentLoaded();
    QCoreApplication::processEvents();
    mask->FormDesigner2()->setActive(false); // run mode, whatever activated the window
    const QImage image = mask->grab().toImage();
    QImageWriter writer(args.at(1), "png");
    if (!writer.write(image)) {
        err << "ferolith-cli: "
            << QCoreApplication::translate("ferolith-cli", "Das Bild „%1“ kann nicht geschrieben werden: %2")
                   .arg(args.at(1), writer.errorString())
            << Qt::endl;
        return 1;
    }
    out << QFileInfo(args.at(1)).absoluteFilePath() << Qt::endl;
    return 0;
}

} // namespace CliCommands
