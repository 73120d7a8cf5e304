#include "ObjectInspector.h"

#include "Components.h"
#include "Containers.h"
#include "Control.h"
#include "FormDesigner.h"
#include "Maske.h"

#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QScrollArea>
#include <QSet>
#include <QShowEvent>
#include <QStackedWidget>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

// The mask's own parts that the user never edits through the inspector.
bool isHiddenComponent(const QObject *c)
{
    static const QStringList names = {
        QStringLiteral("FormPanel"), QStringLiteral("ScrollBox1"), QStringLiteral("DataSource1"),
        QStringLiteral("Table1"), QStringLiteral("AdvOfficePagerOfficeStyler1"), QStringLiteral("FormDesigner2"),
        QStringLiteral("cxStyleController")};
    if (names.contains(c->objectName()))
        return true;
    return QLatin1String(c->metaObject()->className()) == QLatin1String("TabSheet");
}

QString entryText(QObject *c)
{
    const QString name = c->objectName();
    QString caption;
    if (const TControl *ctl = TControl::from(c))
        caption = ctl->Caption().trimmed();
    if (caption.isEmpty() || caption == name)
        return name;
    return name + QStringLiteral(" – ") + caption;
}

} // namespace

QString TObjInsp::classNameOf(const QWidget *w)
{
    if (const TControl *c = TControl::from(w))
        return c->classInfo().className;
    return QString::fromLatin1(w->metaObject()->className());
}

TObjInsp::TObjInsp(QWidget *parent)
    : QWidget(parent, Qt::Tool)
{
    setObjectName(QStringLiteral("ObjInsp"));
    setWindowTitle(tr("Objekt Inspektor"));
    resize(260, 560);
    setMinimumWidth(220);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);

    // The tool bar holds the component list: a button that drops down the
    // tree of the mask's controls.
    auto *bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("dxBarManager1Bar"));
    bar->setMovable(false);
    m_treeButton = new QToolButton(bar);
    m_treeButton->setObjectName(QStringLiteral("dxBarTreeViewButton"));
    m_treeButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_treeButton->setText(tr("(kein Element)"));
    m_treeButton->setToolTip(tr("Element der Maske auswählen"));
    m_treeButton->setArrowType(Qt::NoArrow);
    m_treeButton->setPopupMode(QToolButton::DelayedPopup);
    m_treeButton->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    bar->addWidget(m_treeButton);
    layout->addWidget(bar);

    m_treePopup = new QFrame(this, Qt::Popup);
    m_treePopup->setObjectName(QStringLiteral("dxBarTreeViewPopup"));
    m_treePopup->setFrameShape(QFrame::StyledPanel);
    auto *popupLayout = new QVBoxLayout(m_treePopup);
    popupLayout->setContentsMargins(1, 1, 1, 1);
    m_tree = new QTreeWidget(m_treePopup);
    m_tree->setObjectName(QStringLiteral("dxBarTreeView"));
    m_tree->setHeaderHidden(true);
    m_tree->setColumnCount(1);
    m_tree->setRootIsDecorated(true);
    popupLayout->addWidget(m_tree);
    connect(m_treeButton, &QToolButton::clicked, this, &TObjInsp::showTreePopup);
    connect(m_tree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *item) { dxBarTreeViewChange(item); });
    connect(m_tree, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem *item) { dxBarTreeViewChange(item); });

    m_header = new QLabel(this);
    m_header->setObjectName(QStringLiteral("HeaderLabel"));
    QFont bold = m_header->font();
    bold.setBold(true);
    m_header->setFont(bold);
    m_header->setContentsMargins(2, 0, 2, 0);
    layout->addWidget(m_header);

    m_notebook = new QStackedWidget(this);
    m_notebook->setObjectName(QStringLiteral("Notebook1"));
    layout->addWidget(m_notebook, 1);

    // Page 0 first; every class page after it in the fixed page order.
    QFormLayout *def = newPage(QStringLiteral("Default"));
    auto *hint = new QLabel(tr("Kein oder mehrere Elemente ausgewählt."));
    hint->setObjectName(QStringLiteral("DefaultHint"));
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignCenter);
    def->addRow(hint);

    m_notebook->setCurrentIndex(0);
    m_header->setText(QString());
    // The palette row sits right under the component list, set off from
    // the page below it.
    buildPalette();
    const int below = layout->indexOf(bar) + 1;
    layout->insertWidget(below, m_palette);
    auto *rule = new QFrame(this);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    layout->insertWidget(below + 1, rule);
}

