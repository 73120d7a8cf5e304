// Locked, protected and transparent controls: names (also qualified by
// their owners), inversion, how far children follow, the program's say
// through OnEditBehaviour, the list editor, and non-visual components.
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include "ComponentContainer.h"
#include "DesignerWidgets.h"
#include "Label.h"
#include "TestSupport.h"
#include "helper_designform.h"

class TestLists : public QObject
{
    Q_OBJECT

private slots:
    void qualifiedNamesMatchAlongTheOwnerChain();
    void inverseListsTurnEveryDesignableControl();
    void childrenFollowAsFarAsTheModeSays();
    void protectionWithAndWithoutADesignControl();
    void editBehaviourOverridesTheLists();
    void editControlListsReplacesTheLists();
    void nonVisualComponentsAreShownByContainers();
};

namespace {
TGrabHandle *visibleHandle(QWidget *root)
{
    for (TGrabHandle *h : root->findChildren<TGrabHandle *>())
        if (h->isVisible())
            return h;
    return nullptr;
}
} // namespace

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
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));

    QCOMPARE(label->objectName(), QStringLiteral("Label1"));
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
    QVERIFY(visibleHandle(&f.form));
    QVERIFY(!visibleHandle(&f.form)->Locked());
    f.designer->setLockedControls({button->objectName()});
    QVERIFY(visibleHandle(&f.form)->Locked());
    f.designer->setLockedControls({});
    QVERIFY(!visibleHandle(&f.form)->Locked());

    // The same names serve the transparent list.
    f.designer->setTransparentControls({QStringLiteral("Form.MaskBtn1")});
    QVERIFY(f.designer->IsTransparent(button));
    QVERIFY(!f.designer->IsTransparent(label));
}

void TestLists::inverseListsTurnEveryDesignableControl()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 150});
    auto *inner = f.add<TMaskBtn>(panel, {10, 10, 80, 25});
    auto *listed = f.add<TMaskBtn>(nullptr, {300, 10, 80, 25});
    auto *outside = new TMaskBtn(&f.form); // on the form, not on the design control
    outside->setGeometry(620, 10, 60, 25);
    f.designer->setActive(true);

    QVERIFY(!f.designer->IsLocked(panel));
    f.designer->setLockedInverse(true);
    QVERIFY(f.designer->IsLocked(panel));
    QVERIFY(f.designer->IsLocked(inner));
    QVERIFY(f.designer->IsLocked(listed));
    QVERIFY(!f.designer->IsLocked(outside));
    f.designer->setLockedControls({listed->objectName()});
    QVERIFY(!f.designer->IsLocked(listed));
    QVERIFY(f.designer->IsLocked(inner));
    // The design control is locked whatever the lists say.
    QVERIFY(f.designer->IsLocked(f.surface));
    f.designer->setLockedInverse(false);
    QVERIFY(f.designer->IsLocked(f.surface));
    QVERIFY(f.designer->IsLocked(listed));
    QVERIFY(!f.designer->IsLocked(inner));

    f.designer->setTransparentInverse(true);
    QVERIFY(f.designer->IsTransparent(inner));
    QVERIFY(f.designer->IsTransparent(f.surface));
    QVERIFY(!f.designer->IsTransparent(outside));

    // Inactive, nothing is designable and nothing locked.
    f.designer->setActive(false);
    QVERIFY(!f.designer->IsLocked(listed));
}

void TestLists::childrenFollowAsFarAsTheModeSays()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 300, 250});
    auto *child = f.add<TPanel>(panel, {10, 10, 200, 150});
    auto *grandchild = f.add<TMaskBtn>(child, {10, 10, 80, 25});
    f.designer->setActive(true);

    f.designer->setLockedControls({panel->objectName()});
    QVERIFY(f.designer->IsLocked(panel));
    QVERIFY(!f.designer->IsLocked(child));

    f.designer->setLockChildren(cmNormal);
    QVERIFY(f.designer->IsLocked(child));
    QVERIFY(!f.designer->IsLocked(grandchild));

    f.designer->setLockChildren(cmRecurse);
    QVERIFY(f.designer->IsLocked(grandchild));
    QVERIFY(f.designer->IsLocked(child));

    // The transparent list has its own mode.
    f.designer->setTransparentControls({child->objectName()});
    QVERIFY(!f.designer->IsTransparent(grandchild));
    f.designer->setTransparentChildren(cmNormal);
    QVERIFY(f.designer->IsTransparent(grandchild));
    QVERIFY(!f.designer->IsTransparent(panel));

    // Inverted, recursion still reaches down: only the unlisted line is locked.
    f.designer->setLockChildren(cmRecurse);
    f.designer->setLockedInverse(true);
    QVERIFY(!f.designer->IsLocked(grandchild));
    auto *other = f.add<TMaskBtn>(nullptr, {400, 10, 80, 25});
    QVERIFY(f.designer->IsLocked(other));
}

