#pragma once

#include <QMdiSubWindow>
#include <QPointer>
#include <QScrollArea>
#include <QString>
#include <QStringList>

#include "ControlKinds.h"
#include "MaskDocument.h"

class QCloseEvent;
class TAdvOfficePage;
class TAdvOfficePager;
class TCurrentControlWatch;
class TMaskHost;
struct TDesignMessage;
class TcxEditStyleController;
class TFormDesigner;

// A mask window: one data-entry screen inside the main window. The caption is
// the file name part of Path(); the main window sets both.
class TMaske : public QMdiSubWindow
{
    Q_OBJECT
public:
    explicit TMaske(QWidget *parent = nullptr);
    ~TMaske() override;

    QString Path() const { return m_path; }
    void setPath(const QString &path);

    // The mask itself: header, table settings, edit style and controls. It
    // is the surface the controls are placed on, inside the scroll box.
    TMaskDocument *document() const { return m_document; }

    // The size the mask was designed for, as the resolution list sets it.
    int DesignHeight() const { return m_designHeight; }
    void setDesignHeight(int height) { m_designHeight = height; }
    int DesignWidth() const { return m_designWidth; }
    void setDesignWidth(int width) { m_designWidth = width; }

    bool Modified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }

    // The size the scroll box scrolls over (the surface never gets smaller).
    void setScrollRanges(int horizontal, int vertical);
    QSize scrollRanges() const;
    // Scrolls both bars back to 0.
    void scrollToOrigin();

    QScrollArea *scrollBox() const { return m_scrollBox; }

    // The window's own engine.
    TFormDesigner *FormDesigner2() const { return m_formDesigner2; }

    // After a load into document(): the caption shows the title, the page
    // controls get the window's handlers.
    void documentLoaded();

    // The main window that holds the mask (not owned); nullptr stands alone.
    void setHost(TMaskHost *host) { m_host = host; }
    TMaskHost *host() const { return m_host; }

    // Window events, called by Qt's handlers below and by the main window
    // (activation comes from the MDI area).
    void FormShow();
    void FormActivate();
    void FormResize();
    bool FormCloseQuery();
    void FormClose();

    // Places a control of the palette code into container at pos (container
    // coordinates), as a click with that tool armed does; returns it (for the
    // preview image the image), or nullptr when nothing is made.
    QWidget *placeControl(TPaletteCode code, QWidget *container, const QPoint &pos);

    // Binds the mask's page control handlers to a pager on this mask: the
    // placement does it for a new pager, the mask loader for a loaded one.
    void wirePager(TAdvOfficePager *pager);
    // The pager the user is dragging with the mouse, or nullptr.
    TAdvOfficePager *draggedPager() const;

Q_SIGNALS:
    void pathChanged(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    // The designer's events.
    void FormDesigner2Change();
    void FormDesigner2SelectControl(QWidget *control);
    void FormDesigner2MoveSizeControl(QWidget *control);
    void FormDesigner2PlaceComponent();
    void FormDesigner2DeleteControl(QWidget *control);
    void FormDesigner2KeyDown(int &key, Qt::KeyboardModifiers shift);
    void FormDesigner2Message(TDesignMessage &msg);
    // A page control's mouse events (wirePager); positions are global.
    void AdvOfficePager1MouseMove(TAdvOfficePager *Sender, Qt::MouseButtons shift, const QPoint &pos);
    void AdvOfficePager1MouseUp(TAdvOfficePager *Sender, Qt::MouseButton button, const QPoint &pos);
    void wireDesigner();
    void applyToolFont(QWidget *control);

private:
    QString m_path;
    int m_designHeight = 600;
    int m_designWidth = 800;
    bool m_modified = false;
    TMaskHost *m_host = nullptr;
    bool m_shownOnce = false;
    TFormDesigner *m_formDesigner2 = nullptr;
    TCurrentControlWatch *m_currentWatch = nullptr;
    QPointer<QScrollArea> m_scrollBox;
    QPointer<TMaskDocument> m_document;
};
