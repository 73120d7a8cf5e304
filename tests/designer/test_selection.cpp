// The engine's core as a user meets it: clicking, Shift+clicking, handles,
// keys, the right button, double clicks, and the message record.
#include <QLineEdit>
#include <QMenu>
#include <QToolTip>
#include <QtTest>

#include "Edits.h"
#include "helper_designform.h"

class TestSelection : public QObject
{
    Q_OBJECT

private slots:
    void clickShiftClickAndHandles();
    void handlesSitWhereTheGrabModeSays();
    void messagesCanBeSwallowedAndBothProcessorsWork();
    void keysSelectAndReachTheHandlers();
    void rightButtonAndDoubleClick();
    void designingStateFollowsTheEngine();
};

namespace {
void qclick(QWidget *w, Qt::KeyboardModifiers mods = {}, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(w, button, mods, QPoint(3, 3));
}

// Counts the presses of the middle button that reach it.
struct MiddleButtonWatch : TMaskBtn
{
    using TMaskBtn::TMaskBtn;
    int presses = 0;
    void mousePressEvent(QMouseEvent *e) override
    {
        presses += e->button() == Qt::MiddleButton;
        TMaskBtn::mousePressEvent(e);
    }
};
} // namespace

void TestSelection::clickShiftClickAndHandles()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 150});
    auto *inner = f.add<TMaskBtn>(panel, {20, 20, 80, 25});
    auto *button = f.add<TMaskBtn>(nullptr, {300, 20, 80, 25});
    QVERIFY(f.start());

    QList<QWidget *> selected;
    int selectionChanges = 0;
    f.designer->OnSelectControl = [&](QObject *, QWidget *c) { selected << c; };
    f.designer->OnSelectionChange = [&](QObject *) { ++selectionChanges; };

    qclick(button);
    QCOMPARE(f.designer->ControlCount(), 1);
    QCOMPARE(f.designer->Controls(0), static_cast<QWidget *>(button));
    QCOMPARE(selected, QList<QWidget *>{button});
    QCOMPARE(visibleHandles(&f.form), 8);
    QCOMPARE(handleAt(&f.form, gpLeftTop)->parentWidget(), f.surface);

    // Shift+click adds: two selected, no handle windows.
    qclick(panel, Qt::ShiftModifier);
    QCOMPARE(f.designer->ControlCount(), 2);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(button));
    QCOMPARE(visibleHandles(&f.form), 0);

    // Shift+click on a selected control takes it out; handles come back.
    qclick(button, Qt::ShiftModifier);
    QCOMPARE(f.designer->selection(), QList<QWidget *>{panel});
    QCOMPARE(visibleHandles(&f.form), 8);

    // A click on a control inside the panel selects the deepest control.
    qclick(inner);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(inner));
    QCOMPARE(handleAt(&f.form, gpLeftTop)->parentWidget(), static_cast<QWidget *>(panel));

    // A click on a selected control of a group keeps the group and makes it current.
    qclick(panel, Qt::ShiftModifier);
    qclick(inner);
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{inner, panel}));

    // Without multiple selection Shift+click replaces.
    f.designer->setMultiSelect(false);
    QCOMPARE(f.designer->ControlCount(), 1);
    qclick(button, Qt::ShiftModifier);
    QCOMPARE(f.designer->selection(), QList<QWidget *>{button});
    f.designer->setMultiSelect(true);

    // A refused control is not selected.
    f.designer->OnValidateSelection = [&](QObject *, QWidget *c, bool &valid) { valid = c != panel; };
    qclick(panel);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(button));
    f.designer->OnValidateSelection = nullptr;

    QVERIFY(selectionChanges > 0);
    try {
        f.designer->Controls(f.designer->ControlCount());
        QFAIL("no exception");
    } catch (const EFormDesigner &e) {
        QCOMPARE(e.message(), QStringLiteral("Index of Controls array is out or range."));
    }

    // A selected control that is deleted leaves the selection.
    QList<QObject *> deleted;
    f.designer->OnDeleteControl = [&](QObject *, QWidget *c) { deleted << c; };
    delete button;
    QCOMPARE(f.designer->ControlCount(), 0);
    QCOMPARE(deleted.size(), 1);
    QCOMPARE(selected.last(), nullptr);
}

