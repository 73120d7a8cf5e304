#pragma once

#include <QString>
#include <QVector>

#include "TableGenerator.h"

class QWidget;

// The rows of the table window derived from a mask: one per data field,
// in the order of the controls on the design surface.
namespace MaskFields {

// The type code for a control's Tag, the index in the object inspector's
// field type list ("Textfeld", "Zahl", "Datum", "Uhrzeit", "Währung",
// "Logisch", "Memo", "AutoInc"); empty for any other value.
QString TypeCode(int tag);

// Data fields are the edit, combo, lookup and memo fields, the data check
// boxes, data labels and radio groups. A field shown by several controls
// gives one row (the first); controls without a field name give none. The
// field named indexField (case ignored) gets the key mark.
QVector<TFieldRow> FieldRows(const QWidget *surface, const QString &indexField);

} // namespace MaskFields
