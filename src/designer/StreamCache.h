#pragma once

#include <QByteArray>
#include <QHash>
#include <QPointer>
#include <QRect>
#include <QWidget>

// The binary stream of each control on the design surface, kept until the
// control changes: a snapshot of a large mask after a small change streams
// only what changed. Mask controls count their own changes (see
// TControl::revision); other widgets are streamed every time.
//
// With FEROLITH_CHECK_STREAM_CACHE set, every reused stream is compared with
// a fresh one and a difference stops the program: the test suite runs so,
// which proves that each change it makes is counted.
class TStreamCache
{
public:
    TStreamCache();
    QByteArray bytes(QWidget *control);
    // Forgets the controls that are no longer among these.
    void keepOnly(const QList<QWidget *> &controls);

private:
    struct Entry
    {
        QPointer<QWidget> control;
        quint64 revision = 0;
        QRect geometry;
        QString name;
        QByteArray bytes;
    };
    QHash<const QWidget *, Entry> m_entries;
    bool m_check = false;
};
