// The small windows of the mask tools, driven with mouse and keys: sizing the
// selection, the alignment tool window and the pull-down list editor.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QToolButton>
#include <QtTest>

#include "../designer/helper_designform.h"
#include "FormAlignment.h"
#include "Edits.h"
#include "MemoDialog.h"
#include "SizeForm.h"
#include "GuiSteps.h"
#include "TestSupport.h"

using namespace GuiSteps;

class TestSmallDialogs : public QObject
{
    Q_OBJECT

private slots:
    void sizeFormChecksTheValuesItUses();
    void sizeFormTakesDigitsAndStartsAfresh();
    void runSizeDialogSizesTheSelection();

    void alignmentButtonsAlignAlongTheirAxis();

    void memoDialogEditsTheComboItems();
};

namespace {

QRadioButton *radio(QWidget *dialog, const char *group, int index)
{
    auto *box = child<QWidget>(dialog, group);
    return box ? box->findChild<QRadioButton *>(QString::fromLatin1(group) + QString::number(index)) : nullptr;
}

// Replaces an edit's text as a user does: focus, select everything, erase, type.
void retypeDigits(QLineEdit *edit, const QString &text)
{
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClicks(edit, text);
}

struct SizeUse
{
    int width = 0, height = 0;
    QString widthText, heightText;
};

// Shows the dialog, picks the choices, types the values and clicks OK.
void fillSizeForm(QDialog *dlg, const SizeUse &use)
{
    dlg->show();
    clickRadio(radio(dlg, "HorizontalSize", use.width));
    clickRadio(radio(dlg, "VerticalSize", use.height));
    retypeDigits(child<QLineEdit>(dlg, "SizeWidth"), use.widthText);
    retypeDigits(child<QLineEdit>(dlg, "SizeHeight"), use.heightText);
    QTest::mouseClick(buttonWithText(dlg, QStringLiteral("&OK")), Qt::LeftButton);
}

// Three controls at uneven places, the first one selected first.
struct AlignFixture
{
    DesignForm f;
    QList<QWidget *> controls;

    AlignFixture()
    {
        controls << f.add<TMaskBtn>(nullptr, {100, 40, 80, 25}) << f.add<TMaskBtn>(nullptr, {30, 120, 120, 40})
                 << f.add<TMaskBtn>(nullptr, {260, 230, 60, 20});
        f.designer->setActive(true);
        for (QWidget *c : controls)
            f.designer->AddControl(c);
    }
    QList<QRect> geometries() const
    {
        QList<QRect> out;
        for (QWidget *c : controls)
            out << c->geometry();
        return out;
    }
};

} // namespace

// ---- TSizeForm ----

void TestSmallDialogs::sizeFormChecksTheValuesItUses()
{
    ScriptedDialogs dialogs;
    // A bad width: one complaint (the height is not looked at), the dialog
    // stays with the focus on the width; put right, the same OK closes.
    const QList<std::pair<QString, QString>> badWidths = {
        {QStringLiteral("0"), QStringLiteral("Width must be greater than 0")},
        {QStringLiteral("000"), QStringLiteral("Width must be greater than 0")},
        {QString(), QStringLiteral("Invalid width entry.  Please re-enter.")}};
    for (const auto &[typed, message] : badWidths) {
        dialogs.messages.clear();
        TSizeForm dlg;
        fillSizeForm(&dlg, {3, 3, typed, QStringLiteral("0")});
        QCOMPARE(dialogs.messageTexts(), QStringList{message});
        QCOMPARE(dialogs.messages.first().type, mtInformation);
        QVERIFY(dlg.isVisible() && dlg.result() != QDialog::Accepted);
        QCOMPARE(dlg.focusWidget(), child<QWidget>(&dlg, "SizeWidth"));
        retypeDigits(child<QLineEdit>(&dlg, "SizeWidth"), QStringLiteral("7"));
        retypeDigits(child<QLineEdit>(&dlg, "SizeHeight"), QStringLiteral("8"));
        QTest::mouseClick(buttonWithText(&dlg, QStringLiteral("&OK")), Qt::LeftButton);
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(dialogs.messages.size(), 1);
    }

    // The height is checked after the width.
    dialogs.messages.clear();
    TSizeForm dlg;
    fillSizeForm(&dlg, {3, 3, QStringLiteral("25"), QStringLiteral("0")});
    QCOMPARE(dialogs.messageTexts(), QStringList{QStringLiteral("Height must be greater than 0")});
    QCOMPARE(dlg.focusWidget(), child<QWidget>(&dlg, "SizeHeight"));
    retypeDigits(child<QLineEdit>(&dlg, "SizeHeight"), QString());
    QTest::mouseClick(buttonWithText(&dlg, QStringLiteral("&OK")), Qt::LeftButton);
    QCOMPARE(dialogs.messageTexts().last(), QStringLiteral("Invalid height entry.  Please re-enter."));
    QVERIFY(dlg.isVisible());

    // Values a choice does not use are not looked at, nor on cancel.
    dialogs.messages.clear();
    for (int choice = 0; choice < 3; ++choice) {
        TSizeForm other;
        fillSizeForm(&other, {choice, 2 - choice, QString(), QStringLiteral("0")});
        QCOMPARE(other.result(), int(QDialog::Accepted));
        QCOMPARE(other.HorizontalIndex(), choice);
        QCOMPARE(other.VerticalIndex(), 2 - choice);
    }
    clickRadio(radio(&dlg, "HorizontalSize", 3));
    retypeDigits(child<QLineEdit>(&dlg, "SizeWidth"), QString());
    QTest::mouseClick(buttonWithText(&dlg, QStringLiteral("&Abbrechen")), Qt::LeftButton);
    QCOMPARE(dlg.result(), int(QDialog::Rejected));
    QVERIFY(dialogs.messages.isEmpty());
}

