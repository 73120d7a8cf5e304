#pragma once

#include <QMdiSubWindow>
#include <QPointer>
#include <QScrollArea>
#include <QString>

class TAdvOfficePage;
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

    bool Modified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }

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

    // A new page for a page control, owned by the mask and named by the
    // naming rule, with the given caption; the caller adds it to the pager.
    TAdvOfficePage *NewOPage(const QString &caption);

Q_SIGNALS:
    void pathChanged(const QString &path);

private:
    QString m_path;
    QString m_titel;
    QString m_tabelle;
    int m_typ = 0;
    int m_designHeight = 600;
    int m_designWidth = 800;
    bool m_modified = false;
    TFormDesigner *m_formDesigner2 = nullptr;
    TcxEditStyleController *m_cxStyleController = nullptr;
    int m_officePagerStyle = 6; // "WindowsXP"
    QPointer<QScrollArea> m_scrollBox;
    QPointer<QWidget> m_surface;
};
