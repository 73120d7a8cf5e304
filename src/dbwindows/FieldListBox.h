#pragma once

#include <QListWidget>
#include <functional>

// A list of field names for the wizard's two-list page: its selection can be
// dragged onto the partner list, and Enter (or a double click) hands it over
// as well. The lists move nothing themselves; onMove does it, so buttons,
// mouse and keyboard share one way.
class TFieldListBox : public QListWidget
{
    Q_OBJECT
public:
    explicit TFieldListBox(QWidget *parent = nullptr);

    static QString mimeType() { return QStringLiteral("application/x-ferolith-fieldnames"); }

    // Moves the named fields from the list called `from` into this one.
    std::function<void(const QString &from, const QStringList &fields)> onDrop;
    // Hands the selected fields over to the partner list.
    std::function<void()> onMove;

protected:
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool accepts(const QMimeData *data) const;
};
