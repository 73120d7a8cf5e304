// The grids of a mask: the data grid, the tree list and the string grid.
// Their columns and title fonts and their fixed cells.
#include <QtTest>

#include <QHeaderView>
#include <QLineEdit>

#include "CommonProps.h"
#include "helper_properties.h"
#include "Grids.h"

namespace {

// The colour in the middle of a cell as the grid paints it.
QColor cellColor(QTableWidget *grid, int row, int column)
{
    const QRect r = grid->visualRect(grid->model()->index(row, column));
    return grid->viewport()->grab().toImage().pixelColor(r.center().x(), r.top() + 3);
}

// Types as a user does: each key goes to whatever has the focus by then.
void typeIntoFocus(const QString &text)
{
    for (const QChar ch : text)
        QTest::keyClick(QApplication::focusWidget(), ch.toLatin1());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

TFont bigRedFont()
{
    TFont f;
    f.Name = QStringLiteral("DejaVu Sans");
    f.Size = 16;
    f.Color = Colors::clRed;
    f.Style = fsBold;
    return f;
}

} // namespace

class TestGrids : public QObject
{
    Q_OBJECT

private slots:
    void dbGridColumnsBuildTheHeader();
    void titleFontStylesTheHeaderOnly();
    void treeListColumnsAndDragging();
    void stringGridSizesAndFixedCells();
    void fixedCellsStayOutOfTheUsersWay();
    void readOnlyDataGridOpensNoEditor();
};

void TestGrids::dbGridColumnsBuildTheHeader()
{
    TDBGrid grid;
    const TPropInfo *columns = grid.classInfo().property(QStringLiteral("Columns"));
    columns->write(&grid, QStringList{QStringLiteral("Spaltentitel=120")});
    QCOMPARE(grid.columnCount(), 1);
    QCOMPARE(grid.model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Spaltentitel"));
    QCOMPARE(grid.columnWidth(0), 120);
    QCOMPARE(columns->read(&grid).toStringList(), QStringList{QStringLiteral("Spaltentitel=120")});

    // Writing the list again replaces the columns; an entry without a width gets the default one.
    grid.setColumns({QStringLiteral("Name=80"), QStringLiteral("Ort"), QStringLiteral("a=b=5"),
                     QStringLiteral("Breite=x"), QStringLiteral("Schmal=3")});
    QCOMPARE(grid.Columns(), (QStringList{"Name=80", "Ort=64", "a=b=5", "Breite=x=64", "Schmal=3"}));
    QCOMPARE(grid.columnWidth(4), 3);
    grid.addColumn(QStringLiteral("Plz"), 45);
    QCOMPARE(grid.Columns().last(), QStringLiteral("Plz=45"));
    QCOMPARE(grid.columnCount(), 6);
    grid.setColumns({});
    QCOMPARE(grid.columnCount(), 0);

    // A column the user widens is saved with its new width.
    grid.setColumns({QStringLiteral("Name=80")});
    grid.horizontalHeader()->resizeSection(0, 95);
    QCOMPARE(grid.Columns(), QStringList{QStringLiteral("Name=95")});

    // The indicator column: narrow and without row numbers.
    grid.show();
    QVERIFY(QTest::qWaitForWindowExposed(&grid));
    QCOMPARE(grid.verticalHeader()->width(), 12);
    QCOMPARE(grid.viewport()->x(), 12 + grid.frameWidth());
    grid.insertRow(0);
    grid.insertRow(1);
    QCOMPARE(grid.model()->headerData(1, Qt::Vertical).toString(), QString());
    // An empty grid shows its title row above a white area.
    grid.setRowCount(0);
    QVERIFY(grid.horizontalHeader()->isVisible());
    QVERIFY(grid.horizontalHeader()->height() > 10);
    const QImage area = grid.viewport()->grab().toImage();
    const QColor white = Colors::clWindow.toQColor();
    QCOMPARE(area.pixelColor(area.width() - 5, area.height() - 5), white);
    // Its column lines run down the empty area.
    QCOMPARE(area.pixelColor(40, area.height() - 5), white);
    QVERIFY(area.pixelColor(94, area.height() - 5) != white);
}

void TestGrids::titleFontStylesTheHeaderOnly()
{
    TDBGrid grid;
    grid.setColumns({QStringLiteral("MMMM=150")});
    TcxDBTreeList tree;
    tree.setColumns({QStringLiteral("MMMM=150")});
    const QList<QPair<QAbstractItemView *, QHeaderView *>> views = {{&grid, grid.horizontalHeader()},
                                                                     {&tree, tree.header()}};
    for (const auto &[view, header] : views) {
        TControl *c = TControl::from(view);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view));
        // Until it is set, the title font is the grid's font.
        QCOMPARE(c->classInfo().property(QStringLiteral("TitleFont"))->read(view).value<TFont>(), c->Font());
        const int plainHeight = header->height();
        const int fontSize = view->font().pointSize();
        const int redBefore = countPixels(header->grab().toImage(), isReddish);

        c->classInfo().property(QStringLiteral("TitleFont"))->write(view, QVariant::fromValue(bigRedFont()));
        QCOMPARE(header->font().pointSize(), 16);
        QVERIFY(header->font().bold());
        QCOMPARE(view->font().pointSize(), fontSize);
        QVERIFY(header->height() > plainHeight);
        QVERIFY(countPixels(header->grab().toImage(), isReddish) > redBefore + 20);

        // The grid's own font leaves the titles alone.
        TFont small = c->Font();
        small.Size = 7;
        c->setFont(small);
        QCOMPARE(header->font().pointSize(), 16);
        QCOMPARE(c->classInfo().property(QStringLiteral("TitleFont"))->read(view).value<TFont>(), bigRedFont());
    }
}

