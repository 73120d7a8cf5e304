// Grab handles: eight small widgets around the current control of a single
// selection, drawn from three pre-painted bitmaps.
#include <QBitmap>
#include <QPainter>

#include "DesignerWidgets.h"
#include "FormDesigner.h"

// ---- the engine's side ----

void TCustomFormDesigner::setGrabColor(TColor &slot, TColor value)
{
    slot = value;
    updateGrabBitmaps();
}

void TCustomFormDesigner::setGrabGlyph(TGrabType type, const QPixmap &glyph)
{
    m_grabGlyph[type] = glyph;
    updateGrabBitmaps();
}

void TCustomFormDesigner::updateGrabBitmaps()
{
    for (int type = gtNormal; type <= gtLocked; ++type) {
        QPixmap bitmap(m_grabSize, m_grabSize);
        bitmap.fill(m_grabFill[type].toQColor());
        QPainter p(&bitmap);
        p.setPen(m_grabBorder[type].toQColor());
        p.setBrush(Qt::NoBrush);
        p.drawRect(0, 0, m_grabSize - 1, m_grabSize - 1);
        m_grabBitmap[type] = bitmap;
        m_grabLook[type] = bitmap;
        if (m_useGrabGlyphs && !m_grabGlyph[type].isNull()) {
            QImage glyph = m_grabGlyph[type].toImage().convertToFormat(QImage::Format_ARGB32);
            const QRgb transparent = m_grabsTransparentColor.toQColor().rgb() & 0xffffff;
            for (int y = 0; y < glyph.height(); ++y) {
                auto *line = reinterpret_cast<QRgb *>(glyph.scanLine(y));
                for (int x = 0; x < glyph.width(); ++x)
                    if ((line[x] & 0xffffff) == transparent)
                        line[x] = 0;
            }
            m_grabLook[type] = QPixmap::fromImage(glyph);
        }
    }
    UpdateGrabs();
}

void TCustomFormDesigner::UpdateGrabs()
{
    if (!m_active || !m_grabs)
        return;
    m_selection.purge();
    QWidget *current = currentControl();
    const bool show = m_selection.count() == 1 && current && !IsProtected(current);
    m_grabs->Update(show ? current : nullptr, !show);
    if (m_overlay) {
        m_overlay->keepOnTop();
        m_overlay->refresh();
    }
}

QWidget *TCustomFormDesigner::overlayWidget() const
{
    return m_overlay;
}

// ---- TGrabHandle ----

TGrabHandle::TGrabHandle(TCustomFormDesigner *designer, TGrabPosition position)
    : m_designer(designer), m_position(position)
{
    setObjectName(QStringLiteral("_grab%1").arg(int(position)));
    setAttribute(Qt::WA_NoSystemBackground);
    static const Qt::CursorShape cursors[] = {Qt::ArrowCursor,    Qt::SizeFDiagCursor, Qt::SizeHorCursor,
                                              Qt::SizeBDiagCursor, Qt::SizeVerCursor,   Qt::SizeVerCursor,
                                              Qt::SizeBDiagCursor, Qt::SizeHorCursor,   Qt::SizeFDiagCursor};
    setCursor(cursors[position]);
}

void TGrabHandle::place(QWidget *parent, const QRect &rect, bool locked, bool visible, bool enabled)
{
    m_rect = rect;
    m_locked = locked;
    m_enabled = enabled;
    if (parentWidget() != parent)
        setParent(parent);
    const QRect clipped = rect.intersected(parent ? parent->rect() : rect);
    setGeometry(clipped.isEmpty() ? QRect(clipped.topLeft(), QSize(0, 0)) : clipped);
    setCursor(enabled && !locked ? cursor() : QCursor(Qt::ArrowCursor));

    // Glyphs give the handle the shape of their non-transparent pixels.
    const TGrabType type = locked ? gtLocked : gtNormal;
    const QPixmap glyph = type == gtLocked ? m_designer->LockedGrabGlyph() : m_designer->NormalGrabGlyph();
    if (m_designer->UseGrabGlyphs() && !glyph.isNull()) {
        const QColor transparent = m_designer->GrabsTransparentColor().toQColor();
        QBitmap shape = QBitmap::fromImage(
            glyph.toImage().createMaskFromColor(transparent.rgb(), Qt::MaskOutColor));
        setMask(QRegion(shape).translated(rect.topLeft() - geometry().topLeft()));
    } else {
        clearMask();
    }
    setVisible(visible && !clipped.isEmpty());
    if (visible) {
        raise();
        // Below the overlay, which would otherwise have to be raised again,
        // and raising it repaints the whole design control.
        QWidget *overlay = m_designer->overlayWidget();
        if (overlay && parent && overlay->parentWidget() == parent)
            stackUnder(overlay);
    }
    update();
}

