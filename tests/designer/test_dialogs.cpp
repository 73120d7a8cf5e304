// The designer's modal windows: alignment, size, tab order and the editor of
// the locked/protected/transparent lists, driven by mouse and keyboard.
#include <QtTest>

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <climits>
#include <memory>

#include "AlignDialog.h"
#include "ListEditorDialogs.h"
#include "SizeDialog.h"
#include "TabOrderDialog.h"
#include "TestSupport.h"
#include "helper_dialogs.h"

using namespace DialogTest;

class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alignDialogReportsTheClickedChoices();
    void alignDialogKeysAndButtons();

    void sizeEditsFollowTheirRadioButtons();
    void sizeEditsTakeOnlyDigitsAndFullStops();
    void sizeEditsRejectPastedLetters();
    void sizeValuesAreReadFromTheText();

    void tabOrderWithoutEntriesCannotBeConfirmed();
    void tabOrderArrowsMoveTheSelectedEntry();
    void tabOrderEntriesAreDroppedInPlace();

    void listEditorShowsTheChosenList();
    void listEditorAddsChosenNamesSorted();
    void listEditorDeletesAndClears();
};

// --- Alignment ----------------------------------------------------------

void TestDialogs::alignDialogReportsTheClickedChoices()
{
    TfrmAlign dialog;
    QVERIFY(showAndWait(&dialog));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Alignment"));
    QCOMPARE(dialog.horizontal(), amNoChange);
    QCOMPARE(dialog.vertical(), amNoChange);

    const QStringList horizontal = {QStringLiteral("&No change"), QStringLiteral("&Left sides"),
                                    QStringLiteral("&Centers"), QStringLiteral("&Right sides"),
                                    QStringLiteral("&Space equally"), QStringLiteral("Center in &window")};
    const QStringList vertical = {QStringLiteral("No chan&ge"), QStringLiteral("&Tops"),
                                  QStringLiteral("C&enters"), QStringLiteral("&Bottoms"),
                                  QStringLiteral("Space e&qually"), QStringLiteral("Center &in &window")};
    auto *hBox = child<QGroupBox>(&dialog, "rgHorizontal");
    auto *vBox = child<QGroupBox>(&dialog, "rgVertical");
    QVERIFY(hBox && vBox);
    QCOMPARE(hBox->title(), QStringLiteral("Horizontal"));
    QCOMPARE(vBox->title(), QStringLiteral("Vertical"));

    // Going through the items backwards catches a group that only ever
    // reports its first or last button.
    for (int i = horizontal.size() - 1; i >= 0; --i) {
        QRadioButton *radio = buttonWithText<QRadioButton>(hBox, horizontal.at(i));
        QVERIFY(radio);
        clickRadio(radio);
        QCOMPARE(int(dialog.horizontal()), i);
        QCOMPARE(dialog.vertical(), amNoChange);
    }
    for (int i = 0; i < vertical.size(); ++i) {
        QRadioButton *radio = buttonWithText<QRadioButton>(vBox, vertical.at(i));
        QVERIFY(radio);
        clickRadio(radio);
        QCOMPARE(int(dialog.vertical()), i);
        // The two groups are independent of each other.
        QCOMPARE(dialog.horizontal(), amNoChange);
    }
    clickRadio(buttonWithText<QRadioButton>(hBox, QStringLiteral("&Right sides")));
    clickRadio(buttonWithText<QRadioButton>(vBox, QStringLiteral("C&enters")));
    QCOMPARE(dialog.horizontal(), amRightBottom);
    QCOMPARE(dialog.vertical(), amCenters);
    // A fixed-size window.
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
}

