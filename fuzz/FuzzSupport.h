#pragma once

// What every fuzz target shares: one offscreen application for the whole
// run, and dialogs that answer at once instead of waiting for a user.
#include <QApplication>
#include <QDialog>
#include <cstddef>
#include <cstdint>

#include "UserDialogs.h"

namespace FuzzSupport {

class QuietDialogs : public UserDialogs
{
public:
    TModalResult messageDlg(QWidget *, const QString &, TMsgDlgType, TMsgDlgButtons, const QString &) override
    {
        return mrCancel;
    }
    bool fileDialog(QWidget *, TFileDialog &) override { return false; }
    std::optional<TColor> colorDialog(QWidget *, TColor) override { return std::nullopt; }
    std::optional<QFont> fontDialog(QWidget *, const QFont &) override { return std::nullopt; }
    QString directoryDialog(QWidget *, const QString &, const QString &) override { return QString(); }
    int execDialog(QDialog *) override { return QDialog::Rejected; }
};

// Called once before the first input.
inline void startApplication()
{
    static int argc = 1;
    static char name[] = "ferolith-fuzz";
    static char *argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Messages about odd input are expected by the thousand; keep the output readable.
    qSetMessagePattern(QStringLiteral("%{if-critical}%{message}%{endif}"));
    static QApplication app(argc, argv);
    static QuietDialogs dialogs;
    UserDialogs::setInstance(&dialogs);
}

inline QByteArray bytes(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
}

} // namespace FuzzSupport

#define FEROLITH_FUZZ_INIT                                                                                             \
    extern "C" int LLVMFuzzerInitialize(int *, char ***)                                                               \
    {                                                                                                                  \
        FuzzSupport::startApplication();                                                                               \
        return 0;                                                                                                      \
    }
