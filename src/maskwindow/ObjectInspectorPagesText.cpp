// The pages of the text controls: labels, field labels, edits, combo boxes
// (with their pick-list files), memos and check boxes.
#include "ObjectInspector.h"

#include "AppPaths.h"
#include "CheckDialog.h"
#include "Edits.h"
#include "Label.h"
#include "Maske.h"
#include "MemoDialog.h"
#include "MyBtn.h"
#include "TextCodec.h"
#include "UserDialogs.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSaveFile>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const QStringList &labelAlignmentItems()
{
    static const QStringList items = {QStringLiteral("Links angeordnet"), QStringLiteral("Rechts angeordnet"),
                                      QStringLiteral("Zentriert")};
    return items;
}

// A pick-list file holds one item per line; a line break after the last
// item opens no empty one.
QStringList splitLines(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
}

// Combos that mirror an enumeration show nothing for a value they do not list.
int comboIndex(const QComboBox *combo, int value)
{
    return value >= 0 && value < combo->count() ? value : -1;
}

} // namespace

void TObjInsp::buildLabelPages()
{
    QFormLayout *f = newPage(QStringLiteral("TLabel"));
    m_labelCaption = addLine(f, QStringLiteral("Beschriftung:"), QStringLiteral("LabelCaption"));
    m_labelLayout = addCombo(f, QStringLiteral("Layout:"), QStringLiteral("LabelLayout"),
                             {QStringLiteral("Oben"), QStringLiteral("Zentrum"), QStringLiteral("Unten")});
    m_labelAlignment = addCombo(f, QStringLiteral("Ausrichtung:"), QStringLiteral("LabelAlignment"),
                                labelAlignmentItems());
    // Auto size and word wrap exclude each other on a label, hence one choice.
    auto *sizing = new QWidget;
    auto *sizingLayout = new QVBoxLayout(sizing);
    sizingLayout->setContentsMargins(0, 0, 0, 0);
    sizingLayout->setSpacing(2);
    m_labelAutoSize = new QRadioButton(QStringLiteral("Auto Größe"));
    m_labelAutoSize->setObjectName(QStringLiteral("LabelAutoSize"));
    m_labelWordWrap = new QRadioButton(QStringLiteral("Zeilenumbruch"));
    m_labelWordWrap->setObjectName(QStringLiteral("LabelWordWrap"));
    auto *group = new QButtonGroup(sizing);
    group->addButton(m_labelAutoSize);
    group->addButton(m_labelWordWrap);
    sizingLayout->addWidget(m_labelAutoSize);
    sizingLayout->addWidget(m_labelWordWrap);
    f->addRow(QStringLiteral("Größe:"), sizing);
    for (QWidget *w : {static_cast<QWidget *>(m_labelCaption), static_cast<QWidget *>(m_labelLayout),
                       static_cast<QWidget *>(m_labelAlignment), static_cast<QWidget *>(m_labelWordWrap)})
        bind(w, &TObjInsp::LabelCaptionChange);

    f = newPage(QStringLiteral("TDBLabel"));
    m_dbLabelField = addLine(f, QStringLiteral("Feldname:"), QStringLiteral("DBLabelField"));
    m_dbLabelTable = addLine(f, QStringLiteral("Tabelle:"), QStringLiteral("DBLabelTable"));
    m_dbLabelTyp = addCombo(f, QStringLiteral("Feldtyp:"), QStringLiteral("DBLabelTyp"), fieldTypeItems());
    m_dbLabelSize = addSpin(f, QStringLiteral("Feldlänge:"), QStringLiteral("DBLabelSize"), 0, 9999);
    m_dbLabelAlignment = addCombo(f, QStringLiteral("Ausrichtung:"), QStringLiteral("DBLabelAlignment"),
                                  labelAlignmentItems());
    m_dbLabelWordWrap = addCheck(f, QStringLiteral("Zeilenumbruch"), QStringLiteral("DBLabelWordWrap"));
    m_dbLabelBrowserEdit = addCheck(f, QStringLiteral("Im Browser editierbar"), QStringLiteral("DBLabel_BrowserEdit"));
    m_dbLabelCaption = addLine(f, QStringLiteral("Feldtitel im Browser:"), QStringLiteral("DBLabelCaption"));
    for (QWidget *w : {static_cast<QWidget *>(m_dbLabelField), static_cast<QWidget *>(m_dbLabelTable),
                       static_cast<QWidget *>(m_dbLabelTyp), static_cast<QWidget *>(m_dbLabelSize),
                       static_cast<QWidget *>(m_dbLabelAlignment), static_cast<QWidget *>(m_dbLabelWordWrap),
                       static_cast<QWidget *>(m_dbLabelBrowserEdit), static_cast<QWidget *>(m_dbLabelCaption)})
        bind(w, &TObjInsp::DBLabelFieldChange);
}