void TestDialogs::alignDialogKeysAndButtons()
{
    {
        TfrmAlign dialog;
        QVERIFY(showAndWait(&dialog));
        QApplication::setActiveWindow(&dialog);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        // Mnemonics pick an item of either group. A mnemonic "animates" the
        // click: the button is released by the event loop, not at once.
        const auto pressMnemonic = [&dialog](Qt::Key key, const char *text) {
            auto *radio = buttonWithText<QRadioButton>(&dialog, QString::fromLatin1(text));
            QVERIFY(radio);
            QSignalSpy clicked(radio, &QAbstractButton::clicked);
            QTest::keyClick(&dialog, key, Qt::AltModifier);
            QVERIFY(!clicked.isEmpty() || clicked.wait());
        };
        pressMnemonic(Qt::Key_B, "&Bottoms");
        QCOMPARE(dialog.vertical(), amRightBottom);
        pressMnemonic(Qt::Key_S, "&Space equally");
        QCOMPARE(dialog.horizontal(), amSpace);
        QCOMPARE(dialog.vertical(), amRightBottom);
        // Return presses OK, the default button.
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &dialog, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.vertical(), amRightBottom);
        QCOMPARE(dialog.horizontal(), amSpace);
    }
    {
        TfrmAlign dialog;
        QVERIFY(showAndWait(&dialog));
        auto *cancel = child<QPushButton>(&dialog, "btnCancel");
        QVERIFY(cancel);
        QCOMPARE(cancel->text(), QStringLiteral("Cancel"));
        QTest::mouseClick(cancel, Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(!dialog.isVisible());
    }
    {
        TfrmAlign dialog;
        QVERIFY(showAndWait(&dialog));
        auto *ok = child<QPushButton>(&dialog, "btnOK");
        QVERIFY(ok);
        QCOMPARE(ok->text(), QStringLiteral("OK"));
        QVERIFY(ok->isDefault());
        dialog.setResult(QDialog::Rejected);
        QTest::mouseClick(ok, Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }
}

// --- Size ---------------------------------------------------------------

namespace {

struct SizeDialog
{
    TfrmSize dialog;
    QGroupBox *widthBox = child<QGroupBox>(&dialog, "rgWidth");
    QGroupBox *heightBox = child<QGroupBox>(&dialog, "rgHeight");
    QLineEdit *widthEdit = child<QLineEdit>(&dialog, "edtWidth");
    QLineEdit *heightEdit = child<QLineEdit>(&dialog, "edtHeight");

    QRadioButton *width(const char *text) { return buttonWithText<QRadioButton>(widthBox, QString::fromUtf8(text)); }
    QRadioButton *height(const char *text) { return buttonWithText<QRadioButton>(heightBox, QString::fromUtf8(text)); }

    // Chooses the typed width and clears what was typed before.
    void typeWidth(const QString &text)
    {
        clickRadio(width("Width:"));
        widthEdit->setFocus();
        QTest::keyClick(widthEdit, Qt::Key_End);
        while (!widthEdit->text().isEmpty())
            QTest::keyClick(widthEdit, Qt::Key_Backspace);
        QTest::keyClicks(widthEdit, text);
    }
};

} // namespace

void TestDialogs::sizeEditsFollowTheirRadioButtons()
{
    SizeDialog s;
    QVERIFY(showAndWait(&s.dialog));
    QCOMPARE(s.dialog.windowTitle(), QStringLiteral("Size"));
    QVERIFY(s.widthBox && s.heightBox && s.widthEdit && s.heightEdit);
    QCOMPARE(s.dialog.widthMode(), smNoChange);
    QCOMPARE(s.dialog.heightMode(), smNoChange);
    QVERIFY(s.width("&No change")->isChecked());
    QVERIFY(s.height("No &change")->isChecked());
    QVERIFY(!s.widthEdit->isEnabled());
    QVERIFY(!s.heightEdit->isEnabled());

    clickRadio(s.width("Width:"));
    QCOMPARE(s.dialog.widthMode(), smValue);
    QVERIFY(s.widthEdit->isEnabled());
    QVERIFY(!s.heightEdit->isEnabled());
    QCOMPARE(s.dialog.heightMode(), smNoChange);

    clickRadio(s.width("&Grow to largest"));
    QCOMPARE(s.dialog.widthMode(), smToLargest);
    QVERIFY(!s.widthEdit->isEnabled());

    clickRadio(s.height("Heigh&t:"));
    QCOMPARE(s.dialog.heightMode(), smValue);
    QVERIFY(s.heightEdit->isEnabled());
    QVERIFY(!s.widthEdit->isEnabled());
    QCOMPARE(s.dialog.widthMode(), smToLargest);

    clickRadio(s.height("Shrin&k to smallest"));
    QCOMPARE(s.dialog.heightMode(), smToSmallest);
    QVERIFY(!s.heightEdit->isEnabled());
    clickRadio(s.width("&Shrink to smallest"));
    QCOMPARE(s.dialog.widthMode(), smToSmallest);
    clickRadio(s.height("Grow to &largest"));
    QCOMPARE(s.dialog.heightMode(), smToLargest);
    clickRadio(s.width("&No change"));
    clickRadio(s.height("No &change"));
    QCOMPARE(s.dialog.widthMode(), smNoChange);
    QCOMPARE(s.dialog.heightMode(), smNoChange);
}

void TestDialogs::sizeEditsTakeOnlyDigitsAndFullStops()
{
    SizeDialog s;
    QVERIFY(showAndWait(&s.dialog));

    s.typeWidth(QStringLiteral("1a2"));
    QCOMPARE(s.widthEdit->text(), QStringLiteral("12"));
    QTest::keyClicks(s.widthEdit, QStringLiteral("x -,+e"));
    QCOMPARE(s.widthEdit->text(), QStringLiteral("12"));
    QTest::keyClicks(s.widthEdit, QStringLiteral(".5"));
    QCOMPARE(s.widthEdit->text(), QStringLiteral("12.5"));
    QTest::keyClick(s.widthEdit, Qt::Key_Backspace);
    QCOMPARE(s.widthEdit->text(), QStringLiteral("12."));

    // Cursor keys still move the caret, so digits can go in the middle.
    QTest::keyClick(s.widthEdit, Qt::Key_Home);
    QTest::keyClicks(s.widthEdit, QStringLiteral("9Z"));
    QCOMPARE(s.widthEdit->text(), QStringLiteral("912."));

    // Nine characters at most.
    s.typeWidth(QStringLiteral("1234567890"));
    QCOMPARE(s.widthEdit->text(), QStringLiteral("123456789"));
    QCOMPARE(s.dialog.widthValue(), 123456789);

    // The height edit is guarded the same way.
    clickRadio(s.height("Heigh&t:"));
    s.heightEdit->setFocus();
    QTest::keyClicks(s.heightEdit, QStringLiteral("4q0.1"));
    QCOMPARE(s.heightEdit->text(), QStringLiteral("40.1"));
    QCOMPARE(s.dialog.heightValue(), 40);
}

void TestDialogs::sizeEditsRejectPastedLetters()
{
    SizeDialog s;
    QVERIFY(showAndWait(&s.dialog));
    s.typeWidth(QStringLiteral("12"));

    QGuiApplication::clipboard()->setText(QStringLiteral("3x4"));
    QTest::keyClick(s.widthEdit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(s.widthEdit->text(), QStringLiteral("12"));

    QGuiApplication::clipboard()->setText(QStringLiteral("3.4"));
    QTest::keyClick(s.widthEdit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(s.widthEdit->text(), QStringLiteral("123.4"));

    // Text dropped onto the edit is judged the same way.
    QMimeData letters;
    letters.setText(QStringLiteral("abc"));
    const QPoint inside = s.widthEdit->rect().center();
    QDragEnterEvent enter(inside, Qt::CopyAction, &letters, Qt::LeftButton, {});
    QCoreApplication::sendEvent(s.widthEdit, &enter);
    QDropEvent drop(QPointF(inside), Qt::CopyAction, &letters, Qt::LeftButton, {});
    QCoreApplication::sendEvent(s.widthEdit, &drop);
    QCOMPARE(s.widthEdit->text(), QStringLiteral("123.4"));
    QCOMPARE(s.dialog.widthValue(), 123);
}

void TestDialogs::sizeValuesAreReadFromTheText()
{
    SizeDialog s;
    QVERIFY(showAndWait(&s.dialog));
    const struct
    {
        const char *typed;
        int value;
    } cases[] = {{"", 0}, {"12.5", 12}, {"12.7", 12}, {".", 0}, {".5", 0}, {"007", 7}, {"3.", 3},
                 {"1.2.3", 1}, {"999999999", 999999999}};
    for (const auto &c : cases) {
        s.typeWidth(QString::fromLatin1(c.typed));
        QCOMPARE(s.widthEdit->text(), QString::fromLatin1(c.typed));
        QCOMPARE(s.dialog.widthValue(), c.value);
    }
    QCOMPARE(s.dialog.heightValue(), 0);
}

// --- Tab order ----------------------------------------------------------

namespace {

struct TabOrder
{
    TfrmTabOrder dialog;
    QListWidget *list = child<QListWidget>(&dialog, "lbControls");
    QToolButton *up = child<QToolButton>(&dialog, "btnUp");
    QToolButton *down = child<QToolButton>(&dialog, "btnDown");
    QPushButton *ok = child<QPushButton>(&dialog, "btnOK");
    QWidget parent;
    QList<QWidget *> controls;

    explicit TabOrder(int n)
    {
        QList<QPair<QString, QWidget *>> entries;
        for (int i = 0; i < n; ++i) {
            auto *w = new QWidget(&parent);
            const QString name = QString(QLatin1Char(char('A' + i)));
            w->setObjectName(name);
            controls << w;
            entries << qMakePair(name + QStringLiteral(": TEdit"), w);
        }
        dialog.setEntries(entries);
    }

    QString order() const
    {
        QString result;
        for (QWidget *w : dialog.controlsInOrder())
            result += w->objectName();
        return result;
    }
    QString shown() const
    {
        QString result;
        for (const QString &t : texts(list))
            result += t.left(1);
        return result;
    }
    QString selected() const
    {
        const QList<QListWidgetItem *> items = list->selectedItems();
        return items.size() == 1 ? items.first()->text().left(1) : QStringLiteral("?");
    }
};

} // namespace

void TestDialogs::tabOrderWithoutEntriesCannotBeConfirmed()
{
    TabOrder t(0);
    QVERIFY(showAndWait(&t.dialog));
    QCOMPARE(t.dialog.windowTitle(), QStringLiteral("Edit Tab Order"));
    QVERIFY(t.list && t.up && t.down && t.ok);
    QVERIFY(!t.ok->isEnabled());
    t.dialog.setResult(-1);
    QTest::mouseClick(t.ok, Qt::LeftButton);
    QCOMPARE(t.dialog.result(), -1);
    QVERIFY(t.dialog.isVisible());
    QVERIFY(t.dialog.controlsInOrder().isEmpty());
    QTest::mouseClick(t.down, Qt::LeftButton);
    QTest::mouseClick(t.up, Qt::LeftButton);
    QCOMPARE(t.list->count(), 0);

    const QList<QLabel *> labels = t.dialog.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 1);
    QCOMPARE(labels.first()->text(), QStringLiteral("&Controls listed in tab order:"));
    QCOMPARE(labels.first()->buddy(), t.list);
    QCOMPARE(t.up->toolTip(), QStringLiteral("Move up"));
    QCOMPARE(t.down->toolTip(), QStringLiteral("Move down"));
    QVERIFY(!t.up->icon().isNull() && !t.down->icon().isNull());
}

void TestDialogs::tabOrderArrowsMoveTheSelectedEntry()
{
    TabOrder t(4);
    QVERIFY(showAndWait(&t.dialog));
    QVERIFY(t.ok->isEnabled());
    QCOMPARE(t.shown(), QStringLiteral("ABCD"));
    QCOMPARE(t.selected(), QStringLiteral("A"));

    // Nothing above the first entry.
    QTest::mouseClick(t.up, Qt::LeftButton);
    QCOMPARE(t.order(), QStringLiteral("ABCD"));
    QCOMPARE(t.selected(), QStringLiteral("A"));

    QTest::mouseClick(t.down, Qt::LeftButton);
    QCOMPARE(t.order(), QStringLiteral("BACD"));
    QCOMPARE(t.selected(), QStringLiteral("A"));
    QTest::mouseClick(t.down, Qt::LeftButton);
    QTest::mouseClick(t.down, Qt::LeftButton);
    QCOMPARE(t.order(), QStringLiteral("BCDA"));
    QCOMPARE(t.selected(), QStringLiteral("A"));
    // Nothing below the last entry.
    QTest::mouseClick(t.down, Qt::LeftButton);
    QCOMPARE(t.order(), QStringLiteral("BCDA"));
    QCOMPARE(t.selected(), QStringLiteral("A"));

    clickItem(t.list, QStringLiteral("C: TEdit"));
    QCOMPARE(t.selected(), QStringLiteral("C"));
    QTest::mouseClick(t.up, Qt::LeftButton);
    QCOMPARE(t.order(), QStringLiteral("CBDA"));
    QCOMPARE(t.selected(), QStringLiteral("C"));
    QTest::mouseClick(t.up, Qt::LeftButton);
    QCOMPARE(t.order(), QStringLiteral("CBDA"));

    // The list shows the order the dialog reports, and the controls are
    // the ones handed in.
    QCOMPARE(t.shown(), t.order());
    const QList<QWidget *> expected = {t.controls[2], t.controls[1], t.controls[3], t.controls[0]};
    QCOMPARE(t.dialog.controlsInOrder(), expected);

    // setEntries starts over.
    t.dialog.setEntries({qMakePair(QStringLiteral("X"), t.controls[3])});
    QCOMPARE(t.dialog.controlsInOrder(), QList<QWidget *>{t.controls[3]});
    QCOMPARE(t.selected(), QStringLiteral("X"));
    QTest::mouseClick(t.down, Qt::LeftButton);
    QTest::mouseClick(t.up, Qt::LeftButton);
    QCOMPARE(t.dialog.controlsInOrder(), QList<QWidget *>{t.controls[3]});
}

namespace {

// Offers data to the list as the drag and drop machinery does: enter, move,
// drop at the same spot of the viewport. Returns whether the drop was taken.
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

// The list's own drag data for one entry.
QMimeData *dragData(QListWidget *list, int row)
{
    return list->model()->mimeData({list->model()->index(row, 0)});
}

QPoint upperHalf(QListWidget *list, int row)
{
    const QRect r = list->visualItemRect(list->item(row));
    return QPoint(r.center().x(), r.top() + 2);
}

QPoint lowerHalf(QListWidget *list, int row)
{
    const QRect r = list->visualItemRect(list->item(row));
    return QPoint(r.center().x(), r.bottom() - 1);
}

} // namespace

void TestDialogs::tabOrderEntriesAreDroppedInPlace()
{
    TabOrder t(5);
    QVERIFY(showAndWait(&t.dialog));

    // A real drag gesture. The offscreen platform ends every drag at once
    // without a drop; the entry must not get lost on the way.
    QWidget *viewport = t.list->viewport();
    const QPoint start = t.list->visualItemRect(t.list->item(0)).center();
    QTest::mousePress(viewport, Qt::LeftButton, {}, start);
    QTest::mouseMove(viewport, start + QPoint(0, 10));
    QTest::mouseMove(viewport, lowerHalf(t.list, 3));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, lowerHalf(t.list, 3));
    QCOMPARE(t.order(), QStringLiteral("ABCDE"));

    // Drops as the drag would deliver them, carrying the list's own data.
    std::unique_ptr<QMimeData> data(dragData(t.list, 0));
    QVERIFY(dropOnList(t.list, data.get(), lowerHalf(t.list, 2)));
    QCOMPARE(t.order(), QStringLiteral("BCADE"));
    QCOMPARE(t.selected(), QStringLiteral("A"));

    data.reset(dragData(t.list, 4));
    QVERIFY(dropOnList(t.list, data.get(), upperHalf(t.list, 1)));
    QCOMPARE(t.order(), QStringLiteral("BECAD"));
    QCOMPARE(t.selected(), QStringLiteral("E"));

    data.reset(dragData(t.list, 0));
    QVERIFY(dropOnList(t.list, data.get(), upperHalf(t.list, 0)));
    QCOMPARE(t.order(), QStringLiteral("BECAD"));
    data.reset(dragData(t.list, 2));
    QVERIFY(dropOnList(t.list, data.get(), lowerHalf(t.list, 2)));
    QCOMPARE(t.order(), QStringLiteral("BECAD"));

    // Below the last entry means: to the end.
    data.reset(dragData(t.list, 0));
    const QRect last = t.list->visualItemRect(t.list->item(4));
    QVERIFY(last.bottom() + 20 < viewport->height());
    QVERIFY(dropOnList(t.list, data.get(), QPoint(last.center().x(), last.bottom() + 15)));
    QCOMPARE(t.order(), QStringLiteral("ECADB"));
    QCOMPARE(t.shown(), t.order());
    QCOMPARE(t.selected(), QStringLiteral("B"));
    // The arrows follow the dropped entry, which is now last.
    QVERIFY(t.up->isEnabled());
    QVERIFY(!t.down->isEnabled());

    // Entries of another list and plain text are not taken.
    TabOrder other(3);
    auto *otherList = other.list;
    data.reset(dragData(otherList, 0));
    QVERIFY(!dropOnList(t.list, data.get(), upperHalf(t.list, 0)));
    QMimeData text;
    text.setText(QStringLiteral("A: TEdit"));
    QVERIFY(!dropOnList(t.list, &text, upperHalf(t.list, 0)));
    QCOMPARE(t.order(), QStringLiteral("ECADB"));
    QCOMPARE(t.list->count(), 5);
}

// --- Locked / protected / transparent lists -----------------------------

namespace {

struct ListEditor
{
    TfrmFDEditor dialog;
    QStackedWidget *stack = dialog.findChild<QStackedWidget *>();
    QListWidget *locked = child<QListWidget>(&dialog, "lbLocked");
    QListWidget *protectedList = child<QListWidget>(&dialog, "lbProtected");
    QListWidget *transparent = child<QListWidget>(&dialog, "lbTransparent");
    QPushButton *add = child<QPushButton>(&dialog, "btnAdd");
    QPushButton *del = child<QPushButton>(&dialog, "btnDelete");
    QPushButton *clear = child<QPushButton>(&dialog, "btnClear");

    void choose(const char *text)
    {
        clickRadio(buttonWithText<QRadioButton>(&dialog, QString::fromLatin1(text)));
    }
};

// An answer for the "Add controls" window: records what it offers, clicks
// the given names (the first plainly, the others with Ctrl) and confirms.
std::function<int(QDialog *)> pickNames(QStringList *offered, const QStringList &names, bool selectAll = false)
{
    return [offered, names, selectAll](QDialog *d) {
        auto *add = qobject_cast<TfrmFDAdd *>(d);
        if (!add || !showAndWait(add))
            return int(QDialog::Rejected);
        auto *list = child<QListWidget>(add, "lbNames");
        *offered = texts(list);
        for (int i = 0; i < names.size(); ++i)
            clickItem(list, names.at(i), i == 0 ? Qt::NoModifier : Qt::ControlModifier);
        if (selectAll)
            QTest::mouseClick(child<QPushButton>(add, "btnSelectAll"), Qt::LeftButton);
        QTest::mouseClick(child<QPushButton>(add, "btnOK"), Qt::LeftButton);
        return add->result();
    };
}

} // namespace

void TestDialogs::listEditorShowsTheChosenList()
{
    ListEditor e;
    QVERIFY(e.stack && e.locked && e.protectedList && e.transparent && e.add && e.del && e.clear);
    e.dialog.setLists({QStringLiteral("Panel1"), QStringLiteral("edit2"), QStringLiteral("Edit1")},
                      {QStringLiteral("Label1")},
                      {QStringLiteral("Shape2"), QStringLiteral("bevel1")});
    QVERIFY(showAndWait(&e.dialog));
    QCOMPARE(e.dialog.windowTitle(), QStringLiteral("Edit control lists"));
    QCOMPARE(e.stack->currentWidget(), e.locked);
    // Sorted, without regard to case.
    QCOMPARE(texts(e.locked), (QStringList{"Edit1", "edit2", "Panel1"}));
    QCOMPARE(e.dialog.list(ltTransparent), (QStringList{"bevel1", "Shape2"}));

    e.choose("Transparent");
    QCOMPARE(e.stack->currentWidget(), e.transparent);
    QVERIFY(e.transparent->isVisible());
    QVERIFY(!e.locked->isVisible());
    e.choose("Protected");
    QCOMPARE(e.stack->currentWidget(), e.protectedList);
    QCOMPARE(texts(e.protectedList), QStringList{"Label1"});
    e.choose("Locked");
    QCOMPARE(e.stack->currentWidget(), e.locked);

    e.dialog.setCurrentList(ltTransparent);
    QVERIFY(buttonWithText<QRadioButton>(&e.dialog, QStringLiteral("Transparent"))->isChecked());
    QCOMPARE(e.stack->currentWidget(), e.transparent);
}

void TestDialogs::listEditorAddsChosenNamesSorted()
{
    ScriptedDialogs dialogs;
    ListEditor e;
    e.dialog.setLists({QStringLiteral("Edit1")}, {QStringLiteral("Label1")}, {});
    int asked = 0;
    e.dialog.availableNames = [&asked] {
        ++asked;
        return QStringList{"Panel1", "Edit3", "Label1", "edit1", "Button1", "Zeta", "alpha"};
    };
    QVERIFY(showAndWait(&e.dialog));

    QStringList offered;
    dialogs.dialogAnswers << pickNames(&offered, {"Panel1", "Button1"});
    QTest::mouseClick(e.add, Qt::LeftButton);
    QCOMPARE(dialogs.unexpected, 0);
    QCOMPARE(dialogs.dialogTitles, QStringList{"Add controls"});
    QCOMPARE(asked, 1);
    // Edit1 is in the locked list already (whatever the case).
    QCOMPARE(offered, (QStringList{"alpha", "Button1", "Edit3", "Label1", "Panel1", "Zeta"}));
    QCOMPARE(e.dialog.list(ltLocked), (QStringList{"Button1", "Edit1", "Panel1"}));
    QCOMPARE(e.dialog.list(ltProtected), QStringList{"Label1"});

    // Cancel adds nothing.
    dialogs.dialogAnswers << [](QDialog *d) {
        showAndWait(d);
        clickItem(child<QListWidget>(d, "lbNames"), QStringLiteral("Zeta"));
        QTest::mouseClick(child<QPushButton>(d, "btnCancel"), Qt::LeftButton);
        return d->result();
    };
    QTest::mouseClick(e.add, Qt::LeftButton);
    QCOMPARE(e.dialog.list(ltLocked), (QStringList{"Button1", "Edit1", "Panel1"}));

    // Into the protected list, with "Select All": everything but Label1.
    e.choose("Protected");
    dialogs.dialogAnswers << pickNames(&offered, {}, true);
    QTest::mouseClick(e.add, Qt::LeftButton);
    QCOMPARE(offered, (QStringList{"alpha", "Button1", "edit1", "Edit3", "Panel1", "Zeta"}));
    QCOMPARE(e.dialog.list(ltProtected),
             (QStringList{"alpha", "Button1", "edit1", "Edit3", "Label1", "Panel1", "Zeta"}));
    QCOMPARE(e.dialog.list(ltLocked), (QStringList{"Button1", "Edit1", "Panel1"}));
    QCOMPARE(dialogs.unexpected, 0);
}

void TestDialogs::listEditorDeletesAndClears()
{
    ListEditor e;
    e.dialog.setLists({QStringLiteral("A1"), QStringLiteral("B1"), QStringLiteral("C1")},
                      {QStringLiteral("P1"), QStringLiteral("P2")}, {QStringLiteral("T1")});
    QVERIFY(showAndWait(&e.dialog));
    // Nothing chosen, nothing to delete.
    QVERIFY(!e.del->isEnabled());
    QTest::mouseClick(e.del, Qt::LeftButton);
    QCOMPARE(e.dialog.list(ltLocked).size(), 3);

    clickItem(e.locked, QStringLiteral("B1"));
    QVERIFY(e.del->isEnabled());
    QTest::mouseClick(e.del, Qt::LeftButton);
    QCOMPARE(e.dialog.list(ltLocked), (QStringList{"A1", "C1"}));
    // The next entry is chosen, so Delete can go on.
    QTest::mouseClick(e.del, Qt::LeftButton);
    QCOMPARE(e.dialog.list(ltLocked), QStringList{"A1"});

    // Clear empties the shown list only.
    e.choose("Protected");
    QVERIFY(e.clear->isEnabled());
    QTest::mouseClick(e.clear, Qt::LeftButton);
    QVERIFY(e.dialog.list(ltProtected).isEmpty());
    QVERIFY(!e.clear->isEnabled());
    QVERIFY(!e.del->isEnabled());
    QCOMPARE(e.dialog.list(ltLocked), QStringList{"A1"});
    QCOMPARE(e.dialog.list(ltTransparent), QStringList{"T1"});

    e.choose("Transparent");
    QVERIFY(e.clear->isEnabled());
    clickItem(e.transparent, QStringLiteral("T1"));
    QTest::mouseClick(e.del, Qt::LeftButton);
    QVERIFY(e.dialog.list(ltTransparent).isEmpty());
    QVERIFY(!e.del->isEnabled());
}

QTEST_MAIN(TestDialogs)
#include "test_dialogs.moc"
