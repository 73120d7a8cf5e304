// Locked, protected and transparent controls: names (also qualified by
// their owners), inversion, how far children follow, the program's say
// through OnEditBehaviour, the list editor, and non-visual components.
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QtTest>

#include "ComponentContainer.h"
#include "Label.h"
#include "TestSupport.h"
#include "helper_designform.h"

class TestLists : public QObject
{
    Q_OBJECT

private slots:
    void qualifiedNamesMatchAlongTheOwnerChain();
    void inversionAndChildren();
    void protectionWithAndWithoutADesignControl();
    void editBehaviourOverridesTheLists();
    void editControlListsReplacesTheLists();
    void nonVisualComponentsAreShownByContainers();
};

void TestLists::qualifiedNamesMatchAlongTheOwnerChain()
{
    DesignForm f;
    f.form.setObjectName(QStringLiteral("Form"));
    auto *label = f.add<TLabel>(nullptr, {10, 10, 60, 15});
    auto *button = f.add<TMaskBtn>(nullptr, {10, 40, 80, 25});
    // A control owned by a frame that the form owns.
    QObject frame;
    frame.setObjectName(QStringLiteral("Frame"));
    Components::setOwner(&frame, &f.form);
    auto *edit = new TMaskBtn(f.surface);
    Components::setOwner(edit, &frame);
    edit->setObjectName(QStringLiteral("Edit1"));
    QVERIFY(f.start());

    f.designer->setLockedControls({QStringLiteral("form.LABEL1")});
    QVERIFY(f.designer->IsLocked(label));
    QVERIFY(!f.designer->IsLocked(button));
    f.designer->setLockedControls({QStringLiteral("Form.Frame.Edit1"), QStringLiteral("Other.MaskBtn1")});
    QVERIFY(f.designer->IsLocked(edit));
    QVERIFY(!f.designer->IsLocked(button)); // "Other" owns nothing here
    f.designer->setLockedControls({QStringLiteral("Frame.Edit1")});
    QVERIFY(f.designer->IsLocked(edit));
    f.designer->setLockedControls({QStringLiteral("Form.Edit1")});
    QVERIFY(!f.designer->IsLocked(edit)); // the frame is skipped over

    // The engine shows the change at once: the handles turn to locked ones.
    f.designer->AddControl(button);
    QVERIFY(!handleAt(&f.form, gpLeftTop)->Locked());
    f.designer->setLockedControls({button->objectName()});
    QVERIFY(handleAt(&f.form, gpLeftTop)->Locked());
    f.designer->setLockedControls({});
    QVERIFY(!handleAt(&f.form, gpLeftTop)->Locked());
}

void TestLists::inversionAndChildren()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 300, 250});
    auto *child = f.add<TPanel>(panel, {10, 10, 200, 150});
    auto *grandchild = f.add<TMaskBtn>(child, {10, 10, 80, 25});
    auto *listed = f.add<TMaskBtn>(nullptr, {400, 10, 80, 25});
    auto *outside = new TMaskBtn(&f.form); // on the form, not on the design control
    outside->setGeometry(620, 10, 60, 25);
    f.designer->setActive(true);

    // Inverted, an empty list locks every designable control, and the design
    // control is locked whatever the lists say.
    f.designer->setLockedInverse(true);
    QVERIFY(f.designer->IsLocked(panel));
    QVERIFY(f.designer->IsLocked(grandchild));
    QVERIFY(!f.designer->IsLocked(outside));
    f.designer->setLockedControls({listed->objectName()});
    QVERIFY(!f.designer->IsLocked(listed));
    QVERIFY(f.designer->IsLocked(f.surface));
    f.designer->setLockedInverse(false);
    QVERIFY(f.designer->IsLocked(f.surface));
    QVERIFY(f.designer->IsLocked(listed));
    f.designer->setTransparentInverse(true);
    QVERIFY(f.designer->IsTransparent(grandchild));
    QVERIFY(!f.designer->IsTransparent(outside));
    f.designer->setTransparentInverse(false);

    // Children follow their listed parent as far as the mode says.
    f.designer->setLockedControls({panel->objectName()});
    QVERIFY(f.designer->IsLocked(panel));
    QVERIFY(!f.designer->IsLocked(child));
    f.designer->setLockChildren(cmNormal);
    QVERIFY(f.designer->IsLocked(child));
    QVERIFY(!f.designer->IsLocked(grandchild));
    f.designer->setLockChildren(cmRecurse);
    QVERIFY(f.designer->IsLocked(grandchild));
    // The transparent list has its own mode.
    f.designer->setTransparentControls({child->objectName()});
    QVERIFY(!f.designer->IsTransparent(grandchild));
    f.designer->setTransparentChildren(cmNormal);
    QVERIFY(f.designer->IsTransparent(grandchild));
    QVERIFY(!f.designer->IsTransparent(panel));
    // Inverted, recursion still reaches down: only the unlisted line is locked.
    f.designer->setLockedInverse(true);
    QVERIFY(!f.designer->IsLocked(grandchild));
    QVERIFY(f.designer->IsLocked(listed));

    // Inactive, nothing is designable and nothing locked.
    f.designer->setActive(false);
    QVERIFY(!f.designer->IsLocked(listed));
}

