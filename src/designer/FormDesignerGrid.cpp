// The grid: a screen-sized bitmap of dots every GridStep pixels that tiles
// the design control's background while designing.
#include <QGuiApplication>
#include <QImage>
#include <QScreen>

#include "FormDesigner.h"

namespace {
// The palette the design control had before the engine touched it.
QPalette originalPalette(const QWidget *designControl, bool attached, const QPalette &saved)
{
    if (attached)
        return saved;
    return designControl ? designControl->palette() : QPalette();
}

QColor fillColor(TColor designerColor, const QWidget *designControl, const QPalette &palette)
{
    if (!designerColor.isNone())
        return designerColor.toQColor(palette);
    return designControl ? palette.color(QPalette::Window) : Colors::clBtnFace.toQColor(palette);
}

QColor dotColor(TColor gridColor, const QWidget *designControl, const QPalette &palette)
{
    if (!gridColor.isNone())
        return gridColor.toQColor(palette);
    return designControl ? palette.color(QPalette::WindowText) : QColor(Qt::black);
}
} // namespace

void TCustomFormDesigner::updateGridBitmap()
{
    const QWidget *dc = m_attached ? m_attached.data() : designControlOrForm();
    const QPalette palette = originalPalette(dc, !m_attached.isNull(), m_savedPalette);
    const QColor fill = fillColor(m_designerColor, dc, palette);
    const QColor dot = dotColor(m_gridColor, dc, palette);

    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize screenSize = screen ? screen->geometry().size() : QSize();
    const int step = std::max(1, m_gridStep);
    const int width = screenSize.width() / step * step;
    const int height = screenSize.height() / step * step;
    if (width <= 0 || height <= 0) {
        // A step wider than the screen: no bitmap and no dots.
        m_gridBitmap = QPixmap();
        return;
    }
    // Whole steps in both directions, so the tiles join without a seam.
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(fill);
    const QRgb dotRgb = dot.rgb();
    for (int y = 0; y < height; y += step) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < width; x += step)
            line[x] = dotRgb;
    }
    m_gridBitmap = QPixmap::fromImage(image);
}

void TCustomFormDesigner::applyDesignBackground()
{
    QWidget *dc = m_attached;
    if (!dc)
        return;
    if (m_backgroundWidget != dc) {
        // First call for this design control: the core saved its palette and
        // auto-fill; remember whether that palette was its own or inherited.
        m_backgroundWidget = dc;
        m_savedOwnPalette = dc->testAttribute(Qt::WA_SetPalette);
    }
    // Only the window role changes; an inherited palette stays inherited otherwise.
    QPalette palette = m_savedOwnPalette ? m_savedPalette : QPalette();
    bool autoFill = m_savedAutoFill;
    bool own = m_savedOwnPalette;
    if (m_displayGrid) {
        const QBrush brush = m_gridBitmap.isNull()
                                 ? QBrush(fillColor(m_designerColor, dc, m_savedPalette))
                                 : QBrush(m_gridBitmap);
        palette.setBrush(QPalette::Window, brush);
        autoFill = own = true;
    } else if (!m_designerColor.isNone()) {
        palette.setColor(QPalette::Window, m_designerColor.toQColor(m_savedPalette));
        autoFill = own = true;
    }
    dc->setPalette(own ? palette : QPalette());
    dc->setAutoFillBackground(autoFill);
    dc->update();
}

void TCustomFormDesigner::restoreDesignBackground()
{
    QWidget *dc = m_backgroundWidget;
    if (!dc)
        return;
    dc->setPalette(m_savedOwnPalette ? m_savedPalette : QPalette());
    dc->setAutoFillBackground(m_savedAutoFill);
    dc->update();
    m_backgroundWidget = nullptr;
}
