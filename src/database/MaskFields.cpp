#include "MaskFields.h"

#include "Containers.h"
#include "Edits.h"
#include "MyBtn.h"

#include <QSet>

namespace MaskFields {

QString TypeCode(int tag)
{
    static const char *const codes[] = {"A", "I", "D", "T", "$", "L", "M", "+"};
    if (tag < 0 || tag >= int(sizeof(codes) / sizeof(codes[0])))
        return QString();
    return QLatin1String(codes[tag]);
}

namespace {
QString sizeText(int size)
{
    return size > 0 ? QString::number(size) : QString();
}

// The row of one control, or no row (FieldName empty) for other kinds.
TFieldRow rowOf(const QObject *object)
{
    TFieldRow row;
    if (const auto *lookup = qobject_cast<const TcxDBPopupEdit *>(object)) {
        row.FieldName = lookup->DataField();
        row.TypeCode = TypeCode(lookup->Tag());
        row.Size = sizeText(lookup->MaxLength());
        row.Description = lookup->HelpKeyword();
    } else if (const auto *edit = qobject_cast<const TcxTextEdit *>(object)) {
        row.FieldName = edit->Text();
        row.TypeCode = TypeCode(edit->Tag());
        row.Size = sizeText(edit->MaxLength());
        row.Description = edit->HelpKeyword();
    } else if (const auto *combo = qobject_cast<const TcxComboBox *>(object)) {
        row.FieldName = combo->Text();
        row.TypeCode = TypeCode(combo->Tag());
        row.Size = sizeText(combo->MaxLength());
        row.Description = combo->HelpKeyword();
    } else if (const auto *memo = qobject_cast<const TcxMemo *>(object)) {
        // A memo's Tag holds its plain-text flag; its field is always a memo.
        row.FieldName = memo->Text().trimmed();
        row.TypeCode = QStringLiteral("M");
        row.Description = memo->HelpKeyword();
    } else if (const auto *check = qobject_cast<const TcxDBCheckBox *>(object)) {
        row.FieldName = check->DataField();
        row.TypeCode = QStringLiteral("L");
        row.Description = check->HelpKeyword();
    } else if (const auto *label = qobject_cast<const TDBLabel *>(object)) {
        row.FieldName = label->DataField();
        row.TypeCode = TypeCode(label->Tag());
        row.Size = label->Hint().trimmed();
        row.Description = label->HelpKeyword();
    } else if (const auto *group = qobject_cast<const TDBRadioGroup *>(object)) {
        // The group stores the chosen item's value, a text of its length (Tag).
        row.FieldName = group->DataField();
        row.TypeCode = QStringLiteral("A");
        row.Size = sizeText(group->Tag());
        row.Description = group->HelpKeyword();
    }
    row.FieldName = row.FieldName.trimmed();
    // Only text fields have a size; a row without a known code keeps it for
    // the user's choice in the window.
    if (!row.TypeCode.isEmpty() && row.TypeCode != QLatin1String("A"))
        row.Size.clear();
    return row;
}

void collect(const QObject *parent, const QString &indexField, QSet<QString> &seen, QVector<TFieldRow> &rows)
{
    // Graphic controls (data labels) lie beneath the windowed ones in the
    // child list; the fields come first, so a field shown by both gets its
    // row from the field.
    QList<const QObject *> children;
    for (const bool graphic : {false, true})
        for (const QObject *child : parent->children())
            if (ControlLayout::isGraphic(qobject_cast<const QWidget *>(child)) == graphic)
                children << child;
    for (const QObject *child : std::as_const(children)) {
        TFieldRow row = rowOf(child);
        if (!row.FieldName.isEmpty() && !seen.contains(row.FieldName.toLower())) {
            seen.insert(row.FieldName.toLower());
            if (!indexField.trimmed().isEmpty()
                && row.FieldName.compare(indexField.trimmed(), Qt::CaseInsensitive) == 0)
                row.Key = TTableGenerator::indexMark();
            rows << row;
        }
        collect(child, indexField, seen, rows);
    }
}
} // namespace

QVector<TFieldRow> FieldRows(const QWidget *surface, const QString &indexField)
{
    QVector<TFieldRow> rows;
    QSet<QString> seen;
    if (surface)
        collect(surface, indexField, seen, rows);
    return rows;
}

} // namespace MaskFields
