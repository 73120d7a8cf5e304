// Lining up and sizing the selection, the tab order dialog and the alignment
// palette, driven on a real form through the engine and its dialogs.
#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QtTest>

#include "AlignmentPalette.h"
#include "Edits.h"
#include "Label.h"
#include "TestSupport.h"
#include "helper_designform.h"

class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void otherParentsAndLockedControlsLeaveTheSelection();
    void edgesAndCentersFollowTheFirstSelected();
    void spacingFollowsTheSelectionOrder();
    void windowCenterMovesTheSelectionAsABlock();
    void centersKeepControlsInsideWithControlLimits();
    void alignToGridRoundsHalfToEven();
    void sizeControlsToSmallestLargestOrValue();
    void alignAndSizeDialogsApplyTheChosenModes();
    void tabOrderDialogReordersTheContainersControls();
    void alignmentPaletteAlignsAndKeepsItsOptions();
};

namespace {

void select(TFormDesigner *designer, const QList<QWidget *> &controls)
{
    designer->ClearControls();
    for (QWidget *c : controls)
        designer->AddControl(c);
}

QList<QWidget *> selection(TFormDesigner *designer)
{
    QList<QWidget *> out;
    for (int i = 0; i < designer->ControlCount(); ++i)
        out << designer->Controls(i);
    return out;
}

void clickChild(QWidget *root, const QString &name)
{
    auto *button = root->findChild<QAbstractButton *>(name);
    QVERIFY2(button, qPrintable(name));
    button->click();
}

} // namespace

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

    QList<QWidget *> moved;
    int changes = 0;
    f.designer->OnMoveSizeControl = [&](QObject *, QWidget *c) { moved << c; };
    f.designer->OnChange = [&](QObject *) { ++changes; };

    select(f.designer, {a, b, inner, locked});
    f.designer->AlignControls(amLeftTop, amNoChange);

    QCOMPARE(selection(f.designer), (QList<QWidget *>{a, b}));
    QCOMPARE(b->x(), 100);
    QCOMPARE(b->y(), 60);
    QCOMPARE(inner->pos(), QPoint(5, 5));
    QCOMPARE(locked->pos(), QPoint(20, 200));
    QCOMPARE(moved, (QList<QWidget *>{b}));
    QCOMPARE(changes, 1);

    // Sizing prepares the selection the same way.
    select(f.designer, {a, locked, inner});
    f.designer->SizeControls(smValue, 33, smNoChange, 0);
    QCOMPARE(selection(f.designer), (QList<QWidget *>{a}));
    QCOMPARE(a->width(), 33);
    QCOMPARE(locked->width(), 80);
    QCOMPARE(inner->width(), 80);

    // When every control leaves, nothing is done and nothing reported.
    moved.clear();
    changes = 0;
    select(f.designer, {locked});
    f.designer->AlignControls(amWindowCenter, amWindowCenter);
    QCOMPARE(f.designer->ControlCount(), 0);
    QCOMPARE(locked->pos(), QPoint(20, 200));
    QVERIFY(moved.isEmpty());
    QCOMPARE(changes, 0);

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

    select(f.designer, {r, c1, c2});
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
    QCOMPARE(c1->x(), 181 - 40);
    QCOMPARE(c2->x(), 181 - 120);
    QCOMPARE(c1->y(), 55);
    f.designer->AlignControls(amNoChange, amRightBottom);
    QCOMPARE(c1->y(), 81 - 20);
    QCOMPARE(c2->y(), 81 - 51);

    // Another first control is another reference.
    select(f.designer, {c2, r});
    f.designer->AlignControls(amLeftTop, amNoChange);
    QCOMPARE(r->x(), c2->x());
    QCOMPARE(c2->x(), 61);

    // One control alone has nothing to line up with.
    int changes = 0;
    f.designer->OnChange = [&](QObject *) { ++changes; };
    select(f.designer, {c1});
    const QPoint before = c1->pos();
    f.designer->AlignControls(amLeftTop, amCenters);
    f.designer->AlignControls(amRightBottom, amSpace);
    QCOMPARE(c1->pos(), before);
    QCOMPARE(changes, 0);
}

