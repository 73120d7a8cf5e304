// The clipboard and the streaming of the designed controls: copy, cut and
// paste, whole layouts as component streams or INI files, single components.
#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <algorithm>

#include "ComponentContainer.h"
#include "Components.h"
#include "ControlClasses.h"
#include "Control.h"
#include "DesignerWidgets.h"
#include "FormDesigner.h"
#include "IniFile.h"
#include "Streaming.h"

namespace {

// Every copy of the program looks for designed controls under this name.
const QString &clipboardFormat()
{
    static const QString format = QStringLiteral("application/x-qt-windows-mime;value=\"CF_DesignedObjects\"");
    return format;
}

const char kCannotSetClipboard[] = "GlobalLock Failed to lock memory for the Clipboard.";
const char kCannotReadClipboard[] = "GlobalLock Failed to lock the Clipboard memory.";

TStreamFormat streamFormat(TDFMFormat format)
{
    return format == dfmText ? TStreamFormat::Text : TStreamFormat::Binary;
}

void showIfVisible(QWidget *w)
{
    const TControl *c = TControl::from(w);
    if (w->isHidden() && (!c || c->Visible()))
        w->show();
}

// A string list in one INI value: the items joined by "\n", with the
// backslash escaped, since INI values cannot break lines.
QString encodeLines(const QStringList &lines)
{
    QStringList escaped;
    for (QString line : lines)
        escaped << line.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    return escaped.join(QLatin1String("\\n"));
}

QStringList decodeLines(const QString &text)
{
    QStringList out;
    if (text.isEmpty())
        return out;
    QString current;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar ch = text.at(i);
        if (ch == QLatin1Char('\\') && i + 1 < text.size()) {
            const QChar next = text.at(++i);
            if (next == QLatin1Char('n')) {
                out << current;
                current.clear();
            } else {
                current += next;
            }
        } else {
            current += ch;
        }
    }
    out << current;
    return out;
}

// Properties that position a control among its siblings or pick a page:
// meaningful only once all siblings exist, so they are set last.
bool isOrderProperty(const QString &name)
{
    return name.compare(QLatin1String("TabOrder"), Qt::CaseInsensitive) == 0
           || name.compare(QLatin1String("PageIndex"), Qt::CaseInsensitive) == 0
           || name.compare(QLatin1String("ActivePageIndex"), Qt::CaseInsensitive) == 0;
}

const char kClassKey[] = "Class";
const char kParentKey[] = "Parent";

} // namespace

// ---- clipboard ----

bool TCustomFormDesigner::CanCopy() const
{
    return m_active && currentControl();
}

bool TCustomFormDesigner::CanPaste() const
{
    if (!m_active || !m_attached)
        return false;
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasFormat(clipboardFormat());
}

void TCustomFormDesigner::CopyToClipboard()
{
    if (!m_active || !currentControl())
        return;
    // Only the current control's siblings are copied; then a control whose
    // parent is selected too is written inside the parent.
    prepareSelection(false);
    {
        const QList<QWidget *> selected = selection();
        for (QWidget *c : selected)
            if (selected.contains(c->parentWidget()))
                DeleteControl(c);
    }

    // Non-visual components: the component streams carry controls only, so
    // their containers leave the selection for the copy and come back after.
    QList<QPointer<QObject>> components;
    for (QWidget *c : selection()) {
        if (auto *container = qobject_cast<TComponentContainer *>(c)) {
            if (container->Component())
                components << container->Component();
            DeleteControl(c);
        }
    }

    const QList<QWidget *> controls = selection();
    QByteArray bytes;
    for (QWidget *c : controls) {
        bytes += componentToBytes(c, TStreamFormat::Binary);
        if (OnCopyComponent)
            OnCopyComponent(this, c);
    }

    bool failed = false;
    if (!controls.isEmpty()) {
        if (bytes.isEmpty()) {
            failed = true;
        } else {
            auto *mime = new QMimeData;
            mime->setData(clipboardFormat(), bytes);
            QClipboard *clipboard = QGuiApplication::clipboard();
            clipboard->setMimeData(mime);
            const QMimeData *now = clipboard->mimeData();
            failed = !now || !now->hasFormat(clipboardFormat());
        }
    }
    for (const QPointer<QObject> &component : std::as_const(components))
        if (TComponentContainer *container = FindComponentContainer(component))
            AddControl(container);
    if (failed)
        throw EFormDesigner(QString::fromLatin1(kCannotSetClipboard));
}

