// The page of the action button: what the button does when the finished mask
// runs. Which editors show depends on the action kind.
#include "ObjectInspector.h"

#include "Maske.h"
#include "MyBtn.h"
#include "RuleDialog.h"
#include "UserDialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

namespace {

// The action kinds, as Tag stores them.
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

const QStringList &actionItems()
{
    static const QStringList items = {
        QStringLiteral("Datensatz suchen"),      QStringLiteral("Zeichnung starten"),
        QStringLiteral("NC Programm starten"),   QStringLiteral("Datensatz zuweisen"),
        QStringLiteral("Datensatz auflisten"),   QStringLiteral("Zeichnung einfügen"),
        QStringLiteral("Ext. Programm starten"), QStringLiteral("URL öffnen"),
        QStringLiteral("E-Mail senden"),         QStringLiteral("Report starten"),
        QStringLiteral("INI Sektion verarbeiten"), QStringLiteral("Regel definieren")};
    return items;
}

void setRowLabel(QFormLayout *form, QWidget *field, const QString &text)
{
    if (auto *label = qobject_cast<QLabel *>(form->labelForField(field)))
        label->setText(text);
}

} // namespace

void TObjInsp::buildButtonPage()
{
    QFormLayout *f = newPage(QStringLiteral("TMaskBtn"));
    m_btnForm = f;
    m_btnCaption = addLine(f, QStringLiteral("Beschriftung:"), QStringLiteral("BtnCaption"));
    m_btnLayout = addCombo(f, QStringLiteral("Layout:"), QStringLiteral("BtnLayout"),
                           {QStringLiteral("Icon links"), QStringLiteral("Icon rechts"), QStringLiteral("Icon oben"),
                            QStringLiteral("Icon unten")});
    m_btnMargin = addSpin(f, QStringLiteral("Rand:"), QStringLiteral("BtnMargin"), -1, 255);
    m_btnMargin->setSpecialValueText(QStringLiteral("Auto"));
    m_btnAction = addCombo(f, QStringLiteral("Aktion:"), QStringLiteral("BtnAction"), actionItems());

    // The mask (or program) with the button that picks its file.
    m_btnMaskRow = new QWidget;
    auto *row = new QHBoxLayout(m_btnMaskRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    m_btnZuweisMaske = new QLineEdit;
    m_btnZuweisMaske->setObjectName(QStringLiteral("BtnZuweisMaske"));
    m_btnZuweisMaske->setMinimumWidth(60);
    m_btnZuweisMaskeBtn = new QToolButton;
    m_btnZuweisMaskeBtn->setObjectName(QStringLiteral("BtnZuweisMaskeBtn"));
    m_btnZuweisMaskeBtn->setText(QStringLiteral("…"));
    m_btnZuweisMaskeBtn->setToolTip(QStringLiteral("Datei auswählen"));
    row->addWidget(m_btnZuweisMaske, 1);
    row->addWidget(m_btnZuweisMaskeBtn);
    f->addRow(QStringLiteral("Maske:"), m_btnMaskRow);
    connect(m_btnZuweisMaskeBtn, &QToolButton::clicked, this, &TObjInsp::BtnZuweisMaskeBeforeDialog);

    m_btnZuweisFeld = addLine(f, QStringLiteral("Zielfeld:"), QStringLiteral("BtnZuweisFeld"));
    m_btnZuweisFeldEx = addLine(f, QStringLiteral("IndexfeldEx:"), QStringLiteral("BtnZuweisFeldEx"));
    m_btnIndexFeld = addLine(f, QStringLiteral("Indexfeld:"), QStringLiteral("BtnIndexFeld"));
    m_btnProgExt = addLine(f, QStringLiteral("Dateierweiterung:"), QStringLiteral("BtnProgExt"));
    m_btnSectionExt = addLine(f, QStringLiteral("INI Sektion:"), QStringLiteral("BtnSectionExt"));
    m_btnRunAs = addCheck(f, QStringLiteral("als Admin ausführen"), QStringLiteral("BtnRunAs"));
    m_btnZuweisRule = addButton(f, QStringLiteral("Regel definieren"), QStringLiteral("BtnZuweisRule"));
    connect(m_btnZuweisRule, &QPushButton::clicked, this, &TObjInsp::BtnZuweisRuleClick);

    for (QWidget *w : {static_cast<QWidget *>(m_btnCaption), static_cast<QWidget *>(m_btnLayout),
                       static_cast<QWidget *>(m_btnMargin), static_cast<QWidget *>(m_btnAction),
                       static_cast<QWidget *>(m_btnZuweisMaske), static_cast<QWidget *>(m_btnZuweisFeld),
                       static_cast<QWidget *>(m_btnZuweisFeldEx), static_cast<QWidget *>(m_btnIndexFeld),
                       static_cast<QWidget *>(m_btnProgExt), static_cast<QWidget *>(m_btnSectionExt),
                       static_cast<QWidget *>(m_btnRunAs)})
        bind(w, &TObjInsp::BtnCaptionChange);
    updateButtonRows();
}

void TObjInsp::updateButtonRows()
{
    const int kind = m_btnAction->currentIndex();
    const bool assign = kind == baAssign || kind == baList;
    const bool program = kind == baProgram;
    const bool section = kind == baUrl || kind == baMail || kind == baReport || kind == baIniSection;

    m_btnForm->setRowVisible(m_btnMaskRow, assign || program);
    setRowLabel(m_btnForm, m_btnMaskRow, program ? QStringLiteral("Programm auswählen:") : QStringLiteral("Maske:"));
    m_btnForm->setRowVisible(m_btnZuweisFeld, assign);
    m_btnForm->setRowVisible(m_btnZuweisFeldEx, assign);
    m_btnForm->setRowVisible(m_btnIndexFeld, assign);
    m_btnForm->setRowVisible(m_btnProgExt, program);
    m_btnForm->setRowVisible(m_btnSectionExt, program || section);
    setRowLabel(m_btnForm, m_btnSectionExt,
                program ? QStringLiteral("INI Sektion:")
                : kind == baIniSection ? QStringLiteral("Sektion:")
                                       : QStringLiteral("Sektion Erweiterung:"));
    m_btnForm->setRowVisible(m_btnRunAs, program);
    m_btnForm->setRowVisible(m_btnZuweisRule, kind == baList || kind == baRule);
}

void TObjInsp::updateRuleButtonFont()
{
    // Bold tells the user a rule is already defined.
    auto *c = qobject_cast<TMaskBtn *>(m_current.data());
    QFont font = m_btnZuweisRule->font();
    font.setBold(c && !c->RegelAusdruck().isEmpty());
    m_btnZuweisRule->setFont(font);
}

void TObjInsp::fillMaskBtn(QWidget *w)
{
    auto *c = qobject_cast<TMaskBtn *>(w);
    if (!c)
        return;
    m_btnCaption->setText(c->Caption());
    m_btnLayout->setCurrentIndex(c->Layout() >= 0 && c->Layout() < m_btnLayout->count() ? c->Layout() : -1);
    m_btnAction->setCurrentIndex(c->Tag() >= 0 && c->Tag() < m_btnAction->count() ? c->Tag() : -1);
    m_btnProgExt->setText(c->ProgExt());
    m_btnZuweisMaske->setText(c->ZuweisMaske());
    m_btnZuweisFeld->setText(c->ZuweisFeld());
    m_btnZuweisFeldEx->setText(c->ZuweisFeldEx());
    m_btnIndexFeld->setText(c->IndexFeld());
    m_btnSectionExt->setText(c->SectionExt());
    m_btnMargin->setValue(c->Margin());
    m_btnRunAs->setChecked(c->RunAs());
    updateButtonRows();
    updateRuleButtonFont();
}

void TObjInsp::BtnCaptionChange()
{
    updateButtonRows();
    auto *c = current<TMaskBtn>();
    if (!c)
        return;
    c->setCaption(m_btnCaption->text());
    if (m_btnLayout->currentIndex() >= 0)
        c->setLayout(TButtonLayout(m_btnLayout->currentIndex()));
    c->setTag(m_btnAction->currentIndex());
    c->setProgExt(m_btnProgExt->text());
    c->setZuweisMaske(m_btnZuweisMaske->text());
    c->setZuweisFeld(m_btnZuweisFeld->text());
    c->setZuweisFeldEx(m_btnZuweisFeldEx->text());
    c->setIndexFeld(m_btnIndexFeld->text());
    c->setSectionExt(m_btnSectionExt->text());
    c->setMargin(m_btnMargin->value());
    c->setRunAs(m_btnRunAs->isChecked());
    markModified();
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
    updateRuleButtonFont();
}

void TObjInsp::BtnZuweisMaskeBeforeDialog()
{
    auto *c = qobject_cast<TMaskBtn *>(m_current.data());
    const int kind = m_btnAction->currentIndex();
    if (!c || (kind != baAssign && kind != baList && kind != baProgram))
        return;
    TFileDialog dialog;
    dialog.kind = TFileDialog::Open;
    if (kind == baProgram) {
        dialog.title = QStringLiteral("Programm auswählen");
        dialog.filter = QStringLiteral("Programm (*.exe)|*.exe");
    } else {
        dialog.title = QStringLiteral("Datenbankmaske auswählen");
        dialog.filter = QStringLiteral("Datenbankmaske (*.dbm)|*.dbm");
    }
    dialog.fileName = m_btnZuweisMaske->text();
    if (!dialog.execute(this))
        return;
    // Through the editor, so the change handler writes it like typing would.
    m_btnZuweisMaske->setText(dialog.fileName);
}
