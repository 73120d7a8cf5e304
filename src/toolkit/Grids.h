#pragma once

#include <QTableWidget>
#include <QTreeWidget>
#include <optional>

#include "Edits.h"

class QHeaderView;

// A grid showing the records of a data source. Its columns are listed as
// "FieldName=Width", one entry per column; the title of a column is its field.
class TDBGrid : public TInputControlT<QTableWidget>
{
    Q_OBJECT
public:
    explicit TDBGrid(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QStringList Columns() const;
    void setColumns(const QStringList &columns);
    void addColumn(const QString &fieldName, int width);
    // The header font; follows Font until it is set.
    TFont TitleFont() const;
    void setTitleFont(const TFont &font);
    bool ReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
    QString DataSource() const { return m_dataSource; }
    void setDataSource(const QString &source)
    {
        noteChange();
        m_dataSource = source;
    }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<TFont> m_titleFont;
    bool m_readOnly = false;
    QString m_dataSource;
};

// A tree of records linked by KeyField and ParentField, shown in columns
// listed like a TDBGrid's.
class TcxDBTreeList : public TInputControlT<QTreeWidget>
{
    Q_OBJECT
public:
    explicit TcxDBTreeList(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QStringList Columns() const;
    void setColumns(const QStringList &columns);
    TFont TitleFont() const;
    void setTitleFont(const TFont &font);
    QString KeyField() const { return m_keyField; }
    void setKeyField(const QString &field)
    {
        noteChange();
        m_keyField = field;
    }
    QString ParentField() const { return m_parentField; }
    void setParentField(const QString &field)
    {
        noteChange();
        m_parentField = field;
    }
    QString StateIndexField() const { return m_stateIndexField; }
    void setStateIndexField(const QString &field)
    {
        noteChange();
        m_stateIndexField = field;
    }
    QString ImageIndexField() const { return m_imageIndexField; }
    void setImageIndexField(const QString &field)
    {
        noteChange();
        m_imageIndexField = field;
    }
    // The user may move nodes to other parents by dragging.
    bool DragDrop() const { return m_dragDrop; }
    void setDragDrop(bool dragDrop);

private:
    std::optional<TFont> m_titleFont;
    QString m_keyField = QStringLiteral("QXID");
    QString m_parentField = QStringLiteral("QXParent");
    QString m_stateIndexField;
    QString m_imageIndexField;
    bool m_dragDrop = false;
};

// A grid of text cells. The first FixedRows rows and FixedCols columns are
// titles: cells of the grid itself, painted like buttons, never edited.
class TStringGrid : public TInputControlT<QTableWidget>
{
    Q_OBJECT
public:
    explicit TStringGrid(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    int ColCount() const { return m_colCount; }
    void setColCount(int count);
    int RowCount() const { return m_rowCount; }
    void setRowCount(int count);
    int FixedCols() const { return m_fixedCols; }
    void setFixedCols(int count);
    int FixedRows() const { return m_fixedRows; }
    void setFixedRows(int count);
    int DefaultColWidth() const { return m_defaultColWidth; }
    void setDefaultColWidth(int width);
    int DefaultRowHeight() const { return m_defaultRowHeight; }
    void setDefaultRowHeight(int height);

    // A title cell, as far as the grid's current size reaches.
    bool isFixedCell(int row, int column) const;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event = nullptr) const override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;

private:
    int m_colCount = 5;
    int m_rowCount = 5;
    int m_fixedCols = 1;
    int m_fixedRows = 1;
    int m_defaultColWidth = 64;
    int m_defaultRowHeight = 24;
};
