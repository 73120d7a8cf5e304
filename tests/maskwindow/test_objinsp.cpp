// The object inspector as the user drives it: the component list, and what
// filling and typing into the text and button pages do to the control; the
// rule and check box dialogs.
#include <QtTest>
#include <QTreeWidgetItemIterator>

#include "CheckDialog.h"
#include "Components.h"
#include "Containers.h"
#include "Edits.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "Maske.h"
#include "MyBtn.h"
#include "ObjectInspector.h"
#include "RuleDialog.h"
#include "TestSupport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QTreeWidget>

#include "helper_objinsp.h"

using namespace ObjInspTest;

namespace {

// The component list as the user sees it: pages indented below their page
// control, " +" on an opened entry.
QStringList outline(QTreeWidget *tree)
{
    QStringList out;
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        out << ((*it)->parent() ? QStringLiteral("  ") : QString()) + (*it)->text(0)
                + ((*it)->childCount() && (*it)->isExpanded() ? QStringLiteral(" +") : QString());
    return out;
}

} // namespace

class TestObjInsp : public QObject
{
    Q_OBJECT

private slots:
    void componentListAndChoosingAnEntry();
    void fillingShowsValuesWithoutWriting();
    void buttonPageWritesAndPicksFiles();
    void ruleDialogWritesOnlyOnOk();
    void checkDialogReadsAndWritesTheOptionText();
    void checkColorButtonRoundTrip();
};

void TestObjInsp::componentListAndChoosingAnEntry()
{
    InspFixture f;
    auto *label = f.add<TLabel>();
    label->setCaption(QStringLiteral("  Kunde:  "));
    auto *edit = f.add<TcxTextEdit>(nullptr, QRect(10, 40, 120, 24));
    auto *same = f.add<TLabel>(nullptr, QRect(10, 70, 120, 24));
    same->setCaption(same->objectName());
    auto *pager = f.add<TAdvOfficePager>(nullptr, QRect(200, 10, 300, 200));
    TAdvOfficePage *page = f.mask->document()->NewOPage(QStringLiteral("Adresse"));
    pager->addPage(page);
    f.insp.UpdateComponents();

    QTreeWidget *tree = f.insp.dxBarTreeView();
    QCOMPARE(outline(tree),
             (QStringList{QStringLiteral("Label1 – Kunde:"), edit->objectName(), same->objectName(),
                          pager->objectName() + QStringLiteral(" +"),
                          QStringLiteral("  ") + page->objectName() + QStringLiteral(" – Adresse")}));

    // The user drops the list down and clicks the page entry.
    QTest::mouseClick(f.insp.treeButton(), Qt::LeftButton);
    QVERIFY(tree->isVisible());
    QTreeWidgetItem *pageItem = tree->topLevelItem(3)->child(0);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(pageItem).center());
    QVERIFY(!tree->isVisible());
    QCOMPARE(f.mask->FormDesigner2()->selection(), (QList<QWidget *>{page}));
    QCOMPARE(f.insp.currentControl(), page);
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("TAdvOfficePage"));
    QCOMPARE(f.editor<QLineEdit>(QStringLiteral("EditOfficePage"))->text(), QStringLiteral("Adresse"));
    QCOMPARE(f.insp.treeButton()->text(), pageItem->text(0));

    // Later changes show as a freshly built list shows them: a new control
    // and a new page, then a control gone and one renamed.
    const auto fresh = [&] {
        TObjInsp other;
        other.setActiveMask(f.mask);
        return outline(other.dxBarTreeView());
    };
    auto *added = f.add<TcxTextEdit>(nullptr, QRect(10, 100, 120, 24));
    pager->addPage(f.mask->document()->NewOPage(QStringLiteral("Bank")));
    f.insp.UpdateComponents();
    QCOMPARE(outline(tree), fresh());
    QCOMPARE(tree->topLevelItemCount(), 5);
    QCOMPARE(tree->topLevelItem(4)->text(0), added->objectName());
    delete edit;
    same->setName(QStringLiteral("Anders"));
    f.insp.UpdateComponents();
    QCOMPARE(outline(tree), fresh());
    QCOMPARE(tree->topLevelItemCount(), 4);
    // Without a mask the list is empty.
    f.insp.setActiveMask(nullptr);
    QCOMPARE(tree->topLevelItemCount(), 0);
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("Default"));
}