void TObjInsp::buildEditPages()
{
    QFormLayout *f = newPage(QStringLiteral("TcxTextEdit"));
    m_editFieldName = addLine(f, QStringLiteral("Feldname:"), QStringLiteral("EditFieldName"));
    m_editFieldTyp = addCombo(f, QStringLiteral("Feldtyp:"), QStringLiteral("EditFieldTyp"), fieldTypeItems());
    m_editFieldSize = addSpin(f, QStringLiteral("Feldlänge:"), QStringLiteral("EditFieldSize"), 0, 32767);
    m_editPflichtfeld = addCheck(f, QStringLiteral("Pflichtfeld"), QStringLiteral("EditPflichtfeld"));
    m_editReadonly = addCheck(f, QStringLiteral("Nur lesen"), QStringLiteral("EditReadonly"));
    m_editCharcase = addCombo(f, QStringLiteral("Schreibweise:"), QStringLiteral("EditCharcase"), charCaseItems());
    m_editMask = addLine(f, QStringLiteral("Formatierung:"), QStringLiteral("EditMask"));
    m_editFieldCaption = addLine(f, QStringLiteral("Feldtitel im Browser:"), QStringLiteral("EditFieldCaption"));
    for (QWidget *w : {static_cast<QWidget *>(m_editFieldName), static_cast<QWidget *>(m_editFieldTyp),
                       static_cast<QWidget *>(m_editFieldSize), static_cast<QWidget *>(m_editPflichtfeld),
                       static_cast<QWidget *>(m_editReadonly), static_cast<QWidget *>(m_editCharcase),
                       static_cast<QWidget *>(m_editMask), static_cast<QWidget *>(m_editFieldCaption)})
        bind(w, &TObjInsp::EditFieldNameChange);

    f = newPage(QStringLiteral("TcxComboBox"));
    m_comboFieldName = addLine(f, QStringLiteral("Feldname:"), QStringLiteral("ComboFieldName"));
    m_comboFieldTyp = addCombo(f, QStringLiteral("Feldtyp:"), QStringLiteral("ComboFieldTyp"), fieldTypeItems());
    m_comboFieldSize = addSpin(f, QStringLiteral("Feldlänge:"), QStringLiteral("ComboFieldSize"), 0, 32767);
    m_comboPflichtfeld = addCheck(f, QStringLiteral("Pflichtfeld"), QStringLiteral("ComboPflichtfeld"));
    m_comboReadOnly = addCheck(f, QStringLiteral("Nur lesen"), QStringLiteral("ComboReadOnly"));
    m_comboCharCase = addCombo(f, QStringLiteral("Schreibweise:"), QStringLiteral("ComboCharCase"), charCaseItems());
    // The pick-list name, with the button that creates and edits its file.
    auto *pullDownRow = new QWidget;
    auto *pullDownLayout = new QHBoxLayout(pullDownRow);
    pullDownLayout->setContentsMargins(0, 0, 0, 0);
    pullDownLayout->setSpacing(2);
    m_comboPullDownFile = new QLineEdit;
    m_comboPullDownFile->setObjectName(QStringLiteral("ComboPullDownFile"));
    m_comboPullDownFile->setMinimumWidth(60);
    m_comboPullDownFileButton = new QToolButton;
    m_comboPullDownFileButton->setObjectName(QStringLiteral("ComboPullDownFileButton"));
    m_comboPullDownFileButton->setText(QStringLiteral("…"));
    m_comboPullDownFileButton->setToolTip(QStringLiteral("Pulldowndatei bearbeiten"));
    pullDownLayout->addWidget(m_comboPullDownFile, 1);
    pullDownLayout->addWidget(m_comboPullDownFileButton);
    f->addRow(QStringLiteral("Pulldowndatei:"), pullDownRow);
    connect(m_comboPullDownFileButton, &QToolButton::clicked, this, &TObjInsp::ComboPullDownFileButtonClick);
    m_comboFieldCaption = addLine(f, QStringLiteral("Feldtitel im Browser:"), QStringLiteral("ComboFieldCaption"));
    for (QWidget *w : {static_cast<QWidget *>(m_comboFieldName), static_cast<QWidget *>(m_comboFieldTyp),
                       static_cast<QWidget *>(m_comboFieldSize), static_cast<QWidget *>(m_comboPflichtfeld),
                       static_cast<QWidget *>(m_comboReadOnly), static_cast<QWidget *>(m_comboCharCase),
                       static_cast<QWidget *>(m_comboPullDownFile), static_cast<QWidget *>(m_comboFieldCaption)})
        bind(w, &TObjInsp::ComboFieldNameChange);

    f = newPage(QStringLiteral("TcxMemo"));
    m_memoFieldname = addLine(f, QStringLiteral("Feldname:"), QStringLiteral("MemoFieldname"));
    m_memoPflichtfeld = addCheck(f, QStringLiteral("Pflichtfeld"), QStringLiteral("MemoPflichtfeld"));
    m_memoScrollbars = addCombo(f, QStringLiteral("Bildlaufleisten:"), QStringLiteral("MemoScrollbars"),
                                {QStringLiteral("Keine"), QStringLiteral("Horizontal"), QStringLiteral("Vertikal"),
                                 QStringLiteral("Beides")});
    m_memoPlaintext = addCheck(f, QStringLiteral("Nur Text (ohne Formatierung)"), QStringLiteral("MemoPlaintext"));
    m_memoFieldCaption = addLine(f, QStringLiteral("Feldtitel im Browser:"), QStringLiteral("MemoFieldCaption"));
    for (QWidget *w : {static_cast<QWidget *>(m_memoFieldname), static_cast<QWidget *>(m_memoPflichtfeld),
                       static_cast<QWidget *>(m_memoScrollbars), static_cast<QWidget *>(m_memoPlaintext),
                       static_cast<QWidget *>(m_memoFieldCaption)})
        bind(w, &TObjInsp::MemoFieldnameChange);

    f = newPage(QStringLiteral("TcxDBCheckBox"));
    m_checkFieldName = addLine(f, QStringLiteral("Feldname:"), QStringLiteral("CheckFieldName"));
    m_checkCaption = addLine(f, QStringLiteral("Beschreibung:"), QStringLiteral("CheckCaption"));
    m_checkAlign = addCombo(f, QStringLiteral("Ausrichtung:"), QStringLiteral("CheckAlign"),
                            {QStringLiteral("Links"), QStringLiteral("Rechts")});
    m_checkFieldCaption = addLine(f, QStringLiteral("Feldtitel im Browser:"), QStringLiteral("CheckFieldCaption"));
    QPushButton *colors = addButton(f, QStringLiteral("Farbfunktionen"), QStringLiteral("CheckColorBtn"));
    connect(colors, &QPushButton::clicked, this, &TObjInsp::CheckColorBtnClick);
    for (QWidget *w : {static_cast<QWidget *>(m_checkFieldName), static_cast<QWidget *>(m_checkCaption),
                       static_cast<QWidget *>(m_checkAlign), static_cast<QWidget *>(m_checkFieldCaption)})
        bind(w, &TObjInsp::CheckFieldNameChange);
}

