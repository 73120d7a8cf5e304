#pragma once

#include <QPixmap>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include "DesignerTypes.h"

class TCustomFormDesigner;
class TDragSession;

// One small handle around the current control; a child of the control's
// parent. A press on an enabled handle starts sizing.
class TGrabHandle : public QWidget
{
    Q_OBJECT
public:
    TGrabHandle(TCustomFormDesigner *designer, TGrabPosition position);

    TGrabPosition Position() const { return m_position; }
    // The handle's rectangle before clipping (in its parent's coordinates).
    QRect Rect() const { return m_rect; }
    bool Locked() const { return m_locked; }
    bool HandleEnabled() const { return m_enabled; }

    void place(QWidget *parent, const QRect &rect, bool locked, bool visible, bool enabled);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    TCustomFormDesigner *m_designer;
    TGrabPosition m_position;
    QRect m_rect;
    bool m_locked = false;
    bool m_enabled = true;
};

// The eight handles of the current control of a single selection.
class TGrabHandles : public QObject
{
    Q_OBJECT
public:
    explicit TGrabHandles(TCustomFormDesigner *designer);
    ~TGrabHandles() override;

    TGrabHandle *Items(TGrabPosition position) const;
    QWidget *Control() const { return m_control; }
    bool Visible() const { return m_visible; }
    TCustomFormDesigner *Designer() const { return m_designer; }

    // Places the handles around control (none: hides them).
    void Update(QWidget *control, bool mustHide = false);
    void hideAll();
    bool IsGrabHandle(const QWidget *widget) const;
    TGrabPosition FindHandle(const QWidget *widget) const;

    // The unclipped handle rectangle for a control's bounds (parent coordinates).
    static QRect handleRect(TGrabMode mode, int grabSize, const QRect &bounds, TGrabPosition position);

private:
    TCustomFormDesigner *m_designer;
    QPointer<QWidget> m_control;
    QPointer<TGrabHandle> m_items[9]; // may die with a container they sat on
    bool m_visible = false;
};

// Drawn above the design control and everything on it: the frames of a
// mouse action (read from its TDragSession), the alignment lines and the
// marks of a multiple selection. It takes no mouse input; erasing means
// repainting. What it shows is worked out in refresh(), and only the
// rectangles that change are repainted, so that a drag step or a click does
// not repaint every control under the glass.
// While frames are dragged nothing below them changes: this picture of the
// design control, taken when the drag starts, lies under the overlay so that
// the frames' old places repaint from it instead of from every control below.
class TDesignStill : public QWidget
{
public:
    explicit TDesignStill(QWidget *designControl);
    void setPicture(const QPixmap &picture) { m_picture = picture; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
};

class TDesignOverlay : public QWidget
{
    Q_OBJECT
public:
    TDesignOverlay(const TCustomFormDesigner &designer, const TDragSession &session, QWidget *designControl);
    ~TDesignOverlay() override;
    // The picture under the overlay while frames are dragged; the engine
    // keeps it out of the controls it designs.
    QWidget *stillWidget() const { return m_stillWidget; }

    // Takes the engine's and the session's state anew.
    void refresh();
    // Raises the overlay above the controls unless it is there already.
    void keepOnTop();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    // One handle mark: the part of it that its parent shows, where its
    // picture starts, and the picture.
    struct Mark
    {
        QRect rect;
        QPoint origin;
        QPixmap look;
        bool operator==(const Mark &o) const
        {
            return rect == o.rect && origin == o.origin && look.cacheKey() == o.look.cacheKey();
        }
    };
    struct Line
    {
        QRect rect;
        QColor color;
        bool operator==(const Line &o) const { return rect == o.rect && color == o.color; }
    };

    QList<Mark> multiSelectionMarks() const;
    QList<QRect> dragFrames() const;
    void takeStill();
    void dropStill();
    QRect shownRect() const;
    // Whether the overlay lies above every other control but newcomer.
    bool onTopBut(const QWidget *newcomer) const;
    QList<Line> alignmentLines() const;

    const TCustomFormDesigner &m_designer;
    const TDragSession &m_session;
    QList<Mark> m_marks;
    QList<QRect> m_frames; // solid frames, or the dotted rubber band
    bool m_band = false;
    QList<Line> m_lines;
    QPixmap m_still;
    QPointer<TDesignStill> m_stillWidget;
    bool m_grabbing = false;
};
