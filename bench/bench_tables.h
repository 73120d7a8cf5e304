#pragma once

// What the database benchmarks share: a dialog seam that says Yes to every
// question (keep the data, confirm) and OK to every notice, and the rows of
// a table description.
#include "TableGenerator.h"
#include "UserDialogs.h"

#include <cstdio>

namespace BenchTables {

class TAnswerYes : public UserDialogs
{
public:
    explicit TAnswerYes(bool printMessages = false) : m_print(printMessages) { setInstance(this); }
    ~TAnswerYes() override { setInstance(nullptr); }
    TAnswerYes(const TAnswerYes &) = delete;
    TAnswerYes &operator=(const TAnswerYes &) = delete;

    TModalResult messageDlg(QWidget *, const QString &text, TMsgDlgType, TMsgDlgButtons buttons,
                            const QString &) override
    {
        if (m_print)
            std::fprintf(stderr, "message: %s\n", qPrintable(text));
        return (buttons & mbYes) ? mrYes : mrOk;
    }
    bool fileDialog(QWidget *, TFileDialog &) override { return false; }
    std::optional<TColor> colorDialog(QWidget *, TColor) override { return std::nullopt; }
    std::optional<QFont> fontDialog(QWidget *, const QFont &) override { return std::nullopt; }
    QString directoryDialog(QWidget *, const QString &, const QString &) override { return QString(); }
    int execDialog(QDialog *) override { return 0; }

private:
    bool m_print;
};

inline TFieldRow row(const char *name, const char *code, const char *size = "", bool key = false)
{
    return TFieldRow{QLatin1String(name), QLatin1String(code), QLatin1String(size),
                     key ? TTableGenerator::indexMark() : QString(), QString()};
}

} // namespace BenchTables
