#pragma once

#include <QDialog>
#include <QPointer>

#include "Colors.h"

class QCheckBox;
class QComboBox;
class QPushButton;
class TcxEditStyleController;

// "Stile ändern": edits the style a mask's edit controls share. Every change
// goes to the controller at once, so the mask shows it while the dialog is
// open; Abbrechen only closes and keeps what was changed.
class TChangeStyle : public QDialog
{
    Q_OBJECT
public:
    explicit TChangeStyle(QWidget *parent = nullptr);

    void setStyleController(TcxEditStyleController *controller);
    TcxEditStyleController *styleController() const { return m_controller; }

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Sets the controls from the controller without writing back.
    void readController();
    void selectColor(TColor color);
    void chooseColor();
    void edgeToggled(int bit, bool on);

    QPointer<TcxEditStyleController> m_controller;
    bool m_reading = false;

    QComboBox *m_borderColor;
    QPushButton *m_borderColorButton;
    QComboBox *m_borderStyle;
    QComboBox *m_buttonStyle;
    QComboBox *m_buttonTransparency;
    QCheckBox *m_left;
    QCheckBox *m_top;
    QCheckBox *m_right;
    QCheckBox *m_bottom;
    QCheckBox *m_hotTrack;
    QCheckBox *m_shadow;
    QCheckBox *m_gradient;
};
