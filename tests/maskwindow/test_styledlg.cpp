// "Stile ändern": filling from the mask's style, writing every change at
// once, the colour dialog, and closing without undoing.
#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

#include "EditStyle.h"
#include "Edits.h"
#include "Maske.h"
#include "StyleDlg.h"
#include "GuiSteps.h"
#include "TestSupport.h"

using namespace GuiSteps;

namespace {

// Picks a list entry the way a user does: focus the list, step with the keys.
void chooseItem(QComboBox *combo, int index)
{
    QTest::mouseClick(combo, Qt::LeftButton); // opens the list
    combo->hidePopup();
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Home);
    for (int i = 0; i < index; ++i)
        QTest::keyClick(combo, Qt::Key_Down);
}

QRgb borderPixel(QWidget *edit)
{
    return edit->grab().toImage().pixel(0, edit->height() / 2);
}

} // namespace

class TestStyleDlg : public QObject
{
    Q_OBJECT

private slots:
    void showFillsTheControlsWithoutWritingBack();
    void everyChangeGoesToTheControllerAtOnce();
    void colourButtonAndDoubleClickAskForAColour();
    void cancelKeepsTheNewStyleOnTheMask();
};

void TestStyleDlg::showFillsTheControlsWithoutWritingBack()
{
    TcxEditStyleController style;
    style.setBorderColor(TColor::fromRgb(0x12, 0x34, 0x56));
    style.setBorderStyle(ebsUltraFlat);
    style.setButtonStyle(btsFlat);
    style.setButtonTransparency(ebtAlways);
    style.setEdges(bLeft | bBottom);
    style.setHotTrack(true);
    style.setGradient(true);
    QSignalSpy changes(&style, &TcxEditStyleController::styleChanged);

    TChangeStyle dlg;
    dlg.setStyleController(&style);
    dlg.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dlg));
    QCOMPARE(child<QComboBox>(&dlg, "edBorderColor")->currentText(), QStringLiteral("$00563412"));
    QCOMPARE(child<QComboBox>(&dlg, "edBorderStyle")->currentIndex(), int(ebsUltraFlat));
    QCOMPARE(child<QComboBox>(&dlg, "edButtonViewStyle")->currentIndex(), int(btsFlat));
    QCOMPARE(child<QComboBox>(&dlg, "ButtonTransparence")->currentIndex(), int(ebtAlways));
    QVERIFY(child<QCheckBox>(&dlg, "cbLeft")->isChecked());
    QVERIFY(!child<QCheckBox>(&dlg, "cbTop")->isChecked());
    QVERIFY(!child<QCheckBox>(&dlg, "cbRight")->isChecked());
    QVERIFY(child<QCheckBox>(&dlg, "cbBottom")->isChecked());
    QVERIFY(child<QCheckBox>(&dlg, "cbHotTrack")->isChecked());
    QVERIFY(!child<QCheckBox>(&dlg, "cbShadow")->isChecked());
    QVERIFY(child<QCheckBox>(&dlg, "cbGradient")->isChecked());
    QCOMPARE(changes.count(), 0);
    QCOMPARE(style.Edges(), bLeft | bBottom);

    // Shown again after a change elsewhere, it shows the new state.
    dlg.hide();
    style.setBorderColor(Colors::clNavy);
    style.setShadow(true);
    dlg.show();
    QCOMPARE(child<QComboBox>(&dlg, "edBorderColor")->currentText(), QStringLiteral("clNavy"));
    QVERIFY(child<QCheckBox>(&dlg, "cbShadow")->isChecked());
}

void TestStyleDlg::everyChangeGoesToTheControllerAtOnce()
{
    TcxEditStyleController style;
    TChangeStyle dlg;
    dlg.setStyleController(&style);
    dlg.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dlg));

    chooseItem(child<QComboBox>(&dlg, "edBorderStyle"), ebsThick);
    QCOMPARE(style.BorderStyle(), ebsThick);
    chooseItem(child<QComboBox>(&dlg, "edButtonViewStyle"), btsUltraFlat);
    QCOMPARE(style.ButtonStyle(), btsUltraFlat);
    chooseItem(child<QComboBox>(&dlg, "ButtonTransparence"), ebtHideInactive);
    QCOMPARE(style.ButtonTransparency(), ebtHideInactive);

    auto *color = child<QComboBox>(&dlg, "edBorderColor");
    chooseItem(color, color->findText(QStringLiteral("clTeal")));
    QCOMPARE(color->currentText(), QStringLiteral("clTeal"));
    QCOMPARE(style.BorderColor(), Colors::clTeal);

    clickCheck(child<QCheckBox>(&dlg, "cbHotTrack"));
    QVERIFY(style.HotTrack());
    clickCheck(child<QCheckBox>(&dlg, "cbShadow"));
    QVERIFY(style.Shadow());
    clickCheck(child<QCheckBox>(&dlg, "cbGradient"));
    QVERIFY(style.Gradient());
    clickCheck(child<QCheckBox>(&dlg, "cbShadow"));
    QVERIFY(!style.Shadow());
    QVERIFY(style.HotTrack());

    // Each edge box changes only its own bit.
    QCOMPARE(style.Edges(), kAllEdges);
    clickCheck(child<QCheckBox>(&dlg, "cbTop"));
    QCOMPARE(style.Edges(), 13);
    clickCheck(child<QCheckBox>(&dlg, "cbLeft"));
    QCOMPARE(style.Edges(), bRight | bBottom);
    clickCheck(child<QCheckBox>(&dlg, "cbBottom"));
    QCOMPARE(style.Edges(), int(bRight));
    clickCheck(child<QCheckBox>(&dlg, "cbTop"));
    QCOMPARE(style.Edges(), bRight | bTop);
    // Keyboard: space toggles the focused box.
    auto *right = child<QCheckBox>(&dlg, "cbRight");
    right->setFocus();
    QTest::keyClick(right, Qt::Key_Space);
    QCOMPARE(style.Edges(), int(bTop));

    // OK only closes.
    QTest::mouseClick(child<QPushButton>(&dlg, "btnOK"), Qt::LeftButton);
    QCOMPARE(dlg.result(), int(QDialog::Accepted));
    QVERIFY(!dlg.isVisible());
    QCOMPARE(style.BorderStyle(), ebsThick);
}

