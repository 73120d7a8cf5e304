#pragma once

#include <QDialog>
#include <QPointer>
#include <QVector>
#include <functional>

#include "ConnectionSettings.h"
#include "DbConnection.h"
#include "TableGenerator.h"

class QLabel;
class QLineEdit;
class QMenu;
class QProgressBar;
class QPushButton;
class QTableWidget;
class TMaskDocument;

// The table explorer "Tabelle erzeugen": one grid row per data field of a
// mask, edited by the user, then made into a database table by "CreateDB".
// The window owns the database objects it connects with.
class TDbexpl : public QDialog
{
    Q_OBJECT
public:
    // The grid's columns (the product counts them from 1).
    enum Column { colFeldname = 1, colTyp, colGroesse, colSchluessel, colBeschreibung };

    explicit TDbexpl(QWidget *parent = nullptr);
    ~TDbexpl() override;

    // The live connection values (the settings window's controls).
    std::function<TConnectionSettings()> connectionSettings;

    // Table name and rows from the mask; the mask's table settings go into
    // the description file when the table is made.
    void FillFromMask(TMaskDocument *mask);
    void setRows(const QVector<TFieldRow> &rows);
    QVector<TFieldRow> Rows() const;

    TDbConnection &connection() { return m_connection; }

    void CreateDBClick();
    void OKBtnClick();

private:
    void GridContextPopup(const QPoint &pos);
    void TypeMenuClick(const QString &code);
    void InsertRowClick();
    void DeleteRowClick();
    QString cell(int row, int column) const;
    void setCell(int row, int column, const QString &text);
    void selectCell(int row, int column);

    TDbConnection m_connection;
    QPointer<TMaskDocument> m_mask;

    QLineEdit *TableName = nullptr;
    QTableWidget *Grid = nullptr;
    QLabel *Legend = nullptr;
    QProgressBar *Gauge = nullptr;
    QPushButton *CreateDB = nullptr;
    QPushButton *OKBtn = nullptr;
    QMenu *TypeMenu = nullptr;
    QList<QAction *> m_typeActions;
};
