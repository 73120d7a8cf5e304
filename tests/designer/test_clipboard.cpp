// Copy, cut and paste of designed controls, within one form and between two,
// against foreign clipboard content; layouts saved and loaded as component
// streams, text forms and INI files; single components and their properties.
#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QtTest>

#include "Edits.h"
#include "IniFile.h"
#include "Label.h"
#include "TestSupport.h"
#include "helper_designform.h"

class TestClipboard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void copyPanelWithChildrenIntoAnotherPanel();
    void childrenGoWithTheirParentToAnyForm();
    void foreignClipboardContentPastesNothing();
    void cutRemovesTheControlsAndPasteBringsThemBack();
    void layoutRoundTripsThroughStreamsAndForms();
    void iniLayoutRoundTrip();
    void singleComponentsAndTheirProperties();
};

namespace {

const QString kFormat = QStringLiteral("application/x-qt-windows-mime;value=\"CF_DesignedObjects\"");

QByteArray clipboardBytes()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data ? data->data(kFormat) : QByteArray();
}

template <class T>
T *named(QWidget &form, const QString &name)
{
    return qobject_cast<T *>(Components::findComponent(&form, name));
}

// Name, class, parent and bounds of every control of a form, depth first.
QStringList describe(QWidget *root)
{
    QStringList out;
    for (QWidget *w : root->findChildren<QWidget *>()) {
        const TControl *c = TControl::from(w);
        if (!c)
            continue;
        const QRect g = w->geometry();
        out << QStringLiteral("%1:%2 in %3 at %4,%5 %6x%7")
                   .arg(w->objectName(), c->classInfo().className, w->parentWidget()->objectName())
                   .arg(g.x())
                   .arg(g.y())
                   .arg(g.width())
                   .arg(g.height());
    }
    out.sort();
    return out;
}

} // namespace

void TestClipboard::init()
{
    QGuiApplication::clipboard()->clear();
}

void TestClipboard::copyPanelWithChildrenIntoAnotherPanel()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 150});
    auto *label = f.add<TLabel>(panel, {5, 5, 60, 15});
    auto *edit = f.add<TcxTextEdit>(panel, {5, 30, 100, 21});
    auto *target = f.add<TPanel>(nullptr, {250, 10, 300, 300});
    QVERIFY(f.start());
    panel->setCaption(QStringLiteral("Adresse"));

    QVERIFY(!f.designer->CanCopy());
    f.designer->AddControl(panel);
    QVERIFY(f.designer->CanCopy());
    QList<QObject *> copied;
    f.designer->OnCopyComponent = [&](QObject *, QObject *c) { copied << c; };
    f.designer->CopyToClipboard();
    QCOMPARE(copied, (QList<QObject *>{panel}));
    QVERIFY(clipboardBytes().startsWith("TPF0"));
    QVERIFY(f.designer->CanPaste());

    // The target panel takes controls: the copy goes into it.
    f.designer->ClearControls();
    f.designer->AddControl(target);
    QList<QObject *> pasted;
    f.designer->OnPasteComponent = [&](QObject *, QObject *c) { pasted << c; };
    int changes = 0;
    f.designer->OnChange = [&](QObject *) { ++changes; };
    f.designer->PasteFromClipboard();

    auto *copy = named<TPanel>(f.form, QStringLiteral("Panel3"));
    QVERIFY(copy);
    QCOMPARE(copy->parentWidget(), target);
    auto *copiedLabel = named<TLabel>(f.form, QStringLiteral("Label2"));
    auto *copiedEdit = named<TcxTextEdit>(f.form, QStringLiteral("cxTextEdit2"));
    QVERIFY(copiedLabel && copiedEdit);
    QCOMPARE(copy->Caption(), QStringLiteral("Adresse"));
    QVERIFY(copy->isVisible());
    QCOMPARE(copiedEdit->parentWidget(), copy);
    QCOMPARE(copiedEdit->geometry(), edit->geometry());
    QCOMPARE(Components::owner(copiedEdit), &f.form);
    QCOMPARE(label->parentWidget(), panel); // the originals are untouched

    QCOMPARE(f.designer->selection(), (QList<QWidget *>{copy}));
    QCOMPARE(pasted.size(), 3);
    QVERIFY(pasted.contains(copiedLabel));
    QCOMPARE(changes, 1);
    QVERIFY(copiedEdit->isDesigning()); // designed like the others

    // With a control selected that takes none, the paste goes beside it.
    f.designer->ClearControls();
    f.designer->AddControl(copiedEdit);
    f.designer->PasteFromClipboard();
    auto *beside = named<TPanel>(f.form, QStringLiteral("Panel4"));
    QVERIFY(beside);
    QCOMPARE(beside->parentWidget(), copy);
}

