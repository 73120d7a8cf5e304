#include "Grids.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>

#include "CommonProps.h"

using PropBuilder::prop;

namespace {

// Width of a column listed without one.
constexpr int kDefaultColumnWidth = 64;
constexpr int kMaxColumnWidth = 10000;
// The table model keeps a slot per cell; a damaged mask file must not make
// the grid allocate millions of them. The counts themselves are kept.
constexpr int kMaxGridLines = 1000;

struct ColumnEntry
{
    QString field;
    int width = kDefaultColumnWidth;
};

// "FieldName=Width"; an entry without a numeric width is all field name.
ColumnEntry parseColumn(const QString &entry)
{
    const qsizetype eq = entry.lastIndexOf(QLatin1Char('='));
    if (eq >= 0) {
        bool ok = false;
        const int width = entry.mid(eq + 1).trimmed().toInt(&ok);
        if (ok)
            return {entry.left(eq), std::clamp(width, 0, kMaxColumnWidth)};
    }
    return {entry, kDefaultColumnWidth};
}

QString columnText(const QString &field, int width)
{
    return field + QLatin1Char('=') + QString::number(width);
}

// The header's own font and text colour; titles keep them when the grid's font changes.
void applyTitleFont(QHeaderView *header, const TFont &font)
{
    QFont f = header->font();
    f.setFamily(font.Name);
    if (font.Size > 0)
        f.setPointSize(std::min(font.Size, 1000));
    applyFontStyles(f, font.Style);
    header->setFont(f);
    QPalette pal = header->palette();
    pal.setColor(QPalette::ButtonText, font.Color.toQColor());
    pal.setColor(QPalette::WindowText, font.Color.toQColor());
    header->setPalette(pal);
}

void prepareTitleHeader(QHeaderView *header)
{
    // Column widths are the mask's, however small.
    header->setMinimumSectionSize(0);
    header->setStretchLastSection(false);
    header->setSectionsClickable(false);
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

} // namespace

// --- TDBGrid ---------------------------------------------------------------

TDBGrid::TDBGrid(QWidget *parent) : TInputControlT<QTableWidget>(parent)
{
    prepareTitleHeader(horizontalHeader());
    // The indicator column: narrow, without row numbers.
    verticalHeader()->setFixedWidth(12);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(model(), &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &, int first, int last) {
        for (int row = first; row <= last; ++row)
            setVerticalHeaderItem(row, new QTableWidgetItem);
    });
    setColor(Colors::clWindow);
    resize(320, 120);
    attachToParent();
}

const TClassInfo &TDBGrid::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TDBGrid"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            P::Color(),
            prop("Columns", &TDBGrid::Columns, &TDBGrid::setColumns, {}, QVariant(QStringList())),
            prop("DataSource", &TDBGrid::DataSource, &TDBGrid::setDataSource, {}, QVariant(QString())),
            P::Font(), P::ParentFont(),
            prop("ReadOnly", &TDBGrid::ReadOnly, &TDBGrid::setReadOnly, {}, QVariant(false)),
            prop("TitleFont", &TDBGrid::TitleFont, &TDBGrid::setTitleFont),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(),
            P::Visible(), P::Enabled(),
        },
        [] { return new TDBGrid; },
        /*windowed*/ true,
        /*acceptsControls*/ false,
        /*setCaptionFromName*/ false};
    return info;
}

QStringList TDBGrid::Columns() const
{
    QStringList columns;
    for (int i = 0; i < columnCount(); ++i) {
        const QTableWidgetItem *title = horizontalHeaderItem(i);
        columns << columnText(title ? title->text() : QString(), columnWidth(i));
    }
    return columns;
}

void TDBGrid::setColumns(const QStringList &columns)
{
    noteChange();
    setColumnCount(0);
    for (const QString &entry : columns) {
        const ColumnEntry column = parseColumn(entry);
        addColumn(column.field, column.width);
    }
}

void TDBGrid::addColumn(const QString &fieldName, int width)
{
    const int column = columnCount();
    setColumnCount(column + 1);
    setHorizontalHeaderItem(column, new QTableWidgetItem(fieldName));
    setColumnWidth(column, std::clamp(width, 0, kMaxColumnWidth));
}

TFont TDBGrid::TitleFont() const
{
    return m_titleFont.value_or(Font());
}

void TDBGrid::setTitleFont(const TFont &font)
{
    noteChange();
    m_titleFont = font;
    applyTitleFont(horizontalHeader(), font);
    updateGeometries();
}

