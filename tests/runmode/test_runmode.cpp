// Run mode as a user works it: the mask's fields show and
// edit the records of its table, the navigator and its keys, a new record
// with its counter number, a required field refused, the grid following,
// a change by someone else, and the design left byte-identical.
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QTest>
#include <QToolButton>

#include "Edits.h"
#include "FormDesigner.h"
#include "GuiSteps.h"
#include "Grids.h"
#include "MyBtn.h"
#include "MainForm.h"
#include "Maske.h"
#include "RunSession.h"
#include "SetupDialog.h"
#include "TestSupport.h"
#include "AppPaths.h"
#include "helper_db.h"

namespace {
DbFixture *g_fixture = nullptr;

void clickNav(TRunSession *session, const char *name)
{
    QAction *a = session->action(name);
    QVERIFY2(a && a->isEnabled(), name);
    auto *button = qobject_cast<QToolButton *>(session->navigator()->widgetForAction(a));
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
}

void typeInto(QWidget *edit, const QString &text)
{
    edit->setFocus();
    GuiSteps::retype(edit, text);
}

// The main window shown on the database, with a new mask made from its tool button.
struct MaskWindow
{
    TMainForm form{QStringList{}};
    TMaske *mask = nullptr;

    explicit MaskWindow(const TConnectionSettings &settings)
    {
        form.resize(1100, 750);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        form.frmSetup()->setConnectionSettings(settings);
        QTest::mouseClick(qobject_cast<QToolButton *>(form.bar(TMainForm::FileMenuBar)->widgetForAction(
                              form.findChild<QAction *>(QStringLiteral("FileNewItem")))),
                          Qt::LeftButton);
        mask = form.activeMask();
        QVERIFY(mask);
    }

    // A control placed on the mask; an edit's text names its field.
    template <class T>
    T *place(TPaletteCode code, QPoint at, const QString &field = QString())
    {
        auto *control = qobject_cast<T *>(mask->placeControl(code, mask->document(), at));
        if (control && !field.isEmpty())
            TControl::from(control)->setCaption(field);
        return control;
    }

    // The mask shows the table, in the order of the index field.
    void bind(const QString &table, const QString &index, TTableSettings ts = TTableSettings())
    {
        mask->document()->setTabelle(table);
        ts.Index = index;
        mask->document()->setTableSettings(ts);
    }
};
} // namespace

class TestRunMode : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        AppPaths::setSettingsFileOverride(m_dir.filePath(QStringLiteral("ferolith.ini")));
        g_fixture = new DbFixture;
        QVERIFY(g_fixture->start());
    }
    void cleanupTestCase() { delete g_fixture; }
    void enterNavigateEditAndBack();
    void withoutTableStaysPreview();
    void controlsOfferTheirValues();

private:
    QTemporaryDir m_dir;
};

