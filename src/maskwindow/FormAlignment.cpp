#include "FormAlignment.h"

#include <QGridLayout>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>

#include "FormDesigner.h"

namespace {

constexpr int kIconSize = 16;

// Pictures for the horizontal codes; the vertical ones are the same drawn
// mirrored at the diagonal. Grey lines are the guides, blue boxes the controls.
void paintAlignment(QPainter &p, int tag)
{
    const QColor box(0x2f, 0x5f, 0xa8);
    const QColor guide(0x60, 0x60, 0x60);
    const auto bar = [&](int x, int y, int w, int h) {
        p.fillRect(QRect(x, y, w, h), box.lighter(140));
        p.setPen(box);
        p.drawRect(QRect(x, y, w - 1, h - 1));
    };
    const auto guideLine = [&](int x, bool dotted) {
        for (int y = 0; y < kIconSize; y += dotted ? 2 : 1)
            p.fillRect(QRect(x, y, 1, 1), guide);
    };
    switch (tag) {
    case 1: // left edges
        guideLine(1, false);
        bar(2, 3, 12, 4);
        bar(2, 9, 8, 4);
        break;
    case 2: // centres
        guideLine(7, true);
        bar(1, 3, 14, 4);
        bar(4, 9, 8, 4);
        break;
    case 3: // right edges
        guideLine(14, false);
        bar(2, 3, 12, 4);
        bar(6, 9, 8, 4);
        break;
    case 4: // equal spaces between
        bar(0, 4, 4, 8);
        bar(6, 4, 4, 8);
        bar(12, 4, 4, 8);
        p.fillRect(QRect(4, 7, 2, 1), guide);
        p.fillRect(QRect(10, 7, 2, 1), guide);
        break;
    case 5: // centred in the window
        p.setPen(guide);
        p.drawRect(QRect(0, 1, kIconSize - 1, kIconSize - 3));
        guideLine(7, true);
        bar(4, 5, 8, 6);
        break;
    default:
        break;
    }
}

QIcon alignmentIcon(int tag, bool vertical)
{
    QIcon icon;
    for (int scale = 1; scale <= 2; ++scale) {
        QPixmap pixmap(kIconSize * scale, kIconSize * scale);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        if (vertical)
            p.setTransform(QTransform(0, 1, 1, 0, 0, 0));
        paintAlignment(p, tag);
        p.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

TFormAlignment::TFormAlignment(QWidget *parent)
    : QWidget(parent, Qt::Tool)
{
    setObjectName(QStringLiteral("FormAlignment"));
    setWindowTitle(tr("Ausrichtung"));

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(2);
    const struct
    {
        const char *name;
        const char *hint;
        int tag;
        bool vertical;
    } buttons[] = {
        {"SBALeft", QT_TR_NOOP("Linksbündig"), 1, false},
        {"SBAHCenter", QT_TR_NOOP("Horizontal zentrieren"), 2, false},
        {"SBARight", QT_TR_NOOP("Rechtsbündig"), 3, false},
        {"SBSizeH", QT_TR_NOOP("gleicher Abstand Horizontal"), 4, false},
        {"SBHCenter", QT_TR_NOOP("Horizontal ausrichten"), 5, false},
        {"SBATop", QT_TR_NOOP("Oben ausrichten"), 1, true},
        {"SBAVCenter", QT_TR_NOOP("Vertikal zentrierern"), 2, true},
        {"SBABottom", QT_TR_NOOP("Unten ausrichten"), 3, true},
        {"SBSizeV", QT_TR_NOOP("gleicher Abstand Vertikal"), 4, true},
        {"SBVCenter", QT_TR_NOOP("Vertikal ausrichten"), 5, true},
    };
    for (const auto &b : buttons) {
        QToolButton *button = addButton(QString::fromLatin1(b.name), tr(b.hint), b.tag, b.vertical);
        grid->addWidget(button, b.vertical ? 1 : 0, b.tag - 1);
    }
    grid->setSizeConstraint(QLayout::SetFixedSize);
}

QToolButton *TFormAlignment::addButton(const QString &name, const QString &hint, int tag, bool vertical)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setToolTip(hint);
    button->setIcon(alignmentIcon(tag, vertical));
    button->setIconSize(QSize(kIconSize, kIconSize));
    button->setFixedSize(kIconSize + 10, kIconSize + 10);
    button->setFocusPolicy(Qt::NoFocus);
    button->setProperty("Tag", tag);
    button->setProperty("Vertical", vertical);
    connect(button, &QToolButton::clicked, this, [this, tag, vertical] { align(tag, vertical); });
    return button;
}

void TFormAlignment::align(int tag, bool vertical)
{
    TCustomFormDesigner *designer = activeDesigner ? activeDesigner() : nullptr;
    if (!designer)
        return;
    const TAlignMode mode = TAlignMode(tag);
    if (vertical)
        designer->AlignControls(amNoChange, mode);
    else
        designer->AlignControls(mode, amNoChange);
}
