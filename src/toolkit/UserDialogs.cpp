#include "UserDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QHash>
#include <QMessageBox>
#include <QPushButton>

namespace {
UserDialogs *&installed()
{
    static UserDialogs *dialogs = nullptr;
    return dialogs;
}
} // namespace

UserDialogs::~UserDialogs() = default;

UserDialogs &UserDialogs::instance()
{
    static QtUserDialogs qtDialogs;
    return installed() ? *installed() : qtDialogs;
}

void UserDialogs::setInstance(UserDialogs *dialogs)
{
    installed() = dialogs;
}

bool TFileDialog::execute(QWidget *parent)
{
    if (!UserDialogs::instance().fileDialog(parent, *this))
        return false;
    const QString suffix = defaultSuffix();
    if (kind == Save && !suffix.isEmpty() && !fileName.isEmpty() && QFileInfo(fileName).suffix().isEmpty()) {
        fileName += QLatin1Char('.') + suffix;
        if (!files.isEmpty())
            files.first() = fileName;
    }
    return true;
}

QString TFileDialog::defaultSuffix() const
{
    const QStringList parts = filter.split(QLatin1Char('|'));
    const QStringList patterns = parts.value((filterIndex - 1) * 2 + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (patterns.size() == 1) {
        const QString pattern = patterns.first().trimmed();
        const QString ext = pattern.mid(2);
        if (pattern.startsWith(QLatin1String("*.")) && !ext.isEmpty() && !ext.contains(QLatin1Char('*'))
            && !ext.contains(QLatin1Char('?')))
            return ext;
    }
    return defaultExt;
}

QString qtFilterFromFilterString(const QString &filter)
{
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList out;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts.at(i).trimmed();
        QStringList patterns;
        for (const QString &p : parts.at(i + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts))
            patterns << p.trimmed();
        out << QStringLiteral("%1 (%2)").arg(description, patterns.join(QLatin1Char(' ')));
    }
    return out.join(QStringLiteral(";;"));
}

TModalResult QtUserDialogs::messageDlg(QWidget *parent, const QString &text, TMsgDlgType type,
                                       TMsgDlgButtons buttons, const QString &caption)
{
    QMessageBox box(parent);
    switch (type) {
    case mtWarning: box.setIcon(QMessageBox::Warning); break;
    case mtError: box.setIcon(QMessageBox::Critical); break;
    case mtInformation: box.setIcon(QMessageBox::Information); break;
    case mtConfirmation: box.setIcon(QMessageBox::Question); break;
    case mtCustom: box.setIcon(QMessageBox::NoIcon); break;
    }
    static const char *const defaultCaptions[]
        = {QT_TRANSLATE_NOOP("UserDialogs", "Warnung"), QT_TRANSLATE_NOOP("UserDialogs", "Fehler"),
           QT_TRANSLATE_NOOP("UserDialogs", "Information"), QT_TRANSLATE_NOOP("UserDialogs", "Bestätigen"), ""};
    box.setWindowTitle(caption.isEmpty() ? QCoreApplication::translate("UserDialogs", defaultCaptions[type]) : caption);
    box.setText(text);

    struct Choice
    {
        TMsgDlgBtn flag;
        const char *text;
        QMessageBox::ButtonRole role;
        TModalResult result;
    };
    static const Choice choices[] = {
        {mbYes, QT_TRANSLATE_NOOP("UserDialogs", "&Ja"), QMessageBox::YesRole, mrYes},
        {mbNo, QT_TRANSLATE_NOOP("UserDialogs", "&Nein"), QMessageBox::NoRole, mrNo},
        {mbOK, "OK", QMessageBox::AcceptRole, mrOk},
        {mbCancel, QT_TRANSLATE_NOOP("UserDialogs", "Abbrechen"), QMessageBox::RejectRole, mrCancel},
        {mbAbort, QT_TRANSLATE_NOOP("UserDialogs", "&Abbrechen"), QMessageBox::RejectRole, mrAbort},
        {mbRetry, QT_TRANSLATE_NOOP("UserDialogs", "&Wiederholen"), QMessageBox::ActionRole, mrRetry},
        {mbIgnore, QT_TRANSLATE_NOOP("UserDialogs", "&Ignorieren"), QMessageBox::ActionRole, mrIgnore},
    };
    QHash<QAbstractButton *, TModalResult> results;
    for (const Choice &c : choices) {
        if (buttons & c.flag)
            results.insert(box.addButton(QCoreApplication::translate("UserDialogs", c.text), c.role), c.result);
    }
    if (results.isEmpty())
        results.insert(box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole), mrOk);
    box.exec();
    return results.value(box.clickedButton(), mrCancel);
}

