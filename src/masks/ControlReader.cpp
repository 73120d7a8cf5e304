// The loaders of the control kinds: each creates one control from its section.
#include "ControlReader.h"

#include "CommaText.h"
#include "Components.h"
#include "Containers.h"
#include "Edits.h"
#include "Graphics.h"
#include "Grids.h"
#include "IniFile.h"
#include "MaskDocument.h"
#include "MyBtn.h"

#include <algorithm>

namespace {
const QString kParent = QStringLiteral("Parent");
const QString kName = QStringLiteral("Name");
const QString kDesc = QStringLiteral("Desc");
const QString kLeft = QStringLiteral("Left");
const QString kTop = QStringLiteral("Top");
const QString kHeight = QStringLiteral("Height");
const QString kWidth = QStringLiteral("Width");
const QString kTyp = QStringLiteral("Typ");
const QString kLaenge = QStringLiteral("Laenge");
const QString kColor = QStringLiteral("Color");
const QString kFSize = QStringLiteral("FSize");
const QString kFontSize = QStringLiteral("FontSize");
const QString kPflicht = QStringLiteral("Pflicht");
const QString kAlignment = QStringLiteral("Alignment");
const QString kError = QStringLiteral("ERROR");
const QString kArial = QStringLiteral("Arial");
} // namespace

TControlReader::TControlReader(TMaskDocument *mask, const TMemIniFile &ini) : m_mask(mask), m_ini(ini) {}

QString TControlReader::str(const QString &section, const QString &key, const QString &def) const
{
    return m_ini.readString(section, key, def);
}

int TControlReader::integer(const QString &section, const QString &key, int def) const
{
    return m_ini.readInteger(section, key, def);
}

bool TControlReader::boolean(const QString &section, const QString &key, bool def) const
{
    return m_ini.readBool(section, key, def);
}

TColor TControlReader::color(const QString &section, const QString &key, TColor def) const
{
    return m_ini.readColor(section, key, def);
}

int TControlReader::ordinal(const QString &section, const QString &key, int def, int count) const
{
    const int v = integer(section, key, def);
    return v >= 0 && v < count ? v : def;
}

void TControlReader::bounds(TControl *c, const QString &section, int defHeight, int defWidth, int defPos) const
{
    // Exactly as stored: loading controls never size themselves.
    c->setBounds(integer(section, kLeft, defPos), integer(section, kTop, defPos), integer(section, kWidth, defWidth),
                 integer(section, kHeight, defHeight));
}

TFont TControlReader::defaultFont(const QString &name, int size)
{
    TFont f;
    f.Name = name;
    f.Size = size;
    f.Color = TColor(0);
    return f;
}

TFont TControlReader::font(const QString &section, const QString &sizeKey, const TFont &def, const QString &nameKey,
                        const QString &colorKey, const QString &styleKey) const
{
    TFont f;
    f.Name = str(section, nameKey, def.Name);
    f.Color = color(section, colorKey, def.Color);
    f.Size = integer(section, sizeKey, def.Size);
    if (f.Size <= 0)
        f.Size = def.Size;
    f.Style = StringToFontStyles(str(section, styleKey, FontStylesToString(def.Style)));
    return f;
}

void TControlReader::readTabOrder(TControl *c, const QString &section) const
{
    // The default is the place the control already has.
    const int order = integer(section, QStringLiteral("TabOrder"), -1);
    if (order >= 0)
        c->setTabOrder(order);
}

void TControlReader::styled(QWidget *w) const
{
    if (auto *s = dynamic_cast<TEditStyled *>(w))
        s->setStyleController(m_mask->cxStyleController());
}

QWidget *TControlReader::parentFor(const QString &section, const QWidget *self) const
{
    const QString name = str(section, kParent, QStringLiteral("Maske"));
    // Only a windowed control made before this one can hold it; anything
    // else (the mask itself, a bevel, a name not yet made) means the mask.
    QObject *found = Components::findComponent(m_mask, name);
    auto *w = qobject_cast<QWidget *>(found);
    const TControl *c = TControl::from(found);
    if (w && w != self && c && c->classInfo().windowed)
        return w;
    return m_mask;
}

