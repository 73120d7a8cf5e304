// Moving and sizing controls as a user does it, with the mouse (frame and
// hint while the button is held, snapping, axis locking, handles, limits,
// direct moves, alignment lines) and with the arrow keys; the rubber band,
// placing new controls, and the grid background.
#include <QPainter>
#include <QScreen>
#include <QtTest>

#include "helper_designform.h"

class TestDragging : public QObject
{
    Q_OBJECT

private slots:
    void moveReportsOnceAndAClickChangesNothing();
    void snapsAndAxisLocks();
    void handlesSizeWithinTheLimits();
    void multipleSelectionTravelsTogether();
    void moveLimits();
    void directMoveTakesTheControlAlong();
    void alignmentLinesShowExactMatches();
    void arrowKeysMoveAndSize();
    void rubberBandSelectsWithinOneContainer();
    void placingCreatesTheArmedClass();
    void gridBackground();
};

namespace {
const QRgb kFrame = qRgb(128, 128, 128);
const Qt::KeyboardModifiers kCtrl = Qt::ControlModifier;
const Qt::KeyboardModifiers kShift = Qt::ShiftModifier;
const Qt::KeyboardModifiers kCtrlShift = Qt::ControlModifier | Qt::ShiftModifier;

void key(DesignForm &f, int k, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(f.surface, Qt::Key(k), modifiers);
}
} // namespace

void TestDragging::moveReportsOnceAndAClickChangesNothing()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {300, 40, 80, 24});
    QVERIFY(f.start());
    Reports r;
    r.watch(f.designer);

    // A click selects and changes nothing; neither does a travel within the
    // drag distance. The hint shows from the press on.
    click(button);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(button));
    {
        HeldMouse mouse(button, {10, 10});
        QCOMPARE(hintText(), QStringLiteral("300, 40"));
        mouse.moveBy({2, 1});
        QCOMPARE(f.designer->MouseAction(), maDragging);
        QCOMPARE(hintText(), QStringLiteral("300, 40"));
        mouse.release();
    }
    QCOMPARE(button->geometry(), QRect(300, 40, 80, 24));
    QCOMPARE(r.changes, 0);
    QCOMPARE(f.designer->MouseAction(), maNone);

    // While the button is held a grey frame and the new position show; the
    // control itself stays until the button comes up.
    HeldMouse mouse(button, {10, 10});
    mouse.moveBy({20, 10});
    QVERIFY(screenIsCurrent(&f.form));
    mouse.moveBy({37, 23});
    QCOMPARE(button->geometry(), QRect(300, 40, 80, 24));
    QImage shown = overlayImage(f.surface);
    QCOMPARE(shown.pixel(337, 75), kFrame);
    QCOMPARE(shown.pixel(338, 75), kFrame);
    QCOMPARE(shown.pixel(416, 70), kFrame);
    QCOMPARE(qAlpha(shown.pixel(360, 75)), 0); // not filled
    QCOMPARE(hintText(), QStringLiteral("337, 63"));
    QVERIFY(r.moved.isEmpty());
    QVERIFY(screenIsCurrent(&f.form));

    mouse.release();
    QCOMPARE(button->geometry(), QRect(337, 63, 80, 24));
    QCOMPARE(r.moved, QList<QWidget *>{button});
    QCOMPARE(r.changes, 1);
    QCOMPARE(hintText(), QString());
    QCOMPARE(qAlpha(overlayImage(f.surface).pixel(337, 75)), 0);
    QVERIFY(screenIsCurrent(&f.form));
    // The handles went along.
    QCOMPARE(handleAt(&f.form, gpLeftTop)->Rect().topLeft(), QPoint(335, 61));

    // Esc while dragging applies nothing.
    r.clear();
    HeldMouse escaped(button, {10, 10});
    escaped.moveBy({40, 0});
    QTest::keyClick(f.surface, Qt::Key_Escape);
    QCOMPARE(f.designer->MouseAction(), maNone);
    QCOMPARE(hintText(), QString());
    escaped.release();
    QCOMPARE(button->geometry(), QRect(337, 63, 80, 24));
    QCOMPARE(r.changes, 0);
}

