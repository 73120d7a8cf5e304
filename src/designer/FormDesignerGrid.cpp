// The grid: a screen-sized bitmap of dots every GridStep pixels that tiles
// the design control's background while designing.
#include <QGuiApplication>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include "FormDesigner.h"

namespace {
QColor fillColor(TColor designerColor, const QWidget *designControl)
{
    if (!designerColor.isNone())
        return designerColor.toQColor(designControl ? designControl->palette() : QPalette());
    return designControl ? designControl->palette().color(QPalette::Window) : Colors::clBtnFace.toQColor();
}

QColor dotColor(TColor gridColor, const QWidget *designControl)
{
    if (!gridColor.isNone())
        return gridColor.toQColor(designControl ? designControl->palette() : QPalette());
    return designControl ? designControl->palette().color(QPalette::WindowText) : QColor(Qt::black);
}

// Lies under every control of the design control and paints its background
// while designing. Painting the grid here rather than through the design
// control's palette keeps the grid out of the palettes the controls inherit.
class TDesignUnderlay : public QWidget
{
public:
    TDesignUnderlay(TCustomFormDesigner *designer, QWidget *designControl)
        : QWidget(designControl), m_designer(designer)
    {
        setObjectName(QStringLiteral("_designUnderlay"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_OpaquePaintEvent);
        setGeometry(designControl->rect());
        designControl->installEventFilter(this);
        lower();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parentWidget() && event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
        return false;
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter p(this);
        const QPixmap grid = m_designer->gridBitmap();
        if (m_designer->DisplayGrid() && !grid.isNull())
            p.fillRect(event->rect(), QBrush(grid));
        else
            p.fillRect(event->rect(), fillColor(m_designer->DesignerColor(), parentWidget()));
    }

private:
    TCustomFormDesigner *m_designer;
};
} // namespace

void TCustomFormDesigner::updateGridBitmap()
{
    m_gridStale = true;
}

QPixmap TCustomFormDesigner::gridBitmap() const
{
    if (!m_gridStale)
        return m_gridBitmap;
    m_gridStale = false;
    const QWidget *dc = m_attached ? m_attached.data() : designControlOrForm();
    const QScreen *screen = QGuiApplication::primaryScreen();
    TGridKey key;
    key.fill = fillColor(m_designerColor, dc).rgb();
    key.dot = dotColor(m_gridColor, dc).rgb();
    key.step = std::max(1, m_gridStep);
    key.screen = screen ? screen->geometry().size() : QSize();
    if (m_gridBuilt && key == m_gridKey)
        return m_gridBitmap;
    m_gridKey = key;
    m_gridBuilt = true;
    const int step = key.step;
    const int width = key.screen.width() / step * step;
    const int height = key.screen.height() / step * step;
    if (width <= 0 || height <= 0) {
        // A step wider than the screen: no bitmap and no dots.
        m_gridBitmap = QPixmap();
        return m_gridBitmap;
    }
    // Whole steps in both directions, so the tiles join without a seam.
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(key.fill);
    for (int y = 0; y < height; y += step) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < width; x += step)
            line[x] = key.dot;
    }
    m_gridBitmap = QPixmap::fromImage(image);
    return m_gridBitmap;
}

void TCustomFormDesigner::applyDesignBackground()
{
    QWidget *dc = m_attached;
    if (!dc)
        return;
    const bool shown = m_displayGrid || !m_designerColor.isNone();
    if (shown && !m_underlay) {
        m_underlay = new TDesignUnderlay(this, dc);
        m_input.exclude(m_underlay);
    }
    if (m_underlay) {
        m_underlay->setVisible(shown);
        m_underlay->lower();
        m_underlay->update();
    }
}

void TCustomFormDesigner::restoreDesignBackground()
{
    delete m_underlay.data();
}
