// The design tools of the main window: the palette, the position and font
// tool bars, the context menu, delete, lock and the clipboard commands, and
// what the mask windows ask of the main window.
#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QFontComboBox>
#include <QFontInfo>
#include <QMdiSubWindow>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>

#include "FormAlignment.h"
#include "Containers.h"
#include "Control.h"
#include "Edits.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "Grids.h"
#include "MainForm.h"

#include <QSignalBlocker>
#include "Maske.h"
#include "MyBtn.h"
#include "ObjectInspector.h"
#include "RunSession.h"
#include "SetupDialog.h"
#include "SizeForm.h"
#include "MemoDialog.h"
#include "StyleDlg.h"

TFormDesigner *TMainForm::activeDesigner() const
{
    // A mask in run mode has no design tools: cut, paste, delete, lock and
    // the alignment commands leave its controls alone.
    TMaske *mask = activeMask();
    return mask && !TRunSession::of(mask->document()) ? mask->FormDesigner2() : nullptr;
}

bool TMainForm::runEngineCommand(const std::function<void()> &command)
{
    // The one place where the engine's errors meet the user: a bad clipboard
    // or layout must not unwind through the event loop.
    try {
        command();
        return true;
    } catch (const EFormDesigner &error) {
        UserDialogs::instance().messageDlg(this, error.message(), mtError, mbOK);
        return false;
    }
}

void TMainForm::createDesignTools()
{
    m_formDesigner1 = new TFormDesigner(this);
    m_formDesigner1->setObjectName(QStringLiteral("FormDesigner1"));
    m_frmSetup = new TfrmSetup(this);
    m_frmSetup->activeDesigner = [this] { return activeDesigner(); };
    m_frmSetup->mainDesigner = [this] { return m_formDesigner1; };
    // The tool windows made at start-up, in this order: inspector, alignment.
    m_objInsp = new TObjInsp(this);
    m_objInsp->baseFolder = [this] { return BaseFolder(); };
    m_formAlignment = new TFormAlignment(this);
    m_memoDlg = new TMemoDlg(this);
    m_formAlignment->activeDesigner = [this]() -> TCustomFormDesigner * { return activeDesigner(); };

    connect(m_paletteGroup, &QActionGroup::triggered, this, &TMainForm::ToolButtonsClick);
    for (QSpinBox *spin : {dxBarSpinLeft.data(), dxBarSpinTop.data(), dxBarSpinWidth.data(), dxBarSpinHeight.data()})
        connect(spin, qOverload<int>(&QSpinBox::valueChanged), this, [this, spin] { positionSpinChange(spin); });
    connect(dxBarSpinTabOrder, qOverload<int>(&QSpinBox::valueChanged), this, &TMainForm::tabOrderSpinChange);
    connect(dxBarFontNameCombo1, &QFontComboBox::currentFontChanged, this, &TMainForm::fontToolChange);
    connect(dxBarFontSize1, &QComboBox::currentTextChanged, this, &TMainForm::fontToolChange);
    connect(dxBarColorCombo1, qOverload<int>(&QComboBox::currentIndexChanged), this, &TMainForm::fontToolChange);
    for (QToolButton *b : {dxBarButtonBold.data(), dxBarButtonItalic.data(), dxBarButtonUnderline.data()})
        connect(b, &QToolButton::toggled, this, &TMainForm::fontToolChange);

    connect(CutItem, &QAction::triggered, this, &TMainForm::CutItemClick);
    connect(CopyItem, &QAction::triggered, this, &TMainForm::CopyItemClick);
    connect(PasteItem, &QAction::triggered, this, &TMainForm::PasteItemClick);
    connect(DeleteItem, &QAction::triggered, this, &TMainForm::Lschen1Click);
    LockItem->setCheckable(true);
    connect(LockItem, &QAction::triggered, this, [this] { dxBarLockClick(true); });
    connect(SettingsItem, &QAction::triggered, this, &TMainForm::SettingsItemClick);
    connect(StyleItem, &QAction::triggered, this, &TMainForm::StyleItemClick);
    ObjectInspectorItem->setEnabled(true);
    connect(ObjectInspectorItem, &QAction::triggered, this, &TMainForm::showObjectInspector);

    // The context menu of the masks' designers.
    m_popupMenu1 = new QMenu(this);
    m_popupMenu1->setObjectName(QStringLiteral("PopupMenu1"));
    const struct
    {
        const char *name;
        const char *caption;
        int tag;
    } items[] = {
        {"dxBarButton1", QT_TR_NOOP("An &Raster anordnen"), 1},
        {"dxBarButton2", QT_TR_NOOP("In &Vordergrund stellen"), 2},
        {"dxBarButton3", QT_TR_NOOP("In &Hintergrund stellen"), 3},
        {"dxBarButton5", QT_TR_NOOP("G&röße funktionen..."), 5},
        {"dxBarButton6", QT_TR_NOOP("Raster &Optionen..."), 6},
        {"dxBarButton4", QT_TR_NOOP("&Anordungs funktionen..."), 7},
    };
    for (const auto &item : items) {
        QAction *a = m_popupMenu1->addAction(tr(item.caption));
        a->setObjectName(QLatin1String(item.name));
        a->setData(item.tag);
        connect(a, &QAction::triggered, this, [this, tag = item.tag] { PopItemsClick(tag); });
    }
    UpdateBtn();
}

