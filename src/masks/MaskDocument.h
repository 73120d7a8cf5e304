#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include "TableDescription.h"

class TAdvOfficePage;
class TcxEditStyleController;

// One mask as its file holds it: the header values, the table settings, the
// shared edit style and the controls. The document is the surface the
// controls are placed on ("Maske") and the owner of every component of the
// mask, as a form is in Qt's form builder; it knows no window, designer or
// inspector, so the batch tool reads and writes masks without any of them.
class TMaskDocument : public QWidget
{
    Q_OBJECT
public:
    explicit TMaskDocument(QWidget *parent = nullptr);

    QString Titel() const { return m_titel; }
    void setTitel(const QString &titel) { m_titel = titel; }
    QString Tabelle() const { return m_tabelle; }
    void setTabelle(const QString &tabelle) { m_tabelle = tabelle; }
    int Typ() const { return m_typ; }
    void setTyp(int typ) { m_typ = typ; }

    // The screen the mask is designed for, as the resolution list names it
    // ("1152x869" keeps its 869); this is what the mask file stores.
    int Pixel() const { return m_pixel; }
    void setPixel(int pixel) { m_pixel = pixel; }
    int ScreenHeight() const { return m_screenHeight; }
    void setScreenHeight(int height) { m_screenHeight = height; }
    int ScreenWidth() const { return m_screenWidth; }
    void setScreenWidth(int width) { m_screenWidth = width; }

    // The database folder the table settings belong to (not in the mask
    // file: the loader takes the configured one).
    QString DatenbankPfad() const { return m_datenbankPfad; }
    void setDatenbankPfad(const QString &folder) { m_datenbankPfad = folder; }
    const TTableSettings &TableSettings() const { return m_tableSettings; }
    void setTableSettings(const TTableSettings &settings) { m_tableSettings = settings; }

    // The edit style every edit control of the mask shares, and the style of
    // its page controls (the item index of the pager styles, "Office2003
    // Blau" = 0).
    TcxEditStyleController *cxStyleController() const { return m_cxStyleController; }
    int OfficePagerStyle() const { return m_officePagerStyle; }
    // Shown at once by every page control on the mask, also those added later.
    void setOfficePagerStyle(int style);

    // Gives every edit control of the mask without a style the mask's one
    // (pasted controls come without).
    void adoptEditStyle();

    // A new page for a page control, owned by the mask and named by the
    // naming rule, with the given caption; the caller adds it to the pager.
    TAdvOfficePage *NewOPage(const QString &caption);

private:
    QString m_titel;
    QString m_tabelle;
    int m_typ = 0;
    int m_pixel = 32;
    int m_screenHeight = 600;
    int m_screenWidth = 800;
    QString m_datenbankPfad;
    TTableSettings m_tableSettings;
    TcxEditStyleController *m_cxStyleController = nullptr;
    int m_officePagerStyle = 6; // "WindowsXP"
};