void TestLists::protectionWithAndWithoutADesignControl()
{
    DesignForm f;
    auto *inside = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25});
    const auto onForm = [&f](QWidget *w, QWidget *parent) {
        w->setParent(parent);
        Components::setOwner(w, &f.form);
        AutoName(w, &f.form);
        return w;
    };
    QWidget *outside = onForm(new TMaskBtn, &f.form);
    outside->setGeometry(620, 10, 60, 25);
    f.designer->setProtectedControls({inside->objectName(), outside->objectName()});
    f.designer->setActive(true);

    // With a design control the lists do not count: inside is editable,
    // outside is not.
    QVERIFY(!f.designer->IsProtected(inside));
    QVERIFY(f.designer->IsProtected(outside));

    // Designing the whole form: the control placed directly on the form
    // decides for everything on it.
    QWidget *formPanel = onForm(new TPanel, &f.form);
    formPanel->setGeometry(610, 100, 80, 200);
    QWidget *formInner = onForm(new TMaskBtn, formPanel);
    f.designer->setProtectedControls({formPanel->objectName()});
    f.designer->setDesignControl(nullptr);
    QVERIFY(f.designer->Active());
    QVERIFY(f.designer->IsProtected(formPanel));
    QVERIFY(f.designer->IsProtected(formInner)); // not listed itself, and no children mode
    QVERIFY(!f.designer->IsProtected(outside));

    // A protected control cannot be selected.
    f.designer->SelectAll();
    QVERIFY(f.designer->ControlIndex(formInner) < 0);
    QVERIFY(f.designer->ControlIndex(outside) >= 0);

    f.designer->setProtectedInverse(true);
    QVERIFY(!f.designer->IsProtected(formInner));
    QVERIFY(f.designer->IsProtected(outside));
}

void TestLists::editBehaviourOverridesTheLists()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25});
    auto *b = f.add<TMaskBtn>(nullptr, {10, 40, 80, 25});
    auto *c = f.add<TMaskBtn>(nullptr, {10, 70, 80, 25});
    f.designer->setLockedControls({b->objectName(), c->objectName()});
    f.designer->setTransparentControls({c->objectName()});
    f.designer->setActive(true);

    QHash<QObject *, TEditBehaviour> behaviours;
    f.designer->OnEditBehaviour = [&](QObject *, QObject *component, TEditBehaviour &behaviour) {
        behaviour = behaviours.value(component, ebDefault);
    };
    behaviours[a] = ebLockedRuntime;
    behaviours[b] = ebProtected;
    behaviours[c] = ebDefaultRuntime;
    QVERIFY(f.designer->IsLocked(a));
    QVERIFY(!f.designer->IsLocked(b));
    QVERIFY(f.designer->IsProtected(b));
    QVERIFY(!f.designer->IsProtected(a));
    // A default kind leaves the decision to the lists.
    QVERIFY(f.designer->IsLocked(c));
    QVERIFY(f.designer->IsTransparent(c));
    behaviours[c] = ebTransparent;
    QVERIFY(!f.designer->IsLocked(c));
    QVERIFY(f.designer->IsTransparent(c));
    behaviours[c] = ebLocked;
    QVERIFY(!f.designer->IsTransparent(c));

    // The design control: locked always, transparent unless the program says otherwise.
    behaviours[f.surface] = ebTransparent;
    QVERIFY(f.designer->IsLocked(f.surface));
    QVERIFY(f.designer->IsTransparent(f.surface));
    behaviours[f.surface] = ebLocked;
    QVERIFY(!f.designer->IsTransparent(f.surface));
}

