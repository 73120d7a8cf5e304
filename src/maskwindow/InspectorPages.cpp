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
    static const QStringList items
        = {QT_TRANSLATE_NOOP("TObjInsp", "Keine"),  QT_TRANSLATE_NOOP("TObjInsp", "Oben"),
           QT_TRANSLATE_NOOP("TObjInsp", "Unten"),  QT_TRANSLATE_NOOP("TObjInsp", "Links"),
           QT_TRANSLATE_NOOP("TObjInsp", "Rechts"), QT_TRANSLATE_NOOP("TObjInsp", "Fenster")};
    return items;
}

const QStringList &fieldTypeItems()
{
    static const QStringList items
        = {QT_TRANSLATE_NOOP("TObjInsp", "Textfeld"), QT_TRANSLATE_NOOP("TObjInsp", "Zahl"),
           QT_TRANSLATE_NOOP("TObjInsp", "Datum"),    QT_TRANSLATE_NOOP("TObjInsp", "Uhrzeit"),
           QT_TRANSLATE_NOOP("TObjInsp", "Währung"),  QT_TRANSLATE_NOOP("TObjInsp", "Logisch"),
           QT_TRANSLATE_NOOP("TObjInsp", "Memo"),     QT_TRANSLATE_NOOP("TObjInsp", "AutoInc")};
    return items;
}

const QStringList &charCaseItems()
{
    static const QStringList items
        = {QT_TRANSLATE_NOOP("TObjInsp", "Groß/Kleinschreibung"), QT_TRANSLATE_NOOP("TObjInsp", "Großbuchstaben"),
           QT_TRANSLATE_NOOP("TObjInsp", "Kleinbuchstaben")};
    return items;
}

} // namespace Rows

namespace {

const QStringList labelAlignment
    = {QT_TRANSLATE_NOOP("TObjInsp", "Links angeordnet"), QT_TRANSLATE_NOOP("TObjInsp", "Rechts angeordnet"),
       QT_TRANSLATE_NOOP("TObjInsp", "Zentriert")};
const QStringList panelBevels = {"bvNone", "bvLowered", "bvRaised", "bvSpace"};
// The action kinds of a mask button, as its Tag stores them.
const QStringList buttonActions
    = {QT_TRANSLATE_NOOP("TObjInsp", "Datensatz suchen"),        QT_TRANSLATE_NOOP("TObjInsp", "Zeichnung starten"),
       QT_TRANSLATE_NOOP("TObjInsp", "NC Programm starten"),     QT_TRANSLATE_NOOP("TObjInsp", "Datensatz zuweisen"),
       QT_TRANSLATE_NOOP("TObjInsp", "Datensatz auflisten"),     QT_TRANSLATE_NOOP("TObjInsp", "Zeichnung einfügen"),
       QT_TRANSLATE_NOOP("TObjInsp", "Ext. Programm starten"),   QT_TRANSLATE_NOOP("TObjInsp", "URL öffnen"),
       QT_TRANSLATE_NOOP("TObjInsp", "E-Mail senden"),           QT_TRANSLATE_NOOP("TObjInsp", "Report starten"),
       QT_TRANSLATE_NOOP("TObjInsp", "INI Sektion verarbeiten"), QT_TRANSLATE_NOOP("TObjInsp", "Regel definieren")};
const QStringList pagerStyles
    = {QT_TRANSLATE_NOOP("TObjInsp", "Office2003 Blau"),  QT_TRANSLATE_NOOP("TObjInsp", "Office2003 Silber"),
       QT_TRANSLATE_NOOP("TObjInsp", "Office2003 Olive"), QT_TRANSLATE_NOOP("TObjInsp", "Office2003 Klassik"),
       QT_TRANSLATE_NOOP("TObjInsp", "Office2007 Luna"),  QT_TRANSLATE_NOOP("TObjInsp", "Office2007 Obsidian"),
       QT_TRANSLATE_NOOP("TObjInsp", "WindowsXP"),        QT_TRANSLATE_NOOP("TObjInsp", "Whidbey"),
       QT_TRANSLATE_NOOP("TObjInsp", "Custom"),           QT_TRANSLATE_NOOP("TObjInsp", "Office2007 Silber")};

// The main grid of a mask is its record browser; the others browse details.
const QString kMainGrid = QStringLiteral("DBGrid1");

InspectorRow sizing()
{
    // Auto size and word wrap exclude each other on a label, hence one choice.
    InspectorRow r
        = radios(QT_TRANSLATE_NOOP("TObjInsp", "Größe:"), "LabelSizing", "WordWrap,!AutoSize",
                 {QT_TRANSLATE_NOOP("TObjInsp", "Auto Größe"), QT_TRANSLATE_NOOP("TObjInsp", "Zeilenumbruch")});
    r.itemNames = QStringList{"LabelAutoSize", "LabelWordWrap"};
    return r;
}

} // namespace