void TestDragging::snapsAndAxisLocks()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {32, 16, 80, 24});
    auto *odd = f.add<TMaskBtn>(nullptr, {32, 200, 75, 25});
    f.designer->setSnapToGrid(true);
    f.designer->setGridStep(8);
    QVERIFY(f.start());

    // The raw Left 4 goes down to 0, 12 up to 16, -4 to 0, -12 to -16.
    const struct
    {
        QPoint travel;
        QPoint pos;
    } snaps[] = {{{-28, 0}, {0, 16}}, {{-20, 0}, {16, 16}}, {{0, -20}, {32, 0}}, {{0, -28}, {32, -16}}};
    for (const auto &s : snaps) {
        button->setBounds(32, 16, 80, 24);
        dragBy(button, {10, 20}, s.travel);
        QCOMPARE(button->pos(), s.pos);
    }
    // Alt suspends the grid.
    button->setBounds(32, 16, 80, 24);
    dragBy(button, {10, 10}, {-20, 3}, Qt::AltModifier);
    QCOMPARE(button->pos(), QPoint(12, 19));
    // Every edge of the frame is on the grid, so an odd size snaps as well.
    dragBy(odd, {10, 10}, {-20, 0});
    QCOMPARE(odd->geometry(), QRect(16, 200, 72, 24));

    // With axis dragging, Ctrl keeps the longer direction; a tie stays horizontal.
    f.designer->setSnapToGrid(false);
    f.designer->setEnableAxisDrag(true);
    button->setBounds(100, 100, 80, 24);
    dragBy(button, {10, 10}, {30, 10}, kCtrl);
    QCOMPARE(button->pos(), QPoint(130, 100));
    dragBy(button, {10, 10}, {10, 30}, kCtrl);
    QCOMPARE(button->pos(), QPoint(130, 130));
    dragBy(button, {10, 10}, {20, 20}, kCtrl);
    QCOMPARE(button->pos(), QPoint(150, 130));
    dragBy(button, {10, 10}, {30, 10});
    QCOMPARE(button->pos(), QPoint(180, 140));
    f.designer->setEnableAxisDrag(false);
    dragBy(button, {10, 10}, {10, 30}, kCtrl);
    QCOMPARE(button->pos(), QPoint(190, 170));
}

void TestDragging::handlesSizeWithinTheLimits()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {100, 100, 80, 60});
    QVERIFY(f.start());
    click(button);
    Reports r;
    r.watch(f.designer);

    const struct
    {
        TGrabPosition position;
        QRect expected; // after a travel of (13, 7)
    } cases[] = {
        {gpLeftTop, QRect(113, 107, 67, 53)},      {gpLeftMiddle, QRect(113, 100, 67, 60)},
        {gpLeftBottom, QRect(113, 100, 67, 67)},   {gpMiddleTop, QRect(100, 107, 80, 53)},
        {gpMiddleBottom, QRect(100, 100, 80, 67)}, {gpRightTop, QRect(100, 107, 93, 53)},
        {gpRightMiddle, QRect(100, 100, 93, 60)},  {gpRightBottom, QRect(100, 100, 93, 67)},
    };
    for (const auto &c : cases) {
        button->setBounds(100, 100, 80, 60);
        f.designer->UpdateGrabs();
        r.clear();
        HeldMouse mouse(handleAt(&f.form, c.position), {2, 2});
        mouse.moveBy({13, 7});
        QCOMPARE(button->geometry(), QRect(100, 100, 80, 60));
        QCOMPARE(hintText(), QStringLiteral("%1 x %2").arg(c.expected.width()).arg(c.expected.height()));
        mouse.release();
        QCOMPARE(button->geometry(), c.expected);
        QCOMPARE(r.moved, QList<QWidget *>{button});
        QCOMPARE(r.changes, 1);
    }

    const auto sizeBy = [&](TGrabPosition position, QPoint travel) {
        f.designer->UpdateGrabs();
        dragBy(handleAt(&f.form, position), {2, 2}, travel);
    };
    // Sizing needs no drag distance.
    button->setBounds(100, 100, 80, 60);
    sizeBy(gpRightMiddle, {3, 0});
    QCOMPARE(button->geometry(), QRect(100, 100, 83, 60));
    // Dragged past the opposite edge, the size stops at 0: nothing turns over.
    button->setBounds(100, 100, 80, 60);
    sizeBy(gpRightBottom, {-200, -200});
    QCOMPARE(button->geometry(), QRect(100, 100, 0, 0));
    button->setBounds(100, 100, 80, 60);
    sizeBy(gpLeftTop, {200, 200});
    QCOMPARE(button->geometry(), QRect(180, 160, 0, 0));

    // OnSizeLimit: the grabbed edge stops at the minimum and the maximum.
    f.designer->OnSizeLimit = [](QObject *, QWidget *, QPoint &minSize, QPoint &maxSize) {
        minSize = QPoint(20, 10);
        maxSize = QPoint(120, 100);
    };
    button->setBounds(100, 100, 80, 60);
    sizeBy(gpRightMiddle, {-100, 0});
    QCOMPARE(button->geometry(), QRect(100, 100, 20, 60));
    sizeBy(gpRightMiddle, {150, 0});
    QCOMPARE(button->geometry(), QRect(100, 100, 120, 60));
    sizeBy(gpMiddleTop, {0, -90});
    QCOMPARE(button->geometry(), QRect(100, 60, 120, 100));
    sizeBy(gpLeftBottom, {150, -150});
    QCOMPARE(button->geometry(), QRect(200, 60, 20, 10));
}

