// The mask window as a user meets it: placing controls from the palette,
// the caption, the close question, the keys, and what moves report.
#include <QtTest>

#include "Components.h"
#include "Containers.h"
#include "Edits.h"
#include "Grids.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "MaskHost.h"
#include "Maske.h"
#include "MyBtn.h"
#include "TestSupport.h"
#include "helper_maskhost.h"

namespace {
struct MaskFixture
{
    RecordingHost host;
    TMaske *mask = new TMaske;

    MaskFixture()
    {
        mask->setHost(&host);
        mask->resize(700, 500);
        mask->show();
        mask->FormActivate();
    }
    ~MaskFixture() { delete mask; }

    QWidget *surface() const { return mask->document(); }
    TFormDesigner *designer() const { return mask->FormDesigner2(); }

    // A palette click arms the tool and holds the designer; then the user clicks.
    void place(int code, QWidget *target, QPoint pos)
    {
        host.tool = code;
        designer()->Lock();
        QTest::mouseClick(target, Qt::LeftButton, {}, pos);
    }
};
} // namespace

class TestMaske : public QObject
{
    Q_OBJECT

private slots:
    void placementNamesParentsAndSelects();
    void everyPaletteCodePlacesItsKind();
    void thePreviewImageIsMadeOnce();
    void captionCloseQuestionAndKeys();
    void movesReportToThePositionFields();
};

void TestMaske::placementNamesParentsAndSelects()
{
    MaskFixture f;
    QVERIFY(QTest::qWaitForWindowExposed(f.mask));
    QVERIFY(f.host.calls.contains(QStringLiteral("inspector")));

    f.place(1, f.surface(), QPoint(20, 50));
    QCOMPARE(f.designer()->currentControl()->pos(), QPoint(20, 50));
    QCOMPARE(f.host.calls.count(QStringLiteral("done")), 1);
    QVERIFY(!f.designer()->Locked());
    QVERIFY(f.mask->Modified());

    // A click inside a panel places into the panel, at the panel's coordinates.
    f.place(17, f.surface(), QPoint(300, 100));
    auto *panel = qobject_cast<TPanel *>(f.designer()->currentControl());
    QVERIFY(panel);
    f.place(7, panel, QPoint(10, 8));
    QWidget *button = f.designer()->currentControl();
    QCOMPARE(button->parentWidget(), static_cast<QWidget *>(panel));
    QCOMPARE(button->pos(), QPoint(10, 8));
    // A click on a label inside the panel also lands in the panel.
    f.place(1, panel, QPoint(100, 8));
    QWidget *inner = f.designer()->currentControl();
    f.place(1, inner, QPoint(2, 2));
    QCOMPARE(f.designer()->currentControl()->parentWidget(), static_cast<QWidget *>(panel));

    // A click on a page of a page control places on the page.
    f.place(16, f.surface(), QPoint(20, 200));
    auto *pager = qobject_cast<TAdvOfficePager *>(f.designer()->currentControl());
    QVERIFY(pager);
    TAdvOfficePage *page = pager->ActivePage();
    f.place(2, page, QPoint(15, 15));
    QCOMPARE(f.designer()->currentControl()->parentWidget(), static_cast<QWidget *>(page));

    // Without an armed tool the click still ends the placement, placing nothing.
    const int before = Components::componentCount(f.mask->document());
    f.place(0, f.surface(), QPoint(500, 400));
    QCOMPARE(Components::componentCount(f.mask->document()), before);

    // Without the designer held, a click selects as usual.
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(3, 3));
    QCOMPARE(f.designer()->currentControl(), button);
}

void TestMaske::everyPaletteCodePlacesItsKind()
{
    MaskFixture f;
    int y = 4;
    for (const TControlKind &kind : ControlKinds::all()) {
        if (kind.code == TPaletteCode::None || kind.code == TPaletteCode::Preview)
            continue;
        f.host.fonted.clear();
        QWidget *w = f.mask->placeControl(kind.code, f.surface(), QPoint(4, y));
        QVERIFY2(w, kind.className);
        QCOMPARE(w->metaObject()->className(), kind.className);
        QCOMPARE(w->pos(), QPoint(4, y));
        QCOMPARE(Components::owner(w), static_cast<QObject *>(f.mask->document()));
        QCOMPARE(f.designer()->currentControl(), w);
        // Bevels, shapes, pictures, pagers, panels and radio groups keep their own font.
        QCOMPARE(f.host.fonted.contains(w), bool(kind.place & pfToolFont));
        y += 30;
    }
    QVERIFY(!f.mask->placeControl(TPaletteCode(14), f.surface(), QPoint(0, 0)));
    QVERIFY(!f.mask->placeControl(TPaletteCode(15), f.surface(), QPoint(0, 0)));

    auto *combo = f.surface()->findChild<TcxComboBox *>();

    // At run time a combo box and a lookup field are entered without
    // selecting their text, unlike a text edit.
    f.designer()->setActive(false);
    QVERIFY(QTest::qWaitForWindowActive(f.mask));
    auto *lookup = f.surface()->findChild<TcxDBPopupEdit *>();
    TcxTextEdit *edit = nullptr;
    for (TcxTextEdit *e : f.surface()->findChildren<TcxTextEdit *>())
        if (!qobject_cast<TcxDBPopupEdit *>(e))
            edit = e;
    const auto entered = [](QWidget *w, QLineEdit *text) {
        w->setFocus(Qt::TabFocusReason);
        return w->hasFocus() && text->hasSelectedText();
    };
    QVERIFY(!entered(combo, combo->lineEdit()));
    QVERIFY(!entered(lookup, lookup));
    QVERIFY(entered(edit, edit));
}