bool QtUserDialogs::fileDialog(QWidget *parent, TFileDialog &dialog)
{
    QFileDialog fd(parent, dialog.title);
    // Qt's own dialogs speak the program's language (Qt's translations);
    // a desktop's native ones would speak the desktop's.
    fd.setOption(QFileDialog::DontUseNativeDialog);
    fd.setAcceptMode(dialog.kind == TFileDialog::Save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    if (dialog.kind == TFileDialog::Open)
        fd.setFileMode(dialog.allowMultiSelect ? QFileDialog::ExistingFiles
                                               : (dialog.fileMustExist ? QFileDialog::ExistingFile
                                                                       : QFileDialog::AnyFile));
    fd.setOption(QFileDialog::DontConfirmOverwrite, !dialog.overwritePrompt);
    const QStringList filters = qtFilterFromFilterString(dialog.filter).split(QStringLiteral(";;"),
                                                                                Qt::SkipEmptyParts);
    fd.setNameFilters(filters);
    if (dialog.filterIndex >= 1 && dialog.filterIndex <= filters.size())
        fd.selectNameFilter(filters.at(dialog.filterIndex - 1));
    fd.setDefaultSuffix(dialog.defaultSuffix());
    QObject::connect(&fd, &QFileDialog::filterSelected, &fd, [&fd, &dialog, filters](const QString &chosen) {
        TFileDialog probe = dialog;
        probe.filterIndex = int(filters.indexOf(chosen)) + 1;
        fd.setDefaultSuffix(probe.defaultSuffix());
    });
    // A remembered file name may stand where a folder is expected: use its folder.
    QString dir = dialog.initialDir;
    if (!dir.isEmpty() && QFileInfo(dir).isFile())
        dir = QFileInfo(dir).absolutePath();
    if (dir.isEmpty() && !dialog.fileName.isEmpty())
        dir = QFileInfo(dialog.fileName).absolutePath();
    if (!dir.isEmpty())
        fd.setDirectory(dir);
    if (!dialog.fileName.isEmpty())
        fd.selectFile(QFileInfo(dialog.fileName).fileName());
    if (fd.exec() != QDialog::Accepted || fd.selectedFiles().isEmpty())
        return false;
    dialog.files.clear();
    for (const QString &f : fd.selectedFiles())
        dialog.files << QDir::toNativeSeparators(f);
    dialog.fileName = dialog.files.first();
    dialog.filterIndex = int(filters.indexOf(fd.selectedNameFilter())) + 1;
    return true;
}

std::optional<TColor> QtUserDialogs::colorDialog(QWidget *parent, TColor initial)
{
    const QColor chosen =
        QColorDialog::getColor(initial.toQColor(), parent, QString(), QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid())
        return std::nullopt;
    return TColor::fromQColor(chosen);
}

std::optional<QFont> QtUserDialogs::fontDialog(QWidget *parent, const QFont &initial)
{
    bool ok = false;
    const QFont font = QFontDialog::getFont(&ok, initial, parent, QString(), QFontDialog::DontUseNativeDialog);
    if (!ok)
        return std::nullopt;
    return font;
}

QString QtUserDialogs::directoryDialog(QWidget *parent, const QString &caption, const QString &initial)
{
    return QFileDialog::getExistingDirectory(parent, caption, initial,
                                             QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
}

int QtUserDialogs::execDialog(QDialog *dialog)
{
    return dialog->exec();
}