void TestClipboard::childrenGoWithTheirParentToAnyForm()
{
    DesignForm one;
    auto *panel = one.add<TPanel>(nullptr, {10, 10, 200, 150});
    auto *inner = one.add<TMaskBtn>(panel, {5, 5, 80, 25});
    auto *other = one.add<TMaskBtn>(nullptr, {300, 10, 80, 25});
    one.designer->setActive(true);

    // The child current: only it and its siblings go; the panel around it stays out.
    one.select({inner, panel, other});
    QList<QObject *> copied;
    one.designer->OnCopyComponent = [&](QObject *, QObject *c) { copied << c; };
    one.designer->CopyToClipboard();
    QCOMPARE(copied, (QList<QObject *>{inner}));
    QCOMPARE(one.designer->selection(), (QList<QWidget *>{inner}));

    // The panel current: the child goes inside it.
    copied.clear();
    one.select({panel, inner, other});
    one.designer->CopyToClipboard();
    QCOMPARE(copied, (QList<QObject *>{panel, other}));
    QCOMPARE(one.designer->selection(), (QList<QWidget *>{panel, other}));

    // Nothing selected: onto the design control.
    one.designer->ClearControls();
    one.designer->PasteFromClipboard();
    QCOMPARE(Components::componentCount(&one.form), 6);
    auto *copy = named<TPanel>(one.form, QStringLiteral("Panel2"));
    QVERIFY(copy);
    QCOMPARE(copy->parentWidget(), one.surface);
    QCOMPARE(copy->findChildren<TMaskBtn *>().size(), 1);
    QCOMPARE(one.designer->ControlCount(), 2);

    // Another engine on another form takes the same clipboard; names there
    // are free, so they stay.
    DesignForm two;
    auto *existing = two.add<TMaskBtn>(nullptr, {300, 300, 80, 25});
    QVERIFY(!two.designer->CanPaste()); // inactive
    two.designer->setActive(true);
    QVERIFY(two.designer->CanPaste());
    two.designer->AddControl(existing);
    two.designer->PasteFromClipboard();
    auto *arrived = named<TPanel>(two.form, QStringLiteral("Panel1"));
    QVERIFY(arrived);
    QCOMPARE(arrived->geometry(), QRect(10, 10, 200, 150));
    QCOMPARE(named<TMaskBtn>(two.form, QStringLiteral("MaskBtn2"))->parentWidget(), arrived);
    QCOMPARE(two.designer->selection().first(), arrived);
}

