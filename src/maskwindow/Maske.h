#pragma once

#include <QMdiSubWindow>
#include <QPointer>
#include <QScrollArea>
#include <QString>
#include <QStringList>

#include "TableDescription.h"

class QCloseEvent;
class TAdvOfficePage;
class TAdvOfficePager;
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

    QString Titel() const { return m_titel; }
    void setTitel(const QString &titel) { m_titel = titel; }
    QString Tabelle() const { return m_tabelle; }
    void setTabelle(const QString &tabelle) { m_tabelle = tabelle; }
    int Typ() const { return m_typ; }
    void setTyp(int typ) { m_typ = typ; }

    // The size the mask was designed for; written to the mask file.
    int DesignHeight() const { return m_designHeight; }
    void setDesignHeight(int height) { m_designHeight = height; }
    int DesignWidth() const { return m_designWidth; }
    void setDesignWidth(int width) { m_designWidth = width; }

    // The screen the mask is designed for, as the resolution list names it
    // ("1152x869" keeps its 869); this is what the mask file stores.
    int Pixel() const { return m_pixel; }
    void setPixel(int pixel) { m_pixel = pixel; }
    int ScreenHeight() const { return m_screenHeight; }
    void setScreenHeight(int height) { m_screenHeight = height; }
    int ScreenWidth() const { return m_screenWidth; }
    void setScreenWidth(int width) { m_screenWidth = width; }

    const TTableSettings &TableSettings() const { return m_tableSettings; }
    void setTableSettings(const TTableSettings &settings) { m_tableSettings = settings; }

    bool Modified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }

    // The size the scroll box scrolls over (the surface never gets smaller).
    void setScrollRanges(int horizontal, int vertical);
    QSize scrollRanges() const;
    // Scrolls both bars back to 0.
    void scrollToOrigin();

    // The container controls are placed on ("Maske"), inside the scroll box.
    QWidget *designSurface() const { return m_surface; }
    QScrollArea *scrollBox() const { return m_scrollBox; }

    // The window's own components: its designer engine, the edit style every
    // edit control placed on it shares, and the style of its page controls
    // (the item index of the pager styles, "Office2003 Blau" = 0).
    TFormDesigner *FormDesigner2() const { return m_formDesigner2; }
    TcxEditStyleController *cxStyleController() const { return m_cxStyleController; }
    int OfficePagerStyle() const { return m_officePagerStyle; }
    void setOfficePagerStyle(int style) { m_officePagerStyle = style; }

    // Gives every edit control of the mask without a style the mask's one
    // (pasted controls come without).
    void adoptEditStyle();

    // A new page for a page control, owned by the mask and named by the
    // naming rule, with the given caption; the caller adds it to the pager.
    TAdvOfficePage *NewOPage(const QString &caption);

    // The main window that holds the mask (not owned); nullptr stands alone.
    void setHost(TMaskHost *host) { m_host = host; }
    TMaskHost *host() const { return m_host; }

    // The two name lists the mask file code works with.
    QStringList &NameList1() { return m_nameList1; }
    QStringList &NameList2() { return m_nameList2; }

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
    QWidget *placeControl(int code, QWidget *container, const QPoint &pos);

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
    QString m_titel;
    QString m_tabelle;
    int m_typ = 0;
    int m_designHeight = 600;
    int m_designWidth = 800;
    int m_pixel = 32;
    int m_screenHeight = 600;
    int m_screenWidth = 800;
    TTableSettings m_tableSettings;
    bool m_modified = false;
    TMaskHost *m_host = nullptr;
    QStringList m_nameList1;
    QStringList m_nameList2;
    bool m_shownOnce = false;
    TFormDesigner *m_formDesigner2 = nullptr;
    TcxEditStyleController *m_cxStyleController = nullptr;
    int m_officePagerStyle = 6; // "WindowsXP"
    QPointer<QScrollArea> m_scrollBox;
    QPointer<QWidget> m_surface;
};