void TestLists::editControlListsReplacesTheLists()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 150});
    f.add<TMaskBtn>(panel, {10, 10, 80, 25});
    f.add<TMaskBtn>(nullptr, {300, 10, 80, 25});
    f.add<TLabel>(nullptr, {300, 50, 60, 15});
    f.designer->setLockedControls({QStringLiteral("maskbtn2"), QStringLiteral("Gone1")});
    f.designer->setProtectedControls({QStringLiteral("Kept1")});
    f.designer->setTransparentControls({QStringLiteral("Zeta"), QStringLiteral("alpha")});
    f.designer->setActive(true);
    ScriptedDialogs dialogs;
    QStringList failures;
    const auto expect = [&failures](const QStringList &seen, const QStringList &wanted) {
        if (seen != wanted)
            failures << seen.join(QLatin1Char(',')) + QStringLiteral(" instead of ") + wanted.join(QLatin1Char(','));
    };

    // The "Add controls" window offers the names not yet in the list, sorted;
    // several are picked with Ctrl, or all at once.
    QStringList offered;
    const auto pick = [&](const QStringList &names, bool all, const char *button) {
        return [&offered, names, all, button](QDialog *d) {
            auto *list = child<QListWidget>(d, "lbNames");
            offered = texts(list);
            for (int i = 0; i < names.size(); ++i)
                clickItem(list, names.at(i), i == 0 ? Qt::NoModifier : Qt::ControlModifier);
            if (all)
                QTest::mouseClick(child<QPushButton>(d, "btnSelectAll"), Qt::LeftButton);
            QTest::mouseClick(child<QPushButton>(d, button), Qt::LeftButton);
            return d->result();
        };
    };

    // The editor opens on the list asked for; each list is sorted without
    // regard to case, and the radio buttons choose the list shown.
    dialogs.dialogAnswers << [&](QDialog *d) {
        auto *stack = d->findChild<QStackedWidget *>();
        auto *locked = child<QListWidget>(d, "lbLocked");
        auto *protectedList = child<QListWidget>(d, "lbProtected");
        auto *del = child<QPushButton>(d, "btnDelete");
        auto *clear = child<QPushButton>(d, "btnClear");
        if (stack->currentWidget() != child<QListWidget>(d, "lbTransparent"))
            failures << QStringLiteral("not opened on the transparent list");
        expect(texts(child<QListWidget>(d, "lbTransparent")), {"alpha", "Zeta"});
        clickRadio(child<QRadioButton>(d, "rbLocked"));
        if (stack->currentWidget() != locked)
            failures << QStringLiteral("locked list not shown");
        expect(texts(locked), {"Gone1", "maskbtn2"});

        dialogs.dialogAnswers << pick({"Panel1", "Label1"}, false, "btnOK");
        QTest::mouseClick(child<QPushButton>(d, "btnAdd"), Qt::LeftButton);
        expect(offered, {"Label1", "MaskBtn1", "Panel1"}); // MaskBtn2 is there as maskbtn2
        dialogs.dialogAnswers << pick({"MaskBtn1"}, false, "btnCancel");
        QTest::mouseClick(child<QPushButton>(d, "btnAdd"), Qt::LeftButton);
        expect(texts(locked), {"Gone1", "Label1", "maskbtn2", "Panel1"});

        // Delete takes the chosen entry and chooses the next; Clear empties
        // the shown list only.
        if (del->isEnabled())
            failures << QStringLiteral("Delete without a chosen entry");
        clickItem(locked, QStringLiteral("Gone1"));
        QTest::mouseClick(del, Qt::LeftButton);
        QTest::mouseClick(del, Qt::LeftButton);
        expect(texts(locked), {"maskbtn2", "Panel1"});
        clickRadio(child<QRadioButton>(d, "rbProtected"));
        QTest::mouseClick(clear, Qt::LeftButton);
        if (protectedList->count() != 0 || clear->isEnabled() || del->isEnabled())
            failures << QStringLiteral("Clear");
        dialogs.dialogAnswers << pick({}, true, "btnOK");
        QTest::mouseClick(child<QPushButton>(d, "btnAdd"), Qt::LeftButton);
        QTest::mouseClick(child<QPushButton>(d, "btnOK"), Qt::LeftButton);
        return d->result();
    };
    f.designer->EditControlLists(ltTransparent);
    QCOMPARE(failures, QStringList());
    QCOMPARE(f.designer->LockedControls(), (QStringList{"maskbtn2", "Panel1"}));
    QCOMPARE(f.designer->ProtectedControls(), (QStringList{"Label1", "MaskBtn1", "MaskBtn2", "Panel1"}));
    QCOMPARE(f.designer->TransparentControls(), (QStringList{"alpha", "Zeta"}));
    QVERIFY(f.designer->IsLocked(panel));

    // Cancel keeps the lists.
    dialogs.dialogAnswers << [](QDialog *d) {
        QTest::mouseClick(child<QPushButton>(d, "btnClear"), Qt::LeftButton);
        QTest::mouseClick(child<QPushButton>(d, "btnCancel"), Qt::LeftButton);
        return d->result();
    };
    f.designer->EditControlLists(ltLocked);
    QCOMPARE(f.designer->LockedControls().size(), 2);
    QCOMPARE(dialogs.unexpected, 0);
}