void TestClipboard::foreignClipboardContentPastesNothing()
{
    DesignForm f;
    auto *button = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25});
    f.designer->setActive(true);
    QStringList errors;
    f.designer->OnReadError = [&](QObject *, const QString &message, bool &) { errors << message; };
    int changes = 0;
    f.designer->OnChange = [&](QObject *) { ++changes; };

    QGuiApplication::clipboard()->setText(QStringLiteral("object Panel1: TPanel\nend\n"));
    QVERIFY(!f.designer->CanPaste());
    f.designer->PasteFromClipboard();
    QCOMPARE(Components::componentCount(&f.form), 1);

    // Our format without data: raised, and the selection is emptied.
    auto *empty = new QMimeData;
    empty->setData(kFormat, QByteArray());
    QGuiApplication::clipboard()->setMimeData(empty);
    f.designer->AddControl(button);
    QVERIFY_THROWS_EXCEPTION(EFormDesigner, f.designer->PasteFromClipboard());
    QCOMPARE(f.designer->ControlCount(), 0);

    // A good component followed by garbage: all or nothing.
    f.designer->AddControl(button);
    f.designer->CopyToClipboard();
    auto *mixed = new QMimeData;
    mixed->setData(kFormat, clipboardBytes() + QByteArray("TPF0\x01", 5));
    QGuiApplication::clipboard()->setMimeData(mixed);
    f.designer->PasteFromClipboard();
    QCOMPARE(Components::componentCount(&f.form), 1);
    QCOMPARE(errors.size(), 1);
    QCOMPARE(changes, 0);
    // Other garbage under our format is the paste fuzz target's job.

    // An unknown class: the handler may skip it and keep the rest.
    DesignForm other;
    auto *otherButton = other.add<TMaskBtn>(nullptr, {10, 10, 80, 25});
    other.designer->setActive(true);
    other.designer->AddControl(otherButton);
    QByteArray text = "object Widget1: TNoSuchControl\nend\nobject Button5: TMaskBtn\n  Left = 40\nend\n";
    auto *mime = new QMimeData;
    mime->setData(kFormat, text);
    QGuiApplication::clipboard()->setMimeData(mime);
    errors.clear();
    other.designer->OnReadError = [&](QObject *, const QString &message, bool &handled) {
        errors << message;
        handled = true;
    };
    other.designer->PasteFromClipboard();
    QCOMPARE(errors.size(), 1);
    auto *kept = named<TMaskBtn>(other.form, QStringLiteral("Button5"));
    QVERIFY(kept);
    QCOMPARE(kept->x(), 40);
}

void TestClipboard::cutRemovesTheControlsAndPasteBringsThemBack()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 150});
    f.add<TMaskBtn>(panel, {5, 5, 80, 25});
    QPointer<TMaskBtn> button = f.add<TMaskBtn>(nullptr, {300, 10, 80, 25});
    QPointer<TPanel> gone = panel;
    QVERIFY(f.start());
    int changes = 0;
    f.designer->OnChange = [&](QObject *) { ++changes; };

    f.designer->AddControl(panel);
    f.designer->AddControl(button);
    f.designer->CutToClipboard();
    QVERIFY(gone.isNull());
    QVERIFY(button.isNull());
    QCOMPARE(Components::componentCount(&f.form), 0);
    QCOMPARE(f.designer->ControlCount(), 0);
    QCOMPARE(changes, 1);
    QCOMPARE(clipboardBytes().count("TPF0"), 2);

    // Pasted back, they get their old names: nobody bears them now.
    f.designer->PasteFromClipboard();
    QVERIFY(named<TPanel>(f.form, QStringLiteral("Panel1")));
    QVERIFY(named<TMaskBtn>(f.form, QStringLiteral("MaskBtn1")));
    QVERIFY(named<TMaskBtn>(f.form, QStringLiteral("MaskBtn2")));
    QCOMPARE(f.designer->ControlCount(), 2);

    // A single selected control is cut.
    QWidget *one = named<TMaskBtn>(f.form, QStringLiteral("MaskBtn1"));
    f.designer->ClearControls();
    f.designer->AddControl(one);
    f.designer->CutToClipboard();
    QVERIFY(!named<TMaskBtn>(f.form, QStringLiteral("MaskBtn1")));
    f.designer->AddControl(named<TPanel>(f.form, QStringLiteral("Panel1")));
    QCOMPARE(f.designer->ControlCount(), 1);
}