template <class T>
T *TControlReader::create(const QString &section, const QString &fixedName)
{
    auto *w = new T;
    w->beginLoading();
    Components::setOwner(w, m_mask);
    if (!fixedName.isEmpty())
        w->setObjectName(fixedName);
    AutoName(w, m_mask);
    w->setParent(parentFor(section, w));
    w->show();
    m_controls.append(w);
    return w;
}

void TControlReader::LoadPageControl(const QString &s)
{
    auto *pager = create<TAdvOfficePager>(s);
    m_mask->setOfficePagerStyle(ordinal(s, QStringLiteral("Style"), 6, 10));
    pager->setAlign(TAlign(ordinal(s, kAlignment, alTop, alCustom + 1)));
    bounds(pager, s, 150, 300);
    pager->setTabPosition(TTabPosition(ordinal(s, QStringLiteral("TabPos"), pager->TabPosition(), tpRight + 1)));
    // Applied before the pages exist, so only a pager that has pages
    // already would follow it; the pages loaded next decide.
    pager->setActivePageIndex(integer(s, QStringLiteral("ActivePage"), 0));
    pager->setFont(font(s, kFontSize, defaultFont(QStringLiteral("Tahoma"), 10)));
}

void TControlReader::LoadPage(const QString &s)
{
    auto *page = create<TAdvOfficePage>(s);
    auto *pager = qobject_cast<TAdvOfficePager *>(page->parentWidget());
    if (pager)
        pager->addPage(page);
    page->setCaption(str(s, kName));
    page->setPageIndex(integer(s, QStringLiteral("PageIndex"), 0));
    // Made visible like every loaded control; the pager shows only its
    // active page again.
    if (pager)
        pager->setActivePageIndex(pager->ActivePageIndex());
}

void TControlReader::LoadPanel(const QString &s)
{
    auto *panel = create<TPanel>(s);
    panel->setCaption(str(s, kName));
    bounds(panel, s, 10, 10, 10);
    panel->setBevelWidth(integer(s, QStringLiteral("BWidth"), 1));
    panel->setColor(color(s, QStringLiteral("PColor"), TColor(0)));
    panel->setBevelInner(TPanelBevel(ordinal(s, QStringLiteral("BInner"), bvNone, bvSpace + 1)));
    panel->setBevelOuter(TPanelBevel(ordinal(s, QStringLiteral("BOuter"), bvNone, bvSpace + 1)));
    panel->setBorderStyle(TBorderStyle(ordinal(s, QStringLiteral("BStyle"), bsNone, bsSingle + 1)));
    panel->setCtl3D(boolean(s, QStringLiteral("Ctl3D"), true));
    panel->setFont(font(s, kFSize, defaultFont(kArial, 10)));
    panel->setAlign(TAlign(ordinal(s, kAlignment, alTop, alCustom + 1)));
}

void TControlReader::LoadLabel(const QString &s)
{
    auto *label = create<TLabel>(s);
    label->setCaption(str(s, kName, kError));
    bounds(label, s, 20, 40);
    label->setFont(font(s, kFontSize, defaultFont(kArial, 10)));
    label->setWordWrap(boolean(s, QStringLiteral("WordWrap"), true));
    // As the inspector pairs them: a wrapping label keeps its size.
    label->setAutoSize(!label->WordWrap());
    label->setLayout(TTextLayout(ordinal(s, QStringLiteral("Layout"), tlTop, tlBottom + 1)));
    label->setAlignment(TAlignment(ordinal(s, kAlignment, taRightJustify, taCenter + 1)));
    label->setTransparent(true);
}

