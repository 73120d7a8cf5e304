#pragma once

#include <QDialog>

#include "DesignerTypes.h"

class QButtonGroup;

// Asks how the selected controls are to be lined up: one choice for the
// horizontal and one for the vertical direction. The button ids of both
// radio groups are the TAlignMode values.
class TfrmAlign : public QDialog
{
    Q_OBJECT
public:
    explicit TfrmAlign(QWidget *parent = nullptr);

    TAlignMode horizontal() const;
    TAlignMode vertical() const;
    void setHorizontal(TAlignMode mode);
    void setVertical(TAlignMode mode);

private:
    QButtonGroup *m_horizontal;
    QButtonGroup *m_vertical;
};