void TestStyleDlg::colourButtonAndDoubleClickAskForAColour()
{
    ScriptedDialogs dialogs;
    TcxEditStyleController style;
    style.setBorderColor(Colors::clMaroon);
    TChangeStyle dlg;
    dlg.setStyleController(&style);
    dlg.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dlg));
    auto *color = child<QComboBox>(&dlg, "edBorderColor");
    auto *button = child<QPushButton>(&dlg, "btnBorderColor");
    const int entries = color->count();

    // Cancelled: nothing changes.
    dialogs.colorAnswers << std::nullopt;
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(dialogs.colorInitials, (QList<TColor>{Colors::clMaroon}));
    QCOMPARE(style.BorderColor(), Colors::clMaroon);
    QCOMPARE(color->currentText(), QStringLiteral("clMaroon"));

    // A colour without a name becomes an entry of its own.
    const TColor custom = TColor::fromRgb(0xab, 0xcd, 0xef);
    dialogs.colorAnswers << custom;
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(style.BorderColor(), custom);
    QCOMPARE(color->currentText(), QStringLiteral("$00efcdab"));
    QCOMPARE(color->count(), entries + 1);

    // A named colour selects its entry; the dialog opens on the current colour.
    dialogs.colorAnswers << Colors::clLime;
    QTest::mouseDClick(color, Qt::LeftButton);
    color->hidePopup();
    QCOMPARE(dialogs.colorInitials.size(), 3);
    QCOMPARE(dialogs.colorInitials.last(), custom);
    QCOMPARE(style.BorderColor(), Colors::clLime);
    QCOMPARE(color->currentText(), QStringLiteral("clLime"));
    QCOMPARE(color->count(), entries + 1);
    QCOMPARE(dialogs.unexpected, 0);
}

void TestStyleDlg::cancelKeepsTheNewStyleOnTheMask()
{
    ScriptedDialogs dialogs;
    TMaske *mask = new TMaske;
    mask->resize(500, 400);
    mask->show();
    QVERIFY(QTest::qWaitForWindowExposed(mask));
    auto *edit = qobject_cast<TcxTextEdit *>(mask->placeControl(TPaletteCode::Edit, mask->document(), {10, 10}));
    QVERIFY(edit);
    QCOMPARE(edit->StyleController(), mask->document()->cxStyleController());
    auto *memo = qobject_cast<TcxMemo *>(mask->placeControl(TPaletteCode::Memo, mask->document(), {10, 60}));
    QVERIFY(memo);
    QCOMPARE(memo->StyleController(), mask->document()->cxStyleController());
    QCOMPARE(mask->document()->cxStyleController()->BorderStyle(), ebs3D);
    const QRgb sunken = borderPixel(edit);
    QCOMPARE(sunken, edit->palette().color(QPalette::Dark).rgb());

    TChangeStyle dlg;
    dlg.setStyleController(mask->document()->cxStyleController());
    dlg.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dlg));
    chooseItem(child<QComboBox>(&dlg, "edBorderStyle"), ebsNone);
    // Shown on the mask while the dialog is still open.
    QCOMPARE(borderPixel(edit), edit->palette().color(QPalette::Base).rgb());
    QTest::mouseClick(child<QPushButton>(&dlg, "btnCancel"), Qt::LeftButton);
    QCOMPARE(dlg.result(), int(QDialog::Rejected));
    QVERIFY(!dlg.isVisible());

    QCOMPARE(mask->document()->cxStyleController()->BorderStyle(), ebsNone);
    QCOMPARE(borderPixel(edit), edit->palette().color(QPalette::Base).rgb());
    QCOMPARE(borderPixel(memo), memo->palette().color(QPalette::Base).rgb());

    delete mask;
}

QTEST_MAIN(TestStyleDlg)
#include "test_styledlg.moc"
