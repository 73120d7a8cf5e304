// The rest of what happens on the design surface: arrow keys that move and
// size, the rubber band, placing new controls, and the grid background.
#include <QScreen>
#include <QtTest>

#include "DesignerWidgets.h"
#include "helper_designform.h"
#include "helper_mouse.h"

class TestDesignSurface : public QObject
{
    Q_OBJECT

private slots:
    void arrowKeysMoveAndSize();
    void pixelMovesKeepOneContainerAndNoLockedControls();
    void rubberBandSelectsWithinOneContainer();
    void placingCreatesTheArmedClass();
    void gridBackground();
};

namespace {
void key(DesignForm &f, int k, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(f.surface, Qt::Key(k), modifiers);
}

const Qt::KeyboardModifiers kCtrl = Qt::ControlModifier;
const Qt::KeyboardModifiers kShift = Qt::ShiftModifier;
const Qt::KeyboardModifiers kCtrlShift = Qt::ControlModifier | Qt::ShiftModifier;
} // namespace

void TestDesignSurface::arrowKeysMoveAndSize()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {3, 40, 75, 25});
    auto *other = f.add<TMaskBtn>(nullptr, {200, 40, 75, 25});
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    click(button);
    Reports r;
    r.watch(f.designer);

    // Shift+Ctrl: exactly one grid step, not onto the grid.
    key(f, Qt::Key_Right, kCtrlShift);
    QCOMPARE(button->geometry(), QRect(11, 40, 75, 25));
    QCOMPARE(r.moved, QList<QWidget *>{button});
    QCOMPARE(r.changes, 1);
    // Ctrl: one pixel each way.
    key(f, Qt::Key_Right, kCtrl);
    key(f, Qt::Key_Up, kCtrl);
    key(f, Qt::Key_Left, kCtrl);
    key(f, Qt::Key_Left, kCtrl);
    key(f, Qt::Key_Down, kCtrl);
    key(f, Qt::Key_Down, kCtrl);
    QCOMPARE(button->geometry(), QRect(10, 41, 75, 25));
    QCOMPARE(r.changes, 7);
    // Shift: the right and bottom edges.
    key(f, Qt::Key_Right, kShift);
    key(f, Qt::Key_Down, kShift);
    QCOMPARE(button->geometry(), QRect(10, 41, 76, 26));
    key(f, Qt::Key_Left, kShift);
    key(f, Qt::Key_Up, kShift);
    QCOMPARE(button->geometry(), QRect(10, 41, 75, 25));
    QCOMPARE(r.changes, 11);
    QCOMPARE(r.moved.size(), 11);

    // Down to a width of 0, never below; a key that changes nothing reports nothing.
    button->setBounds(10, 41, 1, 25);
    key(f, Qt::Key_Left, kShift);
    QCOMPARE(button->geometry(), QRect(10, 41, 0, 25));
    r.clear();
    key(f, Qt::Key_Left, kShift);
    QCOMPARE(button->width(), 0);
    // The parent's edge holds a move.
    button->setBounds(0, 5, 75, 25);
    key(f, Qt::Key_Left, kCtrl);
    key(f, Qt::Key_Up, kCtrlShift);
    QCOMPARE(button->geometry(), QRect(0, 0, 75, 25));
    key(f, Qt::Key_Up, kCtrlShift);
    QCOMPARE(button->geometry(), QRect(0, 0, 75, 25));
    QCOMPARE(r.changes, 1);

    // The limits of the handlers hold keys as well.
    f.designer->OnMoveLimit = [](QObject *, QWidget *, QRect &limit) { limit = QRect(0, 0, 100, 400); };
    f.designer->OnSizeLimit = [](QObject *, QWidget *, QPoint &minSize, QPoint &) { minSize = QPoint(70, 0); };
    button->setBounds(3, 40, 75, 25);
    key(f, Qt::Key_Right, kCtrlShift);
    key(f, Qt::Key_Right, kCtrlShift);
    QCOMPARE(button->x(), 19);
    key(f, Qt::Key_Right, kCtrlShift);
    QCOMPARE(button->x(), 25); // right edge at 100
    for (int i = 0; i < 10; ++i)
        key(f, Qt::Key_Left, kShift);
    QCOMPARE(button->width(), 70);
    f.designer->OnMoveLimit = nullptr;
    f.designer->OnSizeLimit = nullptr;

    // With SnapToGridKey Ctrl alone moves a grid step.
    f.designer->setSnapToGridKey(true);
    button->setBounds(3, 40, 75, 25);
    key(f, Qt::Key_Right, kCtrl);
    QCOMPARE(button->x(), 11);

    // Without modifiers the arrows walk the tab order and move nothing.
    r.clear();
    key(f, Qt::Key_Right, {});
    QCOMPARE(f.designer->selection(), QList<QWidget *>{other});
    key(f, Qt::Key_Left, {});
    QCOMPARE(f.designer->selection(), QList<QWidget *>{button});
    QCOMPARE(button->x(), 11);
    QVERIFY(r.moved.isEmpty());
    QCOMPARE(r.changes, 0);
}

