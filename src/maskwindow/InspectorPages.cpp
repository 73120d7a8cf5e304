// The inspector's pages, one table of rows per control class, in page order.
// Mask-specific attributes live in standard properties on purpose (field
// type in Tag, browser title in HelpKeyword, required flag in TabStop ...):
// the mask file reads and writes them there.
#include "ObjectInspector.h"

#include "Maske.h"
#include "Edits.h"

#include <QVariant>

using namespace Rows;

namespace Rows {

namespace {
InspectorRow row(EditorKind kind, const char *label, const char *name, const char *property, unsigned flags = 0)
{
    InspectorRow r;
    r.kind = kind;
    r.label = QString::fromUtf8(label);
    r.name = QString::fromUtf8(name);
    r.property = QString::fromUtf8(property);
    r.flags = flags;
    return r;
}
} // namespace

InspectorRow line(const char *label, const char *name, const char *property, unsigned flags)
{
    return row(EditorKind::Line, label, name, property, flags);
}

InspectorRow spin(const char *label, const char *name, const char *property, int min, int max)
{
    InspectorRow r = row(EditorKind::Spin, label, name, property);
    r.min = min;
    r.max = max;
    return r;
}

InspectorRow combo(const char *label, const char *name, const char *property, const QStringList &items,
                   unsigned flags)
{
    InspectorRow r = row(EditorKind::Combo, label, name, property, flags);
    r.items = items;
    return r;
}

InspectorRow radios(const char *label, const char *name, const char *property, const QStringList &items,
                    unsigned flags)
{
    InspectorRow r = row(EditorKind::Radios, label, name, property, flags);
    r.items = items;
    return r;
}

InspectorRow check(const char *text, const char *name, const char *property)
{
    return row(EditorKind::Check, text, name, property);
}

InspectorRow memo(const char *label, const char *name, const char *property)
{
    return row(EditorKind::Memo, label, name, property);
}

InspectorRow button(const char *text, const char *name, InspectorHandler click)
{
    InspectorRow r = row(EditorKind::Button, text, name, "");
    r.click = click;
    return r;
}

InspectorRow colorButton(const char *label, const char *name, const char *property)
{
    return row(EditorKind::ColorButton, label, name, property);
}

InspectorRow fontButton(const char *text, const char *name, const char *property)
{
    return row(EditorKind::FontButton, text, name, property);
}

InspectorRow note(const char *text, const char *name)
{
    return row(EditorKind::Note, text, name, "");
}

InspectorRow custom(std::function<QWidget *(TObjInsp &)> build)
{
    InspectorRow r = row(EditorKind::Custom, "", "", "");
    r.build = std::move(build);
    return r;
}

const QStringList &alignItems()
{
    static const QStringList items = {"Keine", "Oben", "Unten", "Links", "Rechts", "Fenster"};
    return items;
}

const QStringList &fieldTypeItems()
{
    static const QStringList items = {"Textfeld", "Zahl", "Datum", "Uhrzeit",
                                      "Währung",  "Logisch", "Memo", "AutoInc"};
    return items;
}

const QStringList &charCaseItems()
{
    static const QStringList items = {"Groß/Kleinschreibung", "Großbuchstaben", "Kleinbuchstaben"};
    return items;
}

} // namespace Rows

namespace {

const QStringList labelAlignment = {"Links angeordnet", "Rechts angeordnet", "Zentriert"};
const QStringList panelBevels = {"bvNone", "bvLowered", "bvRaised", "bvSpace"};
// The action kinds of a mask button, as its Tag stores them.
const QStringList buttonActions = {
    "Datensatz suchen",      "Zeichnung starten", "NC Programm starten", "Datensatz zuweisen",
    "Datensatz auflisten",   "Zeichnung einfügen", "Ext. Programm starten", "URL öffnen",
    "E-Mail senden",         "Report starten",     "INI Sektion verarbeiten", "Regel definieren"};
const QStringList pagerStyles = {"Office2003 Blau", "Office2003 Silber",  "Office2003 Olive", "Office2003 Klassik",
                                 "Office2007 Luna", "Office2007 Obsidian", "WindowsXP",       "Whidbey",
                                 "Custom",          "Office2007 Silber"};

// The main grid of a mask is its record browser; the others browse details.
const QString kMainGrid = QStringLiteral("DBGrid1");

InspectorRow sizing()
{
    // Auto size and word wrap exclude each other on a label, hence one choice.
    InspectorRow r = radios("Größe:", "LabelSizing", "WordWrap,!AutoSize", {"Auto Größe", "Zeilenumbruch"});
    r.itemNames = QStringList{"LabelAutoSize", "LabelWordWrap"};
    return r;
}

} // namespace

