// Moving and sizing controls with the mouse as a user does it: the frame and
// the hint while the button is held, snapping, axis locking, the eight
// handles, multiple selections, limits, direct moves and alignment lines.
#include <QtTest>

#include "DesignerWidgets.h"
#include "helper_designform.h"
#include "helper_mouse.h"

class TestDragging : public QObject
{
    Q_OBJECT

private slots:
    void moveReportsOnceAndAClickChangesNothing();
    void snappingRoundsHalfToEven();
    void axisDragKeepsTheLongerDirection();
    void eachHandleMovesItsOwnEdges();
    void sizesStayWithinTheirLimits();
    void multipleSelectionTravelsTogether();
    void moveLimits();
    void directMoveTakesTheControlAlong();
    void alignmentLinesShowExactMatches();
};

namespace {
int countColor(const QImage &image, QRgb color)
{
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) == 255 && (image.pixel(x, y) & 0xffffff) == (color & 0xffffff))
                ++n;
    return n;
}

const QRgb kFrame = qRgb(128, 128, 128);
} // namespace

void TestDragging::moveReportsOnceAndAClickChangesNothing()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {300, 40, 80, 24});
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    Reports r;
    r.watch(f.designer);

    // A click selects and changes nothing; neither does a travel within the
    // drag distance.
    click(button);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(button));
    {
        HeldMouse mouse(button, {10, 10});
        mouse.moveBy({2, 1});
        QCOMPARE(f.designer->MouseAction(), maDragging);
        QVERIFY(!shownHint());
        mouse.release();
    }
    QCOMPARE(button->geometry(), QRect(300, 40, 80, 24));
    QVERIFY(r.moved.isEmpty());
    QCOMPARE(r.changes, 0);
    QCOMPARE(f.designer->MouseAction(), maNone);

    // While the button is held a grey frame and the new position show; the
    // control itself stays until the button comes up.
    HeldMouse mouse(button, {10, 10});
    mouse.moveBy({20, 10});
    mouse.moveBy({37, 23});
    QCOMPARE(button->geometry(), QRect(300, 40, 80, 24));
    QImage shown = overlayImage(f.surface);
    QCOMPARE(shown.pixel(337, 75), kFrame);
    QCOMPARE(shown.pixel(338, 75), kFrame);
    QCOMPARE(shown.pixel(416, 70), kFrame);
    QCOMPARE(qAlpha(shown.pixel(360, 75)), 0); // not filled
    QLabel *hint = shownHint();
    QVERIFY(hint);
    QCOMPARE(hint->text(), QStringLiteral("337, 63"));
    QVERIFY(r.moved.isEmpty());

    mouse.release();
    QCOMPARE(button->geometry(), QRect(337, 63, 80, 24));
    QCOMPARE(r.moved, QList<QWidget *>{button});
    QCOMPARE(r.changes, 1);
    QCOMPARE(f.designer->MouseAction(), maNone);
    QVERIFY(!shownHint());
    QCOMPARE(qAlpha(overlayImage(f.surface).pixel(337, 75)), 0);
    // The handles went along.
    QCOMPARE(handleAt(&f.form, gpLeftTop)->Rect(),
             TGrabHandles::handleRect(f.designer->GrabMode(), f.designer->GrabSize(), button->geometry(), gpLeftTop));

    // Esc while dragging applies nothing.
    r.clear();
    HeldMouse escaped(button, {10, 10});
    escaped.moveBy({40, 0});
    QTest::keyClick(f.surface, Qt::Key_Escape);
    QCOMPARE(f.designer->MouseAction(), maNone);
    QVERIFY(!shownHint());
    escaped.release();
    QCOMPARE(button->geometry(), QRect(337, 63, 80, 24));
    QVERIFY(r.moved.isEmpty());
    QCOMPARE(r.changes, 0);
}

void TestDragging::snappingRoundsHalfToEven()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {32, 16, 80, 24});
    auto *odd = f.add<TMaskBtn>(nullptr, {32, 200, 75, 25});
    f.designer->setSnapToGrid(true);
    f.designer->setGridStep(8);
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));

    // The raw Left 4 goes down to 0, 12 up to 16.
    {
        HeldMouse mouse(button, {10, 10});
        mouse.moveBy({-28, 0});
        QCOMPARE(hintText(), QStringLiteral("0, 16"));
        mouse.release();
    }
    QCOMPARE(button->geometry(), QRect(0, 16, 80, 24));
    button->setBounds(32, 16, 80, 24);
    dragBy(button, {10, 10}, {-20, 0});
    QCOMPARE(button->geometry(), QRect(16, 16, 80, 24));

    // Below zero alike: -4 goes to 0, -12 to -16.
    button->setBounds(32, 16, 80, 24);
    dragBy(button, {10, 20}, {0, -20});
    QCOMPARE(button->geometry(), QRect(32, 0, 80, 24));
    button->setBounds(32, 16, 80, 24);
    dragBy(button, {10, 20}, {0, -28});
    QCOMPARE(button->geometry(), QRect(32, -16, 80, 24));

    // Alt suspends the grid.
    button->setBounds(32, 16, 80, 24);
    dragBy(button, {10, 10}, {-20, 3}, Qt::AltModifier);
    QCOMPARE(button->geometry(), QRect(12, 19, 80, 24));

    // Every edge of the frame is on the grid, so an odd size snaps as well.
    dragBy(odd, {10, 10}, {-20, 0});
    QCOMPARE(odd->geometry(), QRect(16, 200, 72, 24));
}