void TestDesignSurface::pixelMovesKeepOneContainerAndNoLockedControls()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {20, 40, 75, 25});
    auto *other = f.add<TMaskBtn>(nullptr, {200, 40, 75, 25});
    auto *panel = f.add<TPanel>(nullptr, {300, 200, 200, 100});
    auto *inner = f.add<TMaskBtn>(panel, {10, 10, 60, 24});
    auto *locked = f.add<TPanel>(nullptr, {50, 250, 100, 50});
    f.designer->setLockedControls({locked->objectName()});
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    Reports r;
    r.watch(f.designer);

    // A grid step moves the whole selection except what is locked.
    click(button);
    click(other, Qt::ShiftModifier);
    click(locked, Qt::ShiftModifier, {50, 30});
    key(f, Qt::Key_Down, kCtrlShift);
    QCOMPARE(button->pos(), QPoint(20, 48));
    QCOMPARE(other->pos(), QPoint(200, 48));
    QCOMPARE(locked->pos(), QPoint(50, 250));
    QCOMPARE(r.moved, (QList<QWidget *>{button, other}));
    QCOMPARE(r.changes, 1);
    QCOMPARE(f.designer->ControlCount(), 3);

    // A pixel move first lets go of the locked control and of those on
    // another parent.
    click(inner, Qt::ShiftModifier);
    QCOMPARE(f.designer->ControlCount(), 4);
    r.clear();
    key(f, Qt::Key_Right, kCtrl);
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{button, other}));
    QCOMPARE(button->pos(), QPoint(21, 48));
    QCOMPARE(other->pos(), QPoint(201, 48));
    QCOMPARE(inner->pos(), QPoint(10, 10));
    QCOMPARE(locked->pos(), QPoint(50, 250));
    QCOMPARE(r.moved, (QList<QWidget *>{button, other}));
    QCOMPARE(r.changes, 1);
}

void TestDesignSurface::rubberBandSelectsWithinOneContainer()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {100, 100, 80, 24});
    auto *b = f.add<TMaskBtn>(nullptr, {200, 100, 80, 24});
    auto *c = f.add<TMaskBtn>(nullptr, {100, 300, 80, 24});
    auto *panel = f.add<TPanel>(nullptr, {350, 150, 200, 150});
    auto *inner1 = f.add<TMaskBtn>(panel, {10, 10, 60, 24});
    f.add<TMaskBtn>(panel, {10, 100, 60, 24});
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));

    // From the empty surface: what the band touches, in creation order.
    HeldMouse band(f.surface, {90, 90});
    band.moveBy({60, 20});
    QCOMPARE(f.designer->MouseAction(), maSelecting);
    QCOMPARE(hintText(), QStringLiteral("150, 110"));
    const QImage shown = overlayImage(f.surface);
    int dots = 0;
    for (int x = 90; x < 150; ++x)
        dots += shown.pixel(x, 90) == qRgb(128, 128, 128);
    QVERIFY(dots > 10);
    band.moveBy({120, 40}); // to (210, 130)
    band.release();
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{a, b}));
    QCOMPARE(f.designer->MouseAction(), maNone);
    QVERIFY(!shownHint());

    // SelectInBox: only what lies wholly inside; the band replaces the selection.
    f.designer->setSelectInBox(true);
    {
        HeldMouse m(f.surface, {90, 90});
        m.moveBy({120, 40});
        m.release();
    }
    QCOMPARE(f.designer->selection(), QList<QWidget *>{a});

    // Shift adds.
    {
        HeldMouse m(f.surface, {90, 290}, Qt::ShiftModifier);
        m.moveBy({100, 40}, Qt::ShiftModifier);
        m.release(Qt::ShiftModifier);
    }
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{a, c}));

    // Started with Ctrl on a container, the band picks among its children.
    f.designer->setSelectInBox(false);
    {
        HeldMouse m(panel, {5, 5}, Qt::ControlModifier);
        m.moveBy({60, 20}, Qt::ControlModifier);
        m.release(Qt::ControlModifier);
    }
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{a, c, inner1}));

    // OnEndSelecting may change the rectangle (design control coordinates).
    QRect seen;
    f.designer->OnEndSelecting = [&](QObject *, QRect &r) {
        seen = r;
        r = QRect(95, 295, 10, 10);
    };
    click(f.surface, {}, {500, 380});
    QCOMPARE(seen, QRect(500, 380, 0, 0));
    QCOMPARE(f.designer->selection(), QList<QWidget *>{c});

    // A click on the empty surface selects nothing.
    f.designer->OnEndSelecting = nullptr;
    click(f.surface, {}, {500, 380});
    QCOMPARE(f.designer->ControlCount(), 0);
}