void TestLists::nonVisualComponentsAreShownByContainers()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25});
    auto *query = new QObject;
    query->setObjectName(QStringLiteral("Query1"));
    Components::setOwner(query, &f.form);
    query->setProperty("designLeft", 300);
    query->setProperty("designTop", 200);
    f.designer->setShowNonVisual(false);
    QVERIFY(f.start());
    QVERIFY(!f.designer->FindComponentContainer(query));

    f.designer->setShowNonVisual(true);
    TComponentContainer *box = f.designer->FindComponentContainer(query);
    QVERIFY(box);
    QCOMPARE(box->parentWidget(), f.surface);
    QCOMPARE(box->Component(), query);
    QCOMPARE(box->pos(), QPoint(300, 200));
    QCOMPARE(box->Caption(), QStringLiteral("Query1"));
    QVERIFY(!box->Bitmap().isNull());
    // A click selects it like a control.
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(f.designer->selection(), QList<QWidget *>{box});

    // Captions come from the engine's events and show only when asked for.
    f.designer->OnComponentCaption = [](QObject *, QObject *, QString &text) { text += QStringLiteral("!"); };
    const int plainHeight = box->height();
    f.designer->setShowComponentCaptions(true);
    QCOMPARE(box->Caption(), QStringLiteral("Query1!"));
    QVERIFY(box->height() > plainHeight);
    query->setObjectName(QStringLiteral("Orders"));
    QCOMPARE(box->Caption(), QStringLiteral("Orders!"));

    // Lists and behaviour speak of the component, not of its box.
    f.designer->setLockedControls({QStringLiteral("Orders")});
    QVERIFY(f.designer->IsLocked(box));
    QObject *askedAbout = nullptr;
    f.designer->OnEditBehaviour = [&](QObject *, QObject *component, TEditBehaviour &) { askedAbout = component; };
    f.designer->IsLocked(box);
    QCOMPARE(askedAbout, query);

    // Moving the box moves the component's place.
    box->move(40, 60);
    QCOMPARE(query->property("designLeft").toInt(), 40);
    QCOMPARE(query->property("designTop").toInt(), 60);

    // A copy takes the controls only; the box stays selected.
    f.designer->AddControl(button);
    f.designer->CopyToClipboard();
    QVERIFY(f.designer->ControlIndex(box) >= 0);
    QVERIFY(f.designer->ControlIndex(button) >= 0);

    // The box goes with its component, and all boxes when hidden.
    QPointer<TComponentContainer> gone = box;
    delete query;
    QVERIFY(gone.isNull());
    QCOMPARE(f.designer->ControlIndex(button), 0);
    auto *table = new QObject;
    table->setObjectName(QStringLiteral("Table1"));
    Components::setOwner(table, &f.form);
    f.designer->setShowNonVisual(true);
    QPointer<TComponentContainer> tableBox = f.designer->FindComponentContainer(table);
    QVERIFY(tableBox);
    f.designer->setShowNonVisual(false);
    QVERIFY(tableBox.isNull());
    delete table;
}

QTEST_MAIN(TestLists)
#include "test_lists.moc"
