#include "UndoRedo.h"

#include <QHash>
#include <QSet>
#include <QtEndian>

#include <zlib.h>

#include "Components.h"
#include "Control.h"
#include "FormDesigner.h"
#include "Streaming.h"

TUndoStream::TUndoStream(QObject *parent)
    : QBuffer(parent)
{
    open(QIODevice::ReadWrite);
}

TUndoStream &TUndoStream::instance()
{
    static TUndoStream history;
    return history;
}

void TUndoStream::appendSnapshotStart()
{
    seek(size());
    m_positions.append(pos());
    m_current = int(m_positions.size()) - 1;
}

QByteArray TUndoStream::snapshot(int index) const
{
    const qint64 start = m_positions.at(index);
    qint64 end = size();
    // Offsets only grow, but the first snapshot is listed twice; the next
    // start behind this one ends it.
    for (qint64 p : m_positions) {
        if (p > start) {
            end = p;
            break;
        }
    }
    return data().mid(start, end - start);
}

// ---- whole-form snapshots ----

namespace {
// A piece ends behind a control whose bytes hash to a multiple of this, so
// pieces end at the same controls whatever was inserted before them: a
// control placed in the middle changes its own piece only.
constexpr uint kPieceEnd = 16;
// Nor does a piece grow past this many controls.
constexpr int kMaxControlsPerPiece = 64;

// qCompress in the form qUncompress reads (the plain size, big-endian, then
// a zlib stream), through one deflate state for the whole history: setting
// a state up and freeing it took longer than compressing a piece.
class TPieceCompressor
{
public:
    TPieceCompressor() { m_ready = deflateInit(&m_z, 1) == Z_OK; }
    ~TPieceCompressor()
    {
        if (m_ready)
            deflateEnd(&m_z);
    }
    TPieceCompressor(const TPieceCompressor &) = delete;
    TPieceCompressor &operator=(const TPieceCompressor &) = delete;

    QByteArray compress(const QByteArray &plain)
    {
        if (!m_ready || deflateReset(&m_z) != Z_OK)
            return qCompress(plain, 1);
        QByteArray out(4 + qsizetype(deflateBound(&m_z, uLong(plain.size()))), Qt::Uninitialized);
        qToBigEndian(quint32(plain.size()), out.data());
        m_z.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(plain.constData()));
        m_z.avail_in = uInt(plain.size());
        m_z.next_out = reinterpret_cast<Bytef *>(out.data() + 4);
        m_z.avail_out = uInt(out.size() - 4);
        if (deflate(&m_z, Z_FINISH) != Z_STREAM_END)
            return qCompress(plain, 1);
        out.truncate(4 + qsizetype(m_z.total_out));
        return out;
    }

private:
    z_stream m_z{};
    bool m_ready = false;
};

TPieceCompressor &compressor()
{
    static TPieceCompressor one;
    return one;
}
} // namespace

void TUndoStream::SaveUndo(TCustomFormDesigner *designer)
{
    FormSnapshot snapshot;
    QHash<QByteArray, QByteArray> pieces;
    QByteArray piece;
    int inPiece = 0;
    const auto close = [&] {
        snapshot.size += piece.size();
        QByteArray stored = m_lastPieces.value(piece);
        if (stored.isNull()) {
            // The stream's property names repeat from control to control.
            stored = compressor().compress(piece);
            stored.squeeze();
        }
        snapshot.pieces.append(stored);
        pieces.insert(piece, stored);
        piece = QByteArray();
        inPiece = 0;
    };
    for (const QByteArray &control : designer->layoutStreams()) {
        piece += control;
        if (qHash(control) % kPieceEnd == 0 || ++inPiece == kMaxControlsPerPiece)
            close();
    }
    if (!piece.isEmpty())
        close();

    m_positions.append(m_formEnd);
    m_current = int(m_positions.size()) - 1;
    m_formEnd += snapshot.size;
    m_forms.resize(m_positions.size());
    m_forms.last() = std::move(snapshot);
    m_lastPieces = std::move(pieces);
}

// The bytes from the snapshot's offset up to the next later offset: a
// snapshot without controls shares its offset with the one saved after it,
// which then ends it.
QByteArray TUndoStream::formSnapshot(int index) const
{
    const qint64 start = m_positions.at(index);
    while (index + 1 < m_positions.size() && m_positions.at(index + 1) == start)
        ++index;
    QByteArray bytes;
    if (index >= m_forms.size())
        return bytes;
    const FormSnapshot &snapshot = m_forms.at(index);
    bytes.reserve(snapshot.size);
    for (const QByteArray &piece : snapshot.pieces)
        bytes += qUncompress(piece);
    return bytes;
}