void TestGrids::treeListColumnsAndDragging()
{
    TcxDBTreeList tree;
    const TPropInfo *columns = tree.classInfo().property(QStringLiteral("Columns"));
    columns->write(&tree, QStringList{QStringLiteral("Bezeichnung=140"), QStringLiteral("Nr=40")});
    QCOMPARE(tree.columnCount(), 2);
    QCOMPARE(tree.headerItem()->text(1), QStringLiteral("Nr"));
    QCOMPARE(tree.columnWidth(0), 140);
    // Sizing the control keeps the column widths the mask gave.
    tree.resize(600, 200);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    QCOMPARE(columns->read(&tree).toStringList(), (QStringList{"Bezeichnung=140", "Nr=40"}));

    tree.setDragDrop(true);
    QCOMPARE(tree.dragDropMode(), QAbstractItemView::InternalMove);
    tree.setDragDrop(false);
    QCOMPARE(tree.dragDropMode(), QAbstractItemView::NoDragDrop);
}

void TestGrids::stringGridSizesAndFixedCells()
{
    TStringGrid grid;
    grid.resize(400, 200);
    grid.setDefaultRowHeight(20);
    grid.show();
    QVERIFY(QTest::qWaitForWindowExposed(&grid));
    const QColor button = grid.palette().color(QPalette::Button);
    const QColor base = grid.palette().color(QPalette::Base);
    QVERIFY(button != base);
    // No cell is current, so none shows as selected.
    grid.setCurrentIndex(QModelIndex());

    QCOMPARE(cellColor(&grid, 0, 0), button);
    QCOMPARE(cellColor(&grid, 0, 3), button);
    QCOMPARE(cellColor(&grid, 3, 0), button);
    QCOMPARE(cellColor(&grid, 1, 1), base);
    // Titles are cells of the grid: no header views of their own.
    QVERIFY(grid.horizontalHeader()->isHidden());
    QVERIFY(grid.verticalHeader()->isHidden());
    QVERIFY(grid.showGrid());
    // The colour is the data cells'; the titles keep theirs.
    grid.setColor(Colors::clYellow);
    QCOMPARE(cellColor(&grid, 1, 1), QColor(255, 255, 0));
    QCOMPARE(cellColor(&grid, 0, 1), button);

    grid.setFixedCols(2);
    grid.setFixedRows(0);
    QCOMPARE(cellColor(&grid, 1, 1), button);
    QCOMPARE(cellColor(&grid, 0, 2), QColor(255, 255, 0));

    grid.setColCount(3);
    grid.setRowCount(7);
    QCOMPARE(grid.columnCount(), 3);
    QCOMPARE(grid.rowCount(), 7);
    grid.setColCount(0); // at least one column
    QCOMPARE(grid.ColCount(), 1);
    grid.setColCount(6);

    grid.horizontalHeader()->resizeSection(4, 30);
    grid.setDefaultColWidth(50);
    for (int c = 0; c < grid.columnCount(); ++c)
        QCOMPARE(grid.columnWidth(c), 50);
    grid.setDefaultRowHeight(18);
    QCOMPARE(grid.rowHeight(6), 18);

    // A damaged mask asking for a million lines keeps its numbers without a cell for each.
    grid.setRowCount(1000000);
    grid.setColCount(1000000);
    QCOMPARE(grid.RowCount(), 1000000);
    QCOMPARE(grid.ColCount(), 1000000);
    QVERIFY(qint64(grid.rowCount()) * grid.columnCount() <= 1000000);
}

