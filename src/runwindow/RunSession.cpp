#include "RunSession.h"

#include "Components.h"
#include "Containers.h"
#include "Edits.h"
#include "FieldRules.h"
#include "Grids.h"
#include "MaskDocument.h"
#include "MyBtn.h"
#include "TextCodec.h"
#include "UserDialogs.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QCloseEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace {
const char *const kSessionName = "RunSession";

// The field a data control shows, as the design names it; empty for other controls.
QString fieldOf(const QObject *object)
{
    if (const auto *lookup = qobject_cast<const TcxDBPopupEdit *>(object))
        return lookup->DataField().trimmed();
    if (const auto *edit = qobject_cast<const TcxTextEdit *>(object))
        return edit->Text().trimmed();
    if (const auto *combo = qobject_cast<const TcxComboBox *>(object))
        return combo->Text().trimmed();
    if (const auto *memo = qobject_cast<const TcxMemo *>(object))
        return memo->Text().trimmed();
    if (const auto *check = qobject_cast<const TcxDBCheckBox *>(object))
        return check->DataField().trimmed();
    if (const auto *label = qobject_cast<const TDBLabel *>(object))
        return label->DataField().trimmed();
    if (const auto *group = qobject_cast<const TDBRadioGroup *>(object))
        return group->DataField().trimmed();
    return QString();
}

// The grid columns' fields ("Feld=Breite").
QStringList gridFields(const TDBGrid *grid)
{
    QStringList fields;
    for (const QString &column : grid->Columns())
        fields << column.section(QLatin1Char('='), 0, 0).trimmed();
    return fields;
}
} // namespace

TRunSession::TRunSession(TMaskDocument *document, QWidget *dialogParent)
    : QObject(document)
    , m_document(document)
    , m_dialogParent(dialogParent)
{
    setObjectName(QLatin1String(kSessionName));
    // Looking the session up among the document's children would walk every
    // control; the designer asks for it on each selection.
    document->setProperty(kSessionName, QVariant::fromValue<QObject *>(this));
    m_table.Macros.AskForNumber = [this](const QString &file) {
        return UserDialogs::instance().messageDlg(m_dialogParent,
                                                  tr("Soll eine neue Nummer aus „%1“ vergeben werden?").arg(file),
                                                  mtConfirmation, mbYes | mbNo)
            == mrYes;
    };
    createNavigator();
    // Closing the mask window asks about the record first; Cancel keeps it open.
    for (QWidget *w = document ? document->parentWidget() : nullptr; w; w = w->parentWidget()) {
        if (qobject_cast<QMdiSubWindow *>(w) || w->isWindow()) {
            w->installEventFilter(this);
            break;
        }
    }
}

bool TRunSession::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && m_bound && !askToSave()) {
        event->ignore();
        return true;
    }
    // F4 and Alt+Down open a lookup's list, as the drop-down button does.
    if (event->type() == QEvent::KeyPress && m_bound) {
        if (auto *lookup = qobject_cast<TcxDBPopupEdit *>(watched)) {
            const auto *key = static_cast<QKeyEvent *>(event);
            if (key->key() == Qt::Key_F4 || (key->key() == Qt::Key_Down && key->modifiers() & Qt::AltModifier)) {
                showLookup(lookup);
                return true;
            }
        }
    }
    return QObject::eventFilter(watched, event);
}

TRunSession::~TRunSession()
{
    if (m_bound)
        restoreDesign();
    delete m_navigator;
    // The document may be half destroyed already (it deletes its children):
    // its QObject part is all this touches.
    if (QObject *owner = parent())
        owner->setProperty(kSessionName, QVariant());
}

TRunSession *TRunSession::of(const TMaskDocument *document)
{
    return document ? qobject_cast<TRunSession *>(document->property(kSessionName).value<QObject *>()) : nullptr;
}

void TRunSession::snapshotDesign()
{
    m_design.clear();
    for (QObject *component : Components::components(m_document)) {
        const TControl *control = TControl::from(component);
        if (!control)
            continue;
        TDesignValue value;
        value.component = component;
        for (const TPropInfo &info : control->classInfo().properties)
            value.properties.append({info.name, info.read(component)});
        if (auto *grid = qobject_cast<TDBGrid *>(component))
            value.rows = grid->rowCount();
        m_design.append(value);
    }
}

