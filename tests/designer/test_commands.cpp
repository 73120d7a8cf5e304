// Lining up and sizing the selection, and the windows that drive it: the
// align and size dialogs, the tab order dialog and the alignment palette,
// each driven by mouse and keyboard on a real form through the engine.
#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>
#include <memory>

#include "AlignmentPalette.h"
#include "Edits.h"
#include "Label.h"
#include "FrmSize.h"
#include "TestSupport.h"
#include "helper_designform.h"

class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void otherParentsAndLockedControlsLeaveTheSelection();
    void edgesAndCentersFollowTheFirstSelected();
    void spacingAndWindowCenter();
    void alignToGridAndSizes();
    void alignDialogTakesClicksAndMnemonics();
    void sizeDialogTakesOnlyNumbers();
    void tabOrderDialogReordersTheContainersControls();
    void alignmentPaletteAlignsAndKeepsItsOptions();
};

void TestCommands::otherParentsAndLockedControlsLeaveTheSelection()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {100, 10, 80, 25});
    auto *b = f.add<TMaskBtn>(nullptr, {30, 60, 80, 25});
    auto *panel = f.add<TPanel>(nullptr, {300, 100, 200, 150});
    auto *inner = f.add<TMaskBtn>(panel, {5, 5, 80, 25});
    auto *locked = f.add<TMaskBtn>(nullptr, {20, 200, 80, 25});
    f.designer->setLockedControls({locked->objectName()});
    f.designer->setActive(true);
    Reports r;
    r.watch(f.designer);

    f.select({a, b, inner, locked});
    f.designer->AlignControls(amLeftTop, amNoChange);
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{a, b}));
    QCOMPARE(b->pos(), QPoint(100, 60));
    QCOMPARE(inner->pos(), QPoint(5, 5));
    QCOMPARE(locked->pos(), QPoint(20, 200));
    QCOMPARE(r.moved, (QList<QWidget *>{b}));
    QCOMPARE(r.changes, 1);

    // Sizing prepares the selection the same way.
    f.select({a, locked, inner});
    f.designer->SizeControls(smValue, 33, smNoChange, 0);
    QCOMPARE(f.designer->selection(), (QList<QWidget *>{a}));
    QCOMPARE(a->width(), 33);
    QCOMPARE(locked->width(), 80);
    QCOMPARE(inner->width(), 80);

    // When every control leaves, nothing is done and nothing reported.
    r.clear();
    f.select({locked});
    f.designer->AlignControls(amWindowCenter, amWindowCenter);
    QCOMPARE(f.designer->ControlCount(), 0);
    QCOMPARE(locked->pos(), QPoint(20, 200));
    QCOMPARE(r.changes, 0);

    // Inactive: no command does anything.
    f.designer->setActive(false);
    f.designer->AlignControls(amLeftTop, amLeftTop);
    QCOMPARE(b->pos(), QPoint(100, 60));
}

void TestCommands::edgesAndCentersFollowTheFirstSelected()
{
    DesignForm f;
    auto *r = f.add<TMaskBtn>(nullptr, {100, 50, 81, 31});
    auto *c1 = f.add<TMaskBtn>(nullptr, {10, 200, 40, 20});
    auto *c2 = f.add<TMaskBtn>(nullptr, {300, 120, 120, 51});
    f.designer->setActive(true);

    f.select({r, c1, c2});
    f.designer->AlignControls(amLeftTop, amLeftTop);
    QCOMPARE(c1->pos(), QPoint(100, 50));
    QCOMPARE(c2->pos(), QPoint(100, 50));
    QCOMPARE(r->pos(), QPoint(100, 50));

    // Centre of r: 100 + 81 div 2 = 140, 50 + 31 div 2 = 65.
    f.designer->AlignControls(amCenters, amCenters);
    QCOMPARE(c1->pos(), QPoint(140 - 20, 65 - 10));
    QCOMPARE(c2->pos(), QPoint(140 - 60, 65 - 25));
    QCOMPARE(r->pos(), QPoint(140 - 40, 65 - 15));

    f.designer->AlignControls(amRightBottom, amNoChange);
    QCOMPARE(c1->pos(), QPoint(181 - 40, 55));
    QCOMPARE(c2->x(), 181 - 120);
    f.designer->AlignControls(amNoChange, amRightBottom);
    QCOMPARE(c1->y(), 81 - 20);
    QCOMPARE(c2->y(), 81 - 51);

    // Another first control is another reference.
    f.select({c2, r});
    f.designer->AlignControls(amLeftTop, amNoChange);
    QCOMPARE(r->x(), 61);

    // One control alone has nothing to line up with.
    int changes = 0;
    f.designer->OnChange = [&](QObject *) { ++changes; };
    f.select({c1});
    const QPoint before = c1->pos();
    f.designer->AlignControls(amLeftTop, amCenters);
    f.designer->AlignControls(amRightBottom, amSpace);
    QCOMPARE(c1->pos(), before);
    QCOMPARE(changes, 0);

    // With control limits no control of the centred ones leaves its parent.
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 200});
    auto *ref = f.add<TMaskBtn>(panel, {150, 10, 40, 20});
    auto *wide = f.add<TMaskBtn>(panel, {0, 50, 100, 20});
    f.select({ref, wide});
    f.designer->AlignControls(amCenters, amNoChange);
    QCOMPARE(wide->x(), 120); // r's centre, 170, sticks out
    wide->move(0, 50);
    f.designer->setMoveLimitMode(lmControls);
    f.designer->AlignControls(amCenters, amNoChange);
    QCOMPARE(wide->x(), 100); // the centre drops to 200 - 100 div 2
    QCOMPARE(ref->x(), 130);
    ref->move(10, 190);
    wide->setGeometry(0, 0, 20, 60);
    f.designer->AlignControls(amNoChange, amCenters);
    QCOMPARE(wide->y(), 200 - 60);
    QCOMPARE(ref->y(), 200 - 30 - 10);
}