void TMainForm::ToolButtonsClick(QAction *button)
{
    m_armedTool = quint8(button->data().toInt());
    m_armedButton = button;
    if (m_armedTool == 0)
        return;
    // The next click on the mask goes to its placement, not to selecting.
    TFormDesigner *designer = activeDesigner();
    if (designer && m_heldDesigner != designer) {
        if (m_heldDesigner)
            m_heldDesigner->Unlock();
        designer->Lock();
        m_heldDesigner = designer;
    }
}

void TMainForm::placementRefused(TMaske *)
{
    m_armedTool = 0;
    if (QAction *arrow = m_paletteGroup->actions().value(0))
        arrow->setChecked(true);
}

void TMainForm::placementDone(TMaske *mask)
{
    placementRefused(mask);
    m_readingStates = false;
    ReadStates();
    UpdateComponents();
    UpdateBtn();
    if (m_heldDesigner) {
        m_heldDesigner->Unlock();
        m_heldDesigner = nullptr;
    }
}

namespace {
// The kinds whose font the font tool bar edits.
bool hasToolFont(QWidget *w)
{
    return qobject_cast<TcxTextEdit *>(w) || qobject_cast<TcxComboBox *>(w) || qobject_cast<TcxMemo *>(w)
           || qobject_cast<TcxDBPopupEdit *>(w) || qobject_cast<TcxDBCheckBox *>(w) || qobject_cast<TLabel *>(w)
           || qobject_cast<TMaskBtn *>(w) || qobject_cast<TPanel *>(w) || qobject_cast<TTabSet *>(w)
           || qobject_cast<TDBGrid *>(w) || qobject_cast<TcxDBTreeList *>(w) || qobject_cast<TStringGrid *>(w)
           || qobject_cast<TDBRadioGroup *>(w);
}

bool fontToolsApply(QWidget *w)
{
    return w && !qobject_cast<TBevel *>(w) && !qobject_cast<TShape *>(w) && !qobject_cast<TAdvOfficePage *>(w)
           && !qobject_cast<TAdvOfficePager *>(w);
}
} // namespace

void TMainForm::WriteFontStates(QWidget *control)
{
    TControl *c = TControl::from(control);
    if (!c || !hasToolFont(control))
        return;
    TFont font = c->Font();
    // The family the box shows, which for a generic name ("Sans Serif") is
    // the one it stands for: the file keeps what the user saw.
    font.Name = dxBarFontNameCombo1->currentText().isEmpty() ? QFontInfo(dxBarFontNameCombo1->currentFont()).family()
                                                             : dxBarFontNameCombo1->currentText();
    if (dxBarColorCombo1->currentIndex() >= 0)
        font.Color = TColor(dxBarColorCombo1->currentData().toInt());
    bool ok = false;
    const int size = dxBarFontSize1->currentText().toInt(&ok);
    if (ok && size > 0)
        font.Size = size;
    // Bold, italic and underline one at a time; strike-out stays as it is.
    const auto set = [&font](TFontStyle style, bool on) {
        font.Style = on ? (font.Style | style) : (font.Style & ~TFontStyles(style));
    };
    set(fsBold, dxBarButtonBold->isChecked());
    set(fsItalic, dxBarButtonItalic->isChecked());
    set(fsUnderline, dxBarButtonUnderline->isChecked());
    c->setFont(font);
    m_lastFont = font;
    m_hasLastFont = true;
    if (auto *button = qobject_cast<TMaskBtn *>(control))
        button->setNormalTextColor(font.Color);
    if (TFormDesigner *designer = activeDesigner())
        designer->UpdateGrabs();
}

bool TMainForm::lastFont(TFont &font) const
{
    if (m_hasLastFont)
        font = m_lastFont;
    return m_hasLastFont;
}

