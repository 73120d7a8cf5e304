#pragma once

#include "DesignerTypes.h"
#include "DirectionsDialog.h"

// Asks how the selected controls are to be lined up: one choice for the
// horizontal and one for the vertical direction.
class TfrmAlign : public TDirectionsDialog
{
    Q_OBJECT
public:
    explicit TfrmAlign(QWidget *parent = nullptr);

    TAlignMode horizontal() const;
    TAlignMode vertical() const;

private:
    QButtonGroup *m_horizontal;
    QButtonGroup *m_vertical;
};