void TestCommands::spacingFollowsTheSelectionOrder()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {201, 10, 30, 20});
    auto *b = f.add<TMaskBtn>(nullptr, {500, 90, 30, 20});
    auto *c = f.add<TMaskBtn>(nullptr, {20, 300, 30, 20});
    f.designer->setActive(true);

    // Selected A, B, C: spaced from C (last selected) to A (first), B halfway
    // by integer division; A moves by what the division leaves.
    select(f.designer, {a, b, c});
    f.designer->AlignControls(amSpace, amSpace);
    QCOMPARE(c->pos(), QPoint(20, 300));
    QCOMPARE(b->pos(), QPoint(20 + 181 / 2, 300 + (10 - 300) / 2));
    QCOMPARE(a->pos(), QPoint(20 + 2 * (181 / 2), 300 + 2 * ((10 - 300) / 2)));
    QCOMPARE(a->x(), 200);

    // Going backwards the division rounds toward zero: (19 - 200) div 2 = -90.
    a->move(19, 10);
    c->move(200, 10);
    b->move(0, 10);
    f.designer->AlignControls(amSpace, amNoChange);
    QCOMPARE(b->x(), 110);
    QCOMPARE(a->x(), 20);
}

void TestCommands::windowCenterMovesTheSelectionAsABlock()
{
    DesignForm f;
    auto *one = f.add<TMaskBtn>(nullptr, {10, 10, 100, 50});
    auto *panel = f.add<TPanel>(nullptr, {200, 100, 301, 151});
    auto *p1 = f.add<TMaskBtn>(panel, {5, 5, 40, 20});
    auto *p2 = f.add<TMaskBtn>(panel, {100, 60, 40, 20});
    f.designer->setActive(true);

    // The surface is 600 x 400.
    select(f.designer, {one});
    f.designer->AlignControls(amWindowCenter, amWindowCenter);
    QCOMPARE(one->geometry(), QRect(250, 175, 100, 50));

    // Two controls keep their distance: block 5..140 x 5..80 in 301 x 151.
    select(f.designer, {p1, p2});
    f.designer->AlignControls(amWindowCenter, amWindowCenter);
    const int dx = (301 - 140 + 5) / 2 - 5, dy = (151 - 80 + 5) / 2 - 5;
    QCOMPARE(p1->pos(), QPoint(5 + dx, 5 + dy));
    QCOMPARE(p2->pos(), QPoint(100 + dx, 60 + dy));

    // A block wider than its parent: the odd negative remainder rounds toward zero.
    p1->setGeometry(0, 0, 150, 20);
    p2->setGeometry(200, 0, 150, 20); // block 0..350 in 301
    f.designer->AlignControls(amWindowCenter, amNoChange);
    QCOMPARE(p1->x(), (301 - 350) / 2);
    QCOMPARE(p1->x(), -24);
    QCOMPARE(p2->x(), 176);
}

void TestCommands::centersKeepControlsInsideWithControlLimits()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 200});
    auto *r = f.add<TMaskBtn>(panel, {150, 10, 40, 20});
    auto *wide = f.add<TMaskBtn>(panel, {0, 50, 100, 20});
    f.designer->setActive(true);

    // Without limits the centre is r's (170): the wide one sticks out.
    select(f.designer, {r, wide});
    f.designer->AlignControls(amCenters, amNoChange);
    QCOMPARE(wide->x(), 120);
    QCOMPARE(r->x(), 150);

    // With control limits the centre drops to 200 - 100 div 2 = 150.
    wide->move(0, 50);
    f.designer->setMoveLimitMode(lmControls);
    f.designer->AlignControls(amCenters, amNoChange);
    QCOMPARE(wide->x(), 100);
    QCOMPARE(r->x(), 130);
    QVERIFY(wide->geometry().right() < panel->width());

    // Vertically the same against the client height.
    r->move(10, 190);
    wide->setGeometry(0, 0, 20, 60);
    f.designer->AlignControls(amNoChange, amCenters);
    QCOMPARE(wide->y(), 200 - 60);
    QCOMPARE(r->y(), 200 - 30 - 10);
}

void TestCommands::alignToGridRoundsHalfToEven()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {12, 20, 40, 20});
    auto *b = f.add<TMaskBtn>(nullptr, {4, 27, 40, 20});
    auto *locked = f.add<TMaskBtn>(nullptr, {13, 13, 40, 20});
    f.designer->setLockedControls({locked->objectName()});
    f.designer->setGridStep(8);
    f.designer->setActive(true);
    QList<QWidget *> moved;
    f.designer->OnMoveSizeControl = [&](QObject *, QWidget *c) { moved << c; };

    select(f.designer, {a, b, locked});
    f.designer->AlignToGrid();
    // 1.5 -> 2 and 2.5 -> 2 steps; 0.5 -> 0, 3.375 -> 3.
    QCOMPARE(a->pos(), QPoint(16, 16));
    QCOMPARE(b->pos(), QPoint(0, 24));
    QCOMPARE(locked->pos(), QPoint(13, 13));
    QCOMPARE(moved, (QList<QWidget *>{a, b}));
}