void TestSmallDialogs::sizeFormTakesDigitsAndStartsAfresh()
{
    ScriptedDialogs dialogs;
    TSizeForm dlg;
    dlg.show();
    auto *width = child<QLineEdit>(&dlg, "SizeWidth");
    retypeDigits(width, QStringLiteral("a1b2-3.,x 4"));
    QCOMPARE(width->text(), QStringLiteral("1234"));
    QTest::keyClick(width, Qt::Key_Home);
    QTest::keyClick(width, Qt::Key_Right);
    QTest::keyClicks(width, QStringLiteral("9Z"));
    QCOMPARE(width->text(), QStringLiteral("19234"));

    TSizeForm again;
    fillSizeForm(&again, {3, 3, QStringLiteral("12"), QStringLiteral("34")});
    QCOMPARE(again.widthText(), QStringLiteral("12"));
    again.show();
    QCOMPARE(again.HorizontalIndex(), 0);
    QVERIFY(radio(&again, "HorizontalSize", 0)->isChecked());
    QCOMPARE(again.widthText(), QStringLiteral("0"));
    QCOMPARE(again.heightText(), QStringLiteral("0"));
}

void TestSmallDialogs::runSizeDialogSizesTheSelection()
{
    DesignForm f;
    auto *a = f.add<TMaskBtn>(nullptr, {10, 10, 80, 25});
    auto *b = f.add<TMaskBtn>(nullptr, {10, 60, 120, 30});
    f.designer->setActive(true);
    ScriptedDialogs dialogs;

    // No selection: no dialog.
    runSizeDialog(&f.form, f.designer);
    QVERIFY(dialogs.dialogTitles.isEmpty());

    f.designer->AddControl(a);
    f.designer->AddControl(b);

    // A typed width; the emptied height edit does not matter for "Keine Änderung".
    dialogs.dialogAnswers << [](QDialog *dlg) {
        fillSizeForm(dlg, {3, 0, QStringLiteral("40"), QString()});
        return dlg->result();
    };
    runSizeDialog(&f.form, f.designer);
    QCOMPARE(dialogs.dialogTitles, QStringList{QStringLiteral("Größe anpassen")});
    QCOMPARE(a->size(), QSize(40, 25));
    QCOMPARE(b->size(), QSize(40, 30));

    // Largest height, no width change.
    dialogs.dialogAnswers << [](QDialog *dlg) {
        fillSizeForm(dlg, {0, 2, QString(), QString()});
        return dlg->result();
    };
    runSizeDialog(&f.form, f.designer);
    QCOMPARE(a->size(), QSize(40, 30));

    // Confirmed with the width edit empty: the empty text counts as 0.
    dialogs.dialogAnswers << [](QDialog *dlg) {
        dlg->show();
        clickRadio(radio(dlg, "HorizontalSize", 3));
        retypeDigits(child<QLineEdit>(dlg, "SizeWidth"), QString());
        return int(QDialog::Accepted);
    };
    runSizeDialog(&f.form, f.designer);
    QCOMPARE(a->width(), 0);
    QCOMPARE(b->width(), 0);
    QCOMPARE(a->height(), 30);
    QCOMPARE(dialogs.unexpected, 0);
}