void TControlReader::LoadDBLabel(const QString &s)
{
    auto *label = create<TDBLabel>(s);
    label->setCaption(str(s, kName, kError));
    label->setDataField(label->Caption());
    label->setDataSource(str(s, QStringLiteral("DB")));
    label->setHelpKeyword(str(s, kDesc));
    label->setTag(integer(s, kTyp, 0));
    label->setHint(str(s, kLaenge, QStringLiteral("1")));
    bounds(label, s, 20, 40);
    label->setFont(font(s, kFontSize, defaultFont(kArial, 10)));
    label->setWordWrap(boolean(s, QStringLiteral("WordWrap"), true));
    label->setAutoSize(!label->WordWrap());
    label->setAlignment(TAlignment(ordinal(s, kAlignment, taRightJustify, taCenter + 1)));
    label->setBrowserEdit(boolean(s, QStringLiteral("BrowserEdit"), false));
    label->setTransparent(true);
}

void TControlReader::LoadField(const QString &s)
{
    auto *edit = create<TcxTextEdit>(s);
    styled(edit);
    edit->setText(str(s, kName, kError));
    edit->setHelpKeyword(str(s, kDesc));
    edit->setHint(str(s, QStringLiteral("MaskEdit")));
    edit->setMaxLength(integer(s, kLaenge, 0));
    edit->setTag(integer(s, kTyp, 0));
    bounds(edit, s, 0, 0);
    edit->setColor(color(s, kColor, Colors::clWindow));
    edit->setTabStop(boolean(s, kPflicht, false));
    edit->setReadOnly(boolean(s, QStringLiteral("ReadOnly"), false));
    readTabOrder(edit, s);
    edit->setFont(font(s, kFSize, defaultFont(kArial, 10)));
    edit->setCharCase(TEditCharCase(ordinal(s, QStringLiteral("CharCase"), ecNormal, ecLowerCase + 1)));
}

void TControlReader::LoadLField(const QString &s)
{
    auto *lookup = create<TcxDBPopupEdit>(s);
    styled(lookup);
    lookup->setDataField(str(s, kName, kError));
    lookup->setText(lookup->DataField());
    lookup->setEditMask(str(s, QStringLiteral("DataBase"), kError));
    lookup->setHelpKeyword(str(s, kDesc));
    lookup->setPopupSizeable(boolean(s, QStringLiteral("PickList"), false));
    lookup->setMaxLength(integer(s, kLaenge, 0));
    lookup->setTag(integer(s, kTyp, 0));
    bounds(lookup, s, 0, 0);
    lookup->setColor(color(s, kColor, Colors::clWindow));
    readTabOrder(lookup, s);
    lookup->setReadOnly(boolean(s, QStringLiteral("Readonly"), false));
    lookup->setFont(font(s, kFSize, defaultFont(kArial, 10)));
    lookup->setCharCase(TEditCharCase(ordinal(s, QStringLiteral("CharCase"), ecNormal, ecLowerCase + 1)));
    lookup->setHint(str(s, QStringLiteral("MaskEdit")));
}

void TControlReader::LoadCField(const QString &s)
{
    auto *combo = create<TcxComboBox>(s);
    styled(combo);
    combo->setText(str(s, kName, kError));
    combo->setHelpKeyword(str(s, kDesc));
    combo->setMaxLength(integer(s, kLaenge, 0));
    combo->setTag(integer(s, kTyp, 0));
    bounds(combo, s, 0, 0);
    combo->setColor(color(s, kColor, Colors::clWindow));
    readTabOrder(combo, s);
    combo->setHint(str(s, QStringLiteral("PullDown")));
    combo->setTabStop(boolean(s, kPflicht, false));
    // Unlike every other kind, a combo box without the key is read-only.
    combo->setReadOnly(boolean(s, QStringLiteral("Readonly"), true));
    combo->setFont(font(s, kFSize, defaultFont(kArial, 10)));
}

void TControlReader::LoadMemo(const QString &s)
{
    auto *memo = create<TcxMemo>(s);
    styled(memo);
    memo->setText(str(s, kName, kError));
    memo->setHelpKeyword(str(s, kDesc));
    bounds(memo, s, 0, 0);
    memo->setColor(color(s, kColor, Colors::clWindow));
    memo->setFont(font(s, kFSize, defaultFont(kArial, 10)));
    readTabOrder(memo, s);
    memo->setTabStop(boolean(s, kPflicht, false));
    memo->setTag(boolean(s, QStringLiteral("Plaintext"), false) ? 1 : 0);
    memo->setScrollBars(TScrollStyle(ordinal(s, QStringLiteral("ScrollBars"), ssNone, ssBoth + 1)));
}