void TRunSession::restoreDesign()
{
    m_filling = true;
    // The run-time settings first, so that the designed texts go in unmasked.
    for (const auto &[edit, mask] : std::as_const(m_masked))
        if (edit)
            edit->setInputMask(QString());
    for (const auto &[button, palette] : std::as_const(m_ruleButtons))
        if (button)
            button->setPalette(palette);
    for (TcxDBTreeList *tree : std::as_const(m_trees))
        if (tree)
            tree->clear();
    for (const TDesignValue &value : std::as_const(m_design)) {
        QObject *component = value.component;
        const TControl *control = TControl::from(component);
        if (!control)
            continue;
        for (const auto &[name, designed] : value.properties) {
            const TPropInfo *info = control->classInfo().property(name);
            if (info && info->read(component) != designed)
                info->write(component, designed);
        }
        if (auto *grid = qobject_cast<TDBGrid *>(component)) {
            grid->clearContents();
            grid->setRowCount(value.rows);
        }
    }
    m_filling = false;
}

void TRunSession::withDesign(const std::function<void()> &fn)
{
    if (!m_bound) {
        fn();
        return;
    }
    // What is typed but not saved stays on the screen afterwards.
    TRecord typed = m_record;
    readControls(typed, nullptr);
    restoreDesign();
    fn();
    fillTree();
    const bool modified = m_modified;
    const TRecord read = m_record;
    m_record = typed;
    showRecord();
    m_record = read;
    m_modified = modified;
}

bool TRunSession::start(const TConnectionSettings &settings)
{
    snapshotDesign();
    m_bound = true;
    const QVector<TRunField> fields = TMaskTable::FieldsOf(m_document);
    if (!m_table.open(settings, m_document->Tabelle(), m_document->TableSettings(), fields, &m_reason)) {
        updateActions();
        Q_EMIT stateChanged();
        return false;
    }
    m_reason.clear();
    bindControls();
    resetGrid();
    moveTo(m_table.count() > 0 ? 0 : -1);
    if (m_table.count() == 0)
        showEmpty();
    updateActions();
    Q_EMIT stateChanged();
    return true;
}

bool TRunSession::stop()
{
    if (!askToSave())
        return false;
    restoreDesign();
    m_bound = false;
    return true;
}

void TRunSession::bindControls()
{
    m_bindings.clear();
    m_trees.clear();
    m_ruleButtons.clear();
    m_masked.clear();
    for (QObject *component : Components::components(m_document)) {
        auto *widget = qobject_cast<QWidget *>(component);
        if (auto *grid = qobject_cast<TDBGrid *>(component)) {
            // The main grid lists the records; the others belong to the application.
            if (grid->objectName().compare(QLatin1String("DBGrid1"), Qt::CaseInsensitive) == 0) {
                m_grid = grid;
                grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
                grid->setSelectionBehavior(QAbstractItemView::SelectRows);
                grid->setSelectionMode(QAbstractItemView::SingleSelection);
                connect(grid->verticalScrollBar(), &QScrollBar::valueChanged, this, &TRunSession::fillGrid,
                        Qt::UniqueConnection);
                connect(grid, &QTableWidget::cellClicked, this, [this](int row, int) { gridClicked(row); });
            }
            continue;
        }
        if (auto *tree = qobject_cast<TcxDBTreeList *>(component)) {
            m_trees.append(tree);
            connect(tree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *item) {
                if (!moveTo(m_table.rowOf(item->data(0, Qt::UserRole).toLongLong())))
                    selectTreeItem();
            });
            continue;
        }
        if (auto *button = qobject_cast<TMaskBtn *>(component)) {
            if (!button->RegelAusdruck().trimmed().isEmpty())
                m_ruleButtons.append({button, button->palette()});
            continue;
        }
        const QString field = fieldOf(component);
        if (!widget || field.isEmpty())
            continue;
        m_bindings.append({widget, field});
        if (auto *lookup = qobject_cast<TcxDBPopupEdit *>(widget)) {
            connect(lookup, &QLineEdit::textEdited, this, &TRunSession::controlEdited, Qt::UniqueConnection);
            connect(lookup, &TcxDBPopupEdit::popupRequested, this, [this, lookup] { showLookup(lookup); });
            lookup->installEventFilter(this);
        } else if (auto *edit = qobject_cast<TcxTextEdit *>(widget)) {
            const QString mask = edit->Hint().trimmed();
            if (!mask.isEmpty() && mask != QLatin1String("TcxTextEdit") && !FieldRules::inputMask(mask).isEmpty())
                m_masked.append({edit, mask});
            connect(edit, &QLineEdit::textEdited, this, &TRunSession::controlEdited, Qt::UniqueConnection);
        } else if (auto *combo = qobject_cast<TcxComboBox *>(widget)) {
            // The pick list: one value a line in the file named by the combo's Hint.
            const QString file = combo->Hint().trimmed();
            if (!file.isEmpty() && file != QLatin1String("TcxComboBox")) {
                QFile in(QDir::isAbsolutePath(file) ? file : QDir(m_table.Macros.CounterFolder).filePath(file));
                if (in.open(QIODevice::ReadOnly)) {
                    QStringList items = TextCodec::decodeWindows1252(in.readAll()).split(QRegularExpression(QStringLiteral("\r?\n")));
                    items.removeAll(QString());
                    combo->setItems(items);
                }
            }
            connect(combo, &QComboBox::currentTextChanged, this, &TRunSession::controlEdited, Qt::UniqueConnection);
        } else if (auto *memo = qobject_cast<TcxMemo *>(widget)) {
            connect(memo, &QPlainTextEdit::textChanged, this, &TRunSession::controlEdited, Qt::UniqueConnection);
        } else if (auto *check = qobject_cast<TcxDBCheckBox *>(widget)) {
            connect(check, &QCheckBox::toggled, this, &TRunSession::controlEdited, Qt::UniqueConnection);
        } else if (auto *group = qobject_cast<TDBRadioGroup *>(widget)) {
            for (QRadioButton *button : group->buttons())
                connect(button, &QRadioButton::toggled, this, &TRunSession::controlEdited, Qt::UniqueConnection);
        }
    }
}

