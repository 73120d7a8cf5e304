#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

// The program information window of the Help menu.
class TAboutBox : public QDialog
{
    Q_OBJECT
public:
    TAboutBox(const QString &versionText, QWidget *parent = nullptr);
    ~TAboutBox() override;

private:
    QLabel *ProgramIcon = nullptr;
    QLabel *ProductName = nullptr;
    QLabel *Copyright = nullptr;
    QLabel *Version = nullptr;
    QPushButton *OKButton = nullptr;
};
