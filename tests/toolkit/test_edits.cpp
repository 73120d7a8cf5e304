// The data edits of a mask: text edit, combo box, lookup edit, memo and
// check box. Their property lists, what the user can and cannot do with
// them, and how they look.
#include <QtTest>

#include <QAbstractItemView>
#include <QScrollBar>

#include "CommonProps.h"
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
    void checkBoxBoxSideAndValues();
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
    QCOMPARE(lines->type, TPropType::Strings);
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

void TestEdits::checkBoxBoxSideAndValues()
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

    // A click toggles the value; ValueChecked/ValueUnchecked name what the field holds.
    box->setCaption(QStringLiteral("Aktiv"));
    alignment->write(box, int(taLeftJustify));
    const TPropInfo *checked = box->classInfo().property(QStringLiteral("Checked"));
    QCOMPARE(checked->read(box).toBool(), false);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QCOMPARE(checked->read(box).toBool(), true);
    checked->write(box, false);
    QVERIFY(!box->isChecked());
    QCOMPARE(box->classInfo().property(QStringLiteral("ValueChecked"))->read(box).toString(), QStringLiteral("Ja"));
    QCOMPARE(box->classInfo().property(QStringLiteral("ValueUnchecked"))->read(box).toString(),
             QStringLiteral("Nein"));
}

void TestEdits::designingTakesNoFocusAndNoInput()
{
    QWidget window;
    window.resize(400, 200);
    auto *edit = new TcxTextEdit(&window);
    auto *combo = new TcxComboBox(&window);
    combo->move(0, 30);
    combo->setItems({QStringLiteral("eins"), QStringLiteral("zwei")});
    auto *memo = new TcxMemo(&window);
    memo->move(150, 0);
    auto *box = new TcxDBCheckBox(&window);
    box->move(0, 60);
    auto *other = new QLineEdit(&window);
    other->move(0, 120);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    const QList<QWidget *> controls = {edit, combo, memo, box};
    for (QWidget *w : controls) {
        TControl::from(w)->setCaption(QStringLiteral("alt"));
        TControl::from(w)->setDesigning(true);
    }
    for (QWidget *w : controls) {
        other->setFocus();
        QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(10, 8));
        QTest::mouseDClick(w, Qt::LeftButton, {}, QPoint(10, 8));
        QVERIFY2(!w->hasFocus(), w->metaObject()->className());
        QTest::keyClicks(w, QStringLiteral("neu"));
        QTest::keyClick(w, Qt::Key_Down);
        QCOMPARE(TControl::from(w)->Caption(), QStringLiteral("alt"));
    }
    QVERIFY(!box->isChecked());
    // The combo's inner line edit lets the mouse through to the combo.
    QCOMPARE(combo->childAt(10, 8), nullptr);
    combo->showPopup();
    QVERIFY(!combo->view()->isVisible());
    // A click on the memo's text area reaches the memo, not its viewport.
    QTest::mouseClick(memo->viewport(), Qt::LeftButton, {}, QPoint(10, 10));
    QVERIFY(!memo->hasFocus());

    for (QWidget *w : controls)
        TControl::from(w)->setDesigning(false);
    for (QWidget *w : {static_cast<QWidget *>(edit), static_cast<QWidget *>(memo)}) {
        other->setFocus();
        QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(10, 8));
        QVERIFY2(w->hasFocus(), w->metaObject()->className());
    }
    QTest::mouseClick(memo->viewport(), Qt::LeftButton, {}, QPoint(60, 10));
    QTest::keyClicks(memo, QStringLiteral("X"));
    QCOMPARE(memo->Text(), QStringLiteral("altX"));
    other->setFocus();
    QTest::mouseClick(combo->lineEdit(), Qt::LeftButton, {}, QPoint(60, 8));
    QVERIFY(combo->hasFocus());
    QTest::keyClicks(combo, QStringLiteral("X"));
    QCOMPARE(combo->Text(), QStringLiteral("altX"));
    QTest::keyClick(edit, Qt::Key_End);
    QTest::keyClicks(edit, QStringLiteral("X"));
    QCOMPARE(edit->Text(), QStringLiteral("altX"));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(box->isChecked());
}

void TestEdits::colorAndFontReachThePaint()
{
    QWidget window;
    window.resize(500, 300);
    auto *edit = new TcxTextEdit(&window);
    auto *combo = new TcxComboBox(&window);
    combo->move(0, 30);
    auto *lookup = new TcxDBPopupEdit(&window);
    lookup->move(0, 60);
    auto *memo = new TcxMemo(&window);
    memo->move(200, 0);
    auto *box = new TcxDBCheckBox(&window);
    box->move(0, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QList<QWidget *> controls = {edit, combo, lookup, memo, box};
    const QColor yellow(255, 255, 0);
    for (QWidget *w : {static_cast<QWidget *>(edit), static_cast<QWidget *>(combo), static_cast<QWidget *>(lookup),
                       static_cast<QWidget *>(memo)}) {
        TControl *c = TControl::from(w);
        c->setCaption(QString());
        const QPoint inText(12, w->height() / 2);
        QCOMPARE(w->grab().toImage().pixelColor(inText), Colors::clWindow.toQColor());
        c->setColor(Colors::clYellow);
        QCOMPARE(w->grab().toImage().pixelColor(inText), yellow);
    }
    // The check box shows its parent's background until it has a colour of its own.
    const QPoint besideBox(box->width() - 3, 2);
    QCOMPARE(box->grab().toImage().pixelColor(besideBox), window.palette().color(QPalette::Window));
    box->setColor(Colors::clYellow);
    QCOMPARE(box->grab().toImage().pixelColor(besideBox), yellow);

    TFont red;
    red.Name = QStringLiteral("DejaVu Sans");
    red.Size = 12;
    red.Color = Colors::clRed;
    red.Style = fsBold;
    for (QWidget *w : controls) {
        TControl *c = TControl::from(w);
        c->setCaption(QStringLiteral("MMMM"));
        const int before = countPixels(w->grab().toImage(), isReddish);
        const QImage plain = w->grab().toImage();
        c->setFont(red);
        QVERIFY(!c->ParentFont());
        QCOMPARE(w->font().pointSize(), 12);
        const QImage styled = w->grab().toImage();
        QVERIFY2(countPixels(styled, isReddish) > before + 20, w->metaObject()->className());
        QVERIFY(styled != plain);
    }
}

QTEST_MAIN(TestEdits)
#include "test_edits.moc"