void TCustomFormDesigner::CutToClipboard()
{
    if (!CanCopy())
        return;
    CopyToClipboard();
    bool removed = false;
    while (QWidget *c = currentControl()) {
        DeleteControl(c);
        // Not on the clipboard (see CopyToClipboard): a non-visual component
        // only leaves the selection instead of being lost.
        if (qobject_cast<TComponentContainer *>(c))
            continue;
        delete c;
        removed = true;
    }
    if (removed)
        DoChange();
}

QWidget *TCustomFormDesigner::pasteTarget() const
{
    if (QWidget *current = currentControl()) {
        const TControl *c = TControl::from(current);
        if (c && c->classInfo().acceptsControls && IsDesignable(current))
            return current;
        QWidget *parent = current->parentWidget();
        if (parent && (parent == m_attached || IsDesignable(parent)))
            return parent;
    }
    return m_attached;
}

void TCustomFormDesigner::PasteFromClipboard()
{
    if (!CanPaste())
        return;
    // The selection is emptied first, so a paste that fails leaves none.
    QWidget *target = pasteTarget();
    ClearControls();
    const QMimeData *mime = QGuiApplication::clipboard()->mimeData();
    const QByteArray bytes = mime ? mime->data(clipboardFormat()) : QByteArray();
    if (bytes.isEmpty())
        throw EFormDesigner(QString::fromLatin1(kCannotReadClipboard));

    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QStringList reported;
    QList<QPointer<QWidget>> created;
    TReadContext ctx;
    ctx.owner = ParentForm();
    ctx.parent = target;
    ctx.onError = reportingTo(&reported);
    ctx.onCreated = [&created](QWidget *w) { created << w; };
    QString error;
    const QList<QWidget *> tops = readComponents(buffer, ctx, &error);
    // Whatever the clipboard holds, a bad paste is reported, never raised:
    // the data may come from anywhere.
    if (!error.isEmpty() && !reported.contains(error))
        readError(error, false, false);
    if (tops.isEmpty())
        return;

    for (QWidget *w : tops) {
        if (m_active)
            m_input.watch(w);
        showIfVisible(w);
    }
    if (OnPasteComponent)
        for (const QPointer<QWidget> &w : std::as_const(created))
            if (w)
                OnPasteComponent(this, w);
    for (QWidget *w : tops)
        AddControl(w);
    if (m_overlay)
        m_overlay->keepOnTop();
    UpdateGrabs();
    DoChange();
}

// ---- single components ----

void TCustomFormDesigner::SaveComponentToStream(QIODevice &stream, QWidget *component, TDFMFormat format)
{
    if (component)
        writeComponent(stream, component, streamFormat(format));
}

void TCustomFormDesigner::LoadComponentFromStream(QIODevice &stream, QWidget *component, TDFMFormat /*format*/)
{
    // Both forms tell themselves apart by their first bytes.
    if (!component)
        return;
    QStringList reported;
    TReadContext ctx;
    ctx.owner = Components::owner(component) ? Components::owner(component) : ParentForm();
    ctx.onError = reportingTo(&reported);
    QString error;
    const bool ok = readInto(stream, component, ctx, &error);
    if (!ok) {
        if (reported.contains(error))
            throw EFormDesigner(error);
        readError(error, false, true);
    }
    if (m_active && m_input.isInDesignControl(component))
        m_input.watch(component);
    UpdateGrabs();
    DoChange();
}

QString TCustomFormDesigner::GetComponentProperties(QObject *component) const
{
    return componentPropertiesText(qobject_cast<QWidget *>(component));
}