void TMainForm::ReadStates()
{
    TFormDesigner *designer = activeDesigner();
    QWidget *current = designer ? designer->currentControl() : nullptr;
    TControl *c = TControl::from(current);
    if (!c)
        return;
    m_readingStates = true;
    dxBarSpinLeft->setValue(c->Left());
    dxBarSpinTop->setValue(c->Top());
    dxBarSpinWidth->setValue(c->Width());
    dxBarSpinHeight->setValue(c->Height());
    dxBarSpinTabOrder->setValue(std::max(0, c->TabOrder()));
    if (hasToolFont(current)) {
        const TFont font = c->Font();
        dxBarFontNameCombo1->setCurrentFont(QFont(font.Name));
        dxBarFontSize1->setCurrentText(QString::number(font.Size));
        const int colour = dxBarColorCombo1->findData(font.Color.value());
        if (colour >= 0)
            dxBarColorCombo1->setCurrentIndex(colour);
        dxBarButtonBold->setChecked(font.Style & fsBold);
        dxBarButtonItalic->setChecked(font.Style & fsItalic);
        dxBarButtonUnderline->setChecked(font.Style & fsUnderline);
    }
    m_readingStates = false;
}

void TMainForm::UpdateBtn()
{
    TFormDesigner *designer = activeDesigner();
    QWidget *current = designer ? designer->currentControl() : nullptr;
    const bool fonts = fontToolsApply(current);
    for (QWidget *w : std::initializer_list<QWidget *>{dxBarFontNameCombo1, dxBarFontSize1, dxBarColorCombo1,
                                                       dxBarButtonBold, dxBarButtonItalic, dxBarButtonUnderline})
        w->setEnabled(fonts);
    for (QWidget *w : std::initializer_list<QWidget *>{dxBarSpinLeft, dxBarSpinTop, dxBarSpinWidth, dxBarSpinHeight})
        w->setEnabled(current != nullptr);
    const TControl *c = TControl::from(current);
    dxBarSpinTabOrder->setEnabled(c && c->TabOrder() >= 0);
    StyleItem->setEnabled(m_currentStyleController != nullptr && activeMask() != nullptr);
    const bool selected = designer && designer->ControlCount() > 0;
    CutItem->setEnabled(selected);
    CopyItem->setEnabled(selected);
    DeleteItem->setEnabled(selected);
    LockItem->setEnabled(selected);
    PasteItem->setEnabled(designer != nullptr);
}

void TMainForm::FormDesigner1SelectControl(TMaske *, QWidget *control)
{
    TFormDesigner *designer = activeDesigner();
    if (designer && designer->currentControl() && designer->ControlCount() == 1)
        ReadStates();
    UpdateBtn();
    // The inspector follows the selection too.
    m_objInsp->selectControl(control);
}

void TMainForm::setPositionFields(int top, int height, int left, int width)
{
    m_readingStates = true;
    dxBarSpinTop->setValue(top);
    dxBarSpinHeight->setValue(height);
    dxBarSpinLeft->setValue(left);
    dxBarSpinWidth->setValue(width);
    m_readingStates = false;
}

void TMainForm::positionSpinChange(QSpinBox *spin)
{
    TFormDesigner *designer = activeDesigner();
    if (m_readingStates || !designer || !designer->currentControl())
        return;
    // Every selected control takes the one value: a common left, top, width or height.
    const int tag = spin->property("Tag").toInt();
    for (QWidget *w : designer->selection()) {
        TControl *c = TControl::from(w);
        if (!c)
            continue;
        switch (tag) {
        case 1: c->setLeft(spin->value()); break;
        case 2: c->setTop(spin->value()); break;
        case 3: c->setWidth(spin->value()); break;
        case 4: c->setHeight(spin->value()); break;
        default: break;
        }
    }
    designer->UpdateGrabs();
    if (TMaske *mask = activeMask())
        mask->setModified(true);
}

void TMainForm::tabOrderSpinChange()
{
    TFormDesigner *designer = activeDesigner();
    if (m_readingStates || !designer || !designer->currentControl() || !dxBarSpinTabOrder->isEnabled())
        return;
    if (TControl *c = TControl::from(designer->currentControl()))
        c->setTabOrder(dxBarSpinTabOrder->value());
}

void TMainForm::fontToolChange()
{
    TFormDesigner *designer = activeDesigner();
    if (m_readingStates || !designer)
        return;
    for (QWidget *w : designer->selection())
        WriteFontStates(w);
    if (TMaske *mask = activeMask(); mask && designer->ControlCount() > 0)
        mask->setModified(true);
}

void TMainForm::applyDesignerSettings(TCustomFormDesigner *designer)
{
    if (auto *d = qobject_cast<TFormDesigner *>(designer))
        m_frmSetup->applyTo(d);
}

