// The mask windows: MDI area, tab strip, window list and the Window menu.
#include "MainForm.h"

#include <QComboBox>

#include "Colors.h"
#include "FormDesigner.h"
#include "Maske.h"
#include "RunSession.h"
#include "PaletteIcons.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTabBar>
#include <QVBoxLayout>

void TMainForm::createClientArea()
{
    auto *client = new QWidget(this);
    client->setObjectName(QStringLiteral("ClientArea"));
    auto *layout = new QVBoxLayout(client);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_tabSet = new QTabBar(client);
    m_tabSet->setObjectName(QStringLiteral("AdvOfficeMDITabSet1"));
    m_tabSet->setDocumentMode(true);
    m_tabSet->setExpanding(false);
    m_tabSet->setDrawBase(true);
    m_tabSet->setUsesScrollButtons(true);
    m_tabSet->setElideMode(Qt::ElideNone);
    m_tabSet->setFocusPolicy(Qt::NoFocus);
    m_tabSet->setMinimumHeight(qMax(22, m_tabSet->fontMetrics().height() + 8));
    layout->addWidget(m_tabSet);

    m_mdiArea = new QMdiArea(client);
    m_mdiArea->setObjectName(QStringLiteral("MDIArea"));
    m_mdiArea->setViewMode(QMdiArea::SubWindowView);
    m_mdiArea->setBackground(Colors::clSilver.toQColor());
    m_mdiArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_mdiArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    layout->addWidget(m_mdiArea, 1);
    setCentralWidget(client);

    connect(m_mdiArea, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow *window) {
        syncWindowLists();
        UpdateMenuItems();
        if (auto *mask = qobject_cast<TMaske *>(window))
            mask->FormActivate();
    });
    // A press on a tab activates its window even when that tab is current already.
    connect(m_tabSet, &QTabBar::tabBarClicked, this, &TMainForm::activateWindowAt);
    connect(m_tabSet, &QTabBar::currentChanged, this, &TMainForm::activateWindowAt);
}

TMaske *TMainForm::OpenMaskWindow(const QString &fileName)
{
    auto *mask = new TMaske;
    mask->setHost(this);
    mask->FormDesigner2()->setPopupMenu(m_popupMenu1);
    mask->setWindowTitle(QFileInfo(fileName).fileName());
    mask->document()->setTitel(QFileInfo(fileName).fileName());
    mask->setPath(fileName);
    mask->FormDesigner2()->setActive(true);
    mask->setWindowIcon(PaletteIcons::maskIcon());
    m_mdiArea->addSubWindow(mask);
    watchMaskWindow(mask);
    mask->show();
    m_mdiArea->setActiveSubWindow(mask);
    showWhole(mask);
    syncWindowLists();
    UpdateMenuItems();
    return mask;
}

void TMainForm::showWhole(TMaske *mask)
{
    // A window that starts partly outside the area hides its own frame and
    // scroll bars; it is moved in, and shrunk where the area is smaller (the
    // mask then scrolls). The view starts at the mask's origin.
    const QRect area = m_mdiArea->viewport()->rect();
    QRect r = mask->geometry();
    r.setSize(r.size().boundedTo(area.size()));
    r.moveLeft(qBound(0, r.left(), area.width() - r.width()));
    r.moveTop(qBound(0, r.top(), area.height() - r.height()));
    if (r != mask->geometry())
        mask->setGeometry(r);
    mask->scrollToOrigin();
}

void TMainForm::watchMaskWindow(TMaske *mask)
{
    // The hide that ends a close comes at once; the deletion only later from
    // the event loop, so both keep the tab strip and window list in step.
    mask->installEventFilter(this);
    connect(mask, &QObject::destroyed, this, [this] {
        syncWindowLists();
        UpdateMenuItems();
    });
    connect(mask, &QWidget::windowTitleChanged, this, &TMainForm::syncWindowLists);
    connect(mask, &TMaske::pathChanged, this, &TMainForm::updateStatusText);
}

bool TMainForm::eventFilter(QObject *watched, QEvent *event)
{
    // Maximising hides and shows the window again, so both count.
    if ((event->type() == QEvent::Hide || event->type() == QEvent::Show) && qobject_cast<TMaske *>(watched)) {
        syncWindowLists();
        UpdateMenuItems();
    }
    return QMainWindow::eventFilter(watched, event);
}

QList<QMdiSubWindow *> TMainForm::visibleSubWindows() const
{
    QList<QMdiSubWindow *> windows;
    if (!m_mdiArea)
        return windows;
    for (QMdiSubWindow *w : m_mdiArea->subWindowList(QMdiArea::CreationOrder)) {
        if (!w->isHidden())
            windows << w;
    }
    return windows;
}

TMaske *TMainForm::activeMask() const
{
    if (!m_mdiArea)
        return nullptr;
    auto *mask = qobject_cast<TMaske *>(m_mdiArea->currentSubWindow());
    return mask && !mask->isHidden() ? mask : nullptr;
}

QList<TMaske *> TMainForm::MDIChildren() const
{
    QList<TMaske *> children;
    if (!m_mdiArea)
        return children;
    const QList<QMdiSubWindow *> stack = m_mdiArea->subWindowList(QMdiArea::StackingOrder);
    for (auto it = stack.crbegin(); it != stack.crend(); ++it) {
        if (auto *mask = qobject_cast<TMaske *>(*it); mask && !mask->isHidden())
            children << mask;
    }
    return children;
}