// ---- filling: the inverse of the change handlers ----

void TObjInsp::fillLabel(QWidget *w)
{
    auto *c = qobject_cast<TLabel *>(w);
    if (!c)
        return;
    m_labelCaption->setText(c->Caption());
    m_labelLayout->setCurrentIndex(comboIndex(m_labelLayout, c->Layout()));
    m_labelAlignment->setCurrentIndex(comboIndex(m_labelAlignment, c->Alignment()));
    (c->WordWrap() ? m_labelWordWrap : m_labelAutoSize)->setChecked(true);
}

void TObjInsp::fillDBLabel(QWidget *w)
{
    auto *c = qobject_cast<TDBLabel *>(w);
    if (!c)
        return;
    m_dbLabelField->setText(c->DataField());
    m_dbLabelTable->setText(c->DataSource());
    m_dbLabelSize->setValue(c->Hint().trimmed().toInt());
    m_dbLabelTyp->setCurrentIndex(comboIndex(m_dbLabelTyp, c->Tag()));
    m_dbLabelAlignment->setCurrentIndex(comboIndex(m_dbLabelAlignment, c->Alignment()));
    m_dbLabelWordWrap->setChecked(c->WordWrap());
    m_dbLabelBrowserEdit->setChecked(c->BrowserEdit());
    m_dbLabelCaption->setText(c->HelpKeyword());
    m_dbLabelSize->setEnabled(m_dbLabelTyp->currentIndex() == 0);
}

