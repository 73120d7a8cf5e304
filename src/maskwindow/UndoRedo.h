#pragma once

#include <QBuffer>
#include <QHash>
#include <QList>
#include <functional>

class TCustomFormDesigner;

// The undo history of the mask designs: snapshots of a design appended one
// after the other to an in-memory stream, never removed. positions holds the
// start offset of each snapshot, current the one the next Undo loads.
//
// A new history starts with positions = [0] and current = 0, so the first
// snapshot is listed twice (index 0 from the start, index 1 from the first
// save, both at offset 0). Undo therefore loads the state saved last first,
// and a save after undoing appends: further undos walk back through the
// undone snapshots as well. The history works this way on purpose.
//
// Whole-form snapshots (SaveUndo/Undo/Redo) and component-by-component ones
// (SaveUndoComponents/UndoComponents/RedoComponents) are laid out differently
// and must not be mixed in one history.
//
// Whole-form snapshots are kept beside the buffer, in compressed pieces of
// a few controls each: a piece that the snapshot before holds as well
// shares its bytes, so a history of a growing mask does not store every
// control again with each step. Their offsets count as if they were
// appended to the stream.
class TUndoStream : public QBuffer
{
    Q_OBJECT
public:
    explicit TUndoStream(QObject *parent = nullptr);

    // The history the whole program shares.
    static TUndoStream &instance();

    int current() const { return m_current; }
    const QList<qint64> &positions() const { return m_positions; }
    // The memory the snapshots take, bytes shared between snapshots counted once.
    qint64 storedBytes() const;

    void SaveUndo(TCustomFormDesigner *designer);
    bool Undo(TCustomFormDesigner *designer);
    bool Redo(TCustomFormDesigner *designer);

    void SaveUndoComponents(TCustomFormDesigner *designer);
    bool UndoComponents(TCustomFormDesigner *designer);
    bool RedoComponents(TCustomFormDesigner *designer);

private:
    void appendSnapshotStart();
    // The bytes of snapshot index: up to the next later start, or to the end.
    QByteArray snapshot(int index) const;
    // Nothing was ever saved: there is no design to go back to.
    bool neverSaved() const { return m_positions.size() <= 1; }
    void loadForm(TCustomFormDesigner *designer, int index);
    // One step back or forward through the snapshots; load reads the one at an index.
    bool stepBack(const std::function<void(int)> &load);
    bool stepForward(const std::function<void(int)> &load);
    void loadComponents(TCustomFormDesigner *designer, int index, int extra);
    QByteArray formSnapshot(int index) const;

    struct FormSnapshot
    {
        QList<QByteArray> pieces;
        qint64 size = 0;
    };

    int m_current = 0;
    QList<qint64> m_positions{0};
    // By snapshot index; empty for component snapshots and for index 0.
    QList<FormSnapshot> m_forms;
    qint64 m_formEnd = 0;
    // The pieces of the snapshot saved last, by their plain bytes: the
    // next snapshot shares those it holds unchanged.
    QHash<QByteArray, QByteArray> m_lastPieces;
};

// Records the designer's design in the program's history (TUndoStream::instance()).
void SaveUndo(TCustomFormDesigner *designer);
