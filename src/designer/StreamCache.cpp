#include "StreamCache.h"

#include "Control.h"
#include "Streaming.h"

TStreamCache::TStreamCache()
    : m_check(qEnvironmentVariableIsSet("FEROLITH_CHECK_STREAM_CACHE"))
{
}

QByteArray TStreamCache::bytes(QWidget *control)
{
    const TControl *counted = TControl::from(control);
    if (!counted)
        return componentToBytes(control, TStreamFormat::Binary);
    // Geometry and name are compared as well: a hidden widget learns of a
    // move only when it shows, and names can be set on the QObject itself.
    Entry &entry = m_entries[control];
    if (entry.control == control && entry.revision == counted->revision() && entry.geometry == control->geometry()
        && entry.name == control->objectName()) {
        if (m_check) {
            const QByteArray fresh = componentToBytes(control, TStreamFormat::Binary);
            if (fresh != entry.bytes)
                qFatal("The stream of %s changed without a change being counted", qPrintable(control->objectName()));
        }
        return entry.bytes;
    }
    entry.bytes = componentToBytes(control, TStreamFormat::Binary);
    entry.control = control;
    entry.revision = counted->revision();
    entry.geometry = control->geometry();
    entry.name = control->objectName();
    return entry.bytes;
}

void TStreamCache::keepOnly(const QList<QWidget *> &controls)
{
    if (m_entries.size() <= controls.size())
        return;
    QHash<const QWidget *, Entry> kept;
    for (QWidget *w : controls) {
        auto it = m_entries.find(w);
        if (it != m_entries.end())
            kept.insert(w, std::move(*it));
    }
    m_entries = std::move(kept);
}