void TestSelection::handlesSitWhereTheGrabModeSays()
{
    const QRect bounds(20, 30, 100, 50); // right edge 120, bottom 80
    QCOMPARE(TGrabHandles::handleRect(gmMiddle, 5, bounds, gpLeftTop), QRect(18, 28, 5, 5));
    QCOMPARE(TGrabHandles::handleRect(gmMiddle, 5, bounds, gpMiddleTop), QRect(67, 28, 5, 5));
    QCOMPARE(TGrabHandles::handleRect(gmMiddle, 5, bounds, gpRightBottom), QRect(117, 77, 5, 5));
    QCOMPARE(TGrabHandles::handleRect(gmInside, 5, bounds, gpRightMiddle), QRect(114, 52, 5, 5));
    QCOMPARE(TGrabHandles::handleRect(gmOutside, 5, bounds, gpLeftBottom), QRect(15, 79, 5, 5));
    QCOMPARE(TGrabHandles::handleRect(gmOutside, 5, bounds, gpRightTop), QRect(119, 25, 5, 5));
    // Division rounds toward zero, also below zero.
    QCOMPARE(TGrabHandles::handleRect(gmMiddle, 5, QRect(-10, -10, 2, 2), gpMiddleTop).topLeft(), QPoint(-11, -12));

    DesignForm f;
    auto *edge = f.add<TPanel>(nullptr, {0, 0, 40, 40});
    f.designer->setGrabMode(gmOutside);
    TGrabPositions hidden = 0;
    f.designer->OnCustomizeGrabs = [&](QObject *, TGrabPositions &visible, TGrabPositions &enabled) {
        visible &= ~hidden;
        enabled &= ~grabBit(gpLeftMiddle);
    };
    QVERIFY(f.start());
    f.designer->AddControl(edge);
    // Outside the parent's client area: clipped away entirely.
    TGrabHandle *leftTop = handleAt(&f.form, gpLeftTop);
    QCOMPARE(leftTop->Rect(), QRect(-5, -5, 5, 5));
    QVERIFY(leftTop->geometry().isEmpty());
    QVERIFY(!leftTop->isVisible());
    QCOMPARE(handleAt(&f.form, gpRightBottom)->geometry(), QRect(39, 39, 5, 5));
    // A disabled handle does not size.
    const QRect before = edge->geometry();
    dragBy(handleAt(&f.form, gpLeftMiddle), {2, 2}, {10, 0});
    QCOMPARE(edge->geometry(), before);

    hidden = grabBit(gpRightBottom);
    f.designer->UpdateGrabs();
    QVERIFY(!handleAt(&f.form, gpRightBottom)->isVisible());

    // A locked control shows the locked look; its handles do not size it.
    f.designer->setLockedGrabFill(Colors::clRed);
    f.designer->setLockedControls({edge->objectName()});
    QVERIFY(handleAt(&f.form, gpRightMiddle)->Locked());
    QCOMPARE(handleAt(&f.form, gpRightMiddle)->grab().toImage().pixel(2, 2), qRgb(255, 0, 0));
    dragBy(handleAt(&f.form, gpRightMiddle), {2, 2}, {10, 0});
    QCOMPARE(edge->geometry(), before);
}

