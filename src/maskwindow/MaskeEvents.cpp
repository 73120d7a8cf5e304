// The mask window's event handlers: activation, caption, close query, what
// its designer reports, and the mouse on its page controls.
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMouseEvent>
#include <QPointer>
#include <QTabBar>
#include <functional>

#include "Containers.h"
#include "FormDesigner.h"
#include "MaskHost.h"
#include "Maske.h"
#include "UndoRedo.h"
#include "UserDialogs.h"

namespace {

// Hands the mouse events of the mask's page controls (and of their tab
// strips) to the mask's handlers, and keeps the one drag that can run.
//
// The drag is tracked here rather than run as a QDrag: QDrag::exec spins a
// modal loop of its own that waits for the platform's button release, which
// scripted input and the offscreen platform never deliver. What the drag of
// a page control achieves is moving it on its parent, so the pager follows
// the mouse from the first move with the left button held and stays where
// the button comes up.
class TPagerDrag : public QObject
{
public:
    explicit TPagerDrag(QObject *parent)
        : QObject(parent)
    {
        setObjectName(QStringLiteral("PagerDrag"));
    }
    ~TPagerDrag() override { end(); }

    // Returns true when the event is used up.
    std::function<bool(TAdvOfficePager *, QWidget *, QMouseEvent *)> handler;
    QPointer<TAdvOfficePager> pager;
    QPoint grab;   // where the pager was taken, in its own coordinates
    QPoint origin; // where it stood when the drag began

    void begin(TAdvOfficePager *p, const QPoint &global)
    {
        pager = p;
        grab = p->mapFromGlobal(global);
        origin = p->pos();
        QGuiApplication::setOverrideCursor(Qt::DragMoveCursor);
        m_cursor = true;
        // A pager deleted mid-drag must not leave the drag cursor behind.
        m_destroyed = connect(p, &QObject::destroyed, this, [this] { end(); });
    }
    void end()
    {
        pager = nullptr;
        disconnect(m_destroyed);
        if (m_cursor)
            QGuiApplication::restoreOverrideCursor();
        m_cursor = false;
    }
    // Moves the pager so that the point it was taken at is under the mouse,
    // kept inside its parent.
    void follow(const QPoint &global) const
    {
        QWidget *parent = pager ? pager->parentWidget() : nullptr;
        TControl *c = TControl::from(pager.data());
        if (!parent || !c || c->Align() != alNone) // an aligned pager's place is its alignment's
            return;
        QPoint to = parent->mapFromGlobal(global) - grab;
        to.setX(qBound(0, to.x(), qMax(0, parent->width() - pager->width())));
        to.setY(qBound(0, to.y(), qMax(0, parent->height() - pager->height())));
        if (to != pager->pos())
            c->setBounds(to.x(), to.y(), pager->width(), pager->height());
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if ((event->type() != QEvent::MouseMove && event->type() != QEvent::MouseButtonRelease)
            || !watched->isWidgetType() || !handler)
            return false;
        auto *target = static_cast<QWidget *>(watched);
        auto *p = qobject_cast<TAdvOfficePager *>(target);
        if (!p) // the tab strip
            p = qobject_cast<TAdvOfficePager *>(target->parentWidget());
        return p && handler(p, target, static_cast<QMouseEvent *>(event));
    }

private:
    bool m_cursor = false;
    QMetaObject::Connection m_destroyed;
};

TPagerDrag *pagerDrag(const TMaske *mask)
{
    for (QObject *child : mask->children())
        if (auto *drag = dynamic_cast<TPagerDrag *>(child))
            return drag;
    return nullptr;
}

} // namespace

// Follows the designer's current control: whatever moves or sizes it (an
// inspector edit that refits a label, a font, the size dialog), the main
// window's position fields show where it is.
class TCurrentControlWatch : public QObject
{
public:
    explicit TCurrentControlWatch(QObject *parent) : QObject(parent)
    {
        setObjectName(QStringLiteral("CurrentControlWatch"));
    }

    std::function<void(QWidget *)> changed;

    void follow(QWidget *control)
    {
        if (m_control == control)
            return;
        if (m_control)
            m_control->removeEventFilter(this);
        m_control = control;
        if (control)
            control->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_control && (event->type() == QEvent::Move || event->type() == QEvent::Resize) && changed)
            changed(m_control);
        return false;
    }

private:
    QPointer<QWidget> m_control;
};

