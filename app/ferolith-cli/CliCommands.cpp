// The batch commands: each loads a mask into a real mask window of an
// invisible main window, exactly as File Open does.
#include "CliCommands.h"

#include "MainForm.h"
#include "MaskDump.h"
#include "MaskLoader.h"
#include "MaskWriter.h"
#include "Maske.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QJsonDocument>
#include <QPixmap>
#include <memory>

namespace {

bool expectArgs(const QStringList &args, int count, const char *usage, QTextStream &err)
{
    if (args.size() == count)
        return true;
    err << "ferolith-cli: Aufruf: ferolith-cli " << usage << Qt::endl;
    return false;
}

// A readable mask file, or one line saying why not.
bool checkInput(const QString &file, QTextStream &err)
{
    const QFileInfo info(file);
    if (!info.exists()) {
        err << "ferolith-cli: Die Datei „" << file << "“ gibt es nicht." << Qt::endl;
        return false;
    }
    if (!info.isFile() || !info.isReadable()) {
        err << "ferolith-cli: Die Datei „" << file << "“ kann nicht gelesen werden." << Qt::endl;
        return false;
    }
    return true;
}

struct Loaded
{
    std::unique_ptr<TMainForm> form;
    TMaske *mask = nullptr;
};

Loaded load(const QString &file, QTextStream &err)
{
    Loaded l;
    if (!checkInput(file, err))
        return l;
    l.form = std::make_unique<TMainForm>();
    l.form->resize(1280, 1024);
    l.form->show(); // on the offscreen platform: laid out, never seen
    QString error;
    TMaske *mask = MaskLoader::LoadMask(*l.form, file, &error);
    if (!error.isEmpty()) {
        err << "ferolith-cli: " << error.simplified() << Qt::endl;
        return l;
    }
    l.mask = mask;
    QCoreApplication::processEvents();
    return l;
}

} // namespace

namespace CliCommands {

int roundtrip(const QStringList &args, QTextStream &, QTextStream &err)
{
    if (!expectArgs(args, 2, "roundtrip EIN.dbm AUS.dbm", err))
        return 2;
    Loaded l = load(args.at(0), err);
    if (!l.mask)
        return 1;
    QString error;
    if (!MaskWriter::SaveMask(l.mask, args.at(1), &error)) {
        err << "ferolith-cli: " << error.simplified() << Qt::endl;
        return 1;
    }
    return 0;
}

int dump(const QStringList &args, QTextStream &out, QTextStream &err)
{
    if (!expectArgs(args, 1, "dump EIN.dbm", err))
        return 2;
    Loaded l = load(args.at(0), err);
    if (!l.mask)
        return 1;
    out << QString::fromUtf8(QJsonDocument(MaskDump::MaskToJson(l.mask)).toJson(QJsonDocument::Indented));
    out.flush();
    return 0;
}

int withMask(const QString &file, QTextStream &err, const std::function<int(const TMaskDocumentData &)> &use)
{
    Loaded l = load(file, err);
    if (!l.mask)
        return 1;
    return use(TMaskDocumentData{l.mask->Tabelle(), l.mask->TableSettings(), l.mask->designSurface()});
}

int render(const QStringList &args, QTextStream &out, QTextStream &err)
{
    if (!expectArgs(args, 2, "render EIN.dbm AUS.png", err))
        return 2;
    Loaded l = load(args.at(0), err);
    if (!l.mask)
        return 1;
    l.form->RunMode1Click();
    QCoreApplication::processEvents();
    const QImage image = l.mask->grab().toImage();
    QImageWriter writer(args.at(1), "png");
    if (!writer.write(image)) {
        err << "ferolith-cli: Das Bild „" << args.at(1) << "“ kann nicht geschrieben werden: " << writer.errorString()
            << Qt::endl;
        return 1;
    }
    out << QFileInfo(args.at(1)).absoluteFilePath() << Qt::endl;
    return 0;
}

} // namespace CliCommands
