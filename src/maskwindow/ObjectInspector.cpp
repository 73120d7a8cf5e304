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
#include <QStackedWidget>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
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
    setWindowTitle(QStringLiteral("Objekt Inspektor"));
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
    m_treeButton->setText(QStringLiteral("(kein Element)"));
    m_treeButton->setToolTip(QStringLiteral("Element der Maske auswählen"));
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
    auto *hint = new QLabel(QStringLiteral("Kein oder mehrere Elemente ausgewählt."));
    hint->setObjectName(QStringLiteral("DefaultHint"));
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignCenter);
    def->addRow(hint);

    buildPages();
    Q_ASSERT(m_notebook->count() == pageCaptions().size());
    // Wide enough for the widest page: no page is clipped at the right edge.
    int widest = 0;
    for (int i = 0; i < m_notebook->count(); ++i)
        if (auto *page = qobject_cast<QScrollArea *>(m_notebook->widget(i)))
            widest = qMax(widest, page->widget()->minimumSizeHint().width());
    const int chrome = layout->contentsMargins().left() + layout->contentsMargins().right()
                       + style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2;
    setMinimumWidth(qMax(minimumWidth(), widest + chrome));
    resize(qMax(width(), minimumWidth()), height());

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
    m_tree->clear();
    if (m_mask) {
        QHash<QObject *, QTreeWidgetItem *> items;
        QList<QObject *> pages;
        for (QObject *c : Components::components(m_mask->document())) {
            if (!c->isWidgetType() || isHiddenComponent(c))
                continue;
            if (qobject_cast<TAdvOfficePage *>(c)) {
                pages << c; // below their page control, once every pager has its entry
                continue;
            }
            auto *item = new QTreeWidgetItem(m_tree, {entryText(c)});
            item->setData(0, Qt::UserRole, QVariant::fromValue(c));
            items.insert(c, item);
        }
        for (QObject *c : pages) {
            QTreeWidgetItem *pagerItem = items.value(static_cast<TAdvOfficePage *>(c)->AdvOfficePager());
            auto *item = pagerItem ? new QTreeWidgetItem(pagerItem, {entryText(c)})
                                   : new QTreeWidgetItem(m_tree, {entryText(c)});
            item->setData(0, Qt::UserRole, QVariant::fromValue(c));
        }
        m_tree->expandAll();
    }
    syncTreeToControl();
    syncPalette();
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
    QString text = QStringLiteral("(kein Element)");
    const QSignalBlocker blocker(m_tree);
    m_tree->setCurrentItem(nullptr);
    if (m_current) {
        for (QTreeWidgetItemIterator it(m_tree); *it; ++it) {
            if ((*it)->data(0, Qt::UserRole).value<QObject *>() == m_current.data()) {
                m_tree->setCurrentItem(*it);
                text = (*it)->text(0);
                break;
            }
        }
    }
    m_treeButton->setText(text);
}

void TObjInsp::selectPage()
{
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
                      : selection.size() > 1 ? QStringLiteral("%1 Elemente").arg(selection.size())
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