void TControlReader::LoadCheckBox(const QString &s)
{
    auto *check = create<TcxDBCheckBox>(s);
    styled(check);
    check->setCaption(str(s, kName, kError));
    check->setHelpKeyword(str(s, kDesc));
    check->setDataField(str(s, QStringLiteral("Datafield")));
    bounds(check, s, 0, 0);
    readTabOrder(check, s);
    check->setHint(str(s, QStringLiteral("Funktion")));
    check->setFont(font(s, kFSize, defaultFont(kArial, 10)));
    check->setChecked(boolean(s, QStringLiteral("Checked"), false));
    check->setValueChecked(str(s, QStringLiteral("True"), QStringLiteral("Ja")));
    check->setValueUnchecked(str(s, QStringLiteral("False"), QStringLiteral("Nein")));
    check->setAlignment(TAlignment(ordinal(s, kAlignment, taLeftJustify, taCenter + 1)));
}

void TControlReader::LoadBevel(const QString &s)
{
    auto *bevel = create<TBevel>(s);
    bounds(bevel, s, 0, 0);
    bevel->setShape(TBevelShape(ordinal(s, kTyp, bsBox, bsSpacer + 1)));
}

void TControlReader::LoadImage(const QString &s)
{
    auto *image = create<TImageAspect>(s);
    image->setFileName(str(s, QStringLiteral("FileName")));
    bounds(image, s, 0, 0);
}

void TControlReader::LoadShape(const QString &s)
{
    auto *shape = create<TShape>(s);
    bounds(shape, s, 0, 0);
    shape->setShape(TShapeType(ordinal(s, kTyp, stRectangle, stCircle + 1)));
    shape->setBrushColor(color(s, QStringLiteral("FColor"), TColor(0)));
    shape->setPenColor(color(s, QStringLiteral("FPColor"), TColor(0)));
}

void TControlReader::LoadButton(const QString &s)
{
    auto *button = create<TMaskBtn>(s);
    button->setCaption(str(s, kName, kError));
    bounds(button, s, 0, 0);
    button->setTag(integer(s, QStringLiteral("Action"), 0));
    readTabOrder(button, s);
    button->setHint(str(s, QStringLiteral("PrgRun")));
    const TFont f = font(s, kFSize, defaultFont(kArial, 10));
    button->setFont(f);
    button->setNormalTextColor(f.Color);
    button->setProgExt(str(s, QStringLiteral("Ext")));
    button->setZuweisMaske(str(s, QStringLiteral("ZMaske")));
    button->setZuweisFeld(str(s, QStringLiteral("ZFeld")));
    button->setZuweisFeldEx(str(s, QStringLiteral("ZFeldEx")));
    button->setIndexFeld(str(s, QStringLiteral("ZIndex")));
    button->setSectionExt(str(s, QStringLiteral("Ext_Section")));
    button->setRegelFeld(str(s, QStringLiteral("RuleField")));
    button->setRegelAusdruck(str(s, QStringLiteral("RuleExpression")));
    button->setRegelFarbe(str(s, QStringLiteral("RuleColor"), QStringLiteral("clRed")));
    button->setRegelZeile(boolean(s, QStringLiteral("RuleArea"), false));
    button->setMargin(integer(s, QStringLiteral("Margin"), -1));
    button->setRunAs(boolean(s, QStringLiteral("RunAs"), false));
}