void TRunSession::controlEdited()
{
    if (m_filling || !m_table.isOpen())
        return;
    if (!m_modified) {
        m_modified = true;
        updateActions();
        Q_EMIT stateChanged();
    }
}

void TRunSession::applyEditMasks()
{
    for (const auto &[edit, mask] : std::as_const(m_masked))
        if (edit && edit->inputMask().isEmpty())
            edit->setInputMask(FieldRules::inputMask(mask));
}

void TRunSession::showRecord()
{
    m_filling = true;
    applyEditMasks();
    for (const TBinding &b : std::as_const(m_bindings)) {
        QWidget *w = b.control;
        if (!w)
            continue;
        const QString text = m_table.text(m_record, b.field);
        const QVariant value = m_record.Values.value(m_table.field(b.field) ? m_table.field(b.field)->Column : QString());
        if (auto *edit = qobject_cast<TcxTextEdit *>(w))
            edit->setText(text);
        else if (auto *combo = qobject_cast<TcxComboBox *>(w))
            combo->setText(text);
        else if (auto *memo = qobject_cast<TcxMemo *>(w))
            memo->setText(text);
        else if (auto *label = qobject_cast<TDBLabel *>(w))
            label->setCaption(text);
        else if (auto *check = qobject_cast<TcxDBCheckBox *>(w)) {
            const bool on = value.typeId() == QMetaType::Bool || text == QLatin1String("Ja") || text == QLatin1String("Nein")
                ? (value.typeId() == QMetaType::Bool ? value.toBool() : text == QLatin1String("Ja"))
                : text == check->ValueChecked();
            check->setChecked(on && !value.isNull());
        } else if (auto *group = qobject_cast<TDBRadioGroup *>(w)) {
            const QStringList values = group->Values().isEmpty() ? group->Items() : group->Values();
            group->setItemIndex(int(values.indexOf(text)));
        }
    }
    m_filling = false;
    m_modified = false;
    applyRules();
    selectTreeItem();
    if (m_grid && m_row >= 0 && m_row < m_grid->rowCount()) {
        m_grid->selectRow(m_row);
        m_grid->scrollToItem(m_grid->item(m_row, 0));
        fillGrid();
    } else if (m_grid)
        m_grid->clearSelection();
}

void TRunSession::showEmpty()
{
    m_record = TRecord();
    m_row = -1;
    m_inserting = false;
    showRecord();
}