// ---- TFormAlignment ----

void TestSmallDialogs::alignmentButtonsAlignAlongTheirAxis()
{
    const char *const names[] = {"SBALeft", "SBAHCenter", "SBARight", "SBSizeH", "SBHCenter",
                                 "SBATop", "SBAVCenter", "SBABottom", "SBSizeV", "SBVCenter"};
    for (int i = 0; i < 10; ++i) {
        const bool vertical = i >= 5;
        const TAlignMode mode = TAlignMode(i % 5 + 1);
        AlignFixture clicked, direct;
        const QList<QRect> before = clicked.geometries();

        TFormAlignment window;
        window.activeDesigner = [&clicked] { return clicked.f.designer; };
        window.show();
        QTest::mouseClick(child<QToolButton>(&window, names[i]), Qt::LeftButton);

        direct.f.designer->AlignControls(vertical ? amNoChange : mode, vertical ? mode : amNoChange);
        QVERIFY2(clicked.geometries() != before, names[i]);
        QCOMPARE(clicked.geometries(), direct.geometries());
        // Only the button's own axis moves.
        for (int c = 0; c < before.size(); ++c) {
            const QRect now = clicked.geometries().at(c);
            QCOMPARE(now.size(), before.at(c).size());
            QCOMPARE(vertical ? now.x() : now.y(), vertical ? before.at(c).x() : before.at(c).y());
        }
    }

    // Without a mask the buttons do nothing.
    AlignFixture fx;
    const QList<QRect> before = fx.geometries();
    TFormAlignment window;
    QTest::mouseClick(child<QToolButton>(&window, "SBARight"), Qt::LeftButton);
    window.activeDesigner = [] { return static_cast<TCustomFormDesigner *>(nullptr); };
    QTest::mouseClick(child<QToolButton>(&window, "SBABottom"), Qt::LeftButton);
    QCOMPARE(fx.geometries(), before);
}

// ---- TMemoDlg ----
// Its other use, editing a pick-list file, is driven from the inspector.

void TestSmallDialogs::memoDialogEditsTheComboItems()
{
    TcxComboBox combo;
    combo.setItems({QStringLiteral("rot"), QStringLiteral("grün")});
    TMemoDlg dlg;
    dlg.setComboBox(&combo);
    dlg.show();
    auto *memo = child<QPlainTextEdit>(&dlg, "Memo1");
    QCOMPARE(memo->toPlainText(), QStringLiteral("rot\ngrün"));

    // A new line typed at the end, closed with a line break.
    memo->moveCursor(QTextCursor::End);
    QTest::keyClick(memo, Qt::Key_Return);
    QTest::keyClicks(memo, QStringLiteral("blau"));
    QTest::keyClick(memo, Qt::Key_Return);
    QVERIFY(dlg.isVisible()); // Enter belongs to the memo
    QTest::mouseClick(buttonWithText(&dlg, QStringLiteral("&OK")), Qt::LeftButton);
    QCOMPARE(dlg.result(), int(QDialog::Accepted));
    const QStringList three = {QStringLiteral("rot"), QStringLiteral("grün"), QStringLiteral("blau")};
    QCOMPARE(combo.Items(), three);

    // Cancel keeps the items.
    dlg.show();
    memo->selectAll();
    QTest::keyClicks(memo, QStringLiteral("X"));
    QTest::mouseClick(buttonWithText(&dlg, QStringLiteral("&Abbrechen")), Qt::LeftButton);
    QCOMPARE(dlg.result(), int(QDialog::Rejected));
    QCOMPARE(combo.Items(), three);

    // The next use shows the list as it is now; emptied, the list is empty.
    combo.setItems({QStringLiteral("eins")});
    dlg.show();
    QCOMPARE(memo->toPlainText(), QStringLiteral("eins"));
    memo->selectAll();
    QTest::keyClick(memo, Qt::Key_Delete);
    QTest::mouseClick(buttonWithText(&dlg, QStringLiteral("&OK")), Qt::LeftButton);
    QCOMPARE(combo.Items(), QStringList());
}

QTEST_MAIN(TestSmallDialogs)
#include "test_smalldialogs.moc"