void TestCommands::spacingAndWindowCenter()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {201, 10, 30, 20});
    auto *b = f.add<TMaskBtn>(nullptr, {500, 90, 30, 20});
    auto *c = f.add<TMaskBtn>(nullptr, {20, 300, 30, 20});
    f.designer->setActive(true);

    // Selected A, B, C: spaced from C (last selected) to A (first), B halfway
    // by integer division; A moves by what the division leaves.
    f.select({a, b, c});
    f.designer->AlignControls(amSpace, amSpace);
    QCOMPARE(c->pos(), QPoint(20, 300));
    QCOMPARE(b->pos(), QPoint(20 + 181 / 2, 300 + (10 - 300) / 2));
    QCOMPARE(a->pos(), QPoint(200, 300 + 2 * ((10 - 300) / 2)));
    // Going backwards the division rounds toward zero: (19 - 200) div 2 = -90.
    a->move(19, 10);
    c->move(200, 10);
    b->move(0, 10);
    f.designer->AlignControls(amSpace, amNoChange);
    QCOMPARE(b->x(), 110);
    QCOMPARE(a->x(), 20);

    // One control is centred in its parent (the surface is 600 x 400).
    a->setGeometry(10, 10, 100, 50);
    f.select({a});
    f.designer->AlignControls(amWindowCenter, amWindowCenter);
    QCOMPARE(a->geometry(), QRect(250, 175, 100, 50));

    // More move as a block: 5..140 x 5..80 in a panel of 301 x 151.
    auto *panel = f.add<TPanel>(nullptr, {200, 100, 301, 151});
    auto *p1 = f.add<TMaskBtn>(panel, {5, 5, 40, 20});
    auto *p2 = f.add<TMaskBtn>(panel, {100, 60, 40, 20});
    f.select({p1, p2});
    f.designer->AlignControls(amWindowCenter, amWindowCenter);
    const int dx = (301 - 140 + 5) / 2 - 5, dy = (151 - 80 + 5) / 2 - 5;
    QCOMPARE(p1->pos(), QPoint(5 + dx, 5 + dy));
    QCOMPARE(p2->pos(), QPoint(100 + dx, 60 + dy));
    // A block wider than its parent: the odd negative remainder rounds toward zero.
    p1->setGeometry(0, 0, 150, 20);
    p2->setGeometry(200, 0, 150, 20); // block 0..350 in 301
    f.designer->AlignControls(amWindowCenter, amNoChange);
    QCOMPARE(p1->x(), -24);
    QCOMPARE(p2->x(), 176);
}

