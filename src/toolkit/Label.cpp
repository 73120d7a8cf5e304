#include "Label.h"

#include <QEvent>
#include <QPainter>
#include <QPaintEvent>

#include "CommonProps.h"

using PropBuilder::prop;

TLabel::TLabel(QWidget *parent) : TControlT<QLabel>(parent)
{
    setParentColor(true);
    setTextFormat(Qt::PlainText);
    setMargin(0);
    setIndent(0);
    applyTextAlignment();
    resize(65, 17);
    attachToParent();
}

QVector<TPropInfo> TLabel::labelProperties()
{
    namespace P = CommonProps;
    return {
        P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
        prop("Alignment", &TLabel::Alignment, &TLabel::setAlignment, enumNames<TAlignment>(),
             QVariant(int(taLeftJustify))),
        prop("AutoSize", &TLabel::AutoSize, &TLabel::setAutoSize, {}, QVariant(true)),
        prop("Caption", &TLabel::Caption, &TLabel::setCaption),
        P::Color(), P::ParentColor(), P::Font(), P::ParentFont(),
        prop("Layout", &TLabel::Layout, &TLabel::setLayout, enumNames<TTextLayout>(), QVariant(int(tlTop))),
        P::Transparent(),
        prop("WordWrap", &TLabel::WordWrap, &TLabel::setWordWrap, {}, QVariant(false)),
        P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(), P::Enabled(),
    };
}

const TClassInfo &TLabel::staticClassInfo()
{
    static const TClassInfo info{QStringLiteral("TLabel"), labelProperties(), [] { return new TLabel; },
                                 /*windowed*/ false, /*acceptsControls*/ false, /*setCaptionFromName*/ true};
    return info;
}

void TLabel::setCaption(const QString &caption)
{
    noteChange();
    setText(caption);
    adjustBounds();
}

void TLabel::setAlignment(TAlignment alignment)
{
    noteChange();
    m_alignment = alignment;
    applyTextAlignment();
}

void TLabel::setLayout(TTextLayout layout)
{
    noteChange();
    m_layout = layout;
    applyTextAlignment();
}

void TLabel::setWordWrap(bool wrap)
{
    noteChange();
    QLabel::setWordWrap(wrap);
    adjustBounds();
}

void TLabel::setAutoSize(bool autoSize)
{
    noteChange();
    m_autoSize = autoSize;
    adjustBounds();
}

void TLabel::applyTextAlignment()
{
    Qt::Alignment a;
    switch (m_alignment) {
    case taLeftJustify: a = Qt::AlignLeft; break;
    case taRightJustify: a = Qt::AlignRight; break;
    case taCenter: a = Qt::AlignHCenter; break;
    }
    switch (m_layout) {
    case tlTop: a |= Qt::AlignTop; break;
    case tlCenter: a |= Qt::AlignVCenter; break;
    case tlBottom: a |= Qt::AlignBottom; break;
    }
    QLabel::setAlignment(a);
}

void TLabel::adjustBounds()
{
    if (!m_autoSize || isLoading() || Align() != alNone)
        return;
    const QFontMetrics fm(font());
    if (wordWrap()) {
        const QRect r = fm.boundingRect(QRect(0, 0, qMax(1, width()), 100000), Qt::TextWordWrap, text());
        resize(width(), qMax(fm.height(), r.height()));
    } else {
        const QString t = text().isEmpty() ? QStringLiteral(" ") : text();
        resize(fm.horizontalAdvance(t), fm.height());
    }
}

void TLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        adjustBounds();
}

void TLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    // An empty label would be invisible while designing; a dotted frame shows where it is.
    if (isDesigning() && text().isEmpty()) {
        QPainter p(this);
        p.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
        p.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}
