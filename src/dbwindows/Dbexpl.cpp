#include "Dbexpl.h"

#include "FieldTypes.h"
#include "MaskDocument.h"
#include "MaskFields.h"
#include "UserDialogs.h"

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <climits>

namespace {
// The meanings of the codes as the legend gives them; the record revision
// has no line there.
QString codeMeaning(const QString &code)
{
    for (const QString &line : FieldTypes::legend().split(QStringLiteral("\r\n"))) {
        const int eq = int(line.indexOf(QStringLiteral(" = ")));
        if (eq > 0 && line.left(eq) == code)
            return line.mid(eq + 3);
    }
    return code == QLatin1String("R") ? QCoreApplication::translate("TDbexpl", "Datensatzversion") : QString();
}
} // namespace

TDbexpl::TDbexpl(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("Dbexpl"));
    setWindowTitle(tr("Tabelle erzeugen"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    TableName = new QLineEdit;
    TableName->setObjectName(QStringLiteral("TableName"));
    auto *nameLabel = new QLabel(tr("&Tabellenname:"));
    nameLabel->setBuddy(TableName);
    auto *nameRow = new QHBoxLayout;
    nameRow->addWidget(nameLabel);
    nameRow->addWidget(TableName, 1);

    Grid = new QTableWidget(0, 5);
    Grid->setObjectName(QStringLiteral("Grid"));
    Grid->setHorizontalHeaderLabels({tr("Feldname"), tr("Typ"), tr("Größe"), tr("Schlüssel"), tr("Feldbeschreibung")});
    Grid->setSelectionMode(QAbstractItemView::SingleSelection);
    // Typing, F2 or a double click edits the current cell, as in a spreadsheet.
    Grid->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked
                          | QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    Grid->verticalHeader()->setDefaultSectionSize(Grid->fontMetrics().height() + 8);
    Grid->horizontalHeader()->setStretchLastSection(true);
    const int digit = Grid->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    Grid->setColumnWidth(colFeldname - 1, 20 * digit);
    Grid->setColumnWidth(colTyp - 1, 6 * digit);
    Grid->setColumnWidth(colGroesse - 1, 7 * digit);
    Grid->setColumnWidth(colSchluessel - 1, 10 * digit);
    Grid->setMinimumWidth(78 * digit);
    Grid->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(Grid, &QWidget::customContextMenuRequested, this, &TDbexpl::GridContextPopup);

    TypeMenu = new QMenu(this);
    TypeMenu->setObjectName(QStringLiteral("TypeMenu"));
    for (const QString &code : FieldTypes::codes()) {
        QAction *item = TypeMenu->addAction(code + QLatin1Char('\t') + codeMeaning(code));
        item->setData(code);
        connect(item, &QAction::triggered, this, [this, code] { TypeMenuClick(code); });
        m_typeActions << item;
    }
    m_typeActions << TypeMenu->addSeparator();
    connect(TypeMenu->addAction(tr("Zeile einfügen")), &QAction::triggered, this, &TDbexpl::InsertRowClick);
    connect(TypeMenu->addAction(tr("Zeile löschen")), &QAction::triggered, this, &TDbexpl::DeleteRowClick);

    // The legend keeps its line breaks as the product writes them.
    Legend = new QLabel(QString(FieldTypes::legend()).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    Legend->setObjectName(QStringLiteral("Legend"));
    Legend->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Legend->setFrameShape(QFrame::StyledPanel);
    Legend->setContentsMargins(8, 6, 8, 6);
    Legend->setBackgroundRole(QPalette::Base);
    Legend->setAutoFillBackground(true);
    Legend->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);

    auto *middle = new QHBoxLayout;
    middle->addWidget(Grid, 1);
    middle->addWidget(Legend);

    Gauge = new QProgressBar;
    Gauge->setObjectName(QStringLiteral("Gauge"));
    Gauge->setRange(0, 1);
    Gauge->setValue(0);
    Gauge->setTextVisible(false);
    CreateDB = new QPushButton(tr("Tabelle &erzeugen"));
    CreateDB->setObjectName(QStringLiteral("CreateDB"));
    connect(CreateDB, &QPushButton::clicked, this, &TDbexpl::CreateDBClick);
    OKBtn = new QPushButton(QStringLiteral("OK"));
    OKBtn->setObjectName(QStringLiteral("OKBtn"));
    connect(OKBtn, &QPushButton::clicked, this, &TDbexpl::OKBtnClick);
    // Enter in a grid cell must not close the window.
    CreateDB->setAutoDefault(false);
    OKBtn->setAutoDefault(false);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(Gauge, 1);
    bottom->addSpacing(12);
    bottom->addWidget(CreateDB);
    bottom->addWidget(OKBtn);

    auto *main = new QVBoxLayout(this);
    main->addLayout(nameRow);
    main->addLayout(middle, 1);
    main->addLayout(bottom);
    resize(sizeHint().width(), 540);
}

TDbexpl::~TDbexpl() = default;

QString TDbexpl::cell(int row, int column) const
{
    const QTableWidgetItem *item = Grid->item(row - 1, column - 1);
    return item ? item->text() : QString();
}

void TDbexpl::setCell(int row, int column, const QString &text)
{
    QTableWidgetItem *item = Grid->item(row - 1, column - 1);
    if (!item) {
        item = new QTableWidgetItem;
        Grid->setItem(row - 1, column - 1, item);
    }
    item->setText(text);
}

void TDbexpl::selectCell(int row, int column)
{
    Grid->setFocus();
    Grid->setCurrentCell(row - 1, column - 1);
}

void TDbexpl::setRows(const QVector<TFieldRow> &rows)
{
    Grid->setRowCount(0);
    Grid->setRowCount(int(rows.size()));
    for (int i = 0; i < rows.size(); ++i) {
        const TFieldRow &r = rows.at(i);
        const int row = i + 1;
        setCell(row, colFeldname, r.FieldName);
        setCell(row, colTyp, r.TypeCode);
        setCell(row, colGroesse, r.Size);
        setCell(row, colSchluessel, r.Key);
        setCell(row, colBeschreibung, r.Description);
    }
}

QVector<TFieldRow> TDbexpl::Rows() const
{
    QVector<TFieldRow> rows;
    for (int row = 1; row <= Grid->rowCount(); ++row)
        rows << TFieldRow{cell(row, colFeldname), cell(row, colTyp), cell(row, colGroesse), cell(row, colSchluessel),
                          cell(row, colBeschreibung)};
    return rows;
}

void TDbexpl::FillFromMask(TMaskDocument *mask)
{
    m_mask = mask;
    if (!mask)
        return;
    TableName->setText(mask->Tabelle());
    setRows(MaskFields::FieldRows(mask, mask->TableSettings().Index));
}

void TDbexpl::GridContextPopup(const QPoint &pos)
{
    const QModelIndex index = Grid->indexAt(pos);
    if (index.isValid())
        Grid->setCurrentIndex(index);
    // The codes are offered on the type column only.
    const bool typeColumn = index.isValid() && index.column() == colTyp - 1;
    for (QAction *item : std::as_const(m_typeActions))
        item->setVisible(typeColumn);
    TypeMenu->popup(Grid->viewport()->mapToGlobal(pos));
}

void TDbexpl::TypeMenuClick(const QString &code)
{
    const int row = Grid->currentRow() + 1;
    if (row < 1)
        return;
    // A memo field is made in the mask, where its control is.
    if (code == QLatin1String("M")) {
        UserDialogs::instance().messageDlg(this, tr("Bitte ändern Sie das Feld in der Maske ab."), mtInformation, mbOK);
        return;
    }
    setCell(row, colTyp, code);
}

void TDbexpl::InsertRowClick()
{
    const int at = Grid->currentRow() < 0 ? Grid->rowCount() : Grid->currentRow() + 1;
    Grid->insertRow(at);
    selectCell(at + 1, colFeldname);
}

void TDbexpl::DeleteRowClick()
{
    if (Grid->currentRow() >= 0)
        Grid->removeRow(Grid->currentRow());
}

void TDbexpl::CreateDBClick()
{
    // A cell still being edited counts with what it shows.
    if (QWidget *editor = QApplication::focusWidget(); editor && Grid->isAncestorOf(editor))
        Grid->setFocus();
    TTableGenerator generator(m_connection, connectionSettings ? connectionSettings() : TConnectionSettings());
    generator.Rows = Rows();
    generator.TableName = TableName->text().trimmed();
    if (m_mask)
        generator.Description = m_mask->TableSettings();
    generator.Parent = this;
    generator.OnTableNameMissing = [this] { TableName->setFocus(); };
    generator.OnRowError = [this](int row, int column) { selectCell(row, column); };
    generator.OnProgress = [this](qint64 position, qint64 maximum) {
        Gauge->setTextVisible(true);
        Gauge->setRange(0, int(qMin<qint64>(maximum, INT_MAX)));
        Gauge->setValue(int(qMin(position, maximum)));
    };
    generator.OnConverted = [this] { OKBtn->click(); };
    Gauge->setTextVisible(false);
    Gauge->setRange(0, 1);
    Gauge->setValue(0);
    generator.CreateDB();
}

void TDbexpl::OKBtnClick()
{
    accept();
}