bool TRunSession::readControls(TRecord &record, QWidget **failed)
{
    for (const TBinding &b : std::as_const(m_bindings)) {
        QWidget *w = b.control;
        if (!w || qobject_cast<TDBLabel *>(w))
            continue;
        QString text;
        if (auto *edit = qobject_cast<TcxTextEdit *>(w)) {
            text = edit->text();
            for (const auto &[masked, mask] : std::as_const(m_masked))
                if (masked == edit)
                    text = FieldRules::maskedValue(mask, text);
        }
        else if (auto *combo = qobject_cast<TcxComboBox *>(w))
            text = combo->Text();
        else if (auto *memo = qobject_cast<TcxMemo *>(w))
            text = memo->Text();
        else if (auto *check = qobject_cast<TcxDBCheckBox *>(w)) {
            const TRunField *f = m_table.field(b.field);
            if (f && f->Family == TValueFamily::Boolean)
                text = check->isChecked() ? QStringLiteral("Ja") : QStringLiteral("Nein");
            else
                text = check->isChecked() ? check->ValueChecked() : check->ValueUnchecked();
        } else if (auto *group = qobject_cast<TDBRadioGroup *>(w)) {
            const QStringList values = group->Values().isEmpty() ? group->Items() : group->Values();
            text = values.value(group->ItemIndex());
        }
        QString error;
        if (!m_table.setText(record, b.field, text, &error)) {
            if (failed) {
                *failed = w;
                message(error);
            }
            return false;
        }
    }
    return true;
}

void TRunSession::message(const QString &text)
{
    UserDialogs::instance().messageDlg(m_dialogParent, text, mtError, mbOK);
}

bool TRunSession::askToSave()
{
    if (!m_table.isOpen() || !isEditing())
        return true;
    if (!m_modified && m_inserting) {
        // A new record nobody typed into is simply dropped.
        Cancel();
        return true;
    }
    switch (UserDialogs::instance().messageDlg(
        m_dialogParent, tr("Der Datensatz wurde geändert.\r\rSollen die Änderungen gespeichert werden?"),
        mtConfirmation, mbYes | mbNo | mbCancel)) {
    case mrYes:
        return Post();
    case mrNo:
        Cancel();
        return true;
    default:
        return false;
    }
}

bool TRunSession::moveTo(int row)
{
    if (!m_table.isOpen() || m_table.count() == 0)
        return false;
    row = qBound(0, row, m_table.count() - 1);
    if (row == m_row && !isEditing())
        return true;
    if (!askToSave())
        return false;
    TRecord record;
    QString error;
    if (!m_table.fetch(row, record, &error)) {
        // Deleted by someone else meanwhile: the list is read again.
        m_table.refresh();
        resetGrid();
        if (m_table.count() == 0 || !m_table.fetch(qMin(row, m_table.count() - 1), record, &error)) {
            showEmpty();
            updateActions();
            Q_EMIT stateChanged();
            return false;
        }
        row = m_table.rowOf(record.Id);
    }
    m_record = record;
    m_row = row;
    m_inserting = false;
    showRecord();
    updateActions();
    Q_EMIT stateChanged();
    return true;
}

bool TRunSession::Insert()
{
    if (!m_table.isOpen() || !askToSave())
        return false;
    TRecord record;
    QString error;
    if (!m_table.newRecord(record, &error)) {
        message(error);
        return false;
    }
    m_record = record;
    m_inserting = true;
    showRecord();
    m_inserting = true;
    updateActions();
    Q_EMIT stateChanged();
    focusField(m_document->TableSettings().Fokus);
    return true;
}