const QVector<InspectorPage> &TObjInsp::pageTable()
{
    using F = InspectorPage;
    static const QVector<InspectorPage> pages = {
        F{"TLabel",
          &TObjInsp::LabelCaptionChange,
          {
              line(QT_TR_NOOP("Beschriftung:"), "LabelCaption", "Caption"),
              combo(QT_TR_NOOP("Layout:"), "LabelLayout", "Layout",
                    {QT_TR_NOOP("Oben"), QT_TR_NOOP("Zentrum"), QT_TR_NOOP("Unten")}),
              combo(QT_TR_NOOP("Ausrichtung:"), "LabelAlignment", "Alignment", labelAlignment),
              sizing(),
              fontButton(QT_TR_NOOP("Schriftart…"), "Button1", "Font"),
          },
          {},
          {}},
        F{"TDBLabel",
          &TObjInsp::DBLabelFieldChange,
          {
              line(QT_TR_NOOP("Feldname:"), "DBLabelField", "DataField,Caption", RowFlag::Trimmed),
              line(QT_TR_NOOP("Tabelle:"), "DBLabelTable", "DataSource"),
              combo(QT_TR_NOOP("Feldtyp:"), "DBLabelTyp", "Tag", fieldTypeItems()),
              // The length only means something for text fields.
              spin(QT_TR_NOOP("Feldlänge:"), "DBLabelSize", "Hint", 0, 9999).enabledWhile("DBLabelTyp", 0),
              combo(QT_TR_NOOP("Ausrichtung:"), "DBLabelAlignment", "Alignment", labelAlignment),
              check(QT_TR_NOOP("Zeilenumbruch"), "DBLabelWordWrap", "WordWrap,!AutoSize"),
              check(QT_TR_NOOP("Im Browser editierbar"), "DBLabel_BrowserEdit", "BrowserEdit"),
              line(QT_TR_NOOP("Feldtitel im Browser:"), "DBLabelCaption", "HelpKeyword"),
              fontButton(QT_TR_NOOP("Schriftart…"), "Button2", "Font"),
          },
          {},
          {}},
        F{"TcxTextEdit",
          &TObjInsp::EditFieldNameChange,
          {
              line(QT_TR_NOOP("Feldname:"), "EditFieldName", "Text", RowFlag::Trimmed),
              combo(QT_TR_NOOP("Feldtyp:"), "EditFieldTyp", "Tag", fieldTypeItems()),
              spin(QT_TR_NOOP("Feldlänge:"), "EditFieldSize", "MaxLength", 0, 32767).enabledWhile("EditFieldTyp", 0),
              check(QT_TR_NOOP("Pflichtfeld"), "EditPflichtfeld", "TabStop"),
              check(QT_TR_NOOP("Nur lesen"), "EditReadonly", "ReadOnly"),
              combo(QT_TR_NOOP("Schreibweise:"), "EditCharcase", "CharCase", charCaseItems()),
              line(QT_TR_NOOP("Formatierung:"), "EditMask", "Hint"),
              line(QT_TR_NOOP("Feldtitel im Browser:"), "EditFieldCaption", "HelpKeyword"),
          },
          {},
          {}},
        F{"TcxComboBox",
          &TObjInsp::ComboFieldNameChange,
          {
              line(QT_TR_NOOP("Feldname:"), "ComboFieldName", "Text", RowFlag::Trimmed),
              combo(QT_TR_NOOP("Feldtyp:"), "ComboFieldTyp", "Tag", fieldTypeItems()),
              spin(QT_TR_NOOP("Feldlänge:"), "ComboFieldSize", "MaxLength", 0, 32767).enabledWhile("ComboFieldTyp", 0),
              check(QT_TR_NOOP("Pflichtfeld"), "ComboPflichtfeld", "TabStop"),
              check(QT_TR_NOOP("Nur lesen"), "ComboReadOnly", "ReadOnly"),
              combo(QT_TR_NOOP("Schreibweise:"), "ComboCharCase", "CharCase", charCaseItems()),
              line(QT_TR_NOOP("Pulldowndatei:"), "ComboPullDownFile", "Hint")
                  .withButton("ComboPullDownFileButton", QT_TR_NOOP("Pulldowndatei bearbeiten"),
                              &TObjInsp::ComboPullDownFileButtonClick),
              line(QT_TR_NOOP("Feldtitel im Browser:"), "ComboFieldCaption", "HelpKeyword"),
          },
          {},
          {}},
        F{"TcxMemo",
          &TObjInsp::MemoFieldnameChange,
          {
              line(QT_TR_NOOP("Feldname:"), "MemoFieldname", "Lines", RowFlag::Trimmed),
              check(QT_TR_NOOP("Pflichtfeld"), "MemoPflichtfeld", "TabStop"),
              combo(QT_TR_NOOP("Bildlaufleisten:"), "MemoScrollbars", "ScrollBars",
                    {QT_TR_NOOP("Keine"), QT_TR_NOOP("Horizontal"), QT_TR_NOOP("Vertikal"), QT_TR_NOOP("Beides")}),
              check(QT_TR_NOOP("Nur Text (ohne Formatierung)"), "MemoPlaintext", "Tag"),
              line(QT_TR_NOOP("Feldtitel im Browser:"), "MemoFieldCaption", "HelpKeyword"),
          },
          {},
          {}},
        F{"TcxDBCheckBox",
          &TObjInsp::CheckFieldNameChange,
          {
              line(QT_TR_NOOP("Feldname:"), "CheckFieldName", "DataField", RowFlag::Trimmed),
              line(QT_TR_NOOP("Beschreibung:"), "CheckCaption", "Caption"),
              combo(QT_TR_NOOP("Ausrichtung:"), "CheckAlign", "Alignment", {QT_TR_NOOP("Links"), QT_TR_NOOP("Rechts")},
                    RowFlag::FirstWhenUnlisted),
              line(QT_TR_NOOP("Feldtitel im Browser:"), "CheckFieldCaption", "HelpKeyword"),
              button(QT_TR_NOOP("Farbfunktionen"), "CheckColorBtn", &TObjInsp::CheckColorBtnClick),
          },
          {},
          {}},
        F{"TMaskBtn",
          &TObjInsp::BtnCaptionChange,
          {
              line(QT_TR_NOOP("Beschriftung:"), "BtnCaption", "Caption"),
              combo(QT_TR_NOOP("Layout:"), "BtnLayout", "Layout",
                    {QT_TR_NOOP("Icon links"), QT_TR_NOOP("Icon rechts"), QT_TR_NOOP("Icon oben"),
                     QT_TR_NOOP("Icon unten")}),
              [] {
                  InspectorRow r = spin(QT_TR_NOOP("Rand:"), "BtnMargin", "Margin", -1, 255);
                  r.specialText = QT_TR_NOOP("Auto");
                  return r;
              }(),
              combo(QT_TR_NOOP("Aktion:"), "BtnAction", "Tag", buttonActions),
              line(QT_TR_NOOP("Maske:"), "BtnZuweisMaske", "ZuweisMaske")
                  .withButton("BtnZuweisMaskeBtn", QT_TR_NOOP("Datei auswählen"),
                              &TObjInsp::BtnZuweisMaskeBeforeDialog),
              line(QT_TR_NOOP("Zielfeld:"), "BtnZuweisFeld", "ZuweisFeld"),
              line(QT_TR_NOOP("IndexfeldEx:"), "BtnZuweisFeldEx", "ZuweisFeldEx"),
              line(QT_TR_NOOP("Indexfeld:"), "BtnIndexFeld", "IndexFeld"),
              line(QT_TR_NOOP("Dateierweiterung:"), "BtnProgExt", "ProgExt"),
              line(QT_TR_NOOP("INI Sektion:"), "BtnSectionExt", "SectionExt"),
              check(QT_TR_NOOP("als Admin ausführen"), "BtnRunAs", "RunAs"),
              button(QT_TR_NOOP("Regel definieren"), "BtnZuweisRule", &TObjInsp::BtnZuweisRuleClick),
          },
          [](TObjInsp &insp) { insp.updateButtonRows(); },
          {}},
        F{"TBevel",
          &TObjInsp::BevelShapeClick,
          {
              combo(QT_TR_NOOP("Form:"), "BevelShape", "Shape",
                    {QT_TR_NOOP("Box"), QT_TR_NOOP("Rahmen"), QT_TR_NOOP("Linie oben"), QT_TR_NOOP("Linie unten"),
                     QT_TR_NOOP("Linie links"), QT_TR_NOOP("Linie rechts")}),
          },
          {},
          {}},
        F{"TDBGrid",
          &TObjInsp::DBGridAlignClick,
          {
              combo(QT_TR_NOOP("Ausrichtung:"), "DBGridAlign", "Align", alignItems()),
              check(QT_TR_NOOP("Nur lesen"), "DBGridReadOnly", "ReadOnly"),
              combo(QT_TR_NOOP("Bildlaufleisten:"), "DBGrid_Scrollbars", "Tag",
                    {QT_TR_NOOP("keine"), QT_TR_NOOP("Horizontal"), QT_TR_NOOP("Vertikal"), QT_TR_NOOP("beide")}),
              check(QT_TR_NOOP("Strukturbrowser aktiv"), "DBGrid_StructCheckBox", "TabStop"),
              // A detail browser names the field that links it to the record.
              line(QT_TR_NOOP("Verknüpfungsfeld:"), "DBGrid_Field", "Hint").onPanel("MoreBrowserPanel"),
              note(QT_TR_NOOP("Primärer Browser"), "PrimaryBrowserLabel"),
              fontButton(QT_TR_NOOP("Schrift…"), "DBGrid_Font", "Font"),
              fontButton(QT_TR_NOOP("Titelschrift…"), "DBGrid_Headerfont", "TitleFont"),
          },
          [](TObjInsp &insp) {
              const bool main = insp.m_current && insp.m_current->objectName() == kMainGrid;
              insp.showRow(QStringLiteral("MoreBrowserPanel"), !main);
              insp.showRow(QStringLiteral("PrimaryBrowserLabel"), main);
          },
          {}},
        F{"TShape",
          &TObjInsp::ShapestyleChange,
          {
              combo(QT_TR_NOOP("Form:"), "Shapestyle", "Shape",
                    {QT_TR_NOOP("Rechteck"), QT_TR_NOOP("Quadrat"), QT_TR_NOOP("Rechteck mit abgerundeten Ecken"),
                     QT_TR_NOOP("Quadrat mit abgerundeten Ecken"), QT_TR_NOOP("Ellipse"), QT_TR_NOOP("Kreis")}),
              colorButton(QT_TR_NOOP("Füllung:"), "ShapeBrushColor", "Brush.Color"),
              colorButton(QT_TR_NOOP("Rahmen:"), "ShapePenColor", "Pen.Color"),
          },
          {},
          {}},
        // The lookup keeps its table name in EditMask and its pick-list flag
        // in PopupSizeable; type and length describe the pick-list field.
        F{"TcxDBPopupEdit",
          &TObjInsp::LUNameChange,
          {
              line(QT_TR_NOOP("Feldname:"), "LUName", "DataField", RowFlag::Trimmed),
              line(QT_TR_NOOP("Tabellenname:"), "LUDatabase", "EditMask"),
              check(QT_TR_NOOP("Auswahltabelle"), "LUPicklist", "PopupSizeable"),
              // Without a pick list the type is -1; the first type shows until one is chosen.
              combo(QT_TR_NOOP("Feldtyp:"), "LUFieldTyp", "Tag", fieldTypeItems(), RowFlag::FirstWhenUnlisted)
                  .enabledWhile("LUPicklist", 1),
              spin(QT_TR_NOOP("Feldlänge:"), "LUFieldSize", "MaxLength", 0, 32767).enabledWhile("LUPicklist", 1),
              combo(QT_TR_NOOP("Schreibweise:"), "LUCharCase", "CharCase", charCaseItems()),
              check(QT_TR_NOOP("Nur lesen"), "LUReadonly", "ReadOnly"),
              line(QT_TR_NOOP("Feldtitel im Browser:"), "LUNameCaption", "HelpKeyword"),
          },
          {},
          [](TObjInsp &, QWidget *c) {
              auto *lookup = qobject_cast<TcxDBPopupEdit *>(c);
              if (lookup && !lookup->PopupSizeable())
                  lookup->setTag(-1);
          }},
        F{"TImageAspect",
          &TObjInsp::ImageStrechCheckBoxClick,
          {
              line(QT_TR_NOOP("Datei:"), "ImageFileEdit", "FileName")
                  .withButton("ImageFileBtn", QT_TR_NOOP("Bild auswählen"), &TObjInsp::ImageFileBtnClick),
              check(QT_TR_NOOP("Strecken"), "ImageStrechCheckBox", "AutoSize"),
          },
          {},
          {}},
        F{"TAdvOfficePager",
          &TObjInsp::OfficePagerAlignClick,
          {
              combo(QT_TR_NOOP("Ausrichtung:"), "OfficePagerAlign", "Align", alignItems()),
              radios(QT_TR_NOOP("Reiterposition"), "RGOfficePagerTabP", "TabPosition",
                     {QT_TR_NOOP("Oben"), QT_TR_NOOP("Unten"), QT_TR_NOOP("Links"), QT_TR_NOOP("Rechts")},
                     RowFlag::Framed),
              // The style belongs to the mask: all its page controls share it.
              [] {
                  InspectorRow r = combo(QT_TR_NOOP("Stil:"), "CBOfficePagerStyle", "", pagerStyles);
                  r.read = [](const TObjInsp &insp) {
                      return QVariant(insp.m_mask ? insp.m_mask->document()->OfficePagerStyle() : -1);
                  };
                  r.write = [](TObjInsp &insp, const QVariant &index) {
                      if (insp.m_mask && index.toInt() >= 0)
                          insp.m_mask->document()->setOfficePagerStyle(index.toInt());
                  };
                  return r;
              }(),
              fontButton(QT_TR_NOOP("Schriftart Tabs"), "Button4", "Font"),
              custom([](TObjInsp &insp) { return insp.buildNewPageBox(); }),
          },
          {},
          {}},
        F{"TAdvOfficePage",
          &TObjInsp::EditOfficePageChange,
          {
              line(QT_TR_NOOP("Seitentitel:"), "EditOfficePage", "Caption"),
              colorButton(QT_TR_NOOP("Farbe:"), "Button5", "Color"),
          },
          {},
          {}},
        F{"TDBRadioGroup",
          &TObjInsp::EditRGChange,
          {
              line(QT_TR_NOOP("Feldname:"), "EditRGDB", "DataField"),
              line(QT_TR_NOOP("Titel:"), "EditRG", "Caption"),
              memo(QT_TR_NOOP("Werte:"), "MemoRG", "Items"),
              spin(QT_TR_NOOP("Spalten:"), "SpinEditRB", "Columns", 1, 16),
              spin(QT_TR_NOOP("Feldlänge:"), "EditSizeRG", "Tag", 0, 9999),
              check(QT_TR_NOOP("Pflichtfeld"), "EditRGPflicht", "TabStop"),
              line(QT_TR_NOOP("Feldtitel im Browser:"), "EditRBKeyword", "HelpKeyword"),
              fontButton(QT_TR_NOOP("Schriftart…"), "Button3", "Font"),
          },
          {},
          {}},
        F{"TPanel",
          &TObjInsp::PanelAlignClick,
          {
              combo(QT_TR_NOOP("Ausrichtung:"), "PanelAlign", "Align", alignItems()),
              line(QT_TR_NOOP("Beschriftung:"), "PanelCaption", "Caption"),
              combo(QT_TR_NOOP("Innenkante:"), "Panel_Bevelinner", "BevelInner", panelBevels),
              combo(QT_TR_NOOP("Außenkante:"), "Panel_Bevelouter", "BevelOuter", panelBevels),
              spin(QT_TR_NOOP("Rahmenbreite:"), "Panel_SpinEdit", "BevelWidth", 1, 20),
              combo(QT_TR_NOOP("Rahmen:"), "Panel_BorderStyle", "BorderStyle",
                    {QT_TR_NOOP("kein"), QT_TR_NOOP("Simpel")}),
              check(QT_TR_NOOP("3D Style"), "Panel_Ctrl", "Ctl3D"),
              colorButton(QT_TR_NOOP("Farbe:"), "Button6", "Color"),
              fontButton(QT_TR_NOOP("Schriftart…"), "Button7", "Font"),
          },
          {},
          {}},
        // The tree list keeps its table in the state-index field and its
        // master field in HelpKeyword.
        F{"TcxDBTreeList",
          &TObjInsp::TreeListAlignClick,
          {
              combo(QT_TR_NOOP("Ausrichtung:"), "TreeListAlign", "Align", alignItems()),
              line(QT_TR_NOOP("Statusfeld:"), "EditTreelistDB", "StateIndexField"),
              line(QT_TR_NOOP("Felder:"), "EditTreelistFields", "Hint"),
              line(QT_TR_NOOP("Schlüsselfeld:"), "EditTreelistKeyField", "KeyField"),
              line(QT_TR_NOOP("Masterfeld:"), "EditTreelistKField", "HelpKeyword"),
              line(QT_TR_NOOP("Elternfeld:"), "EditTreelistParentField", "ParentField"),
              line(QT_TR_NOOP("Indexfeld:"), "EditTreelistIndexField", "ImageIndexField"),
              check(QT_TR_NOOP("Drag und Drop"), "DBTreeList_Drag", "DragDrop"),
          },
          {},
          {}},
        F{"TStringGrid",
          &TObjInsp::StringGridAlignClick,
          {
              combo(QT_TR_NOOP("Ausrichtung:"), "StringGridAlign", "Align", alignItems()),
          },
          {},
          {}},
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
