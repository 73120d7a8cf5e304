#pragma once

#include <QString>

// The small languages of a mask's data settings, without windows.
namespace FieldRules {

// A button's colour rule against the text of the tested field. The
// expression is a value, optionally preceded by one of "=", "<>", "!=", ">",
// ">=", "<", "<=" (no operator means "="). The value may stand in single or
// double quotes; "*" and "?" are wildcards for "=" and "<>". Both sides are
// compared as numbers when both are numbers (German or plain notation), as
// dates when both are dates (TT.MM.JJJJ), else as text with case ignored.
// "=" with no value matches an empty field. An empty expression never matches.
bool ruleMatches(const QString &expression, const QString &fieldText);

// An edit mask as the mask file stores it ("!99/99/0000;1;_": the mask,
// whether literals are kept in the value, the blank character) as an input
// mask of a Qt line edit. Empty for an empty mask.
QString inputMask(const QString &editMask);
// Whether the value keeps the mask's literal characters (";0" drops them).
bool keepsLiterals(const QString &editMask);
// The value of text typed into a field with the edit mask: empty when only
// literals and blanks were left; without literals when the mask says so.
QString maskedValue(const QString &editMask, const QString &text);

} // namespace FieldRules