void TestDragging::multipleSelectionTravelsTogether()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {100, 100, 80, 24});
    auto *b = f.add<TMaskBtn>(nullptr, {250, 100, 80, 24});
    auto *panel = f.add<TPanel>(nullptr, {50, 250, 200, 100});
    auto *inner = f.add<TMaskBtn>(panel, {10, 10, 60, 24});
    auto *locked = f.add<TPanel>(nullptr, {350, 250, 100, 60});
    f.designer->setLockedControls({locked->objectName()});
    f.designer->setMultiGrabFill(Colors::clRed);
    f.designer->setLockedGrabFill(Colors::clBlue);
    QVERIFY(f.start());

    click(a);
    click(b, kShift);
    click(inner, kShift);
    click(locked, kShift, {50, 30});
    QCOMPARE(f.designer->ControlCount(), 4);
    QVERIFY(screenIsCurrent(&f.form));
    Reports r;
    r.watch(f.designer);

    // Every selected control carries the marks, locked ones in their own look.
    const auto markCenter = [](const QRect &bounds) { return bounds.topLeft(); };
    QImage shown = overlayImage(f.surface);
    QCOMPARE(shown.pixel(markCenter(b->geometry())), qRgb(255, 0, 0));
    QCOMPARE(shown.pixel(markCenter(QRect(60, 260, 60, 24))), qRgb(255, 0, 0)); // inner, on the surface
    QCOMPARE(shown.pixel(markCenter(locked->geometry())), qRgb(0, 0, 255));

    // The controls on a's parent that are not locked travel along, each with its frame.
    HeldMouse mouse(a, {10, 10});
    mouse.moveBy({20, 15});
    mouse.moveBy({40, 30});
    shown = overlayImage(f.surface);
    QCOMPARE(shown.pixel(140, 140), kFrame);
    QCOMPARE(shown.pixel(290, 140), kFrame);
    QCOMPARE(qAlpha(shown.pixel(100, 300)), 0); // no frame for the control in the panel
    QCOMPARE(qAlpha(shown.pixel(390, 300)), 0); // nor for the locked one
    mouse.release();

    QCOMPARE(a->geometry(), QRect(140, 130, 80, 24));
    QCOMPARE(b->geometry(), QRect(290, 130, 80, 24));
    QCOMPARE(inner->geometry(), QRect(10, 10, 60, 24));
    QCOMPARE(locked->geometry(), QRect(350, 250, 100, 60));
    QCOMPARE(r.moved, (QList<QWidget *>{a, b}));
    QCOMPARE(r.changes, 1);
    QCOMPARE(f.designer->ControlCount(), 4);
    // One selected again: the marks go, every one of them.
    click(b);
    QVERIFY(screenIsCurrent(&f.form));

    // Marks show the multi glyph (without its transparent colour) and only
    // on their parent: a control in a panel's corner is marked inside the panel.
    QPixmap glyph(5, 5);
    glyph.fill(Qt::green);
    QPainter(&glyph).fillRect(0, 0, 1, 1, Qt::black);
    f.designer->setMultiGrabGlyph(glyph);
    f.designer->setUseGrabGlyphs(true);
    inner->setBounds(0, 0, 60, 24);
    f.select({b, inner});
    shown = overlayImage(f.surface);
    QCOMPARE(shown.pixel(290, 130), qRgb(0, 255, 0));
    QCOMPARE(qAlpha(shown.pixel(288, 128)), 0);
    QCOMPARE(shown.pixel(50, 250), qRgb(0, 255, 0));
    QCOMPARE(qAlpha(shown.pixel(49, 249)), 0);
}