void TestObjInsp::fillingShowsValuesWithoutWriting()
{
    InspFixture f;
    auto *edit = f.add<TcxTextEdit>();
    edit->setText(QStringLiteral("PLZ"));
    edit->setTag(0);
    edit->setMaxLength(5);
    edit->setHint(QStringLiteral("00000"));
    edit->setHelpKeyword(QStringLiteral("Postleitzahl"));
    auto *combo = f.add<TcxComboBox>(nullptr, QRect(10, 40, 120, 24));
    combo->setText(QStringLiteral("ORT"));
    combo->setTag(3);
    combo->setMaxLength(30);
    combo->setReadOnly(true);
    combo->setHint(QStringLiteral("orte.txt"));

    f.select({edit});
    QCOMPARE(f.editor<QLineEdit>(QStringLiteral("EditFieldName"))->text(), QStringLiteral("PLZ"));
    QCOMPARE(f.editor<QSpinBox>(QStringLiteral("EditFieldSize"))->value(), 5);
    QCOMPARE(f.editor<QLineEdit>(QStringLiteral("EditMask"))->text(), QStringLiteral("00000"));
    QCOMPARE(f.editor<QLineEdit>(QStringLiteral("EditFieldCaption"))->text(), QStringLiteral("Postleitzahl"));

    // The type is filled after the length: had filling written, Tag 3 would
    // have reached the edit's length, or the combo's values the edit.
    f.select({combo});
    QCOMPARE(f.editor<QComboBox>(QStringLiteral("ComboFieldTyp"))->currentIndex(), 3);
    QVERIFY(!f.editor<QSpinBox>(QStringLiteral("ComboFieldSize"))->isEnabled());
    QVERIFY(f.editor<QCheckBox>(QStringLiteral("ComboReadOnly"))->isChecked());
    QCOMPARE(f.editor<QLineEdit>(QStringLiteral("ComboPullDownFile"))->text(), QStringLiteral("orte.txt"));
    QCOMPARE(edit->Text(), QStringLiteral("PLZ"));
    QCOMPARE(edit->MaxLength(), 5);
    QCOMPARE(combo->Tag(), 3);
    QVERIFY(!f.mask->Modified());
    QVERIFY(!f.insp.isUpdating());

    // One keystroke writes the whole page and marks the mask.
    QTest::keyClicks(f.editor<QLineEdit>(QStringLiteral("ComboFieldName")), QStringLiteral("X"));
    QCOMPARE(combo->Text(), QStringLiteral("ORTX"));
    QCOMPARE(combo->MaxLength(), 30);
    QVERIFY(combo->ReadOnly());
    QVERIFY(f.mask->Modified());
}