void TMainForm::syncWindowLists()
{
    if (m_syncing || !m_tabSet || !m_windowMenu)
        return;
    m_syncing = true;
    const QList<QMdiSubWindow *> windows = visibleSubWindows();
    QMdiSubWindow *current = activeMask();

    while (m_tabSet->count() > windows.size())
        m_tabSet->removeTab(m_tabSet->count() - 1);
    for (int i = 0; i < windows.size(); ++i) {
        if (i >= m_tabSet->count())
            m_tabSet->addTab(QString());
        m_tabSet->setTabText(i, windows.at(i)->windowTitle());
        if (auto *mask = qobject_cast<TMaske *>(windows.at(i)))
            m_tabSet->setTabToolTip(i, mask->Path());
    }
    if (const int index = int(windows.indexOf(current)); index >= 0)
        m_tabSet->setCurrentIndex(index);

    dxBarWindow->setVisible(!windows.isEmpty());
    qDeleteAll(m_windowListActions);
    m_windowListActions.clear();
    for (QMdiSubWindow *w : windows) {
        auto *item = new QAction(w->windowTitle(), m_windowListGroup);
        item->setCheckable(true);
        item->setChecked(w == current);
        item->setData(QVariant::fromValue<QObject *>(w));
        m_windowMenu->addAction(item);
        m_windowListActions << item;
    }
    m_syncing = false;
    updateStatusText();
}

void TMainForm::activateWindowAt(int index)
{
    if (m_syncing)
        return;
    const QList<QMdiSubWindow *> windows = visibleSubWindows();
    if (index >= 0 && index < windows.size())
        m_mdiArea->setActiveSubWindow(windows.at(index));
}

void TMainForm::updateStatusText()
{
    if (!m_statusPath)
        return;
    TMaske *mask = activeMask();
    m_statusPath->setText(mask ? mask->Path() : QString());
    // Run mode: where the active mask stands in its records, or why it has none.
    const TRunSession *session = mask ? TRunSession::of(mask->document()) : nullptr;
    if (m_statusRecord)
        m_statusRecord->setText(session ? session->statusText() : QString());
    for (QToolBar *navigator : findChildren<QToolBar *>(QStringLiteral("RunNavigator")))
        navigator->setVisible(session && navigator == session->navigator());
}

void TMainForm::dxBarWindowPopup()
{
    QMdiSubWindow *current = activeMask();
    for (QAction *item : std::as_const(m_windowListActions))
        item->setChecked(item->data().value<QObject *>() == current);
}

void TMainForm::dxBarWindowClick(QAction *item)
{
    auto *window = qobject_cast<QMdiSubWindow *>(item ? item->data().value<QObject *>() : nullptr);
    if (!window || !visibleSubWindows().contains(window))
        return;
    if (window->isMinimized())
        window->showNormal();
    m_mdiArea->setActiveSubWindow(window);
}

void TMainForm::UpdateMenuItems()
{
    const bool hasMask = activeMask() != nullptr;
    for (QAction *item : {FileCloseItem, FileSaveItem, FileSaveAsItem, WindowCascadeItem, WindowTileItem,
                          WindowArrangeItem, WindowMinimizeItem, EditModeItem, RunModeItem,
                          dxBarNormal, CreateTableItem, dxBarButton7}) {
        if (item)
            item->setEnabled(hasMask);
    }
    if (MaskResList)
        MaskResList->setEnabled(hasMask);
}

void TMainForm::WindowCascadeItemClick()
{
    m_mdiArea->cascadeSubWindows();
}

void TMainForm::WindowTileItemClick()
{
    // One above the other, each as wide as the area; minimised ones stay so.
    QList<QMdiSubWindow *> windows;
    for (QMdiSubWindow *w : visibleSubWindows())
        if (!w->isMinimized())
            windows << w;
    const QRect area = m_mdiArea->viewport()->rect();
    int top = 0;
    for (int i = 0; i < windows.size(); ++i) {
        QMdiSubWindow *w = windows.at(i);
        if (w->isMaximized())
            w->showNormal();
        const int bottom = area.height() * (i + 1) / int(windows.size());
        w->setGeometry(0, top, area.width(), bottom - top);
        top = bottom;
    }
}

void TMainForm::WindowArrangeItemClick()
{
    // Minimised windows line up along the bottom edge, left to right, and
    // start a new row above when one is full.
    const QRect area = m_mdiArea->viewport()->rect();
    int x = 0;
    int bottom = area.bottom() + 1;
    for (QMdiSubWindow *w : visibleSubWindows()) {
        if (!w->isMinimized())
            continue;
        const QSize size = w->size();
        if (x > 0 && x + size.width() > area.width()) {
            x = 0;
            bottom -= size.height();
        }
        w->move(x, bottom - size.height());
        x += size.width();
    }
}

void TMainForm::WindowMinimizeItemClick()
{
    const QList<TMaske *> children = MDIChildren();
    for (int i = int(children.size()) - 1; i >= 0; --i)
        children.at(i)->showMinimized();
}
