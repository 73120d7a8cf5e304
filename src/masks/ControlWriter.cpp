// The writers of the control kinds: one section per control, keys in the
// order the application family's runtime knows them.
#include "ControlWriter.h"

#include "CommaText.h"
#include "ControlKinds.h"
#include "Containers.h"
#include "Edits.h"
#include "Graphics.h"
#include "Grids.h"
#include "IniFile.h"
#include "MaskDocument.h"
#include "MyBtn.h"
#include "PickLists.h"


namespace {
const QString kSort = QStringLiteral("Sort");

template <class T>
T *as(QWidget *w)
{
    return static_cast<T *>(w);
}
} // namespace

TControlWriter::TControlWriter(const TMaskDocument *mask, TMemIniFile &ini, QStringList &pickLists)
    : m_mask(mask), m_ini(ini), m_pickLists(pickLists)
{
}

void TControlWriter::write(QObject *component)
{
    auto *w = qobject_cast<QWidget *>(component);
    // The exact class decides, not a base class: a label of another class
    // than those the file knows is not saved.
    const TControlKind *kind = w ? ControlKinds::byClass(QLatin1String(component->metaObject()->className())) : nullptr;
    if (!kind || !kind->write)
        return;
    QString number;
    const QString section = sectionOf(*kind, w, &number);
    (this->*kind->write)(w, section);
    if (kind->sortCode >= 0)
        sortLine(TControl::from(w), *kind, number);
}

QString TControlWriter::sectionOf(const TControlKind &kind, const QWidget *w, QString *number)
{
    // The grid named "DBGrid1" is the mask's main grid; it is not counted.
    if (kind.singleSection && (!kind.sectionPrefix || w->objectName() == QLatin1String(kind.singleName)))
        return QString::fromLatin1(kind.singleSection);
    const QString prefix = QString::fromLatin1(kind.sectionPrefix);
    *number = QString::number(++m_counters[prefix]);
    return prefix + *number;
}

void TControlWriter::str(const QString &s, const char *key, const QString &value)
{
    m_ini.writeString(s, QString::fromLatin1(key), value);
}

void TControlWriter::integer(const QString &s, const char *key, int value)
{
    m_ini.writeInteger(s, QString::fromLatin1(key), value);
}

void TControlWriter::boolean(const QString &s, const char *key, bool value)
{
    m_ini.writeBool(s, QString::fromLatin1(key), value);
}

void TControlWriter::color(const QString &s, const char *key, TColor value)
{
    m_ini.writeColor(s, QString::fromLatin1(key), value);
}

void TControlWriter::parent(const QString &s, QWidget *w)
{
    const QWidget *p = w->parentWidget();
    str(s, "Parent", p ? p->objectName() : QStringLiteral("Maske"));
}

void TControlWriter::bounds(const QString &s, const TControl *c)
{
    integer(s, "Left", c->Left());
    integer(s, "Top", c->Top());
    integer(s, "Height", c->Height());
    integer(s, "Width", c->Width());
}

void TControlWriter::fontColorFirst(const QString &s, const TControl *c, const char *sizeKey)
{
    const TFont f = c->Font();
    color(s, "FColor", f.Color);
    str(s, "FName", f.Name);
    integer(s, sizeKey, f.Size);
    str(s, "FStyle", FontStylesToString(f.Style));
}

void TControlWriter::fontColorAfterSize(const QString &s, const TControl *c)
{
    const TFont f = c->Font();
    str(s, "FName", f.Name);
    integer(s, "FSize", f.Size);
    color(s, "FColor", f.Color);
    str(s, "FStyle", FontStylesToString(f.Style));
}

void TControlWriter::sortLine(const TControl *c, const TControlKind &kind, const QString &number)
{
    // Tab orders count per parent: a later control with the same order
    // overwrites the line of an earlier one.
    m_ini.writeString(kSort, QString::number(c->TabOrder()),
                      QString::number(kind.sortCode) + QLatin1Char('-') + QLatin1String(kind.sortWord) + number);
}

