#include "FieldListBox.h"

#include <QDataStream>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>

TFieldListBox::TFieldListBox(QWidget *parent)
    : QListWidget(parent)
{
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    // The drop does the moving; the source must not remove anything itself.
    setDefaultDropAction(Qt::CopyAction);
    connect(this, &QListWidget::itemDoubleClicked, this, [this] {
        if (onMove)
            onMove();
    });
}

QStringList TFieldListBox::mimeTypes() const
{
    return {mimeType()};
}

QMimeData *TFieldListBox::mimeData(const QList<QListWidgetItem *> &items) const
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    QStringList names;
    for (const QListWidgetItem *item : items)
        names << item->text();
    out << objectName() << names;
    auto *data = new QMimeData;
    data->setData(mimeType(), bytes);
    return data;
}

bool TFieldListBox::accepts(const QMimeData *data) const
{
    if (!data || !data->hasFormat(mimeType()))
        return false;
    QDataStream in(data->data(mimeType()));
    QString from;
    in >> from;
    // Dropping onto the list the fields come from changes nothing.
    return from != objectName();
}

void TFieldListBox::dragEnterEvent(QDragEnterEvent *event)
{
    if (accepts(event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void TFieldListBox::dragMoveEvent(QDragMoveEvent *event)
{
    if (accepts(event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void TFieldListBox::dropEvent(QDropEvent *event)
{
    if (!accepts(event->mimeData())) {
        event->ignore();
        return;
    }
    QDataStream in(event->mimeData()->data(mimeType()));
    QString from;
    QStringList names;
    in >> from >> names;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (onDrop)
        onDrop(from, names);
}

void TFieldListBox::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && onMove) {
        onMove();
        return;
    }
    QListWidget::keyPressEvent(event);
}