void TestDragging::moveLimits()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {500, 100, 80, 24});
    QVERIFY(f.start());

    // lmCursor: the cursor stays over the parent (x < 600); the control may hang out.
    QCOMPARE(f.designer->MoveLimitMode(), lmCursor);
    dragBy(button, {10, 10}, {200, 0});
    QCOMPARE(button->pos(), QPoint(589, 100));

    // lmControls: the control stays inside.
    f.designer->setMoveLimitMode(lmControls);
    button->setBounds(500, 100, 80, 24);
    dragBy(button, {10, 10}, {200, -300});
    QCOMPARE(button->pos(), QPoint(520, 0));

    // OnMoveLimit narrows the area for both modes.
    f.designer->OnMoveLimit = [](QObject *, QWidget *, QRect &limit) { limit = QRect(0, 0, 300, 400); };
    button->setBounds(100, 100, 80, 24);
    dragBy(button, {10, 10}, {200, 0});
    QCOMPARE(button->pos(), QPoint(220, 100));
    f.designer->setMoveLimitMode(lmCursor);
    button->setBounds(100, 100, 80, 24);
    dragBy(button, {10, 10}, {200, 0});
    QCOMPARE(button->pos(), QPoint(289, 100));

    // Sizing with lmControls: the grabbed edge stops at the limit.
    f.designer->setMoveLimitMode(lmControls);
    button->setBounds(100, 100, 80, 24);
    f.designer->UpdateGrabs();
    dragBy(handleAt(&f.form, gpRightMiddle), {2, 2}, {300, 0});
    QCOMPARE(button->geometry(), QRect(100, 100, 200, 24));
}

void TestDragging::directMoveTakesTheControlAlong()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {100, 100, 80, 24});
    f.designer->setDirectMove(true);
    QVERIFY(f.start());
    Reports r;
    r.watch(f.designer);

    HeldMouse mouse(button, {10, 10});
    mouse.moveBy({20, 10});
    QCOMPARE(button->geometry(), QRect(120, 110, 80, 24));
    mouse.moveBy({37, 23});
    QCOMPARE(button->geometry(), QRect(137, 123, 80, 24));
    QCOMPARE(countColor(overlayImage(f.surface), kFrame), 0); // no frame
    QCOMPARE(r.changes, 0); // reported once, on the button up
    mouse.release();
    QCOMPARE(r.moved, QList<QWidget *>{button});
    QCOMPARE(r.changes, 1);

    // Esc puts it back; back where it started there is nothing to report.
    r.clear();
    HeldMouse escaped(button, {10, 10});
    escaped.moveBy({50, 0});
    QCOMPARE(button->x(), 187);
    QTest::keyClick(f.surface, Qt::Key_Escape);
    QCOMPARE(button->geometry(), QRect(137, 123, 80, 24));
    escaped.release();
    HeldMouse back(button, {10, 10});
    back.moveBy({50, 0});
    back.moveBy({0, 0});
    back.release();
    QCOMPARE(button->geometry(), QRect(137, 123, 80, 24));
    QCOMPARE(r.changes, 0);
}