void TControlWriter::WritePageControl(QWidget *w, const QString &s)
{
    auto *pager = as<TAdvOfficePager>(w);
    parent(s, w);
    integer(s, "Style", m_mask->OfficePagerStyle());
    integer(s, "Alignment", pager->Align());
    bounds(s, pager);
    integer(s, "TabPos", pager->TabPosition());
    integer(s, "ActivePage", pager->ActivePageIndex());
    fontColorFirst(s, pager, "FontSize");
}

void TControlWriter::WritePage(QWidget *w, const QString &s)
{
    auto *page = as<TAdvOfficePage>(w);
    parent(s, w);
    integer(s, "Pageindex", page->PageIndex());
    str(s, "Name", page->Caption());
}

void TControlWriter::WriteLabel(QWidget *w, const QString &s)
{
    auto *label = as<TLabel>(w);
    parent(s, w);
    str(s, "Name", label->Caption());
    bounds(s, label);
    fontColorFirst(s, label, "FontSize");
    boolean(s, "WordWrap", label->WordWrap());
    integer(s, "Layout", label->Layout());
    integer(s, "Alignment", label->Alignment());
}

void TControlWriter::WriteDBLabel(QWidget *w, const QString &s)
{
    auto *label = as<TDBLabel>(w);
    parent(s, w);
    str(s, "Name", label->Caption());
    str(s, "DB", label->DataSource());
    str(s, "Desc", label->HelpKeyword());
    integer(s, "Typ", label->Tag());
    str(s, "Laenge", label->Hint());
    bounds(s, label);
    fontColorFirst(s, label, "FontSize");
    boolean(s, "WordWrap", label->WordWrap());
    integer(s, "Alignment", label->Alignment());
    boolean(s, "BrowserEdit", label->BrowserEdit());
}

void TControlWriter::WriteField(QWidget *w, const QString &s)
{
    auto *edit = as<TcxTextEdit>(w);
    parent(s, w);
    str(s, "Name", edit->Text());
    str(s, "Desc", edit->HelpKeyword());
    str(s, "MaskEdit", edit->Hint());
    integer(s, "Left", edit->Left());
    integer(s, "Top", edit->Top());
    integer(s, "Laenge", edit->MaxLength());
    integer(s, "Typ", edit->Tag());
    integer(s, "Height", edit->Height());
    integer(s, "Width", edit->Width());
    color(s, "Color", edit->Color());
    boolean(s, "Pflicht", edit->TabStop());
    boolean(s, "ReadOnly", edit->ReadOnly());
    integer(s, "TabOrder", edit->TabOrder());
    fontColorAfterSize(s, edit);
    integer(s, "CharCase", edit->CharCase());
}

void TControlWriter::WriteLField(QWidget *w, const QString &s)
{
    auto *lookup = as<TcxDBPopupEdit>(w);
    const TFont f = lookup->Font();
    parent(s, w);
    str(s, "Name", lookup->DataField());
    str(s, "DataBase", lookup->EditMask());
    str(s, "Desc", lookup->HelpKeyword());
    boolean(s, "Picklist", lookup->PopupSizeable());
    integer(s, "Left", lookup->Left());
    integer(s, "Top", lookup->Top());
    integer(s, "Laenge", lookup->MaxLength());
    integer(s, "Typ", lookup->Tag());
    integer(s, "Height", lookup->Height());
    integer(s, "Width", lookup->Width());
    color(s, "Color", lookup->Color());
    integer(s, "TabOrder", lookup->TabOrder());
    str(s, "FName", f.Name);
    integer(s, "FSize", f.Size);
    boolean(s, "Readonly", lookup->ReadOnly());
    color(s, "FColor", f.Color);
    str(s, "FStyle", FontStylesToString(f.Style));
    integer(s, "CharCase", lookup->CharCase());
}