void TestSelection::messagesCanBeSwallowedAndBothProcessorsWork()
{
    for (TMessageProcessor processor : {mpEvent, mpHook}) {
        DesignForm f;
        auto *button = f.add<TMaskBtn>(nullptr, {30, 30, 80, 25});
        f.designer->setMessageProcessor(processor);
        QVERIFY(f.start());

        try {
            f.designer->setMessageProcessor(processor == mpEvent ? mpHook : mpEvent);
            QFAIL("no exception");
        } catch (const EFormDesigner &e) {
            QCOMPARE(e.message(), QStringLiteral("Cannot change message processor when TFormDesigner is active"));
        }

        // Moves without a button reach the engine: the component hint shows.
        f.designer->setShowComponentHint(true);
        // (Qt drops a move to where the mouse already is: each round its own point.)
        QTest::mouseMove(f.form.windowHandle(), button->mapTo(&f.form, QPoint(5, 5 + int(processor))));
        QCOMPARE(QToolTip::text(), QStringLiteral("MaskBtn1: TMaskBtn"));

        // A handler that swallows the button-down keeps the engine out of it.
        QList<unsigned> seen;
        f.designer->OnMessage = [&](QObject *, TDesignMessage &msg) {
            seen << msg.message;
            if (msg.message == DesignMessages::WM_LBUTTONDOWN && msg.hwnd == button)
                msg.message = 0;
        };
        qclick(button);
        QVERIFY(seen.contains(DesignMessages::WM_LBUTTONDOWN));
        QVERIFY(seen.contains(DesignMessages::WM_LBUTTONUP));
        QCOMPARE(f.designer->ControlCount(), 0);

        // Left alone, the same click selects, and the button never sees it.
        f.designer->OnMessage = nullptr;
        QSignalSpy clicked(button, &QPushButton::clicked);
        qclick(button);
        QCOMPARE(f.designer->ControlCount(), 1);
        QCOMPARE(clicked.count(), 0);

        f.designer->setActive(false);
        qclick(button);
        QCOMPARE(clicked.count(), 1);
    }

    // Owner and design control are checked when attaching.
    QObject notAForm;
    TFormDesigner orphan(&notAForm);
    try {
        orphan.setActive(true);
        QFAIL("no exception");
    } catch (const EFormDesigner &e) {
        QCOMPARE(e.message(), QStringLiteral("Owner of TFormDesigner must be TCustomForm descendant."));
    }
    QVERIFY(!orphan.Active());
}

