// The pages of page controls and their pages, radio groups, panels, tree
// lists and string grids.
#include "ObjectInspector.h"

#include "Containers.h"
#include "FormDesigner.h"
#include "Grids.h"
#include "Maske.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace {

int comboIndex(const QComboBox *combo, int value)
{
    return value >= 0 && value < combo->count() ? value : -1;
}

const QStringList &panelBevelItems()
{
    static const QStringList items = {QStringLiteral("bvNone"), QStringLiteral("bvLowered"),
                                      QStringLiteral("bvRaised"), QStringLiteral("bvSpace")};
    return items;
}

} // namespace

void TObjInsp::buildContainerPages()
{
    QFormLayout *f = newPage(QStringLiteral("TAdvOfficePager"));
    m_officePagerAlign = addCombo(f, QStringLiteral("Ausrichtung:"), QStringLiteral("OfficePagerAlign"), alignItems());
    m_officePagerTabPos = new QGroupBox(QStringLiteral("Reiterposition"));
    m_officePagerTabPos->setObjectName(QStringLiteral("RGOfficePagerTabP"));
    auto *tabGrid = new QGridLayout(m_officePagerTabPos);
    tabGrid->setContentsMargins(6, 4, 6, 4);
    auto *tabGroup = new QButtonGroup(m_officePagerTabPos);
    const QStringList positions = {QStringLiteral("Oben"), QStringLiteral("Unten"), QStringLiteral("Links"),
                                   QStringLiteral("Rechts")};
    for (int i = 0; i < positions.size(); ++i) {
        auto *radio = new QRadioButton(positions.at(i));
        radio->setObjectName(QStringLiteral("RGOfficePagerTabP_%1").arg(i));
        tabGroup->addButton(radio, i);
        tabGrid->addWidget(radio, i / 2, i % 2);
        m_tabPosButtons << radio;
        bind(radio, &TObjInsp::OfficePagerAlignClick);
    }
    f->addRow(m_officePagerTabPos);
    m_officePagerStyle = addCombo(f, QStringLiteral("Stil:"), QStringLiteral("CBOfficePagerStyle"),
                                  {QStringLiteral("Office2003 Blau"), QStringLiteral("Office2003 Silber"),
                                   QStringLiteral("Office2003 Olive"), QStringLiteral("Office2003 Klassik"),
                                   QStringLiteral("Office2007 Luna"), QStringLiteral("Office2007 Obsidian"),
                                   QStringLiteral("WindowsXP"), QStringLiteral("Whidbey"), QStringLiteral("Custom"),
                                   QStringLiteral("Office2007 Silber")});
    bind(m_officePagerAlign, &TObjInsp::OfficePagerAlignClick);
    bind(m_officePagerStyle, &TObjInsp::OfficePagerAlignClick);
    auto *newPageBox = new QGroupBox(QStringLiteral("Neue Seite"));
    auto *newPageLayout = new QHBoxLayout(newPageBox);
    newPageLayout->setContentsMargins(6, 4, 6, 4);
    m_newPageCaption = new QLineEdit;
    m_newPageCaption->setObjectName(QStringLiteral("NewPageCaption"));
    m_newPageCaption->setPlaceholderText(QStringLiteral("Seitentitel"));
    m_newPageCaption->setMinimumWidth(60);
    auto *add = new QPushButton(QStringLiteral("Neue Seite"));
    add->setObjectName(QStringLiteral("NewPageBTN"));
    add->setAutoDefault(false);
    newPageLayout->addWidget(m_newPageCaption, 1);
    newPageLayout->addWidget(add);
    f->addRow(newPageBox);
    connect(add, &QPushButton::clicked, this, &TObjInsp::NewPageBTNClick);
    connect(m_newPageCaption, &QLineEdit::returnPressed, this, &TObjInsp::NewPageBTNClick);

    f = newPage(QStringLiteral("TAdvOfficePage"));
    m_editOfficePage = addLine(f, QStringLiteral("Seitentitel:"), QStringLiteral("EditOfficePage"));
    bind(m_editOfficePage, &TObjInsp::EditOfficePageChange);

    f = newPage(QStringLiteral("TDBRadioGroup"));
    m_editRGDB = addLine(f, QStringLiteral("Feldname:"), QStringLiteral("EditRGDB"));
    m_editRG = addLine(f, QStringLiteral("Titel:"), QStringLiteral("EditRG"));
    m_memoRG = new QPlainTextEdit;
    m_memoRG->setObjectName(QStringLiteral("MemoRG"));
    m_memoRG->setTabChangesFocus(true);
    m_memoRG->setFixedHeight(90);
    f->addRow(QStringLiteral("Werte:"), m_memoRG);
    m_spinEditRB = addSpin(f, QStringLiteral("Spalten:"), QStringLiteral("SpinEditRB"), 1, 16);
    m_editSizeRG = addSpin(f, QStringLiteral("Feldlänge:"), QStringLiteral("EditSizeRG"), 0, 9999);
    m_editRGPflicht = addCheck(f, QStringLiteral("Pflichtfeld"), QStringLiteral("EditRGPflicht"));
    m_editRBKeyword = addLine(f, QStringLiteral("Feldtitel im Browser:"), QStringLiteral("EditRBKeyword"));
    for (QWidget *w : {static_cast<QWidget *>(m_editRGDB), static_cast<QWidget *>(m_editRG),
                       static_cast<QWidget *>(m_memoRG), static_cast<QWidget *>(m_spinEditRB),
                       static_cast<QWidget *>(m_editSizeRG), static_cast<QWidget *>(m_editRGPflicht),
                       static_cast<QWidget *>(m_editRBKeyword)})
        bind(w, &TObjInsp::EditRGChange);

    f = newPage(QStringLiteral("TPanel"));
    m_panelAlign = addCombo(f, QStringLiteral("Ausrichtung:"), QStringLiteral("PanelAlign"), alignItems());
    m_panelCaption = addLine(f, QStringLiteral("Beschriftung:"), QStringLiteral("PanelCaption"));
    m_panelBevelInner = addCombo(f, QStringLiteral("Innenkante:"), QStringLiteral("Panel_Bevelinner"),
                                 panelBevelItems());
    m_panelBevelOuter = addCombo(f, QStringLiteral("Außenkante:"), QStringLiteral("Panel_Bevelouter"),
                                 panelBevelItems());
    m_panelBevelWidth = addSpin(f, QStringLiteral("Rahmenbreite:"), QStringLiteral("Panel_SpinEdit"), 1, 20);
    m_panelBorderStyle = addCombo(f, QStringLiteral("Rahmen:"), QStringLiteral("Panel_BorderStyle"),
                                  {QStringLiteral("kein"), QStringLiteral("Simpel")});
    m_panelCtl3D = addCheck(f, QStringLiteral("3D Style"), QStringLiteral("Panel_Ctrl"));
    for (QWidget *w : {static_cast<QWidget *>(m_panelAlign), static_cast<QWidget *>(m_panelCaption),
                       static_cast<QWidget *>(m_panelBevelInner), static_cast<QWidget *>(m_panelBevelOuter),
                       static_cast<QWidget *>(m_panelBevelWidth), static_cast<QWidget *>(m_panelBorderStyle),
                       static_cast<QWidget *>(m_panelCtl3D)})
        bind(w, &TObjInsp::PanelAlignClick);

    f = newPage(QStringLiteral("TcxDBTreeList"));
    m_treeListAlign = addCombo(f, QStringLiteral("Ausrichtung:"), QStringLiteral("TreeListAlign"), alignItems());
    m_treeListDB = addLine(f, QStringLiteral("Statusfeld:"), QStringLiteral("EditTreelistDB"));
    m_treeListFields = addLine(f, QStringLiteral("Felder:"), QStringLiteral("EditTreelistFields"));
    m_treeListKeyField = addLine(f, QStringLiteral("Schlüsselfeld:"), QStringLiteral("EditTreelistKeyField"));
    m_treeListKField = addLine(f, QStringLiteral("Masterfeld:"), QStringLiteral("EditTreelistKField"));
    m_treeListParentField = addLine(f, QStringLiteral("Elternfeld:"), QStringLiteral("EditTreelistParentField"));
    m_treeListIndexField = addLine(f, QStringLiteral("Indexfeld:"), QStringLiteral("EditTreelistIndexField"));
    m_treeListDrag = addCheck(f, QStringLiteral("Drag und Drop"), QStringLiteral("DBTreeList_Drag"));
    for (QWidget *w : {static_cast<QWidget *>(m_treeListAlign), static_cast<QWidget *>(m_treeListDB),
                       static_cast<QWidget *>(m_treeListFields), static_cast<QWidget *>(m_treeListKeyField),
                       static_cast<QWidget *>(m_treeListKField), static_cast<QWidget *>(m_treeListParentField),
                       static_cast<QWidget *>(m_treeListIndexField), static_cast<QWidget *>(m_treeListDrag)})
        bind(w, &TObjInsp::TreeListAlignClick);

    f = newPage(QStringLiteral("TStringGrid"));
    m_stringGridAlign = addCombo(f, QStringLiteral("Ausrichtung:"), QStringLiteral("StringGridAlign"), alignItems());
    bind(m_stringGridAlign, &TObjInsp::StringGridAlignClick);
}