void TestCommands::alignToGridAndSizes()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {12, 20, 80, 30});
    auto *b = f.add<TMaskBtn>(nullptr, {4, 27, 50, 40});
    auto *c = f.add<TMaskBtn>(nullptr, {10, 120, 120, 20});
    auto *locked = f.add<TMaskBtn>(nullptr, {13, 13, 40, 20});
    f.designer->setLockedControls({locked->objectName()});
    f.designer->setGridStep(8);
    f.designer->setActive(true);
    Reports r;
    r.watch(f.designer);

    // 1.5 -> 2 and 2.5 -> 2 steps; 0.5 -> 0, 3.375 -> 3.
    f.select({a, b, locked});
    f.designer->AlignToGrid();
    QCOMPARE(a->pos(), QPoint(16, 16));
    QCOMPARE(b->pos(), QPoint(0, 24));
    QCOMPARE(locked->pos(), QPoint(13, 13));
    QCOMPARE(r.moved, (QList<QWidget *>{a, b}));

    f.select({a, b, c});
    f.designer->SizeControls(smToSmallest, 0, smToLargest, 0);
    for (QWidget *w : {static_cast<QWidget *>(a), static_cast<QWidget *>(b), static_cast<QWidget *>(c)})
        QCOMPARE(w->size(), QSize(50, 40));
    QCOMPARE(b->pos(), QPoint(0, 24)); // sizing does not move
    c->resize(120, 20);
    f.designer->SizeControls(smToLargest, 0, smToSmallest, 0);
    QCOMPARE(a->size(), QSize(120, 20));
    f.designer->SizeControls(smValue, -5, smValue, 77);
    QCOMPARE(c->size(), QSize(0, 77));
    f.designer->SizeControls(smValue, 64, smNoChange, 1);
    QCOMPARE(b->size(), QSize(64, 77));
}

void TestCommands::alignDialogTakesClicksAndMnemonics()
{
    DesignForm f;
    auto *r = f.add<TMaskBtn>(nullptr, {100, 50, 80, 30});
    auto *c = f.add<TMaskBtn>(nullptr, {10, 200, 40, 20});
    f.designer->setActive(true);
    f.select({r, c});
    ScriptedDialogs dialogs;

    // Each item of either group stands for its mode; the groups are independent.
    dialogs.dialogAnswers << [](QDialog *d) {
        clickRadio(child<QRadioButton>(d, "rgHorizontal3")); // right sides
        clickRadio(child<QRadioButton>(d, "rgVertical1"));   // tops
        return int(QDialog::Accepted);
    };
    f.designer->AlignDialog();
    QCOMPARE(c->pos(), QPoint(140, 50));

    // Cancel changes nothing, whatever was clicked.
    dialogs.dialogAnswers << [](QDialog *d) {
        clickRadio(child<QRadioButton>(d, "rgHorizontal1"));
        return int(QDialog::Rejected);
    };
    f.designer->AlignDialog();
    QCOMPARE(c->pos(), QPoint(140, 50));

    // Mnemonics pick items of either group (a mnemonic "animates" the click,
    // the event loop releases the button); Return presses OK.
    c->move(10, 200);
    dialogs.dialogAnswers << [](QDialog *d) {
        QApplication::setActiveWindow(d);
        if (!QTest::qWaitForWindowActive(d))
            return -1;
        for (const auto &[key, name] : {std::pair{Qt::Key_B, "rgVertical3"}, std::pair{Qt::Key_C, "rgHorizontal2"}}) {
            QSignalSpy clicked(child<QRadioButton>(d, name), &QAbstractButton::clicked);
            QTest::keyClick(d, key, Qt::AltModifier);
            if (clicked.isEmpty() && !clicked.wait())
                return -1;
        }
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : d, Qt::Key_Return);
        return d->result();
    };
    f.designer->AlignDialog();
    QCOMPARE(c->pos(), QPoint(140 - 20, 80 - 20)); // centres, bottoms
    QCOMPARE(dialogs.unexpected, 0);
}

