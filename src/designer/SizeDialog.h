#pragma once

#include <QDialog>

#include "DesignerTypes.h"

class QButtonGroup;
class QLineEdit;

// Asks how the selected controls are to be sized: per direction unchanged,
// to the smallest or largest of them, or to a typed value. The button ids of
// both radio groups are the TSizeMode values.
class TfrmSize : public QDialog
{
    Q_OBJECT
public:
    explicit TfrmSize(QWidget *parent = nullptr);

    TSizeMode widthMode() const;
    TSizeMode heightMode() const;
    // The typed sizes; see sizeFromText() for how the text is read.
    int widthValue() const;
    int heightValue() const;

    void setWidthMode(TSizeMode mode);
    void setHeightMode(TSizeMode mode);
    void setWidthValue(int value);
    void setHeightValue(int value);

    // Reads a size as typed: empty -> 0, only the whole part before the first
    // full stop counts ("12.7" -> 12, "." -> 0), larger than INT_MAX -> INT_MAX.
    // Anything that is not a number (which the edits never let in) -> 0.
    static int sizeFromText(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setupDirection(QButtonGroup *group, QLineEdit *edit);
    void guardEdit(QLineEdit *edit);

    QButtonGroup *m_widthGroup;
    QButtonGroup *m_heightGroup;
    QLineEdit *m_widthEdit;
    QLineEdit *m_heightEdit;
};