void TRunSession::focusField(const QString &field)
{
    for (const TBinding &b : std::as_const(m_bindings)) {
        if (b.control && b.field.compare(field.trimmed(), Qt::CaseInsensitive) == 0) {
            b.control->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

bool TRunSession::Post()
{
    if (!m_table.isOpen() || !isEditing())
        return true;
    TRecord changed = m_record;
    QWidget *failed = nullptr;
    if (!readControls(changed, &failed)) {
        if (failed)
            failed->setFocus(Qt::OtherFocusReason);
        return false;
    }
    QString error;
    const TMaskTable::TSaveResult result =
        m_inserting ? m_table.insert(changed, &error) : m_table.update(m_record, changed, &error);
    if (result == TMaskTable::TSaveResult::Failed) {
        message(error);
        // The required field that is missing gets the focus.
        for (const TRunField &f : m_table.fields())
            if (error == TMaskTable::requiredText(f.Description))
                focusField(f.Name);
        return false;
    }
    if (result == TMaskTable::TSaveResult::Conflict) {
        if (UserDialogs::instance().messageDlg(
                m_dialogParent,
                tr("%1\r\rSoll der Datensatz neu geladen werden? Ihre Änderungen gehen dabei verloren.").arg(error),
                mtWarning, mbYes | mbNo)
            == mrYes) {
            m_modified = false;
            m_inserting = false;
            m_table.refresh();
            resetGrid();
            const int row = m_table.rowOf(m_record.Id);
            m_row = -1;
            if (m_table.count() == 0)
                showEmpty();
            else
                moveTo(qMax(0, row));
        }
        return false;
    }
    m_record = changed;
    m_inserting = false;
    m_modified = false;
    m_row = m_table.rowOf(changed.Id);
    resetGrid();
    showRecord();
    updateActions();
    Q_EMIT stateChanged();
    return true;
}

bool TRunSession::Delete()
{
    if (!m_table.isOpen() || m_row < 0 || m_inserting)
        return false;
    if (UserDialogs::instance().messageDlg(m_dialogParent, tr("Soll der Datensatz gelöscht werden?"), mtConfirmation,
                                           mbYes | mbNo)
        != mrYes)
        return false;
    QString error;
    if (!m_table.remove(m_record.Id, &error)) {
        message(error);
        return false;
    }
    const int row = m_row;
    m_modified = false;
    m_row = -1;
    resetGrid();
    if (m_table.count() > 0)
        moveTo(qMin(row, m_table.count() - 1));
    else
        showEmpty();
    updateActions();
    Q_EMIT stateChanged();
    return true;
}

void TRunSession::Cancel()
{
    if (!m_table.isOpen())
        return;
    m_modified = false;
    if (m_inserting) {
        m_inserting = false;
        const int row = m_row;
        m_row = -1;
        if (row >= 0)
            moveTo(row);
        else if (m_table.count() > 0)
            moveTo(0);
        else
            showEmpty();
    } else {
        showRecord();
    }
    updateActions();
    Q_EMIT stateChanged();
}

bool TRunSession::Find(const QString &text)
{
    QString error;
    const int row = m_table.find(text, &error);
    if (!error.isEmpty()) {
        message(error);
        return false;
    }
    if (row < 0) {
        UserDialogs::instance().messageDlg(m_dialogParent, tr("Kein Datensatz gefunden."), mtInformation, mbOK);
        return false;
    }
    return moveTo(row);
}

void TRunSession::FindDialog()
{
    if (!m_table.isOpen() || m_table.indexColumn().isEmpty())
        return;
    QDialog dialog(m_dialogParent);
    dialog.setObjectName(QStringLiteral("FindDialog"));
    dialog.setWindowTitle(tr("Datensatz suchen"));
    auto *layout = new QFormLayout(&dialog);
    auto *text = new QLineEdit(&dialog);
    text->setObjectName(QStringLiteral("FindText"));
    text->setMinimumWidth(240);
    layout->addRow(tr("Suchen nach „%1“:").arg(m_table.indexColumn()), text);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Abbrechen"));
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addRow(buttons);
    if (UserDialogs::instance().execDialog(&dialog) == QDialog::Accepted && !text->text().isEmpty())
        Find(text->text());
}

QString TRunSession::statusText() const
{
    if (!m_table.isOpen())
        return tr("Keine Daten: %1").arg(m_reason);
    if (m_inserting)
        return tr("Neuer Datensatz (%1 vorhanden)").arg(m_table.count());
    return tr("Datensatz %1 von %2").arg(m_row + 1).arg(m_table.count());
}

void TRunSession::resetGrid()
{
    fillTree();
    if (!m_grid)
        return;
    m_grid->clearContents();
    m_grid->setRowCount(m_table.count());
    m_gridFilled = QBitArray(m_table.count());
    fillGrid();
}

void TRunSession::fillTree()
{
    if (m_trees.isEmpty() || !m_table.isOpen())
        return;
    QVector<TRecord> records;
    if (!m_table.fetchRows(0, m_table.count(), records))
        return;
    for (TcxDBTreeList *tree : std::as_const(m_trees)) {
        if (!tree)
            continue;
        // The shown fields: the tree's field list, else its designed columns.
        QStringList fields = tree->Hint().split(QLatin1Char(','), Qt::SkipEmptyParts);
        for (QString &f : fields)
            f = f.trimmed();
        if (fields.isEmpty())
            for (const QString &column : tree->Columns())
                fields << column.section(QLatin1Char('='), 0, 0).trimmed();
        if (tree->columnCount() < fields.size())
            tree->setColumnCount(int(fields.size()));
        tree->setHeaderLabels(fields);
        tree->clear();
        // A record hangs below the one whose key field holds its parent
        // field's value; one whose parent is not in the table stands at the top.
        const QString keyField = tree->KeyField().trimmed().isEmpty() ? QStringLiteral("QXID") : tree->KeyField();
        QHash<QString, QTreeWidgetItem *> byKey;
        QVector<QPair<QTreeWidgetItem *, QString>> items; // with the parent's key
        for (const TRecord &r : std::as_const(records)) {
            auto *item = new QTreeWidgetItem;
            for (int c = 0; c < fields.size(); ++c)
                item->setText(c, m_table.text(r, fields.at(c)));
            item->setData(0, Qt::UserRole, r.Id);
            byKey.insert(m_table.text(r, keyField), item);
            items.append({item, m_table.text(r, tree->ParentField())});
        }
        for (const auto &[item, parentKey] : std::as_const(items)) {
            QTreeWidgetItem *parent = parentKey.isEmpty() ? nullptr : byKey.value(parentKey);
            // A record that is its own ancestor would hang the tree: it goes to the top.
            for (QTreeWidgetItem *p = parent; p; p = p->parent())
                if (p == item)
                    parent = nullptr;
            if (parent)
                parent->addChild(item);
            else
                tree->addTopLevelItem(item);
        }
        tree->expandAll();
    }
}

void TRunSession::selectTreeItem()
{
    for (TcxDBTreeList *tree : std::as_const(m_trees)) {
        if (!tree)
            continue;
        const QSignalBlocker block(tree);
        QTreeWidgetItem *found = nullptr;
        for (QTreeWidgetItemIterator it(tree); *it && !found; ++it)
            if ((*it)->data(0, Qt::UserRole).toLongLong() == m_record.Id && m_record.Id >= 0)
                found = *it;
        tree->setCurrentItem(found);
        if (!found)
            tree->clearSelection();
    }
}

void TRunSession::showLookup(TcxDBPopupEdit *lookup)
{
    if (!m_table.isOpen() || !lookup || lookup->ReadOnly())
        return;
    QString error;
    const QStringList values = m_table.lookupValues(lookup->EditMask(), lookup->DataField(), &error);
    if (!error.isEmpty()) {
        message(error);
        return;
    }
    // A list below the field; a click or Enter takes the value, Esc leaves it.
    auto *list = new QListWidget(lookup);
    list->setObjectName(QStringLiteral("LookupList"));
    list->setWindowFlags(Qt::Popup);
    list->setAttribute(Qt::WA_DeleteOnClose);
    list->addItems(values);
    const QList<QListWidgetItem *> current = list->findItems(lookup->text(), Qt::MatchExactly);
    list->setCurrentRow(current.isEmpty() ? 0 : list->row(current.first()));
    const auto take = [this, lookup, list](QListWidgetItem *item) {
        if (item && lookup->text() != item->text()) {
            lookup->setText(item->text());
            controlEdited();
        }
        list->close();
    };
    connect(list, &QListWidget::itemClicked, this, take);
    connect(list, &QListWidget::itemActivated, this, take);
    const int rows = qBound(1, int(values.size()), 12);
    list->resize(qMax(lookup->width(), 120), rows * list->sizeHintForRow(0) + 2 * list->frameWidth() + 2);
    list->move(lookup->mapToGlobal(QPoint(0, lookup->height())));
    list->show();
    list->setFocus();
}

void TRunSession::fillGrid()
{
    if (!m_grid || !m_table.isOpen() || m_table.count() == 0)
        return;
    // Only the rows on the screen are read; scrolling reads the next ones.
    int first = m_grid->rowAt(0);
    int last = m_grid->rowAt(m_grid->viewport()->height() - 1);
    if (first < 0)
        first = 0;
    if (last < 0)
        last = qMin(m_table.count() - 1, first + 50);
    while (first <= last && m_gridFilled.testBit(first))
        ++first;
    while (last >= first && m_gridFilled.testBit(last))
        --last;
    if (first > last)
        return;
    QVector<TRecord> records;
    if (!m_table.fetchRows(first, last - first + 1, records))
        return;
    const QStringList fields = gridFields(m_grid);
    for (int i = 0; i < records.size(); ++i) {
        for (int c = 0; c < fields.size() && c < m_grid->columnCount(); ++c)
            m_grid->setItem(first + i, c, new QTableWidgetItem(m_table.text(records.at(i), fields.at(c))));
        m_gridFilled.setBit(first + i);
    }
}

void TRunSession::gridClicked(int row)
{
    if (!moveTo(row) && m_grid && m_row >= 0)
        m_grid->selectRow(m_row);
}

void TRunSession::applyRules()
{
    // A button whose rule holds for the current record takes the rule's colour.
    const bool hasRecord = m_table.isOpen() && (m_row >= 0 || m_inserting);
    for (const auto &[button, designed] : std::as_const(m_ruleButtons)) {
        if (!button)
            continue;
        const auto color = StringToColor(button->RegelFarbe().trimmed());
        if (hasRecord && color
            && FieldRules::ruleMatches(button->RegelAusdruck(), m_table.text(m_record, button->RegelFeld()))) {
            QPalette palette = designed;
            palette.setColor(QPalette::Button, color->toQColor());
            button->setPalette(palette);
        } else
            button->setPalette(designed);
    }
}

QAction *TRunSession::action(const char *name) const
{
    return m_navigator ? m_navigator->findChild<QAction *>(QLatin1String(name)) : nullptr;
}

void TRunSession::createNavigator()
{
    m_navigator = new QToolBar(QStringLiteral("Navigator"));
    m_navigator->setObjectName(QStringLiteral("RunNavigator"));
    m_navigator->setToolButtonStyle(Qt::ToolButtonTextOnly);
    struct Command
    {
        const char *name;
        QString caption;
        QKeySequence key;
        std::function<void()> run;
    };
    const Command commands[] = {
        {"NavFirst", tr("Erster"), QKeySequence(Qt::CTRL | Qt::Key_Home), [this] { First(); }},
        {"NavPrior", tr("Voriger"), QKeySequence(Qt::Key_PageUp), [this] { Prior(); }},
        {"NavNext", tr("Nächster"), QKeySequence(Qt::Key_PageDown), [this] { Next(); }},
        {"NavLast", tr("Letzter"), QKeySequence(Qt::CTRL | Qt::Key_End), [this] { Last(); }},
        {"NavInsert", tr("Neu"), QKeySequence(Qt::Key_Insert), [this] { Insert(); }},
        {"NavPost", tr("Speichern"), QKeySequence(Qt::Key_F2), [this] { Post(); }},
        {"NavDelete", tr("Löschen"), QKeySequence(Qt::CTRL | Qt::Key_Delete), [this] { Delete(); }},
        {"NavCancel", tr("Verwerfen"), QKeySequence(Qt::Key_Escape), [this] { Cancel(); }},
        {"NavFind", tr("Suchen"), QKeySequence(Qt::Key_F3), [this] { FindDialog(); }},
    };
    for (const Command &c : commands) {
        auto *a = new QAction(c.caption, m_navigator);
        a->setObjectName(QLatin1String(c.name));
        a->setShortcut(c.key);
        a->setToolTip(QStringLiteral("%1 (%2)").arg(c.caption, c.key.toString(QKeySequence::NativeText)));
        // The keys work wherever the focus is on the mask.
        a->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(a, &QAction::triggered, this, c.run);
        m_navigator->addAction(a);
        if (m_document)
            m_document->addAction(a);
    }
    updateActions();
}

void TRunSession::updateActions()
{
    const bool open = m_table.isOpen();
    const bool editing = isEditing();
    const bool some = open && m_table.count() > 0;
    const auto set = [this](const char *name, bool on) {
        if (QAction *a = action(name))
            a->setEnabled(on);
    };
    set("NavFirst", some && (m_row > 0 || editing));
    set("NavPrior", some && (m_row > 0 || editing));
    set("NavNext", some && (m_row < m_table.count() - 1 || editing));
    set("NavLast", some && (m_row < m_table.count() - 1 || editing));
    set("NavInsert", open);
    set("NavPost", open && editing);
    set("NavDelete", some && m_row >= 0 && !m_inserting);
    set("NavCancel", open && editing);
    set("NavFind", some && !m_table.indexColumn().isEmpty());
}
