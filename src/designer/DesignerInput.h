#pragma once

#include <QEvent>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>

#include "DesignMessage.h"

class TCustomFormDesigner;
class TDragSession;

// The event type under which a message of the engine's own is posted.
inline QEvent::Type designEventType(unsigned message)
{
    return QEvent::Type(QEvent::User + int(message));
}

// The input of the design control while an engine is active. Mouse and key
// events of the design control and of everything inside it become message
// records that OnMessage may change or swallow; then the buttons and keys
// turn into selecting, dragging, placing, the context menu and keyboard
// moves. Events arrive through filters on the watched widgets (mpEvent) or
// through one application-wide filter shared by the engines that use mpHook.
class TDesignerInput : public QObject
{
    Q_OBJECT
public:
    // How the modifiers make the arrow keys act.
    enum KeyMode { kmSelect, kmMovePixel, kmMoveGrid, kmSize };

    // What the input needs of its engine beyond the engine's public interface.
    class Host
    {
    public:
        // A selected control becomes the current one.
        virtual void makeCurrent(QWidget *control) = 0;
        // OnValidateSelection's answer.
        virtual bool acceptsSelection(QWidget *control) = 0;
        // The class the placing tool is armed with; empty when it is not.
        virtual QString armedClass() const = 0;
        virtual void moveSizeByKey(int key, KeyMode mode) = 0;
        // The button came up at designPos: the mouse action is applied.
        virtual void finishMouseAction(const QPoint &designPos, Qt::KeyboardModifiers shift,
                                       const QPoint &globalPos) = 0;

    protected:
        ~Host() = default;
    };

    TDesignerInput(TCustomFormDesigner &designer, Host &host, TDragSession &session);
    ~TDesignerInput() override;

    // Starts with the design control and everything on it; detach() lets go
    // of all of it.
    void attach(QWidget *designControl);
    void detach();
    // A widget and its children are designed from now on; children that
    // arrive later are found by themselves.
    void watch(QWidget *widget);
    // The engine's own widgets on the design control are never designed.
    void exclude(QWidget *widget);
    // Forgets widgets that went away and looks for new ones.
    void refresh();

    bool isInDesignControl(const QWidget *widget) const;
    // Handles one event of a widget in the design control; true swallows it.
    bool process(QWidget *target, QEvent *event);
    // The control last right-clicked (the design control for its empty surface).
    QWidget *menuControl() const { return m_menuControl; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isExcluded(const QObject *object) const;
    void unwatch(QWidget *widget);
    bool buildMessage(QWidget *target, QEvent *event, TDesignMessage &msg) const;
    bool isRepeat(QEvent *event, const TDesignMessage &msg);
    bool dispatch(TDesignMessage &msg);
    QPoint designPos(const TDesignMessage &msg) const;
    QPoint trackedPos(const TDesignMessage &msg) const;
    void leftButtonDown(TDesignMessage &msg);
    void doubleClick(TDesignMessage &msg, bool raiseEvent);
    void rightButtonDown(TDesignMessage &msg);
    void rightButtonUp(TDesignMessage &msg);
    KeyMode keyMode(Qt::KeyboardModifiers shift) const;
    bool keyModeAllowed(KeyMode mode) const;
    void keyDown(TDesignMessage &msg);
    void keyUp(TDesignMessage &msg);

    TCustomFormDesigner &m_designer;
    Host &m_host;
    TDragSession &m_session;
    QPointer<QWidget> m_designControl;
    QList<QPointer<QWidget>> m_excluded;
    QList<QPointer<QWidget>> m_watched; // widgets carrying our event filter (mpEvent)
    QSet<const QWidget *> m_watchedSet; // the same, for the membership test
    QObject m_watchContext;             // receiver of the watched widgets' destroyed signals
    // Widgets whose mouse tracking the engine switched on: moves without a
    // button (the component hint) reach it only so.
    QList<QPointer<QWidget>> m_tracked;
    // A key rewritten by OnKeyDown or OnKeyUp on its way to its control.
    bool m_deliveringKey = false;
    QPointer<QWidget> m_menuControl;
    // The last event handled, so that a mouse or key event passed on to a
    // parent widget is not handled a second time there.
    int m_lastEventType = 0;
    quint64 m_lastEventTime = 0;
    QPoint m_lastEventGlobal;
    int m_lastEventKey = 0;
    // For double clicks: where the preceding click was, and on what.
    QPoint m_lastClickPos;
    QPointer<QWidget> m_lastClickControl;
};
