// The inspector's tools beside the pages: the pick-list file of a combo box,
// created and edited through the list editor, and the inspector's own
// palette that shows pages only to look at, and which page a selection shows.
#include <QtTest>

#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include "Edits.h"
#include "Graphics.h"
#include "Label.h"
#include "MaskHost.h"
#include "MyBtn.h"
#include "TextCodec.h"

#include "helper_objinsp.h"
#include "helper_maskhost.h"

using namespace ObjInspTest;

namespace {

// The selection and the end of a placement reach the inspector through the
// main window.
struct InspHost : RecordingHost
{
    TObjInsp *insp = nullptr;

    void placementDone(TMaske *mask) override
    {
        RecordingHost::placementDone(mask);
        insp->UpdateComponents();
    }
    void FormDesigner1SelectControl(TMaske *, QWidget *control) override { insp->selectControl(control); }
    void UpdateComponents() override { insp->UpdateComponents(); }
};

// Types text as keys; letters beyond ASCII come as keys that carry them.
void typeText(QWidget *w, const QString &text)
{
    for (const QChar ch : text) {
        if (ch.unicode() < 0x80)
            QTest::keyClick(w, char(ch.unicode()));
        else
            QTest::sendKeyEvent(QTest::Click, w, Qt::Key_unknown, QString(ch), Qt::NoModifier);
    }
}

// Answers the list editor: replaces its text by typing, then OK or cancel.
std::function<int(QDialog *)> typeIntoListEditor(QString *shown, const QStringList &lines, bool ok)
{
    return [shown, lines, ok](QDialog *dialog) {
        auto *memo = dialog->findChild<QPlainTextEdit *>(QStringLiteral("Memo1"));
        if (!memo)
            return int(QDialog::Rejected);
        *shown = memo->toPlainText();
        memo->selectAll();
        QTest::keyClick(memo, Qt::Key_Delete);
        for (int i = 0; i < lines.size(); ++i) {
            if (i > 0)
                QTest::keyClick(memo, Qt::Key_Return);
            typeText(memo, lines.at(i));
        }
        auto *button = dialog->findChild<QPushButton *>(ok ? QStringLiteral("OKBtn") : QStringLiteral("CancelBtn"));
        QTest::mouseClick(button, Qt::LeftButton);
        return dialog->result();
    };
}

const QString kCreate = QStringLiteral("Dateiname nicht vorhanden. Soll eine neue angelegt werden?");
const QString kEdit = QStringLiteral("Wollen Sie die Datei editieren?");

} // namespace

class TestObjInspTools : public QObject
{
    Q_OBJECT

private slots:
    void pickListFileIsCreatedAndEdited();
    void paletteShowsPagesWithoutWriting();
    void paletteFollowsSelectionAndPlacement();
};

