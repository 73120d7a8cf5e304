#include "ListEditorDialogs.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "DirectionsDialog.h"
#include "UserDialogs.h"

namespace {

// Control names are compared without regard to case, so the lists sort that way.
class TNameItem : public QListWidgetItem
{
public:
    using QListWidgetItem::QListWidgetItem;
    bool operator<(const QListWidgetItem &other) const override
    {
        return QString::compare(text(), other.text(), Qt::CaseInsensitive) < 0;
    }
};

bool containsName(const QListWidget *list, const QString &name)
{
    for (int i = 0; i < list->count(); ++i) {
        if (QString::compare(list->item(i)->text(), name, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

void addName(QListWidget *list, const QString &name)
{
    if (!name.isEmpty() && !containsName(list, name))
        list->addItem(new TNameItem(name));
}

QListWidget *sortedList(const QString &name, QWidget *parent)
{
    auto *list = new QListWidget(parent);
    list->setObjectName(name);
    list->setSortingEnabled(true);
    return list;
}

} // namespace

TfrmFDEditor::TfrmFDEditor(QWidget *parent)
    : QDialog(parent)
    , m_choice(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("frmFDEditor"));
    setWindowTitle(QStringLiteral("Edit control lists"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto *choiceBox = new QGroupBox(QStringLiteral("Controls"), this);
    choiceBox->setObjectName(QStringLiteral("rgControls"));
    auto *choiceLayout = new QHBoxLayout(choiceBox);
    const struct
    {
        const char *radio;
        const char *text;
        const char *list;
    } kinds[] = {
        {"rbLocked", "Locked", "lbLocked"},
        {"rbProtected", "Protected", "lbProtected"},
        {"rbTransparent", "Transparent", "lbTransparent"},
    };
    m_stack = new QStackedWidget(this);
    for (int i = 0; i < 3; ++i) {
        auto *radio = new QRadioButton(QString::fromLatin1(kinds[i].text), choiceBox);
        radio->setObjectName(QString::fromLatin1(kinds[i].radio));
        m_choice->addButton(radio, i);
        choiceLayout->addWidget(radio, 1);
        m_lists[i] = sortedList(QString::fromLatin1(kinds[i].list), m_stack);
        m_stack->addWidget(m_lists[i]);
        // The current entry changes before the selection follows it.
        connect(m_lists[i], &QListWidget::itemSelectionChanged, this, &TfrmFDEditor::updateButtons);
    }
    m_choice->button(ltLocked)->setChecked(true);
    connect(m_choice, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked) {
            m_stack->setCurrentIndex(id);
            updateButtons();
        }
    });

    m_add = new QPushButton(QStringLiteral("&Add..."), this);
    m_add->setObjectName(QStringLiteral("btnAdd"));
    m_delete = new QPushButton(QStringLiteral("&Delete"), this);
    m_delete->setObjectName(QStringLiteral("btnDelete"));
    m_clear = new QPushButton(QStringLiteral("&Clear"), this);
    m_clear->setObjectName(QStringLiteral("btnClear"));
    for (QPushButton *button : {m_add, m_delete, m_clear})
        button->setAutoDefault(false);
    connect(m_add, &QPushButton::clicked, this, &TfrmFDEditor::addNames);
    connect(m_delete, &QPushButton::clicked, this, &TfrmFDEditor::deleteSelected);
    connect(m_clear, &QPushButton::clicked, this, &TfrmFDEditor::clearShown);

    auto *editButtons = new QVBoxLayout;
    editButtons->addWidget(m_add);
    editButtons->addWidget(m_delete);
    editButtons->addWidget(m_clear);
    editButtons->addStretch();

    auto *layout = new QGridLayout(this);
    layout->addWidget(choiceBox, 0, 0, 1, 2);
    layout->addWidget(m_stack, 1, 0);
    layout->addLayout(editButtons, 1, 1);
    layout->addWidget(okCancelButtons(this), 2, 0, 1, 2);
    layout->setRowStretch(1, 1);
    m_stack->setMinimumSize(220, 180);

    updateButtons();
}

TfrmFDEditor::~TfrmFDEditor()
{
    // The lists still signal while they are taken down with the dialog.
    for (QListWidget *list : m_lists)
        disconnect(list, nullptr, this, nullptr);
}

void TfrmFDEditor::setLists(const QStringList &locked, const QStringList &protectedNames,
                            const QStringList &transparent)
{
    const QStringList *names[] = {&locked, &protectedNames, &transparent};
    for (int i = 0; i < 3; ++i) {
        m_lists[i]->clear();
        for (const QString &name : *names[i])
            addName(m_lists[i], name);
    }
    updateButtons();
}

QStringList TfrmFDEditor::list(TListType type) const
{
    QStringList names;
    const QListWidget *list = m_lists[type];
    for (int i = 0; i < list->count(); ++i)
        names << list->item(i)->text();
    return names;
}

void TfrmFDEditor::setCurrentList(TListType type)
{
    m_choice->button(type)->setChecked(true);
}

TListType TfrmFDEditor::currentList() const
{
    return TListType(m_choice->checkedId());
}

QListWidget *TfrmFDEditor::shownList() const
{
    return m_lists[currentList()];
}

void TfrmFDEditor::addNames()
{
    QListWidget *list = shownList();
    QStringList offered;
    if (availableNames) {
        for (const QString &name : availableNames()) {
            if (!name.isEmpty() && !containsName(list, name) && !offered.contains(name, Qt::CaseInsensitive))
                offered << name;
        }
    }
    TfrmFDAdd dialog(this);
    dialog.setNames(offered);
    if (UserDialogs::instance().execDialog(&dialog) != QDialog::Accepted)
        return;
    for (const QString &name : dialog.selectedNames())
        addName(list, name);
    updateButtons();
}

void TfrmFDEditor::deleteSelected()
{
    QListWidget *list = shownList();
    const int row = list->currentRow();
    if (row < 0 || !list->item(row)->isSelected())
        return;
    delete list->takeItem(row);
    // Keep a selection so that several entries can be deleted in a row.
    if (list->count() > 0)
        list->setCurrentRow(qMin(row, list->count() - 1));
    updateButtons();
}

void TfrmFDEditor::clearShown()
{
    shownList()->clear();
    updateButtons();
}

void TfrmFDEditor::updateButtons()
{
    const QListWidget *list = shownList();
    const QListWidgetItem *current = list->currentItem();
    m_delete->setEnabled(current && current->isSelected());
    m_clear->setEnabled(list->count() > 0);
}

TfrmFDAdd::TfrmFDAdd(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmFDAdd"));
    setWindowTitle(QStringLiteral("Add controls"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    m_names = sortedList(QStringLiteral("lbNames"), this);
    m_names->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_names->setMinimumSize(200, 200);
    auto *label = new QLabel(QStringLiteral("&Controls:"), this);
    label->setBuddy(m_names);

    auto *selectAll = new QPushButton(QStringLiteral("Select &All"), this);
    selectAll->setObjectName(QStringLiteral("btnSelectAll"));
    selectAll->setAutoDefault(false);
    connect(selectAll, &QPushButton::clicked, m_names, &QListWidget::selectAll);
    // A double click takes just that name.
    connect(m_names, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem *item) {
        m_names->setCurrentItem(item, QItemSelectionModel::ClearAndSelect);
        accept();
    });

    auto *side = new QVBoxLayout;
    side->addWidget(selectAll);
    side->addStretch();

    auto *layout = new QGridLayout(this);
    layout->addWidget(label, 0, 0);
    layout->addWidget(m_names, 1, 0);
    layout->addLayout(side, 1, 1);
    layout->addWidget(okCancelButtons(this), 2, 0, 1, 2);
    layout->setRowStretch(1, 1);
}

void TfrmFDAdd::setNames(const QStringList &names)
{
    m_names->clear();
    for (const QString &name : names)
        addName(m_names, name);
}

QStringList TfrmFDAdd::selectedNames() const
{
    QStringList names;
    for (int i = 0; i < m_names->count(); ++i) {
        if (m_names->item(i)->isSelected())
            names << m_names->item(i)->text();
    }
    return names;
}
