// The mask window's event handlers: activation, caption, close query, and
// what its designer reports.
#include <QCloseEvent>
#include <QMdiArea>

#include "FormDesigner.h"
#include "MaskHost.h"
#include "Maske.h"
#include "UndoRedo.h"
#include "UserDialogs.h"

void TMaske::wireDesigner()
{
    TFormDesigner *d = m_formDesigner2;
    d->OnChange = [this](QObject *) { FormDesigner2Change(); };
    d->OnSelectControl = [this](QObject *, QWidget *c) { FormDesigner2SelectControl(c); };
    // The tool bars and the inspector also follow a selection that grows or
    // shrinks around the same current control.
    d->OnSelectionChange = [this](QObject *) { FormDesigner2SelectControl(m_formDesigner2->currentControl()); };
    d->OnMoveSizeControl = [this](QObject *, QWidget *c) { FormDesigner2MoveSizeControl(c); };
    d->OnPlaceComponent = [this](QObject *, QObject *) { FormDesigner2PlaceComponent(); };
    d->OnDeleteControl = [this](QObject *, QWidget *c) { FormDesigner2DeleteControl(c); };
    d->OnKeyDown = [this](QObject *, int &key, Qt::KeyboardModifiers shift) { FormDesigner2KeyDown(key, shift); };
    d->OnMessage = [this](QObject *, TDesignMessage &msg) { FormDesigner2Message(msg); };
}

void TMaske::showEvent(QShowEvent *event)
{
    QMdiSubWindow::showEvent(event);
    if (!m_shownOnce) {
        m_shownOnce = true;
        FormShow();
    }
}

void TMaske::resizeEvent(QResizeEvent *event)
{
    QMdiSubWindow::resizeEvent(event);
    FormResize();
}

void TMaske::closeEvent(QCloseEvent *event)
{
    if (!FormCloseQuery()) {
        event->ignore();
        return;
    }
    FormClose();
    QMdiSubWindow::closeEvent(event);
}

void TMaske::FormShow()
{
    if (m_host)
        m_host->showObjectInspector();
}

void TMaske::FormActivate()
{
    if (m_host)
        m_host->applyDesignerSettings(m_formDesigner2);
    m_formDesigner2->setActive(true);
    if (m_host) {
        m_host->UpdateComponents();
        m_host->maskActivated(this, m_cxStyleController);
    }
}

void TMaske::FormResize()
{
    // The size a window of this size leaves for the mask, then its title.
    setWindowTitle(QStringLiteral("%1 x %2   %3").arg(width() - 16).arg(height() - 39).arg(m_titel));
}

bool TMaske::FormCloseQuery()
{
    if (!m_modified)
        return true;
    const QString text = QStringLiteral("Maske \"") + windowTitle() + QStringLiteral("\" wurde verändert!")
                         + QStringLiteral("\n\nSollen die Änderungen gespeichert werden?");
    switch (UserDialogs::instance().messageDlg(this, text, mtWarning, mbYes | mbNo | mbAbort)) {
    case mrYes:
        if (m_host)
            m_host->FileSaveItemClick();
        return true;
    case mrNo:
        return true;
    default:
        return false;
    }
}

void TMaske::FormClose()
{
    m_nameList1.clear();
    m_nameList2.clear();
    if (m_host)
        m_host->maskClosed(this);
}

void TMaske::FormDesigner2Change()
{
    m_modified = true;
}

void TMaske::FormDesigner2SelectControl(QWidget *control)
{
    if (m_host)
        m_host->FormDesigner1SelectControl(this, control);
}

void TMaske::FormDesigner2MoveSizeControl(QWidget *control)
{
    // The position fields show a single control; a group has no one position.
    if (m_formDesigner2->ControlCount() >= 2 || !control)
        return;
    if (m_host)
        m_host->setPositionFields(control->y(), control->height(), control->x(), control->width());
    SaveUndo(m_formDesigner2);
}

void TMaske::FormDesigner2PlaceComponent()
{
    SaveUndo(m_formDesigner2);
}

void TMaske::FormDesigner2DeleteControl(QWidget *control)
{
    // The engine names the control that left the selection; without one
    // something was deleted that the engine could not name.
    if (!control)
        UserDialogs::instance().messageDlg(this, QStringLiteral("Gelöscht"), mtInformation, mbOK);
}

void TMaske::FormDesigner2KeyDown(int &key, Qt::KeyboardModifiers shift)
{
    if (!m_host)
        return;
    const Qt::KeyboardModifiers mods = shift & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    if (key == Qt::Key_Insert && mods == Qt::ShiftModifier)
        m_host->PasteItemClick();
    else if (key == Qt::Key_Insert && mods == Qt::ControlModifier)
        m_host->CopyItemClick();
    else if (key == Qt::Key_Delete && mods == Qt::ShiftModifier)
        m_host->CutItemClick();
    else if (key == Qt::Key_Delete && mods == Qt::NoModifier)
        m_host->Lschen1Click();
    else
        return;
    // Handled here: the key must not reach a control that may be gone.
    key = 0;
}
