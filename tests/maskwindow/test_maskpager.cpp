// Dragging a page control with the mouse outside the designer: the left
// button held over the pager takes it along at once, the release drops it.
#include <QtTest>

#include <QGuiApplication>

#include "Containers.h"
#include "FormDesigner.h"
#include "Maske.h"

namespace {

// A shown mask in run mode (its designer off) with a placed page control.
struct PagerFixture
{
    TMaske *mask = new TMaske;
    TAdvOfficePager *pager = nullptr;

    PagerFixture()
    {
        mask->resize(700, 500);
        mask->show();
        pager = qobject_cast<TAdvOfficePager *>(mask->placeControl(TPaletteCode::PageControl, mask->document(), QPoint(20, 30)));
        mask->FormDesigner2()->setActive(false);
        mask->setModified(false);
    }
    ~PagerFixture() { delete mask; }

    // The pager's own area right of its tabs.
    QPoint free() const { return QPoint(pager->width() - 20, 6); }
    // Where a point of the surface is in the pager's coordinates now.
    QPoint fromSurface(const QPoint &p) const { return pager->mapFrom(mask->document(), p); }
};

Qt::CursorShape overrideShape()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor ? cursor->shape() : Qt::ArrowCursor;
}

} // namespace

class TestMaskPager : public QObject
{
    Q_OBJECT

private slots:
    void leftButtonDragsAndReleaseDrops();
    void onlyWiredPagersOutsideTheDesignerDrag();
};

void TestMaskPager::leftButtonDragsAndReleaseDrops()
{
    PagerFixture f;
    QVERIFY(f.pager);
    QVERIFY(f.pager->tabBar()->geometry().right() < f.free().x());
    QCOMPARE(f.pager->pos(), QPoint(20, 30));

    // Another button held: nothing starts.
    QTest::mousePress(f.pager, Qt::RightButton, {}, f.free());
    QTest::mouseMove(f.pager, f.free() + QPoint(15, 15));
    QCOMPARE(f.mask->draggedPager(), nullptr);
    QTest::mouseRelease(f.pager, Qt::RightButton, {}, f.free() + QPoint(15, 15));
    QCOMPARE(f.pager->pos(), QPoint(20, 30));

    // Over a page the mouse is the page's.
    TAdvOfficePage *page = f.pager->ActivePage();
    QTest::mousePress(page, Qt::LeftButton, {}, QPoint(40, 40));
    QTest::mouseMove(page, QPoint(60, 50));
    QCOMPARE(f.mask->draggedPager(), nullptr);
    QTest::mouseRelease(page, Qt::LeftButton, {}, QPoint(60, 50));
    QCOMPARE(f.pager->pos(), QPoint(20, 30));

    // The first move with the left button takes the pager where the mouse
    // is then, and it follows.
    const QPoint start = f.pager->mapTo(f.mask->document(), f.free()) + QPoint(1, 1);
    QTest::mousePress(f.pager, Qt::LeftButton, {}, f.free());
    QCOMPARE(f.mask->draggedPager(), nullptr);
    QTest::mouseMove(f.pager, f.fromSurface(start));
    QCOMPARE(f.mask->draggedPager(), f.pager);
    QCOMPARE(f.pager->pos(), QPoint(20, 30));
    QCOMPARE(overrideShape(), Qt::DragMoveCursor);
    QTest::mouseMove(f.pager, f.fromSurface(start + QPoint(40, 25)));
    QCOMPARE(f.pager->pos(), QPoint(60, 55));
    QTest::mouseMove(f.pager, f.fromSurface(start + QPoint(100, 70)));
    QCOMPARE(f.pager->pos(), QPoint(120, 100));
    QVERIFY(!f.mask->Modified());

    // Released: dropped where the mouse is, the drag and its cursor gone.
    QTest::mouseRelease(f.pager, Qt::LeftButton, {}, f.fromSurface(start + QPoint(110, 80)));
    QCOMPARE(f.mask->draggedPager(), nullptr);
    QCOMPARE(f.pager->pos(), QPoint(130, 110));
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    QVERIFY(f.mask->Modified());

    // Taken by a tab, beyond the surface's corner: it stops at the edge.
    f.mask->setModified(false);
    const QPoint tab = f.pager->tabBar()->tabRect(1).center();
    const QPoint tabStart = f.pager->tabBar()->mapTo(f.mask->document(), tab);
    QTest::mousePress(f.pager->tabBar(), Qt::LeftButton, {}, tab);
    QCOMPARE(f.pager->ActivePageIndex(), 1);
    QTest::mouseMove(f.pager->tabBar(), f.pager->tabBar()->mapFrom(f.mask->document(), tabStart + QPoint(2, 2)));
    QCOMPARE(f.mask->draggedPager(), f.pager);
    const QPoint far = tabStart - QPoint(500, 500);
    QTest::mouseMove(f.pager->tabBar(), f.pager->tabBar()->mapFrom(f.mask->document(), far));
    QCOMPARE(f.pager->pos(), QPoint(0, 0));
    QTest::mouseRelease(f.pager->tabBar(), Qt::LeftButton, {}, f.pager->tabBar()->mapFrom(f.mask->document(), far));
    QCOMPARE(f.mask->draggedPager(), nullptr);
    QCOMPARE(f.pager->pos(), QPoint(0, 0));
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);

    // Let go where it was taken: dropped in place, the mask unchanged.
    f.mask->setModified(false);
    QTest::mousePress(f.pager, Qt::LeftButton, {}, f.free());
    QTest::mouseMove(f.pager, f.free());
    QCOMPARE(f.mask->draggedPager(), f.pager);
    QTest::mouseRelease(f.pager, Qt::LeftButton, {}, f.free());
    QCOMPARE(f.mask->draggedPager(), nullptr);
    QCOMPARE(f.pager->pos(), QPoint(0, 0));
    QVERIFY(!f.mask->Modified());
}

