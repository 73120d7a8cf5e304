// Loading a mask file into a document.
#include "MaskLoader.h"

#include "Components.h"
#include "Control.h"
#include "ControlKinds.h"
#include "ControlReader.h"
#include "EditStyle.h"
#include "FileNames.h"
#include "IniFile.h"
#include "IniFileAccess.h"
#include "MaskDocument.h"
#include "TableDescription.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

#include <vector>

namespace {

const QString kDatenbank = QStringLiteral("Datenbank");
const QString kDatenBank = QStringLiteral("DatenBank");
const QString kStyle = QStringLiteral("Style");
const QString kSort = QStringLiteral("Sort");

// Sections above this number are never loaded.
constexpr int kMaxSectionNumber = 1000;

// The number n of a section named prefix + n, where n is written as
// QString::number writes it and lies in 1..kMaxSectionNumber; 0 otherwise.
int sectionNumber(QStringView section, QStringView prefix)
{
    if (section.size() <= prefix.size() || section.size() > prefix.size() + 4
        || !IniFileAccess::sameName(section.left(prefix.size()), prefix))
        return 0;
    const QStringView digits = section.mid(prefix.size());
    if (digits.at(0) == QLatin1Char('0'))
        return 0;
    int n = 0;
    for (QChar c : digits) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return 0;
        n = n * 10 + (c.unicode() - '0');
    }
    return n <= kMaxSectionNumber ? n : 0;
}

// Every kind in the table's order, containers before what they contain; a
// kind's sections by number. The section list is read once instead of
// probing every possible number: that was 20,000 look-ups per file.
void loadKinds(TControlReader &reader, const TMemIniFile &ini)
{
    const QStringList sections = ini.readSections();
    std::vector<bool> present;
    for (const TControlKind &kind : ControlKinds::all()) {
        if (!kind.load)
            continue;
        if (kind.singleSection && ini.sectionExists(QLatin1String(kind.singleSection)))
            (reader.*kind.load)(QString::fromLatin1(kind.singleSection));
        if (!kind.sectionPrefix)
            continue;
        const QString prefix = QString::fromLatin1(kind.sectionPrefix);
        present.assign(kMaxSectionNumber + 1, false);
        bool any = false;
        for (const QString &section : sections) {
            if (const int n = sectionNumber(section, prefix)) {
                present[size_t(n)] = true;
                any = true;
            }
        }
        for (int n = 1; any && n <= kMaxSectionNumber; ++n) {
            if (present[size_t(n)])
                (reader.*kind.load)(prefix + QString::number(n));
        }
    }
}

// The "Sort" lines name controls by older component name stems: of these
// only "MaskBtn" names what loading makes, so only buttons take their place
// from them.
void applySortSection(TMaskDocument *mask, const TMemIniFile &ini)
{
    if (!ini.sectionExists(kSort))
        return;
    const int count = Components::componentCount(mask);
    for (int i = 0; i < count; ++i) {
        const QString value = ini.readString(kSort, QString::number(i), QStringLiteral("ERROR"));
        if (value == QLatin1String("ERROR") || value.isEmpty())
            continue;
        const TControlKind *kind = ControlKinds::bySortCode(value.at(0).unicode() - '0');
        if (!kind)
            continue;
        const QString number = value.mid(2 + int(qstrlen(kind->sortWord)));
        QObject *found = Components::findComponent(mask, QString::fromLatin1(kind->sortStem) + number);
        if (TControl *c = TControl::from(found))
            c->setTabOrder(i);
    }
}

void loadEditStyle(TMaskDocument *mask, const TMemIniFile &ini)
{
    TcxEditStyleController *style = mask->cxStyleController();
    const auto ordinal = [&](const char *key, int def, int count) {
        const int v = ini.readInteger(kStyle, QString::fromLatin1(key), def);
        return v >= 0 && v < count ? v : def;
    };
    style->setBorderStyle(TcxEditBorderStyle(ordinal("BorderStyle", ebs3D, ebsOffice11 + 1)));
    style->setButtonStyle(TcxEditButtonStyle(ordinal("ButtonStyle", btsDefault, btsOffice11 + 1)));
    style->setButtonTransparency(TcxEditButtonTransparence(ordinal("ButtonTrans", ebtNone, ebtHideUnselected + 1)));
    style->setBorderColor(ini.readColor(kStyle, QStringLiteral("Color"), TColor(0)));
    style->setShadow(ini.readBool(kStyle, QStringLiteral("Shadow"), false));
    style->setHotTrack(ini.readBool(kStyle, QStringLiteral("Hottrack"), false));
    int edges = 0;
    if (ini.readBool(kStyle, QStringLiteral("EdgeLeft"), true))
        edges |= bLeft;
    if (ini.readBool(kStyle, QStringLiteral("EdgeRight"), true))
        edges |= bRight;
    if (ini.readBool(kStyle, QStringLiteral("EdgeTop"), true))
        edges |= bTop;
    if (ini.readBool(kStyle, QStringLiteral("EdgeBottom"), true))
        edges |= bBottom;
    style->setEdges(edges);
}

QString withoutExtension(const QString &name)
{
    const int dot = int(name.lastIndexOf(QLatin1Char('.')));
    const int sep = int(qMax(name.lastIndexOf(QLatin1Char('/')), name.lastIndexOf(QLatin1Char('\\'))));
    return dot > sep ? name.left(dot) : name;
}

} // namespace

namespace MaskLoader {

void LoadTableSettings(TMaskDocument &document, const QString &databaseFolder)
{
    document.setDatenbankPfad(databaseFolder);
    document.setTableSettings(TableDescription::read(databaseFolder, document.Tabelle()));
}

bool LoadMask(TMaskDocument &document, const QString &fileName, const QString &databaseFolder,
              QString *errorMessage, const HeaderRead &headerRead)
{
    TMemIniFile ini;
    const bool read = ini.load(fileName, errorMessage);
    if (!read)
        ini.clear(); // what could not be read gives an empty mask

    TMaskDocument *mask = &document;
    mask->setTyp(ini.readInteger(kDatenbank, QStringLiteral("Typ"), 0));
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize screenSize = screen ? screen->size() : QSize(800, 600);
    mask->setPixel(ini.readInteger(kDatenBank, QStringLiteral("Pixel"), screen ? screen->depth() : 32));
    mask->setScreenHeight(ini.readInteger(kDatenBank, QStringLiteral("Height"), screenSize.height()));
    mask->setScreenWidth(ini.readInteger(kDatenBank, QStringLiteral("Width"), screenSize.width()));
    if (headerRead)
        headerRead(document);

    mask->setTabelle(withoutExtension(ini.readString(kDatenbank, QStringLiteral("Tabelle"), QString())));
    mask->setTitel(ini.readString(kDatenbank, QStringLiteral("Titel"), QStringLiteral("Maske")));
    LoadTableSettings(document, databaseFolder);

    loadEditStyle(mask, ini);

    // Built out of sight: a visible surface would lay out and repaint
    // after every control.
    const bool surfaceShown = !mask->isHidden();
    mask->hide();
    TControlReader reader(mask, ini);
    loadKinds(reader, ini);

    applySortSection(mask, ini);
    reader.finish();
    mask->setVisible(surfaceShown);
    return read;
}

} // namespace MaskLoader