void TestDragging::alignmentLinesShowExactMatches()
{
    DesignForm f;
    f.add<TMaskBtn>(nullptr, {100, 100, 80, 24});
    auto *b = f.add<TMaskBtn>(nullptr, {300, 200, 80, 24});
    auto *panel = f.add<TPanel>(nullptr, {350, 300, 200, 80});
    f.add<TMaskBtn>(panel, {10, 10, 60, 24}); // at (360, 310) on the surface
    f.designer->setAlignmentLines(lpLeft | lpTop | lpRight | lpBottom);
    f.designer->setAlignmentColorLeft(Colors::clRed);
    f.designer->setAlignmentColorTop(Colors::clLime);
    f.designer->setAlignmentColorRight(Colors::clBlue);
    f.designer->setAlignmentColorBottom(Colors::clFuchsia);
    QVERIFY(f.start());
    const QRgb red = qRgb(255, 0, 0), lime = qRgb(0, 255, 0), blue = qRgb(0, 0, 255), fuchsia = qRgb(255, 0, 255);

    HeldMouse mouse(b, {10, 10});
    // The frame at (100, 140): its left and right edges meet a's. Each line
    // runs from a's top to the frame's bottom.
    mouse.moveBy({-200, -60});
    QImage shown = overlayImage(f.surface);
    QCOMPARE(shown.pixel(100, 100), red);
    QCOMPARE(qAlpha(shown.pixel(100, 99)), 0);
    QCOMPARE(shown.pixel(100, 163), red);
    QCOMPARE(qAlpha(shown.pixel(100, 164)), 0);
    QCOMPARE(shown.pixel(180, 130), blue); // the right edge is x + width
    QCOMPARE(countColor(shown, lime) + countColor(shown, fuchsia), 0);
    QVERIFY(screenIsCurrent(&f.form));

    // One pixel off: no line.
    mouse.moveBy({-199, -60});
    shown = overlayImage(f.surface);
    QCOMPARE(countColor(shown, red) + countColor(shown, blue), 0);
    QVERIFY(screenIsCurrent(&f.form));

    // Top and bottom edges: horizontal lines from a's left to the frame's right.
    mouse.moveBy({-100, -100});
    shown = overlayImage(f.surface);
    QCOMPARE(shown.pixel(190, 100), lime);
    QCOMPARE(shown.pixel(279, 100), lime);
    QCOMPARE(qAlpha(shown.pixel(280, 100)), 0);
    QCOMPARE(shown.pixel(190, 124), fuchsia);
    QCOMPARE(countColor(shown, red), 0);

    // A control in another container counts only across the entire form.
    mouse.moveBy({60, 110}); // frame at (360, 310)
    QCOMPARE(countColor(overlayImage(f.surface), red), 0);
    f.designer->setAlignmentEntireForm(true);
    mouse.moveBy({60, 110});
    shown = overlayImage(f.surface);
    QCOMPARE(shown.pixel(360, 320), red);
    QCOMPARE(shown.pixel(365, 310), lime);
    QCOMPARE(shown.pixel(365, 334), fuchsia);
    QCOMPARE(countColor(shown, blue), 0); // widths differ

    // Lines are only there while dragging.
    mouse.release();
    QCOMPARE(countColor(overlayImage(f.surface), red), 0);

    // With DirectMove the moving selection does not match itself.
    f.designer->setAlignmentEntireForm(false);
    f.designer->setDirectMove(true);
    HeldMouse direct(b, {10, 10});
    direct.moveBy({15, 0});
    shown = overlayImage(f.surface);
    QCOMPARE(countColor(shown, red) + countColor(shown, lime) + countColor(shown, blue) + countColor(shown, fuchsia), 0);
    direct.release();
}