void TObjInsp::fillTextEdit(QWidget *w)
{
    auto *c = qobject_cast<TcxTextEdit *>(w);
    if (!c)
        return;
    m_editFieldName->setText(c->Text());
    m_editFieldSize->setValue(c->MaxLength());
    m_editFieldTyp->setCurrentIndex(comboIndex(m_editFieldTyp, c->Tag()));
    m_editPflichtfeld->setChecked(c->TabStop());
    m_editReadonly->setChecked(c->ReadOnly());
    m_editCharcase->setCurrentIndex(comboIndex(m_editCharcase, c->CharCase()));
    m_editMask->setText(c->Hint());
    m_editFieldCaption->setText(c->HelpKeyword());
    m_editFieldSize->setEnabled(m_editFieldTyp->currentIndex() == 0);
}

void TObjInsp::fillComboBox(QWidget *w)
{
    auto *c = qobject_cast<TcxComboBox *>(w);
    if (!c)
        return;
    m_comboFieldName->setText(c->Text());
    m_comboFieldSize->setValue(c->MaxLength());
    m_comboFieldTyp->setCurrentIndex(comboIndex(m_comboFieldTyp, c->Tag()));
    m_comboPflichtfeld->setChecked(c->TabStop());
    m_comboReadOnly->setChecked(c->ReadOnly());
    m_comboCharCase->setCurrentIndex(comboIndex(m_comboCharCase, c->CharCase()));
    m_comboPullDownFile->setText(c->Hint());
    m_comboFieldCaption->setText(c->HelpKeyword());
    m_comboFieldSize->setEnabled(m_comboFieldTyp->currentIndex() == 0);
}

void TObjInsp::fillMemo(QWidget *w)
{
    auto *c = qobject_cast<TcxMemo *>(w);
    if (!c)
        return;
    m_memoFieldname->setText(c->Text());
    m_memoPflichtfeld->setChecked(c->TabStop());
    m_memoScrollbars->setCurrentIndex(comboIndex(m_memoScrollbars, c->ScrollBars()));
    m_memoFieldCaption->setText(c->HelpKeyword());
    m_memoPlaintext->setChecked(c->Tag() == 1);
}

void TObjInsp::fillCheckBox(QWidget *w)
{
    auto *c = qobject_cast<TcxDBCheckBox *>(w);
    if (!c)
        return;
    m_checkFieldName->setText(c->DataField());
    m_checkCaption->setText(c->Caption());
    m_checkAlign->setCurrentIndex(c->Alignment() == taRightJustify ? 1 : 0);
    m_checkFieldCaption->setText(c->HelpKeyword());
}

// ---- writing: every editor of the page into the control ----

void TObjInsp::LabelCaptionChange()
{
    auto *c = current<TLabel>();
    if (!c)
        return;
    c->setCaption(m_labelCaption->text());
    if (m_labelLayout->currentIndex() >= 0)
        c->setLayout(TTextLayout(m_labelLayout->currentIndex()));
    if (m_labelAlignment->currentIndex() >= 0)
        c->setAlignment(TAlignment(m_labelAlignment->currentIndex()));
    const bool wrap = m_labelWordWrap->isChecked();
    c->setWordWrap(wrap);
    c->setAutoSize(!wrap);
    markModified();
}

void TObjInsp::DBLabelFieldChange()
{
    // The length only means something for text fields.
    m_dbLabelSize->setEnabled(m_dbLabelTyp->currentIndex() == 0);
    auto *c = current<TDBLabel>();
    if (!c)
        return;
    const QString field = m_dbLabelField->text().trimmed();
    c->setDataField(field);
    c->setCaption(field);
    c->setDataSource(m_dbLabelTable->text());
    c->setHint(QString::number(m_dbLabelSize->value()));
    c->setTag(m_dbLabelTyp->currentIndex());
    if (m_dbLabelAlignment->currentIndex() >= 0)
        c->setAlignment(TAlignment(m_dbLabelAlignment->currentIndex()));
    c->setWordWrap(m_dbLabelWordWrap->isChecked());
    c->setAutoSize(!c->WordWrap());
    c->setBrowserEdit(m_dbLabelBrowserEdit->isChecked());
    c->setHelpKeyword(m_dbLabelCaption->text());
    markModified();
}