void TestLists::protectionWithAndWithoutADesignControl()
{
    DesignForm f;
    auto *inside = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25});
    auto *outside = new TMaskBtn(&f.form);
    Components::setOwner(outside, &f.form);
    AutoName(outside, &f.form);
    outside->setGeometry(620, 10, 60, 25);
    f.designer->setProtectedControls({inside->objectName(), outside->objectName()});
    f.designer->setActive(true);

    // With a design control the lists do not count: inside is editable,
    // outside is not.
    QVERIFY(!f.designer->IsProtected(inside));
    QVERIFY(f.designer->IsProtected(outside));

    // Designing the whole form: the control placed directly on the form
    // decides for everything on it.
    auto *formPanel = new TPanel(&f.form);
    Components::setOwner(formPanel, &f.form);
    AutoName(formPanel, &f.form);
    formPanel->setGeometry(610, 100, 80, 200);
    auto *formInner = new TMaskBtn(formPanel);
    Components::setOwner(formInner, &f.form);
    AutoName(formInner, &f.form);
    f.designer->setProtectedControls({formPanel->objectName()});
    f.designer->setDesignControl(nullptr);
    QVERIFY(f.designer->Active());
    QVERIFY(f.designer->IsProtected(formPanel));
    QVERIFY(f.designer->IsProtected(formInner)); // not listed itself, and no children mode
    QVERIFY(!f.designer->IsProtected(outside));
    QVERIFY(!f.designer->IsProtected(inside));

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
    QList<QObject *> asked;
    f.designer->OnEditBehaviour = [&](QObject *, QObject *component, TEditBehaviour &behaviour) {
        asked << component;
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
    behaviours[f.surface] = ebDefault;
    QVERIFY(f.designer->IsTransparent(f.surface));
    behaviours[f.surface] = ebLocked;
    QVERIFY(!f.designer->IsTransparent(f.surface));
    behaviours.remove(f.surface);

    // Nothing outside the design control is asked about.
    asked.clear();
    auto *outside = new TMaskBtn(&f.form);
    QVERIFY(!f.designer->IsLocked(outside));
    QVERIFY(!f.designer->IsTransparent(outside));
    QVERIFY(asked.isEmpty());
}

void TestLists::editControlListsReplacesTheLists()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 150});
    auto *inner = f.add<TMaskBtn>(panel, {10, 10, 80, 25});
    auto *other = f.add<TMaskBtn>(nullptr, {300, 10, 80, 25});
    f.designer->setLockedControls({QStringLiteral("Gone1")});
    f.designer->setProtectedControls({QStringLiteral("Kept1")});
    f.designer->setActive(true);

    ScriptedDialogs dialogs;
    QStringList offered;
    // The editor opens on the transparent list and adds two of the offered names.
    dialogs.dialogAnswers << [&](QDialog *d) {
        auto *shown = d->findChild<QRadioButton *>(QStringLiteral("rbTransparent"));
        if (!shown || !shown->isChecked())
            return int(QDialog::Rejected);
        d->findChild<QRadioButton *>(QStringLiteral("rbLocked"))->click();
        d->findChild<QPushButton *>(QStringLiteral("btnClear"))->click();
        d->findChild<QPushButton *>(QStringLiteral("btnAdd"))->click();
        return int(QDialog::Accepted);
    };
    dialogs.dialogAnswers << [&](QDialog *d) {
        auto *names = d->findChild<QListWidget *>(QStringLiteral("lbNames"));
        for (int i = 0; i < names->count(); ++i) {
            offered << names->item(i)->text();
            const QString name = names->item(i)->text();
            names->item(i)->setSelected(name == inner->objectName() || name == other->objectName());
        }
        return int(QDialog::Accepted);
    };
    f.designer->EditControlLists(ltTransparent);
    QCOMPARE(dialogs.unexpected, 0);
    offered.sort();
    QStringList expected{panel->objectName(), inner->objectName(), other->objectName()};
    expected.sort();
    QCOMPARE(offered, expected);
    QStringList locked = f.designer->LockedControls();
    locked.sort();
    QStringList lockedExpected{inner->objectName(), other->objectName()};
    lockedExpected.sort();
    QCOMPARE(locked, lockedExpected);
    QCOMPARE(f.designer->ProtectedControls(), QStringList{QStringLiteral("Kept1")});
    QVERIFY(f.designer->IsLocked(inner));
    QVERIFY(!f.designer->IsLocked(panel));

    // Cancel keeps the lists.
    dialogs.dialogAnswers << [&](QDialog *d) {
        d->findChild<QPushButton *>(QStringLiteral("btnClear"))->click();
        return int(QDialog::Rejected);
    };
    f.designer->EditControlLists(ltLocked);
    QCOMPARE(f.designer->LockedControls().size(), 2);
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
    f.designer->setActive(true);
    f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.form));
    QVERIFY(!f.designer->FindComponentContainer(query));

    f.designer->setShowNonVisual(true);
    TComponentContainer *box = f.designer->FindComponentContainer(query);
    QVERIFY(box);
    QCOMPARE(box->parentWidget(), f.surface);
    QCOMPARE(box->Component(), query);
    QCOMPARE(box->Designer(), f.designer);
    QCOMPARE(box->pos(), QPoint(300, 200));
    QCOMPARE(box->Caption(), QStringLiteral("Query1"));
    QVERIFY(!box->Bitmap().isNull());
    QVERIFY(f.designer->IsDesignable(box));

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
    f.designer->AddControl(box);
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
