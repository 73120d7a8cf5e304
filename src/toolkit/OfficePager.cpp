#include <QCoreApplication>
#include <QEvent>
#include <QPainter>

#include <iterator>

#include "CommonProps.h"
#include "Containers.h"

using PropBuilder::prop;

namespace {
// Tab, chosen tab, border and tab text of each office style.
struct OfficeStyleColors
{
    const char *tab;
    const char *chosen;
    const char *border;
    const char *text;
};
const OfficeStyleColors kOfficeStyles[] = {
    {"#c3daf9", "#fbfdff", "#3b619c", "#15428b"}, // Office2003 Blau
    {"#e2e2ea", "#fbfbfd", "#7c7c94", "#3f3f52"}, // Office2003 Silber
    {"#dfe6c2", "#fbfcf6", "#60804d", "#3d5728"}, // Office2003 Olive
    {"#d4d0c8", "#fbfbfa", "#808080", "#000000"}, // Office2003 Klassik
    {"#d7e6f9", "#ffffff", "#8db2e3", "#15428b"}, // Office2007 Luna
    {"#5a5e66", "#e6e9ed", "#2f3236", "#ffffff"}, // Office2007 Obsidian
    {"#ecebe6", "#ffffff", "#919b9c", "#000000"}, // WindowsXP
    {"#e6e4d6", "#fcfcfe", "#aca899", "#000000"}, // Whidbey
    {nullptr, nullptr, nullptr, nullptr},          // Custom
    {"#e3e7ec", "#ffffff", "#a5acb5", "#4c535c"}, // Office2007 Silber
};

const OfficeStyleColors *officeStyle(int style)
{
    return style >= 0 && style < int(std::size(kOfficeStyles)) && kOfficeStyles[style].tab ? &kOfficeStyles[style]
                                                                                          : nullptr;
}
} // namespace

const char *const TAdvOfficePager::kStyleProperty = "officePagerStyle";

// ---- TAdvOfficePager ----

TAdvOfficePager::TAdvOfficePager(QWidget *parent)
    : TControlT<QWidget>(parent), m_tabBar(new QTabBar(this))
{
    m_tabBar->setObjectName(QStringLiteral("_tabs"));
    m_tabBar->setDrawBase(false);
    m_tabBar->setExpanding(false);
    m_tabBar->setFocusPolicy(Qt::NoFocus);
    connect(m_tabBar, &QTabBar::currentChanged, this, [this](int index) {
        if (!m_syncing)
            setActivePageIndex(index);
    });
    setParentColor(true);
    resize(300, 150);
    attachToParent();
    adoptInheritedStyle();
}

void TAdvOfficePager::setOfficeStyle(int style)
{
    noteChange();
    if (style == m_officeStyle)
        return;
    m_officeStyle = style;
    const OfficeStyleColors *c = officeStyle(style);
    m_tabBar->setStyleSheet(
        c ? QStringLiteral("QTabBar::tab { background: %1; color: %4; border: 1px solid %3; padding: 3px 10px; }"
                           "QTabBar::tab:selected { background: %2; color: #000000; }")
                .arg(QLatin1String(c->tab), QLatin1String(c->chosen), QLatin1String(c->border),
                     QLatin1String(c->text))
          : QString());
    layoutPages();
}

void TAdvOfficePager::adoptInheritedStyle()
{
    for (const QWidget *w = parentWidget(); w; w = w->parentWidget()) {
        const QVariant style = w->property(kStyleProperty);
        if (style.isValid()) {
            setOfficeStyle(style.toInt());
            return;
        }
    }
}

void TAdvOfficePager::parentWidgetChanged(QWidget *)
{
    adoptInheritedStyle();
}

TAdvOfficePager::~TAdvOfficePager()
{
    // The pages are destroyed after this part of the pager; they must not call back.
    for (TAdvOfficePage *page : std::as_const(m_pages))
        page->m_pager = nullptr;
}

const TClassInfo &TAdvOfficePager::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TAdvOfficePager"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("ActivePageIndex", &TAdvOfficePager::ActivePageIndex, &TAdvOfficePager::setActivePageIndex),
            P::Font(), P::ParentFont(),
            prop("TabPosition", &TAdvOfficePager::TabPosition, &TAdvOfficePager::setTabPosition,
                 enumNames<TTabPosition>(), QVariant(int(tpTop))),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(), P::Enabled(),
        },
        [] { return new TAdvOfficePager; },
        /*windowed*/ true};
    return info;
}