void TDBGrid::paintEvent(QPaintEvent *event)
{
    QTableWidget::paintEvent(event);
    // Below the last record the column lines go on, so that a grid without
    // records (as on a mask being designed) still shows its columns.
    if (!showGrid() || columnCount() == 0)
        return;
    const int top = rowCount() > 0 ? rowViewportPosition(rowCount() - 1) + rowHeight(rowCount() - 1) : 0;
    if (top >= viewport()->height())
        return;
    QPainter p(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    p.setPen(QColor::fromRgba(uint(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this))));
    for (int c = 0; c < columnCount(); ++c) {
        const int x = columnViewportPosition(c) + columnWidth(c) - 1;
        if (!isColumnHidden(c) && x >= 0)
            p.drawLine(x, top, x, viewport()->height());
    }
}

void TDBGrid::setReadOnly(bool readOnly)
{
    noteChange();
    m_readOnly = readOnly;
    setEditTriggers(readOnly ? QAbstractItemView::NoEditTriggers
                             : QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                                   | QAbstractItemView::AnyKeyPressed);
}

// --- TcxDBTreeList ---------------------------------------------------------

TcxDBTreeList::TcxDBTreeList(QWidget *parent) : TInputControlT<QTreeWidget>(parent)
{
    prepareTitleHeader(header());
    setColumns({QStringLiteral("Spalte=100")});
    setColor(Colors::clWindow);
    resize(250, 150);
    attachToParent();
}

const TClassInfo &TcxDBTreeList::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TcxDBTreeList"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            P::Color(),
            prop("Columns", &TcxDBTreeList::Columns, &TcxDBTreeList::setColumns, {},
                 QVariant(QStringList{QStringLiteral("Spalte=100")})),
            prop("DragDrop", &TcxDBTreeList::DragDrop, &TcxDBTreeList::setDragDrop, {}, QVariant(false)),
            P::Font(), P::ParentFont(),
            prop("ImageIndexField", &TcxDBTreeList::ImageIndexField, &TcxDBTreeList::setImageIndexField, {},
                 QVariant(QString())),
            prop("KeyField", &TcxDBTreeList::KeyField, &TcxDBTreeList::setKeyField, {},
                 QVariant(QStringLiteral("QXID"))),
            prop("ParentField", &TcxDBTreeList::ParentField, &TcxDBTreeList::setParentField, {},
                 QVariant(QStringLiteral("QXParent"))),
            prop("StateIndexField", &TcxDBTreeList::StateIndexField, &TcxDBTreeList::setStateIndexField, {},
                 QVariant(QString())),
            prop("TitleFont", &TcxDBTreeList::TitleFont, &TcxDBTreeList::setTitleFont),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(),
            P::Visible(), P::Enabled(),
        },
        [] { return new TcxDBTreeList; },
        /*windowed*/ true,
        /*acceptsControls*/ false,
        /*setCaptionFromName*/ false};
    return info;
}

QStringList TcxDBTreeList::Columns() const
{
    QStringList columns;
    const QTreeWidgetItem *titles = headerItem();
    for (int i = 0; i < columnCount(); ++i)
        columns << columnText(titles ? titles->text(i) : QString(), columnWidth(i));
    return columns;
}

void TcxDBTreeList::setColumns(const QStringList &columns)
{
    noteChange();
    QStringList titles;
    QList<int> widths;
    for (const QString &entry : columns) {
        const ColumnEntry column = parseColumn(entry);
        titles << column.field;
        widths << column.width;
    }
    setColumnCount(int(titles.size()));
    setHeaderLabels(titles);
    for (int i = 0; i < widths.size(); ++i)
        setColumnWidth(i, widths.at(i));
}

TFont TcxDBTreeList::TitleFont() const
{
    return m_titleFont.value_or(Font());
}

void TcxDBTreeList::setTitleFont(const TFont &font)
{
    noteChange();
    m_titleFont = font;
    applyTitleFont(header(), font);
    updateGeometries();
}

void TcxDBTreeList::setDragDrop(bool dragDrop)
{
    noteChange();
    m_dragDrop = dragDrop;
    setDragDropMode(dragDrop ? QAbstractItemView::InternalMove : QAbstractItemView::NoDragDrop);
}

// --- TStringGrid -----------------------------------------------------------