void TestDragging::arrowKeysMoveAndSize()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {3, 40, 75, 25});
    auto *other = f.add<TMaskBtn>(nullptr, {200, 40, 75, 25});
    auto *panel = f.add<TPanel>(nullptr, {300, 200, 200, 100});
    auto *inner = f.add<TMaskBtn>(panel, {10, 10, 60, 24});
    auto *locked = f.add<TPanel>(nullptr, {50, 250, 100, 50});
    f.designer->setLockedControls({locked->objectName()});
    QVERIFY(f.start());
    click(button);
    Reports r;
    r.watch(f.designer);

    // Shift+Ctrl: exactly one grid step, not onto the grid; Ctrl one pixel;
    // Shift the right and bottom edges.
    key(f, Qt::Key_Right, kCtrlShift);
    QCOMPARE(button->geometry(), QRect(11, 40, 75, 25));
    QCOMPARE(r.moved, QList<QWidget *>{button});
    QCOMPARE(r.changes, 1);
    for (int k : {Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_Left, Qt::Key_Down, Qt::Key_Down})
        key(f, k, kCtrl);
    QCOMPARE(button->geometry(), QRect(10, 41, 75, 25));
    key(f, Qt::Key_Right, kShift);
    key(f, Qt::Key_Down, kShift);
    QCOMPARE(button->geometry(), QRect(10, 41, 76, 26));
    key(f, Qt::Key_Left, kShift);
    key(f, Qt::Key_Up, kShift);
    QCOMPARE(button->geometry(), QRect(10, 41, 75, 25));
    QCOMPARE(r.changes, 11);

    // Down to a width of 0, never below; a key that changes nothing reports nothing.
    button->setBounds(10, 41, 1, 25);
    key(f, Qt::Key_Left, kShift);
    QCOMPARE(button->width(), 0);
    r.clear();
    key(f, Qt::Key_Left, kShift);
    QCOMPARE(button->width(), 0);
    // The parent's edge holds a move.
    button->setBounds(0, 5, 75, 25);
    key(f, Qt::Key_Left, kCtrl);
    key(f, Qt::Key_Up, kCtrlShift);
    key(f, Qt::Key_Up, kCtrlShift);
    QCOMPARE(button->geometry(), QRect(0, 0, 75, 25));
    QCOMPARE(r.changes, 1);

    // With SnapToGridKey Ctrl alone moves a grid step.
    f.designer->setSnapToGridKey(true);
    button->setBounds(3, 40, 75, 25);
    key(f, Qt::Key_Right, kCtrl);
    QCOMPARE(button->x(), 11);
    f.designer->setSnapToGridKey(false);

    // Without modifiers the arrows walk the tab order and move nothing.
    r.clear();
    key(f, Qt::Key_Right, {});
    QCOMPARE(f.designer->selection(), QList<QWidget *>{other});
    key(f, Qt::Key_Left, {});
    QCOMPARE(f.designer->selection(), QList<QWidget *>{button});
    QCOMPARE(r.changes, 0);

    // A grid step moves the whole selection but what is locked; a pixel move
    // first lets go of locked controls and of those on another parent.
    button->setBounds(20, 40, 75, 25);
    click(other, kShift);
    click(locked, kShift, {50, 30});
    click(inner, kShift);
    key(f, Qt::Key_Down, kCtrlShift);
    QCOMPARE(other->pos(), QPoint(200, 48));
    QCOMPARE(locked->pos(), QPoint(50, 250));
    QCOMPARE(f.designer->ControlCount(), 4);
    r.clear();
    key(f, Qt::Key_Right, kCtrl);
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{button, other}));
    QCOMPARE(button->pos(), QPoint(21, 48));
    QCOMPARE(other->pos(), QPoint(201, 48));
    QCOMPARE(inner->pos(), QPoint(10, 18));
    QCOMPARE(locked->pos(), QPoint(50, 250));
    QCOMPARE(r.moved, (QList<QWidget *>{button, other}));
    QCOMPARE(r.changes, 1);
}