void TestCommands::sizeControlsToSmallestLargestOrValue()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {10, 10, 80, 30});
    auto *b = f.add<TMaskBtn>(nullptr, {10, 60, 50, 40});
    auto *c = f.add<TMaskBtn>(nullptr, {10, 120, 120, 20});
    f.designer->setActive(true);
    select(f.designer, {a, b, c});

    f.designer->SizeControls(smToSmallest, 0, smToLargest, 0);
    for (QWidget *w : {static_cast<QWidget *>(a), static_cast<QWidget *>(b), static_cast<QWidget *>(c)})
        QCOMPARE(w->size(), QSize(50, 40));
    QCOMPARE(b->pos(), QPoint(10, 60)); // sizing does not move

    c->resize(120, 20);
    f.designer->SizeControls(smToLargest, 0, smToSmallest, 0);
    QCOMPARE(a->size(), QSize(120, 20));
    QCOMPARE(b->size(), QSize(120, 20));

    f.designer->SizeControls(smValue, -5, smValue, 77);
    QCOMPARE(a->size(), QSize(0, 77));
    QCOMPARE(c->size(), QSize(0, 77));
    f.designer->SizeControls(smValue, 64, smNoChange, 1);
    QCOMPARE(b->size(), QSize(64, 77));
}

void TestCommands::alignAndSizeDialogsApplyTheChosenModes()
{
    DesignForm f;
    auto *r = f.add<TMaskBtn>(nullptr, {100, 50, 80, 30});
    auto *c = f.add<TMaskBtn>(nullptr, {10, 200, 40, 20});
    f.designer->setActive(true);
    select(f.designer, {r, c});

    ScriptedDialogs dialogs;
    dialogs.dialogAnswers << [](QDialog *d) {
        clickChild(d, QStringLiteral("rgHorizontal3")); // right sides
        clickChild(d, QStringLiteral("rgVertical1"));   // tops
        return int(QDialog::Accepted);
    };
    f.designer->AlignDialog();
    QCOMPARE(c->pos(), QPoint(140, 50));

    // Cancel changes nothing, whatever was clicked.
    dialogs.dialogAnswers << [](QDialog *d) {
        clickChild(d, QStringLiteral("rgHorizontal1"));
        return int(QDialog::Rejected);
    };
    f.designer->AlignDialog();
    QCOMPARE(c->pos(), QPoint(140, 50));

    dialogs.dialogAnswers << [](QDialog *d) {
        clickChild(d, QStringLiteral("rgWidth3")); // a value
        auto *edit = d->findChild<QLineEdit *>(QStringLiteral("edtWidth"));
        if (edit)
            edit->setText(QStringLiteral("70"));
        clickChild(d, QStringLiteral("rgHeight2")); // to largest
        return int(QDialog::Accepted);
    };
    f.designer->SizeDialog();
    QCOMPARE(r->size(), QSize(70, 30));
    QCOMPARE(c->size(), QSize(70, 30));
    QCOMPARE(dialogs.unexpected, 0);
    QCOMPARE(dialogs.dialogTitles.size(), 3);
}

