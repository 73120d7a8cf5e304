#pragma once

#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include "DesignerTypes.h"

class QLabel;
class TCustomFormDesigner;

// Where a widget's top left corner lies in the design control's coordinates.
QPoint designOrigin(const QWidget *designControl, const QWidget *widget);

// Gives a control new bounds the way its class takes them.
void setControlBounds(QWidget *control, const QRect &r);

// One mouse action on the design control while the button is held: moving or
// sizing controls, the rubber band, or the rectangle of a control to place.
// It follows the mouse, snaps and limits the frames and shows the move/size
// hint; the overlay draws the frames and the engine applies them when the
// button comes up. The limits serve keyboard moves as well.
class TDragSession : public QObject
{
    Q_OBJECT
public:
    // A dragged control: where it was when the drag started and where it goes,
    // both in its parent's coordinates.
    struct Frame
    {
        QPointer<QWidget> control;
        QRect origin;
        QRect rect;
    };

    explicit TDragSession(TCustomFormDesigner &designer);
    ~TDragSession() override;

    // The design control while the engine is active, else nullptr.
    void setDesignControl(QWidget *designControl);

    TMouseAction action() const { return m_action; }
    // Past the drag distance; sizing starts at once.
    bool started() const { return m_started; }
    // gpNone while moving, the grabbed handle while sizing.
    TGrabPosition handle() const { return m_handle; }
    // The dragged controls, the grabbed one first.
    const QList<Frame> &frames() const { return m_frames; }
    QRect dragRect() const { return m_frames.isEmpty() ? QRect() : m_frames.first().rect; }
    // The rubber band and the placing rectangle, in design control coordinates.
    QRect selectRect() const { return m_selectRect; }
    QRect placeRect() const { return m_placeRect; }
    QPoint clickPos() const { return m_clickPos; }
    QPoint cursorPos() const { return m_cursorPos; }
    // The container the band selects in, or the parent of the control to place.
    QWidget *container() const { return m_container; }

    void startDrag(QWidget *control, TGrabPosition handle, const QPoint &designPos);
    void startSelecting(const QPoint &designPos);
    void startPlacing(QWidget *parent, const QPoint &designPos);
    // The mouse is at designPos (globalPos on the screen, for the hint).
    void moveTo(const QPoint &designPos, Qt::KeyboardModifiers shift, const QPoint &globalPos, bool showHint = true);
    // Ends the action without applying it.
    void reset();
    // Ends it as Esc does: controls that went along with the mouse go back.
    void cancel();

    QRect snapRect(const QRect &r) const;
    QPoint snapPoint(const QPoint &p) const;
    // The area a control may move in: its parent's client area or what
    // OnMoveLimit makes of it.
    QRect limitRect(QWidget *control) const;
    // r held by the size limits and, with keepInside, by the limit rectangle;
    // handle says which edges move (gpNone: the whole rectangle), old is
    // where the control was.
    QRect limitedRect(QWidget *control, const QRect &r, const QRect &old, TGrabPosition handle,
                      bool keepInside) const;

signals:
    // What the overlay draws has changed.
    void changed();

private:
    void dragTo(QPoint designPos, Qt::KeyboardModifiers shift);
    // "Left, Top" while moving, "Width x Height" while sizing.
    QString dragHintText() const;
    void showHintText(const QString &text, const QPoint &globalPos);
    void hideHint();

    TCustomFormDesigner &m_designer;
    QPointer<QWidget> m_designControl;
    TMouseAction m_action = maNone;
    bool m_started = false;
    TGrabPosition m_handle = gpNone;
    QPoint m_clickPos;    // design control coordinates
    QPoint m_cursorPos;   // design control coordinates
    QList<Frame> m_frames;
    QRect m_selectRect;
    QRect m_placeRect;
    QPointer<QWidget> m_container;
    QPointer<QLabel> m_hint;
};
