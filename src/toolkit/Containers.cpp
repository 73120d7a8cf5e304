#include "Containers.h"

#include <QEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>
#include <cmath>

#include "CommonProps.h"

using PropBuilder::prop;

// ---- TPanel ----

TPanel::TPanel(QWidget *parent) : TControlT<QWidget>(parent)
{
    setColor(Colors::clBtnFace);
    resize(185, 41);
    attachToParent();
}

const TClassInfo &TPanel::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TPanel"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("Alignment", &TPanel::Alignment, &TPanel::setAlignment, enumNames<TAlignment>(),
                 QVariant(int(taCenter))),
            prop("BevelInner", &TPanel::BevelInner, &TPanel::setBevelInner, enumNames<TPanelBevel>(),
                 QVariant(int(bvNone))),
            prop("BevelOuter", &TPanel::BevelOuter, &TPanel::setBevelOuter, enumNames<TPanelBevel>(),
                 QVariant(int(bvRaised))),
            prop("BevelWidth", &TPanel::BevelWidth, &TPanel::setBevelWidth, {}, QVariant(1)),
            prop("BorderStyle", &TPanel::BorderStyle, &TPanel::setBorderStyle, enumNames<TBorderStyle>(),
                 QVariant(int(bsNone))),
            prop("BorderWidth", &TPanel::BorderWidth, &TPanel::setBorderWidth, {}, QVariant(0)),
            prop("Caption", &TPanel::Caption, &TPanel::setCaption),
            P::Color(), P::ParentColor(),
            prop("Ctl3D", &TPanel::Ctl3D, &TPanel::setCtl3D, {}, QVariant(true)),
            P::Font(), P::ParentFont(), P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(),
            P::Enabled(),
        },
        [] { return new TPanel; },
        /*windowed*/ true,
        /*acceptsControls*/ true,
        /*setCaptionFromName*/ true};
    return info;
}

void TPanel::changed()
{
    update();
    ControlLayout::alignControls(this);
}

void TPanel::setCaption(const QString &caption)
{
    noteChange();
    m_caption = caption;
    update();
}

void TPanel::setAlignment(TAlignment alignment)
{
    noteChange();
    m_alignment = alignment;
    update();
}

void TPanel::setBevelInner(TPanelBevel bevel)
{
    noteChange();
    m_bevelInner = bevel;
    changed();
}

void TPanel::setBevelOuter(TPanelBevel bevel)
{
    noteChange();
    m_bevelOuter = bevel;
    changed();
}

void TPanel::setBevelWidth(int width)
{
    noteChange();
    m_bevelWidth = std::clamp(width, 1, 100);
    changed();
}

void TPanel::setBorderStyle(TBorderStyle style)
{
    noteChange();
    m_borderStyle = style;
    changed();
}

void TPanel::setBorderWidth(int width)
{
    noteChange();
    m_borderWidth = std::clamp(width, 0, 100);
    changed();
}

void TPanel::setCtl3D(bool ctl3D)
{
    noteChange();
    m_ctl3D = ctl3D;
    changed();
}

QRect TPanel::alignClientRect() const
{
    int inset = m_borderWidth;
    if (m_borderStyle == bsSingle)
        inset += m_ctl3D ? 2 : 1;
    if (m_bevelOuter != bvNone)
        inset += m_bevelWidth;
    if (m_bevelInner != bvNone)
        inset += m_bevelWidth;
    return rect().adjusted(inset, inset, -inset, -inset);
}

