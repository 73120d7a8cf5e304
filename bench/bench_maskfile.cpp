// Speed of reading and writing mask files. Masks of 100, 1000 and 5000 mixed
// controls (mostly labels and edit fields, some combo boxes, lookups, memos,
// check boxes, buttons, bevels, shapes, grids, tree lists, radio groups,
// panels holding controls and a page control with two pages holding
// controls) are loaded into a real mask window of an invisible main window,
// exactly as File Open does, and saved to a file again. Beside them Qt's own
// form loader reads a .ui file with the same widgets, geometry and nesting,
// and Qt's form builder writes the widget tree it made.
//
// Prints the best of several runs per step, the ratios to Qt and the time per
// control at each size: a constant time per control means linear growth.
//
//   bench_maskfile [CONTROLS ...]     (default: 100 1000 5000)

#include "AppPaths.h"
#include "Components.h"
#include "MainForm.h"
#include "MaskLoader.h"
#include "MaskWriter.h"
#include "Maske.h"

#include <QApplication>
#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QFormBuilder>
#include <QTemporaryDir>
#include <QUiLoader>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <memory>
#include <vector>

namespace {

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

const KindInfo kKinds[kKindCount] = {
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
const Kind kPattern[] = {
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

QString nameOf(const Node &n)
{
    return QString::fromLatin1(kKinds[n.kind].stem) + QString::number(n.number);
}

QString sectionOf(const Node &n)
{
    return QString::fromLatin1(kKinds[n.kind].prefix) + QString::number(n.number);
}

Layout makeLayout(int count)
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

    for (int slot = 0; int(l.nodes.size()) < count; ++slot) {
        const Kind k = kPattern[slot % kPatternSize];
        if (k == kPanel) {
            if (pageFill < 2 * kPageChildren)
                continue; // the pages come first
            if (column > 0) {
                y += kCellHeight;
                column = 0;
            }
            panel = add(kPanel, -1, QRect(8, y, kFullWidth, kCellHeight + 16));
            panelFill = 0;
            y += kCellHeight + 24;
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
            add(k, -1, cell(k, 8 + column * kCellWidth, y));
            if (++column == kColumns) {
                column = 0;
                y += kCellHeight;
            }
        }
    }
    l.width = 8 + kFullWidth + 8;
    l.height = y + kCellHeight + 8;
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

QString parentName(const Layout &l, const Node &n)
{
    return n.parent < 0 ? QStringLiteral("Maske") : nameOf(l.nodes[size_t(n.parent)]);
}

QString captionOf(const Node &n)
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

void boundsKeys(DbmText &t, const Node &n)
{
    t.key("Left", n.geom.x());
    t.key("Top", n.geom.y());
    t.key("Height", n.geom.height());
    t.key("Width", n.geom.width());
}

void fontAfterSize(DbmText &t)
{
    t.key("FName", "Arial");
    t.key("FSize", 10);
    t.key("FColor", "clBlack");
    t.key("FStyle", "");
}

void fontColorFirst(DbmText &t, const char *face, const char *sizeKey)
{
    t.key("FColor", "clBlack");
    t.key("FName", face);
    t.key(sizeKey, 10);
    t.key("FStyle", "");
}

QByteArray makeDbm(const Layout &l)
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

// -------------------------------------------------------------- the .ui file

class UiText
{
public:
    void line(int depth, const QString &s) { m_text += QString(depth, QLatin1Char(' ')) + s + QLatin1Char('\n'); }
    void rect(int depth, const QRect &r)
    {
        line(depth, QStringLiteral("<property name=\"geometry\"><rect><x>%1</x><y>%2</y><width>%3</width>"
                                   "<height>%4</height></rect></property>")
                        .arg(r.x())
                        .arg(r.y())
                        .arg(r.width())
                        .arg(r.height()));
    }
    void string(int depth, const char *property, const QString &v)
    {
        line(depth, QStringLiteral("<property name=\"%1\"><string>%2</string></property>")
                        .arg(QLatin1String(property), v.toHtmlEscaped()));
    }
    void number(int depth, const char *property, int v)
    {
        line(depth, QStringLiteral("<property name=\"%1\"><number>%2</number></property>").arg(QLatin1String(property)).arg(v));
    }
    void boolean(int depth, const char *property, bool v)
    {
        line(depth, QStringLiteral("<property name=\"%1\"><bool>%2</bool></property>")
                        .arg(QLatin1String(property), v ? QStringLiteral("true") : QStringLiteral("false")));
    }
    void enumeration(int depth, const char *property, const char *v)
    {
        line(depth, QStringLiteral("<property name=\"%1\"><enum>%2</enum></property>")
                        .arg(QLatin1String(property), QLatin1String(v)));
    }
    void font(int depth, const char *face)
    {
        line(depth, QStringLiteral("<property name=\"font\"><font><family>%1</family><pointsize>10</pointsize>"
                                   "</font></property>")
                        .arg(QLatin1String(face)));
    }
    QByteArray bytes() const { return m_text.toUtf8(); }

private:
    QString m_text;
};

void writeUiWidget(UiText &u, const Layout &l, const std::vector<std::vector<int>> &children, int index, int depth)
{
    const Node &n = l.nodes[size_t(index)];
    const KindInfo &k = kKinds[n.kind];
    const QString caption = captionOf(n);
    u.line(depth, QStringLiteral("<widget class=\"%1\" name=\"%2\">").arg(QLatin1String(k.qtClass), nameOf(n)));
    const int d = depth + 1;
    if (n.kind == kPage)
        u.line(d, QStringLiteral("<attribute name=\"title\"><string>%1</string></attribute>").arg(caption.toHtmlEscaped()));
    else
        u.rect(d, n.geom);
    switch (n.kind) {
    case kPager:
        u.number(d, "currentIndex", 0);
        u.font(d, "Tahoma");
        break;
    case kPanel:
        u.enumeration(d, "frameShape", "QFrame::StyledPanel");
        u.enumeration(d, "frameShadow", "QFrame::Raised");
        u.font(d, "Arial");
        break;
    case kLabel:
        u.string(d, "text", caption);
        u.font(d, "Arial");
        u.boolean(d, "wordWrap", true);
        u.line(d, QStringLiteral("<property name=\"alignment\"><set>Qt::AlignRight|Qt::AlignTop</set></property>"));
        break;
    case kDBLabel:
        u.string(d, "text", caption);
        u.string(d, "toolTip", QStringLiteral("Anzeige %1").arg(n.number));
        u.font(d, "Arial");
        u.boolean(d, "wordWrap", true);
        break;
    case kField:
    case kLField:
        u.string(d, "text", caption);
        u.string(d, "toolTip", QStringLiteral("Eingabe %1").arg(n.number));
        u.number(d, "maxLength", n.kind == kField ? 30 : 20);
        u.font(d, "Arial");
        break;
    case kCField:
        u.boolean(d, "editable", true);
        u.string(d, "toolTip", QStringLiteral("Auswahl %1").arg(n.number));
        u.font(d, "Arial");
        break;
    case kMemo:
        u.string(d, "plainText", caption);
        u.string(d, "toolTip", QStringLiteral("Notiz %1").arg(n.number));
        u.enumeration(d, "verticalScrollBarPolicy", "Qt::ScrollBarAlwaysOn");
        u.font(d, "Arial");
        break;
    case kCheckBox:
        u.string(d, "text", caption);
        u.string(d, "toolTip", QStringLiteral("Schalter %1").arg(n.number));
        u.boolean(d, "checked", n.number % 2 != 0);
        u.font(d, "Arial");
        break;
    case kBevel:
        u.enumeration(d, "frameShape", "QFrame::Box");
        u.enumeration(d, "frameShadow", "QFrame::Sunken");
        break;
    case kShape:
        u.enumeration(d, "frameShape", "QFrame::Panel");
        u.enumeration(d, "frameShadow", "QFrame::Plain");
        break;
    case kButton:
        u.string(d, "text", caption);
        u.font(d, "Arial");
        break;
    case kGrid:
        u.font(d, "Arial");
        u.line(d, QStringLiteral("<column><property name=\"text\"><string>Spaltentitel</string></property></column>"));
        break;
    case kTree:
        u.font(d, "Arial");
        u.line(d, QStringLiteral("<column><property name=\"text\"><string>Spalte</string></property></column>"));
        break;
    case kStringGrid:
        u.font(d, "Arial");
        u.number(d, "rowCount", 5);
        u.number(d, "columnCount", 5);
        break;
    case kRadio:
        u.string(d, "title", caption);
        u.font(d, "Arial");
        u.line(d, QStringLiteral("<widget class=\"QRadioButton\" name=\"%1Ja\"><property name=\"geometry\"><rect><x>4</x>"
                                 "<y>20</y><width>60</width><height>20</height></rect></property><property "
                                 "name=\"text\"><string>Ja</string></property></widget>")
                          .arg(nameOf(n)));
        u.line(d, QStringLiteral("<widget class=\"QRadioButton\" name=\"%1Nein\"><property name=\"geometry\"><rect><x>70</x>"
                                 "<y>20</y><width>60</width><height>20</height></rect></property><property "
                                 "name=\"text\"><string>Nein</string></property></widget>")
                          .arg(nameOf(n)));
        break;
    case kPage:
    case kKindCount:
        break;
    }
    for (int child : children[size_t(index)])
        writeUiWidget(u, l, children, child, d);
    u.line(depth, QStringLiteral("</widget>"));
}

QByteArray makeUi(const Layout &l)
{
    std::vector<std::vector<int>> children(l.nodes.size());
    std::vector<int> top;
    for (int i = 0; i < int(l.nodes.size()); ++i) {
        const int p = l.nodes[size_t(i)].parent;
        (p < 0 ? top : children[size_t(p)]).push_back(i);
    }
    UiText u;
    u.line(0, QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    u.line(0, QStringLiteral("<ui version=\"4.0\">"));
    u.line(1, QStringLiteral("<class>Maske</class>"));
    u.line(1, QStringLiteral("<widget class=\"QWidget\" name=\"Maske\">"));
    u.rect(2, QRect(0, 0, l.width, l.height));
    u.string(2, "windowTitle", QStringLiteral("Kundenstamm"));
    for (int i : top)
        writeUiWidget(u, l, children, i, 2);
    u.line(1, QStringLiteral("</widget>"));
    u.line(1, QStringLiteral("<resources/>"));
    u.line(1, QStringLiteral("<connections/>"));
    u.line(0, QStringLiteral("</ui>"));
    return u.bytes();
}

// ------------------------------------------------------------------ timing

// Qt's form builder warns once per property of a type it cannot write,
// thousands of times per save, and the offscreen platform says on every new
// main window what it cannot do; only those lines are dropped.
QtMessageHandler g_previousHandler = nullptr;
void dropNoise(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg
        && (message.startsWith(QLatin1String("Designer: The property"))
            || message.startsWith(QLatin1String("This plugin does not support"))))
        return;
    if (g_previousHandler)
        g_previousHandler(type, context, message);
}

double msSince(const QElapsedTimer &t)
{
    return double(t.nsecsElapsed()) / 1e6;
}

void flushEvents()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

struct Best
{
    double ms = std::numeric_limits<double>::max();
    void take(double v) { ms = std::min(ms, v); }
};

struct Figures
{
    int controls = 0;
    qint64 dbmBytes = 0, uiBytes = 0, savedDbmBytes = 0, savedUiBytes = 0;
    Best load, loadShow, save, bytesOnly, close;        // Ferolith
    Best qtLoad, qtLoadShow, qtSave, qtSaveBuffer, qtClose; // Qt
    bool verified = false;
};

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}

// Checks that the loaded mask holds every control, named and nested as the
// layout expects.
bool verifyMask(TMaske *window, const Layout &l)
{
    const TMaskDocument *mask = window->document();
    const QList<QObject *> components = Components::components(mask);
    int loaded = 0;
    for (QObject *c : components)
        if (qobject_cast<QWidget *>(c))
            ++loaded;
    if (loaded != int(l.nodes.size())) {
        std::fprintf(stderr, "  mask holds %d controls, expected %d\n", loaded, int(l.nodes.size()));
        return false;
    }
    int wrong = 0;
    for (const Node &n : l.nodes) {
        auto *w = qobject_cast<QWidget *>(Components::findComponent(mask, nameOf(n)));
        if (!w) {
            if (wrong++ < 5)
                std::fprintf(stderr, "  %s not found\n", qPrintable(nameOf(n)));
            continue;
        }
        if (n.parent >= 0) {
            const QString expected = nameOf(l.nodes[size_t(n.parent)]);
            const QWidget *p = w->parentWidget();
            // A page may sit in the page control's own stack widget.
            while (p && p->objectName() != expected && p != mask)
                p = p->parentWidget();
            if (!p || p->objectName() != expected) {
                if (wrong++ < 5)
                    std::fprintf(stderr, "  %s is not inside %s\n", qPrintable(nameOf(n)), qPrintable(expected));
            }
        } else if (n.kind != kPage && w->geometry() != n.geom) {
            if (wrong++ < 5)
                std::fprintf(stderr, "  %s has geometry %d,%d %dx%d\n", qPrintable(nameOf(n)), w->x(), w->y(),
                             w->width(), w->height());
        }
    }
    return wrong == 0;
}

// One run of Ferolith: a new main window, the mask loaded, shown, saved and
// the whole window closed again.
bool measureFerolith(Figures &f, const Layout &layout, bool first, const QString &dbm, const QString &savedDbm)
{
    auto form = std::make_unique<TMainForm>();
    form->resize(1280, 1024);
    form->show();
    flushEvents();

    QElapsedTimer t;
    t.start();
    TMaske *mask = form->LoadMask(dbm);
    const double load = msSince(t);
    QCoreApplication::processEvents();
    const double loadShow = msSince(t);
    if (!mask) {
        std::fprintf(stderr, "loading failed\n");
        return false;
    }
    QString error;
    f.load.take(load);
    f.loadShow.take(loadShow);
    if (first)
        f.verified = verifyMask(mask, layout);

    QFile::remove(savedDbm); // every run saves a new file, no backup
    t.restart();
    if (!MaskWriter::SaveMask(*mask->document(), savedDbm, &error)) {
        std::fprintf(stderr, "saving failed: %s\n", qPrintable(error));
        return false;
    }
    f.save.take(msSince(t));
    f.savedDbmBytes = QFileInfo(savedDbm).size();

    t.restart();
    const QByteArray bytes = MaskWriter::MaskFileBytes(*mask->document());
    f.bytesOnly.take(msSince(t));
    if (bytes.isEmpty())
        std::fprintf(stderr, "no mask file text\n");

    mask->setModified(false);
    t.restart();
    form.reset();
    flushEvents();
    f.close.take(msSince(t));
    return true;
}

// One run of Qt: the .ui file loaded into a widget tree, shown, saved by the
// form builder into a file and into memory, and deleted.
bool measureQt(Figures &f, const Layout &layout, bool first, const QString &ui, const QString &savedUi,
               QUiLoader &uiLoader, QFormBuilder &formBuilder)
{
    QElapsedTimer t;
    t.start();
    QFile in(ui);
    if (!in.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot open %s\n", qPrintable(ui));
        return false;
    }
    QWidget *w = uiLoader.load(&in);
    in.close();
    const double load = msSince(t);
    if (!w) {
        std::fprintf(stderr, "QUiLoader failed: %s\n", qPrintable(uiLoader.errorString()));
        return false;
    }
    // Shown as large as the mask window is, not as large as the form.
    w->resize(1200, 900);
    w->show();
    QCoreApplication::processEvents();
    const double loadShow = msSince(t);
    f.qtLoad.take(load);
    f.qtLoadShow.take(loadShow);
    if (first) {
        int found = 0;
        for (const Node &n : layout.nodes)
            if (w->findChild<QWidget *>(nameOf(n)))
                ++found;
        if (found != int(layout.nodes.size()))
            std::fprintf(stderr, "QUiLoader made %d of %d widgets\n", found, int(layout.nodes.size()));
    }

    t.restart();
    {
        QFile out(savedUi);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(savedUi));
            delete w;
            return false;
        }
        formBuilder.save(&out, w);
    }
    f.qtSave.take(msSince(t));
    f.savedUiBytes = QFileInfo(savedUi).size();

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    t.restart();
    formBuilder.save(&buffer, w);
    f.qtSaveBuffer.take(msSince(t));