void TControlReader::LoadBrowser(const QString &s)
{
    auto *grid = create<TDBGrid>(s);
    // A column to show while designing.
    grid->addColumn(QStringLiteral("Spaltentitel"), 120);
    bounds(grid, s, 0, 0);
    const TFont current = grid->Font();
    grid->setFont(font(s, kFSize, current));
    grid->setTitleFont(font(s, QStringLiteral("HFSize"), grid->TitleFont(), QStringLiteral("HFName"),
                            QStringLiteral("HFColor"), QStringLiteral("HFStyle")));
    // The grid's scroll bar choice is kept in Tag, the structure browser flag
    // in TabStop and its field list in Hint.
    const int scrollBars = integer(s, QStringLiteral("Scrollbars"), 3);
    grid->setTag(integer(s, QStringLiteral("Scrolbars"), scrollBars));
    grid->setTabStop(boolean(s, QStringLiteral("Treelist"), false));
    grid->setReadOnly(boolean(s, QStringLiteral("ReadOnly"), false));
    grid->setAlign(TAlign(ordinal(s, QStringLiteral("Ausrichtung"), alNone, alCustom + 1)));
    grid->setHint(str(s, QStringLiteral("DataBase")));
}

void TControlReader::LoadTreeList(const QString &s)
{
    auto *tree = create<TcxDBTreeList>(s);
    tree->setStateIndexField(str(s, QStringLiteral("Index")));
    tree->setKeyField(str(s, QStringLiteral("DBIndex")));
    tree->setKeyField(str(s, QStringLiteral("Keyfield"), QStringLiteral("QXID")));
    tree->setParentField(str(s, QStringLiteral("ParentField"), QStringLiteral("QXParent")));
    tree->setHint(str(s, QStringLiteral("Felder")));
    tree->setHelpKeyword(str(s, QStringLiteral("DB")));
    tree->setAlign(TAlign(ordinal(s, kAlignment, alNone, alCustom + 1)));
    tree->setDragDrop(boolean(s, QStringLiteral("DragDrop"), false));
    bounds(tree, s, 0, 0);
    tree->setFont(font(s, kFSize, tree->Font()));
}

void TControlReader::LoadStringGrid(const QString &s)
{
    auto *grid = create<TStringGrid>(s);
    bounds(grid, s, 0, 0);
    grid->setAlign(TAlign(ordinal(s, kAlignment, alNone, alCustom + 1)));
    grid->setFont(font(s, kFSize, grid->Font()));
    grid->setHint(str(s, QStringLiteral("Felder")));
}

void TControlReader::LoadRadioGroup(const QString &s)
{
    auto *group = create<TDBRadioGroup>(s);
    group->setDataField(str(s, QStringLiteral("Datafield")));
    group->setTag(integer(s, kLaenge, 10));
    group->setCaption(str(s, QStringLiteral("Caption")));
    group->setHelpKeyword(str(s, kDesc));
    bounds(group, s, 0, 0);
    // The size comes from "FSize" although "FontSize" is what is written.
    group->setFont(font(s, kFSize, defaultFont(kArial, 10)));
    group->setTabStop(boolean(s, kPflicht, false));
    group->setItems(CommaText::split(str(s, QStringLiteral("Items"))));
    group->setColumns(std::max(1, integer(s, QStringLiteral("Columns"), 1)));
}

void TControlReader::LoadView(const QString &viewSection)
{
    if (integer(viewSection, kLeft, -1) < 0)
        return;
    const QString tabSection = QStringLiteral("Tab");
    auto *view = create<TImage>(viewSection, QStringLiteral("View"));
    bounds(view, viewSection, 100, 100);
    view->setHint(str(viewSection, QStringLiteral("Hint")));

    auto *tabs = create<TTabSet>(tabSection, QStringLiteral("Tab"));
    bounds(tabs, tabSection, 100, 100);
    tabs->setFont(font(tabSection, kFSize, defaultFont(kArial, 10)));
    // The file types are not stored; the strip always offers these.
    tabs->setTabs({QStringLiteral(".DWG"), QStringLiteral(".DXF"), QStringLiteral(".JPG"), QStringLiteral(".TGA")});
}

void TControlReader::finish()
{
    // The controls keep the order they were made in (kind by kind, by
    // number), which is the order their names were given in and the order
    // saving numbers them: a Parent key read back names the same control.
    // Tab orders go to their stored places now, all at once.
    ControlLayout::endLoading(m_controls);
}