void TestRunMode::enterNavigateEditAndBack()
{
    // The record layer runs on both engines in its own test; here the window on one.
    const TConnectionSettings settings = g_fixture->settings(QStringLiteral("sqlite"));
    ScriptedDialogs dialogs;
    createTable(settings, dialogs, QStringLiteral("Kunde"),
                {fieldRow(QStringLiteral("Nummer"), QStringLiteral("A"), QStringLiteral("10"), true),
                 fieldRow(QStringLiteral("Name"), QStringLiteral("A"), QStringLiteral("30"))},
                {QStringLiteral("INSERT INTO \"Kunde\" (\"Nummer\", \"Name\") VALUES "
                                "('K1', 'Adam'), ('K2', 'Berta'), ('K3', 'Cäsar')")});
    QVERIFY(QDir().mkpath(settings.DBPfad));
    QVERIFY(writeFileBytes(settings.DBPfad + QStringLiteral("K.NUM"), "7"));

    MaskWindow window(settings);
    TMainForm &form = window.form;
    TMaske *mask = window.mask;
    auto *number = window.place<TcxTextEdit>(TPaletteCode::Edit, {20, 20}, QStringLiteral("Nummer"));
    auto *name = window.place<TcxTextEdit>(TPaletteCode::Edit, {20, 60}, QStringLiteral("Name"));
    QPointer<TDBGrid> grid = window.place<TDBGrid>(TPaletteCode::Grid, {20, 100});
    QVERIFY(number && name && grid);
    name->setTabStop(true); // required
    name->setHelpKeyword(QStringLiteral("Kundenname"));
    grid->setObjectName(QStringLiteral("DBGrid1"));
    grid->setColumns({QStringLiteral("Nummer=80"), QStringLiteral("Name=150")});
    TTableSettings ts;
    ts.Dateizaehler = QStringLiteral("K.NUM");
    ts.Felder = QStringLiteral("Nummer");
    ts.Fokus = QStringLiteral("Name");
    window.bind(QStringLiteral("Kunde"), QStringLiteral("Nummer"), ts);
    const QString file = m_dir.filePath(QStringLiteral("Kunde.dbm"));
    QVERIFY(form.SaveMask(file));
    const QByteArray designed = readFileBytes(file);

    form.RunMode1Click();
    TRunSession *session = TRunSession::of(mask->document());
    QVERIFY(session && session->hasData());
    auto *status = form.findChild<QLabel *>(QStringLiteral("StatusRecord"));
    QCOMPARE(status->text(), QStringLiteral("Datensatz 1 von 3"));
    QCOMPARE(number->text(), QStringLiteral("K1"));
    QCOMPARE(grid->rowCount(), 3);
    QCOMPARE(grid->item(2, 1)->text(), QStringLiteral("Cäsar"));

    // Keys and buttons move; the grid follows, a grid click leads.
    name->setFocus();
    QTest::keyClick(name, Qt::Key_PageDown);
    QCOMPARE(name->text(), QStringLiteral("Berta"));
    QCOMPARE(grid->currentRow(), 1);
    clickNav(session, "NavLast");
    QCOMPARE(status->text(), QStringLiteral("Datensatz 3 von 3"));
    // The search asks through the dialog seam.
    dialogs.dialogAnswers << [](QDialog *dialog) {
        dialog->findChild<QLineEdit *>()->setText(QStringLiteral("k2"));
        return int(QDialog::Accepted);
    };
    name->setFocus();
    QTest::keyClick(name, Qt::Key_F3);
    QCOMPARE(name->text(), QStringLiteral("Berta"));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualItemRect(grid->item(0, 0)).center());
    QCOMPARE(name->text(), QStringLiteral("Adam"));

    // Edit and save with F2; the grid shows the new value.
    typeInto(name, QStringLiteral("Anton"));
    QTest::keyClick(name, Qt::Key_F2);
    QCOMPARE(grid->item(0, 1)->text(), QStringLiteral("Anton"));
    // Typed, then cancelled with Esc.
    typeInto(name, QStringLiteral("Falsch"));
    QTest::keyClick(name, Qt::Key_Escape);
    QCOMPARE(name->text(), QStringLiteral("Anton"));

    // Saving the mask in run mode saves the design, not the record; Save As,
    // another mask and the Delete command leave it in run mode, its controls alone.
    typeInto(name, QStringLiteral("Ungespeichert"));
    QVERIFY(form.SaveMask(file));
    QCOMPARE(readFileBytes(file), designed);
    dialogs.fileAnswers << QStringList{m_dir.filePath(QStringLiteral("Kopie.dbm"))};
    form.FileSaveAsItemClick();
    form.FileNewItemClick();
    form.mdiArea()->setActiveSubWindow(mask);
    QVERIFY(!mask->FormDesigner2()->Active());
    form.findChild<QAction *>(QStringLiteral("DeleteItem"))->trigger();
    form.Lschen1Click();
    QVERIFY(grid);
    QCOMPARE(name->text(), QStringLiteral("Ungespeichert"));
    QTest::keyClick(name, Qt::Key_Escape);

    // A new record: counter number, focus on "Fokus"; the empty required name is refused.
    QTest::keyClick(name, Qt::Key_Insert);
    QCOMPARE(number->text(), QStringLiteral("8"));
    QCOMPARE(QApplication::focusWidget(), name);
    dialogs.messageAnswers << mrOk;
    QTest::keyClick(name, Qt::Key_F2);
    QCOMPARE(dialogs.messages.last().text, QStringLiteral("Das Feld „Kundenname“ muss ausgefüllt werden."));
    QCOMPARE(session->table().count(), 3);
    QTest::keyClicks(name, QStringLiteral("Dora"));
    QTest::keyClick(name, Qt::Key_F2);
    QCOMPARE(session->table().count(), 4);
    QCOMPARE(status->text(), QStringLiteral("Datensatz 1 von 4")); // "8" sorts first

    // Someone else changes the record meanwhile: not overwritten; reloaded on Yes.
    {
        TDbConnection other;
        QVERIFY(other.Connect(settings));
        execOk(other.engine(), QStringLiteral("UPDATE \"Kunde\" SET \"Name\" = 'Doris' WHERE \"Nummer\" = '8'"));
    }
    typeInto(name, QStringLiteral("Dorothea"));
    dialogs.messageAnswers << mrYes;
    QTest::keyClick(name, Qt::Key_F2);
    QVERIFY(dialogs.messages.last().text.contains(QStringLiteral("anderen Benutzer geändert")));
    QCOMPARE(name->text(), QStringLiteral("Doris"));

    // Delete asks; Yes removes it.
    dialogs.messageAnswers << mrYes;
    QTest::keyClick(name, Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(dialogs.messages.last().text, QStringLiteral("Soll der Datensatz gelöscht werden?"));
    QCOMPARE(session->table().count(), 3);
    QCOMPARE(grid->rowCount(), 3);

    // Closing with a typed change asks; Cancel keeps the window and the change.
    typeInto(name, QStringLiteral("Weg"));
    dialogs.messageAnswers << mrCancel;
    QVERIFY(!mask->close());
    QVERIFY(dialogs.messages.last().text.startsWith(QStringLiteral("Der Datensatz wurde geändert.")));
    QCOMPARE(name->text(), QStringLiteral("Weg"));
    // Leaving run mode asks the same; No drops it. The design is back.
    dialogs.messageAnswers << mrNo;
    form.EditMode1Click();
    QVERIFY(!TRunSession::of(mask->document()));
    QCOMPARE(name->text(), QStringLiteral("Name"));
    QCOMPARE(grid->rowCount(), 0);
    QVERIFY(form.SaveMask(file));
    QCOMPARE(readFileBytes(file), designed);
    QCOMPARE(dialogs.unexpected, 0);
    mask->setModified(false);
    mask->close();
}