    t.restart();
    delete w;
    flushEvents();
    f.qtClose.take(msSince(t));
    return true;
}

Figures measure(int controls, const QTemporaryDir &dir, QUiLoader &uiLoader, QFormBuilder &formBuilder, bool warmUp)
{
    Figures f;
    f.controls = controls;
    const Layout layout = makeLayout(controls);
    for (int k = 0; k < kKindCount; ++k)
        if (layout.perKind[k] > kMaxSection)
            std::fprintf(stderr, "warning: %d sections of %s, the loader reads only %d\n", layout.perKind[k],
                         kKinds[k].prefix, kMaxSection);

    const QString dbm = dir.filePath(QStringLiteral("mask%1.dbm").arg(controls));
    const QString ui = dir.filePath(QStringLiteral("mask%1.ui").arg(controls));
    const QString savedDbm = dir.filePath(QStringLiteral("saved%1.dbm").arg(controls));
    const QString savedUi = dir.filePath(QStringLiteral("saved%1.ui").arg(controls));
    const QByteArray dbmText = makeDbm(layout);
    const QByteArray uiText = makeUi(layout);
    if (!writeFile(dbm, dbmText) || !writeFile(ui, uiText)) {
        std::fprintf(stderr, "cannot write the test files\n");
        return f;
    }
    f.dbmBytes = dbmText.size();
    f.uiBytes = uiText.size();

    // Ferolith and Qt take turns, so a busy machine slows both alike.
    const int runs = warmUp ? 1 : (controls > 2000 ? 3 : 5);
    for (int run = 0; run < runs; ++run) {
        if (!measureFerolith(f, layout, run == 0, dbm, savedDbm)
            || !measureQt(f, layout, run == 0, ui, savedUi, uiLoader, formBuilder))
            break;
    }
    return f;
}