void TestObjInspTools::pickListFileIsCreatedAndEdited()
{
    QTemporaryDir base;
    InspFixture f;
    QString folder = base.path();
    f.insp.baseFolder = [&folder] { return folder; };
    auto *combo = f.add<TcxComboBox>();
    combo->setItems({QStringLiteral("alt")});
    f.select({combo});
    auto *name = f.editor<QLineEdit>(QStringLiteral("ComboPullDownFile"));
    auto *button = f.editor<QToolButton>(QStringLiteral("ComboPullDownFileButton"));
    const QString file = base.filePath(QStringLiteral("PullDown/Anrede.txt"));

    // Without a name the button does nothing.
    retype(name, QStringLiteral("   "));
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(f.dialogs.messages.isEmpty());

    // The name is the combo's hint as typed; the file takes it trimmed.
    retype(name, QStringLiteral(" Anrede "));
    QCOMPARE(combo->Hint(), QStringLiteral(" Anrede "));
    f.mask->setModified(false);

    // Not created when the user says no.
    f.dialogs.messageAnswers = {mrNo};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(f.dialogs.messageTexts(), QStringList{kCreate});
    QVERIFY(!QFileInfo::exists(file));

    // Created empty, folder and all; not edited.
    f.dialogs.messages.clear();
    f.dialogs.messageAnswers = {mrYes, mrNo};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(f.dialogs.messageTexts(), (QStringList{kCreate, kEdit}));
    QVERIFY(QFileInfo(file).isFile());
    QCOMPARE(QFileInfo(file).size(), 0);
    QCOMPARE(combo->Items(), QStringList{QStringLiteral("alt")});
    QVERIFY(!f.mask->Modified());

    // Edited: the existing file is not offered for creation again; OK writes
    // the lines as Windows-1252 with CR LF and gives them to the combo box.
    QString shown = QStringLiteral("(nicht gezeigt)");
    const QStringList items = {QStringLiteral("Herr"), QStringLiteral("Frau"), QStringLiteral("Fräulein")};
    f.dialogs.messages.clear();
    f.dialogs.messageAnswers = {mrYes};
    f.dialogs.dialogAnswers = {typeIntoListEditor(&shown, items, true)};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(f.dialogs.messageTexts(), QStringList{kEdit});
    QCOMPARE(shown, QString());
    QCOMPARE(readFileBytes(file), QByteArray("Herr\r\nFrau\r\nFr\xe4ulein\r\n"));
    QCOMPARE(combo->Items(), items);
    QVERIFY(f.mask->Modified());

    // The editor shows the file; cancel changes neither file nor combo.
    f.mask->setModified(false);
    f.dialogs.messageAnswers = {mrYes};
    f.dialogs.dialogAnswers = {typeIntoListEditor(&shown, {QStringLiteral("weg")}, false)};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(shown, QStringLiteral("Herr\nFrau\nFräulein"));
    QCOMPARE(readFileBytes(file), QByteArray("Herr\r\nFrau\r\nFr\xe4ulein\r\n"));
    QCOMPARE(combo->Items(), items);
    QVERIFY(!f.mask->Modified());

    // Emptied, the list is an empty file and an empty combo.
    f.dialogs.messageAnswers = {mrYes};
    f.dialogs.dialogAnswers = {typeIntoListEditor(&shown, {}, true)};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(readFileBytes(file), QByteArray());
    QCOMPARE(combo->Items(), QStringList());

    // A name with an extension keeps it; a file written elsewhere with plain
    // line feeds and a byte-order mark is read as it is and written back
    // in the mask files' code page.
    const QString lst = base.filePath(QStringLiteral("PullDown/orte.lst"));
    QVERIFY(writeFileBytes(lst, QByteArray("\xef\xbb\xbfK\xc3\xb6ln\nBonn\n")));
    retype(name, QStringLiteral("orte.lst"));
    QCOMPARE(f.insp.pickListFile(name->text()), QDir::toNativeSeparators(lst));
    f.dialogs.messages.clear();
    f.dialogs.messageAnswers = {mrYes};
    f.dialogs.dialogAnswers = {typeIntoListEditor(&shown, {QStringLiteral("Köln"), QStringLiteral("Bonn")}, true)};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(f.dialogs.messageTexts(), QStringList{kEdit});
    QCOMPARE(shown, QStringLiteral("Köln\nBonn"));
    QCOMPARE(readFileBytes(lst), QByteArray("K\xf6ln\r\nBonn\r\n"));
    QCOMPARE(combo->Items(), (QStringList{QStringLiteral("Köln"), QStringLiteral("Bonn")}));
    QVERIFY(!QFileInfo::exists(lst + QStringLiteral(".txt")));

    // Lines a mask file would read as a section or a key are refused: typed
    // into the editor, it stays open; standing in the file, nothing changes.
    f.dialogs.messages.clear();
    f.dialogs.messageAnswers = {mrYes, mrOk};
    f.dialogs.dialogAnswers = {typeIntoListEditor(&shown, {QStringLiteral("Bonn"), QStringLiteral("[Datenbank]")}, true)};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(f.dialogs.messages.size(), 2);
    QVERIFY(f.dialogs.messages.at(1).text.contains(QStringLiteral("„[Datenbank]“")));
    QCOMPARE(readFileBytes(lst), QByteArray("K\xf6ln\r\nBonn\r\n"));
    const QByteArray hostile("Bonn\r\nTitel=B\xf6se\r\n");
    QVERIFY(writeFileBytes(lst, hostile));
    f.dialogs.messages.clear();
    f.dialogs.messageAnswers = {mrYes, mrOk};
    f.dialogs.dialogAnswers = {[](QDialog *) { return int(QDialog::Accepted); }};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(f.dialogs.messages.size(), 2);
    QCOMPARE(f.dialogs.messages.at(1).type, mtError);
    QCOMPARE(readFileBytes(lst), hostile);
    QCOMPARE(combo->Items(), (QStringList{QStringLiteral("Köln"), QStringLiteral("Bonn")}));

    // A folder that cannot be made: a clear error, nothing else is asked.
    folder = base.filePath(QStringLiteral("blocker"));
    QVERIFY(writeFileBytes(folder, QByteArray("a file, not a folder")));
    retype(name, QStringLiteral("Neu"));
    f.dialogs.messages.clear();
    f.dialogs.messageAnswers = {mrYes, mrOk};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(f.dialogs.messages.size(), 2);
    QCOMPARE(f.dialogs.messages.at(0).text, kCreate);
    QCOMPARE(f.dialogs.messages.at(1).type, mtError);
    QVERIFY(f.dialogs.messages.at(1).text.contains(QStringLiteral("konnte nicht angelegt werden")));
    QVERIFY(f.dialogs.messages.at(1).text.contains(QStringLiteral("Neu.txt")));
    QCOMPARE(combo->Items(), (QStringList{QStringLiteral("Köln"), QStringLiteral("Bonn")}));
    QCOMPARE(f.dialogs.unexpected, 0);
}

