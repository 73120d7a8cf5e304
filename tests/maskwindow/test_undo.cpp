// The undo history of mask designs: the order in which snapshots come back,
// and that the design really returns to the saved state, both for whole-form
// and for component-by-component snapshots.
#include <QtEndian>
#include <QtTest>

#include "../designer/helper_designform.h"
#include "UndoRedo.h"

class TestUndo : public QObject
{
    Q_OBJECT

private slots:
    void freshHistoryRestoresNothing();
    void undoWalksBackToTheFirstSnapshot();
    void undoAndRedoRestoreDeletedNestedControls();
    void snapshotsOfALargeFormRestoreExactly();
    void programHistoryRecordsThroughSaveUndo();
    void componentSnapshotStartsWithTheOwnedCount();
};

namespace {

QWidget *control(DesignForm &f, const QString &name)
{
    return qobject_cast<QWidget *>(Components::findComponent(&f.form, name));
}

// The controls directly on the surface, by name.
QStringList topNames(DesignForm &f)
{
    QStringList out;
    for (QWidget *w : f.surface->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        if (TControl::from(w) && !w->objectName().isEmpty())
            out << w->objectName();
    out.sort();
    return out;
}

int xOf(DesignForm &f, const QString &name)
{
    QWidget *w = control(f, name);
    return w ? w->x() : -1;
}

// Whole-form and component-by-component snapshots keep the same order.
const struct Kind
{
    const char *name;
    void (TUndoStream::*save)(TCustomFormDesigner *);
    bool (TUndoStream::*undo)(TCustomFormDesigner *);
    bool (TUndoStream::*redo)(TCustomFormDesigner *);
} kKinds[] = {{"form", &TUndoStream::SaveUndo, &TUndoStream::Undo, &TUndoStream::Redo},
              {"components", &TUndoStream::SaveUndoComponents, &TUndoStream::UndoComponents,
               &TUndoStream::RedoComponents}};

} // namespace

void TestUndo::freshHistoryRestoresNothing()
{
    for (const Kind &kind : kKinds) {
        DesignForm f;
        const QString name = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25})->objectName();
        f.designer->setActive(true);
        TUndoStream history;
        QCOMPARE(history.positions(), (QList<qint64>{0}));
        QCOMPARE(history.current(), 0);

        // Index 0 exists from the start and is "loaded", but nothing was ever
        // saved: the design stays as it is (no clearing of the mask).
        QVERIFY2((history.*kind.undo)(f.designer), kind.name);
        QCOMPARE(history.current(), -1);
        QCOMPARE(topNames(f), QStringList{name});
        QCOMPARE(xOf(f, name), 10);
        QVERIFY(!(history.*kind.undo)(f.designer));
        QCOMPARE(history.current(), 0);
        QVERIFY(!(history.*kind.redo)(f.designer));
        QCOMPARE(history.current(), 0);
        QCOMPARE(topNames(f), QStringList{name});
    }
}

void TestUndo::undoWalksBackToTheFirstSnapshot()
{
    DesignForm f;
    const QString name = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25})->objectName();
    f.designer->setActive(true);
    TUndoStream history;

    history.SaveUndo(f.designer); // A: x 10
    control(f, name)->move(50, 10);
    history.SaveUndo(f.designer); // B: x 50
    control(f, name)->move(90, 10);

    // Index 0 and the first snapshot share their place.
    QCOMPARE(history.positions().size(), 3);
    QCOMPARE(history.positions().at(0), 0);
    QCOMPARE(history.positions().at(1), 0);
    QVERIFY(history.positions().at(2) > 0);
    QCOMPARE(history.current(), 2);

    // The last saved state first.
    QVERIFY(history.Undo(f.designer));
    QCOMPARE(xOf(f, name), 50);
    QCOMPARE(history.current(), 1);
    QVERIFY(history.Undo(f.designer));
    QCOMPARE(xOf(f, name), 10);
    QCOMPARE(history.current(), 0);

    // A save after undoing goes behind the undone snapshots, which stay:
    // back through C, B and A, and A once more.
    control(f, name)->move(70, 10);
    history.SaveUndo(f.designer); // C: x 70
    QCOMPARE(history.positions().size(), 4);
    QCOMPARE(history.current(), 3);
    for (int x : {70, 50, 10}) {
        QVERIFY(history.Undo(f.designer));
        QCOMPARE(xOf(f, name), x);
    }
    control(f, name)->move(33, 10);
    QVERIFY(history.Undo(f.designer));
    QCOMPARE(xOf(f, name), 10);
    QCOMPARE(history.current(), -1);
    QVERIFY(!history.Undo(f.designer));
    QCOMPARE(history.current(), 0);
    // Loading one snapshot never brings in the later ones as well.
    QCOMPARE(topNames(f), QStringList{name});
    // Redo is walked with the nested controls below.
}