void TPanel::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    const QPalette &pal = palette();
    const QColor light = Colors::clBtnHighlight.toQColor(pal);
    const QColor dark = Colors::clBtnShadow.toQColor(pal);
    QRect r = rect();
    auto frame = [&p, &r](const QColor &topLeft, const QColor &bottomRight, int width) {
        for (int i = 0; i < width && r.width() > 1 && r.height() > 1; ++i) {
            p.setPen(topLeft);
            p.drawLine(r.left(), r.top(), r.right(), r.top());
            p.drawLine(r.left(), r.top(), r.left(), r.bottom());
            p.setPen(bottomRight);
            p.drawLine(r.left(), r.bottom(), r.right(), r.bottom());
            p.drawLine(r.right(), r.top(), r.right(), r.bottom());
            r.adjust(1, 1, -1, -1);
        }
    };
    auto bevel = [&](TPanelBevel kind) {
        switch (kind) {
        case bvNone: break;
        case bvLowered: frame(dark, light, m_bevelWidth); break;
        case bvRaised: frame(light, dark, m_bevelWidth); break;
        case bvSpace: r.adjust(m_bevelWidth, m_bevelWidth, -m_bevelWidth, -m_bevelWidth); break;
        }
    };
    if (m_borderStyle == bsSingle) {
        if (m_ctl3D) {
            frame(dark, light, 1);
            frame(Colors::cl3DDkShadow.toQColor(pal), Colors::cl3DLight.toQColor(pal), 1);
        } else {
            frame(Colors::clWindowFrame.toQColor(pal), Colors::clWindowFrame.toQColor(pal), 1);
        }
    }
    bevel(m_bevelOuter);
    r.adjust(m_borderWidth, m_borderWidth, -m_borderWidth, -m_borderWidth);
    bevel(m_bevelInner);

    if (!m_caption.isEmpty()) {
        int flags = Qt::AlignVCenter | Qt::TextSingleLine;
        flags |= m_alignment == taLeftJustify ? Qt::AlignLeft
                                              : (m_alignment == taRightJustify ? Qt::AlignRight : Qt::AlignHCenter);
        p.setPen(pal.color(QPalette::WindowText));
        p.setFont(font());
        p.drawText(r.adjusted(2, 0, -2, 0), flags, m_caption);
    }
}

// ---- TDBRadioGroup ----

TDBRadioGroup::TDBRadioGroup(QWidget *parent) : TControlT<QGroupBox>(parent)
{
    setParentColor(true);
    resize(185, 105);
    attachToParent();
}

const TClassInfo &TDBRadioGroup::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TDBRadioGroup"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("Caption", &TDBRadioGroup::Caption, &TDBRadioGroup::setCaption),
            P::Color(), P::ParentColor(),
            prop("Columns", &TDBRadioGroup::Columns, &TDBRadioGroup::setColumns, {}, QVariant(1)),
            prop("DataField", &TDBRadioGroup::DataField, &TDBRadioGroup::setDataField),
            P::Font(), P::ParentFont(),
            prop("Items", &TDBRadioGroup::Items, &TDBRadioGroup::setItems),
            prop("ItemIndex", &TDBRadioGroup::ItemIndex, &TDBRadioGroup::setItemIndex, {}, QVariant(-1)),
            prop("ReadOnly", &TDBRadioGroup::ReadOnly, &TDBRadioGroup::setReadOnly, {}, QVariant(false)),
            prop("Values", &TDBRadioGroup::Values, &TDBRadioGroup::setValues),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(), P::Enabled(),
        },
        [] { return new TDBRadioGroup; },
        /*windowed*/ true,
        /*acceptsControls*/ false,
        /*setCaptionFromName*/ true};
    return info;
}

void TDBRadioGroup::setItems(const QStringList &items)
{
    noteChange();
    const int index = ItemIndex();
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_items = items;
    // More buttons than this would not fit on any screen, and each costs a
    // widget; the items beyond them are kept all the same.
    constexpr int kMaxButtons = 1024;
    for (const QString &item : items.mid(0, kMaxButtons)) {
        auto *button = new QRadioButton(item, this);
        button->setAttribute(Qt::WA_TransparentForMouseEvents, isDesigning() || m_readOnly);
        button->setFocusPolicy(isDesigning() ? Qt::NoFocus : Qt::StrongFocus);
        button->show();
        m_buttons << button;
    }
    setItemIndex(index);
    arrangeButtons();
}