void TestObjInspTools::paletteShowsPagesWithoutWriting()
{
    InspFixture f;
    QWidget *palette = f.insp.componetMenu();
    const QList<QToolButton *> buttons = palette->findChildren<QToolButton *>();
    auto *defaultButton = f.editor<QToolButton>(QStringLiteral("BarButton1"));
    QVERIFY(defaultButton->isChecked());
    // The rows wrap inside the narrow tool window.
    for (QToolButton *b : buttons)
        QVERIFY2(palette->rect().contains(b->geometry()), qPrintable(b->text()));

    // A data label derives from the label class: its label page must not
    // write into it while only being looked at.
    auto *dbLabel = f.add<TDBLabel>();
    dbLabel->setDataField(QStringLiteral("KDNR"));
    dbLabel->setCaption(QStringLiteral("KDNR"));
    dbLabel->setWordWrap(false);
    f.select({dbLabel});
    QVERIFY(f.insp.paletteButton(QStringLiteral("TDBLabel"))->isChecked());
    f.mask->setModified(false);

    QToolButton *labelButton = f.insp.paletteButton(QStringLiteral("TLabel"));
    QTest::mouseClick(labelButton, Qt::LeftButton);
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("TLabel"));
    QVERIFY(labelButton->isChecked());
    QVERIFY(!defaultButton->isChecked());
    QVERIFY(f.insp.isBrowsing());
    auto *caption = f.editor<QLineEdit>(QStringLiteral("LabelCaption"));
    QVERIFY(!caption->isEnabled());
    QTest::keyClicks(caption, QStringLiteral("X"));
    // Even a change that reaches an editor writes nothing.
    caption->setText(QStringLiteral("geändert"));
    f.editor<QAbstractButton>(QStringLiteral("LabelWordWrap"))->setChecked(true);
    QCOMPARE(dbLabel->Caption(), QStringLiteral("KDNR"));
    QVERIFY(!dbLabel->WordWrap());
    QVERIFY(!f.mask->Modified());
    QCOMPARE(f.insp.currentControl(), dbLabel);

    // Another page; the selection is untouched.
    QTest::mouseClick(f.insp.paletteButton(QStringLiteral("TShape")), Qt::LeftButton);
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("TShape"));
    QCOMPARE(f.mask->FormDesigner2()->selection(), QList<QWidget *>{dbLabel});

    // "Default" goes back to the control's page, which edits again.
    QTest::mouseClick(defaultButton, Qt::LeftButton);
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("TDBLabel"));
    QVERIFY(!f.insp.isBrowsing());
    QVERIFY(!f.insp.isUpdating());
    QVERIFY(f.insp.paletteButton(QStringLiteral("TDBLabel"))->isChecked());
    QVERIFY(caption->isEnabled());
    QCOMPARE(f.editor<QLineEdit>(QStringLiteral("DBLabelField"))->text(), QStringLiteral("KDNR"));
    retype(f.editor<QLineEdit>(QStringLiteral("DBLabelField")), QStringLiteral("NAME"));
    QCOMPARE(dbLabel->DataField(), QStringLiteral("NAME"));
    QVERIFY(f.mask->Modified());

    // The button of the control's own page is no browsing either.
    QTest::mouseClick(f.insp.paletteButton(QStringLiteral("TShape")), Qt::LeftButton);
    QTest::mouseClick(f.insp.paletteButton(QStringLiteral("TDBLabel")), Qt::LeftButton);
    QVERIFY(!f.insp.isBrowsing());
    retype(f.editor<QLineEdit>(QStringLiteral("DBLabelField")), QStringLiteral("ORT"));
    QCOMPARE(dbLabel->Caption(), QStringLiteral("ORT"));

    // Without a selection every page is only to look at.
    f.select({});
    QTest::mouseClick(f.insp.paletteButton(QStringLiteral("TcxTextEdit")), Qt::LeftButton);
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("TcxTextEdit"));
    QVERIFY(f.insp.isBrowsing());
    QTest::mouseClick(defaultButton, Qt::LeftButton);
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("Default"));
    QVERIFY(defaultButton->isChecked());
}

