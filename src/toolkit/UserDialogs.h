#pragma once

#include <QFont>
#include <QString>
#include <QStringList>
#include <optional>

#include "Colors.h"

class QDialog;
class QWidget;

// Result of a modal question or dialog, numbered as desktop toolkits number them.
enum TModalResult {
    mrNone = 0,
    mrOk = 1,
    mrCancel = 2,
    mrAbort = 3,
    mrRetry = 4,
    mrIgnore = 5,
    mrYes = 6,
    mrNo = 7,
};

enum TMsgDlgType { mtWarning, mtError, mtInformation, mtConfirmation, mtCustom };

enum TMsgDlgBtn : unsigned {
    mbYes = 0x1,
    mbNo = 0x2,
    mbOK = 0x4,
    mbCancel = 0x8,
    mbAbort = 0x10,
    mbRetry = 0x20,
    mbIgnore = 0x40,
};
using TMsgDlgButtons = unsigned;

// The state of an open or save dialog, kept between uses as the dialog
// components of a window keep it: the chosen file name carries over to the
// next use, and the filter is written "Description|*.ext|Description|*.ext".
struct TFileDialog
{
    enum Kind { Open, Save };
    Kind kind = Open;
    QString title;
    QString fileName;          // proposed name before, chosen name after
    QStringList files;         // every chosen file (multiple selection)
    QString initialDir;
    QString filter;
    int filterIndex = 1;       // 1-based, as the filter string counts
    QString defaultExt;        // without the dot
    bool allowMultiSelect = false;
    bool fileMustExist = false;
    bool overwritePrompt = false;

    // Runs the dialog through UserDialogs; true when confirmed. A name saved
    // without an extension gets defaultSuffix().
    bool execute(QWidget *parent = nullptr);
    // What a name without extension is saved with: the extension of the
    // chosen filter when it names exactly one, as the desktop's save dialogs
    // do, otherwise defaultExt.
    QString defaultSuffix() const;
};

// The one seam for everything modal that asks the user: message boxes, file,
// colour, folder and font dialogs, and our own modal windows. The program
// installs the Qt dialogs; tests install scripted answers and read back what
// was shown.
class UserDialogs
{
public:
    virtual ~UserDialogs();

    virtual TModalResult messageDlg(QWidget *parent, const QString &text, TMsgDlgType type,
                                    TMsgDlgButtons buttons, const QString &caption = QString()) = 0;
    virtual bool fileDialog(QWidget *parent, TFileDialog &dialog) = 0;
    virtual std::optional<TColor> colorDialog(QWidget *parent, TColor initial) = 0;
    virtual std::optional<QFont> fontDialog(QWidget *parent, const QFont &initial) = 0;
    virtual QString directoryDialog(QWidget *parent, const QString &caption, const QString &initial) = 0;
    // Shows one of our own windows modally and returns its result.
    virtual int execDialog(QDialog *dialog) = 0;

    static UserDialogs &instance();
    // Installs an implementation (not owned); nullptr goes back to the Qt dialogs.
    static void setInstance(UserDialogs *dialogs);
};

// The Qt dialogs.
class QtUserDialogs : public UserDialogs
{
public:
    TModalResult messageDlg(QWidget *parent, const QString &text, TMsgDlgType type, TMsgDlgButtons buttons,
                            const QString &caption) override;
    bool fileDialog(QWidget *parent, TFileDialog &dialog) override;
    std::optional<TColor> colorDialog(QWidget *parent, TColor initial) override;
    std::optional<QFont> fontDialog(QWidget *parent, const QFont &initial) override;
    QString directoryDialog(QWidget *parent, const QString &caption, const QString &initial) override;
    int execDialog(QDialog *dialog) override;
};

// Converts "Desc|*.a;*.b|Desc|*.c" into Qt's "Desc (*.a *.b);;Desc (*.c)".
QString qtFilterFromFilterString(const QString &filter);
