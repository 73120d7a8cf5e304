// The data edits of a mask: text edit, combo box, lookup edit, memo and
// check box, and what the user can and cannot do with them. What every
// control class does while designed, and how its colour and font look.
#include <QtTest>

#include <QAbstractItemView>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTableWidget>
#include <QTreeWidget>

#include "CommonProps.h"
#include "Containers.h"
#include "ControlClasses.h"
#include "GuiSteps.h"
#include "helper_properties.h"
#include "Edits.h"

class TestEdits : public QObject
{
    Q_OBJECT

private slots:
    void charCaseConvertsTypedAndExistingText();
    void maxLengthLimitsTheUserOnly();
    void readOnlyIgnoresTheUser();
    void memoScrollBarsAndWrapping();
    void memoLinesAndTextAreOneContent();
    void checkBoxBoxSideFollowsAlignment();
    void designingTakesNoFocusAndNoInput();
    void colorAndFontReachThePaint();
};

void TestEdits::charCaseConvertsTypedAndExistingText()
{
    TcxTextEdit edit;
    edit.setCharCase(ecUpperCase);
    QTest::keyClicks(&edit, QStringLiteral("abc"));
    QCOMPARE(edit.Text(), QStringLiteral("ABC"));
    edit.setCharCase(ecLowerCase);
    QCOMPARE(edit.Text(), QStringLiteral("abc"));
    QTest::keyClicks(&edit, QStringLiteral("DEF"));
    QCOMPARE(edit.Text(), QStringLiteral("abcdef"));
    edit.setText(QStringLiteral("Straße"));
    QCOMPARE(edit.Text(), QStringLiteral("straße"));
    // Normal case leaves the text as it is and takes what is typed.
    edit.setCharCase(ecNormal);
    QTest::keyClicks(&edit, QStringLiteral("Xy"));
    QCOMPARE(edit.Text(), QStringLiteral("straßeXy"));

    TcxComboBox combo;
    combo.setItems({QStringLiteral("eins"), QStringLiteral("zwei")});
    combo.setText(QString());
    combo.setCharCase(ecUpperCase);
    QTest::keyClicks(&combo, QStringLiteral("qu"));
    QCOMPARE(combo.Text(), QStringLiteral("QU"));
    // The list entries are offered as they are.
    QCOMPARE(combo.Items(), (QStringList{"eins", "zwei"}));

    TcxDBPopupEdit lookup;
    lookup.setText(QStringLiteral("Kunde"));
    lookup.setCharCase(ecUpperCase);
    QCOMPARE(lookup.Text(), QStringLiteral("KUNDE"));
}

void TestEdits::maxLengthLimitsTheUserOnly()
{
    TcxTextEdit edit;
    const QString longText(300, QLatin1Char('x'));
    QTest::keyClicks(&edit, longText);
    QCOMPARE(edit.Text(), longText); // 0: no limit
    edit.clear();
    edit.setMaxLength(5);
    QTest::keyClicks(&edit, QStringLiteral("abcdefgh"));
    QCOMPARE(edit.Text(), QStringLiteral("abcde"));
    // Text set by the program (a loaded mask) is kept whole and does not grow.
    edit.setText(QStringLiteral("cxTextEdit12"));
    QCOMPARE(edit.Text(), QStringLiteral("cxTextEdit12"));
    QTest::keyClicks(&edit, QStringLiteral("z"));
    QCOMPARE(edit.Text(), QStringLiteral("cxTextEdit12"));
    edit.selectAll();
    QTest::keyClicks(&edit, QStringLiteral("uvwxyz"));
    QCOMPARE(edit.Text(), QStringLiteral("uvwxy"));

    TcxComboBox combo;
    combo.setText(QString());
    combo.setMaxLength(3);
    QTest::keyClicks(&combo, QStringLiteral("12345"));
    QCOMPARE(combo.Text(), QStringLiteral("123"));
    combo.setMaxLength(0);
    QTest::keyClicks(&combo, QStringLiteral("45"));
    QCOMPARE(combo.Text(), QStringLiteral("12345"));

    TcxMemo memo;
    memo.setMaxLength(4);
    QTest::keyClicks(&memo, QStringLiteral("abcdef"));
    QCOMPARE(memo.Text(), QStringLiteral("abcd"));
    memo.setLines({QStringLiteral("longer than four")});
    QCOMPARE(memo.Text(), QStringLiteral("longer than four"));
}

