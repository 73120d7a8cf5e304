#pragma once

#include <QMdiSubWindow>
#include <QPointer>
#include <QScrollArea>
#include <QString>

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
    QPointer<QScrollArea> m_scrollBox;
    QPointer<QWidget> m_surface;
};