double ratio(double a, double b)
{
    return b > 0 ? a / b : 0;
}

double usPerControl(const Best &b, int controls)
{
    return b.ms * 1000.0 / controls;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    std::vector<int> sizes;
    for (int i = 1; i < argc; ++i) {
        const int n = QString::fromLocal8Bit(argv[i]).toInt();
        if (n >= 50)
            sizes.push_back(n);
    }
    if (sizes.empty())
        sizes = {100, 1000, 5000};

    g_previousHandler = qInstallMessageHandler(dropNoise);

    QTemporaryDir dir;
    if (!dir.isValid()) {
        std::fprintf(stderr, "no temporary directory\n");
        return 1;
    }
    // To look at the generated and saved files afterwards.
    if (qEnvironmentVariableIsSet("BENCH_MASKFILE_KEEP")) {
        dir.setAutoRemove(false);
        std::printf("files kept in %s\n", qPrintable(dir.path()));
    }
    AppPaths::setSettingsFileOverride(dir.filePath(QStringLiteral("bench_maskfile.ini")));

    QUiLoader uiLoader;
    QFormBuilder formBuilder;

    // Fonts, styles and plug-ins are loaded once, before anything counts.
    measure(100, dir, uiLoader, formBuilder, true);

    // The fixed cost of a mask window: an empty mask file.
    {
        const QString empty = dir.filePath(QStringLiteral("empty.dbm"));
        writeFile(empty, QByteArray("[Datenbank]\r\nTitel=Leer\r\n"));
        Best best;
        for (int run = 0; run < 5; ++run) {
            auto form = std::make_unique<TMainForm>();
            form->resize(1280, 1024);
            form->show();
            flushEvents();
            QElapsedTimer t;
            t.start();
            TMaske *mask = form->LoadMask(empty);
            best.take(msSince(t));
            mask->setModified(false);
            form.reset();
            flushEvents();
        }
        std::printf("empty mask load (new mask window, no controls): %.2f ms\n\n", best.ms);
    }

    std::vector<Figures> all;
    for (int n : sizes) {
        all.push_back(measure(n, dir, uiLoader, formBuilder, false));
        const Figures &f = all.back();
        std::printf("%d controls: .dbm %.1f KB (saved %.1f KB), .ui %.1f KB (saved %.1f KB), load check %s\n",
                    f.controls, f.dbmBytes / 1024.0, f.savedDbmBytes / 1024.0, f.uiBytes / 1024.0,
                    f.savedUiBytes / 1024.0, f.verified ? "ok" : "FAILED");
        std::fflush(stdout);
    }

    std::printf("\nbest of 5 runs (3 above 2000 controls), milliseconds\n");
    std::printf("%8s | %10s %10s | %10s %10s | %6s %6s || %10s %10s | %10s %10s | %6s %6s || %8s %8s\n",
                "controls", "load", "+show", "Qt load", "+show", "ratio", "+show", "save", "bytes", "Qt save",
                "Qt buffer", "ratio", "bytes", "close", "Qt close");
    for (const Figures &f : all)
        std::printf("%8d | %10.2f %10.2f | %10.2f %10.2f | %6.2f %6.2f || %10.2f %10.2f | %10.2f %10.2f | %6.2f %6.2f "
                    "|| %8.2f %8.2f\n",
                    f.controls, f.load.ms, f.loadShow.ms, f.qtLoad.ms, f.qtLoadShow.ms, ratio(f.load.ms, f.qtLoad.ms),
                    ratio(f.loadShow.ms, f.qtLoadShow.ms), f.save.ms, f.bytesOnly.ms, f.qtSave.ms, f.qtSaveBuffer.ms,
                    ratio(f.save.ms, f.qtSave.ms), ratio(f.bytesOnly.ms, f.qtSaveBuffer.ms), f.close.ms, f.qtClose.ms);
    std::printf("ratio = Ferolith / Qt (below 1 means Ferolith is faster); bytes = MaskFileBytes against\n"
                "QFormBuilder::save into a QBuffer; save = MaskWriter::SaveMask against QFormBuilder::save\n"
                "into a file; +show = including the first round of events after loading.\n");

    std::printf("\nmicroseconds per control (constant = linear growth)\n");
    std::printf("%8s | %9s %9s %9s | %9s %9s %9s | %9s %9s\n", "controls", "load", "save", "bytes", "Qt load",
                "Qt save", "Qt buffer", "close", "Qt close");
    for (const Figures &f : all)
        std::printf("%8d | %9.1f %9.1f %9.1f | %9.1f %9.1f %9.1f | %9.1f %9.1f\n", f.controls,
                    usPerControl(f.load, f.controls), usPerControl(f.save, f.controls),
                    usPerControl(f.bytesOnly, f.controls), usPerControl(f.qtLoad, f.controls),
                    usPerControl(f.qtSave, f.controls), usPerControl(f.qtSaveBuffer, f.controls),
                    usPerControl(f.close, f.controls), usPerControl(f.qtClose, f.controls));
    for (size_t i = 1; i < all.size(); ++i) {
        const Figures &a = all[i - 1];
        const Figures &b = all[i];
        const auto growth = [&](const Best Figures::*m) {
            return ratio(usPerControl(b.*m, b.controls), usPerControl(a.*m, a.controls));
        };
        std::printf("growth of the time per control %d -> %d (1.0 linear, %.1f quadratic): load %.2f, save %.2f, "
                    "bytes %.2f, Qt load %.2f, Qt save %.2f, close %.2f, Qt close %.2f\n",
                    a.controls, b.controls, double(b.controls) / a.controls, growth(&Figures::load),
                    growth(&Figures::save), growth(&Figures::bytesOnly), growth(&Figures::qtLoad),
                    growth(&Figures::qtSave), growth(&Figures::close), growth(&Figures::qtClose));
    }
    return 0;
}