void TestEdits::readOnlyIgnoresTheUser()
{
    TcxTextEdit edit;
    edit.setText(QStringLiteral("fest"));
    edit.setReadOnly(true);
    QTest::keyClicks(&edit, QStringLiteral("abc"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QCOMPARE(edit.Text(), QStringLiteral("fest"));

    QWidget window;
    auto *combo = new TcxComboBox(&window);
    combo->setItems({QStringLiteral("eins"), QStringLiteral("zwei"), QStringLiteral("drei")});
    combo->setText(QStringLiteral("eins"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    // Writable, the list opens and the arrow keys step through it.
    combo->showPopup();
    QVERIFY(combo->view()->isVisible());
    combo->hidePopup();
    QVERIFY(!combo->view()->isVisible());
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(combo->Text(), QStringLiteral("zwei"));

    combo->setReadOnly(true);
    QTest::keyClicks(combo, QStringLiteral("abc"));
    QTest::keyClick(combo, Qt::Key_Down);
    QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(combo, Qt::Key_F4);
    QCOMPARE(combo->Text(), QStringLiteral("zwei"));
    combo->showPopup();
    QTest::mouseClick(combo, Qt::LeftButton, {}, QPoint(combo->width() - 6, combo->height() / 2));
    QVERIFY(!combo->view()->isVisible());
    QCOMPARE(combo->Text(), QStringLiteral("zwei"));

    TcxMemo memo;
    memo.setText(QStringLiteral("a"));
    memo.setReadOnly(true);
    QTest::keyClicks(&memo, QStringLiteral("bc"));
    QCOMPARE(memo.Text(), QStringLiteral("a"));

    TcxDBCheckBox box;
    box.setReadOnly(true);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    QTest::keyClick(&box, Qt::Key_Space);
    QVERIFY(!box.Checked());
    box.setReadOnly(false);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    QVERIFY(box.Checked());
    QTest::keyClick(&box, Qt::Key_Space);
    QVERIFY(!box.Checked());
    // The program may still set the value of a read-only box.
    box.setReadOnly(true);
    box.setChecked(true);
    QVERIFY(box.Checked());
}

void TestEdits::memoScrollBarsAndWrapping()
{
    struct Case
    {
        TScrollStyle style;
        Qt::ScrollBarPolicy horizontal, vertical;
        QPlainTextEdit::LineWrapMode wrap;
    };
    const Case cases[] = {
        {ssNone, Qt::ScrollBarAlwaysOff, Qt::ScrollBarAlwaysOff, QPlainTextEdit::WidgetWidth},
        {ssHorizontal, Qt::ScrollBarAlwaysOn, Qt::ScrollBarAlwaysOff, QPlainTextEdit::NoWrap},
        {ssVertical, Qt::ScrollBarAlwaysOff, Qt::ScrollBarAlwaysOn, QPlainTextEdit::WidgetWidth},
        {ssBoth, Qt::ScrollBarAlwaysOn, Qt::ScrollBarAlwaysOn, QPlainTextEdit::NoWrap},
    };
    TcxMemo memo;
    const TPropInfo *scrollBars = memo.classInfo().property(QStringLiteral("ScrollBars"));
    for (const Case &c : cases) {
        scrollBars->write(&memo, int(c.style));
        QCOMPARE(memo.ScrollBars(), c.style);
        QCOMPARE(memo.horizontalScrollBarPolicy(), c.horizontal);
        QCOMPARE(memo.verticalScrollBarPolicy(), c.vertical);
        QCOMPARE(memo.lineWrapMode(), c.wrap);
    }
    memo.setScrollBars(ssVertical);
    memo.setWordWrap(false);
    QCOMPARE(memo.lineWrapMode(), QPlainTextEdit::NoWrap);
    memo.setWordWrap(true);
    QCOMPARE(memo.lineWrapMode(), QPlainTextEdit::WidgetWidth);

    // Wrapped, a long line needs no horizontal scrolling.
    memo.setScrollBars(ssNone);
    memo.setText(QStringLiteral("ein langer Satz ").repeated(20));
    memo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&memo));
    QCOMPARE(memo.horizontalScrollBar()->maximum(), 0);
    memo.setScrollBars(ssBoth);
    QVERIFY(memo.horizontalScrollBar()->maximum() > 0);
}

void TestEdits::memoLinesAndTextAreOneContent()
{
    TcxMemo memo;
    // Only Lines is published, so the content is stored once.
    const TPropInfo *lines = memo.classInfo().property(QStringLiteral("Lines"));
    QVERIFY(lines);
    QVERIFY(!memo.classInfo().property(QStringLiteral("Text")));
    lines->write(&memo, QStringList{"erste", "", "dritte"});
    QCOMPARE(memo.Text(), QStringLiteral("erste\n\ndritte"));
    QCOMPARE(memo.Caption(), QStringLiteral("erste\n\ndritte"));
    QCOMPARE(memo.toPlainText(), QStringLiteral("erste\n\ndritte"));
    memo.setText(QStringLiteral("a\nb\n"));
    QCOMPARE(lines->read(&memo).toStringList(), (QStringList{"a", "b", ""}));
    memo.setCaption(QString());
    QCOMPARE(memo.Lines(), QStringList());
    QTest::keyClicks(&memo, QStringLiteral("x"));
    QTest::keyClick(&memo, Qt::Key_Return);
    QTest::keyClicks(&memo, QStringLiteral("y"));
    QCOMPARE(memo.Lines(), (QStringList{"x", "y"}));
}

void TestEdits::checkBoxBoxSideFollowsAlignment()
{
    QWidget window;
    window.resize(300, 100);
    auto *box = new TcxDBCheckBox(&window);
    box->setCaption(QString());
    box->setWidth(120);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    // Where something other than the background is painted.
    auto paintedColumns = [box] {
        const QImage image = box->grab().toImage();
        const QColor background = image.pixelColor(image.width() / 2, 1);
        int first = -1, last = -1;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixelColor(x, y) != background) {
                    if (first < 0)
                        first = x;
                    last = x;
                    break;
                }
        return std::make_pair(first, last);
    };
    auto [first, last] = paintedColumns();
    QVERIFY(first >= 0 && last < 40);
    const TPropInfo *alignment = box->classInfo().property(QStringLiteral("Alignment"));
    alignment->write(box, int(taRightJustify));
    QCOMPARE(box->Alignment(), taRightJustify);
    std::tie(first, last) = paintedColumns();
    QVERIFY2(first > 80, qPrintable(QString::number(first)));
    alignment->write(box, int(taCenter)); // shown like left-justified
    std::tie(first, last) = paintedColumns();
    QVERIFY(first >= 0 && last < 40);
}

namespace {

// A control of the class on a window of its own, beside a line edit that
// holds the focus, with something to show: a caption or a filled cell.
struct Surface : QWidget
{
    int presses = 0;
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

struct Placed
{
    Surface window;
    QLineEdit *other = new QLineEdit(&window);
    QWidget *control;

    explicit Placed(const TClassInfo &info) : control(info.create())
    {
        window.resize(420, 160);
        other->move(0, 130);
        control->setParent(&window);
        control->setGeometry(0, 0, 200, 100);
        TControl::from(control)->setCaption(QStringLiteral("MMMM"));
        if (auto *combo = qobject_cast<QComboBox *>(control))
            combo->addItems({QStringLiteral("eins"), QStringLiteral("zwei")});
        if (auto *table = qobject_cast<QTableWidget *>(control)) {
            table->setColumnCount(qMax(table->columnCount(), 3));
            table->setRowCount(qMax(table->rowCount(), 3));
            // The first row: a string grid's titles, paint of their own.
            table->setItem(0, 1, new QTableWidgetItem(QStringLiteral("MMMM")));
        }
        if (auto *tabs = qobject_cast<TTabSet *>(control))
            tabs->setTabs({QStringLiteral("MMMM")});
        if (auto *pager = qobject_cast<TAdvOfficePager *>(control)) {
            auto *page = new TAdvOfficePage;
            pager->addPage(page);
            page->setCaption(QStringLiteral("MMMM"));
        }
        if (auto *tree = qobject_cast<QTreeWidget *>(control))
            tree->addTopLevelItem(new QTreeWidgetItem(QStringList{QStringLiteral("MMMM")}));
    }

    QHash<QString, QVariant> published() const
    {
        QHash<QString, QVariant> values;
        for (const TPropInfo &p : TControl::from(control)->classInfo().properties)
            values.insert(p.name, p.read(control));
        return values;
    }

    // Clicks where a user would: on whatever part of the control lies under the point.
    void click(QPoint at, bool twice = false)
    {
        QWidget *target = control->childAt(at) ? control->childAt(at) : control;
        const QPoint local = target->mapFrom(control, at);
        if (twice)
            QTest::mouseDClick(target, Qt::LeftButton, {}, local);
        else
            QTest::mouseClick(target, Qt::LeftButton, {}, local);
    }
};

int countColor(const QImage &image, QColor wanted)
{
    return countPixels(image, [wanted](QColor c) { return c == wanted; });
}

} // namespace

void TestEdits::designingTakesNoFocusAndNoInput()
{
    QStringList tookInput;
    for (const TClassInfo *info : ControlClasses::all()) {
        Placed placed(*info);
        QWidget *w = placed.control;
        placed.window.show();
        placed.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&placed.window));
        const QHash<QString, QVariant> before = placed.published();

        TControl::from(w)->setDesigning(true);
        placed.other->setFocus();
        const int middle = w->height() / 2;
        for (const QPoint at : {QPoint(10, middle), QPoint(100, middle), QPoint(w->width() - 6, middle)})
            placed.click(at);
        placed.click(QPoint(10, middle), true);
        // Every press went on to the design surface beneath (buttons and tabs
        // are no input controls: the designer catches their presses on the way).
        const bool keepsPresses = qobject_cast<QPushButton *>(w) || qobject_cast<QTabBar *>(w);
        QVERIFY2(placed.window.presses >= 4 || keepsPresses, qPrintable(info->className));
        QTest::keyClicks(w, QStringLiteral("neu"));
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_F2, Qt::Key_Space, Qt::Key_Return})
            QTest::keyClick(w, key);
        QCoreApplication::processEvents();
        QVERIFY2(placed.other->hasFocus(), qPrintable(info->className));
        QVERIFY2(!QApplication::activePopupWidget(), qPrintable(info->className));
        QVERIFY2(!w->findChild<QLineEdit *>() || !w->findChild<QLineEdit *>()->hasFocus(), qPrintable(info->className));
        QVERIFY2(placed.published() == before, qPrintable(info->className));
        if (auto *table = qobject_cast<QTableWidget *>(w))
            QCOMPARE(table->findItems(QStringLiteral("neu"), Qt::MatchContains).size(), 0);

        // Outside the designer the same control takes the focus and the input.
        TControl::from(w)->setDesigning(false);
        placed.other->setFocus();
        placed.click(QPoint(10, middle));
        if (w->focusPolicy() & Qt::ClickFocus)
            QVERIFY2(w->hasFocus(), qPrintable(info->className));
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
        if (placed.published() != before)
            tookInput << info->className;
    }
    QCOMPARE(tookInput, (QStringList{"TcxTextEdit", "TcxComboBox", "TcxDBPopupEdit", "TcxMemo", "TcxDBCheckBox"}));
}