void TMainForm::maskActivated(TMaske *mask, TcxEditStyleController *styleController)
{
    m_currentStyleController = styleController;
    // Activation switches the designer on; a mask in run mode stays without it.
    if (TRunSession::of(mask->document()))
        mask->FormDesigner2()->setActive(false);
    m_objInsp->setActiveMask(mask);
    UpdateBtn();
    // The list shows what the mask is designed for.
    showResolution(QStringLiteral("%1x%2").arg(mask->document()->ScreenWidth()).arg(mask->document()->ScreenHeight()));
}

void TMainForm::UpdateComponents()
{
    if (TMaske *mask = activeMask(); mask && m_objInsp->activeMask() != mask)
        m_objInsp->setActiveMask(mask);
    else
        m_objInsp->UpdateComponents();
}

void TMainForm::showObjectInspector()
{
    m_objInsp->show();
    m_objInsp->raise();
}

void TMainForm::maskClosed(TMaske *mask)
{
    if (m_heldDesigner == mask->FormDesigner2())
        m_heldDesigner = nullptr;
    // The inspector lists nothing and shows its first page again.
    if (m_objInsp->activeMask() == mask)
        m_objInsp->setActiveMask(nullptr);
}

void TMainForm::CutItemClick()
{
    if (TFormDesigner *designer = activeDesigner()) {
        runEngineCommand([designer] { designer->CutToClipboard(); });
        UpdateComponents();
        UpdateBtn();
    }
}

void TMainForm::CopyItemClick()
{
    if (TFormDesigner *designer = activeDesigner())
        runEngineCommand([designer] { designer->CopyToClipboard(); });
    UpdateBtn();
}

void TMainForm::PasteItemClick()
{
    // The inspector's list is not rebuilt here; the next placement, cut,
    // delete or activation does it.
    if (TFormDesigner *designer = activeDesigner())
        runEngineCommand([designer] { designer->PasteFromClipboard(); });
    if (TMaske *mask = activeMask())
        mask->document()->adoptEditStyle();
    UpdateBtn();
}

void TMainForm::Lschen1Click()
{
    TFormDesigner *designer = activeDesigner();
    if (!designer)
        return;
    // Always the first of the selection, until none is selected.
    while (designer->ControlCount() > 0)
        delete designer->Controls(0);
    if (TMaske *mask = activeMask())
        mask->setModified(true);
    UpdateComponents();
    UpdateBtn();
}

void TMainForm::dxBarLockClick(bool fromLockButton)
{
    if (!fromLockButton)
        LockItem->setChecked(!LockItem->isChecked());
    TFormDesigner *designer = activeDesigner();
    if (!designer)
        return;
    QStringList names = designer->LockedControls();
    // The loop is bounded by the main window's count of child controls, not
    // by the selection; selected controls beyond it stay as they are.
    const int bound = int(findChildren<QWidget *>(Qt::FindDirectChildrenOnly).size());
    for (int i = 0; i < bound; ++i) {
        if (i >= designer->ControlCount())
            continue;
        const QString name = designer->Controls(i)->objectName();
        if (LockItem->isChecked() && !names.contains(name))
            names << name;
        else if (!LockItem->isChecked())
            names.removeAll(name);
    }
    designer->setLockedControls(names);
}

void TMainForm::PopItemsClick(int tag)
{
    TFormDesigner *designer = activeDesigner();
    if (!designer)
        return;
    QWidget *current = designer->currentControl();
    switch (tag) {
    case 1:
        runEngineCommand([designer] { designer->AlignToGrid(); });
        break;
    case 2:
        // Within its own layer: the grid stays below, the handles above.
        ControlLayout::bringToFront(current);
        break;
    case 3:
        ControlLayout::sendToBack(current);
        break;
    case 4:
        runEngineCommand([designer] { designer->AlignDialog(); });
        break;
    case 5:
        runEngineCommand([this, designer] { runSizeDialog(this, designer); });
        break;
    case 6:
        break; // deliberately without effect in this menu
    case 7:
        m_formAlignment->show();
        m_formAlignment->raise();
        break;
    default:
        break;
    }
}

void TMainForm::SettingsItemClick()
{
    // Confirmed settings show at once on every open mask, not only on the
    // next activation.
    if (UserDialogs::instance().execDialog(m_frmSetup) != QDialog::Accepted)
        return;
    for (TMaske *mask : MDIChildren()) {
        m_frmSetup->applyTo(mask->FormDesigner2());
        mask->FormDesigner2()->UpdateGrabs();
    }
}

void TMainForm::StyleItemClick()
{
    // Works live on the edit style of the mask activated last.
    if (!m_currentStyleController)
        return;
    TChangeStyle dialog(this);
    dialog.setStyleController(m_currentStyleController);
    UserDialogs::instance().execDialog(&dialog);
}