void TestDragging::axisDragKeepsTheLongerDirection()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {100, 100, 80, 24});
    f.designer->setEnableAxisDrag(true);
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));

    dragBy(button, {10, 10}, {30, 10}, Qt::ControlModifier);
    QCOMPARE(button->pos(), QPoint(130, 100));
    dragBy(button, {10, 10}, {10, 30}, Qt::ControlModifier);
    QCOMPARE(button->pos(), QPoint(130, 130));
    // A tie stays horizontal.
    dragBy(button, {10, 10}, {20, 20}, Qt::ControlModifier);
    QCOMPARE(button->pos(), QPoint(150, 130));
    // Without Ctrl, or without the option, both directions count.
    dragBy(button, {10, 10}, {30, 10});
    QCOMPARE(button->pos(), QPoint(180, 140));
    f.designer->setEnableAxisDrag(false);
    dragBy(button, {10, 10}, {10, 30}, Qt::ControlModifier);
    QCOMPARE(button->pos(), QPoint(190, 170));
}

void TestDragging::eachHandleMovesItsOwnEdges()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {100, 100, 80, 60});
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    click(button);
    Reports r;
    r.watch(f.designer);

    struct Case
    {
        TGrabPosition position;
        QRect expected; // after a travel of (13, 7)
    };
    const Case cases[] = {
        {gpLeftTop, QRect(113, 107, 67, 53)},   {gpLeftMiddle, QRect(113, 100, 67, 60)},
        {gpLeftBottom, QRect(113, 100, 67, 67)}, {gpMiddleTop, QRect(100, 107, 80, 53)},
        {gpMiddleBottom, QRect(100, 100, 80, 67)}, {gpRightTop, QRect(100, 107, 93, 53)},
        {gpRightMiddle, QRect(100, 100, 93, 60)}, {gpRightBottom, QRect(100, 100, 93, 67)},
    };
    for (const Case &c : cases) {
        button->setBounds(100, 100, 80, 60);
        f.designer->UpdateGrabs();
        r.clear();
        TGrabHandle *handle = handleAt(&f.form, c.position);
        QVERIFY(handle && handle->isVisible());
        HeldMouse mouse(handle, {2, 2});
        mouse.moveBy({13, 7});
        QCOMPARE(button->geometry(), QRect(100, 100, 80, 60));
        QCOMPARE(hintText(),
                 QStringLiteral("%1 x %2").arg(c.expected.width()).arg(c.expected.height()));
        mouse.release();
        QVERIFY2(button->geometry() == c.expected, qPrintable(QStringLiteral("handle %1").arg(int(c.position))));
        QCOMPARE(r.moved, QList<QWidget *>{button});
        QCOMPARE(r.changes, 1);
    }

    // Sizing needs no drag distance.
    button->setBounds(100, 100, 80, 60);
    f.designer->UpdateGrabs();
    dragBy(handleAt(&f.form, gpRightMiddle), {2, 2}, {3, 0});
    QCOMPARE(button->geometry(), QRect(100, 100, 83, 60));
}

void TestDragging::sizesStayWithinTheirLimits()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {100, 100, 80, 60});
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    click(button);

    // Dragged past the opposite edge, the size stops at 0: nothing turns over.
    dragBy(handleAt(&f.form, gpRightBottom), {2, 2}, {-200, -200});
    QCOMPARE(button->geometry(), QRect(100, 100, 0, 0));
    button->setBounds(100, 100, 80, 60);
    f.designer->UpdateGrabs();
    dragBy(handleAt(&f.form, gpLeftTop), {2, 2}, {200, 200});
    QCOMPARE(button->geometry(), QRect(180, 160, 0, 0));

    // OnSizeLimit: the grabbed edge stops at the minimum and the maximum.
    f.designer->OnSizeLimit = [](QObject *, QWidget *, QPoint &minSize, QPoint &maxSize) {
        minSize = QPoint(20, 10);
        maxSize = QPoint(120, 100);
    };
    button->setBounds(100, 100, 80, 60);
    f.designer->UpdateGrabs();
    dragBy(handleAt(&f.form, gpRightMiddle), {2, 2}, {-100, 0});
    QCOMPARE(button->geometry(), QRect(100, 100, 20, 60));
    dragBy(handleAt(&f.form, gpRightMiddle), {2, 2}, {150, 0});
    QCOMPARE(button->geometry(), QRect(100, 100, 120, 60));
    dragBy(handleAt(&f.form, gpMiddleTop), {2, 2}, {0, -90});
    QCOMPARE(button->geometry(), QRect(100, 60, 120, 100));
    dragBy(handleAt(&f.form, gpLeftBottom), {2, 2}, {150, -150});
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
    QCOMPARE(locked->objectName(), QStringLiteral("Panel2"));
    f.designer->setLockedControls({QStringLiteral("Panel2")});
    f.designer->setMultiGrabFill(Colors::clRed);
    f.designer->setLockedGrabFill(Colors::clBlue);
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));

    click(a);
    click(b, Qt::ShiftModifier);
    click(inner, Qt::ShiftModifier);
    click(locked, Qt::ShiftModifier, {50, 30});
    QCOMPARE(f.designer->ControlCount(), 4);
    Reports r;
    r.watch(f.designer);

    // Every selected control carries the marks, locked ones in their own look.
    auto markCenter = [&](const QRect &bounds) {
        return TGrabHandles::handleRect(f.designer->GrabMode(), f.designer->GrabSize(), bounds, gpLeftTop).center();
    };
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
    QCOMPARE(qAlpha(shown.pixel(390, 300)), 0);           // nor for the locked one
    mouse.release();

    QCOMPARE(a->geometry(), QRect(140, 130, 80, 24));
    QCOMPARE(b->geometry(), QRect(290, 130, 80, 24));
    QCOMPARE(inner->geometry(), QRect(10, 10, 60, 24));
    QCOMPARE(locked->geometry(), QRect(350, 250, 100, 60));
    QCOMPARE(r.moved, (QList<QWidget *>{a, b}));
    QCOMPARE(r.changes, 1);
    QCOMPARE(f.designer->ControlCount(), 4);
}