void TestCommands::sizeDialogTakesOnlyNumbers()
{
    DesignForm f;
    auto *r = f.add<TMaskBtn>(nullptr, {100, 50, 80, 30});
    auto *c = f.add<TMaskBtn>(nullptr, {10, 200, 40, 20});
    f.designer->setActive(true);
    f.select({r, c});
    ScriptedDialogs dialogs;

    QStringList failures;
    const auto check = [&failures](bool ok, const char *what) {
        if (!ok)
            failures << QString::fromLatin1(what);
    };
    dialogs.dialogAnswers << [&](QDialog *d) {
        auto *size = qobject_cast<TfrmSize *>(d);
        auto *width = child<QLineEdit>(d, "edtWidth");
        auto *height = child<QLineEdit>(d, "edtHeight");
        // Each edit works only while its value button is checked.
        check(!width->isEnabled() && !height->isEnabled(), "edits start disabled");
        clickRadio(child<QRadioButton>(d, "rgWidth3"));
        check(width->isEnabled() && !height->isEnabled(), "width edit follows its button");
        clickRadio(child<QRadioButton>(d, "rgWidth2"));
        check(!width->isEnabled(), "width edit off again");
        clickRadio(child<QRadioButton>(d, "rgWidth3"));

        // Digits and full stops only, whether typed, pasted or dropped; nine at most.
        width->setFocus();
        QTest::keyClicks(width, QStringLiteral("1a2x -,+e"));
        check(width->text() == QLatin1String("12"), "typed letters refused");
        QGuiApplication::clipboard()->setText(QStringLiteral("3x4"));
        QTest::keyClick(width, Qt::Key_V, Qt::ControlModifier);
        QGuiApplication::clipboard()->setText(QStringLiteral("3.4"));
        QTest::keyClick(width, Qt::Key_V, Qt::ControlModifier);
        check(width->text() == QLatin1String("123.4"), "pasted letters refused");
        QMimeData letters;
        letters.setText(QStringLiteral("abc"));
        QDragEnterEvent enter(width->rect().center(), Qt::CopyAction, &letters, Qt::LeftButton, {});
        QCoreApplication::sendEvent(width, &enter);
        QDropEvent drop(QPointF(width->rect().center()), Qt::CopyAction, &letters, Qt::LeftButton, {});
        QCoreApplication::sendEvent(width, &drop);
        check(width->text() == QLatin1String("123.4"), "dropped letters refused");
        QTest::keyClick(width, Qt::Key_Home);
        QTest::keyClicks(width, QStringLiteral("9Z"));
        check(width->text() == QLatin1String("9123.4"), "cursor keys still work");
        QTest::keyClicks(width, QStringLiteral("45678"));
        check(width->text().size() == 9, "nine characters at most");

        // The whole part before the first full stop counts.
        const struct
        {
            const char *typed;
            int value;
        } values[] = {{"", 0}, {"12.7", 12}, {".", 0}, {".5", 0}, {"007", 7}, {"1.2.3", 1}, {"999999999", 999999999}};
        for (const auto &v : values) {
            width->setText(QString::fromLatin1(v.typed));
            check(size->widthValue() == v.value, v.typed);
        }
        width->setText(QStringLiteral("70"));
        clickRadio(child<QRadioButton>(d, "rgHeight3"));
        check(height->isEnabled() && width->isEnabled(), "height edit follows its button");
        QTest::keyClicks(height, QStringLiteral("4q0"));
        check(height->text() == QLatin1String("40"), "height edit guarded too");
        clickRadio(child<QRadioButton>(d, "rgHeight2")); // to largest
        check(!height->isEnabled(), "height edit off again");
        return int(QDialog::Accepted);
    };
    f.designer->SizeDialog();
    QCOMPARE(failures, QStringList());
    QCOMPARE(r->size(), QSize(70, 30));
    QCOMPARE(c->size(), QSize(70, 30));
    QCOMPARE(dialogs.unexpected, 0);
}

namespace {
// Offers data to the list as the drag and drop machinery does: enter, move,
// drop at one spot of the viewport. Returns whether the drop was taken.
bool dropOnList(QListWidget *list, QMimeData *data, QPoint at)
{
    QWidget *viewport = list->viewport();
    QDragEnterEvent enter(at, Qt::MoveAction, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(viewport, &enter);
    QDragMoveEvent move(at, Qt::MoveAction, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(viewport, &move);
    if (!move.isAccepted())
        return false;
    QDropEvent drop(QPointF(at), Qt::MoveAction, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(viewport, &drop);
    return drop.isAccepted();
}

// Drags an entry of the list with the list's own data onto a spot.
bool dropRow(QListWidget *from, int row, QListWidget *onto, QPoint at)
{
    std::unique_ptr<QMimeData> data(from->model()->mimeData({from->model()->index(row, 0)}));
    return dropOnList(onto, data.get(), at);
}

QPoint lowerHalf(QListWidget *list, int row)
{
    const QRect r = list->visualItemRect(list->item(row));
    return QPoint(r.center().x(), r.bottom() - 1);
}

QString initials(const QListWidget *list)
{
    QString result;
    for (const QString &t : texts(list))
        result += t.at(t.indexOf(QLatin1Char(':')) - 1); // the digit of "cxTextEditN: TcxTextEdit"
    return result;
}
} // namespace

void TestCommands::tabOrderDialogReordersTheContainersControls()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 300, 200});
    QList<TcxTextEdit *> edits;
    for (int i = 0; i < 4; ++i)
        edits << f.add<TcxTextEdit>(panel, {10, 10 + 30 * i, 100, 21});
    f.add<TLabel>(panel, {150, 10, 50, 15}); // no tab stop: not listed
    auto *empty = f.add<TPanel>(nullptr, {350, 10, 100, 100});
    auto *outside = f.add<TcxTextEdit>(nullptr, {350, 200, 100, 21});
    f.designer->setActive(true);
    int changes = 0;
    f.designer->OnChange = [&](QObject *) { ++changes; };
    ScriptedDialogs dialogs;
    QStringList shown, failures;