void TGrabHandle::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    const TGrabType type = m_locked ? gtLocked : gtNormal;
    const QPixmap glyph = type == gtLocked ? m_designer->LockedGrabGlyph() : m_designer->NormalGrabGlyph();
    // Drawn from the unclipped rectangle so a clipped handle shows its inner part.
    const QPoint origin = m_rect.topLeft() - geometry().topLeft();
    if (m_designer->UseGrabGlyphs() && !glyph.isNull())
        p.drawPixmap(origin, glyph);
    else
        p.drawPixmap(origin, m_designer->grabBitmap(type));
}

// ---- TGrabHandles ----

TGrabHandles::TGrabHandles(TCustomFormDesigner *designer) : QObject(designer), m_designer(designer)
{
    for (int p = gpLeftTop; p <= gpRightBottom; ++p)
        m_items[p] = new TGrabHandle(designer, TGrabPosition(p));
}

TGrabHandles::~TGrabHandles()
{
    for (const QPointer<TGrabHandle> &h : m_items)
        delete h.data();
}

TGrabHandle *TGrabHandles::Items(TGrabPosition position) const
{
    return position > gpNone && position <= gpRightBottom ? m_items[position] : nullptr;
}

QRect TGrabHandles::handleRect(TGrabMode mode, int g, const QRect &bounds, TGrabPosition position)
{
    const int l = bounds.left(), t = bounds.top();
    const int r = bounds.left() + bounds.width(), b = bounds.top() + bounds.height();
    int xs[3], ys[3];
    switch (mode) {
    case gmMiddle:
        xs[0] = l - g / 2, xs[1] = (l + r - g) / 2, xs[2] = r - g / 2 - 1;
        ys[0] = t - g / 2, ys[1] = (t + b - g) / 2, ys[2] = b - g / 2 - 1;
        break;
    case gmInside:
        xs[0] = l, xs[1] = (l + r - g) / 2, xs[2] = r - g - 1;
        ys[0] = t, ys[1] = (t + b - g) / 2, ys[2] = b - g - 1;
        break;
    case gmOutside:
    default:
        xs[0] = l - g, xs[1] = (l + r - g) / 2, xs[2] = r - 1;
        ys[0] = t - g, ys[1] = (t + b - g) / 2, ys[2] = b - 1;
        break;
    }
    int column = 0, row = 0;
    switch (position) {
    case gpLeftTop: column = 0, row = 0; break;
    case gpLeftMiddle: column = 0, row = 1; break;
    case gpLeftBottom: column = 0, row = 2; break;
    case gpMiddleTop: column = 1, row = 0; break;
    case gpMiddleBottom: column = 1, row = 2; break;
    case gpRightTop: column = 2, row = 0; break;
    case gpRightMiddle: column = 2, row = 1; break;
    case gpRightBottom: column = 2, row = 2; break;
    case gpNone: return QRect();
    }
    return QRect(xs[column], ys[row], g, g);
}

void TGrabHandles::hideAll()
{
    for (const QPointer<TGrabHandle> &h : m_items)
        if (h)
            h->hide();
    m_visible = false;
}

void TGrabHandles::Update(QWidget *control, bool mustHide)
{
    m_control = control;
    if (!control || mustHide || !control->parentWidget()) {
        hideAll();
        return;
    }
    TGrabPositions visibleGrabs = kAllGrabs, enabledGrabs = kAllGrabs;
    if (m_designer->OnCustomizeGrabs)
        m_designer->OnCustomizeGrabs(m_designer, visibleGrabs, enabledGrabs);
    const bool locked = m_designer->IsLocked(control);
    for (int p = gpLeftTop; p <= gpRightBottom; ++p) {
        const auto pos = TGrabPosition(p);
        const QRect r = handleRect(m_designer->GrabMode(), m_designer->GrabSize(), control->geometry(), pos);
        if (!m_items[p])
            m_items[p] = new TGrabHandle(m_designer, pos);
        m_items[p]->place(control->parentWidget(), r, locked, visibleGrabs & grabBit(pos),
                          enabledGrabs & grabBit(pos));
    }
    m_visible = true;
}

bool TGrabHandles::IsGrabHandle(const QWidget *widget) const
{
    for (const QPointer<TGrabHandle> &h : m_items)
        if (h && h == widget)
            return true;
    return false;
}

TGrabPosition TGrabHandles::FindHandle(const QWidget *widget) const
{
    for (int p = gpLeftTop; p <= gpRightBottom; ++p)
        if (m_items[p] == widget)
            return TGrabPosition(p);
    return gpNone;
}