void TDBRadioGroup::setColumns(int columns)
{
    noteChange();
    m_columns = std::clamp(columns, 1, 16);
    arrangeButtons();
}

int TDBRadioGroup::ItemIndex() const
{
    for (int i = 0; i < m_buttons.size(); ++i)
        if (m_buttons.at(i)->isChecked())
            return i;
    return -1;
}

void TDBRadioGroup::setItemIndex(int index)
{
    noteChange();
    index = std::clamp(index, -1, int(m_buttons.size()) - 1);
    // Radio buttons of one parent exclude each other; unchecking needs that off.
    for (int i = 0; i < m_buttons.size(); ++i) {
        QRadioButton *b = m_buttons.at(i);
        b->setAutoExclusive(false);
        b->setChecked(i == index);
        b->setAutoExclusive(true);
    }
}

void TDBRadioGroup::setReadOnly(bool readOnly)
{
    noteChange();
    m_readOnly = readOnly;
    designingChanged();
}

void TDBRadioGroup::designingChanged()
{
    for (QRadioButton *b : std::as_const(m_buttons)) {
        b->setAttribute(Qt::WA_TransparentForMouseEvents, isDesigning() || m_readOnly);
        b->setFocusPolicy(isDesigning() ? Qt::NoFocus : Qt::StrongFocus);
    }
}

void TDBRadioGroup::resizeEvent(QResizeEvent *event)
{
    QGroupBox::resizeEvent(event);
    arrangeButtons();
}

void TDBRadioGroup::arrangeButtons()
{
    if (m_buttons.isEmpty())
        return;
    // The items fill the area below the caption in columns of equal width,
    // each row as high as the area divided by the number of rows.
    const QRect area = contentsRect().adjusted(8, 0, -4, -2);
    const int count = int(m_buttons.size());
    const int rows = (count + m_columns - 1) / m_columns;
    const int columnWidth = area.width() / m_columns;
    const int rowHeight = std::max(1, area.height() / rows);
    const int buttonHeight = std::min(rowHeight, m_buttons.first()->sizeHint().height());
    for (int i = 0; i < count; ++i) {
        const int column = i / rows;
        const int row = i % rows;
        const int top = area.top() + row * rowHeight + (rowHeight - buttonHeight) / 2;
        m_buttons.at(i)->setGeometry(area.left() + column * columnWidth, top, columnWidth, buttonHeight);
    }
}

// ---- TTabSet ----

TTabSet::TTabSet(QWidget *parent) : TControlT<QTabBar>(parent)
{
    setShape(QTabBar::RoundedSouth);
    setDrawBase(true);
    setExpanding(false);
    setDocumentMode(true);
    setParentColor(true);
    resize(185, 21);
    attachToParent();
}

const TClassInfo &TTabSet::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TTabSet"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(), P::Font(), P::ParentFont(),
            prop("Tabs", &TTabSet::Tabs, &TTabSet::setTabs),
            prop("TabIndex", &TTabSet::TabIndex, &TTabSet::setTabIndex, {}, QVariant(-1)),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(), P::Enabled(),
        },
        [] { return new TTabSet; },
        /*windowed*/ true};
    return info;
}

QStringList TTabSet::Tabs() const
{
    QStringList tabs;
    for (int i = 0; i < count(); ++i)
        tabs << tabText(i);
    return tabs;
}

void TTabSet::setTabs(const QStringList &tabs)
{
    noteChange();
    while (count() > 0)
        removeTab(count() - 1);
    for (const QString &t : tabs)
        addTab(t);
}

void TTabSet::setTabIndex(int index)
{
    noteChange();
    if (index >= -1 && index < count())
        setCurrentIndex(index);
}

void TTabSet::applyColor()
{
    // The strip itself is drawn by the style; it shows its parent around the tabs.
    setAutoFillBackground(false);
}