void TControlWriter::WriteCField(QWidget *w, const QString &s)
{
    auto *combo = as<TcxComboBox>(w);
    parent(s, w);
    str(s, "Name", combo->Text());
    str(s, "Desc", combo->HelpKeyword());
    integer(s, "Left", combo->Left());
    integer(s, "Top", combo->Top());
    integer(s, "Laenge", combo->MaxLength());
    integer(s, "Typ", combo->Tag());
    integer(s, "Height", combo->Height());
    integer(s, "Width", combo->Width());
    color(s, "Color", combo->Color());
    integer(s, "TabOrder", combo->TabOrder());
    str(s, "PullDown", combo->Hint());
    // One block per pick-list name; the first combo box with items fills it.
    // Items the block cannot hold (entering them is refused, but a pasted
    // control may bring them) are left out rather than read back as keys.
    QStringList items;
    for (const QString &item : combo->Items())
        if (PickLists::holds(item))
            items << item;
    const QString header = PickLists::header(combo->Hint());
    // Section names ignore case, so "[ANREDE]" is the block "[Anrede]".
    if (!items.isEmpty() && !m_pickListNames.contains(combo->Hint().toCaseFolded())) {
        m_pickListNames.insert(combo->Hint().toCaseFolded());
        m_pickLists.append(header);
        m_pickLists.append(items);
        m_pickLists.append(QString());
    }
    boolean(s, "Pflicht", combo->TabStop());
    boolean(s, "Readonly", combo->ReadOnly());
    fontColorAfterSize(s, combo);
}

void TControlWriter::WriteMemo(QWidget *w, const QString &s)
{
    auto *memo = as<TcxMemo>(w);
    parent(s, w);
    str(s, "Name", memo->Text());
    str(s, "Desc", memo->HelpKeyword());
    bounds(s, memo);
    color(s, "Color", memo->Color());
    fontColorAfterSize(s, memo);
    integer(s, "TabOrder", memo->TabOrder());
    boolean(s, "Pflicht", memo->TabStop());
    boolean(s, "Plaintext", memo->Tag() != 0);
    integer(s, "Scrollbars", memo->ScrollBars());
}

void TControlWriter::WriteCheckBox(QWidget *w, const QString &s)
{
    auto *check = as<TcxDBCheckBox>(w);
    parent(s, w);
    str(s, "Name", check->Caption());
    str(s, "Desc", check->HelpKeyword());
    str(s, "DataField", check->DataField());
    bounds(s, check);
    integer(s, "TabOrder", check->TabOrder());
    str(s, "Funktion", check->Hint());
    fontColorAfterSize(s, check);
    boolean(s, "Checked", check->Checked());
    str(s, "True", check->ValueChecked());
    str(s, "False", check->ValueUnchecked());
    integer(s, "Alignment", check->Alignment());
}

void TControlWriter::WriteBevel(QWidget *w, const QString &s)
{
    auto *bevel = as<TBevel>(w);
    parent(s, w);
    bounds(s, bevel);
    integer(s, "Typ", bevel->Shape());
}

void TControlWriter::WriteImage(QWidget *w, const QString &s)
{
    auto *image = as<TImageAspect>(w);
    parent(s, w);
    str(s, "Filename", image->FileName());
    bounds(s, image);
}

void TControlWriter::WritePanel(QWidget *w, const QString &s)
{
    auto *panel = as<TPanel>(w);
    parent(s, w);
    str(s, "Name", panel->Caption());
    bounds(s, panel);
    integer(s, "BWidth", panel->BevelWidth());
    color(s, "PColor", panel->Color());
    integer(s, "BInner", panel->BevelInner());
    integer(s, "BOuter", panel->BevelOuter());
    integer(s, "BStyle", panel->BorderStyle());
    boolean(s, "Ctl3D", panel->Ctl3D());
    fontColorAfterSize(s, panel);
    integer(s, "Alignment", panel->Align());
}

void TControlWriter::WriteShape(QWidget *w, const QString &s)
{
    auto *shape = as<TShape>(w);
    parent(s, w);
    bounds(s, shape);
    integer(s, "Typ", shape->Shape());
    color(s, "FColor", shape->BrushColor());
    color(s, "FPColor", shape->PenColor());
}

