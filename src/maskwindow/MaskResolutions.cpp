#include "MaskResolutions.h"

#include "Maske.h"

#include <iterator>

namespace {
// What the mask is designed for and how big its window gets. Heights leave
// 127 pixels of the screen to the main window, widths add 15 for the frame;
// "1152x869" keeps its text although its numbers follow a screen 864 pixels
// high.
struct Resolution
{
    const char *text;
    int designHeight;
    int designWidth;
    int windowHeight;
    int windowWidth;
};
const Resolution kResolutions[] = {
    {"800x600", 473, 800, 473, 815},       {"1024x768", 641, 1024, 641, 1039},
    {"1152x869", 737, 1152, 737, 1167},    {"1280x1024", 897, 1280, 897, 1295},
    {"1600x1200", 1073, 1600, 1073, 1615}, {"1920x1080", 953, 1920, 953, 1935},
    {"1920x1200", 1073, 1920, 1073, 1935},
};
// The part of the main window's height its menus, bars and status line take.
constexpr int kMainWindowChrome = 127;
} // namespace

namespace MaskResolutions {

QStringList texts()
{
    QStringList list;
    for (const Resolution &r : kResolutions)
        list << QString::fromLatin1(r.text);
    return list;
}

namespace {
void applySizes(TMaske *mask, const QString &text, int designHeight, int designWidth, int windowHeight,
                int windowWidth)
{
    mask->setDesignHeight(designHeight);
    mask->setDesignWidth(designWidth);
    mask->resize(windowWidth, windowHeight);
    const QStringList parts = text.split(QLatin1Char('x'));
    mask->document()->setScreenWidth(parts.at(0).toInt());
    mask->document()->setScreenHeight(parts.at(1).toInt());
}
} // namespace

void apply(TMaske *mask, int index, const QSize &mainWindowSize)
{
    mask->setScrollRanges(mainWindowSize.width(), mainWindowSize.height() - kMainWindowChrome);
    if (index < 0 || index >= int(std::size(kResolutions)))
        return;
    const Resolution &r = kResolutions[index];
    applySizes(mask, QString::fromLatin1(r.text), r.designHeight, r.designWidth, r.windowHeight, r.windowWidth);
}

void apply(TMaske *mask, const QString &text, const QSize &mainWindowSize)
{
    const int index = int(texts().indexOf(text));
    apply(mask, index, mainWindowSize);
    const QStringList parts = text.split(QLatin1Char('x'));
    int width = 0;
    int height = 0;
    if (index >= 0 || parts.size() != 2 || (width = parts.at(0).toInt()) <= 0
        || (height = parts.at(1).toInt()) <= kMainWindowChrome)
        return;
    applySizes(mask, text, height - kMainWindowChrome, width, height - kMainWindowChrome, width + 15);
}

} // namespace MaskResolutions