void TestRunMode::withoutTableStaysPreview()
{
    ScriptedDialogs dialogs;
    MaskWindow window(g_fixture->settings(QStringLiteral("sqlite")));
    TMainForm &form = window.form;
    auto *edit = window.place<TcxTextEdit>(TPaletteCode::Edit, {20, 20}, QStringLiteral("Name"));
    window.mask->document()->setTabelle(QStringLiteral("NieErzeugt"));
    form.RunMode1Click();
    QCOMPARE(form.findChild<QLabel *>(QStringLiteral("StatusRecord"))->text(),
             QStringLiteral("Keine Daten: Die Tabelle „NieErzeugt“ ist noch nicht erzeugt."));
    // Typing in the preview is no design change.
    typeInto(edit, QStringLiteral("Hallo"));
    form.EditMode1Click();
    QCOMPARE(edit->text(), QStringLiteral("Name"));
    window.mask->setModified(false);
}

void TestRunMode::controlsOfferTheirValues()
{
    const TConnectionSettings settings = g_fixture->settings(QStringLiteral("sqlite"));
    ScriptedDialogs dialogs;
    createTable(settings, dialogs, QStringLiteral("Orte"),
                {fieldRow(QStringLiteral("Ort"), QStringLiteral("A"), QStringLiteral("20"), true)},
                {QStringLiteral("INSERT INTO \"Orte\" (\"Ort\") VALUES ('Ulm'), ('Bonn'), ('Ulm')")});
    // Two levels: "Teil" hangs below "Ganzes".
    createTable(settings, dialogs, QStringLiteral("Posten"),
                {fieldRow(QStringLiteral("Titel"), QStringLiteral("A"), QStringLiteral("20"), true),
                 fieldRow(QStringLiteral("Ort"), QStringLiteral("A"), QStringLiteral("20")),
                 fieldRow(QStringLiteral("Datum"), QStringLiteral("D")),
                 fieldRow(QStringLiteral("Farbe"), QStringLiteral("A"), QStringLiteral("10"))},
                {QStringLiteral("INSERT INTO \"Posten\" (\"Titel\", \"Ort\") VALUES ('Ganzes', 'Bonn')"),
                 QStringLiteral("INSERT INTO \"Posten\" (\"Titel\", \"QXParent\") SELECT 'Teil', \"QXID\" "
                                "FROM \"Posten\" WHERE \"Titel\" = 'Ganzes'")});
    MaskWindow window(settings);
    TMainForm &form = window.form;
    TMaske *mask = window.mask;
    auto *title = window.place<TcxTextEdit>(TPaletteCode::Edit, {20, 20}, QStringLiteral("Titel"));
    auto *place = window.place<TcxDBPopupEdit>(TPaletteCode::Lookup, {20, 50});
    auto *date = window.place<TcxTextEdit>(TPaletteCode::Edit, {20, 80}, QStringLiteral("Datum"));
    auto *button = window.place<TMaskBtn>(TPaletteCode::Button, {200, 20});
    auto *tree = window.place<TcxDBTreeList>(TPaletteCode::TreeList, {200, 60});
    auto *color = window.place<TcxComboBox>(TPaletteCode::Combo, {20, 110}, QStringLiteral("Farbe"));
    QVERIFY(title && place && date && button && tree && color);
    color->setHint(QStringLiteral("Farben"));
    QVERIFY(writeFileBytes(settings.DBPfad + QStringLiteral("Farben"), "rot\r\ngr\xfcn\r\n"));
    place->setDataField(QStringLiteral("Ort"));
    place->setEditMask(QStringLiteral("Orte"));
    date->setHint(QStringLiteral("!99/99/0000;1;_"));
    button->setRegelFeld(QStringLiteral("Ort"));
    button->setRegelAusdruck(QStringLiteral("= 'bonn'"));
    button->setRegelFarbe(QStringLiteral("clRed"));
    tree->setHint(QStringLiteral("Titel"));
    window.bind(QStringLiteral("Posten"), QStringLiteral("Titel"));
    const QString file = m_dir.filePath(QStringLiteral("Posten.dbm"));
    QVERIFY(form.SaveMask(file));
    const QByteArray designed = readFileBytes(file);
    const QColor buttonColor = button->palette().color(QPalette::Button);
    form.RunMode1Click();
    TRunSession *session = TRunSession::of(mask->document());
    QVERIFY(session && session->hasData());

    // The tree shows the records by parent; the rule colours the button on "Bonn" only.
    QCOMPARE(title->text(), QStringLiteral("Ganzes"));
    QCOMPARE(tree->topLevelItemCount(), 1);
    QCOMPARE(tree->topLevelItem(0)->child(0)->text(0), QStringLiteral("Teil"));
    QCOMPARE(button->palette().color(QPalette::Button), QColor(Qt::red));
    QCOMPARE(color->Items(), (QStringList{QStringLiteral("rot"), QStringLiteral("grün")}));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                      tree->visualItemRect(tree->topLevelItem(0)->child(0)).center());
    QCOMPARE(title->text(), QStringLiteral("Teil"));
    QCOMPARE(button->palette().color(QPalette::Button), buttonColor);

    // The lookup offers the other table's values once each; a click takes one.
    QTest::mouseClick(place, Qt::LeftButton, {}, place->buttonRect().center());
    auto *list = qobject_cast<QListWidget *>(QApplication::activePopupWidget());
    QVERIFY(list);
    QCOMPARE(list->count(), 2);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    QCOMPARE(place->text(), QStringLiteral("Bonn"));
    QCOMPARE(button->palette().color(QPalette::Button), buttonColor); // not saved yet

    // The edit mask: digits only, the dots stand; the date is stored.
    date->setFocus();
    QTest::keyClick(date, Qt::Key_Home);
    QTest::keyClicks(date, QStringLiteral("0x1032024"));
    QCOMPARE(date->text(), QStringLiteral("01.03.2024"));
    QTest::keyClick(date, Qt::Key_F2);
    QCOMPARE(button->palette().color(QPalette::Button), QColor(Qt::red));
    QCOMPARE(scalarOf(session->table().engine(), QStringLiteral("SELECT \"Datum\" FROM \"Posten\" WHERE \"Titel\" = 'Teil'"))
                 .toDate(),
             QDate(2024, 3, 1));
    form.EditMode1Click();
    QCOMPARE(date->text(), QStringLiteral("Datum"));
    QCOMPARE(tree->topLevelItemCount(), 0);
    QVERIFY(form.SaveMask(file));
    QCOMPARE(readFileBytes(file), designed);
    QCOMPARE(dialogs.unexpected, 0);
    mask->setModified(false);
}

QTEST_MAIN(TestRunMode)
#include "test_runmode.moc"