// ---- filling ----

void TObjInsp::fillOfficePager(QWidget *w)
{
    auto *c = qobject_cast<TAdvOfficePager *>(w);
    if (!c)
        return;
    m_officePagerAlign->setCurrentIndex(comboIndex(m_officePagerAlign, c->Align()));
    if (c->TabPosition() >= 0 && c->TabPosition() < m_tabPosButtons.size())
        m_tabPosButtons.at(c->TabPosition())->setChecked(true);
    m_officePagerStyle->setCurrentIndex(m_mask ? comboIndex(m_officePagerStyle, m_mask->document()->OfficePagerStyle()) : -1);
}

void TObjInsp::fillOfficePage(QWidget *w)
{
    if (auto *c = qobject_cast<TAdvOfficePage *>(w))
        m_editOfficePage->setText(c->Caption());
}

void TObjInsp::fillRadioGroup(QWidget *w)
{
    auto *c = qobject_cast<TDBRadioGroup *>(w);
    if (!c)
        return;
    m_editRGDB->setText(c->DataField());
    m_editRG->setText(c->Caption());
    m_memoRG->setPlainText(c->Items().join(QLatin1Char('\n')));
    m_spinEditRB->setValue(c->Columns());
    m_editRBKeyword->setText(c->HelpKeyword());
    m_editSizeRG->setValue(c->Tag());
    m_editRGPflicht->setChecked(c->TabStop());
}

