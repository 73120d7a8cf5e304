#pragma once

#include <QMainWindow>

class QLabel;
class QWidget;
class TFormDesigner;

// The form designer engine on a plain form of a few dozen controls, with its
// commands in the menus, so the engine can be tried on its own.
class DemoWindow : public QMainWindow
{
    Q_OBJECT
public:
    DemoWindow();

    TFormDesigner *designer() const { return m_designer; }

private:
    void buildForm();
    void buildMenus();
    void showSelection();

    QWidget *m_surface = nullptr;
    TFormDesigner *m_designer = nullptr;
    QLabel *m_status = nullptr;
};