void TControlWriter::WriteButton(QWidget *w, const QString &s)
{
    auto *button = as<TMaskBtn>(w);
    const TFont f = button->Font();
    parent(s, w);
    str(s, "Name", button->Caption());
    bounds(s, button);
    integer(s, "TabOrder", button->TabOrder());
    str(s, "PrgRun", button->Hint());
    str(s, "FName", f.Name);
    integer(s, "FSize", f.Size);
    integer(s, "Action", button->Tag());
    color(s, "FColor", f.Color);
    str(s, "FStyle", FontStylesToString(f.Style));
    str(s, "Ext", button->ProgExt());
    str(s, "ZMaske", button->ZuweisMaske());
    str(s, "ZFeld", button->ZuweisFeld());
    str(s, "ZFeldEx", button->ZuweisFeldEx());
    str(s, "ZIndex", button->IndexFeld());
    str(s, "RuleField", button->RegelFeld());
    str(s, "RuleExpression", button->RegelAusdruck());
    str(s, "RuleColor", button->RegelFarbe());
    boolean(s, "RuleArea", button->RegelZeile());
    str(s, "Ext_Section", button->SectionExt());
    integer(s, "Margin", button->Margin());
    boolean(s, "RunAs", button->RunAs());
}

void TControlWriter::WriteBrowser(QWidget *w, const QString &s)
{
    const bool mainGrid = s == QLatin1String("Browser");
    auto *grid = as<TDBGrid>(w);
    const TFont f = grid->Font();
    const TFont h = grid->TitleFont();
    parent(s, w);
    bounds(s, grid);
    str(s, "FName", f.Name);
    integer(s, "FSize", f.Size);
    // The scroll bar choice lives in Tag.
    if (!mainGrid)
        integer(s, "Scrollbars", grid->Tag());
    color(s, "FColor", f.Color);
    str(s, "FStyle", FontStylesToString(f.Style));
    str(s, "HFName", h.Name);
    integer(s, "HFSize", h.Size);
    color(s, "HFColor", h.Color);
    str(s, "HFStyle", FontStylesToString(h.Style));
    if (mainGrid)
        boolean(s, "Treelist", grid->TabStop()); // the structure browser flag
    boolean(s, "ReadOnly", grid->ReadOnly());
    integer(s, "Alignment", grid->Align());
    integer(s, "Ausrichtung", grid->Align());
    if (!mainGrid)
        str(s, "DataBase", grid->Hint());
}

void TControlWriter::WriteTreeList(QWidget *w, const QString &s)
{
    auto *tree = as<TcxDBTreeList>(w);
    str(s, "Name", tree->objectName());
    parent(s, w);
    str(s, "Index", tree->StateIndexField());
    str(s, "QXID", QStringLiteral("QXParent"));
    str(s, "DBIndex", tree->KeyField());
    str(s, "Keyfield", tree->KeyField());
    str(s, "ParentField", tree->ParentField());
    str(s, "Felder", tree->Hint());
    str(s, "DB", tree->HelpKeyword());
    integer(s, "Alignment", tree->Align());
    boolean(s, "DragDrop", tree->DragDrop());
    bounds(s, tree);
    fontColorAfterSize(s, tree);
}

void TControlWriter::WriteStringGrid(QWidget *w, const QString &s)
{
    auto *grid = as<TStringGrid>(w);
    parent(s, w);
    str(s, "Name", grid->objectName());
    bounds(s, grid);
    integer(s, "Alignment", grid->Align());
    fontColorAfterSize(s, grid);
}

void TControlWriter::WriteRadioGroup(QWidget *w, const QString &s)
{
    auto *group = as<TDBRadioGroup>(w);
    parent(s, w);
    str(s, "DataField", group->DataField());
    integer(s, "Laenge", group->Tag());
    str(s, "Caption", group->Caption());
    str(s, "Desc", group->HelpKeyword());
    bounds(s, group);
    fontColorFirst(s, group, "FontSize");
    boolean(s, "Pflicht", group->TabStop());
    str(s, "Items", CommaText::join(group->Items()));
    integer(s, "Columns", group->Columns());
}

void TControlWriter::WriteView(QWidget *w, const QString &s)
{
    parent(s, w);
    bounds(s, TControl::from(w));
}

void TControlWriter::WriteTab(QWidget *w, const QString &s)
{
    const TControl *tabs = TControl::from(w);
    parent(s, w);
    bounds(s, tabs);
    fontColorAfterSize(s, tabs);
}