void TestDragging::rubberBandSelectsWithinOneContainer()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {100, 100, 80, 24});
    auto *b = f.add<TMaskBtn>(nullptr, {200, 100, 80, 24});
    auto *c = f.add<TMaskBtn>(nullptr, {100, 300, 80, 24});
    auto *panel = f.add<TPanel>(nullptr, {350, 150, 200, 150});
    auto *inner1 = f.add<TMaskBtn>(panel, {10, 10, 60, 24});
    f.add<TMaskBtn>(panel, {10, 100, 60, 24});
    QVERIFY(f.start());

    // From the empty surface: what the band touches, in creation order.
    HeldMouse band(f.surface, {90, 90});
    band.moveBy({60, 20});
    QCOMPARE(f.designer->MouseAction(), maSelecting);
    QCOMPARE(hintText(), QStringLiteral("150, 110"));
    const QImage shown = overlayImage(f.surface);
    int dots = 0;
    for (int x = 90; x < 150; ++x)
        dots += shown.pixel(x, 90) == kFrame;
    QVERIFY(dots > 10);
    band.moveBy({120, 40}); // to (210, 130)
    band.release();
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{a, b}));
    QCOMPARE(f.designer->MouseAction(), maNone);
    QCOMPARE(hintText(), QString());

    // SelectInBox: only what lies wholly inside; the band replaces the selection.
    f.designer->setSelectInBox(true);
    dragBy(f.surface, {90, 90}, {120, 40});
    QCOMPARE(f.designer->selection(), QList<QWidget *>{a});
    // Shift adds.
    dragBy(f.surface, {90, 290}, {100, 40}, kShift);
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{a, c}));

    // Started with Ctrl on a container, the band picks among its children.
    f.designer->setSelectInBox(false);
    {
        HeldMouse m(panel, {5, 5}, kCtrl);
        m.moveBy({60, 20}, kCtrl);
        m.release(kCtrl);
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

void TestDragging::placingCreatesTheArmedClass()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {300, 150, 200, 150});
    QVERIFY(f.start());
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
        QCOMPARE(overlayImage(f.surface).pixel(320, 200), kFrame);
        QCOMPARE(hintText(), QStringLiteral("420, 220"));
        m.release();
    }
    QCOMPARE(seen, QRect(320, 180, 100, 40));
    auto *button = qobject_cast<TMaskBtn *>(placed.value(1));
    QVERIFY(button);
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
    QVERIFY_THROWS_EXCEPTION(EFormDesigner, f.designer->PlaceComponentClassName(QStringLiteral("TNoSuchControl")));
}

void TestDragging::gridBackground()
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
    QVERIFY(f.start());
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    const QRgb fill = qRgb(200, 220, 240), dot = qRgb(10, 20, 30), red = qRgb(255, 0, 0), white = qRgb(255, 255, 255);
    auto shown = [&] { return f.surface->grab().toImage(); };

    // Without colours of its own: dots in the surface's font colour on its window colour.
    QImage g = f.designer->gridBitmap().toImage();
    QCOMPARE(g.size(), QSize(screen.width() / 8 * 8, screen.height() / 8 * 8));
    QCOMPARE(g.pixel(g.width() - 8, g.height() - 8), dot);
    QImage s = shown();
    QCOMPARE(s.pixel(16, 8), dot);
    QCOMPARE(s.pixel(17, 8), fill);
    QCOMPARE(s.pixel(16, 9), fill);
    // The grid stays out of what the controls inherit.
    QVERIFY(f.surface->palette().brush(QPalette::Window).texture().isNull());
    QVERIFY(button->palette().brush(QPalette::Window).texture().isNull());

    // Its own colours and step.
    f.designer->setGridColor(Colors::clRed);
    f.designer->setDesignerColor(Colors::clWhite);
    f.designer->setGridStep(5);
    s = shown();
    QCOMPARE(s.pixel(10, 5), red);
    QCOMPARE(s.pixel(8, 8), white);

    // A step wider than the screen: no bitmap, no dots, just the colour.
    f.designer->setGridStep(screen.width() + 1);
    QVERIFY(f.designer->gridBitmap().isNull());
    s = shown();
    QCOMPARE(s.pixel(0, 0), white);
    QCOMPARE(s.pixel(10, 5), white);

    // Without the grid the designer colour still shows while designing, and
    // without that the surface paints as it always does.
    f.designer->setGridStep(8);
    f.designer->setDisplayGrid(false);
    QCOMPARE(shown().pixel(16, 8), white);
    f.designer->setDesignerColor(Colors::clNone);
    QCOMPARE(shown().pixel(16, 8), fill);

    // Deactivated, everything is as it was.
    f.designer->setDisplayGrid(true);
    QCOMPARE(shown().pixel(16, 8), red);
    f.designer->setActive(false);
    QCOMPARE(shown().pixel(16, 8), fill);
    QCOMPARE(f.surface->palette().color(QPalette::Window), QColor(fill));
}

QTEST_MAIN(TestDragging)
#include "test_dragging.moc"