void TestDesignSurface::placingCreatesTheArmedClass()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {300, 150, 200, 150});
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    QList<QObject *> placed;
    f.designer->OnPlaceComponent = [&](QObject *, QObject *c) { placed << c; };
    Reports r;
    r.watch(f.designer);

    // A click: the class's default size at the click point.
    f.designer->PlaceComponentClassName(QStringLiteral("TPanel"));
    click(f.surface, {}, {120, 80});
    QCOMPARE(placed.size(), 1);
    auto *created = qobject_cast<TPanel *>(placed.first());
    QVERIFY(created);
    QCOMPARE(created->objectName(), QStringLiteral("Panel2"));
    QCOMPARE(created->parentWidget(), f.surface);
    QCOMPARE(Components::owner(created), static_cast<QObject *>(&f.form));
    QCOMPARE(created->geometry(), QRect(QPoint(120, 80), TPanel().size()));
    QVERIFY(created->isVisible());
    QCOMPARE(f.designer->selection(), QList<QWidget *>{created});
    QCOMPARE(r.changes, 1);
    QCOMPARE(f.designer->MouseAction(), maNone);

    // The tool is used up: the next click places nothing.
    click(f.surface, {}, {20, 350});
    QCOMPARE(placed.size(), 1);

    // A drawn rectangle gives the bounds, in the container under the press.
    QRect seen;
    f.designer->OnEndPlacing = [&](QObject *, QRect &r) { seen = r; };
    f.designer->PlaceComponentClassName(QStringLiteral("tmaskbtn"));
    {
        HeldMouse m(panel, {20, 30});
        m.moveBy({100, 40});
        QCOMPARE(f.designer->MouseAction(), maPlacing);
        QCOMPARE(overlayImage(f.surface).pixel(320, 200), qRgb(128, 128, 128));
        QCOMPARE(hintText(), QStringLiteral("420, 220"));
        m.release();
    }
    QCOMPARE(seen, QRect(320, 180, 100, 40));
    QCOMPARE(placed.size(), 2);
    auto *button = qobject_cast<TMaskBtn *>(placed.last());
    QVERIFY(button);
    QCOMPARE(button->objectName(), QStringLiteral("MaskBtn1"));
    QCOMPARE(button->parentWidget(), static_cast<QWidget *>(panel));
    QCOMPARE(button->geometry(), QRect(20, 30, 100, 40));

    // OnEndPlacing may move it; the grid snaps a click.
    f.designer->OnEndPlacing = [](QObject *, QRect &r) { r.translate(0, 100); };
    f.designer->setSnapToGrid(true);
    f.designer->PlaceComponentClassName(QStringLiteral("TLabel"));
    click(f.surface, {}, {13, 13});
    QCOMPARE(placed.size(), 3);
    QCOMPARE(static_cast<QWidget *>(placed.last())->pos(), QPoint(16, 116));
    f.designer->OnEndPlacing = nullptr;

    // Cancelled, the tool places nothing; Esc ends a placing drag without placing.
    f.designer->PlaceComponentClassName(QStringLiteral("TLabel"));
    f.designer->CancelPlacing();
    click(f.surface, {}, {20, 350});
    f.designer->PlaceComponentClassName(QStringLiteral("TLabel"));
    {
        HeldMouse m(f.surface, {20, 350});
        m.moveBy({50, 20});
        QTest::keyClick(f.surface, Qt::Key_Escape);
        QCOMPARE(f.designer->MouseAction(), maNone);
        m.release();
    }
    QCOMPARE(placed.size(), 3);
    f.designer->CancelPlacing();

    try {
        f.designer->PlaceComponentClassName(QStringLiteral("TNoSuchControl"));
        QFAIL("no exception");
    } catch (const EFormDesigner &) {
    }
}

