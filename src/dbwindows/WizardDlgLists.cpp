// The wizard's lists: fields moved between the two lists of page 3, and the
// auto-fill and default entries of pages 4 and 5.
#include "WizardDlg.h"

#include "FieldListBox.h"
#include "TableDescription.h"

#include <QAction>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>

void TWizard::moveNamed(TFieldListBox *from, TFieldListBox *to, const QStringList &names)
{
    for (const QString &name : names) {
        const QList<QListWidgetItem *> found = from->findItems(name, Qt::MatchExactly);
        if (found.isEmpty())
            continue;
        delete found.first();
        to->addItem(name);
    }
    // Fields going back stand where the mask has them.
    if (to == SrcList) {
        QStringList order;
        for (int i = 0; i < SrcList->count(); ++i)
            order << SrcList->item(i)->text();
        std::stable_sort(order.begin(), order.end(), [this](const QString &a, const QString &b) {
            const auto rank = [this](const QString &f) {
                const int i = int(m_fields.indexOf(f));
                return i < 0 ? int(m_fields.size()) : i;
            };
            return rank(a) < rank(b);
        });
        SrcList->clear();
        SrcList->addItems(order);
    }
    updateFelder();
}

void TWizard::moveFields(TFieldListBox *from, TFieldListBox *to, bool all)
{
    QStringList names;
    for (int i = 0; i < from->count(); ++i)
        if (all || from->item(i)->isSelected())
            names << from->item(i)->text();
    moveNamed(from, to, names);
}

void TWizard::IncludeBtnClick()
{
    moveFields(SrcList, DstList, false);
}

void TWizard::IncAllBtnClick()
{
    moveFields(SrcList, DstList, true);
}

void TWizard::ExcludeBtnClick()
{
    moveFields(DstList, SrcList, false);
}

void TWizard::ExAllBtnClick()
{
    moveFields(DstList, SrcList, true);
}

void TWizard::updateFelder()
{
    QStringList fields;
    for (int i = 0; i < DstList->count(); ++i)
        fields << DstList->item(i)->text();
    Felder->setText(TableDescription::joinFields(fields));
}

int TWizard::entryRow(const QListWidget *list, const QString &field)
{
    for (int i = 0; i < list->count(); ++i)
        if (TableDescription::entryField(list->item(i)->text()).compare(field, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

// A field chosen: show its value when it has an entry, else start empty.
void TWizard::fieldChange(QListWidget *list, QComboBox *field, QComboBox *value)
{
    const int row = entryRow(list, field->currentText().trimmed());
    const QSignalBlocker block(value);
    if (row >= 0) {
        list->setCurrentRow(row);
        value->setEditText(TableDescription::entryValue(list->item(row)->text()));
    } else {
        list->clearSelection();
        value->setCurrentIndex(-1);
        value->setEditText(QString());
    }
}

// A value chosen or typed for the chosen field: one entry per field.
void TWizard::valueChange(QListWidget *list, QComboBox *field, QComboBox *value)
{
    const QString name = field->currentText().trimmed();
    if (name.isEmpty() || value->currentText().isEmpty())
        return;
    const QString text = TableDescription::entry(name, value->currentText());
    const int row = entryRow(list, name);
    if (row >= 0) {
        list->item(row)->setText(text);
    } else {
        list->addItem(text);
        // Shown as chosen, without handing the entry back to the combos being typed in.
        const QSignalBlocker block(list);
        list->setCurrentRow(list->count() - 1);
    }
}

void TWizard::entryClick(QListWidget *list, QComboBox *field, QComboBox *value)
{
    QListWidgetItem *item = list->currentItem();
    if (!item)
        return;
    const QSignalBlocker blockField(field);
    const QSignalBlocker blockValue(value);
    field->setCurrentIndex(field->findText(TableDescription::entryField(item->text()), Qt::MatchFixedString));
    value->setEditText(TableDescription::entryValue(item->text()));
}

void TWizard::AutoFillFeldChange()
{
    fieldChange(AutoFill, AutoFillFeld, AutofillWert);
}

void TWizard::AutofillWertChange()
{
    valueChange(AutoFill, AutoFillFeld, AutofillWert);
}

void TWizard::AutoFillClick()
{
    entryClick(AutoFill, AutoFillFeld, AutofillWert);
}

void TWizard::DefaultFeldChange()
{
    fieldChange(Default, DefaultFeld, Defaultwert);
}

void TWizard::DefaultwertChange()
{
    valueChange(Default, DefaultFeld, Defaultwert);
}

void TWizard::DefaultClick()
{
    entryClick(Default, DefaultFeld, Defaultwert);
}

void TWizard::EintragLoeschenClick(QListWidget *list)
{
    delete list->currentItem();
}

void TWizard::wireValueList(QListWidget *list)
{
    auto *menu = new QMenu(list);
    menu->setObjectName(QStringLiteral("PopupMenu"));
    QAction *remove = menu->addAction(tr("Eintrag löschen"));
    remove->setObjectName(QStringLiteral("EintragLoeschen"));
    remove->setShortcut(QKeySequence::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    list->addAction(remove);
    connect(remove, &QAction::triggered, this, [this, list] { EintragLoeschenClick(list); });
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QWidget::customContextMenuRequested, this, [list, menu, remove](const QPoint &pos) {
        if (QListWidgetItem *item = list->itemAt(pos))
            list->setCurrentItem(item);
        remove->setEnabled(list->currentItem() != nullptr);
        menu->popup(list->viewport()->mapToGlobal(pos));
    });
}
