// The inspector's editors that do more than hold a value: the mask button's
// rows that follow its action, file and rule pickers, the check box colour
// options, the pick-list file of a combo box and new pages of a page control.
#include "ObjectInspector.h"
#include "PickLists.h"

#include "AppPaths.h"
#include "CheckDialog.h"
#include "Containers.h"
#include "Edits.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "Maske.h"
#include "MemoDialog.h"
#include "MyBtn.h"
#include "RuleDialog.h"
#include "TextCodec.h"
#include "UserDialogs.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>

namespace {

// The action kinds of a mask button, as Tag stores them.
enum BtnAction {
    baSearch = 0,
    baDrawing = 1,
    baNcProgram = 2,
    baAssign = 3,
    baList = 4,
    baInsertDrawing = 5,
    baProgram = 6,
    baUrl = 7,
    baMail = 8,
    baReport = 9,
    baIniSection = 10,
    baRule = 11,
};

// A pick-list file holds one item per line; a line break after the last
// item opens no empty one.
QStringList splitLines(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
}

} // namespace

// ---- the mask button ----

void TObjInsp::updateButtonRows()
{
    const int kind = editor<QComboBox>(QStringLiteral("BtnAction"))->currentIndex();
    const bool assign = kind == baAssign || kind == baList;
    const bool program = kind == baProgram;
    const bool section = kind == baUrl || kind == baMail || kind == baReport || kind == baIniSection;

    showRow(QStringLiteral("BtnZuweisMaske"), assign || program);
    setRowLabel(QStringLiteral("BtnZuweisMaske"), program ? tr("Programm auswählen:") : tr("Maske:"));
    showRow(QStringLiteral("BtnZuweisFeld"), assign);
    showRow(QStringLiteral("BtnZuweisFeldEx"), assign);
    showRow(QStringLiteral("BtnIndexFeld"), assign);
    // The extension field is the file extension of a program and the
    // section extension of the other kinds that use one.
    showRow(QStringLiteral("BtnProgExt"), program || section);
    setRowLabel(QStringLiteral("BtnProgExt"),
                program                    ? tr("Dateierweiterung:")
                    : kind == baIniSection ? tr("Sektion:")
                                           : tr("Sektion Erweiterung:"));
    showRow(QStringLiteral("BtnSectionExt"), program);
    showRow(QStringLiteral("BtnRunAs"), program);
    showRow(QStringLiteral("BtnZuweisRule"), kind == baList || kind == baRule);

    // Bold tells the user a rule is already defined.
    auto *c = qobject_cast<TMaskBtn *>(m_current.data());
    auto *rule = editor<QPushButton>(QStringLiteral("BtnZuweisRule"));
    QFont font = rule->font();
    font.setBold(c && !c->RegelAusdruck().isEmpty());
    rule->setFont(font);
}

void TObjInsp::BtnZuweisRuleClick()
{
    auto *c = qobject_cast<TMaskBtn *>(m_current.data());
    if (!c)
        return;
    // Each click makes a new dialog; the inspector owns them all, so they go
    // with it and never while a click is still being handled.
    auto *dlg = new TfrmRule(this);
    dlg->setFromButton(c);
    if (UserDialogs::instance().execDialog(dlg) == QDialog::Accepted) {
        dlg->writeToButton(c);
        markModified();
    }
    updateButtonRows();
}

void TObjInsp::BtnZuweisMaskeBeforeDialog()
{
    auto *c = qobject_cast<TMaskBtn *>(m_current.data());
    const int kind = editor<QComboBox>(QStringLiteral("BtnAction"))->currentIndex();
    if (!c || (kind != baAssign && kind != baList && kind != baProgram))
        return;
    TFileDialog dialog;
    dialog.kind = TFileDialog::Open;
    if (kind == baProgram) {
        dialog.title = tr("Programm auswählen");
        dialog.filter = tr("Programm (*.exe)|*.exe");
    } else {
        dialog.title = tr("Datenbankmaske auswählen");
        dialog.filter = tr("Datenbankmaske (*.dbm)|*.dbm");
    }
    dialog.fileName = editor<QLineEdit>(QStringLiteral("BtnZuweisMaske"))->text();
    if (!dialog.execute(this))
        return;
    // Through the editor, so the change handler writes it like typing would.
    editor<QLineEdit>(QStringLiteral("BtnZuweisMaske"))->setText(dialog.fileName);
}

// ---- check boxes, pictures ----

void TObjInsp::CheckColorBtnClick()
{
    auto *c = qobject_cast<TcxDBCheckBox *>(m_current.data());
    if (!c)
        return;
    // The option text travels through the dialog's hint, in and out.
    auto *dlg = new TCheckDlg(m_mask, this);
    dlg->setHint(c->Hint());
    if (UserDialogs::instance().execDialog(dlg) == QDialog::Accepted) {
        c->setHint(dlg->Hint());
        markModified();
    }
    delete dlg;
}

