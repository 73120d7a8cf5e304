// The inspector's own palette ("Componet Menu"): one button per page, to look
// at the page of a control class without a control of that class selected.
#include "ObjectInspector.h"

#include "ControlKinds.h"
#include "Maske.h"

#include <QButtonGroup>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>

namespace {

// Lays the buttons out in rows as wide as the window, so the palette stays
// a few lines high in the narrow tool window and one line in a wide one.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(QWidget *parent)
        : QLayout(parent)
    {
        setContentsMargins(0, 0, 0, 0);
        setSpacing(1);
    }
    ~FlowLayout() override
    {
        while (QLayoutItem *item = FlowLayout::takeAt(0))
            delete item;
    }

    void addItem(QLayoutItem *item) override { m_items.append(item); }
    int count() const override { return int(m_items.size()); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override
    {
        return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
    }
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return arrange(QRect(0, 0, width, 0), false); }
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override
    {
        QSize size;
        for (const QLayoutItem *item : m_items)
            size = size.expandedTo(item->minimumSize());
        const QMargins m = contentsMargins();
        return size + QSize(m.left() + m.right(), m.top() + m.bottom());
    }
    void setGeometry(const QRect &rect) override
    {
        QLayout::setGeometry(rect);
        arrange(rect, true);
    }

private:
    // Returns the height the items take in rect's width; places them when asked.
    int arrange(const QRect &rect, bool place) const
    {
        const QRect r = rect.marginsRemoved(contentsMargins());
        int x = r.x();
        int y = r.y();
        int rowHeight = 0;
        for (QLayoutItem *item : m_items) {
            const QSize size = item->sizeHint();
            if (x > r.x() && x + size.width() > r.right() + 1) {
                x = r.x();
                y += rowHeight + spacing();
                rowHeight = 0;
            }
            if (place)
                item->setGeometry(QRect(QPoint(x, y), size));
            x += size.width() + spacing();
            rowHeight = qMax(rowHeight, size.height());
        }
        const QMargins m = contentsMargins();
        return y + rowHeight - rect.y() + m.bottom();
    }

    QList<QLayoutItem *> m_items;
};

} // namespace

void TObjInsp::buildPalette()
{
    m_palette = new QWidget(this);
    m_palette->setObjectName(QStringLiteral("ComponetMenu"));
    m_palette->setWindowTitle(QStringLiteral("Componet Menu"));
    m_palette->setAccessibleName(QStringLiteral("Componet Menu"));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    m_palette->setSizePolicy(policy);
    // A notch smaller than the pages: the palette is a tool strip, not a form.
    QFont small = font();
    if (small.pointSizeF() > 0)
        small.setPointSizeF(qMax(6.0, small.pointSizeF() - 1));
    m_palette->setFont(small);

    auto *flow = new FlowLayout(m_palette);
    m_paletteGroup = new QButtonGroup(m_palette);
    m_paletteGroup->setExclusive(true);
    int number = 1;
    for (const QString &page : pageCaptions()) {
        // The short captions come from the kinds table; the first page is
        // the current control's own.
        const TControlKind *kind = ControlKinds::byClass(page);
        auto *button = new QToolButton(m_palette);
        button->setObjectName(QStringLiteral("BarButton%1").arg(number++));
        button->setText(kind ? QLatin1String(kind->inspectorCaption) : page);
        button->setToolTip(page == QLatin1String("Default") ? tr("Seite des ausgewählten Elements")
                                                            : tr("Seite %1 ansehen").arg(page));
        button->setProperty("pageCaption", page);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        m_paletteGroup->addButton(button);
        m_paletteButtons.insert(page, button);
        flow->addWidget(button);
        if (page == QLatin1String("Default"))
            connect(button, &QToolButton::clicked, this, &TObjInsp::BarButton1Click);
        else
            connect(button, &QToolButton::clicked, this, [this, button] { BarButton2Click(button); });
    }
    syncPalette();
}

void TObjInsp::BarButton1Click()
{
    // Back to the page of the current control, as the selection has it.
    selectPage();
}

void TObjInsp::BarButton2Click(QToolButton *Sender)
{
    const QString caption = Sender->property("pageCaption").toString();
    selectPage();
    if (currentPageCaption() == caption)
        return; // the current control's own page: edited as usual

    // Only to look at: the updating flag stays set so that no editor writes
    // into the current control, and the editors are greyed to say so.
    m_browsing = true;
    m_updating = true;
    m_notebook->setCurrentIndex(m_pageIndex.value(caption, 0));
    if (auto *scroll = qobject_cast<QScrollArea *>(m_notebook->currentWidget())) {
        m_browsedContent = scroll->widget();
        m_browsedContent->setEnabled(false);
    }
    m_header->setText(caption + tr(" (nur Ansicht)"));
    syncPalette();
}

void TObjInsp::endBrowsing()
{
    m_browsing = false;
    m_updating = false;
    if (m_browsedContent)
        m_browsedContent->setEnabled(true);
    m_browsedContent = nullptr;
}

void TObjInsp::syncPalette()
{
    if (QToolButton *button = m_paletteButtons.value(currentPageCaption()))
        button->setChecked(true);
}
