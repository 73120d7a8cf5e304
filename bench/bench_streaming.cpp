// Speed of component streaming on a layout of 1000 controls: 40 panels with
// labels, edit fields, combo boxes and memos. Prints the best of five runs per step.

#include "Components.h"
#include "Containers.h"
#include "Edits.h"
#include "Label.h"
#include "Streaming.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <limits>

namespace {

constexpr int kPanels = 40;
constexpr int kPerPanel = 24; // 40 + 40 * 24 = 1000 controls

void buildLayout(QWidget *surface)
{
    for (int p = 0; p < kPanels; ++p) {
        auto *panel = new TPanel(surface);
        Components::setOwner(panel, surface);
        panel->setObjectName(QStringLiteral("Panel%1").arg(p + 1));
        panel->setBounds(8, 8 + p * 160, 760, 150);
        panel->setCaption(QStringLiteral("Gruppe %1").arg(p + 1));
        for (int i = 0; i < kPerPanel; ++i) {
            QWidget *w = nullptr;
            switch (i % 4) {
            case 0: {
                auto *label = new TLabel(panel);
                label->setCaption(QStringLiteral("Straße und Hausnummer %1:").arg(i));
                w = label;
                break;
            }
            case 1: {
                auto *edit = new TcxTextEdit(panel);
                edit->setText(QStringLiteral("Größe_%1").arg(i));
                w = edit;
                break;
            }
            case 2: {
                auto *combo = new TcxComboBox(panel);
                combo->setItems({QStringLiteral("rot"), QStringLiteral("grün"), QStringLiteral("blau")});
                w = combo;
                break;
            }
            default: {
                auto *memo = new TcxMemo(panel);
                memo->setLines({QStringLiteral("Zeile eins"), QStringLiteral("Zeile zwei €")});
                w = memo;
                break;
            }
            }
            Components::setOwner(w, surface);
            w->setObjectName(QStringLiteral("Ctl%1_%2").arg(p).arg(i));
            TControl::from(w)->setBounds(8 + (i % 6) * 120, 8 + (i / 6) * 30, 110, 21);
        }
    }
}

double bestOf5(const std::function<void()> &step)
{
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < 5; ++run) {
        QElapsedTimer timer;
        timer.start();
        step();
        best = std::min(best, timer.nsecsElapsed() / 1e6);
    }
    return best;
}

double readStep(const QByteArray &bytes)
{
    return bestOf5([&bytes] {
        QWidget target;
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        TReadContext ctx;
        ctx.owner = &target;
        QString error;
        if (!readInto(buffer, &target, ctx, &error) || Components::componentCount(&target) != 1000)
            std::fprintf(stderr, "read failed: %s\n", qPrintable(error));
    });
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    QWidget surface;
    surface.setObjectName(QStringLiteral("Maske"));
    buildLayout(&surface);

    QByteArray binary, text;
    const double writeBinary = bestOf5([&] { binary = componentToBytes(&surface, TStreamFormat::Binary); });
    const double writeText = bestOf5([&] { text = componentToBytes(&surface, TStreamFormat::Text); });
    const double toText = bestOf5([&] { binaryToText(binary); });
    const double toBinary = bestOf5([&] { textToBinary(text); });
    const double readBinary = readStep(binary);
    const double readText = readStep(text);
    // For comparison: making the same controls in code.
    const double direct = bestOf5([] {
        QWidget other;
        buildLayout(&other);
    });

    std::printf("controls:          %d\n", Components::componentCount(&surface));
    std::printf("binary size:       %lld bytes\n", static_cast<long long>(binary.size()));
    std::printf("text size:         %lld bytes\n", static_cast<long long>(text.size()));
    std::printf("write binary:      %8.2f ms\n", writeBinary);
    std::printf("write text:        %8.2f ms\n", writeText);
    std::printf("binary -> text:    %8.2f ms\n", toText);
    std::printf("text -> binary:    %8.2f ms\n", toBinary);
    std::printf("read binary:       %8.2f ms (creating the controls)\n", readBinary);
    std::printf("read text:         %8.2f ms (creating the controls)\n", readText);
    std::printf("built in code:     %8.2f ms (the same controls, no stream)\n", direct);
    return 0;
}
