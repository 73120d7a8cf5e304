#pragma once

#include "DesignerTypes.h"
#include "DirectionsDialog.h"

class QLineEdit;

// Asks how the selected controls are to be sized: per direction unchanged,
// to the smallest or largest of them, or to a typed value.
class TfrmSize : public TDirectionsDialog
{
    Q_OBJECT
public:
    explicit TfrmSize(QWidget *parent = nullptr);

    TSizeMode widthMode() const;
    TSizeMode heightMode() const;
    // The typed sizes: empty is 0, and only the whole part before the first
    // full stop counts ("12.7" is 12, "." is 0).
    int widthValue() const;
    int heightValue() const;

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