void TestCommands::tabOrderDialogReordersTheContainersControls()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 300, 200});
    auto *e1 = f.add<TcxTextEdit>(panel, {10, 10, 100, 21});
    auto *e2 = f.add<TcxTextEdit>(panel, {10, 40, 100, 21});
    auto *e3 = f.add<TcxTextEdit>(panel, {10, 70, 100, 21});
    f.add<TLabel>(panel, {150, 10, 50, 15}); // no tab stop: not listed
    auto *empty = f.add<TPanel>(nullptr, {350, 10, 100, 100});
    auto *outside = f.add<TcxTextEdit>(nullptr, {350, 200, 100, 21});
    f.designer->setActive(true);
    int changes = 0;
    f.designer->OnChange = [&](QObject *) { ++changes; };

    // An edit is no container: its panel's controls are listed.
    select(f.designer, {e2});
    ScriptedDialogs dialogs;
    QStringList shown;
    dialogs.dialogAnswers << [&](QDialog *d) {
        auto *list = d->findChild<QListWidget *>(QStringLiteral("lbControls"));
        for (int i = 0; list && i < list->count(); ++i)
            shown << list->item(i)->text();
        if (list)
            list->setCurrentRow(2);
        clickChild(d, QStringLiteral("btnUp"));
        return int(QDialog::Accepted);
    };
    QVERIFY(f.designer->TabOrderDialog());
    QCOMPARE(shown, (QStringList{e1->objectName() + QStringLiteral(": TcxTextEdit"),
                                 e2->objectName() + QStringLiteral(": TcxTextEdit"),
                                 e3->objectName() + QStringLiteral(": TcxTextEdit")}));
    QCOMPARE(Containers::tabList(panel), (QList<QWidget *>{e1, e3, e2}));
    QCOMPARE(e3->TabOrder(), 1);
    QCOMPARE(changes, 1);

    // Cancel leaves the order; the panel selected lists its own controls.
    select(f.designer, {panel});
    dialogs.dialogAnswers << [&](QDialog *d) {
        clickChild(d, QStringLiteral("btnUp"));
        clickChild(d, QStringLiteral("btnDown"));
        return int(QDialog::Rejected);
    };
    QVERIFY(!f.designer->TabOrderDialog());
    QCOMPARE(Containers::tabList(panel), (QList<QWidget *>{e1, e3, e2}));
    QCOMPARE(changes, 1);

    // Nothing selected: the design control's controls.
    f.designer->ClearControls();
    shown.clear();
    dialogs.dialogAnswers << [&](QDialog *d) {
        auto *list = d->findChild<QListWidget *>(QStringLiteral("lbControls"));
        for (int i = 0; list && i < list->count(); ++i)
            shown << list->item(i)->text();
        return int(QDialog::Accepted);
    };
    QVERIFY(f.designer->TabOrderDialog());
    QCOMPARE(shown, (QStringList{panel->objectName() + QStringLiteral(": TPanel"),
                                 empty->objectName() + QStringLiteral(": TPanel"),
                                 outside->objectName() + QStringLiteral(": TcxTextEdit")}));

    // An empty container: OK cannot be pressed.
    select(f.designer, {empty});
    bool okEnabled = true;
    dialogs.dialogAnswers << [&](QDialog *d) {
        auto *ok = d->findChild<QPushButton *>(QStringLiteral("btnOK"));
        okEnabled = !ok || ok->isEnabled();
        return int(QDialog::Rejected);
    };
    QVERIFY(!f.designer->TabOrderDialog());
    QVERIFY(!okEnabled);
    QCOMPARE(dialogs.unexpected, 0);
}

void TestCommands::alignmentPaletteAlignsAndKeepsItsOptions()
{
    DesignForm f;
    auto *r = f.add<TMaskBtn>(nullptr, {100, 50, 80, 30});
    auto *c = f.add<TMaskBtn>(nullptr, {10, 200, 40, 20});
    f.designer->setActive(true);
    select(f.designer, {r, c});

    QList<QWidget *> shownPalettes;
    f.designer->OnShowAlignmentPalette = [&](QObject *, QWidget *form) { shownPalettes << form; };
    QVERIFY(!f.designer->AlignmentPaletteForm());
    f.designer->ShowAlignmentPalette();
    auto *palette = qobject_cast<TfrmAlignmentPalette *>(f.designer->AlignmentPaletteForm());
    QVERIFY(palette);
    QVERIFY(palette->isVisible());
    QCOMPARE(shownPalettes, (QList<QWidget *>{palette}));

    clickChild(palette, QStringLiteral("btnAlignLeft"));
    QCOMPARE(c->pos(), QPoint(100, 200));
    clickChild(palette, QStringLiteral("btnAlignBottom"));
    QCOMPARE(c->pos(), QPoint(100, 60));
    clickChild(palette, QStringLiteral("btnCenterH"));
    QCOMPARE(r->x(), (600 - 80) / 2);

    // Options changed in the palette are the engine's; the engine's go to the palette.
    f.designer->setAlignmentPalette(apAutoShow | apShowHints);
    auto *hints = palette->findChild<QAction *>(QStringLiteral("actShowHints"));
    QVERIFY(hints);
    hints->trigger();
    QCOMPARE(f.designer->AlignmentPalette(), TAlignmentPaletteOptions(apAutoShow));

    f.designer->HideAlignmentPalette();
    QVERIFY(!palette->isVisible());
    f.designer->ShowAlignmentPalette();
    QCOMPARE(f.designer->AlignmentPaletteForm(), palette);
    QVERIFY(palette->isVisible());
}

QTEST_MAIN(TestCommands)
#include "test_commands.moc"