TObjInsp::~TObjInsp() = default;

// The class pages are a few hundred widgets: they are built when the
// inspector is first needed, not while the program starts.
void TObjInsp::ensurePages()
{
    if (m_pagesBuilt)
        return;
    m_pagesBuilt = true;
    buildPages();
    Q_ASSERT(m_notebook->count() == pageCaptions().size());
    // Wide enough for the widest page: no page is clipped at the right edge.
    int widest = 0;
    for (int i = 0; i < m_notebook->count(); ++i)
        if (auto *page = qobject_cast<QScrollArea *>(m_notebook->widget(i)))
            widest = qMax(widest, page->widget()->minimumSizeHint().width());
    const QMargins margins = layout()->contentsMargins();
    const int chrome = margins.left() + margins.right() + style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2;
    setMinimumWidth(qMax(minimumWidth(), widest + chrome));
    resize(qMax(width(), minimumWidth()), height());
}

QStackedWidget *TObjInsp::Notebook1()
{
    ensurePages();
    return m_notebook;
}

void TObjInsp::showEvent(QShowEvent *event)
{
    ensurePages();
    QWidget::showEvent(event);
}

QString TObjInsp::currentPageCaption() const
{
    const QWidget *page = m_notebook->currentWidget();
    return page ? page->property("pageCaption").toString() : QString();
}

// ---- the mask and its component list ----

void TObjInsp::setActiveMask(TMaske *mask)
{
    m_mask = mask;
    UpdateComponents();
    selectPage();
}

void TObjInsp::UpdateComponents()
{
    // Rebuilding must not count as the user choosing an entry.
    const QSignalBlocker blocker(m_tree);
    QList<TreeEntry> tops, pages;
    if (m_mask) {
        for (QObject *c : Components::components(m_mask->document())) {
            if (!c->isWidgetType() || isHiddenComponent(c))
                continue;
            // Pages go below their page control, once every pager has its entry.
            if (auto *page = qobject_cast<TAdvOfficePage *>(c))
                pages.append({c, entryText(c), page->AdvOfficePager()});
            else
                tops.append({c, entryText(c), nullptr});
        }
    }
    if (!extendTree(tops, pages))
        rebuildTree(tops, pages);
    syncTreeToControl();
    syncPalette();
}

// Appends what is new when the list so far is unchanged at its start; any
// other change (a control gone, renamed, a page without its page control)
// takes a full rebuild.
bool TObjInsp::extendTree(const QList<TreeEntry> &tops, const QList<TreeEntry> &pages)
{
    const auto sameStart = [](const QList<TreeEntry> &listed, const QList<TreeEntry> &wanted) {
        if (listed.size() > wanted.size())
            return false;
        for (qsizetype i = 0; i < listed.size(); ++i) {
            const TreeEntry &a = listed.at(i);
            const TreeEntry &b = wanted.at(i);
            if (a.object != b.object || a.pager != b.pager || a.text != b.text)
                return false;
        }
        return true;
    };
    if (!m_mask || m_listedMask != m_mask || !sameStart(m_listedTops, tops) || !sameStart(m_listedPages, pages))
        return false;
    // A new page whose page control has no entry would be listed at the top
    // level, behind the controls; the rebuild keeps that order.
    QSet<QObject *> newTops;
    for (qsizetype i = m_listedTops.size(); i < tops.size(); ++i)
        newTops.insert(tops.at(i).object);
    for (qsizetype i = m_listedPages.size(); i < pages.size(); ++i)
        if (!m_treeItems.contains(pages.at(i).pager) && !newTops.contains(pages.at(i).pager))
            return false;

    for (qsizetype i = m_listedTops.size(); i < tops.size(); ++i) {
        auto *item = new QTreeWidgetItem(m_tree, {tops.at(i).text});
        item->setData(0, Qt::UserRole, QVariant::fromValue(tops.at(i).object));
        m_treeItems.insert(tops.at(i).object, item);
        m_listedTops.append(tops.at(i));
    }
    for (qsizetype i = m_listedPages.size(); i < pages.size(); ++i) {
        QTreeWidgetItem *pagerItem = m_treeItems.value(pages.at(i).pager);
        auto *item = new QTreeWidgetItem(pagerItem, {pages.at(i).text});
        item->setData(0, Qt::UserRole, QVariant::fromValue(pages.at(i).object));
        m_treeItems.insert(pages.at(i).object, item);
        m_listedPages.append(pages.at(i));
    }
    // Every page control stays open, as after a rebuild.
    for (const TreeEntry &page : std::as_const(m_listedPages))
        if (QTreeWidgetItem *pagerItem = m_treeItems.value(page.pager); pagerItem && !pagerItem->isExpanded())
            pagerItem->setExpanded(true);
    return true;
}

