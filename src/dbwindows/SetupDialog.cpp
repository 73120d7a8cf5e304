#include "SetupDialog.h"

#include "DbConnection.h"
#include "ServerScan.h"
#include "UserDialogs.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <climits>

namespace {
QLabel *buddyLabel(const QString &text, QWidget *buddy, const QString &name = QString())
{
    auto *label = new QLabel(text);
    label->setBuddy(buddy);
    if (!name.isEmpty())
        label->setObjectName(name);
    return label;
}

// A spin box whose line edit carries the name of the edit it stands for.
QSpinBox *sizeSpinBox(const QString &name, const QString &editName, int value)
{
    auto *spin = new QSpinBox;
    spin->setObjectName(name);
    // The editor is the spin box's own line edit (lineEdit() is protected).
    spin->findChild<QLineEdit *>()->setObjectName(editName);
    spin->setRange(2, 128);
    spin->setValue(value);
    spin->setAlignment(Qt::AlignRight);
    spin->setMinimumWidth(70);
    return spin;
}

QCheckBox *checkBox(const QString &name, const QString &text)
{
    auto *box = new QCheckBox(text);
    box->setObjectName(name);
    box->setChecked(true);
    return box;
}
} // namespace

TfrmSetup::TfrmSetup(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmSetup"));
    setWindowTitle(tr("Einstellungen"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto *top = new QHBoxLayout;
    top->addWidget(createDesignerBox(), 1);
    auto *grabs = new QVBoxLayout;
    grabs->addWidget(createGrabBox(QStringLiteral("grbNormalGrabs"), tr("Normal grabs"), swNBorder, swNFill));
    grabs->addWidget(createGrabBox(QStringLiteral("grbMultiGrabs"), tr("Multi grabs"), swMBorder, swMFill));
    grabs->addWidget(createGrabBox(QStringLiteral("grbLockedGrabs"), tr("Gesperrte grabs"), swLBorder, swLFill));
    grabs->addStretch();
    top->addLayout(grabs);

    m_btnOk = new QPushButton(QStringLiteral("OK"));
    m_btnOk->setObjectName(QStringLiteral("btnOk"));
    m_btnOk->setDefault(true);
    connect(m_btnOk, &QPushButton::clicked, this, &TfrmSetup::okClicked);
    m_btnCancel = new QPushButton(tr("Abbruch"));
    m_btnCancel->setObjectName(QStringLiteral("btnCancel"));
    connect(m_btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_btnOk);
    buttons->addWidget(m_btnCancel);

    auto *main = new QVBoxLayout(this);
    main->setSizeConstraint(QLayout::SetFixedSize);
    main->addLayout(top);
    main->addWidget(createDatabaseBox());
    main->addSpacing(4);
    main->addLayout(buttons);

    loadSettings();
}

TfrmSetup::~TfrmSetup() = default;

QGroupBox *TfrmSetup::createDesignerBox()
{
    auto *box = new QGroupBox(tr("Designer"));
    box->setObjectName(QStringLiteral("grbDesigner"));

    m_chbDisplayGrid = checkBox(QStringLiteral("chbDisplayGrid"), tr("Raster sichtbar"));
    m_chbSnapToGrid = checkBox(QStringLiteral("chbSnapToGrid"), tr("an Raster schnappen"));
    m_chbShowHint = checkBox(QStringLiteral("chbShowHint"), tr("Show hint when move/size"));
    m_udnGridStep = sizeSpinBox(QStringLiteral("udnGridStep"), QStringLiteral("edtGridStep"), 8);
    m_edtGridStep = m_udnGridStep->findChild<QLineEdit *>();
    m_udnGrabSize = sizeSpinBox(QStringLiteral("udnGrabSize"), QStringLiteral("edtGrabSize"), 5);
    m_edtGrabSize = m_udnGrabSize->findChild<QLineEdit *>();

    auto *grid = new QGridLayout(box);
    grid->setColumnStretch(3, 1);
    int row = 0;
    grid->addWidget(m_chbDisplayGrid, row++, 0, 1, 4);
    grid->addWidget(m_chbSnapToGrid, row++, 0, 1, 4);
    grid->setRowMinimumHeight(row++, 6);
    grid->addWidget(buddyLabel(tr("Grid schritt"), m_udnGridStep), row, 0);
    grid->addWidget(m_udnGridStep, row++, 1, 1, 2);
    addSwatchRow(grid, row++, tr("Designer Farbe"), swDesigner);
    addSwatchRow(grid, row++, tr("Grid Farbe"), swGrid);
    grid->addWidget(buddyLabel(tr("Grab handle größe"), m_udnGrabSize), row, 0);
    grid->addWidget(m_udnGrabSize, row++, 1, 1, 2);
    grid->setRowMinimumHeight(row++, 6);
    grid->addWidget(m_chbShowHint, row++, 0, 1, 4);
    grid->setRowStretch(row, 1);
    return box;
}

QGroupBox *TfrmSetup::createGrabBox(const QString &name, const QString &title, Swatch border, Swatch fill)
{
    auto *box = new QGroupBox(title);
    box->setObjectName(name);
    auto *grid = new QGridLayout(box);
    addSwatchRow(grid, 0, tr("Rahmen"), border);
    addSwatchRow(grid, 1, tr("Füllung"), fill);
    grid->setColumnMinimumWidth(0, 60);
    return box;
}

void TfrmSetup::addSwatchRow(QGridLayout *grid, int row, const QString &text, Swatch swatch)
{
    m_swatchButtons[swatch] = createSwatchButton(swatch);
    grid->addWidget(buddyLabel(text, m_swatchButtons[swatch]), row, 0);
    grid->addWidget(createSwatch(swatch), row, 1);
    grid->addWidget(m_swatchButtons[swatch], row, 2);
}

QGroupBox *TfrmSetup::createProtocolBox()
{
    m_ServerProtokol = new QGroupBox(tr(" Verbindungstyp "));
    m_ServerProtokol->setObjectName(QStringLiteral("ServerProtokol"));
    m_protocolButtons = new QButtonGroup(m_ServerProtokol);
    auto *row = new QHBoxLayout(m_ServerProtokol);
    // The trailing blanks of the last item are as the program has always shown it.
    const QString items[] = {QStringLiteral("TCP/IP"), QStringLiteral("NamedPIPE"), QStringLiteral("Shared Memory  ")};
    for (int i = 0; i < 3; ++i) {
        auto *button = new QRadioButton(items[i]);
        button->setObjectName(QStringLiteral("ServerProtokol_%1").arg(i));
        m_protocolButtons->addButton(button, i);
        row->addWidget(button, 1);
    }
    m_protocolButtons->button(0)->setChecked(true);
    return m_ServerProtokol;
}

QGroupBox *TfrmSetup::createDatabaseBox()
{
    auto *box = new QGroupBox(tr("Datenbank"));
    box->setObjectName(QStringLiteral("grbDatabase"));

    m_DBLocal = new QRadioButton(tr("Local"));
    m_DBLocal->setObjectName(QStringLiteral("DBLocal"));
    m_DBLocal->setChecked(true);
    m_DBServer = new QRadioButton(tr("Server"));
    m_DBServer->setObjectName(QStringLiteral("DBServer"));
    // Only a user's click switches the mode's controls; loading applies the rule once itself.
    connect(m_DBLocal, &QRadioButton::clicked, this, &TfrmSetup::updateServerControls);
    connect(m_DBServer, &QRadioButton::clicked, this, &TfrmSetup::updateServerControls);
    auto *mode = new QWidget; // keeps the two buttons one exclusive pair
    auto *modeRow = new QHBoxLayout(mode);
    modeRow->setContentsMargins(0, 0, 0, 0);
    modeRow->addWidget(m_DBLocal);
    modeRow->addSpacing(16);
    modeRow->addWidget(m_DBServer);
    modeRow->addStretch();

    m_DBPfad = new QLineEdit;
    m_DBPfad->setObjectName(QStringLiteral("DBPfad"));
    m_DBPfad->setMinimumWidth(320);
    m_btnDBPfad = new QToolButton;
    m_btnDBPfad->setObjectName(QStringLiteral("btnDBPfad"));
    m_btnDBPfad->setText(QStringLiteral("…"));
    m_btnDBPfad->setToolTip(tr("Datenbankpfad auswählen"));
    connect(m_btnDBPfad, &QToolButton::clicked, this, &TfrmSetup::browseDatabasePath);
    auto *pathRow = new QHBoxLayout;
    pathRow->setSpacing(2);
    pathRow->addWidget(m_DBPfad, 1);
    pathRow->addWidget(m_btnDBPfad);

    m_Userlogin = new QLineEdit;
    m_Userlogin->setObjectName(QStringLiteral("Userlogin"));
    m_LoginLabel = buddyLabel(tr("Login:"), m_Userlogin, QStringLiteral("LoginLabel"));
    // Shown as typed, not masked: users check what they entered here, as
    // they always could.
    m_Userpass = new QLineEdit;
    m_Userpass->setObjectName(QStringLiteral("Userpass"));
    m_PwLabel = buddyLabel(tr("Passwort:"), m_Userpass, QStringLiteral("PwLabel"));

    m_DBServerName = new QComboBox;
    m_DBServerName->setObjectName(QStringLiteral("DBServerName"));
    m_DBServerName->setEditable(true);
    m_DBServerName->setInsertPolicy(QComboBox::NoInsert);
    connect(m_DBServerName, &QComboBox::currentTextChanged, this, &TfrmSetup::updateScanAlias);
    m_ServerNameLabel = buddyLabel(tr("Servername:"), m_DBServerName, QStringLiteral("ServerNameLabel"));
    m_ServerScanBtn = new QPushButton(tr("Scan Server"));
    m_ServerScanBtn->setObjectName(QStringLiteral("ServerScanBtn"));
    connect(m_ServerScanBtn, &QPushButton::clicked, this, &TfrmSetup::ServerScanBtnClick);

    m_DBAlias = new QComboBox;
    m_DBAlias->setObjectName(QStringLiteral("DBAlias"));
    m_DBAlias->setEditable(true);
    m_DBAlias->setInsertPolicy(QComboBox::NoInsert);
    m_DBAliasLabel = buddyLabel(tr("DB Alias:"), m_DBAlias, QStringLiteral("DBAliasLabel"));
    m_ScanAlias = new QPushButton(tr("Scan Alias"));
    m_ScanAlias->setObjectName(QStringLiteral("ScanAlias"));
    m_ScanAlias->setEnabled(false); // needs a server name first
    connect(m_ScanAlias, &QPushButton::clicked, this, &TfrmSetup::ScanAliasClick);

    m_ScanTimeOut = new QSpinBox;
    m_ScanTimeOut->setObjectName(QStringLiteral("ScanTimeOut"));
    m_ScanTimeOut->setRange(0, INT_MAX);
    m_ScanTimeOut->setSingleStep(100);
    m_ScanTimeOut->setValue(1500);
    m_ScanTimeOut->setAlignment(Qt::AlignRight);
    m_lblTimeOut = buddyLabel(tr("Timeout ms:"), m_ScanTimeOut, QStringLiteral("lblTimeOut"));

    auto *grid = new QGridLayout(box);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(4, 1);
    grid->setColumnMinimumWidth(2, 12);
    int row = 0;
    grid->addWidget(new QLabel(tr("DB Verbindung:")), row, 0);
    grid->addWidget(mode, row++, 1, 1, 5);
    grid->addWidget(buddyLabel(tr("Datenbankpfad:"), m_DBPfad), row, 0);
    grid->addLayout(pathRow, row++, 1, 1, 5);
    grid->addWidget(m_LoginLabel, row, 0);
    grid->addWidget(m_Userlogin, row, 1);
    grid->addWidget(m_PwLabel, row, 3);
    grid->addWidget(m_Userpass, row++, 4, 1, 2);
    grid->addWidget(createProtocolBox(), row++, 0, 1, 6);
    grid->addWidget(m_ServerNameLabel, row, 0);
    grid->addWidget(m_DBServerName, row, 1, 1, 4);
    grid->addWidget(m_ServerScanBtn, row++, 5);
    grid->addWidget(m_DBAliasLabel, row, 0);
    grid->addWidget(m_DBAlias, row, 1, 1, 4);
    grid->addWidget(m_ScanAlias, row++, 5);
    grid->addWidget(m_lblTimeOut, row, 0);
    grid->addWidget(m_ScanTimeOut, row++, 1);
    return box;
}

int TfrmSetup::ServerProtokolIndex() const
{
    return m_protocolButtons->checkedId();
}

void TfrmSetup::setServerProtokolIndex(int index)
{
    const int count = int(m_protocolButtons->buttons().size());
    index = qBound(-1, index, count - 1);
    if (index < 0) {
        // An exclusive group refuses to uncheck its last checked button.
        m_protocolButtons->setExclusive(false);
        if (QAbstractButton *checked = m_protocolButtons->checkedButton())
            checked->setChecked(false);
        m_protocolButtons->setExclusive(true);
        return;
    }
    m_protocolButtons->button(index)->setChecked(true);
}

void TfrmSetup::updateServerControls()
{
    const bool server = !m_DBLocal->isChecked();
    for (QWidget *w : {static_cast<QWidget *>(m_LoginLabel), static_cast<QWidget *>(m_Userlogin),
                       static_cast<QWidget *>(m_PwLabel), static_cast<QWidget *>(m_Userpass),
                       static_cast<QWidget *>(m_ServerProtokol), static_cast<QWidget *>(m_ServerNameLabel),
                       static_cast<QWidget *>(m_DBServerName), static_cast<QWidget *>(m_DBAliasLabel),
                       static_cast<QWidget *>(m_DBAlias), static_cast<QWidget *>(m_ServerScanBtn)})
        w->setEnabled(server);
    m_ScanAlias->setEnabled(server && !m_DBServerName->currentText().isEmpty());
}

void TfrmSetup::updateScanAlias()
{
    m_ScanAlias->setEnabled(!m_DBServerName->currentText().isEmpty());
}

void TfrmSetup::ServerScanBtnClick()
{
    ServerScan::ScanServerBtnClick(m_DBServerName, ConnectionSettings());
}

void TfrmSetup::ScanAliasClick()
{
    // A server that cannot be asked leaves the list empty; say so rather than nothing.
    if (!ServerScan::ScanAliasClick(this, m_DBServerName, m_DBAlias, ConnectionSettings())
        && m_DBServerName->count() > 0)
        UserDialogs::instance().messageDlg(this, TDbConnection::ConnectionErrorText(m_DBServerName->currentText()),
                                           mtError, mbOK);
}

void TfrmSetup::browseDatabasePath()
{
    const QString folder = UserDialogs::instance().directoryDialog(this, tr("Bitte wählen Sie den Datenbankpfad aus:"),
                                                                   m_DBPfad->text());
    if (folder.isEmpty())
        return;
    QString path = QDir::toNativeSeparators(folder);
    // Written as loading shows it, so that the path reads back unchanged.
    if (!path.endsWith(QDir::separator()))
        path += QDir::separator();
    m_DBPfad->setText(path);
}

void TfrmSetup::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_swatchButtons[swDesigner]->setFocus();
}

QString TfrmSetup::DatenbankPfad() const
{
    return m_DBPfad->text();
}