    // An edit is no container: its panel's controls are listed, the first
    // chosen. The arrows move the chosen entry, not past either end; an
    // entry dragged onto another goes there, below the last to the end, and
    // data from elsewhere is refused.
    f.select({edits[1]});
    dialogs.dialogAnswers << [&](QDialog *d) {
        auto *list = child<QListWidget>(d, "lbControls");
        auto *up = child<QToolButton>(d, "btnUp");
        auto *down = child<QToolButton>(d, "btnDown");
        shown = texts(list);
        const auto expect = [&](const char *order) {
            if (initials(list) != QLatin1String(order))
                failures << initials(list) + QStringLiteral(" instead of ") + QLatin1String(order);
        };
        QTest::mouseClick(up, Qt::LeftButton);
        expect("1234");
        QTest::mouseClick(down, Qt::LeftButton);
        expect("2134");
        QTest::mouseClick(down, Qt::LeftButton);
        QTest::mouseClick(down, Qt::LeftButton);
        QTest::mouseClick(down, Qt::LeftButton);
        expect("2341");
        if (up->isEnabled() == down->isEnabled())
            failures << QStringLiteral("arrows at the end");
        clickItem(list, edits[2]->objectName() + QStringLiteral(": TcxTextEdit"));
        QTest::mouseClick(up, Qt::LeftButton);
        expect("3241");
        dropRow(list, 0, list, lowerHalf(list, 2));
        expect("2431");
        const QRect last = list->visualItemRect(list->item(3));
        dropRow(list, 0, list, QPoint(last.center().x(), last.bottom() + 15));
        expect("4312");
        QListWidget other;
        other.addItem(QStringLiteral("x"));
        QMimeData text;
        text.setText(QStringLiteral("x"));
        if (dropRow(&other, 0, list, lowerHalf(list, 0)) || dropOnList(list, &text, lowerHalf(list, 0)))
            failures << QStringLiteral("foreign drop taken");
        expect("4312");
        return int(QDialog::Accepted);
    };
    QVERIFY(f.designer->TabOrderDialog());
    QCOMPARE(failures, QStringList());
    QCOMPARE(shown.size(), 4);
    QCOMPARE(shown.first(), edits[0]->objectName() + QStringLiteral(": TcxTextEdit"));
    QCOMPARE(ControlLayout::tabList(panel),
             (QList<QWidget *>{edits[3], edits[2], edits[0], edits[1]}));
    QCOMPARE(edits[0]->TabOrder(), 2);
    QCOMPARE(changes, 1);

    // Cancel leaves the order; the panel selected lists its own controls.
    f.select({panel});
    dialogs.dialogAnswers << [&](QDialog *d) {
        shown = texts(child<QListWidget>(d, "lbControls"));
        QTest::mouseClick(child<QToolButton>(d, "btnDown"), Qt::LeftButton);
        return int(QDialog::Rejected);
    };
    QVERIFY(!f.designer->TabOrderDialog());
    QCOMPARE(shown.size(), 4);
    QCOMPARE(ControlLayout::tabList(panel).first(), edits[3]);
    QCOMPARE(changes, 1);

    // Nothing selected: the design control's controls.
    f.designer->ClearControls();
    dialogs.dialogAnswers << [&](QDialog *d) {
        shown = texts(child<QListWidget>(d, "lbControls"));
        return int(QDialog::Accepted);
    };
    QVERIFY(f.designer->TabOrderDialog());
    QCOMPARE(shown, (QStringList{panel->objectName() + QStringLiteral(": TPanel"),
                                 empty->objectName() + QStringLiteral(": TPanel"),
                                 outside->objectName() + QStringLiteral(": TcxTextEdit")}));