TAdvOfficePage *TAdvOfficePager::Pages(int index) const
{
    return index >= 0 && index < m_pages.size() ? m_pages.at(index) : nullptr;
}

int TAdvOfficePager::indexOfPage(const TAdvOfficePage *page) const
{
    return int(m_pages.indexOf(const_cast<TAdvOfficePage *>(page)));
}

TAdvOfficePage *TAdvOfficePager::ActivePage() const
{
    return Pages(m_activeIndex);
}

void TAdvOfficePager::setActivePage(TAdvOfficePage *page)
{
    noteChange();
    setActivePageIndex(indexOfPage(page));
}

void TAdvOfficePager::setActivePageIndex(int index)
{
    noteChange();
    if (index < 0 || index >= m_pages.size())
        return;
    const bool changed = index != m_activeIndex;
    m_activeIndex = index;
    for (int i = 0; i < m_pages.size(); ++i)
        m_pages.at(i)->QWidget::setVisible(i == index);
    syncTabs();
    if (changed)
        emit activePageChanged(index);
}

void TAdvOfficePager::setTabPosition(TTabPosition position)
{
    noteChange();
    m_tabPosition = position;
    static const QTabBar::Shape shapes[] = {QTabBar::RoundedNorth, QTabBar::RoundedSouth, QTabBar::RoundedWest,
                                            QTabBar::RoundedEast};
    m_tabBar->setShape(shapes[position]);
    layoutPages();
}

void TAdvOfficePager::addPage(TAdvOfficePage *page)
{
    if (!page)
        return;
    if (page->parentWidget() != this)
        page->setParent(this); // joins through the page's parent change
    else if (!m_pages.contains(page))
        insertPage(page, int(m_pages.size()));
}

void TAdvOfficePager::insertPage(TAdvOfficePage *page, int index)
{
    if (m_pages.contains(page))
        return;
    m_pages.insert(std::clamp(index, 0, int(m_pages.size())), page);
    page->m_pager = this;
    layoutPages();
    if (m_activeIndex < 0)
        setActivePageIndex(0);
    else {
        // Keep the same page active; the new one stays hidden behind it.
        TAdvOfficePage *active = m_pages.value(m_activeIndex);
        if (active == page)
            active = m_pages.value(m_activeIndex + 1);
        m_activeIndex = indexOfPage(active);
        for (int i = 0; i < m_pages.size(); ++i)
            m_pages.at(i)->QWidget::setVisible(i == m_activeIndex);
        syncTabs();
    }
}

void TAdvOfficePager::removePage(TAdvOfficePage *page)
{
    const int index = indexOfPage(page);
    if (index < 0)
        return;
    TAdvOfficePage *active = ActivePage();
    m_pages.removeAt(index);
    page->m_pager = nullptr;
    if (m_pages.isEmpty()) {
        m_activeIndex = -1;
        syncTabs();
        return;
    }
    if (active == page) {
        m_activeIndex = -1;
        setActivePageIndex(std::min(index, int(m_pages.size()) - 1));
    } else {
        m_activeIndex = indexOfPage(active);
        syncTabs();
    }
}

void TAdvOfficePager::movePage(TAdvOfficePage *page, int index)
{
    const int from = indexOfPage(page);
    if (from < 0)
        return;
    TAdvOfficePage *active = ActivePage();
    m_pages.move(from, std::clamp(index, 0, int(m_pages.size()) - 1));
    m_activeIndex = indexOfPage(active);
    syncTabs();
}

void TAdvOfficePager::pageCaptionChanged(TAdvOfficePage *page)
{
    const int index = indexOfPage(page);
    if (index >= 0)
        m_tabBar->setTabText(index, page->Caption());
}