namespace {

// Paints the title cells of a string grid like raised buttons.
class FixedCellDelegate : public QStyledItemDelegate
{
public:
    explicit FixedCellDelegate(TStringGrid *grid) : QStyledItemDelegate(grid), m_grid(grid) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (!m_grid->isFixedCell(index.row(), index.column())) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        QStyleOptionViewItem opt = option;
        initStyleOption(&opt, index);
        const QRect r = opt.rect;
        painter->save();
        painter->fillRect(r, opt.palette.color(QPalette::Button));
        painter->setPen(opt.palette.color(QPalette::Light));
        painter->drawLine(r.topLeft(), r.topRight());
        painter->drawLine(r.topLeft(), r.bottomLeft());
        painter->setPen(opt.palette.color(QPalette::Mid));
        painter->drawLine(r.bottomLeft(), r.bottomRight());
        painter->drawLine(r.topRight(), r.bottomRight());
        painter->setFont(opt.font);
        painter->setPen(opt.palette.color(QPalette::ButtonText));
        painter->drawText(r.adjusted(2, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter, opt.text);
        painter->restore();
    }

private:
    TStringGrid *m_grid;
};

} // namespace

TStringGrid::TStringGrid(QWidget *parent) : TInputControlT<QTableWidget>(parent)
{
    // Title cells are real cells; the view's own headers stay hidden.
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setDefaultSectionSize(m_defaultColWidth);
    verticalHeader()->setDefaultSectionSize(m_defaultRowHeight);
    setItemDelegate(new FixedCellDelegate(this));
    setShowGrid(true);
    QTableWidget::setColumnCount(m_colCount);
    QTableWidget::setRowCount(m_rowCount);
    setColor(Colors::clWindow);
    resize(320, 120);
    attachToParent();
}

const TClassInfo &TStringGrid::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TStringGrid"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("ColCount", &TStringGrid::ColCount, &TStringGrid::setColCount, {}, QVariant(5)),
            P::Color(),
            prop("DefaultColWidth", &TStringGrid::DefaultColWidth, &TStringGrid::setDefaultColWidth, {},
                 QVariant(64)),
            prop("DefaultRowHeight", &TStringGrid::DefaultRowHeight, &TStringGrid::setDefaultRowHeight, {},
                 QVariant(24)),
            prop("FixedCols", &TStringGrid::FixedCols, &TStringGrid::setFixedCols, {}, QVariant(1)),
            prop("RowCount", &TStringGrid::RowCount, &TStringGrid::setRowCount, {}, QVariant(5)),
            prop("FixedRows", &TStringGrid::FixedRows, &TStringGrid::setFixedRows, {}, QVariant(1)),
            P::Font(), P::ParentFont(),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(),
            P::Visible(), P::Enabled(),
        },
        [] { return new TStringGrid; },
        /*windowed*/ true,
        /*acceptsControls*/ false,
        /*setCaptionFromName*/ false};
    return info;
}

void TStringGrid::setColCount(int count)
{
    noteChange();
    m_colCount = qMax(1, count);
    QTableWidget::setColumnCount(qMin(m_colCount, kMaxGridLines));
}

void TStringGrid::setRowCount(int count)
{
    noteChange();
    m_rowCount = qMax(1, count);
    QTableWidget::setRowCount(qMin(m_rowCount, kMaxGridLines));
}

void TStringGrid::setFixedCols(int count)
{
    noteChange();
    m_fixedCols = qMax(0, count);
    viewport()->update();
}

void TStringGrid::setFixedRows(int count)
{
    noteChange();
    m_fixedRows = qMax(0, count);
    viewport()->update();
}

void TStringGrid::setDefaultColWidth(int width)
{
    noteChange();
    m_defaultColWidth = std::clamp(width, 0, kMaxColumnWidth);
    // Like the grid it stands for, every column takes the new width.
    horizontalHeader()->setDefaultSectionSize(m_defaultColWidth);
}

void TStringGrid::setDefaultRowHeight(int height)
{
    noteChange();
    m_defaultRowHeight = std::clamp(height, 0, kMaxColumnWidth);
    verticalHeader()->setDefaultSectionSize(m_defaultRowHeight);
}

bool TStringGrid::isFixedCell(int row, int column) const
{
    return row < m_fixedRows || column < m_fixedCols;
}

QModelIndex TStringGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // The cursor stays among the editable cells.
    const QModelIndex index = QTableWidget::moveCursor(action, modifiers);
    if (!index.isValid() || !isFixedCell(index.row(), index.column()))
        return index;
    const int row = qMax(index.row(), m_fixedRows);
    const int column = qMax(index.column(), m_fixedCols);
    if (row >= rowCount() || column >= columnCount())
        return currentIndex();
    return model()->index(row, column);
}

QItemSelectionModel::SelectionFlags TStringGrid::selectionCommand(const QModelIndex &index,
                                                                  const QEvent *event) const
{
    if (index.isValid() && isFixedCell(index.row(), index.column()))
        return QItemSelectionModel::NoUpdate;
    return QTableWidget::selectionCommand(index, event);
}

bool TStringGrid::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (index.isValid() && isFixedCell(index.row(), index.column()))
        return false;
    return QTableWidget::edit(index, trigger, event);
}