    // An empty container: an empty list, and OK cannot be pressed.
    f.select({empty});
    bool okEnabled = true;
    dialogs.dialogAnswers << [&](QDialog *d) {
        shown = texts(child<QListWidget>(d, "lbControls"));
        okEnabled = child<QPushButton>(d, "btnOK")->isEnabled();
        return int(QDialog::Rejected);
    };
    QVERIFY(!f.designer->TabOrderDialog());
    QVERIFY(shown.isEmpty());
    QVERIFY(!okEnabled);
    QCOMPARE(dialogs.unexpected, 0);
}

void TestCommands::alignmentPaletteAlignsAndKeepsItsOptions()
{
    DesignForm f;
    auto *r = f.add<TMaskBtn>(nullptr, {100, 50, 80, 30});
    auto *c = f.add<TMaskBtn>(nullptr, {10, 200, 40, 20});
    f.designer->setActive(true);
    f.select({r, c});

    QList<QWidget *> shownPalettes;
    f.designer->OnShowAlignmentPalette = [&](QObject *, QWidget *form) { shownPalettes << form; };
    QVERIFY(!f.designer->AlignmentPaletteForm());
    f.designer->ShowAlignmentPalette();
    auto *palette = qobject_cast<TfrmAlignmentPalette *>(f.designer->AlignmentPaletteForm());
    QVERIFY(palette);
    QVERIFY(QTest::qWaitForWindowExposed(palette));
    QCOMPARE(shownPalettes, (QList<QWidget *>{palette}));

    // Each button aligns in its own direction; where c goes tells the mode.
    const struct
    {
        const char *button;
        QPoint pos;
    } buttons[] = {
        {"btnAlignLeft", {100, 200}}, {"btnAlignHCenter", {120, 200}}, {"btnAlignRight", {140, 200}},
        {"btnSpaceH", {10, 200}},     {"btnCenterH", {215, 200}},     {"btnAlignTop", {10, 50}},
        {"btnAlignVCenter", {10, 55}}, {"btnAlignBottom", {10, 60}},   {"btnSpaceV", {10, 200}},
        {"btnCenterV", {10, 265}},
    };
    for (const auto &b : buttons) {
        r->move(100, 50);
        c->move(10, 200);
        QTest::mouseClick(child<QToolButton>(palette, b.button), Qt::LeftButton);
        QVERIFY2(c->pos() == b.pos, b.button);
    }

    // Its menu switches hints and staying on top; the engine's options follow
    // and the palette stays in sight.
    const auto menuItem = [palette](const QString &text) {
        QWidget *spot = child<QToolButton>(palette, "btnSpaceH");
        QTest::mouseClick(palette->windowHandle(), Qt::RightButton, {}, spot->mapTo(palette, spot->rect().center()));
        QMenu *menu = palette->findChild<QMenu *>();
        QVERIFY(menu && menu->isVisible());
        for (QAction *a : menu->actions())
            if (a->text() == text)
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(a).center());
        QVERIFY(!menu->isVisible());
    };
    auto *left = child<QToolButton>(palette, "btnAlignLeft");
    QVERIFY(!left->toolTip().isEmpty());
    menuItem(QStringLiteral("Sho&w hints"));
    QVERIFY(left->toolTip().isEmpty());
    QCOMPARE(f.designer->AlignmentPalette(), TAlignmentPaletteOptions(apStayOnTop));
    menuItem(QStringLiteral("&Stay on top"));
    QVERIFY(!palette->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(palette->isVisible());
    QCOMPARE(f.designer->AlignmentPalette(), TAlignmentPaletteOptions());
    menuItem(QStringLiteral("&Stay on top"));
    QVERIFY(palette->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(palette->isVisible());

    // The engine's options go to the palette; apAutoShow stays the engine's.
    f.designer->setAlignmentPalette(apAutoShow | apShowHints | apFlatButtons);
    QVERIFY(!left->toolTip().isEmpty());
    QVERIFY(left->autoRaise());
    QVERIFY(!palette->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    menuItem(QStringLiteral("Sho&w hints"));
    QCOMPARE(f.designer->AlignmentPalette(), apAutoShow | apFlatButtons);

    menuItem(QStringLiteral("Hide"));
    QVERIFY(!palette->isVisible());
    f.designer->ShowAlignmentPalette();
    QCOMPARE(f.designer->AlignmentPaletteForm(), palette);
    QVERIFY(palette->isVisible());
    f.designer->HideAlignmentPalette();
    QVERIFY(!palette->isVisible());

    // With apAutoShow the palette comes with the engine.
    f.designer->setActive(false);
    f.designer->setActive(true);
    QVERIFY(palette->isVisible());
}

QTEST_MAIN(TestCommands)
#include "test_commands.moc"