void TestDesignSurface::gridBackground()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {300, 300, 75, 25});
    QPalette own = f.surface->palette();
    own.setColor(QPalette::Window, QColor(200, 220, 240));
    own.setColor(QPalette::WindowText, QColor(10, 20, 30));
    f.surface->setPalette(own);
    f.surface->setAutoFillBackground(true);
    f.designer->setGridStep(8);
    f.designer->setDisplayGrid(true);
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    const QRgb fill = qRgb(200, 220, 240), dot = qRgb(10, 20, 30);
    auto shown = [&] { return f.surface->grab().toImage(); };

    // Without colours of its own: dots in the surface's font colour on its window colour.
    QImage g = f.designer->gridBitmap().toImage();
    QCOMPARE(g.size(), QSize(screen.width() / 8 * 8, screen.height() / 8 * 8));
    QCOMPARE(g.pixel(0, 0), dot);
    QCOMPARE(g.pixel(16, 8), dot);
    QCOMPARE(g.pixel(g.width() - 8, g.height() - 8), dot);
    QCOMPARE(g.pixel(17, 8), fill);
    QCOMPARE(g.pixel(4, 4), fill);
    QImage s = shown();
    QCOMPARE(s.pixel(16, 8), dot);
    QCOMPARE(s.pixel(16, 9), fill);
    // The grid stays out of what the controls inherit.
    QVERIFY(f.surface->palette().brush(QPalette::Window).texture().isNull());
    QVERIFY(button->palette().brush(QPalette::Window).texture().isNull());

    // Its own colours and step.
    f.designer->setGridColor(Colors::clRed);
    f.designer->setDesignerColor(Colors::clWhite);
    f.designer->setGridStep(5);
    g = f.designer->gridBitmap().toImage();
    QCOMPARE(g.size(), QSize(screen.width() / 5 * 5, screen.height() / 5 * 5));
    QCOMPARE(g.pixel(5, 10), qRgb(255, 0, 0));
    QCOMPARE(g.pixel(8, 8), qRgb(255, 255, 255));
    QCOMPARE(shown().pixel(10, 5), qRgb(255, 0, 0));

    // A step wider than the screen: no bitmap, no dots, just the colour.
    f.designer->setGridStep(screen.width() + 1);
    QVERIFY(f.designer->gridBitmap().isNull());
    s = shown();
    QCOMPARE(s.pixel(0, 0), qRgb(255, 255, 255));
    QCOMPARE(s.pixel(10, 5), qRgb(255, 255, 255));

    // Without the grid the designer colour still shows while designing...
    f.designer->setGridStep(8);
    f.designer->setDisplayGrid(false);
    s = shown();
    QCOMPARE(s.pixel(16, 8), qRgb(255, 255, 255));
    // ... and without it the surface paints as it always does.
    f.designer->setDesignerColor(Colors::clNone);
    QCOMPARE(shown().pixel(16, 8), fill);

    // Deactivated, everything is as it was.
    f.designer->setDisplayGrid(true);
    QCOMPARE(shown().pixel(16, 8), qRgb(255, 0, 0));
    f.designer->setActive(false);
    QCOMPARE(shown().pixel(16, 8), fill);
    QCOMPARE(f.surface->palette().color(QPalette::Window), QColor(fill));
}

QTEST_MAIN(TestDesignSurface)
#include "test_designsurface.moc"