void TObjInsp::fillPanel(QWidget *w)
{
    auto *c = qobject_cast<TPanel *>(w);
    if (!c)
        return;
    m_panelAlign->setCurrentIndex(comboIndex(m_panelAlign, c->Align()));
    m_panelBevelInner->setCurrentIndex(comboIndex(m_panelBevelInner, c->BevelInner()));
    m_panelBevelOuter->setCurrentIndex(comboIndex(m_panelBevelOuter, c->BevelOuter()));
    m_panelCaption->setText(c->Caption());
    m_panelBorderStyle->setCurrentIndex(comboIndex(m_panelBorderStyle, c->BorderStyle()));
    m_panelCtl3D->setChecked(c->Ctl3D());
    m_panelBevelWidth->setValue(c->BevelWidth());
}

void TObjInsp::fillTreeList(QWidget *w)
{
    auto *c = qobject_cast<TcxDBTreeList *>(w);
    if (!c)
        return;
    m_treeListAlign->setCurrentIndex(comboIndex(m_treeListAlign, c->Align()));
    m_treeListDB->setText(c->StateIndexField());
    m_treeListFields->setText(c->Hint());
    m_treeListKeyField->setText(c->KeyField());
    m_treeListKField->setText(c->HelpKeyword());
    m_treeListParentField->setText(c->ParentField());
    m_treeListIndexField->setText(c->ImageIndexField());
    m_treeListDrag->setChecked(c->DragDrop());
}

void TObjInsp::fillStringGrid(QWidget *w)
{
    if (auto *c = qobject_cast<TStringGrid *>(w))
        m_stringGridAlign->setCurrentIndex(comboIndex(m_stringGridAlign, c->Align()));
}

