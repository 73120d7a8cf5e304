#include "TabOrderDialog.h"

#include <QDialogButtonBox>
#include <QDrag>
#include <QDropEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "DirectionsDialog.h"

namespace {

// The index of the entry's control in m_controls. Only plain data goes into
// the items, since the list serialises them when they are dragged.
constexpr int kControlRole = Qt::UserRole;

// Carries the dragged row and which list it came from.
const QString kRowFormat = QStringLiteral("application/x-ferolith-taborder-row");

// The list moves its own entries when they are dropped. Qt's internal move
// would also do that, but it trusts only drops it can trace to a running drag
// of this very widget and, on some versions, removes the source row once more
// after the drag; here a drop is recognised by the row record in the list's
// own mime data and moved exactly once.
class TTabOrderList : public QListWidget
{
public:
    using QListWidget::QListWidget;

protected:
    QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override
    {
        QMimeData *data = QListWidget::mimeData(items);
        if (data && items.size() == 1)
            data->setData(kRowFormat, token() + ' ' + QByteArray::number(row(items.first())));
        return data;
    }

    void startDrag(Qt::DropActions) override
    {
        QListWidgetItem *item = currentItem();
        if (!item || !item->isSelected())
            return;
        auto *drag = new QDrag(this);
        drag->setMimeData(mimeData({item}));
        const QRect rect = visualItemRect(item);
        drag->setPixmap(viewport()->grab(rect));
        drag->setHotSpot(viewport()->mapFromGlobal(QCursor::pos()) - rect.topLeft());
        // The drop has already moved the entry; nothing is left to remove.
        drag->exec(Qt::MoveAction, Qt::MoveAction);
    }

    void dragEnterEvent(QDragEnterEvent *event) override
    {
        if (draggedRow(event->mimeData()) < 0) {
            event->ignore();
            return;
        }
        QListWidget::dragEnterEvent(event);
        acceptMove(event);
    }

    void dragMoveEvent(QDragMoveEvent *event) override
    {
        if (draggedRow(event->mimeData()) < 0) {
            event->ignore();
            return;
        }
        // The base class draws the drop indicator and scrolls.
        QListWidget::dragMoveEvent(event);
        acceptMove(event);
    }

    void dropEvent(QDropEvent *event) override
    {
        const int from = draggedRow(event->mimeData());
        if (from < 0) {
            event->ignore();
            return;
        }
        stopAutoScroll();
        setState(NoState);
        viewport()->update();

        int to = count();
        const QPoint pos = event->position().toPoint();
        const QModelIndex target = indexAt(pos);
        if (target.isValid())
            to = target.row() + (pos.y() > visualRect(target).center().y() ? 1 : 0);
        if (to > from)
            --to; // the entry itself leaves its old place first
        if (to != from) {
            QListWidgetItem *item = takeItem(from);
            insertItem(to, item);
            setCurrentItem(item);
        }
        acceptMove(event);
    }

private:
    QByteArray token() const { return QByteArray::number(quintptr(this), 16); }

    int draggedRow(const QMimeData *data) const
    {
        if (!data || !data->hasFormat(kRowFormat))
            return -1;
        const QList<QByteArray> parts = data->data(kRowFormat).split(' ');
        if (parts.size() != 2 || parts.at(0) != token())
            return -1;
        bool ok = false;
        const int r = parts.at(1).toInt(&ok);
        return ok && r >= 0 && r < count() ? r : -1;
    }

    static void acceptMove(QDropEvent *event)
    {
        event->setDropAction(Qt::MoveAction);
        event->accept();
    }
};

} // namespace

TfrmTabOrder::TfrmTabOrder(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmTabOrder"));
    setWindowTitle(QStringLiteral("Edit Tab Order"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    m_list = new TTabOrderList(this);
    m_list->setObjectName(QStringLiteral("lbControls"));
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setDragDropMode(QAbstractItemView::InternalMove);
    m_list->setDefaultDropAction(Qt::MoveAction);
    m_list->setMinimumSize(220, 200);

    auto *label = new QLabel(QStringLiteral("&Controls listed in tab order:"), this);
    label->setObjectName(QStringLiteral("lblControls"));
    label->setBuddy(m_list);

    auto arrowButton = [this](const QString &name, QStyle::StandardPixmap icon, const QString &tip) {
        auto *button = new QToolButton(this);
        button->setObjectName(name);
        button->setIcon(style()->standardIcon(icon, nullptr, this));
        button->setToolTip(tip);
        button->setFocusPolicy(Qt::TabFocus);
        return button;
    };
    m_up = arrowButton(QStringLiteral("btnUp"), QStyle::SP_ArrowUp, QStringLiteral("Move up"));
    m_down = arrowButton(QStringLiteral("btnDown"), QStyle::SP_ArrowDown, QStringLiteral("Move down"));
    connect(m_up, &QToolButton::clicked, this, [this] { moveSelected(-1); });
    connect(m_down, &QToolButton::clicked, this, [this] { moveSelected(+1); });

    QDialogButtonBox *buttons = okCancelButtons(this, &m_ok);

    auto *arrows = new QVBoxLayout;
    arrows->addStretch();
    arrows->addWidget(m_up);
    arrows->addWidget(m_down);
    arrows->addStretch();

    auto *layout = new QGridLayout(this);
    layout->addWidget(label, 0, 0);
    layout->addWidget(m_list, 1, 0);
    layout->addLayout(arrows, 1, 1);
    layout->addWidget(buttons, 2, 0, 1, 2);
    layout->setRowStretch(1, 1);

    // A drop moves the entry by taking it out and inserting it again.
    connect(m_list, &QListWidget::currentRowChanged, this, &TfrmTabOrder::updateButtons);
    connect(m_list->model(), &QAbstractItemModel::rowsInserted, this, &TfrmTabOrder::updateButtons);
    updateButtons();
}

TfrmTabOrder::~TfrmTabOrder()
{
    // The list still signals while it is taken down with the dialog.
    disconnect(m_list, nullptr, this, nullptr);
    disconnect(m_list->model(), nullptr, this, nullptr);
}

void TfrmTabOrder::setEntries(const QList<QPair<QString, QWidget *>> &entries)
{
    m_list->clear();
    m_controls.clear();
    for (const auto &entry : entries) {
        auto *item = new QListWidgetItem(entry.first, m_list);
        item->setData(kControlRole, int(m_controls.size()));
        m_controls << entry.second;
    }
    if (m_list->count() > 0)
        m_list->setCurrentRow(0);
    m_ok->setEnabled(m_list->count() > 0);
    updateButtons();
}

QList<QWidget *> TfrmTabOrder::controlsInOrder() const
{
    QList<QWidget *> controls;
    controls.reserve(m_list->count());
    for (int i = 0; i < m_list->count(); ++i)
        controls << m_controls.value(m_list->item(i)->data(kControlRole).toInt());
    return controls;
}

void TfrmTabOrder::moveSelected(int delta)
{
    const int from = m_list->currentRow();
    const int to = from + delta;
    if (from < 0 || to < 0 || to >= m_list->count())
        return;
    QListWidgetItem *item = m_list->takeItem(from);
    m_list->insertItem(to, item);
    m_list->setCurrentItem(item);
    m_list->scrollToItem(item);
    updateButtons();
}

void TfrmTabOrder::updateButtons()
{
    const int row = m_list->currentRow();
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row < m_list->count() - 1);
}