void TestObjInsp::buttonPageWritesAndPicksFiles()
{
    InspFixture f;
    auto *button = f.add<TMaskBtn>();
    f.select({button});
    // The page shows only the editors the chosen action uses.
    const auto shown = [&f](const char *name) { return f.editor<QWidget>(QLatin1String(name))->isVisibleTo(&f.insp); };
    QVERIFY(!shown("BtnZuweisFeld") && !shown("BtnZuweisMaskeBtn"));
    choose(f.editor<QComboBox>(QStringLiteral("BtnAction")), 3);
    QVERIFY(shown("BtnZuweisFeld") && shown("BtnZuweisMaskeBtn") && !shown("BtnProgExt"));
    retype(f.editor<QLineEdit>(QStringLiteral("BtnZuweisFeld")), QStringLiteral("KDNR"));
    retype(f.editor<QLineEdit>(QStringLiteral("BtnIndexFeld")), QStringLiteral("NR"));
    QCOMPARE(button->ZuweisFeld(), QStringLiteral("KDNR"));
    QCOMPARE(button->IndexFeld(), QStringLiteral("NR"));

    f.dialogs.fileAnswers << QStringList{QStringLiteral("/masken/kunden.dbm")};
    QTest::mouseClick(f.editor<QToolButton>(QStringLiteral("BtnZuweisMaskeBtn")), Qt::LeftButton);
    QCOMPARE(f.dialogs.fileDialogs.size(), 1);
    QCOMPARE(button->ZuweisMaske(), QStringLiteral("/masken/kunden.dbm"));

    choose(f.editor<QComboBox>(QStringLiteral("BtnAction")), 6);
    QVERIFY(!shown("BtnZuweisFeld") && shown("BtnProgExt") && shown("BtnRunAs"));
    retype(f.editor<QLineEdit>(QStringLiteral("BtnProgExt")), QStringLiteral("pdf"));
    retype(f.editor<QLineEdit>(QStringLiteral("BtnSectionExt")), QStringLiteral("Viewer"));
    clickCheck(f.editor<QCheckBox>(QStringLiteral("BtnRunAs")));
    f.dialogs.fileAnswers << QStringList(); // cancelled: the program stays
    QTest::mouseClick(f.editor<QToolButton>(QStringLiteral("BtnZuweisMaskeBtn")), Qt::LeftButton);
    QCOMPARE(f.dialogs.fileDialogs.last().title, QStringLiteral("Programm auswählen"));
    QCOMPARE(button->ZuweisMaske(), QStringLiteral("/masken/kunden.dbm"));
    QCOMPARE(button->ProgExt(), QStringLiteral("pdf"));
    QCOMPARE(button->SectionExt(), QStringLiteral("Viewer"));
    QVERIFY(button->RunAs());
    // An URL button's section extension is the extension field.
    choose(f.editor<QComboBox>(QStringLiteral("BtnAction")), 7);
    retype(f.editor<QLineEdit>(QStringLiteral("BtnProgExt")), QStringLiteral("Browser"));
    QCOMPARE(button->ProgExt(), QStringLiteral("Browser"));
    QCOMPARE(button->SectionExt(), QStringLiteral("Viewer"));
    QCOMPARE(f.dialogs.unexpected, 0);
}

void TestObjInsp::ruleDialogWritesOnlyOnOk()
{
    InspFixture f;
    auto *button = f.add<TMaskBtn>();
    button->setTag(11);
    button->setRegelFeld(QStringLiteral("STATUS"));
    button->setRegelFarbe(QStringLiteral("clBlue"));
    f.select({button});
    auto *rule = f.editor<QPushButton>(QStringLiteral("BtnZuweisRule"));
    QVERIFY(!rule->font().bold());

    // Cancelled after typing: nothing reaches the button.
    f.dialogs.dialogAnswers << [](QDialog *d) {
        auto *dlg = qobject_cast<TfrmRule *>(d);
        QTest::keyClicks(dlg->Regel(), QStringLiteral("STATUS = 1"));
        return int(QDialog::Rejected);
    };
    QTest::mouseClick(rule, Qt::LeftButton);
    QCOMPARE(f.dialogs.dialogTitles, QStringList{QStringLiteral("Regel definieren")});
    QCOMPARE(button->RegelAusdruck(), QString());
    QVERIFY(!f.mask->Modified());

    QString shownField, shownColor;
    f.dialogs.dialogAnswers << [&](QDialog *d) {
        auto *dlg = qobject_cast<TfrmRule *>(d);
        shownField = dlg->Feld()->text();
        shownColor = dlg->Farbe()->currentText();
        QTest::keyClicks(dlg->Regel(), QStringLiteral("STATUS = 'offen'"));
        retype(dlg->Feld(), QStringLiteral("STAT"));
        choose(dlg->Farbe(), ColorIdents().indexOf(QStringLiteral("clRed")));
        clickCheck(dlg->Zeile());
        return int(QDialog::Accepted);
    };
    QTest::mouseClick(rule, Qt::LeftButton);
    QCOMPARE(shownField, QStringLiteral("STATUS"));
    QCOMPARE(shownColor, QStringLiteral("clBlue"));
    QCOMPARE(button->RegelAusdruck(), QStringLiteral("STATUS = 'offen'"));
    QCOMPARE(button->RegelFeld(), QStringLiteral("STAT"));
    QCOMPARE(button->RegelFarbe(), QStringLiteral("clRed"));
    QVERIFY(button->RegelZeile());
    QVERIFY(f.mask->Modified());
    QVERIFY(rule->font().bold());
    // The dialogs stay with the inspector until it goes.
    QCOMPARE(f.insp.findChildren<TfrmRule *>().size(), 2);
}

