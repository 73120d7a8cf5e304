#include "Streaming.h"

#include <QIODevice>
#include <QWidget>

#include "StreamTree.h"

using namespace StreamTree;

namespace {

QByteArray encode(const Node &node, TStreamFormat format)
{
    return format == TStreamFormat::Binary ? toBinary(node) : toText(node);
}

QByteArray convert(const QByteArray &data, TStreamFormat to, QString *error)
{
    QList<Node> nodes;
    const ParseResult r = parseAll(data, nodes);
    if (!r.ok) {
        if (error)
            *error = r.error;
        return {};
    }
    QByteArray out;
    for (const Node &node : std::as_const(nodes))
        out += encode(node, to);
    if (error)
        error->clear();
    return out;
}

} // namespace

void writeComponent(QIODevice &out, QWidget *component, TStreamFormat format)
{
    out.write(componentToBytes(component, format));
}

QByteArray componentToBytes(QWidget *component, TStreamFormat format)
{
    if (!component)
        return {};
    return encode(nodeFromWidget(component), format);
}

QString componentPropertiesText(QWidget *component)
{
    return component ? propertiesToText(propertiesOf(component)) : QString();
}

QByteArray binaryToText(const QByteArray &binary, QString *error)
{
    return convert(binary, TStreamFormat::Text, error);
}

QByteArray textToBinary(const QByteArray &text, QString *error)
{
    return convert(text, TStreamFormat::Binary, error);
}