void TestDragging::moveLimits()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {500, 100, 80, 24});
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));

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
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    Reports r;
    r.watch(f.designer);

    HeldMouse mouse(button, {10, 10});
    mouse.moveBy({20, 10});
    QCOMPARE(button->geometry(), QRect(120, 110, 80, 24));
    mouse.moveBy({37, 23});
    QCOMPARE(button->geometry(), QRect(137, 123, 80, 24));
    QCOMPARE(countColor(overlayImage(f.surface), kFrame), 0); // no frame
    // Reported once, on the button up.
    QVERIFY(r.moved.isEmpty());
    QCOMPARE(r.changes, 0);
    mouse.release();
    QCOMPARE(button->geometry(), QRect(137, 123, 80, 24));
    QCOMPARE(r.moved, QList<QWidget *>{button});
    QCOMPARE(r.changes, 1);

    // Esc puts it back.
    r.clear();
    HeldMouse escaped(button, {10, 10});
    escaped.moveBy({50, 0});
    QCOMPARE(button->x(), 187);
    QTest::keyClick(f.surface, Qt::Key_Escape);
    QCOMPARE(button->geometry(), QRect(137, 123, 80, 24));
    escaped.release();
    // Back where it started: nothing to report either.
    HeldMouse back(button, {10, 10});
    back.moveBy({50, 0});
    back.moveBy({0, 0});
    back.release();
    QCOMPARE(button->geometry(), QRect(137, 123, 80, 24));
    QVERIFY(r.moved.isEmpty());
    QCOMPARE(r.changes, 0);
}

void TestDragging::alignmentLinesShowExactMatches()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {100, 100, 80, 24});
    auto *b = f.add<TMaskBtn>(nullptr, {300, 200, 80, 24});
    auto *panel = f.add<TPanel>(nullptr, {350, 300, 200, 80});
    f.add<TMaskBtn>(panel, {10, 10, 60, 24}); // at (360, 310) on the surface
    Q_UNUSED(a);
    f.designer->setAlignmentLines(lpLeft | lpTop | lpRight | lpBottom);
    f.designer->setAlignmentColorLeft(Colors::clRed);
    f.designer->setAlignmentColorTop(Colors::clLime);
    f.designer->setAlignmentColorRight(Colors::clBlue);
    f.designer->setAlignmentColorBottom(Colors::clFuchsia);
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    const QRgb red = qRgb(255, 0, 0), lime = qRgb(0, 255, 0), blue = qRgb(0, 0, 255), fuchsia = qRgb(255, 0, 255);

    HeldMouse mouse(b, {10, 10});
    // The frame at (100, 140): its left and right edges meet a's. Each line
    // runs from a's top to the frame's bottom.
    mouse.moveBy({-200, -60});
    QImage shown = overlayImage(f.surface);
    QCOMPARE(shown.pixel(100, 130), red);
    QCOMPARE(shown.pixel(100, 100), red);
    QCOMPARE(qAlpha(shown.pixel(100, 99)), 0);
    QCOMPARE(shown.pixel(100, 163), red);
    QCOMPARE(qAlpha(shown.pixel(100, 164)), 0);
    QCOMPARE(shown.pixel(180, 130), blue); // the right edge is x + width
    QCOMPARE(countColor(shown, lime), 0);
    QCOMPARE(countColor(shown, fuchsia), 0);

    // One pixel off: no line.
    mouse.moveBy({-199, -60});
    shown = overlayImage(f.surface);
    QCOMPARE(countColor(shown, red), 0);
    QCOMPARE(countColor(shown, blue), 0);

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

QTEST_MAIN(TestDragging)
#include "test_dragging.moc"
