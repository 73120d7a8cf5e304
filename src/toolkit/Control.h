#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>
#include <utility>

#include "PropInfo.h"
#include "Types.h"

// The attributes every mask control carries besides what its Qt widget has:
// Tag, Hint, HelpKeyword, TabOrder, TabStop, Align, Color, Transparent, the
// font with its colour, and the component states. Declared once here; each
// control class derives from a Qt widget and from this (through TControlT).
class TControl
{
public:
    explicit TControl(QWidget *self);
    virtual ~TControl();
    TControl(const TControl &) = delete;
    TControl &operator=(const TControl &) = delete;

    static TControl *from(QObject *object) { return dynamic_cast<TControl *>(object); }
    static const TControl *from(const QObject *object) { return dynamic_cast<const TControl *>(object); }

    QWidget *widget() const { return m_self; }
    virtual const TClassInfo &classInfo() const = 0;

    QString Name() const { return m_self->objectName(); }
    void setName(const QString &name)
    {
        noteChange();
        m_self->setObjectName(name);
    }

    int Left() const { return m_self->x(); }
    int Top() const { return m_self->y(); }
    int Width() const { return m_self->width(); }
    int Height() const { return m_self->height(); }
    void setLeft(int value);
    void setTop(int value);
    void setWidth(int value);
    void setHeight(int value);
    void setBounds(int left, int top, int width, int height);

    // Whether the control shows when its parent does. A control is visible
    // from its creation on: put on a parent that shows, it shows too. Set it
    // with the widget's setVisible; code that only switches what is on screen
    // (a pager hiding its inactive pages) calls QWidget::setVisible directly.
    bool Visible() const { return m_visible; }
    bool Enabled() const { return m_self->isEnabled(); }

    int Tag() const { return m_tag; }
    void setTag(int tag)
    {
        noteChange();
        m_tag = tag;
    }
    QString Hint() const { return m_hint; }
    void setHint(const QString &hint);
    bool ShowHint() const { return m_showHint; }
    void setShowHint(bool show);
    QString HelpKeyword() const { return m_helpKeyword; }
    void setHelpKeyword(const QString &keyword)
    {
        noteChange();
        m_helpKeyword = keyword;
    }

    TAlign Align() const { return m_align; }
    void setAlign(TAlign align);

    // The background colour. With ParentColor the control shows its parent's.
    TColor Color() const;
    void setColor(TColor color);
    bool ParentColor() const { return m_parentColor; }
    void setParentColor(bool parentColor);
    bool Transparent() const { return m_transparent; }
    void setTransparent(bool transparent);

    TFont Font() const;
    void setFont(const TFont &font);
    bool ParentFont() const { return m_parentFont; }
    void setParentFont(bool parentFont);

    // Stored as an attribute: masks use it for their own flags, so it does
    // not take the control out of keyboard focus.
    bool TabStop() const { return m_tabStop; }
    void setTabStop(bool tabStop)
    {
        noteChange();
        m_tabStop = tabStop;
    }
    // The position among the windowed controls of the same parent, -1 without one.
    // While loading, the wish is kept and applied when loading ends, so the
    // order of reading does not matter (see ControlLayout::endLoading).
    int TabOrder() const;
    void setTabOrder(int order);

    // The caption or text the control shows; empty for kinds without one.
    virtual QString Caption() const { return QString(); }
    virtual void setCaption(const QString &) { noteChange(); }

    int ComponentState() const { return m_state; }
    bool isLoading() const { return m_state & csLoading; }
    bool isDesigning() const { return m_state & csDesigning; }
    // While loading, properties are applied as read and nothing sizes itself.
    void beginLoading() { m_state |= csLoading; }
    // Links the control into its container's focus chain, applies a tab
    // order given while loading and aligns, unless told not to (the
    // container does all that at once, see ControlLayout::endLoading).
    void endLoading(bool applyPendingTabOrder = true);
    // The tab order given while loading, -1 for none.
    int pendingTabOrder() const { return m_loadTabOrder; }
    void setDesigning(bool designing);

    // The part of the control that aligned children share.
    virtual QRect alignClientRect() const { return m_self->rect(); }

    // Counts the changes to what the control streams: its published
    // attributes, geometry, name, font and contained controls. A change
    // counts for every control around it as well, since a container's
    // stream holds its contents. Snapshots reuse a control's bytes while
    // this stays the same.
    quint64 revision() const { return m_revision; }
    void noteChange();

protected:
    // Pushes Color/Transparent and the font colour into the widget; classes
    // whose widgets paint with other palette roles override these.
    virtual void applyColor();
    virtual void applyFontColor();
    virtual void loadingEnded() {}
    // The final class calls this at the end of its constructor, so a control
    // created with a parent joins that parent's tab order at once.
    void attachToParent() { parentChanged(); }
    // After the control moved to another parent widget.
    virtual void parentWidgetChanged(QWidget * /*oldParent*/) {}
    virtual void designingChanged() {}
    // Called by TControlT for every event of the widget.
    void controlEvent(QEvent *event);

private:
    void parentChanged();
    void requestParentAlign();

    QWidget *m_self;
    QPointer<QWidget> m_tabParent;
    QString m_lastName;
    int m_tag = 0;
    QString m_hint;
    bool m_showHint = false;
    QString m_helpKeyword;
    TAlign m_align = alNone;
    TColor m_color = Colors::clBtnFace;
    bool m_parentColor = false;
    bool m_transparent = false;
    TColor m_fontColor = Colors::clWindowText;
    bool m_parentFont = true;
    bool m_tabStop = true;
    bool m_visible = true;
    int m_state = 0;
    int m_loadTabOrder = -1;
    quint64 m_revision = 0;

    template <class> friend class TControlT;
};

// Joins a Qt widget class with the shared attributes. The final class adds
// Q_OBJECT so that its class name is the mask file's.
template <class Base>
class TControlT : public Base, public TControl
{
public:
    explicit TControlT(QWidget *parent = nullptr) : Base(parent), TControl(this) {}

    // Both bases name these; make them overloads instead of ambiguities.
    using Base::setFont;
    using TControl::setFont;
    using Base::setTabOrder;
    using TControl::setTabOrder;

    void setVisible(bool visible) override
    {
        noteChange();
        m_visible = visible;
        Base::setVisible(visible);
    }

protected:
    bool event(QEvent *e) override
    {
        TControl::controlEvent(e);
        return Base::event(e);
    }
};

// Per-container bookkeeping: the tab order list of its windowed controls and
// the layout of its aligned children. Works for any container widget, also
// for design surfaces that are no controls themselves.
namespace ControlLayout {
// Lays the aligned children out: top, bottom, left, right, then client.
void alignControls(QWidget *container);
// The windowed controls of a container in tab order.
QList<QWidget *> tabList(QWidget *container);
// Ends the loading of these controls: per container, the tab orders they were
// given while loading are applied all at once (ties keep the order of
// creation), then each control's loading ends.
void endLoading(const QList<QWidget *> &controls);

// Graphic controls (labels, data labels, bevels, shapes, pictures) are drawn
// on their parent's surface: they lie beneath every windowed control of that
// parent whatever the order they were made in. A control comes to the front
// or goes to the back within its own layer; widgets that are no controls
// (a designer's grid below, its handles and glass above) keep their places.
bool isGraphic(const QWidget *control);
void bringToFront(QWidget *control);
void sendToBack(QWidget *control);
} // namespace ControlLayout