void TestUndo::snapshotsOfALargeFormRestoreExactly()
{
    DesignForm f;
    QStringList names;
    for (int i = 0; i < 40; ++i)
        names << f.add<TMaskBtn>(nullptr, {10 + i * 3, 10, 20, 20})->objectName();
    f.designer->setActive(true);
    TUndoStream history;
    const auto layout = [&] {
        QBuffer b;
        b.open(QIODevice::WriteOnly);
        f.designer->SaveToStream(b);
        return b.data();
    };
    QList<QByteArray> saved;
    history.SaveUndo(f.designer);
    saved << layout();
    control(f, names.at(20))->move(300, 300);
    history.SaveUndo(f.designer);
    saved << layout();
    f.add<TMaskBtn>(nullptr, {5, 200, 20, 20});
    history.SaveUndo(f.designer);
    saved << layout();
    // What did not change between snapshots is kept once.
    QVERIFY(history.storedBytes() < saved.at(0).size() + saved.at(1).size() + saved.at(2).size());
    for (int i = 2; i >= 0; --i) {
        QVERIFY(history.Undo(f.designer));
        QCOMPARE(layout(), saved.at(i));
    }
}

void TestUndo::programHistoryRecordsThroughSaveUndo()
{
    DesignForm f;
    const QString name = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25})->objectName();
    f.designer->setActive(true);
    TUndoStream &history = TUndoStream::instance();
    QCOMPARE(&history, &TUndoStream::instance());
    const qsizetype before = history.positions().size();

    SaveUndo(f.designer);
    QCOMPARE(history.positions().size(), before + 1);
    QCOMPARE(history.current(), int(before));
    control(f, name)->move(120, 10);
    QVERIFY(history.Undo(f.designer));
    QCOMPARE(xOf(f, name), 10);
}

void TestUndo::componentSnapshotStartsWithTheOwnedCount()
{
    DesignForm f;
    Components::setOwner(f.designer, &f.form);
    auto *styles = new QObject(&f.form); // owned, but no control: counted, not written
    Components::setOwner(styles, &f.form);
    f.add<TMaskBtn>(nullptr, {10, 10, 80, 25});
    f.designer->setActive(true);
    TUndoStream history;

    history.SaveUndoComponents(f.designer);
    QCOMPARE(history.positions(), (QList<qint64>{0, 0}));
    QCOMPARE(history.current(), 1);
    const QByteArray bytes = history.data();
    QVERIFY(bytes.size() > 8);
    QCOMPARE(qFromLittleEndian<quint32>(bytes.constData()), quint32(3));
    QCOMPARE(bytes.mid(4, 4), QByteArray("TPF0"));
    // One control, one component stream.
    QCOMPARE(bytes.count("TPF0"), 1);
}

void TestUndo::undoAndRedoRestoreDeletedNestedControls()
{
    for (const Kind &kind : kKinds) {
        DesignForm f;
        Components::setOwner(f.designer, &f.form);
        auto *a = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25});
        auto *panel = f.add<TPanel>(nullptr, {200, 50, 200, 150});
        auto *inner = f.add<TMaskBtn>(panel, {5, 5, 60, 20});
        const QString aName = a->objectName(), panelName = panel->objectName(), innerName = inner->objectName();
        f.designer->setActive(true);
        TUndoStream history;

        (history.*kind.save)(f.designer); // 1: a at 10
        a->move(60, 10);
        (history.*kind.save)(f.designer); // 2: a at 60
        delete panel;
        a->setBounds(400, 300, 40, 40);

        QVERIFY2((history.*kind.undo)(f.designer), kind.name);
        QCOMPARE(history.current(), 1);
        QCOMPARE(topNames(f), (QStringList{aName, panelName}));
        QCOMPARE(control(f, aName)->geometry(), QRect(60, 10, 80, 25));
        QCOMPARE(control(f, panelName)->geometry(), QRect(200, 50, 200, 150));
        QWidget *innerBack = control(f, innerName);
        QVERIFY(innerBack);
        QCOMPARE(innerBack->parentWidget(), control(f, panelName));
        QCOMPARE(innerBack->geometry(), QRect(5, 5, 60, 20));
        QVERIFY(innerBack->isVisibleTo(&f.form));
        QVERIFY(control(f, aName)->isVisibleTo(&f.form));
        // The panel's child came back inside the panel, and only there.
        QCOMPARE(f.surface->findChildren<TMaskBtn *>().size(), 2);

        QVERIFY((history.*kind.undo)(f.designer));
        QCOMPARE(xOf(f, aName), 10);
        QVERIFY((history.*kind.redo)(f.designer));
        QCOMPARE(history.current(), 1);
        QCOMPARE(xOf(f, aName), 10);
        QVERIFY((history.*kind.redo)(f.designer));
        QCOMPARE(history.current(), 2);
        QCOMPARE(xOf(f, aName), 60);
        QCOMPARE(topNames(f), (QStringList{aName, panelName}));
        QCOMPARE(f.surface->findChildren<TMaskBtn *>().size(), 2);
        QVERIFY(!(history.*kind.redo)(f.designer));
        QCOMPARE(history.current(), 2);
        // The restored controls are designable again.
        f.designer->AddControl(control(f, aName));
        QCOMPARE(f.designer->ControlCount(), 1);
    }
}

QTEST_MAIN(TestUndo)
#include "test_undo.moc"