void TestEdits::colorAndFontReachThePaint()
{
    const QColor yellow(255, 255, 0);
    TFont red;
    red.Name = QStringLiteral("DejaVu Sans");
    red.Size = 12;
    red.Color = Colors::clRed;
    red.Style = fsBold;
    for (const TClassInfo *info : ControlClasses::all()) {
        Placed placed(*info);
        QWidget *w = placed.control;
        QVERIFY(GuiSteps::showAndWait(&placed.window));
        TControl *c = TControl::from(w);
        if (info->property(QStringLiteral("Color"))) {
            const int before = countColor(w->grab().toImage(), yellow);
            c->setColor(Colors::clYellow);
            QVERIFY2(countColor(w->grab().toImage(), yellow) > before + 200, qPrintable(info->className));
        }
        // A page's caption is painted by its pager, on the pager's tab.
        if (info->property(QStringLiteral("Font")) && !qobject_cast<TAdvOfficePage *>(w)) {
            const int before = countPixels(w->grab().toImage(), isReddish);
            c->setFont(red);
            QVERIFY(!c->ParentFont());
            QCOMPARE(w->font().pointSize(), 12);
            QVERIFY2(countPixels(w->grab().toImage(), isReddish) > before + 20, qPrintable(info->className));
        }
    }
}

QTEST_MAIN(TestEdits)
#include "test_edits.moc"