void TAdvOfficePager::syncTabs()
{
    m_syncing = true;
    while (m_tabBar->count() > m_pages.size())
        m_tabBar->removeTab(m_tabBar->count() - 1);
    for (int i = 0; i < m_pages.size(); ++i) {
        if (i < m_tabBar->count())
            m_tabBar->setTabText(i, m_pages.at(i)->Caption());
        else
            m_tabBar->addTab(m_pages.at(i)->Caption());
    }
    m_tabBar->setCurrentIndex(m_activeIndex);
    m_syncing = false;
    layoutPages();
}

QRect TAdvOfficePager::pageRect() const
{
    const QSize hint = m_tabBar->sizeHint();
    QRect r = rect().adjusted(1, 1, -1, -1);
    switch (m_tabPosition) {
    case tpTop: r.setTop(hint.height()); break;
    case tpBottom: r.setBottom(height() - hint.height() - 1); break;
    case tpLeft: r.setLeft(hint.width()); break;
    case tpRight: r.setRight(width() - hint.width() - 1); break;
    }
    return r;
}

void TAdvOfficePager::layoutPages()
{
    const QSize hint = m_tabBar->sizeHint();
    switch (m_tabPosition) {
    case tpTop: m_tabBar->setGeometry(2, 0, std::min(hint.width(), width() - 4), hint.height()); break;
    case tpBottom:
        m_tabBar->setGeometry(2, height() - hint.height(), std::min(hint.width(), width() - 4), hint.height());
        break;
    case tpLeft: m_tabBar->setGeometry(0, 2, hint.width(), std::min(hint.height(), height() - 4)); break;
    case tpRight:
        m_tabBar->setGeometry(width() - hint.width(), 2, hint.width(), std::min(hint.height(), height() - 4));
        break;
    }
    const QRect r = pageRect();
    for (TAdvOfficePage *page : std::as_const(m_pages))
        page->setGeometry(r);
    m_tabBar->raise();
    update();
}

void TAdvOfficePager::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layoutPages();
}

void TAdvOfficePager::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_tabBar->setFont(font());
        layoutPages();
    }
}

void TAdvOfficePager::applyFontColor()
{
    TControl::applyFontColor();
    m_tabBar->setPalette(palette());
}

void TAdvOfficePager::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    const QRect r = pageRect().adjusted(-1, -1, 0, 0);
    const OfficeStyleColors *style = officeStyle(m_officeStyle);
    p.setPen(style ? QColor(QLatin1String(style->border)) : Colors::clBtnShadow.toQColor(palette()));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r);
    if (m_pages.isEmpty() && isDesigning()) {
        p.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
        p.drawText(r, Qt::AlignCenter, QCoreApplication::translate("TAdvOfficePager", "(keine Seiten)"));
    }
}

// ---- TAdvOfficePage ----

TAdvOfficePage::TAdvOfficePage(QWidget *parent) : TControlT<QWidget>(parent)
{
    setColor(Colors::clBtnFace);
    attachToParent();
}

TAdvOfficePage::~TAdvOfficePage()
{
    if (m_pager)
        m_pager->removePage(this);
}

const TClassInfo &TAdvOfficePage::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TAdvOfficePage"),
        {
            prop("Caption", &TAdvOfficePage::Caption, &TAdvOfficePage::setCaption),
            P::Color(), P::ParentColor(), P::Font(), P::ParentFont(),
            prop("PageIndex", &TAdvOfficePage::PageIndex, &TAdvOfficePage::setPageIndex),
            P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(),
        },
        [] { return new TAdvOfficePage; },
        /*windowed*/ true,
        /*acceptsControls*/ true,
        /*setCaptionFromName*/ true};
    return info;
}

void TAdvOfficePage::setCaption(const QString &caption)
{
    noteChange();
    m_caption = caption;
    if (m_pager)
        m_pager->pageCaptionChanged(this);
}

int TAdvOfficePage::PageIndex() const
{
    return m_pager ? m_pager->indexOfPage(this) : -1;
}

void TAdvOfficePage::setPageIndex(int index)
{
    noteChange();
    if (m_pager)
        m_pager->movePage(this, index);
}

void TAdvOfficePage::parentWidgetChanged(QWidget *)
{
    if (m_pager && m_pager != parentWidget())
        m_pager->removePage(this);
    if (auto *pager = qobject_cast<TAdvOfficePager *>(parentWidget()))
        pager->insertPage(this, pager->PageCount());
}