void TCustomFormDesigner::SetComponentProperties(QObject *component, const QString &properties)
{
    auto *w = qobject_cast<QWidget *>(component);
    if (!w)
        return;
    QString error;
    if (!setComponentPropertiesText(w, properties, &error))
        for (const QString &message : error.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            readError(message, true, true);
    UpdateGrabs();
    DoChange();
}

// ---- whole layouts ----

std::function<void(const QString &, bool &)> TCustomFormDesigner::reportingTo(QStringList *reported)
{
    return [this, reported](const QString &message, bool &handled) {
        *reported << message;
        if (OnReadError)
            OnReadError(this, message, handled);
    };
}

void TCustomFormDesigner::readError(const QString &message, bool handled, bool raise)
{
    if (OnReadError)
        OnReadError(this, message, handled);
    if (raise && !handled)
        throw EFormDesigner(message);
}

QList<QWidget *> TCustomFormDesigner::layoutControls() const
{
    QList<QWidget *> out;
    QWidget *surface = m_attached ? m_attached.data() : designControlOrForm();
    if (!surface)
        return out;
    for (QObject *child : surface->children()) {
        auto *w = qobject_cast<QWidget *>(child);
        if (!w || !TControl::from(w) || qobject_cast<TComponentContainer *>(w))
            continue;
        if (m_attached ? IsDesignable(w) : Components::owner(w) == ParentForm())
            out << w;
    }
    return out;
}

void TCustomFormDesigner::readLayout(const QByteArray &bytes, const QString &what)
{
    QWidget *surface = m_attached ? m_attached.data() : designControlOrForm();
    if (!surface)
        throw EFormDesigner(QStringLiteral("TFormDesigner has no parent window."));
    const auto fail = [&](const QString &error, bool reported) {
        const QString message = what.isEmpty() ? error : QStringLiteral("%1: %2").arg(what, error);
        // A handler that refused the error has seen it already.
        if (reported)
            throw EFormDesigner(message);
        readError(message, false, true);
    };
    // A layout without controls is empty; one that cannot be parsed leaves
    // the form as it is.
    const bool empty = bytes.trimmed().isEmpty();
    QString error;
    if (!empty) {
        binaryToText(bytes, &error);
        if (!error.isEmpty()) {
            fail(error, false);
            return;
        }
    }
    if (m_clearBeforeLoad)
        ClearForm();
    if (empty)
        return;

    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QStringList reported;
    TReadContext ctx;
    ctx.owner = ParentForm();
    ctx.parent = surface;
    ctx.onError = reportingTo(&reported);
    const QList<QWidget *> tops = readComponents(buffer, ctx, &error);
    if (!error.isEmpty())
        fail(error, reported.contains(error));
    for (QWidget *w : tops) {
        if (m_active)
            m_input.watch(w);
        showIfVisible(w);
    }
    if (m_overlay)
        m_overlay->keepOnTop();
    UpdateGrabs();
    if (!tops.isEmpty())
        DoChange();
}

void TCustomFormDesigner::SaveToStream(QIODevice &stream)
{
    for (const QByteArray &bytes : layoutStreams())
        stream.write(bytes);
}

QList<QByteArray> TCustomFormDesigner::layoutStreams() const
{
    QList<QByteArray> out;
    const QList<QWidget *> controls = layoutControls();
    m_streamCache.keepOnly(controls);
    for (QWidget *w : controls)
        out << m_streamCache.bytes(w);
    return out;
}

void TCustomFormDesigner::LoadFromStream(QIODevice &stream)
{
    readLayout(stream.readAll(), QString());
}

void TCustomFormDesigner::SaveToDFM(const QString &fileName, TDFMFormat format)
{
    QByteArray bytes;
    for (QWidget *w : layoutControls())
        bytes += componentToBytes(w, streamFormat(format));
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        throw EFormDesigner(QStringLiteral("Cannot create file \"%1\". %2").arg(fileName, file.errorString()));
}

void TCustomFormDesigner::LoadFromDFM(const QString &fileName, TDFMFormat /*format*/)
{
    // Both forms tell themselves apart by their first bytes.
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw EFormDesigner(QStringLiteral("Cannot open file \"%1\". %2").arg(fileName, file.errorString()));
    readLayout(file.readAll(), fileName);
}

void TCustomFormDesigner::ClearForm()
{
    if (!m_active || !m_attached)
        return;
    ClearControls();
    QList<QPointer<QWidget>> doomed;
    for (QWidget *w : m_attached->findChildren<QWidget *>())
        if (IsDesignable(w) && !qobject_cast<TComponentContainer *>(w))
            doomed << w;
    // A container takes its children along; their pointers turn null.
    for (const QPointer<QWidget> &w : std::as_const(doomed))
        delete w.data();
    DoChange();
}

// ---- INI layouts ----

void TCustomFormDesigner::SaveToFile(const QString &fileName)
{
    QWidget *surface = m_attached ? m_attached.data() : designControlOrForm();
    TMemIniFile ini;
    // Parents before their children, so that loading finds each parent made.
    std::function<void(QWidget *)> walk = [&](QWidget *parent) {
        for (QObject *child : parent->children()) {
            auto *w = qobject_cast<QWidget *>(child);
            const TControl *c = TControl::from(w);
            if (!c || qobject_cast<TComponentContainer *>(w) || (m_attached && !IsDesignable(w)))
                continue;
            const QString section = w->objectName();
            if (!section.isEmpty()) {
                ini.writeString(section, QString::fromLatin1(kClassKey), c->classInfo().className);
                ini.writeString(section, QString::fromLatin1(kParentKey),
                                parent == surface ? QString() : parent->objectName());
                for (const TPropInfo &info : c->classInfo().properties) {
                    const QVariant value = info.read(w);
                    ini.writeString(section, info.name,
                                    info.type == TPropType::Strings ? encodeLines(value.toStringList())
                                                                    : propertyValueToText(info, value));
                }
                if (OnSaveControl)
                    OnSaveControl(this, w, ini);
            }
            walk(w);
        }
    };
    if (surface)
        walk(surface);
    QString error;
    if (!ini.save(fileName, &error))
        throw EFormDesigner(error);
}

void TCustomFormDesigner::LoadFromFile(const QString &fileName)
{
    QWidget *surface = m_attached ? m_attached.data() : designControlOrForm();
    QWidget *form = ParentForm();
    if (!surface || !form)
        throw EFormDesigner(QStringLiteral("TFormDesigner has no parent window."));
    TMemIniFile ini;
    QString error;
    if (!ini.load(fileName, &error))
        throw EFormDesigner(error);

    struct Entry
    {
        QString section;
        QPointer<QWidget> widget;
        bool created;
    };
    QList<Entry> entries;
    // Every control first, so that parents named further down are found.
    for (const QString &section : ini.readSections()) {
        const QString className = ini.readString(section, QString::fromLatin1(kClassKey), QString());
        QWidget *w = qobject_cast<QWidget *>(Components::findComponent(form, section));
        const TControl *c = TControl::from(w);
        if (c && !className.isEmpty() && c->classInfo().className.compare(className, Qt::CaseInsensitive) != 0) {
            readError(QStringLiteral("%1: class %2 does not match %3").arg(section, className, c->classInfo().className),
                      true, true);
            continue;
        }
        if (c) {
            entries.append({section, w, false});
            continue;
        }
        if (w)
            continue; // a component of that name that is no control
        w = ControlClasses::create(className);
        if (!w) {
            readError(QStringLiteral("%1: unknown class \"%2\"").arg(section, className), true, true);
            continue;
        }
        TControl::from(w)->beginLoading();
        w->setParent(surface);
        Components::setOwner(w, form);
        w->setObjectName(section);
        AutoName(w, form);
        entries.append({section, w, true});
    }
    for (const Entry &e : std::as_const(entries)) {
        const QString parentName = ini.readString(e.section, QString::fromLatin1(kParentKey), QString());
        QWidget *parent = parentName.isEmpty() ? surface
                                               : qobject_cast<QWidget *>(Components::findComponent(form, parentName));
        if (!parent || parent == e.widget || e.widget->isAncestorOf(parent))
            parent = surface;
        if (e.widget->parentWidget() != parent)
            e.widget->setParent(parent);
    }

    struct Deferred
    {
        QPointer<QWidget> widget;
        const TPropInfo *info;
        QVariant value;
    };
    QList<Deferred> deferred;
    for (const Entry &e : std::as_const(entries)) {
        if (!e.widget)
            continue;
        TControl *c = TControl::from(e.widget.data());
        if (!c->isLoading())
            c->beginLoading();
        for (const QString &key : ini.readSection(e.section)) {
            if (key.compare(QLatin1String(kClassKey), Qt::CaseInsensitive) == 0
                || key.compare(QLatin1String(kParentKey), Qt::CaseInsensitive) == 0)
                continue;
            // Keys that are no property are the program's (OnSaveControl).
            const TPropInfo *info = c->classInfo().property(key);
            if (!info)
                continue;
            const QString text = ini.readString(e.section, key, QString());
            const std::optional<QVariant> value =
                info->type == TPropType::Strings ? QVariant(decodeLines(text)) : propertyValueFromText(*info, text);
            if (!value) {
                readError(QStringLiteral("%1: invalid value of property \"%2\"").arg(e.section, key), true, true);
                continue;
            }
            if (isOrderProperty(info->name))
                deferred.append({e.widget, info, *value});
            else
                info->write(e.widget, *value);
        }
        c->endLoading();
    }
    // Lowest first, with every sibling in place, gives each its own position.
    std::stable_sort(deferred.begin(), deferred.end(),
                     [](const Deferred &a, const Deferred &b) { return a.value.toInt() < b.value.toInt(); });
    for (const Deferred &d : std::as_const(deferred))
        if (d.widget)
            d.info->write(d.widget, d.value);

    for (const Entry &e : std::as_const(entries)) {
        if (!e.widget)
            continue;
        if (e.created) {
            if (m_active)
                m_input.watch(e.widget);
            showIfVisible(e.widget);
        }
        if (OnLoadControl)
            OnLoadControl(this, e.widget, ini);
    }
    if (m_overlay)
        m_overlay->keepOnTop();
    UpdateGrabs();
    DoChange();
}
