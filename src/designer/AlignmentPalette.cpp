#include "AlignmentPalette.h"

#include <QContextMenuEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QIcon>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QToolButton>

namespace {

constexpr int kIconSize = 16;
const char *const kHintProperty = "alignHint";

// Pictograms are drawn for the horizontal direction on a 16 x 16 grid; the
// vertical ones are the same drawings mirrored at the diagonal.
void paintPictogram(QPainter &p, TAlignMode mode)
{
    const QColor boxFill(0x5b, 0x8f, 0xd6);
    const QColor boxLine(0x1f, 0x4e, 0x8c);
    const QColor guide(0x20, 0x20, 0x20);
    const QColor frame(0x80, 0x80, 0x80);

    auto box = [&](int x, int y, int w, int h) {
        p.fillRect(QRect(x, y, w, h), boxLine);
        p.fillRect(QRect(x + 1, y + 1, w - 2, h - 2), boxFill);
    };
    auto solidGuide = [&](int x) { p.fillRect(QRect(x, 0, 1, kIconSize), guide); };
    auto dottedGuide = [&](int x) {
        for (int y = 0; y < kIconSize; y += 2)
            p.fillRect(QRect(x, y, 1, 1), guide);
    };

    switch (mode) {
    case amLeftTop:
        solidGuide(1);
        box(2, 3, 11, 4);
        box(2, 9, 7, 4);
        break;
    case amCenters:
        box(2, 3, 12, 4);
        box(4, 9, 8, 4);
        dottedGuide(7);
        dottedGuide(8);
        break;
    case amRightBottom:
        solidGuide(14);
        box(3, 3, 11, 4);
        box(7, 9, 7, 4);
        break;
    case amSpace:
        box(1, 4, 4, 8);
        box(6, 1, 4, 14);
        box(11, 5, 4, 6);
        break;
    case amWindowCenter:
        p.fillRect(QRect(0, 0, kIconSize, kIconSize), frame);
        p.fillRect(QRect(1, 1, kIconSize - 2, kIconSize - 2), Qt::white);
        box(5, 4, 6, 8);
        dottedGuide(7);
        dottedGuide(8);
        break;
    case amNoChange:
        break;
    }
}

QIcon pictogram(TAlignMode mode, bool vertical)
{
    QIcon icon;
    for (int scale : {1, 2}) {
        QPixmap pixmap(kIconSize * scale, kIconSize * scale);
        pixmap.fill(Qt::transparent);
        {
            QPainter p(&pixmap);
            p.scale(scale, scale);
            if (vertical)
                p.setTransform(QTransform(0, 1, 1, 0, 0, 0), true);
            paintPictogram(p, mode);
        }
        pixmap.setDevicePixelRatio(scale);
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

TfrmAlignmentPalette::TfrmAlignmentPalette(QWidget *parent)
    : QWidget(parent, Qt::Tool)
{
    setObjectName(QStringLiteral("frmAlignmentPalette"));
    setWindowTitle(QStringLiteral("Align"));

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(2);
    const struct
    {
        const char *name;
        const char *hint;
        TAlignMode mode;
        bool vertical;
    } buttons[] = {
        {"btnAlignLeft", "Align left edges", amLeftTop, false},
        {"btnAlignHCenter", "Align horizontal centers", amCenters, false},
        {"btnAlignRight", "Align right edges", amRightBottom, false},
        {"btnSpaceH", "Space equally, horizontally", amSpace, false},
        {"btnCenterH", "Center horizontally in window", amWindowCenter, false},
        {"btnAlignTop", "Align tops", amLeftTop, true},
        {"btnAlignVCenter", "Align vertical centers", amCenters, true},
        {"btnAlignBottom", "Align bottoms", amRightBottom, true},
        {"btnSpaceV", "Space equally, vertically", amSpace, true},
        {"btnCenterV", "Center vertically in window", amWindowCenter, true},
    };
    for (const auto &b : buttons) {
        QToolButton *button = addButton(QString::fromLatin1(b.name), QString::fromLatin1(b.hint), b.mode, b.vertical);
        layout->addWidget(button, b.vertical ? 1 : 0, int(b.mode) - 1);
    }

    m_menu = new QMenu(this);
    m_menu->setObjectName(QStringLiteral("mnuPalette"));
    m_stayOnTop = m_menu->addAction(QStringLiteral("&Stay on top"));
    m_stayOnTop->setObjectName(QStringLiteral("actStayOnTop"));
    m_stayOnTop->setCheckable(true);
    m_showHints = m_menu->addAction(QStringLiteral("Sho&w hints"));
    m_showHints->setObjectName(QStringLiteral("actShowHints"));
    m_showHints->setCheckable(true);
    m_menu->addSeparator();
    m_hide = m_menu->addAction(QStringLiteral("Hide"));
    m_hide->setObjectName(QStringLiteral("actHide"));
    connect(m_stayOnTop, &QAction::triggered, this, [this](bool on) { changeOption(apStayOnTop, on); });
    connect(m_showHints, &QAction::triggered, this, [this](bool on) { changeOption(apShowHints, on); });
    connect(m_hide, &QAction::triggered, this, &QWidget::hide);

    applyOptions();
    layout->setSizeConstraint(QLayout::SetFixedSize);
    adjustSize();

    // Out of the way of the form being designed: near the top right corner.
    if (QScreen *screen = QGuiApplication::primaryScreen()) {
        const QRect area = screen->availableGeometry();
        move(area.right() - width() - 48, area.top() + 120);
    }
}

QToolButton *TfrmAlignmentPalette::addButton(const QString &name, const QString &hint, TAlignMode mode,
                                             bool vertical)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setIcon(pictogram(mode, vertical));
    button->setIconSize(QSize(kIconSize, kIconSize));
    button->setFocusPolicy(Qt::NoFocus);
    button->setProperty(kHintProperty, hint);
    button->setProperty("alignMode", int(mode));
    connect(button, &QToolButton::clicked, this, [this, mode, vertical] {
        if (onAlign)
            vertical ? onAlign(amNoChange, mode) : onAlign(mode, amNoChange);
    });
    m_buttons << button;
    return button;
}

void TfrmAlignmentPalette::setOptions(TAlignmentPaletteOptions options)
{
    m_options = options;
    applyOptions();
}

void TfrmAlignmentPalette::changeOption(TAlignmentPaletteOption option, bool on)
{
    m_options.setFlag(option, on);
    applyOptions();
    if (onOptionsChanged)
        onOptionsChanged(m_options);
}

void TfrmAlignmentPalette::applyOptions()
{
    const bool onTop = m_options.testFlag(apStayOnTop);
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) != onTop) {
        // Changing the flags hides a shown window.
        const bool shown = isVisible();
        setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
        if (shown)
            show();
    }
    const bool hints = m_options.testFlag(apShowHints);
    const bool flat = m_options.testFlag(apFlatButtons);
    for (QToolButton *button : std::as_const(m_buttons)) {
        button->setToolTip(hints ? button->property(kHintProperty).toString() : QString());
        button->setAutoRaise(flat);
    }
    m_stayOnTop->setChecked(onTop);
    m_showHints->setChecked(hints);
}

void TfrmAlignmentPalette::contextMenuEvent(QContextMenuEvent *event)
{
    m_menu->popup(event->globalPos());
    event->accept();
}