void TestGrids::fixedCellsStayOutOfTheUsersWay()
{
    TStringGrid grid;
    grid.resize(400, 200);
    grid.show();
    grid.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&grid));
    auto cellCenter = [&grid](int row, int column) {
        return grid.visualRect(grid.model()->index(row, column)).center();
    };
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cellCenter(2, 2));
    QCOMPARE(grid.currentRow(), 2);
    QCOMPARE(grid.currentColumn(), 2);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cellCenter(0, 3));
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cellCenter(3, 0));
    QVERIFY(!grid.selectionModel()->isSelected(grid.model()->index(3, 0)));
    QVERIFY(!grid.selectionModel()->isSelected(grid.model()->index(0, 3)));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cellCenter(0, 3));
    QVERIFY(!grid.findChild<QLineEdit *>() || !grid.findChild<QLineEdit *>()->isVisible());

    // The cursor keys stop at the titles.
    grid.setCurrentCell(1, 1);
    QTest::keyClick(&grid, Qt::Key_Left);
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Home);
    QCOMPARE(grid.currentRow(), 1);
    QCOMPARE(grid.currentColumn(), 1);
    QTest::keyClick(&grid, Qt::Key_Right);
    QCOMPARE(grid.currentColumn(), 2);

    // Typing in a data cell edits it.
    typeIntoFocus(QStringLiteral("abc"));
    QCoreApplication::processEvents(); // the editor hands its text over from the event loop
    QVERIFY(grid.item(1, 2));
    QCOMPARE(grid.item(1, 2)->text(), QStringLiteral("abc"));
}

void TestGrids::readOnlyDataGridOpensNoEditor()
{
    TDBGrid grid;
    grid.setColumns({QStringLiteral("Name=100")});
    grid.setRowCount(1);
    grid.show();
    grid.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&grid));
    grid.setCurrentCell(0, 0);
    auto editorOpen = [&grid] {
        const auto *editor = grid.findChild<QLineEdit *>();
        return editor && editor->isVisible();
    };
    grid.setReadOnly(true);
    QTest::keyClicks(&grid, QStringLiteral("x"));
    QTest::keyClick(&grid, Qt::Key_F2);
    QVERIFY(!editorOpen());
    grid.setReadOnly(false);
    QTest::keyClick(&grid, Qt::Key_F2);
    QVERIFY(editorOpen());
}

QTEST_MAIN(TestGrids)
#include "test_grids.moc"
