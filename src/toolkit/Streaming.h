#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>

class QIODevice;
class QObject;
class QWidget;

// Component streams: a control with its child controls written as a binary
// ("TPF0") or text ("object ... end") form and read back. The clipboard, undo
// snapshots and saved layouts are built on these.

enum class TStreamFormat { Binary, Text };


// handled comes preset with the default (true for a property, false for an
// unknown class); true skips the item and reading goes on, false aborts.
using TReadErrorHandler = std::function<void(const QString &message, bool &handled)>;

// Writes one component with its child controls (binary: with the signature
// "TPF0"). A component that is no control (a design surface) is written as a
// bare container: its class and name, no properties, its child controls.
void writeComponent(QIODevice &out, QWidget *component, TStreamFormat format);
QByteArray componentToBytes(QWidget *component, TStreamFormat format);

struct TReadContext
{
    QObject *owner = nullptr;  // becomes the owner of every created component
    QWidget *parent = nullptr; // parent of the top component
    TReadErrorHandler onError; // unknown property/class, wrong value
    std::function<void(QWidget *)> onCreated; // each created component, top first, once all is read
};

// Reads one component (binary with signature, or text starting with
// "object"), creates it and its children, names each uniquely within
// ctx.owner, sets parent, owner and properties, and returns the top
// component, or nullptr with *error set; nothing created is left behind on
// failure. A random-access device is left just behind the component read.
QWidget *readComponent(QIODevice &in, const TReadContext &ctx, QString *error = nullptr);
// Reads components one after the other until the end of the device, as the
// clipboard holds them. All or nothing: on an error nothing is kept.
QList<QWidget *> readComponents(QIODevice &in, const TReadContext &ctx, QString *error = nullptr);
// Reads into an existing component: its properties are set and the children
// in the stream are created under it (owned by ctx.owner, or by the
// component's own owner when ctx.owner is null). The stream's class must be
// the component's; its name is taken when no other component of the owner bears it.
// On failure the created children are removed and the name is restored;
// properties already set stay set.
bool readInto(QIODevice &in, QWidget *component, const TReadContext &ctx, QString *error = nullptr);

// The published properties of one component as text lines "Name = Value"
// (text form, without children and without the object/end lines) and back.
// Setting applies what it understands and lists the rest in *error.
QString componentPropertiesText(QWidget *component);
bool setComponentPropertiesText(QWidget *component, const QString &text, QString *error = nullptr);

// Binary <-> text conversion of a component stream (one component or several
// after one another).
QByteArray binaryToText(const QByteArray &binary, QString *error = nullptr);
QByteArray textToBinary(const QByteArray &text, QString *error = nullptr);