void TMaske::wireDesigner()
{
    TFormDesigner *d = m_formDesigner2;
    m_currentWatch = new TCurrentControlWatch(this);
    m_currentWatch->changed = [this](QWidget *c) {
        if (m_host && m_formDesigner2->ControlCount() == 1)
            m_host->setPositionFields(c->y(), c->height(), c->x(), c->width());
    };
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
        m_host->maskActivated(this, m_document->cxStyleController());
        // The tool bars show this mask's selection, not the last mask's.
        m_host->FormDesigner1SelectControl(this, m_formDesigner2->currentControl());
    }
}

void TMaske::FormResize()
{
    // The size a window of this size leaves for the mask, then its title.
    setWindowTitle(QStringLiteral("%1 x %2   %3").arg(width() - 16).arg(height() - 39).arg(m_document->Titel()));
}

bool TMaske::FormCloseQuery()
{
    if (!m_modified)
        return true;
    const QString text
        = tr("Maske \"%1\" wurde verändert!\n\nSollen die Änderungen gespeichert werden?").arg(windowTitle());
    switch (UserDialogs::instance().messageDlg(this, text, mtWarning, mbYes | mbNo | mbAbort)) {
    case mrYes:
        if (m_host)
            m_host->FileSaveItemClick();
        // A save that failed (or was not done) has told the user; closing
        // now would lose the changes.
        return !m_modified;
    case mrNo:
        return true;
    default:
        return false;
    }
}

void TMaske::FormClose()
{
    if (m_host)
        m_host->maskClosed(this);
}

void TMaske::FormDesigner2Change()
{
    m_modified = true;
}

void TMaske::FormDesigner2SelectControl(QWidget *control)
{
    m_currentWatch->follow(control);
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
        UserDialogs::instance().messageDlg(this, tr("Gelöscht"), mtInformation, mbOK);
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

// ---- page controls ----

void TMaske::wirePager(TAdvOfficePager *pager)
{
    if (!pager)
        return;
    TPagerDrag *drag = pagerDrag(this);
    if (!drag) {
        drag = new TPagerDrag(this);
        drag->handler = [this, drag](TAdvOfficePager *p, QWidget *target, QMouseEvent *e) {
            // While designing the engine has the mouse; a protected pager
            // works as at run time.
            if (m_formDesigner2->Active() && !m_formDesigner2->IsProtected(p))
                return false;
            const QPoint global = e->globalPosition().toPoint();
            if (e->type() == QEvent::MouseButtonRelease) {
                AdvOfficePager1MouseUp(p, e->button(), global);
                return false; // the tab strip finishes its click
            }
            // Moves over a page are the page's, not the pager's.
            if (target == p && !drag->pager) {
                QWidget *at = p->childAt(e->position().toPoint());
                if (at && at != p->tabBar() && !p->tabBar()->isAncestorOf(at))
                    return false;
            }
            AdvOfficePager1MouseMove(p, e->buttons(), global);
            return drag->pager == p;
        };
    }
    // Installing twice keeps one filter.
    pager->installEventFilter(drag);
    pager->tabBar()->installEventFilter(drag);
}

TAdvOfficePager *TMaske::draggedPager() const
{
    const TPagerDrag *drag = pagerDrag(this);
    return drag ? drag->pager.data() : nullptr;
}

void TMaske::AdvOfficePager1MouseMove(TAdvOfficePager *Sender, Qt::MouseButtons shift, const QPoint &pos)
{
    TPagerDrag *drag = pagerDrag(this);
    if (!drag)
        return;
    if (drag->pager) {
        if (drag->pager != Sender)
            return;
        if (shift & Qt::LeftButton)
            drag->follow(pos);
        else // the release went elsewhere: the drag ends where the mouse is
            AdvOfficePager1MouseUp(Sender, Qt::LeftButton, pos);
        return;
    }
    // At once, without waiting for the mouse to travel a threshold.
    if (shift & Qt::LeftButton)
        drag->begin(Sender, pos);
}

void TMaske::AdvOfficePager1MouseUp(TAdvOfficePager *Sender, Qt::MouseButton /*button*/, const QPoint &pos)
{
    TPagerDrag *drag = pagerDrag(this);
    if (!drag || !drag->pager || drag->pager != Sender)
        return;
    // Dropped: the pager stays where the mouse left it.
    drag->follow(pos);
    const bool moved = Sender->pos() != drag->origin;
    drag->end();
    if (moved) {
        m_modified = true;
        if (m_formDesigner2->Active())
            m_formDesigner2->UpdateGrabs();
    }
}
