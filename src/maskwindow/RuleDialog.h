#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class TMaskBtn;

// Colour choosers of the inspector's dialogs: a drop-down of the colour
// constants, each with a swatch.
namespace ColorCombo {
void fill(QComboBox *combo);
// Selects the colour named (any spelling StringToColor reads); a colour
// without a constant is added as its own entry; empty text selects nothing.
void select(QComboBox *combo, const QString &name);
// The chosen colour as ColorToString writes it; empty when none is chosen.
QString selected(const QComboBox *combo);
} // namespace ColorCombo

// "Regel definieren": the rule a list button applies to the records it
// lists — an expression, the field it tests and the colour it paints.
class TfrmRule : public QDialog
{
    Q_OBJECT
public:
    explicit TfrmRule(QWidget *parent = nullptr);

    void setFromButton(const TMaskBtn *button);
    void writeToButton(TMaskBtn *button) const;

    QLineEdit *Regel() const { return m_regel; }
    QLineEdit *Feld() const { return m_feld; }
    QComboBox *Farbe() const { return m_farbe; }
    QCheckBox *Zeile() const { return m_zeile; }

private:
    QLineEdit *m_regel;
    QLineEdit *m_feld;
    QComboBox *m_farbe;
    QCheckBox *m_zeile;
};