const QVector<InspectorPage> &TObjInsp::pageTable()
{
    using F = InspectorPage;
    static const QVector<InspectorPage> pages = {
        F{"TLabel", &TObjInsp::LabelCaptionChange, {
            line("Beschriftung:", "LabelCaption", "Caption"),
            combo("Layout:", "LabelLayout", "Layout", {"Oben", "Zentrum", "Unten"}),
            combo("Ausrichtung:", "LabelAlignment", "Alignment", labelAlignment),
            sizing(),
            fontButton("Schriftart…", "Button1", "Font"),
        }, {}, {}},
        F{"TDBLabel", &TObjInsp::DBLabelFieldChange, {
            line("Feldname:", "DBLabelField", "DataField,Caption", RowFlag::Trimmed),
            line("Tabelle:", "DBLabelTable", "DataSource"),
            combo("Feldtyp:", "DBLabelTyp", "Tag", fieldTypeItems()),
            // The length only means something for text fields.
            spin("Feldlänge:", "DBLabelSize", "Hint", 0, 9999).enabledWhile("DBLabelTyp", 0),
            combo("Ausrichtung:", "DBLabelAlignment", "Alignment", labelAlignment),
            check("Zeilenumbruch", "DBLabelWordWrap", "WordWrap,!AutoSize"),
            check("Im Browser editierbar", "DBLabel_BrowserEdit", "BrowserEdit"),
            line("Feldtitel im Browser:", "DBLabelCaption", "HelpKeyword"),
            fontButton("Schriftart…", "Button2", "Font"),
        }, {}, {}},
        F{"TcxTextEdit", &TObjInsp::EditFieldNameChange, {
            line("Feldname:", "EditFieldName", "Text", RowFlag::Trimmed),
            combo("Feldtyp:", "EditFieldTyp", "Tag", fieldTypeItems()),
            spin("Feldlänge:", "EditFieldSize", "MaxLength", 0, 32767).enabledWhile("EditFieldTyp", 0),
            check("Pflichtfeld", "EditPflichtfeld", "TabStop"),
            check("Nur lesen", "EditReadonly", "ReadOnly"),
            combo("Schreibweise:", "EditCharcase", "CharCase", charCaseItems()),
            line("Formatierung:", "EditMask", "Hint"),
            line("Feldtitel im Browser:", "EditFieldCaption", "HelpKeyword"),
        }, {}, {}},
        F{"TcxComboBox", &TObjInsp::ComboFieldNameChange, {
            line("Feldname:", "ComboFieldName", "Text", RowFlag::Trimmed),
            combo("Feldtyp:", "ComboFieldTyp", "Tag", fieldTypeItems()),
            spin("Feldlänge:", "ComboFieldSize", "MaxLength", 0, 32767).enabledWhile("ComboFieldTyp", 0),
            check("Pflichtfeld", "ComboPflichtfeld", "TabStop"),
            check("Nur lesen", "ComboReadOnly", "ReadOnly"),
            combo("Schreibweise:", "ComboCharCase", "CharCase", charCaseItems()),
            line("Pulldowndatei:", "ComboPullDownFile", "Hint")
                .withButton("ComboPullDownFileButton", "Pulldowndatei bearbeiten",
                            &TObjInsp::ComboPullDownFileButtonClick),
            line("Feldtitel im Browser:", "ComboFieldCaption", "HelpKeyword"),
        }, {}, {}},
        F{"TcxMemo", &TObjInsp::MemoFieldnameChange, {
            line("Feldname:", "MemoFieldname", "Lines", RowFlag::Trimmed),
            check("Pflichtfeld", "MemoPflichtfeld", "TabStop"),
            combo("Bildlaufleisten:", "MemoScrollbars", "ScrollBars", {"Keine", "Horizontal", "Vertikal", "Beides"}),
            check("Nur Text (ohne Formatierung)", "MemoPlaintext", "Tag"),
            line("Feldtitel im Browser:", "MemoFieldCaption", "HelpKeyword"),
        }, {}, {}},
        F{"TcxDBCheckBox", &TObjInsp::CheckFieldNameChange, {
            line("Feldname:", "CheckFieldName", "DataField", RowFlag::Trimmed),
            line("Beschreibung:", "CheckCaption", "Caption"),
            combo("Ausrichtung:", "CheckAlign", "Alignment", {"Links", "Rechts"}, RowFlag::FirstWhenUnlisted),
            line("Feldtitel im Browser:", "CheckFieldCaption", "HelpKeyword"),
            button("Farbfunktionen", "CheckColorBtn", &TObjInsp::CheckColorBtnClick),
        }, {}, {}},
        F{"TMaskBtn", &TObjInsp::BtnCaptionChange, {
            line("Beschriftung:", "BtnCaption", "Caption"),
            combo("Layout:", "BtnLayout", "Layout", {"Icon links", "Icon rechts", "Icon oben", "Icon unten"}),
            [] { InspectorRow r = spin("Rand:", "BtnMargin", "Margin", -1, 255); r.specialText = "Auto"; return r; }(),
            combo("Aktion:", "BtnAction", "Tag", buttonActions),
            line("Maske:", "BtnZuweisMaske", "ZuweisMaske")
                .withButton("BtnZuweisMaskeBtn", "Datei auswählen", &TObjInsp::BtnZuweisMaskeBeforeDialog),
            line("Zielfeld:", "BtnZuweisFeld", "ZuweisFeld"),
            line("IndexfeldEx:", "BtnZuweisFeldEx", "ZuweisFeldEx"),
            line("Indexfeld:", "BtnIndexFeld", "IndexFeld"),
            line("Dateierweiterung:", "BtnProgExt", "ProgExt"),
            line("INI Sektion:", "BtnSectionExt", "SectionExt"),
            check("als Admin ausführen", "BtnRunAs", "RunAs"),
            button("Regel definieren", "BtnZuweisRule", &TObjInsp::BtnZuweisRuleClick),
        }, [](TObjInsp &insp) { insp.updateButtonRows(); }, {}},
        F{"TBevel", &TObjInsp::BevelShapeClick, {
            combo("Form:", "BevelShape", "Shape",
                  {"Box", "Rahmen", "Linie oben", "Linie unten", "Linie links", "Linie rechts"}),
        }, {}, {}},
        F{"TDBGrid", &TObjInsp::DBGridAlignClick, {
            combo("Ausrichtung:", "DBGridAlign", "Align", alignItems()),
            check("Nur lesen", "DBGridReadOnly", "ReadOnly"),
            combo("Bildlaufleisten:", "DBGrid_Scrollbars", "Tag", {"keine", "Horizontal", "Vertikal", "beide"}),
            check("Strukturbrowser aktiv", "DBGrid_StructCheckBox", "TabStop"),
            // A detail browser names the field that links it to the record.
            line("Verknüpfungsfeld:", "DBGrid_Field", "Hint").onPanel("MoreBrowserPanel"),
            note("Primärer Browser", "PrimaryBrowserLabel"),
            fontButton("Schrift…", "DBGrid_Font", "Font"),
            fontButton("Titelschrift…", "DBGrid_Headerfont", "TitleFont"),
        }, [](TObjInsp &insp) {
            const bool main = insp.m_current && insp.m_current->objectName() == kMainGrid;
            insp.showRow(QStringLiteral("MoreBrowserPanel"), !main);
            insp.showRow(QStringLiteral("PrimaryBrowserLabel"), main);
        }, {}},
        F{"TShape", &TObjInsp::ShapestyleChange, {
            combo("Form:", "Shapestyle", "Shape",
                  {"Rechteck", "Quadrat", "Rechteck mit abgerundeten Ecken", "Quadrat mit abgerundeten Ecken",
                   "Ellipse", "Kreis"}),
            colorButton("Füllung:", "ShapeBrushColor", "Brush.Color"),
            colorButton("Rahmen:", "ShapePenColor", "Pen.Color"),
        }, {}, {}},
        // The lookup keeps its table name in EditMask and its pick-list flag
        // in PopupSizeable; type and length describe the pick-list field.
        F{"TcxDBPopupEdit", &TObjInsp::LUNameChange, {
            line("Feldname:", "LUName", "DataField", RowFlag::Trimmed),
            line("Tabellenname:", "LUDatabase", "EditMask"),
            check("Auswahltabelle", "LUPicklist", "PopupSizeable"),
            // Without a pick list the type is -1; the first type shows until one is chosen.
            combo("Feldtyp:", "LUFieldTyp", "Tag", fieldTypeItems(), RowFlag::FirstWhenUnlisted)
                .enabledWhile("LUPicklist", 1),
            spin("Feldlänge:", "LUFieldSize", "MaxLength", 0, 32767).enabledWhile("LUPicklist", 1),
            combo("Schreibweise:", "LUCharCase", "CharCase", charCaseItems()),
            check("Nur lesen", "LUReadonly", "ReadOnly"),
            line("Feldtitel im Browser:", "LUNameCaption", "HelpKeyword"),
        }, {}, [](TObjInsp &, QWidget *c) {
            auto *lookup = qobject_cast<TcxDBPopupEdit *>(c);
            if (lookup && !lookup->PopupSizeable())
                lookup->setTag(-1);
        }},
        F{"TImageAspect", &TObjInsp::ImageStrechCheckBoxClick, {
            line("Datei:", "ImageFileEdit", "FileName")
                .withButton("ImageFileBtn", "Bild auswählen", &TObjInsp::ImageFileBtnClick),
            check("Strecken", "ImageStrechCheckBox", "AutoSize"),
        }, {}, {}},
        F{"TAdvOfficePager", &TObjInsp::OfficePagerAlignClick, {
            combo("Ausrichtung:", "OfficePagerAlign", "Align", alignItems()),
            radios("Reiterposition", "RGOfficePagerTabP", "TabPosition", {"Oben", "Unten", "Links", "Rechts"},
                   RowFlag::Framed),
            // The style belongs to the mask: all its page controls share it.
            [] {
                InspectorRow r = combo("Stil:", "CBOfficePagerStyle", "", pagerStyles);
                r.read = [](const TObjInsp &insp) {
                    return QVariant(insp.m_mask ? insp.m_mask->document()->OfficePagerStyle() : -1);
                };
                r.write = [](TObjInsp &insp, const QVariant &index) {
                    if (insp.m_mask && index.toInt() >= 0)
                        insp.m_mask->document()->setOfficePagerStyle(index.toInt());
                };
                return r;
            }(),
            fontButton("Schriftart Tabs", "Button4", "Font"),
            custom([](TObjInsp &insp) { return insp.buildNewPageBox(); }),
        }, {}, {}},
        F{"TAdvOfficePage", &TObjInsp::EditOfficePageChange, {
            line("Seitentitel:", "EditOfficePage", "Caption"),
            colorButton("Farbe:", "Button5", "Color"),
        }, {}, {}},
        F{"TDBRadioGroup", &TObjInsp::EditRGChange, {
            line("Feldname:", "EditRGDB", "DataField"),
            line("Titel:", "EditRG", "Caption"),
            memo("Werte:", "MemoRG", "Items"),
            spin("Spalten:", "SpinEditRB", "Columns", 1, 16),
            spin("Feldlänge:", "EditSizeRG", "Tag", 0, 9999),
            check("Pflichtfeld", "EditRGPflicht", "TabStop"),
            line("Feldtitel im Browser:", "EditRBKeyword", "HelpKeyword"),
            fontButton("Schriftart…", "Button3", "Font"),
        }, {}, {}},
        F{"TPanel", &TObjInsp::PanelAlignClick, {
            combo("Ausrichtung:", "PanelAlign", "Align", alignItems()),
            line("Beschriftung:", "PanelCaption", "Caption"),
            combo("Innenkante:", "Panel_Bevelinner", "BevelInner", panelBevels),
            combo("Außenkante:", "Panel_Bevelouter", "BevelOuter", panelBevels),
            spin("Rahmenbreite:", "Panel_SpinEdit", "BevelWidth", 1, 20),
            combo("Rahmen:", "Panel_BorderStyle", "BorderStyle", {"kein", "Simpel"}),
            check("3D Style", "Panel_Ctrl", "Ctl3D"),
            colorButton("Farbe:", "Button6", "Color"),
            fontButton("Schriftart…", "Button7", "Font"),
        }, {}, {}},
        // The tree list keeps its table in the state-index field and its
        // master field in HelpKeyword.
        F{"TcxDBTreeList", &TObjInsp::TreeListAlignClick, {
            combo("Ausrichtung:", "TreeListAlign", "Align", alignItems()),
            line("Statusfeld:", "EditTreelistDB", "StateIndexField"),
            line("Felder:", "EditTreelistFields", "Hint"),
            line("Schlüsselfeld:", "EditTreelistKeyField", "KeyField"),
            line("Masterfeld:", "EditTreelistKField", "HelpKeyword"),
            line("Elternfeld:", "EditTreelistParentField", "ParentField"),
            line("Indexfeld:", "EditTreelistIndexField", "ImageIndexField"),
            check("Drag und Drop", "DBTreeList_Drag", "DragDrop"),
        }, {}, {}},
        F{"TStringGrid", &TObjInsp::StringGridAlignClick, {
            combo("Ausrichtung:", "StringGridAlign", "Align", alignItems()),
        }, {}, {}},
    };
    return pages;
}

