// The mask settings wizard: walking its pages, moving fields, the value
// entries, OK and Cancel, and its values surviving the table description
// file and a new load of the mask.
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>
#include <QTemporaryDir>

#include "Dbexpl.h"
#include "FieldListBox.h"
#include "MaskWriter.h"
#include "GuiSteps.h"
#include "TestSupport.h"
#include "WizardDlg.h"
#include "helper_dbwindows.h"

using namespace DbWindowsTest;
using GuiSteps::clickItem;
using GuiSteps::texts;

namespace {
// Steps through the items with the arrow keys, as a user picks one.
void choose(QComboBox *combo, const QString &text)
{
    const int index = combo->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    for (int guard = 0; combo->currentIndex() != index && guard < 100; ++guard)
        QTest::keyClick(combo, combo->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
}

// Clicks into the field and types over what it holds.
void typeInto(QLineEdit *edit, const QString &text)
{
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClicks(edit, text);
}

// What a user enters on the five pages.
void editAllPages(TWizard &w)
{
    auto *next = child<QPushButton>(&w, "NextBtn");
    auto *name = child<QLineEdit>(&w, "Name");
    QVERIFY(!child<QPushButton>(&w, "BackBtn")->isEnabled());
    typeInto(name, QString());
    QVERIFY(!next->isEnabled()); // the later pages belong to a named table
    QTest::keyClicks(name, QStringLiteral("Kunden2"));
    typeInto(child<QLineEdit>(&w, "Titel"), QStringLiteral("Kunden neu"));
    choose(child<QComboBox>(&w, "IndexFeld"), QStringLiteral("Kundennummer"));
    QTest::mouseClick(next, Qt::LeftButton);
    typeInto(child<QLineEdit>(&w, "CADPath"), QStringLiteral("/cad/kunden"));
    typeInto(child<QLineEdit>(&w, "Zaehler"), QStringLiteral("KUNDEN.NUM"));
    choose(child<QComboBox>(&w, "Focus"), QStringLiteral("Firma"));
    QTest::mouseClick(next, Qt::LeftButton);

    // Buttons, keyboard and a drop all move fields.
    auto *src = child<TFieldListBox>(&w, "SrcList");
    auto *dst = child<TFieldListBox>(&w, "DstList");
    QTest::mouseClick(child<QPushButton>(&w, "IncAllBtn"), Qt::LeftButton);
    QCOMPARE(src->count(), 0);
    QTest::mouseClick(child<QPushButton>(&w, "ExAllBtn"), Qt::LeftButton);
    clickItem(src, QStringLiteral("Name"));
    QTest::mouseClick(child<QPushButton>(&w, "IncludeBtn"), Qt::LeftButton);
    clickItem(src, QStringLiteral("Kundennummer"));
    QTest::keyClick(src, Qt::Key_Return);
    clickItem(dst, QStringLiteral("Name"));
    std::unique_ptr<QMimeData> drag(dst->model()->mimeData({dst->currentIndex()}));
    const QPoint spot = src->viewport()->rect().center();
    QDragEnterEvent enter(spot, Qt::CopyAction | Qt::MoveAction, drag.get(), Qt::LeftButton, {});
    QApplication::sendEvent(src->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(spot, Qt::CopyAction | Qt::MoveAction, drag.get(), Qt::LeftButton, {});
    QApplication::sendEvent(src->viewport(), &drop);
    QCOMPARE(texts(dst), QStringList{QStringLiteral("Kundennummer")});
    QCOMPARE(texts(src).indexOf(QStringLiteral("Name")) + 1, texts(src).indexOf(QStringLiteral("Vorname"))); // mask order
    clickItem(src, QStringLiteral("Firma"));
    QTest::mouseClick(child<QPushButton>(&w, "IncludeBtn"), Qt::LeftButton);
    QCOMPARE(child<QLineEdit>(&w, "Felder")->text(), QStringLiteral("Kundennummer,Firma"));
    QTest::mouseClick(next, Qt::LeftButton);

    // One entry per field; a macro replaces the value; the popup deletes.
    auto *autoFill = child<QListWidget>(&w, "AutoFill");
    auto *value = child<QComboBox>(&w, "AutofillWert");
    const QString file = QStringLiteral("\"Dateiname\"");
    choose(child<QComboBox>(&w, "AutoFillFeld"), QStringLiteral("KundeSeit"));
    choose(value, QStringLiteral("%DATE"));
    choose(value, QStringLiteral("%NUM") + file);
    choose(child<QComboBox>(&w, "AutoFillFeld"), QStringLiteral("Land"));
    QTest::keyClicks(value, QStringLiteral("DE"));
    choose(child<QComboBox>(&w, "AutoFillFeld"), QStringLiteral("Ort"));
    QTest::keyClicks(value, QStringLiteral("Bonn"));
    QCOMPARE(texts(autoFill), QStringList({"KundeSeit=%NUM" + file, "Land=DE", "Ort=Bonn"}));
    rightClick(autoFill->viewport(), autoFill->visualItemRect(autoFill->item(2)).center());
    chooseMenuItem(autoFill->findChild<QMenu *>(), QStringLiteral("Eintrag löschen"));
    QCOMPARE(autoFill->count(), 2);
    QTest::mouseClick(next, Qt::LeftButton);

    choose(child<QComboBox>(&w, "DefaultFeld"), QStringLiteral("Anrede"));
    QTest::keyClicks(child<QComboBox>(&w, "Defaultwert"), QStringLiteral("Herr"));
    QVERIFY(!next->isEnabled());
    QCOMPARE(child<QStackedWidget>(&w, "PageBook")->currentWidget()->objectName(), QStringLiteral("Config-5"));
}

// The values the wizard shows, page by page.
QStringList shown(TWizard &w)
{
    return {child<QLineEdit>(&w, "Name")->text(),          child<QLineEdit>(&w, "Titel")->text(),
            child<QComboBox>(&w, "IndexFeld")->currentText(), child<QLineEdit>(&w, "CADPath")->text(),
            child<QLineEdit>(&w, "Zaehler")->text(),       child<QComboBox>(&w, "Focus")->currentText(),
            texts(child<QListWidget>(&w, "DstList")).join(QLatin1Char('|')),
            texts(child<QListWidget>(&w, "AutoFill")).join(QLatin1Char('|')),
            texts(child<QListWidget>(&w, "Default")).join(QLatin1Char('|'))};
}
} // namespace

class TestWizard : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cancelKeepsOkWritesAndTheTableKeepsIt()
    {
        ScriptedDialogs dialogs;
        QTemporaryDir dir;
        const QString db = dir.filePath(QStringLiteral("db/"));
        TMaskDocument mask;
        loadMask(mask, kundenMask(), db);
        {
            TWizard w(&mask);
            showAndWait(&w);
            editAllPages(w);
            QVERIFY(!QTest::currentTestFailed());
            QTest::mouseClick(child<QPushButton>(&w, "AbbruchBtn"), Qt::LeftButton);
        }
        QCOMPARE(mask.Titel(), QStringLiteral("Kundenstamm"));
        QVERIFY(mask.TableSettings().AutoFill.isEmpty());

        QStringList edited;
        {
            TWizard w(&mask);
            showAndWait(&w);
            editAllPages(w);
            QVERIFY(!QTest::currentTestFailed());
            edited = shown(w);
            QTest::mouseClick(child<QPushButton>(&w, "OKBtn"), Qt::LeftButton);
        }
        QCOMPARE(mask.Tabelle(), QStringLiteral("Kunden2"));
        QCOMPARE(mask.Titel(), QStringLiteral("Kunden neu"));
        QCOMPARE(mask.TableSettings().Index, QStringLiteral("Kundennummer"));
        QCOMPARE(mask.TableSettings().Default, QStringList{QStringLiteral("Anrede=Herr")});

        // Saved, its table made, loaded again: the wizard shows the same.
        const QString file = dir.filePath(QStringLiteral("Kunden2.dbm"));
        QVERIFY(MaskWriter::SaveMask(mask, file));
        TConnectionSettings settings;
        settings.DBPfad = db;
        TDbexpl explorer;
        explorer.connectionSettings = [settings] { return settings; };
        explorer.FillFromMask(&mask);
        showAndWait(&explorer);
        QTest::mouseClick(child<QPushButton>(&explorer, "CreateDB"), Qt::LeftButton);
        QCOMPARE(dialogs.messages.last().text, QStringLiteral("Datenbank Kunden2 wurde erfolgreich erstellt"));
        TMaskDocument again;
        loadMask(again, file, db);
        TWizard w(&again);
        showAndWait(&w);
        QCOMPARE(shown(w), edited);
    }
};

QTEST_MAIN(TestWizard)
#include "test_wizard.moc"