void TestObjInspTools::paletteFollowsSelectionAndPlacement()
{
    InspHost host;
    InspFixture f;
    host.insp = &f.insp;
    f.mask->setHost(&host);
    auto *edit = f.add<TcxTextEdit>();
    auto *shape = f.add<TShape>(nullptr, QRect(10, 60, 40, 40));

    // A new selection ends the browsing and puts its page's button down.
    QTest::mouseClick(f.insp.paletteButton(QStringLiteral("TDBGrid")), Qt::LeftButton);
    QVERIFY(f.insp.isBrowsing());
    QTest::mouseClick(shape, Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(f.mask->FormDesigner2()->selection(), QList<QWidget *>{shape});
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("TShape"));
    QVERIFY(f.insp.paletteButton(QStringLiteral("TShape"))->isChecked());
    QVERIFY(!f.insp.isBrowsing());
    QVERIFY(f.editor<QComboBox>(QStringLiteral("DBGridAlign"))->isEnabled());

    // Two controls: the "Default" page and its button.
    QTest::mouseClick(edit, Qt::LeftButton, Qt::ShiftModifier, QPoint(5, 5));
    QCOMPARE(f.mask->FormDesigner2()->ControlCount(), 2);
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("Default"));
    QVERIFY(f.editor<QToolButton>(QStringLiteral("BarButton1"))->isChecked());
    QCOMPARE(f.insp.currentControl(), shape);
    // So does a class without a page of its own, and no selection at all.
    f.select({f.add<TImage>(nullptr, QRect(100, 60, 40, 40))});
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("Default"));
    f.select({});
    QCOMPARE(f.insp.currentControl(), nullptr);

    // A placement from the main palette shows the new control's page, even
    // after browsing another one.
    QTest::mouseClick(f.insp.paletteButton(QStringLiteral("TPanel")), Qt::LeftButton);
    host.tool = 4; // memo
    f.mask->FormDesigner2()->Lock();
    QTest::mouseClick(f.mask->document(), Qt::LeftButton, {}, QPoint(300, 200));
    QVERIFY(qobject_cast<TcxMemo *>(f.mask->FormDesigner2()->currentControl()));
    QCOMPARE(f.insp.currentPageCaption(), QStringLiteral("TcxMemo"));
    QVERIFY(f.insp.paletteButton(QStringLiteral("TcxMemo"))->isChecked());
    QVERIFY(!f.insp.isBrowsing());
    f.mask->setHost(nullptr);
}

QTEST_MAIN(TestObjInspTools)
#include "test_objinsp_tools.moc"