const InspectorPage *TObjInsp::pageFor(const QString &caption)
{
    for (const InspectorPage &page : pageTable())
        if (page.caption == caption)
            return &page;
    return nullptr;
}

const QStringList &TObjInsp::pageCaptions()
{
    static const QStringList captions = [] {
        QStringList c{QStringLiteral("Default")};
        for (const InspectorPage &page : pageTable())
            c << page.caption;
        return c;
    }();
    return captions;
}

// Each writes its whole page into the current control.
void TObjInsp::LabelCaptionChange() { writePage(QStringLiteral("TLabel")); }
void TObjInsp::DBLabelFieldChange() { writePage(QStringLiteral("TDBLabel")); }
void TObjInsp::EditFieldNameChange() { writePage(QStringLiteral("TcxTextEdit")); }
void TObjInsp::ComboFieldNameChange() { writePage(QStringLiteral("TcxComboBox")); }
void TObjInsp::MemoFieldnameChange() { writePage(QStringLiteral("TcxMemo")); }
void TObjInsp::CheckFieldNameChange() { writePage(QStringLiteral("TcxDBCheckBox")); }
void TObjInsp::BtnCaptionChange() { writePage(QStringLiteral("TMaskBtn")); }
void TObjInsp::BevelShapeClick() { writePage(QStringLiteral("TBevel")); }
void TObjInsp::DBGridAlignClick() { writePage(QStringLiteral("TDBGrid")); }
void TObjInsp::ShapestyleChange() { writePage(QStringLiteral("TShape")); }
void TObjInsp::LUNameChange() { writePage(QStringLiteral("TcxDBPopupEdit")); }
void TObjInsp::ImageStrechCheckBoxClick() { writePage(QStringLiteral("TImageAspect")); }
void TObjInsp::OfficePagerAlignClick() { writePage(QStringLiteral("TAdvOfficePager")); }
void TObjInsp::EditOfficePageChange() { writePage(QStringLiteral("TAdvOfficePage")); }
void TObjInsp::EditRGChange() { writePage(QStringLiteral("TDBRadioGroup")); }
void TObjInsp::PanelAlignClick() { writePage(QStringLiteral("TPanel")); }
void TObjInsp::TreeListAlignClick() { writePage(QStringLiteral("TcxDBTreeList")); }
void TObjInsp::StringGridAlignClick() { writePage(QStringLiteral("TStringGrid")); }