void TestSelection::keysSelectAndReachTheHandlers()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 150});
    auto *inner = f.add<TMaskBtn>(panel, {20, 20, 80, 25});
    auto *first = f.add<TMaskBtn>(nullptr, {300, 20, 80, 25});
    QVERIFY(f.start());

    // The modifier keys themselves reach the handler too; they are not counted here.
    QList<int> keys;
    f.designer->OnKeyDown = [&](QObject *, int &key, Qt::KeyboardModifiers) {
        if (key != Qt::Key_Shift && key != Qt::Key_Control)
            keys << key;
    };
    qclick(inner);
    QTest::keyClick(f.surface, Qt::Key_Delete);
    QTest::keyClick(f.surface, Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(keys, (QList<int>{Qt::Key_Delete, Qt::Key_Insert}));

    // Esc goes one level up, and is the engine's own.
    QTest::keyClick(f.surface, Qt::Key_Escape);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(panel));
    QCOMPARE(keys.size(), 2);

    // Tab walks the tab order: the panel, its button, then the other button.
    QTest::keyClick(f.surface, Qt::Key_Tab);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(inner));
    QTest::keyClick(f.surface, Qt::Key_Tab);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(first));
    QTest::keyClick(f.surface, Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(inner));

    // A key the handler rewrites is delivered as rewritten.
    auto *line = new QLineEdit(f.surface);
    line->show();
    const auto recordKeys = f.designer->OnKeyDown;
    f.designer->OnKeyDown = [](QObject *, int &key, Qt::KeyboardModifiers) {
        if (key == Qt::Key_A)
            key = Qt::Key_B;
    };
    QTest::keyClick(line, Qt::Key_A);
    QCOMPARE(line->text(), QStringLiteral("b"));
    f.designer->OnKeyDown = recordKeys;

    // Without KeySelect an unmodified key passes untouched, no event.
    f.designer->setKeySelect(false);
    keys.clear();
    QTest::keyClick(f.surface, Qt::Key_Delete);
    QTest::keyClick(f.surface, Qt::Key_Tab);
    QVERIFY(keys.isEmpty());
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(inner));
    // Modified keys still need only KeyMove.
    QTest::keyClick(f.surface, Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(keys, QList<int>{Qt::Key_Delete});
    f.designer->setKeyMove(false);
    QTest::keyClick(f.surface, Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(keys.size(), 1);
}

void TestSelection::rightButtonAndDoubleClick()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {30, 30, 80, 25});
    auto *b = f.add<TMaskBtn>(nullptr, {130, 30, 80, 25});
    auto *c = f.add<TMaskBtn>(nullptr, {230, 30, 80, 25});
    auto *middle = f.add<MiddleButtonWatch>(nullptr, {30, 100, 80, 25});
    QMenu menu;
    menu.addAction(QStringLiteral("Eins"));
    f.designer->setPopupMenu(&menu);
    f.designer->OnEditBehaviour = [&](QObject *, QObject *component, TEditBehaviour &behaviour) {
        if (component == c)
            behaviour = ebProtected;
    };
    QVERIFY(f.start());

    // Right click on an unselected control selects it before the menu shows.
    qclick(a, {}, Qt::RightButton);
    QCOMPARE(f.designer->MenuControl(), static_cast<QWidget *>(a));
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(a));
    QTRY_VERIFY(menu.isVisible());
    menu.hide();

    // Inside a multiple selection the selection stays.
    qclick(b, Qt::ShiftModifier);
    qclick(b, {}, Qt::RightButton);
    QCOMPARE(f.designer->ControlCount(), 2);
    QTRY_VERIFY(menu.isVisible());
    menu.hide();

    // OnContextPopup can keep the menu away.
    f.designer->OnContextPopup = [](QObject *, bool &handled) { handled = true; };
    qclick(a, {}, Qt::RightButton);
    QCoreApplication::processEvents();
    QVERIFY(!menu.isVisible());
    f.designer->OnContextPopup = nullptr;

    // A protected control clears the menu control and works as at run time.
    qclick(c, {}, Qt::RightButton);
    QCOMPARE(f.designer->MenuControl(), nullptr);
    QCoreApplication::processEvents();
    QVERIFY(!menu.isVisible());
    QSignalSpy clicked(c, &QPushButton::clicked);
    qclick(c);
    QCOMPARE(clicked.count(), 1);

    // A double click at the place of the click before it.
    QList<QWidget *> doubled;
    f.designer->OnControlDblClick = [&](QObject *, QWidget *w) { doubled << w; };
    qclick(a);
    QTest::mouseDClick(a, Qt::LeftButton, {}, QPoint(3, 3));
    QCOMPARE(doubled, QList<QWidget *>{a});
    QTest::mouseDClick(c, Qt::LeftButton, {}, QPoint(3, 3));
    QCOMPARE(doubled.size(), 1);

    // The middle button is the control's.
    qclick(middle, {}, Qt::MiddleButton);
    QCOMPARE(middle->presses, 1);
}

void TestSelection::designingStateFollowsTheEngine()
{
    DesignForm f;
    auto *edit = f.add<TcxTextEdit>(nullptr, {10, 10, 120, 21});
    QVERIFY(!edit->isDesigning());
    QVERIFY(f.start());
    QVERIFY(edit->isDesigning());
    // A control that arrives while designing is designed too.
    auto *later = f.add<TcxTextEdit>(nullptr, {10, 50, 120, 21});
    later->show();
    QCoreApplication::processEvents();
    QVERIFY(later->isDesigning());
    qclick(later);
    QCOMPARE(f.designer->currentControl(), static_cast<QWidget *>(later));
    QVERIFY(!later->hasFocus());

    f.designer->setActive(false);
    QVERIFY(!edit->isDesigning());
    QVERIFY(!later->isDesigning());
    QVERIFY(f.form.findChildren<TDesignOverlay *>().isEmpty());
}

QTEST_MAIN(TestSelection)
#include "test_selection.moc"
