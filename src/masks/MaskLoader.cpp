// Loading a mask file into a new mask window.
#include "MaskLoader.h"

#include "Components.h"
#include "Control.h"
#include "EditStyle.h"
#include "FileNames.h"
#include "FormDesigner.h"
#include "IniFile.h"
#include "MaskReader.h"
#include "Maske.h"
#include "TableDescription.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

namespace {

const QString kDatenbank = QStringLiteral("Datenbank");
const QString kDatenBank = QStringLiteral("DatenBank");
const QString kStyle = QStringLiteral("Style");
const QString kSort = QStringLiteral("Sort");

// The numbered kinds in the order they are made: containers before what
// they contain. The main grid "Browser" comes between the buttons and the
// numbered grids.
using KindLoader = void (TMaskReader::*)(const QString &);
struct Kind
{
    const char *prefix;
    KindLoader load;
};
const Kind kKindsBeforeBrowser[] = {
    {"PageControl_", &TMaskReader::LoadPageControl},
    {"Page_", &TMaskReader::LoadPage},
    {"Panel_", &TMaskReader::LoadPanel},
    {"Label_", &TMaskReader::LoadLabel},
    {"DBLabel_", &TMaskReader::LoadDBLabel},
    {"Field_", &TMaskReader::LoadField},
    {"CField_", &TMaskReader::LoadCField},
    {"LField_", &TMaskReader::LoadLField},
    {"Memo_", &TMaskReader::LoadMemo},
    {"CheckBox_", &TMaskReader::LoadCheckBox},
    {"Bevel_", &TMaskReader::LoadBevel},
    {"Image_", &TMaskReader::LoadImage},
    {"Shape_", &TMaskReader::LoadShape},
    {"Button_", &TMaskReader::LoadButton},
};
const Kind kKindsAfterBrowser[] = {
    {"DBBrowser_", &TMaskReader::LoadBrowser},
    {"DBTreeList_", &TMaskReader::LoadTreeList},
    {"StringGrid_", &TMaskReader::LoadStringGrid},
    {"DBRadioGroup_", &TMaskReader::LoadRadioGroup},
};
// Sections above this number are never loaded.
constexpr int kMaxSectionNumber = 1000;

void loadKinds(TMaskReader &reader, const TMemIniFile &ini, const Kind *begin, const Kind *end)
{
    for (const Kind *kind = begin; kind != end; ++kind) {
        const QString prefix = QString::fromLatin1(kind->prefix);
        for (int n = 1; n <= kMaxSectionNumber; ++n) {
            const QString section = prefix + QString::number(n);
            if (ini.sectionExists(section))
                (reader.*kind->load)(section);
        }
    }
}

// Component name stems and kind word lengths of the tab order lines, by kind
// code. They are older control names: of these only "MaskBtn" names what
// loading makes, so only buttons take their place from "Sort".
struct SortKind
{
    const char *stem;
    int wordLength;
};
const SortKind kSortKinds[] = {
    {"dxEdit", 4},        // 0-Feld
    {"dxPickEdit", 5},    // 1-CFeld
    {"dxMemo", 4},        // 2-Memo
    {"MaskBtn", 6},       // 3-Button
    {"dxDBCheckEdit", 8}, // 4-Checkbox
    {"dxPopUpEdit", 5},   // 5-LFeld
};

void applySortSection(TMaske *mask, const TMemIniFile &ini)
{
    if (!ini.sectionExists(kSort))
        return;
    const int count = Components::componentCount(mask);
    for (int i = 0; i < count; ++i) {
        const QString value = ini.readString(kSort, QString::number(i), QStringLiteral("ERROR"));
        if (value == QLatin1String("ERROR") || value.isEmpty())
            continue;
        const int code = value.at(0).unicode() - '0';
        if (code < 0 || code > 5)
            continue;
        const SortKind &kind = kSortKinds[code];
        const QString number = value.mid(2 + kind.wordLength);
        QObject *found = Components::findComponent(mask, QString::fromLatin1(kind.stem) + number);
        if (TControl *c = TControl::from(found))
            c->setTabOrder(i);
    }
}

void loadEditStyle(TMaske *mask, const TMemIniFile &ini)
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

void LoadTableSettings(TMaske *mask, const QString &databaseFolder)
{
    mask->setTableSettings(TableDescription::read(databaseFolder, mask->Tabelle()));
}

TMaske *LoadMask(TMaskLoaderHost &host, const QString &fileName, QString *errorMessage)
{
    TMemIniFile ini;
    if (!ini.load(fileName, errorMessage))
        ini.clear(); // what could not be read gives an empty mask

    TMaske *mask = host.OpenMaskWindow(fileName);
    // No handles while the controls are made.
    mask->FormDesigner2()->setActive(false);

    mask->setTyp(ini.readInteger(kDatenbank, QStringLiteral("Typ"), 0));
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize screenSize = screen ? screen->size() : QSize(800, 600);
    mask->setPixel(ini.readInteger(kDatenBank, QStringLiteral("Pixel"), screen ? screen->depth() : 32));
    mask->setScreenHeight(ini.readInteger(kDatenBank, QStringLiteral("Height"), screenSize.height()));
    mask->setScreenWidth(ini.readInteger(kDatenBank, QStringLiteral("Width"), screenSize.width()));
    host.selectResolution(mask, QStringLiteral("%1x%2").arg(mask->ScreenWidth()).arg(mask->ScreenHeight()));

    mask->setTabelle(withoutExtension(ini.readString(kDatenbank, QStringLiteral("Tabelle"), QString())));
    mask->setTitel(ini.readString(kDatenbank, QStringLiteral("Titel"), QStringLiteral("Maske")));
    LoadTableSettings(mask, host.DatabasePath());
    mask->setWindowTitle(mask->Titel());

    loadEditStyle(mask, ini);

    // Built out of sight: a visible surface would lay out and repaint
    // after every control.
    QWidget *surface = mask->designSurface();
    const bool surfaceShown = !surface->isHidden();
    surface->hide();
    TMaskReader reader(mask, ini);
    loadKinds(reader, ini, std::begin(kKindsBeforeBrowser), std::end(kKindsBeforeBrowser));
    if (ini.sectionExists(QStringLiteral("Browser")))
        reader.LoadBrowser(QStringLiteral("Browser"));
    loadKinds(reader, ini, std::begin(kKindsAfterBrowser), std::end(kKindsAfterBrowser));
    if (ini.readInteger(QStringLiteral("View"), QStringLiteral("Left"), -1) >= 0)
        reader.LoadView(QStringLiteral("View"), QStringLiteral("Tab"));

    applySortSection(mask, ini);
    reader.finish();
    surface->setVisible(surfaceShown);

    host.UpdateComponents();
    mask->setModified(false);
    mask->FormDesigner2()->setActive(true);
    return mask;
}

} // namespace MaskLoader
