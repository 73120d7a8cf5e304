#include "TestSupport.h"

#include <QFile>

ScriptedDialogs::ScriptedDialogs()
{
    UserDialogs::setInstance(this);
}

ScriptedDialogs::~ScriptedDialogs()
{
    UserDialogs::setInstance(nullptr);
}

TModalResult ScriptedDialogs::messageDlg(QWidget *, const QString &text, TMsgDlgType type,
                                         TMsgDlgButtons buttons, const QString &caption)
{
    messages.append({text, caption, type, buttons});
    if (!messageAnswers.isEmpty())
        return messageAnswers.takeFirst();
    ++unexpected;
    if (buttons & mbCancel)
        return mrCancel;
    if (buttons & mbNo)
        return mrNo;
    return mrOk;
}

bool ScriptedDialogs::fileDialog(QWidget *, TFileDialog &dialog)
{
    fileDialogs.append(dialog);
    if (fileAnswers.isEmpty()) {
        ++unexpected;
        return false;
    }
    const QStringList files = fileAnswers.takeFirst();
    if (files.isEmpty())
        return false;
    dialog.files = files;
    dialog.fileName = files.first();
    return true;
}

std::optional<TColor> ScriptedDialogs::colorDialog(QWidget *, TColor initial)
{
    colorInitials << initial;
    if (colorAnswers.isEmpty()) {
        ++unexpected;
        return std::nullopt;
    }
    return colorAnswers.takeFirst();
}

std::optional<QFont> ScriptedDialogs::fontDialog(QWidget *, const QFont &)
{
    if (fontAnswers.isEmpty()) {
        ++unexpected;
        return std::nullopt;
    }
    return fontAnswers.takeFirst();
}

QString ScriptedDialogs::directoryDialog(QWidget *, const QString &, const QString &)
{
    if (directoryAnswers.isEmpty()) {
        ++unexpected;
        return QString();
    }
    return directoryAnswers.takeFirst();
}

int ScriptedDialogs::execDialog(QDialog *dialog)
{
    dialogTitles << dialog->windowTitle();
    if (dialogAnswers.isEmpty()) {
        ++unexpected;
        return QDialog::Rejected;
    }
    // Shown as a modal dialog would be, so that it fills itself on show.
    dialog->show();
    const int result = dialogAnswers.takeFirst()(dialog);
    dialog->setResult(result);
    dialog->hide();
    return result;
}

QByteArray readFileBytes(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

bool writeFileBytes(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}