void TObjInsp::rebuildTree(const QList<TreeEntry> &tops, const QList<TreeEntry> &pages)
{
    m_tree->clear();
    m_treeItems.clear();
    m_listedMask = m_mask;
    m_listedTops = tops;
    m_listedPages = pages;
    for (const TreeEntry &e : tops) {
        auto *item = new QTreeWidgetItem(m_tree, {e.text});
        item->setData(0, Qt::UserRole, QVariant::fromValue(e.object));
        m_treeItems.insert(e.object, item);
    }
    for (const TreeEntry &e : pages) {
        QTreeWidgetItem *pagerItem = m_treeItems.value(e.pager);
        auto *item = pagerItem ? new QTreeWidgetItem(pagerItem, {e.text}) : new QTreeWidgetItem(m_tree, {e.text});
        item->setData(0, Qt::UserRole, QVariant::fromValue(e.object));
        m_treeItems.insert(e.object, item);
    }
    if (m_mask)
        m_tree->expandAll();
}

void TObjInsp::showTreePopup()
{
    const int width = qMax(m_treeButton->width(), 220);
    m_treePopup->resize(width, 300);
    m_treePopup->move(m_treeButton->mapToGlobal(QPoint(0, m_treeButton->height())));
    m_treePopup->show();
    m_tree->setFocus();
}

void TObjInsp::dxBarTreeViewChange(QTreeWidgetItem *item)
{
    m_treePopup->hide();
    if (!item || !m_mask)
        return;
    QObject *c = item->data(0, Qt::UserRole).value<QObject *>();
    // The entry may outlive its control when the list was not rebuilt yet.
    if (!c || !Components::components(m_mask->document()).contains(c) || !c->isWidgetType())
        return;
    TFormDesigner *designer = m_mask->FormDesigner2();
    designer->ClearControls();
    designer->AddControl(static_cast<QWidget *>(c));
    selectPage();
}

void TObjInsp::selectControl(QWidget * /*control*/)
{
    // The designer's selection is the truth; the argument only says it changed.
    selectPage();
}

void TObjInsp::syncTreeToControl()
{
    QString text = tr("(kein Element)");
    const QSignalBlocker blocker(m_tree);
    m_tree->setCurrentItem(nullptr);
    if (m_current) {
        if (QTreeWidgetItem *item = m_treeItems.value(m_current.data())) {
            m_tree->setCurrentItem(item);
            text = item->text(0);
        }
    }
    m_treeButton->setText(text);
}

void TObjInsp::selectPage()
{
    ensurePages();
    endBrowsing();
    m_current = nullptr;
    QList<QWidget *> selection;
    if (m_mask)
        selection = m_mask->FormDesigner2()->selection();
    if (!selection.isEmpty())
        m_current = selection.first();

    int page = 0;
    if (selection.size() == 1)
        page = m_pageIndex.value(classNameOf(m_current), 0);
    m_notebook->setCurrentIndex(page);
    m_header->setText(selection.size() == 1 ? m_current->objectName() + QStringLiteral(": ") + classNameOf(m_current)
                          : selection.size() > 1 ? tr("%1 Elemente").arg(selection.size())
                                                 : QString());
    syncTreeToControl();
    syncPalette();
    if (page == 0)
        return;

    m_updating = true;
    fillPage(*pageFor(pageCaptions().at(page)));
    m_updating = false;
}

void TObjInsp::markModified()
{
    if (m_mask)
        m_mask->setModified(true);
}

// ---- form building ----

QFormLayout *TObjInsp::newPage(const QString &caption)
{
    // Each page scrolls on its own, so a tall page never stretches the window.
    auto *scroll = new QScrollArea;
    scroll->setObjectName(QStringLiteral("Page_") + caption);
    scroll->setProperty("pageCaption", caption);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *content = new QWidget;
    auto *form = new QFormLayout(content);
    form->setContentsMargins(6, 6, 6, 6);
    form->setHorizontalSpacing(6);
    form->setVerticalSpacing(5);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    scroll->setWidget(content);
    m_pageIndex.insert(caption, m_notebook->addWidget(scroll));
    return form;
}