// ---- writing ----

void TObjInsp::OfficePagerAlignClick()
{
    auto *c = current<TAdvOfficePager>();
    if (!c)
        return;
    if (m_officePagerAlign->currentIndex() >= 0)
        c->setAlign(TAlign(m_officePagerAlign->currentIndex()));
    for (int i = 0; i < m_tabPosButtons.size(); ++i)
        if (m_tabPosButtons.at(i)->isChecked())
            c->setTabPosition(TTabPosition(i));
    // The style belongs to the mask: all its page controls share it.
    if (m_mask && m_officePagerStyle->currentIndex() >= 0)
        m_mask->document()->setOfficePagerStyle(m_officePagerStyle->currentIndex());
    markModified();
}

void TObjInsp::NewPageBTNClick()
{
    auto *pager = qobject_cast<TAdvOfficePager *>(m_current.data());
    if (!pager || !m_mask)
        return;
    QString caption = m_newPageCaption->text();
    if (caption.isEmpty())
        caption = QStringLiteral("Neue Seite");
    TAdvOfficePage *page = m_mask->document()->NewOPage(caption);
    pager->addPage(page);
    // The engine takes the new page in like every control it watches.
    if (m_mask->FormDesigner2()->Active())
        m_mask->FormDesigner2()->Update();
    m_newPageCaption->clear();
    pager->setActivePage(page);
    markModified();
    UpdateComponents();
}

void TObjInsp::EditOfficePageChange()
{
    auto *c = current<TAdvOfficePage>();
    if (!c)
        return;
    c->setCaption(m_editOfficePage->text());
    markModified();
}

void TObjInsp::EditRGChange()
{
    auto *c = current<TDBRadioGroup>();
    if (!c)
        return;
    c->setDataField(m_editRGDB->text());
    c->setCaption(m_editRG->text());
    const QString values = m_memoRG->toPlainText();
    c->setItems(values.isEmpty() ? QStringList() : values.split(QLatin1Char('\n')));
    c->setColumns(m_spinEditRB->value());
    c->setHelpKeyword(m_editRBKeyword->text());
    c->setTag(m_editSizeRG->value());
    c->setTabStop(m_editRGPflicht->isChecked());
    markModified();
}

void TObjInsp::PanelAlignClick()
{
    auto *c = current<TPanel>();
    if (!c)
        return;
    if (m_panelAlign->currentIndex() >= 0)
        c->setAlign(TAlign(m_panelAlign->currentIndex()));
    if (m_panelBevelInner->currentIndex() >= 0)
        c->setBevelInner(TPanelBevel(m_panelBevelInner->currentIndex()));
    if (m_panelBevelOuter->currentIndex() >= 0)
        c->setBevelOuter(TPanelBevel(m_panelBevelOuter->currentIndex()));
    c->setCaption(m_panelCaption->text());
    if (m_panelBorderStyle->currentIndex() >= 0)
        c->setBorderStyle(TBorderStyle(m_panelBorderStyle->currentIndex()));
    c->setCtl3D(m_panelCtl3D->isChecked());
    c->setBevelWidth(m_panelBevelWidth->value());
    markModified();
}

void TObjInsp::TreeListAlignClick()
{
    auto *c = current<TcxDBTreeList>();
    if (!c)
        return;
    if (m_treeListAlign->currentIndex() >= 0)
        c->setAlign(TAlign(m_treeListAlign->currentIndex()));
    c->setStateIndexField(m_treeListDB->text());
    c->setHint(m_treeListFields->text());
    c->setKeyField(m_treeListKeyField->text());
    c->setHelpKeyword(m_treeListKField->text());
    c->setParentField(m_treeListParentField->text());
    c->setImageIndexField(m_treeListIndexField->text());
    c->setDragDrop(m_treeListDrag->isChecked());
    markModified();
}

void TObjInsp::StringGridAlignClick()
{
    auto *c = current<TStringGrid>();
    if (!c || m_stringGridAlign->currentIndex() < 0)
        return;
    c->setAlign(TAlign(m_stringGridAlign->currentIndex()));
    markModified();
}
