// The engine's side of a mouse action: when the button comes up the moved
// or sized controls take their frames, the rubber band selects, or the
// placing tool creates its control; the change is reported once.
#include "Components.h"
#include "Control.h"
#include "ControlClasses.h"
#include "DesignerWidgets.h"
#include "FormDesigner.h"

void TCustomFormDesigner::finishMouseAction(const QPoint &designPos, Qt::KeyboardModifiers shift,
                                            const QPoint &globalPos)
{
    // The release point counts as a last move; where there was a move to it
    // already, what the frame shows is what the controls get.
    switch (m_session.action()) {
    case maDragging:
        if (designPos != m_session.cursorPos())
            m_session.moveTo(designPos, shift, globalPos, false);
        if (m_session.action() == maDragging)
            finishDrag();
        break;
    case maSelecting:
        m_session.moveTo(designPos, shift, globalPos, false);
        finishSelecting(shift);
        break;
    case maPlacing:
        if (designPos != m_session.cursorPos())
            m_session.moveTo(designPos, shift, globalPos);
        finishPlacing(shift);
        break;
    case maNone:
        break;
    }
}

void TCustomFormDesigner::finishDrag()
{
    const bool started = m_session.started();
    const QList<TDragSession::Frame> frames = m_session.frames();
    m_session.reset();
    if (!started)
        return;
    QList<QPointer<QWidget>> changed;
    for (const TDragSession::Frame &f : frames) {
        if (!f.control)
            continue;
        if (f.control->geometry() != f.rect)
            setControlBounds(f.control, f.rect);
        if (f.control->geometry() != f.origin)
            changed << f.control;
    }
    UpdateGrabs();
    for (const QPointer<QWidget> &c : std::as_const(changed))
        if (c)
            DoMoveSizeControl(c);
    if (!changed.isEmpty())
        DoChange();
}

void TCustomFormDesigner::finishSelecting(Qt::KeyboardModifiers shift)
{
    QRect r = m_session.selectRect().normalized();
    QPointer<QWidget> parent = m_session.container() ? m_session.container() : m_attached.data();
    m_session.reset();
    if (OnEndSelecting)
        OnEndSelecting(this, r);
    if (!parent)
        return;
    // Candidates in z-order, bottom first: creation order unless raised or
    // lowered since. The first one hit becomes the current control.
    const QPoint origin = designOrigin(m_attached, parent);
    QList<QPointer<QWidget>> hits;
    for (QObject *o : parent->children()) {
        if (!o->isWidgetType())
            continue;
        auto *w = static_cast<QWidget *>(o);
        if (w->isHidden() || !IsDesignable(w) || IsProtected(w))
            continue;
        const QRect bounds = w->geometry().translated(origin);
        if (m_selectInBox ? r.contains(bounds) : r.intersects(bounds))
            hits << w;
    }
    // Shift or Ctrl add to the selection; otherwise the band replaces it.
    if (!(shift & (Qt::ShiftModifier | Qt::ControlModifier)))
        ClearControls();
    for (const QPointer<QWidget> &w : std::as_const(hits))
        if (w)
            AddControl(w);
}

void TCustomFormDesigner::finishPlacing(Qt::KeyboardModifiers shift)
{
    const bool snap = m_snapToGrid && !(shift & Qt::AltModifier);
    // A plain click asks for the class's default size at the click point.
    const QPoint click = m_session.clickPos();
    QRect r = m_session.started() ? m_session.placeRect()
                                  : QRect(snap ? m_session.snapPoint(click) : click, QSize(0, 0));
    const QString className = m_placeClass;
    QPointer<QWidget> parent = m_session.container() ? m_session.container() : m_attached.data();
    m_session.reset();
    if (OnEndPlacing)
        OnEndPlacing(this, r);
    if (!parent || !ControlClasses::find(className)) {
        m_placeClass.clear();
        return;
    }
    CreateComponentClassName(className, parent, r.translated(-designOrigin(m_attached, parent)));
}

void TCustomFormDesigner::LeaveMouseAction()
{
    m_session.cancel();
}

// ---- the placing tool ----

void TCustomFormDesigner::PlaceComponentClassName(const QString &className)
{
    if (className.isEmpty()) {
        CancelPlacing();
        return;
    }
    const TClassInfo *info = ControlClasses::find(className);
    if (!info)
        throw EFormDesigner(QStringLiteral("Class %1 not found").arg(className));
    if (m_session.action() == maPlacing)
        LeaveMouseAction();
    m_placeClass = info->className;
}

void TCustomFormDesigner::CancelPlacing()
{
    m_placeClass.clear();
    if (m_session.action() == maPlacing)
        LeaveMouseAction();
}

QWidget *TCustomFormDesigner::CreateComponentClassName(const QString &className, QWidget *parent,
                                                       const QRect &bounds)
{
    QWidget *w = ControlClasses::create(className);
    if (!w)
        throw EFormDesigner(QStringLiteral("Class %1 not found").arg(className));
    QWidget *form = ParentForm();
    Components::setOwner(w, form);
    AutoName(w, form);
    if (!parent)
        parent = m_attached ? m_attached.data() : designControlOrForm();
    w->setParent(parent);
    // An empty extent keeps the class's own default for it.
    const QSize size(bounds.width() > 0 ? bounds.width() : w->width(),
                     bounds.height() > 0 ? bounds.height() : w->height());
    setControlBounds(w, QRect(bounds.topLeft(), size));
    w->show();
    m_placeClass.clear();
    if (m_active && IsDesignable(w)) {
        ClearControls();
        AddControl(w);
    }
    if (OnPlaceComponent)
        OnPlaceComponent(this, w);
    DoChange();
    return w;
}

