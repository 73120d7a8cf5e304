#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>
#include <functional>

#include "Colors.h"
#include "ConnectionSettings.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFrame;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QToolButton;
class TCustomFormDesigner;
class TFormDesigner;
class TMemIniFile;

// The settings window: designer look and behaviour, and how the program
// reaches its database. Reads the installer's values from the registry and
// the user's from the settings file when created, writes the settings file
// on OK and hands the designer settings to the main designer whenever it
// closes.
class TfrmSetup : public QDialog
{
    Q_OBJECT
public:
    explicit TfrmSetup(QWidget *parent = nullptr);
    ~TfrmSetup() override;

    // The designer of the active mask (nullptr when none is open); the colour
    // buttons start from its colours.
    std::function<TFormDesigner *()> activeDesigner;
    // The main window's own designer engine; gets the designer settings on close.
    std::function<TFormDesigner *()> mainDesigner;

    // Copies the designer settings of the window into an engine; mask windows
    // call this whenever they become active.
    void applyTo(TFormDesigner *designer) const;

    QString InstallDir() const { return m_installDir; }
    // The connection values as the controls hold them now; the database
    // layer reads them through this each time it connects or scans.
    TConnectionSettings ConnectionSettings() const;
    void setConnectionSettings(const TConnectionSettings &settings);
    // The database folder as the field shows it (ends with a separator).
    QString DatenbankPfad() const;

    int ServerProtokolIndex() const;
    // -1 selects no item; larger values select the last one.
    void setServerProtokolIndex(int index);

    TColor DesignerColor() const { return swatchColor(swDesigner); }
    TColor GridColor() const { return swatchColor(swGrid); }
    TColor NBorderColor() const { return swatchColor(swNBorder); }
    TColor NFillColor() const { return swatchColor(swNFill); }
    TColor MBorderColor() const { return swatchColor(swMBorder); }
    TColor MFillColor() const { return swatchColor(swMFill); }
    TColor LBorderColor() const { return swatchColor(swLBorder); }
    TColor LFillColor() const { return swatchColor(swLFill); }

    void done(int result) override;

    // "Scan Server" and "Scan Alias": fill the server and alias lists.
    void ServerScanBtnClick();
    void ScanAliasClick();

protected:
    void showEvent(QShowEvent *event) override;

private:
    // In the order of the colour keys of the settings file.
    enum Swatch { swGrid, swDesigner, swMFill, swMBorder, swLFill, swLBorder, swNFill, swNBorder, swCount };
    struct SwatchDef
    {
        const char *name;    // pnl<name>, btn<name>
        const char *iniKey;
        TColor initial;
        TColor (*get)(const TCustomFormDesigner &);
        void (*set)(TCustomFormDesigner &, TColor);
    };
    static const SwatchDef s_swatches[swCount];

    // SetupDialog.cpp: the controls and their rules
    QGroupBox *createDesignerBox();
    QGroupBox *createGrabBox(const QString &name, const QString &title, Swatch border, Swatch fill);
    void addSwatchRow(QGridLayout *grid, int row, const QString &text, Swatch swatch);
    QGroupBox *createDatabaseBox();
    QGroupBox *createProtocolBox();
    void updateServerControls();
    void updateScanAlias();
    void browseDatabasePath();

    // SetupDialogColors.cpp
    QFrame *createSwatch(Swatch swatch);
    QToolButton *createSwatchButton(Swatch swatch);
    TColor swatchColor(Swatch swatch) const;
    void setSwatchColor(Swatch swatch, TColor color);
    void chooseColor(Swatch swatch);

    // SetupDialogLoad.cpp
    void loadSettings();
    void loadFromIni(const TMemIniFile &ini);

    // SetupDialogSave.cpp
    void okClicked();
    void storeToIni(TMemIniFile &ini) const;
    bool writeSettings(QString *errorMessage) const;

    QString m_installDir;
    QStringList m_scanHosts; // not shown, kept for the scans

    QCheckBox *m_chbDisplayGrid = nullptr;
    QCheckBox *m_chbSnapToGrid = nullptr;
    QCheckBox *m_chbShowHint = nullptr;
    QSpinBox *m_udnGridStep = nullptr;
    QLineEdit *m_edtGridStep = nullptr;
    QSpinBox *m_udnGrabSize = nullptr;
    QLineEdit *m_edtGrabSize = nullptr;
    QFrame *m_swatches[swCount] = {};
    // Kept as TColor so that a system colour stays symbolic: clBtnFace is
    // written back as "clBtnFace", not as today's grey.
    TColor m_swatchColors[swCount];
    QToolButton *m_swatchButtons[swCount] = {};

    QRadioButton *m_DBLocal = nullptr;
    QRadioButton *m_DBServer = nullptr;
    QLineEdit *m_DBPfad = nullptr;
    QToolButton *m_btnDBPfad = nullptr;
    QLabel *m_LoginLabel = nullptr;
    QLineEdit *m_Userlogin = nullptr;
    QLabel *m_PwLabel = nullptr;
    QLineEdit *m_Userpass = nullptr;
    QGroupBox *m_ServerProtokol = nullptr;
    QButtonGroup *m_protocolButtons = nullptr;
    QLabel *m_ServerNameLabel = nullptr;
    QComboBox *m_DBServerName = nullptr;
    QPushButton *m_ServerScanBtn = nullptr;
    QLabel *m_DBAliasLabel = nullptr;
    QComboBox *m_DBAlias = nullptr;
    QPushButton *m_ScanAlias = nullptr;
    QLabel *m_lblTimeOut = nullptr;
    QSpinBox *m_ScanTimeOut = nullptr;

    QPushButton *m_btnOk = nullptr;
    QPushButton *m_btnCancel = nullptr;
};
