#include "MyBtn.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "CommonProps.h"

using PropBuilder::prop;

TMaskBtn::TMaskBtn(QWidget *parent) : TControlT<QPushButton>(parent)
{
    setAutoDefault(false);
    resize(75, 25);
    attachToParent();
}

const TClassInfo &TMaskBtn::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TMaskBtn"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("Caption", &TMaskBtn::Caption, &TMaskBtn::setCaption),
            P::Font(), P::ParentFont(),
            prop("Colors.NormalText", &TMaskBtn::NormalTextColor, &TMaskBtn::setNormalTextColor, {},
                 QVariant::fromValue(Colors::clDefault)),
            prop("Layout", &TMaskBtn::Layout, &TMaskBtn::setLayout, enumNames<TButtonLayout>(),
                 QVariant(int(blGlyphLeft))),
            prop("Margin", &TMaskBtn::Margin, &TMaskBtn::setMargin, {}, QVariant(-1)),
            prop("ZuweisMaske", &TMaskBtn::ZuweisMaske, &TMaskBtn::setZuweisMaske),
            prop("ZuweisFeld", &TMaskBtn::ZuweisFeld, &TMaskBtn::setZuweisFeld),
            prop("ZuweisFeldEx", &TMaskBtn::ZuweisFeldEx, &TMaskBtn::setZuweisFeldEx),
            prop("IndexFeld", &TMaskBtn::IndexFeld, &TMaskBtn::setIndexFeld),
            prop("ProgExt", &TMaskBtn::ProgExt, &TMaskBtn::setProgExt),
            prop("SectionExt", &TMaskBtn::SectionExt, &TMaskBtn::setSectionExt),
            prop("FoundMask", &TMaskBtn::FoundMask, &TMaskBtn::setFoundMask),
            prop("Language", &TMaskBtn::Language, &TMaskBtn::setLanguage),
            prop("RunAs", &TMaskBtn::RunAs, &TMaskBtn::setRunAs),
            prop("RegelFeld", &TMaskBtn::RegelFeld, &TMaskBtn::setRegelFeld),
            prop("RegelAusdruck", &TMaskBtn::RegelAusdruck, &TMaskBtn::setRegelAusdruck),
            prop("RegelFarbe", &TMaskBtn::RegelFarbe, &TMaskBtn::setRegelFarbe),
            prop("RegelZeile", &TMaskBtn::RegelZeile, &TMaskBtn::setRegelZeile),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(), P::Enabled(),
        },
        [] { return new TMaskBtn; },
        /*windowed*/ true,
        /*acceptsControls*/ false,
        /*setCaptionFromName*/ true};
    return info;
}

void TMaskBtn::setLayout(TButtonLayout layout)
{
    noteChange();
    m_layout = layout;
    update();
}

void TMaskBtn::setMargin(int margin)
{
    noteChange();
    m_margin = std::clamp(margin, -1, 255);
    update();
}

void TMaskBtn::setNormalTextColor(TColor color)
{
    noteChange();
    m_normalText = color;
    applyFontColor();
}

void TMaskBtn::applyFontColor()
{
    TControl::applyFontColor();
    if (!m_normalText.isDefault()) {
        QPalette pal = palette();
        pal.setColor(QPalette::ButtonText, m_normalText.toQColor());
        QPushButton::setPalette(pal);
    }
}

void TMaskBtn::paintEvent(QPaintEvent *)
{
    // The button face comes from the style; the caption is placed by the
    // glyph layout and margin, as the button would place it beside a glyph.
    QStylePainter p(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    p.drawControl(QStyle::CE_PushButton, option);

    const QRect inner = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    int flags = Qt::TextShowMnemonic | Qt::AlignVCenter | Qt::AlignHCenter;
    QRect textRect = inner;
    if (m_margin >= 0) {
        switch (m_layout) {
        case blGlyphLeft:
            flags = (flags & ~Qt::AlignHCenter) | Qt::AlignLeft;
            textRect.setLeft(rect().left() + m_margin);
            break;
        case blGlyphRight:
            flags = (flags & ~Qt::AlignHCenter) | Qt::AlignRight;
            textRect.setRight(rect().right() - m_margin);
            break;
        case blGlyphTop:
            flags = (flags & ~Qt::AlignVCenter) | Qt::AlignTop;
            textRect.setTop(rect().top() + m_margin);
            break;
        case blGlyphBottom:
            flags = (flags & ~Qt::AlignVCenter) | Qt::AlignBottom;
            textRect.setBottom(rect().bottom() - m_margin);
            break;
        }
    }
    p.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    p.drawText(textRect, flags, caption);
}

TDBLabel::TDBLabel(QWidget *parent) : TLabel(parent)
{
}

const TClassInfo &TDBLabel::staticClassInfo()
{
    static const TClassInfo info = [] {
        TClassInfo i{QStringLiteral("TDBLabel"), labelProperties(), [] { return new TDBLabel; }, false, false,
                     true};
        i.properties << prop("DataField", &TDBLabel::DataField, &TDBLabel::setDataField)
                     << prop("DataSource", &TDBLabel::DataSource, &TDBLabel::setDataSource)
                     << prop("BrowserEdit", &TDBLabel::BrowserEdit, &TDBLabel::setBrowserEdit, {},
                             QVariant(false));
        return i;
    }();
    return info;
}