void TestMaske::thePreviewImageIsMadeOnce()
{
    MaskFixture f;
    f.place(9, f.surface(), QPoint(40, 30));
    auto *view = qobject_cast<TImage *>(Components::findComponent(f.mask->document(), QStringLiteral("View")));
    auto *tab = qobject_cast<TTabSet *>(Components::findComponent(f.mask->document(), QStringLiteral("Tab")));
    QVERIFY(view && tab);
    QCOMPARE(view->geometry(), QRect(40, 30, 250, 250));
    QCOMPARE(tab->geometry(), QRect(40, 280, 250, 22));
    QCOMPARE(tab->Tabs(), (QStringList{".DWG", ".DXF", ".JPG", ".TGA"}));

    // A second one is refused and the designer stays held.
    f.place(9, f.surface(), QPoint(400, 30));
    QCOMPARE(f.host.calls.count(QStringLiteral("refused")), 1);
    QVERIFY(f.designer()->Locked());
    QCOMPARE(f.surface()->findChildren<TImage *>().size(), 1);
    f.designer()->Unlock();

    // "View" deleted but "Tab" kept: a new image comes without a second strip.
    delete view;
    f.place(9, f.surface(), QPoint(400, 30));
    QVERIFY(Components::findComponent(f.mask->document(), QStringLiteral("View")));
    QCOMPARE(f.surface()->findChildren<TTabSet *>().size(), 1);
}

void TestMaske::captionCloseQuestionAndKeys()
{
    ScriptedDialogs dialogs;
    MaskFixture f;
    f.mask->document()->setTitel(QStringLiteral("Kunden"));
    f.mask->resize(816, 639);
    QCOMPARE(f.mask->windowTitle(), QStringLiteral("800 x 600   Kunden"));

    // Keys reach the main window's commands; Ctrl+Delete does nothing.
    f.place(7, f.surface(), QPoint(10, 10));
    f.host.calls.clear();
    QTest::keyClick(f.surface(), Qt::Key_Insert, Qt::ShiftModifier);
    QTest::keyClick(f.surface(), Qt::Key_Insert, Qt::ControlModifier);
    QTest::keyClick(f.surface(), Qt::Key_Delete, Qt::ShiftModifier);
    QTest::keyClick(f.surface(), Qt::Key_Delete);
    QTest::keyClick(f.surface(), Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(f.host.calls, (QStringList{"paste", "copy", "cut", "delete"}));

    // An unchanged mask closes without a question.
    {
        MaskFixture quiet;
        quiet.mask->setModified(false);
        QVERIFY(quiet.mask->FormCloseQuery());
        QVERIFY(dialogs.messages.isEmpty());
    }

    // A changed one asks; Abort keeps it, No closes, Yes saves and closes.
    f.mask->setModified(true);
    dialogs.messageAnswers = {mrAbort, mrNo, mrYes};
    QVERIFY(!f.mask->FormCloseQuery());
    QCOMPARE(dialogs.messages.size(), 1);
    QCOMPARE(dialogs.messages.first().text,
             QStringLiteral("Maske \"800 x 600   Kunden\" wurde verändert!\n\nSollen die Änderungen gespeichert werden?"));
    QCOMPARE(dialogs.messages.first().type, mtWarning);
    QCOMPARE(dialogs.messages.first().buttons, TMsgDlgButtons(mbYes | mbNo | mbAbort));
    QVERIFY(f.mask->FormCloseQuery());
    QVERIFY(!f.host.calls.contains(QStringLiteral("save")));
    // Yes with a save that fails keeps the mask open; one that succeeds closes it.
    dialogs.messageAnswers = {mrYes, mrYes};
    QVERIFY(!f.mask->FormCloseQuery());
    QVERIFY(f.host.calls.contains(QStringLiteral("save")));
    f.host.saved = f.mask;
    QVERIFY(f.mask->FormCloseQuery());
}

void TestMaske::movesReportToThePositionFields()
{
    MaskFixture f;
    QVERIFY(QTest::qWaitForWindowExposed(f.mask));
    f.place(7, f.surface(), QPoint(10, 10));
    QWidget *a = f.designer()->currentControl();
    f.mask->setModified(false);
    QTest::keyClick(f.surface(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(f.host.positions, (QList<int>{10, a->height(), 11, a->width()}));
    QVERIFY(f.mask->Modified());

    // With two selected the fields keep what they showed.
    f.place(7, f.surface(), QPoint(200, 10));
    QWidget *b = f.designer()->currentControl();
    f.designer()->AddControl(a);
    f.host.positions.clear();
    QTest::keyClick(f.surface(), Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(b->y(), 11);
    QVERIFY(f.host.positions.isEmpty());
}

QTEST_MAIN(TestMaske)
#include "test_maske.moc"