void TestMaskPager::onlyWiredPagersOutsideTheDesignerDrag()
{
    PagerFixture f;

    // A pager the mask did not wire keeps its place.
    auto *loose = new TAdvOfficePager(f.mask->document());
    loose->setBounds(300, 250, 200, 120);
    loose->addPage(f.mask->document()->NewOPage(QStringLiteral("Seite1")));
    loose->show();
    const QPoint at(loose->width() - 10, 6);
    QTest::mousePress(loose, Qt::LeftButton, {}, at);
    QTest::mouseMove(loose, at + QPoint(20, 20));
    QCOMPARE(f.mask->draggedPager(), nullptr);
    QTest::mouseRelease(loose, Qt::LeftButton, {}, at + QPoint(20, 20));
    QCOMPARE(loose->pos(), QPoint(300, 250));

    // Wired as the loader wires the pagers it reads, it drags; wiring twice
    // changes nothing.
    f.mask->wirePager(loose);
    f.mask->wirePager(loose);
    QTest::mousePress(loose, Qt::LeftButton, {}, at);
    QTest::mouseMove(loose, at);
    QCOMPARE(f.mask->draggedPager(), loose);
    QTest::mouseRelease(loose, Qt::LeftButton, {}, at + QPoint(20, 20));
    QCOMPARE(loose->pos(), QPoint(320, 270));
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);

    // While designing the engine has the mouse: no drag of ours, also for
    // a pager placed while the engine watches.
    f.mask->FormDesigner2()->setActive(true);
    auto *designed =
        qobject_cast<TAdvOfficePager *>(f.mask->placeControl(TPaletteCode::PageControl, f.mask->document(), QPoint(20, 250)));
    for (TAdvOfficePager *p : {f.pager, designed}) {
        const QPoint free(p->width() - 20, 6);
        QTest::mousePress(p, Qt::LeftButton, {}, free);
        QTest::mouseMove(p, free + QPoint(10, 10));
        QCOMPARE(f.mask->draggedPager(), nullptr);
        QTest::mouseRelease(p, Qt::LeftButton, {}, free + QPoint(10, 10));
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }
    f.mask->FormDesigner2()->setActive(false);

    // A pager deleted in the middle of its drag takes the drag with it.
    QTest::mousePress(loose, Qt::LeftButton, {}, at);
    QTest::mouseMove(loose, at + QPoint(5, 5));
    QCOMPARE(f.mask->draggedPager(), loose);
    delete loose;
    QCOMPARE(f.mask->draggedPager(), nullptr);
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    // The button still counts as held for the test's mouse; let it go.
    QTest::mouseRelease(f.pager, Qt::LeftButton, {}, f.free());
}

QTEST_MAIN(TestMaskPager)
#include "test_maskpager.moc"