void TestClipboard::layoutRoundTripsThroughStreamsAndForms()
{
    DesignForm f;
    auto *outer = f.add<TPanel>(nullptr, {10, 10, 300, 250});
    auto *inner = f.add<TPanel>(outer, {10, 10, 200, 150});
    f.add<TcxTextEdit>(inner, {5, 5, 100, 21});
    f.add<TcxTextEdit>(inner, {5, 35, 100, 21});
    f.add<TLabel>(nullptr, {350, 10, 60, 15});
    QVERIFY(f.start());
    const QStringList original = describe(f.surface);
    const QList<QWidget *> tabs = ControlLayout::tabList(inner);

    QBuffer stream;
    stream.open(QIODevice::ReadWrite);
    f.designer->SaveToStream(stream);
    QCOMPARE(stream.data().count("TPF0"), 2); // outer panel and label; the rest inside

    // Change things, then load: the saved layout comes back.
    delete inner;
    outer->setGeometry(50, 50, 100, 100);
    f.add<TMaskBtn>(nullptr, {400, 300, 80, 25});
    stream.seek(0);
    f.designer->LoadFromStream(stream);
    QCOMPARE(describe(f.surface), original);
    auto *loadedInner = named<TPanel>(f.form, QStringLiteral("Panel2"));
    QVERIFY(loadedInner);
    QCOMPARE(ControlLayout::tabList(loadedInner).size(), tabs.size());
    QCOMPARE(ControlLayout::tabList(loadedInner).first()->objectName(), QStringLiteral("cxTextEdit1"));
    QCOMPARE(Components::componentCount(&f.form), 5);

    // Without clearing, the loaded controls come in beside, renamed.
    f.designer->setClearBeforeLoad(false);
    stream.seek(0);
    f.designer->LoadFromStream(stream);
    QCOMPARE(Components::componentCount(&f.form), 10);
    QVERIFY(named<TPanel>(f.form, QStringLiteral("Panel3")));

    // The same through files, in text form.
    f.designer->setClearBeforeLoad(true);
    f.designer->ClearForm();
    QCOMPARE(Components::componentCount(&f.form), 0);
    stream.seek(0);
    f.designer->LoadFromStream(stream);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("layout.dfm"));
    f.designer->SaveToDFM(file, dfmText);
    const QByteArray text = readFileBytes(file);
    // Graphic controls lie beneath the windowed ones and come first.
    QVERIFY(text.startsWith("object Label1: TLabel"));
    QCOMPARE(text.count("\nobject Panel1: TPanel"), 1);
    // The handles sit in the inner panel when clearing takes it away; they
    // must still serve afterwards.
    f.designer->AddControl(named<TcxTextEdit>(f.form, QStringLiteral("cxTextEdit1")));
    f.designer->ClearForm();
    QCOMPARE(f.designer->ControlCount(), 0);
    f.designer->LoadFromDFM(file, dfmText);
    QCOMPARE(describe(f.surface), original);
    f.designer->AddControl(named<TPanel>(f.form, QStringLiteral("Panel1")));
    QCOMPARE(visibleHandles(&f.form), 8);

    // An unreadable file is an error of the engine, and the form is not cleared.
    writeFileBytes(file, "object Broken: TPanel\n  Left = \n");
    QStringList errors;
    f.designer->OnReadError = [&](QObject *, const QString &message, bool &) { errors << message; };
    QVERIFY_THROWS_EXCEPTION(EFormDesigner, f.designer->LoadFromDFM(dir.filePath(QStringLiteral("none.dfm")), dfmText));
    QCOMPARE(describe(f.surface), original);
    QVERIFY_THROWS_EXCEPTION(EFormDesigner, f.designer->LoadFromDFM(file, dfmText));
    QCOMPARE(errors.size(), 1);
    QCOMPARE(describe(f.surface), original);

    // An empty layout clears the form and is no error.
    writeFileBytes(file, "\r\n");
    f.designer->LoadFromDFM(file, dfmBinary);
    QCOMPARE(Components::componentCount(&f.form), 0);
    QCOMPARE(errors.size(), 1);
}