qint64 TUndoStream::storedBytes() const
{
    qint64 total = size() + m_positions.size() * qint64(sizeof(qint64))
                   + m_forms.size() * qint64(sizeof(FormSnapshot));
    for (auto it = m_lastPieces.cbegin(); it != m_lastPieces.cend(); ++it)
        total += it.key().capacity() + qint64(sizeof(QByteArray)) * 2;
    QSet<const char *> counted;
    for (const FormSnapshot &snapshot : m_forms) {
        total += snapshot.pieces.size() * qint64(sizeof(QByteArray));
        for (const QByteArray &piece : snapshot.pieces)
            if (!counted.contains(piece.constData())) {
                counted.insert(piece.constData());
                total += piece.capacity();
            }
    }
    return total;
}

// The engine reads to the end of whatever it is handed; given the whole
// history from the offset on it would load every later snapshot as well, so
// it gets the one snapshot alone.
void TUndoStream::loadForm(TCustomFormDesigner *designer, int index)
{
    // A history nothing was saved to holds no design: loading its empty
    // stream would clear the mask instead of restoring anything.
    if (neverSaved())
        return;
    QBuffer one;
    one.setData(formSnapshot(index));
    one.open(QIODevice::ReadOnly);
    try {
        designer->LoadFromStream(one);
    } catch (const EFormDesigner &) {
        // An unreadable snapshot counts as loaded; the steps go on as usual.
    }
}

bool TUndoStream::stepBack(const std::function<void(int)> &load)
{
    if (m_current >= 0) {
        load(m_current);
        --m_current;
        return true;
    }
    m_current = 0;
    return false;
}

bool TUndoStream::stepForward(const std::function<void(int)> &load)
{
    ++m_current;
    const int last = int(m_positions.size()) - 1;
    if (m_current <= last) {
        load(m_current);
        return true;
    }
    m_current = last;
    return false;
}

bool TUndoStream::Undo(TCustomFormDesigner *designer)
{
    return stepBack([&](int index) { loadForm(designer, index); });
}

bool TUndoStream::Redo(TCustomFormDesigner *designer)
{
    return stepForward([&](int index) { loadForm(designer, index); });
}

// ---- component-by-component snapshots ----
//
// Layout: the number of components the form owns (32 bits, little-endian),
// then the controls one after the other. The count takes in every owned
// component, but only controls placed directly on the design control are
// written: components that are no widgets (the engine, style controllers)
// cannot be streamed, and a control inside a container travels within its
// container's stream, where writing it again would bring it back twice.
// Reading stops at the first component that cannot be read, so a count
// larger than what follows simply ends at the snapshot's end.

void TUndoStream::SaveUndoComponents(TCustomFormDesigner *designer)
{
    appendSnapshotStart();
    QWidget *form = designer->ParentForm();
    const quint32 count = quint32(Components::componentCount(form));
    char bytes[4];
    qToLittleEndian(count, bytes);
    write(bytes, sizeof bytes);
    QWidget *surface = designer->DesignControl() ? designer->DesignControl() : form;
    for (QObject *component : Components::components(form)) {
        if (component == designer)
            continue;
        auto *control = qobject_cast<QWidget *>(component);
        if (!control || control->parentWidget() != surface)
            continue;
        designer->SaveComponentToStream(*this, control, dfmBinary);
    }
}

// extra: added to the stored count to give the number of components read;
// undo reads one less than the count (the engine itself is among the owned
// components but never written), redo reads the full count. The difference
// is harmless since reading ends cleanly where the snapshot ends.
void TUndoStream::loadComponents(TCustomFormDesigner *designer, int index, int extra)
{
    seek(m_positions.at(index));
    if (neverSaved())
        return;
    QBuffer one;
    one.setData(snapshot(index));
    one.open(QIODevice::ReadOnly);

    designer->ClearForm();
    char bytes[4];
    if (one.read(bytes, sizeof bytes) != sizeof bytes)
        return;
    const int wanted = int(qFromLittleEndian<quint32>(bytes)) + extra;

    QWidget *form = designer->ParentForm();
    TReadContext ctx;
    ctx.owner = form;
    ctx.parent = designer->DesignControl() ? designer->DesignControl() : form;
    // Properties the program no longer knows are skipped, as when loading a file.
    ctx.onError = [designer](const QString &message, bool &handled) {
        if (designer->OnReadError)
            designer->OnReadError(designer, message, handled);
    };
    for (int i = 0; i < wanted && !one.atEnd(); ++i) {
        QWidget *control = readComponent(one, ctx);
        if (!control)
            break;
        const TControl *c = TControl::from(control);
        if (control->isHidden() && (!c || c->Visible()))
            control->show();
    }
    seek(m_positions.at(index) + one.pos());
    designer->UpdateGrabs();
}

bool TUndoStream::UndoComponents(TCustomFormDesigner *designer)
{
    return stepBack([&](int index) { loadComponents(designer, index, -1); });
}

bool TUndoStream::RedoComponents(TCustomFormDesigner *designer)
{
    return stepForward([&](int index) { loadComponents(designer, index, 0); });
}

void SaveUndo(TCustomFormDesigner *designer)
{
    TUndoStream::instance().SaveUndo(designer);
}