void TObjInsp::EditFieldNameChange()
{
    m_editFieldSize->setEnabled(m_editFieldTyp->currentIndex() == 0);
    auto *c = current<TcxTextEdit>();
    if (!c)
        return;
    c->setText(m_editFieldName->text().trimmed());
    c->setMaxLength(m_editFieldSize->value());
    c->setTag(m_editFieldTyp->currentIndex());
    c->setTabStop(m_editPflichtfeld->isChecked());
    c->setReadOnly(m_editReadonly->isChecked());
    if (m_editCharcase->currentIndex() >= 0)
        c->setCharCase(TEditCharCase(m_editCharcase->currentIndex()));
    c->setHint(m_editMask->text());
    c->setHelpKeyword(m_editFieldCaption->text());
    markModified();
}

void TObjInsp::ComboFieldNameChange()
{
    m_comboFieldSize->setEnabled(m_comboFieldTyp->currentIndex() == 0);
    auto *c = current<TcxComboBox>();
    if (!c)
        return;
    c->setText(m_comboFieldName->text().trimmed());
    c->setMaxLength(m_comboFieldSize->value());
    c->setTag(m_comboFieldTyp->currentIndex());
    c->setTabStop(m_comboPflichtfeld->isChecked());
    c->setReadOnly(m_comboReadOnly->isChecked());
    if (m_comboCharCase->currentIndex() >= 0)
        c->setCharCase(TEditCharCase(m_comboCharCase->currentIndex()));
    c->setHint(m_comboPullDownFile->text());
    c->setHelpKeyword(m_comboFieldCaption->text());
    markModified();
}

void TObjInsp::MemoFieldnameChange()
{
    auto *c = current<TcxMemo>();
    if (!c)
        return;
    c->setText(m_memoFieldname->text().trimmed());
    c->setTabStop(m_memoPflichtfeld->isChecked());
    if (m_memoScrollbars->currentIndex() >= 0)
        c->setScrollBars(TScrollStyle(m_memoScrollbars->currentIndex()));
    c->setHelpKeyword(m_memoFieldCaption->text());
    c->setTag(m_memoPlaintext->isChecked() ? 1 : 0);
    markModified();
}

void TObjInsp::CheckFieldNameChange()
{
    auto *c = current<TcxDBCheckBox>();
    if (!c)
        return;
    c->setDataField(m_checkFieldName->text().trimmed());
    c->setCaption(m_checkCaption->text());
    c->setAlignment(m_checkAlign->currentIndex() == 1 ? taRightJustify : taLeftJustify);
    c->setHelpKeyword(m_checkFieldCaption->text());
    markModified();
}

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
    const QString path = pickListFile(m_comboPullDownFile->text());
    if (!combo || m_browsing || path.isEmpty())
        return;
    UserDialogs &dialogs = UserDialogs::instance();
    const auto failed = [&](const QString &text) {
        dialogs.messageDlg(this, text.arg(QDir::toNativeSeparators(path)), mtError, mbOK);
    };

    if (!QFileInfo::exists(path)) {
        if (dialogs.messageDlg(this, QStringLiteral("Dateiname nicht vorhanden. Soll eine neue angelegt werden?"),
                               mtConfirmation, mbYes | mbNo)
            != mrYes)
            return;
        QFile created(path);
        if (!QDir().mkpath(QFileInfo(path).absolutePath()) || !created.open(QIODevice::WriteOnly)) {
            failed(QStringLiteral("Die Datei \"%1\" konnte nicht angelegt werden."));
            return;
        }
    }
    if (dialogs.messageDlg(this, QStringLiteral("Wollen Sie die Datei editieren?"), mtConfirmation, mbYes | mbNo)
        != mrYes)
        return;

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        failed(QStringLiteral("Die Datei \"%1\" konnte nicht gelesen werden."));
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

    QString text;
    for (const QString &item : items)
        text += item + QStringLiteral("\r\n");
    QSaveFile out(path);
    const QByteArray bytes = TextCodec::encodeWindows1252(text);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.commit()) {
        failed(QStringLiteral("Die Datei \"%1\" konnte nicht geschrieben werden."));
        return;
    }
    combo->setItems(items);
    markModified();
}