void TestObjInsp::checkDialogReadsAndWritesTheOptionText()
{
    InspFixture f;
    f.add<TcxTextEdit>()->setText(QStringLiteral("KUNDE"));
    f.add<TLabel>()->setCaption(QStringLiteral("ignoriert"));
    f.add<TcxComboBox>()->setText(QStringLiteral("ORT"));
    f.add<TcxMemo>()->setText(QStringLiteral("  BEMERKUNG \n"));
    f.add<TcxDBCheckBox>()->setDataField(QStringLiteral("AKTIV"));
    f.add<TcxDBPopupEdit>()->setText(QStringLiteral("LOOKUP"));
    f.add<TcxTextEdit>()->setText(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ"));

    TCheckDlg dlg(f.mask);
    QStringList fields;
    for (int i = 0; i < dlg.Feld()->count(); ++i)
        fields << dlg.Feld()->itemText(i);
    QCOMPARE(fields, (QStringList{QStringLiteral("KUNDE"), QStringLiteral("ORT"), QStringLiteral("BEMERKUNG"),
                                  QStringLiteral("AKTIV"), QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ")}));

    dlg.setHint(QStringLiteral("ORT%ONclLime%OFFclYellow"));
    QCOMPARE(dlg.Feld()->currentText(), QStringLiteral("ORT"));
    QCOMPARE(dlg.An()->currentText(), QStringLiteral("clLime"));
    QCOMPARE(dlg.Aus()->currentText(), QStringLiteral("clYellow"));
    dlg.setHint(QStringLiteral("GIBTESNICHT%ONclRed%OFFclBlue"));
    QCOMPARE(dlg.Feld()->currentIndex(), -1);

    // The long field name is cut to 20 characters.
    choose(dlg.Feld(), 4);
    dlg.show();
    QTest::mouseClick(dlg.findChild<QPushButton *>(QStringLiteral("OKBtn")), Qt::LeftButton);
    QCOMPARE(dlg.result(), int(QDialog::Accepted));
    QCOMPARE(dlg.Hint(), QStringLiteral("ABCDEFGHIJKLMNOPQRST%ONclRed%OFFclBlue"));

    // A mask without fields: nothing to choose, the name stays empty.
    TMaske empty;
    TCheckDlg none(&empty);
    QCOMPARE(none.Feld()->count(), 0);
    none.setHint(QStringLiteral("KUNDE%ONclGreen%OFFclMaroon"));
    none.show();
    QTest::mouseClick(none.findChild<QPushButton *>(QStringLiteral("OKBtn")), Qt::LeftButton);
    QCOMPARE(none.Hint(), QStringLiteral("%ONclGreen%OFFclMaroon"));
}

void TestObjInsp::checkColorButtonRoundTrip()
{
    InspFixture f;
    f.add<TcxTextEdit>()->setText(QStringLiteral("KUNDE"));
    auto *check = f.add<TcxDBCheckBox>(nullptr, QRect(10, 40, 120, 24));
    check->setDataField(QStringLiteral("AKTIV"));
    check->setHint(QStringLiteral("KUNDE%ONclRed%OFFclGray"));
    f.select({check});

    QString shownField;
    f.dialogs.dialogAnswers << [&](QDialog *d) {
        auto *dlg = qobject_cast<TCheckDlg *>(d);
        shownField = dlg->Feld()->currentText();
        choose(dlg->Aus(), ColorIdents().indexOf(QStringLiteral("clWhite")));
        dlg->show();
        QTest::mouseClick(dlg->findChild<QPushButton *>(QStringLiteral("OKBtn")), Qt::LeftButton);
        return dlg->result();
    };
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("CheckColorBtn")), Qt::LeftButton);
    QCOMPARE(shownField, QStringLiteral("KUNDE"));
    QCOMPARE(check->Hint(), QStringLiteral("KUNDE%ONclRed%OFFclWhite"));
    QVERIFY(f.mask->Modified());
    // The dialog is freed after use.
    QVERIFY(f.insp.findChildren<TCheckDlg *>().isEmpty());

    f.mask->setModified(false);
    f.dialogs.dialogAnswers << [](QDialog *) { return int(QDialog::Rejected); };
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("CheckColorBtn")), Qt::LeftButton);
    QCOMPARE(check->Hint(), QStringLiteral("KUNDE%ONclRed%OFFclWhite"));
    QVERIFY(!f.mask->Modified());
}

QTEST_MAIN(TestObjInsp)
#include "test_objinsp.moc"
