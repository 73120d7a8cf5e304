// A mask file of any number of mixed controls for the benchmarks: mostly
// labels and edit fields, some combo boxes, lookups, memos, check boxes,
// buttons, bevels, shapes, grids, tree lists, radio groups, panels holding
// controls and a page control with two pages holding controls.
#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

#include <utility>
#include <vector>

namespace GeneratedMask {

// ---------------------------------------------------------------- the layout

enum Kind {
    kPager,
    kPage,
    kPanel,
    kLabel,
    kDBLabel,
    kField,
    kCField,
    kLField,
    kMemo,
    kCheckBox,
    kBevel,
    kShape,
    kButton,
    kGrid,
    kTree,
    kStringGrid,
    kRadio,
    kKindCount
};

struct KindInfo
{
    const char *prefix;   // section prefix in the mask file
    const char *stem;     // component name stem of the loaded control
    const char *qtClass;  // the Qt widget that stands for it in the .ui file
    const char *sortWord; // tab order kind word, or nullptr
    bool tall;            // takes a taller cell
};

inline const KindInfo kKinds[kKindCount] = {
    {"PageControl_", "AdvOfficePager", "QTabWidget", nullptr, true},
    {"Page_", "AdvOfficePage", "QWidget", nullptr, false},
    {"Panel_", "Panel", "QFrame", nullptr, false},
    {"Label_", "Label", "QLabel", nullptr, false},
    {"DBLabel_", "DBLabel", "QLabel", nullptr, false},
    {"Field_", "cxTextEdit", "QLineEdit", "0-Feld", false},
    {"CField_", "cxComboBox", "QComboBox", "1-CFeld", false},
    {"LField_", "cxDBPopupEdit", "QLineEdit", "5-LFeld", false},
    {"Memo_", "cxMemo", "QPlainTextEdit", "2-Memo", true},
    {"CheckBox_", "cxDBCheckBox", "QCheckBox", "4-Checkbox", false},
    {"Bevel_", "Bevel", "QFrame", nullptr, false},
    {"Shape_", "Shape", "QFrame", nullptr, false},
    {"Button_", "MaskBtn", "QPushButton", "3-Button", false},
    {"DBBrowser_", "DBGrid", "QTableWidget", nullptr, true},
    {"DBTreeList_", "cxDBTreeList", "QTreeWidget", nullptr, true},
    {"StringGrid_", "StringGrid", "QTableWidget", nullptr, true},
    {"DBRadioGroup_", "DBRadioGroup", "QGroupBox", nullptr, true},
};

// The repeating mix of 50 controls: 10 labels, 10 edit fields, 4 data labels,
// 4 combo boxes, 4 check boxes, 3 lookups, 3 memos, 3 buttons, 2 bevels, 2
// panels, one shape, grid, tree list, string grid and radio group. No kind
// has more than a fifth, so 5000 controls stay within 1000 sections a kind.
inline const Kind kPattern[] = {
    kLabel, kField, kLabel,   kField,   kCField,   kLabel,   kField,    kCheckBox,  kLabel,  kField,
    kPanel, kLabel, kField,   kDBLabel, kMemo,     kLabel,   kField,    kButton,    kBevel,  kLField,
    kLabel, kField, kCField,  kDBLabel, kCheckBox, kGrid,    kLabel,    kField,     kTree,   kRadio,
    kPanel, kLabel, kField,   kCField,  kMemo,     kDBLabel, kCheckBox, kButton,    kBevel,  kLField,
    kLabel, kField, kCField,  kDBLabel, kMemo,     kCheckBox, kButton,  kStringGrid, kLField, kShape,
};
constexpr int kPatternSize = int(sizeof(kPattern) / sizeof(kPattern[0]));
static_assert(kPatternSize == 50, "the mix repeats every 50 controls");

constexpr int kMaxSection = 1000; // the loader probes 1 .. 1000 per kind
constexpr int kColumns = 8;
constexpr int kCellWidth = 150;
constexpr int kCellHeight = 64;
constexpr int kControlWidth = 140;
constexpr int kPanelChildren = 6;
constexpr int kPageChildren = 8;
constexpr int kPagerHeight = kCellHeight + 48;
constexpr int kFullWidth = kColumns * kCellWidth;

struct Node
{
    Kind kind;
    int number;   // section number of its kind, also the number of its name
    int parent;   // index of the containing node, -1 for the mask
    QRect geom;   // in the parent's client coordinates
    int tabOrder; // per parent; -1 for kinds outside the tab order
};

struct Layout
{
    std::vector<Node> nodes;
    int width = 0;
    int height = 0;
    int perKind[kKindCount] = {};
};

inline QString nameOf(const Node &n)
{
    return QString::fromLatin1(kKinds[n.kind].stem) + QString::number(n.number);
}

inline QString sectionOf(const Node &n)
{
    return QString::fromLatin1(kKinds[n.kind].prefix) + QString::number(n.number);
}

inline Layout makeLayout(int count)
{
    Layout l;
    std::vector<int> nextTab; // per parent node; slot 0 is the mask
    nextTab.resize(size_t(count) + 1, 0);
    auto add = [&](Kind k, int parent, const QRect &g) {
        Node n{k, ++l.perKind[k], parent, g, -1};
        if (kKinds[k].sortWord)
            n.tabOrder = nextTab[size_t(parent + 1)]++;
        l.nodes.push_back(n);
        return int(l.nodes.size()) - 1;
    };
    auto cell = [](Kind k, int x, int y) {
        return QRect(x, y, kControlWidth, kKinds[k].tall ? kCellHeight - 8 : 24);
    };

    // The page control on top, eight controls on each of its two pages.
    const int pager = add(kPager, -1, QRect(8, 8, kFullWidth, kPagerHeight));
    const int pages[2] = {add(kPage, pager, QRect()), add(kPage, pager, QRect())};
    int y = 8 + kPagerHeight + 8;
    int column = 0;
    int pageFill = 0;
    int panel = -1;
    int panelFill = 0;
    // Positions stay within what the file format holds (16 bits): a full
    // band continues to its right.
    const int top = y;
    int left = 8;
    int bands = 1;
    const auto nextRow = [&](int height) {
        y += height;
        if (y + 2 * (kCellHeight + 24) > 32000) {
            y = top;
            left += kFullWidth + 16;
            ++bands;
        }
    };

    for (int slot = 0; int(l.nodes.size()) < count; ++slot) {
        const Kind k = kPattern[slot % kPatternSize];
        if (k == kPanel) {
            if (pageFill < 2 * kPageChildren)
                continue; // the pages come first
            if (column > 0) {
                nextRow(kCellHeight);
                column = 0;
            }
            panel = add(kPanel, -1, QRect(left, y, kFullWidth, kCellHeight + 16));
            panelFill = 0;
            nextRow(kCellHeight + 24);
            continue;
        }
        if (pageFill < 2 * kPageChildren) {
            const int page = pages[pageFill / kPageChildren];
            add(k, page, cell(k, 8 + (pageFill % kPageChildren) * kCellWidth, 8));
            ++pageFill;
        } else if (panel >= 0 && panelFill < kPanelChildren) {
            add(k, panel, cell(k, 8 + panelFill * kCellWidth, 8));
            ++panelFill;
        } else {
            add(k, -1, cell(k, left + column * kCellWidth, y));
            if (++column == kColumns) {
                column = 0;
                nextRow(kCellHeight);
            }
        }
    }
    l.width = bands * (kFullWidth + 16);
    l.height = bands > 1 ? 32000 : y + kCellHeight + 8;
    return l;
}

// ------------------------------------------------------------ the mask file

class DbmText
{
public:
    void section(const QString &name) { m_text += QLatin1Char('[') + name + QStringLiteral("]\r\n"); }
    void end() { m_text += QStringLiteral("\r\n"); }
    void key(const char *k, const QString &v) { m_text += QLatin1String(k) + QLatin1Char('=') + v + QStringLiteral("\r\n"); }
    void key(const char *k, int v) { key(k, QString::number(v)); }
    void key(const char *k, const char *v) { key(k, QString::fromLatin1(v)); }
    void raw(const QString &line) { m_text += line + QStringLiteral("\r\n"); }
    QByteArray bytes() const { return m_text.toLatin1(); } // Windows-1252 for the letters used here

private:
    QString m_text;
};

inline QString parentName(const Layout &l, const Node &n)
{
    return n.parent < 0 ? QStringLiteral("Maske") : nameOf(l.nodes[size_t(n.parent)]);
}

inline QString captionOf(const Node &n)
{
    switch (n.kind) {
    case kLabel:
        return n.number % 5 == 0 ? QStringLiteral("Straße %1:").arg(n.number)
                                 : QStringLiteral("Bezeichnung %1:").arg(n.number);
    case kDBLabel:
        return QStringLiteral("DBTEXT%1").arg(n.number);
    case kField:
        return QStringLiteral("FELD%1").arg(n.number);
    case kCField:
        return QStringLiteral("AUSWAHL%1").arg(n.number);
    case kLField:
        return QStringLiteral("LOOKUP%1").arg(n.number);
    case kMemo:
        return QStringLiteral("NOTIZ%1").arg(n.number);
    case kCheckBox:
        return QStringLiteral("Aktiv %1").arg(n.number);
    case kButton:
        return QStringLiteral("Ausführen %1").arg(n.number);
    case kPanel:
        return QStringLiteral("Gruppe %1").arg(n.number);
    case kPage:
        return QStringLiteral("Seite %1").arg(n.number);
    case kRadio:
        return QStringLiteral("Auswahl %1").arg(n.number);
    default:
        return QString();
    }
}

inline void boundsKeys(DbmText &t, const Node &n)
{
    t.key("Left", n.geom.x());
    t.key("Top", n.geom.y());
    t.key("Height", n.geom.height());
    t.key("Width", n.geom.width());
}

inline void fontAfterSize(DbmText &t)
{
    t.key("FName", "Arial");
    t.key("FSize", 10);
    t.key("FColor", "clBlack");
    t.key("FStyle", "");
}

inline void fontColorFirst(DbmText &t, const char *face, const char *sizeKey)
{
    t.key("FColor", "clBlack");
    t.key("FName", face);
    t.key(sizeKey, 10);
    t.key("FStyle", "");
}

inline QByteArray makeDbm(const Layout &l)
{
    DbmText t;
    // Pick lists of the combo boxes first, as saving puts them.
    const int lists = 4;
    for (int i = 1; i <= lists; ++i) {
        t.section(QStringLiteral("Liste%1").arg(i));
        t.raw(QStringLiteral("rot"));
        t.raw(QStringLiteral("grün"));
        t.raw(QStringLiteral("blau"));
        t.end();
    }
    t.section(QStringLiteral("Datenbank"));
    t.key("Tabelle", "Kunden");
    t.key("Titel", "Kundenstamm");
    t.key("Typ", 0);
    t.end();
    t.section(QStringLiteral("DatenBank"));
    t.key("Pixel", 32);
    t.key("Height", 1024);
    t.key("Width", 1280);
    t.end();
    t.section(QStringLiteral("Style"));
    t.key("BorderStyle", 4);
    t.key("ButtonStyle", 0);
    t.key("ButtonTrans", 0);
    t.key("Color", "0");
    t.key("Shadow", 0);
    t.key("Hottrack", 0);
    t.key("EdgeLeft", 1);
    t.key("EdgeRight", 1);
    t.key("EdgeTop", 1);
    t.key("EdgeBottom", 1);
    t.end();

    std::vector<std::pair<int, QString>> sort;
    for (const Node &n : l.nodes) {
        const QString parent = parentName(l, n);
        const QString caption = captionOf(n);
        const QString number = QString::number(n.number);
        t.section(sectionOf(n));
        switch (n.kind) {
        case kPager:
            t.key("Parent", parent);
            t.key("Style", 6);
            t.key("Alignment", 0); // not aligned: keeps its place
            boundsKeys(t, n);
            t.key("TabPos", 0);
            t.key("ActivePage", 0);
            fontColorFirst(t, "Tahoma", "FontSize");
            break;
        case kPage:
            t.key("Parent", parent);
            t.key("Pageindex", n.number - 1);
            t.key("Name", caption);
            break;
        case kPanel:
            t.key("Parent", parent);
            t.key("Name", caption);
            boundsKeys(t, n);
            t.key("BWidth", 1);
            t.key("PColor", "clBtnFace");
            t.key("BInner", 0);
            t.key("BOuter", 2);
            t.key("BStyle", 0);
            t.key("Ctl3D", 1);
            fontAfterSize(t);
            t.key("Alignment", 0);
            break;
        case kLabel:
            t.key("Parent", parent);
            t.key("Name", caption);
            boundsKeys(t, n);
            fontColorFirst(t, "Arial", "FontSize");
            t.key("WordWrap", 1);
            t.key("Layout", 0);
            t.key("Alignment", 1);
            break;
        case kDBLabel:
            t.key("Parent", parent);
            t.key("Name", caption);
            t.key("DB", "Kunden");
            t.key("Desc", QStringLiteral("Anzeige %1").arg(n.number));
            t.key("Typ", 0);
            t.key("Laenge", "20");
            boundsKeys(t, n);
            fontColorFirst(t, "Arial", "FontSize");
            t.key("WordWrap", 1);
            t.key("Alignment", 0);
            t.key("BrowserEdit", 0);
            break;
        case kField:
            t.key("Parent", parent);
            t.key("Name", caption);
            t.key("Desc", QStringLiteral("Eingabe %1").arg(n.number));
            t.key("MaskEdit", "");
            t.key("Left", n.geom.x());
            t.key("Top", n.geom.y());
            t.key("Laenge", 30);
            t.key("Typ", 0);
            t.key("Height", n.geom.height());
            t.key("Width", n.geom.width());
            t.key("Color", "clWindow");
            t.key("Pflicht", n.number % 7 == 0 ? 1 : 0);
            t.key("ReadOnly", 0);
            t.key("TabOrder", n.tabOrder);
            fontAfterSize(t);
            t.key("CharCase", 0);
            break;
        case kLField:
            t.key("Parent", parent);
            t.key("Name", caption);
            t.key("DataBase", "");
            t.key("Desc", QStringLiteral("Verweis %1").arg(n.number));
            t.key("Picklist", 0);
            t.key("Left", n.geom.x());
            t.key("Top", n.geom.y());
            t.key("Laenge", 20);
            t.key("Typ", 0);
            t.key("Height", n.geom.height());
            t.key("Width", n.geom.width());
            t.key("Color", "clWindow");
            t.key("TabOrder", n.tabOrder);
            t.key("FName", "Arial");
            t.key("FSize", 10);
            t.key("Readonly", 0);
            t.key("FColor", "clBlack");
            t.key("FStyle", "");
            t.key("CharCase", 0);
            break;
        case kCField:
            t.key("Parent", parent);
            t.key("Name", caption);
            t.key("Desc", QStringLiteral("Auswahl %1").arg(n.number));
            t.key("Left", n.geom.x());
            t.key("Top", n.geom.y());
            t.key("Laenge", 10);
            t.key("Typ", 0);
            t.key("Height", n.geom.height());
            t.key("Width", n.geom.width());
            t.key("Color", "clWindow");
            t.key("TabOrder", n.tabOrder);
            t.key("PullDown", QStringLiteral("Liste%1").arg(1 + n.number % lists));
            t.key("Pflicht", 0);
            t.key("Readonly", 0);
            fontAfterSize(t);
            break;
        case kMemo:
            t.key("Parent", parent);
            t.key("Name", caption);
            t.key("Desc", QStringLiteral("Notiz %1").arg(n.number));
            boundsKeys(t, n);
            t.key("Color", "clWindow");
            fontAfterSize(t);
            t.key("TabOrder", n.tabOrder);
            t.key("Pflicht", 0);
            t.key("Plaintext", 1);
            t.key("Scrollbars", 2);
            break;
        case kCheckBox:
            t.key("Parent", parent);
            t.key("Name", caption);
            t.key("Desc", QStringLiteral("Schalter %1").arg(n.number));
            t.key("DataField", QStringLiteral("AKTIV%1").arg(n.number));
            boundsKeys(t, n);
            t.key("TabOrder", n.tabOrder);
            t.key("Funktion", "");
            fontAfterSize(t);
            t.key("Checked", n.number % 2);
            t.key("True", "Ja");
            t.key("False", "Nein");
            t.key("Alignment", 0);
            break;
        case kBevel:
            t.key("Parent", parent);
            boundsKeys(t, n);
            t.key("Typ", 1);
            break;
        case kShape:
            t.key("Parent", parent);
            boundsKeys(t, n);
            t.key("Typ", 2);
            t.key("FColor", "clWhite");
            t.key("FPColor", "clBlack");
            break;
        case kButton:
            t.key("Parent", parent);
            t.key("Name", caption);
            boundsKeys(t, n);
            t.key("TabOrder", n.tabOrder);
            t.key("PrgRun", "");
            t.key("FName", "Arial");
            t.key("FSize", 10);
            t.key("Action", 0);
            t.key("FColor", "clBlack");
            t.key("FStyle", "");
            for (const char *k : {"Ext", "ZMaske", "ZFeld", "ZFeldEx", "ZIndex", "RuleField", "RuleExpression"})
                t.key(k, "");
            t.key("RuleColor", "clRed");
            t.key("RuleArea", 0);
            t.key("Ext_Section", "");
            t.key("Margin", -1);
            t.key("RunAs", 0);
            break;
        case kGrid:
            t.key("Parent", parent);
            boundsKeys(t, n);
            t.key("FName", "Arial");
            t.key("FSize", 10);
            t.key("Scrollbars", 3);
            t.key("FColor", "clBlack");
            t.key("FStyle", "");
            t.key("HFName", "Arial");
            t.key("HFSize", 10);
            t.key("HFColor", "clBlack");
            t.key("HFStyle", "B");
            t.key("ReadOnly", 0);
            t.key("Alignment", 0);
            t.key("Ausrichtung", 0);
            t.key("DataBase", "Kunden");
            break;
        case kTree:
            t.key("Name", QStringLiteral("Baum%1").arg(n.number));
            t.key("Parent", parent);
            t.key("Index", "");
            t.key("QXID", "QXParent");
            t.key("DBIndex", "QXID");
            t.key("Keyfield", "QXID");
            t.key("ParentField", "QXParent");
            t.key("Felder", "");
            t.key("DB", "Kunden");
            t.key("Alignment", 0);
            t.key("DragDrop", 0);
            boundsKeys(t, n);
            fontAfterSize(t);
            break;
        case kStringGrid:
            t.key("Parent", parent);
            t.key("Name", QStringLiteral("Tabelle%1").arg(n.number));
            boundsKeys(t, n);
            t.key("Alignment", 0);
            fontAfterSize(t);
            break;
        case kRadio:
            t.key("Parent", parent);
            t.key("DataField", QStringLiteral("WAHL%1").arg(n.number));
            t.key("Laenge", 10);
            t.key("Caption", caption);
            t.key("Desc", QStringLiteral("Wahl %1").arg(n.number));
            boundsKeys(t, n);
            fontColorFirst(t, "Arial", "FontSize");
            t.key("Pflicht", 0);
            t.key("Items", "Ja,Nein");
            t.key("Columns", 2);
            break;
        case kKindCount:
            break;
        }
        t.end();
        if (kKinds[n.kind].sortWord)
            sort.emplace_back(n.tabOrder, QString::fromLatin1(kKinds[n.kind].sortWord) + number);
    }
    // Tab orders count per parent; a later line with the same order wins.
    t.section(QStringLiteral("Sort"));
    std::vector<QString> byOrder;
    for (const auto &s : sort) {
        if (size_t(s.first) >= byOrder.size())
            byOrder.resize(size_t(s.first) + 1);
        byOrder[size_t(s.first)] = s.second;
    }
    for (size_t i = 0; i < byOrder.size(); ++i)
        if (!byOrder[i].isEmpty())
            t.key(QString::number(i).toLatin1().constData(), byOrder[i]);
    t.end();
    return t.bytes();
}

} // namespace GeneratedMask