void TObjInsp::ImageFileBtnClick()
{
    if (!qobject_cast<TImageAspect *>(m_current.data()))
        return;
    TFileDialog dialog;
    dialog.title = tr("Bild auswählen");
    dialog.filter = tr("Bilder (*.bmp;*.png;*.jpg;*.jpeg;*.gif)|*.bmp;*.png;*.jpg;*.jpeg;*.gif|"
                       "Alle Dateien (*.*)|*.*");
    dialog.fileName = editor<QLineEdit>(QStringLiteral("ImageFileEdit"))->text();
    dialog.fileMustExist = true;
    if (dialog.execute(this))
        editor<QLineEdit>(QStringLiteral("ImageFileEdit"))->setText(dialog.fileName);
}

// ---- pick-list files ----

// Pick lists are plain text files in the folder "PullDown" below the base
// folder, one per list name, so several masks can share one list.
QString TObjInsp::pickListFile(const QString &name) const
{
    QString fileName = name.trimmed();
    if (fileName.isEmpty())
        return QString();
    if (QFileInfo(fileName).suffix().isEmpty())
        fileName += QStringLiteral(".txt");
    const QString base = baseFolder ? baseFolder() : AppPaths::baseFolder();
    return QDir::toNativeSeparators(AppPaths::withTrailingSeparator(base) + QStringLiteral("PullDown")
                                    + QDir::separator() + fileName);
}

void TObjInsp::ComboPullDownFileButtonClick()
{
    auto *combo = qobject_cast<TcxComboBox *>(m_current.data());
    const QString path = pickListFile(editor<QLineEdit>(QStringLiteral("ComboPullDownFile"))->text());
    if (!combo || m_browsing || path.isEmpty())
        return;
    UserDialogs &dialogs = UserDialogs::instance();
    const auto failed = [&](const QString &text) {
        dialogs.messageDlg(this, text.arg(QDir::toNativeSeparators(path)), mtError, mbOK);
    };

    if (!QFileInfo::exists(path)) {
        if (dialogs.messageDlg(this, tr("Dateiname nicht vorhanden. Soll eine neue angelegt werden?"), mtConfirmation,
                               mbYes | mbNo)
            != mrYes)
            return;
        QFile created(path);
        if (!QDir().mkpath(QFileInfo(path).absolutePath()) || !created.open(QIODevice::WriteOnly)) {
            failed(tr("Die Datei \"%1\" konnte nicht angelegt werden."));
            return;
        }
    }
    if (dialogs.messageDlg(this, tr("Wollen Sie die Datei editieren?"), mtConfirmation, mbYes | mbNo) != mrYes)
        return;

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        failed(tr("Die Datei \"%1\" konnte nicht gelesen werden."));
        return;
    }
    const QStringList before = splitLines(TextCodec::decodeFileText(file.readAll()));
    file.close();

    // Without a combo box the list editor carries its text in its hint, so
    // the combo only changes once the file is written.
    TMemoDlg editor(this);
    editor.setComboBox(nullptr);
    editor.setMemoHint(before.join(QLatin1Char('\n')));
    if (dialogs.execDialog(&editor) != QDialog::Accepted)
        return;
    const QStringList items = splitLines(editor.memoHint());
    // The file may hold lines a mask file cannot carry; they stay out.
    const QString refusal = PickLists::refusal(items);
    if (!refusal.isEmpty()) {
        dialogs.messageDlg(this, refusal, mtError, mbOK);
        return;
    }

    QString text;
    for (const QString &item : items)
        text += item + QStringLiteral("\r\n");
    QSaveFile out(path);
    const QByteArray bytes = TextCodec::encodeWindows1252(text);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.commit()) {
        failed(tr("Die Datei \"%1\" konnte nicht geschrieben werden."));
        return;
    }
    combo->setItems(items);
    markModified();
}

// ---- page controls ----

QWidget *TObjInsp::buildNewPageBox()
{
    auto *box = new QGroupBox(tr("Neue Seite"));
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(6, 4, 6, 4);
    auto *caption = new QLineEdit;
    caption->setObjectName(QStringLiteral("NewPageCaption"));
    caption->setPlaceholderText(QStringLiteral("Seitentitel"));
    caption->setMinimumWidth(60);
    auto *add = new QPushButton(tr("Neue Seite"));
    add->setObjectName(QStringLiteral("NewPageBTN"));
    add->setAutoDefault(false);
    layout->addWidget(caption, 1);
    layout->addWidget(add);
    connect(add, &QPushButton::clicked, this, &TObjInsp::NewPageBTNClick);
    connect(caption, &QLineEdit::returnPressed, this, &TObjInsp::NewPageBTNClick);
    return box;
}

void TObjInsp::NewPageBTNClick()
{
    auto *pager = qobject_cast<TAdvOfficePager *>(m_current.data());
    if (!pager || !m_mask)
        return;
    auto *captionEdit = findChild<QLineEdit *>(QStringLiteral("NewPageCaption"));
    QString caption = captionEdit->text();
    if (caption.isEmpty())
        caption = tr("Neue Seite");
    TAdvOfficePage *page = m_mask->document()->NewOPage(caption);
    pager->addPage(page);
    // The engine takes the new page in like every control it watches.
    if (m_mask->FormDesigner2()->Active())
        m_mask->FormDesigner2()->Update();
    captionEdit->clear();
    pager->setActivePage(page);
    markModified();
    UpdateComponents();
}