void TestClipboard::iniLayoutRoundTrip()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 300, 250});
    auto *group = f.add<TDBRadioGroup>(panel, {10, 10, 200, 100});
    group->setItems({QStringLiteral("Ja"), QStringLiteral("C:\\Pfad\\neu"), QString()});
    auto *edit = f.add<TcxTextEdit>(panel, {10, 150, 100, 21});
    auto *edit2 = f.add<TcxTextEdit>(panel, {10, 180, 100, 21});
    auto *label = f.add<TLabel>(nullptr, {350, 10, 60, 15});
    label->setCaption(QStringLiteral("  Name: "));
    f.designer->setActive(true);
    const QStringList original = describe(f.surface);

    QStringList saved, loaded;
    f.designer->OnSaveControl = [&](QObject *, QWidget *c, TMemIniFile &ini) {
        saved << c->objectName();
        ini.writeString(c->objectName(), QStringLiteral("Note"), QStringLiteral("n-") + c->objectName());
    };
    f.designer->OnLoadControl = [&](QObject *, QWidget *c, TMemIniFile &ini) {
        loaded << ini.readString(c->objectName(), QStringLiteral("Note"), QString());
    };
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("layout.ini"));
    f.designer->SaveToFile(file);
    QCOMPARE(saved, (QStringList{label->objectName(), panel->objectName(), group->objectName(), edit->objectName(),
                                 edit2->objectName()}));

    // Moved, reordered, one removed: loading puts everything back.
    panel->setGeometry(100, 100, 50, 50);
    edit2->setTabOrder(0);
    label->setCaption(QStringLiteral("x"));
    delete group;
    QStringList errors;
    f.designer->OnReadError = [&](QObject *, const QString &message, bool &) { errors << message; };
    f.designer->LoadFromFile(file);
    QCOMPARE(errors, QStringList()); // the extra "Note" keys are the program's
    QCOMPARE(describe(f.surface), original);
    auto *back = named<TDBRadioGroup>(f.form, QStringLiteral("DBRadioGroup1"));
    QVERIFY(back);
    QCOMPARE(back->Items(), (QStringList{QStringLiteral("Ja"), QStringLiteral("C:\\Pfad\\neu"), QString()}));
    QCOMPARE(label->Caption(), QStringLiteral("  Name: "));
    QCOMPARE(edit->TabOrder(), 1);
    QCOMPARE(edit2->TabOrder(), 2);
    QCOMPARE(loaded.size(), 5);
    QVERIFY(loaded.contains(QStringLiteral("n-DBRadioGroup1")));

    // An unknown class is reported and skipped.
    TMemIniFile broken(file);
    broken.writeString(QStringLiteral("Thing1"), QStringLiteral("Class"), QStringLiteral("TNoSuchControl"));
    QVERIFY(broken.save());
    f.designer->LoadFromFile(file);
    QCOMPARE(errors.size(), 1);
    QVERIFY(!Components::findComponent(&f.form, QStringLiteral("Thing1")));
}

void TestClipboard::singleComponentsAndTheirProperties()
{
    DesignForm f;
    auto *panel = f.add<TPanel>(nullptr, {10, 10, 200, 150});
    f.add<TMaskBtn>(panel, {5, 5, 80, 25});
    auto *other = f.add<TPanel>(nullptr, {300, 10, 100, 100});
    f.designer->setActive(true);

    QBuffer stream;
    stream.open(QIODevice::ReadWrite);
    f.designer->SaveComponentToStream(stream, panel, dfmText);
    QVERIFY(stream.data().startsWith("object Panel1: TPanel"));
    stream.seek(0);
    // Read into another panel: it takes the properties and the children.
    f.designer->LoadComponentFromStream(stream, other, dfmText);
    QCOMPARE(other->geometry(), QRect(10, 10, 200, 150));
    QCOMPARE(other->objectName(), QStringLiteral("Panel2")); // Panel1 is taken
    QCOMPARE(Components::owner(other->findChildren<TMaskBtn *>().value(0)), &f.form);

    // A stream of another class is refused.
    QBuffer binary;
    binary.open(QIODevice::ReadWrite);
    f.designer->SaveComponentToStream(binary, other->findChildren<TMaskBtn *>().first(), dfmBinary);
    binary.seek(0);
    QVERIFY_THROWS_EXCEPTION(EFormDesigner, f.designer->LoadComponentFromStream(binary, panel, dfmBinary));

    // Properties as text.
    QVERIFY(f.designer->GetComponentProperties(panel).contains(QStringLiteral("Left = 10")));
    int changes = 0;
    f.designer->OnChange = [&](QObject *) { ++changes; };
    f.designer->SetComponentProperties(panel, QStringLiteral("Left = 33\n"));
    QCOMPARE(panel->x(), 33);
    QCOMPARE(changes, 1);
    QStringList errors;
    f.designer->OnReadError = [&](QObject *, const QString &message, bool &handled) {
        errors << message;
        handled = true;
    };
    f.designer->SetComponentProperties(panel, QStringLiteral("Top = 44\nColour = clRed\n"));
    QCOMPARE(panel->y(), 44);
    QCOMPARE(errors.size(), 1);
    QVERIFY(f.designer->GetComponentProperties(nullptr).isEmpty());
}

QTEST_MAIN(TestClipboard)
#include "test_clipboard.moc"
