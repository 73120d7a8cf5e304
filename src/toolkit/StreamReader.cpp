// Stream tree -> widgets: creating, naming, owning and setting properties,
// and undoing all of it when the stream cannot be read to the end.
#include "Streaming.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QPointer>
#include <QSet>
#include <algorithm>
#include <optional>

#include "Components.h"
#include "ControlClasses.h"
#include "Control.h"
#include "StreamTree.h"

using namespace StreamTree;

namespace {

enum FontPart { fpName, fpSize, fpColor, fpStyle, fpCount };
const char *const kFontParts[fpCount] = {"Name", "Size", "Color", "Style"};

int indexOfName(const QStringList &names, const QString &name)
{
    for (qsizetype i = 0; i < names.size(); ++i)
        if (names.at(i).compare(name, Qt::CaseInsensitive) == 0)
            return int(i);
    return -1;
}

int fontPart(const QString &suffix)
{
    for (int i = 0; i < fpCount; ++i)
        if (suffix.compare(QLatin1String(kFontParts[i]), Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

std::optional<TColor> toColor(const Value &v)
{
    if (v.kind == Value::Kind::Int)
        return TColor(v.number);
    if (v.kind == Value::Kind::Ident && ColorIdents().contains(v.text, Qt::CaseInsensitive))
        return StringToColor(v.text);
    return std::nullopt;
}

std::optional<int> toSet(const Value &v, const QStringList &names)
{
    if (v.kind != Value::Kind::Set)
        return std::nullopt;
    int bits = 0;
    for (const QString &name : v.names) {
        const int i = indexOfName(names, name);
        if (i < 0 || i >= 32)
            return std::nullopt;
        bits |= int(1u << i);
    }
    return bits;
}

std::optional<QVariant> toVariant(const TPropInfo &info, const Value &v)
{
    switch (info.type) {
    case TPropType::Integer:
        if (v.kind == Value::Kind::Int)
            return QVariant(int(v.number));
        break;
    case TPropType::Boolean:
        if (v.kind == Value::Kind::Bool)
            return QVariant(v.number != 0);
        break;
    case TPropType::String:
        if (v.kind == Value::Kind::String)
            return QVariant(v.text);
        break;
    case TPropType::Color:
        if (const auto c = toColor(v))
            return QVariant::fromValue(*c);
        break;
    case TPropType::Enum:
        if (v.kind == Value::Kind::Ident) {
            const int i = indexOfName(info.enumNames, v.text);
            if (i >= 0)
                return QVariant(i);
        } else if (v.kind == Value::Kind::Int && v.number >= 0
                   && v.number < std::max<qsizetype>(1, info.enumNames.size())) {
            // Setters index tables by the ordinal: nothing outside the names.
            return QVariant(int(v.number));
        }
        break;
    case TPropType::Set:
        if (const auto bits = toSet(v, info.enumNames))
            return QVariant(*bits);
        break;
    case TPropType::Strings:
        if (v.kind == Value::Kind::List) {
            QStringList list;
            for (const Value &item : v.items) {
                if (item.kind != Value::Kind::String)
                    return std::nullopt;
                list << item.text;
            }
            return QVariant(list);
        }
        break;
    case TPropType::Font:
        break; // only as its parts
    }
    return std::nullopt;
}

bool setFontPart(TFont &font, int part, const Value &v)
{
    switch (part) {
    case fpName:
        if (v.kind != Value::Kind::String)
            return false;
        font.Name = v.text;
        return true;
    case fpSize:
        if (v.kind != Value::Kind::Int)
            return false;
        font.Size = v.number;
        return true;
    case fpColor:
        if (const auto c = toColor(v)) {
            font.Color = *c;
            return true;
        }
        return false;
    case fpStyle:
        if (const auto bits = toSet(v, fontStyleNames())) {
            font.Style = TFontStyles::fromInt(*bits);
            return true;
        }
        return false;
    }
    return false;
}

const Property *findProperty(const Node &n, const QString &name)
{
    for (const Property &p : n.properties)
        if (p.name.compare(name, Qt::CaseInsensitive) == 0)
            return &p;
    return nullptr;
}

QString describe(QWidget *w)
{
    const TControl *c = TControl::from(w);
    const QString cls = c ? c->classInfo().className : QString::fromLatin1(w->metaObject()->className());
    return w->objectName().isEmpty() ? cls : QStringLiteral("%1 (%2)").arg(w->objectName(), cls);
}

// One read: everything it created, so that a failure can take it all back.
class Loader
{
public:
    Loader(const TReadContext &ctx, QObject *owner) : m_ctx(ctx), m_owner(owner) {}

    QString error;
    bool failed() const { return m_failed; }

    // Unknown classes are found before anything is created: the handler
    // decides to skip them (with what they hold) or to give up.
    bool checkClasses(const Node &n, bool self = true)
    {
        if (self && !ControlClasses::find(n.className)) {
            const QString message = QCoreApplication::translate("Streaming", "Unbekannte Klasse „%1“").arg(n.className);
            if (!handle(message, false))
                return fail(message);
            m_skipped.insert(&n);
            return true;
        }
        for (const Node &child : n.children)
            if (!checkClasses(child))
                return false;
        return true;
    }

    bool isSkipped(const Node &n) const { return m_skipped.contains(&n); }

    QWidget *create(const Node &n, QWidget *parent)
    {
        if (isSkipped(n))
            return nullptr;
        QWidget *w = ControlClasses::create(n.className);
        if (!w) {
            fail(QCoreApplication::translate("Streaming", "Unbekannte Klasse „%1“").arg(n.className));
            return nullptr;
        }
        m_created << w;
        if (TControl *c = TControl::from(w))
            c->beginLoading();
        if (parent)
            w->setParent(parent);
        // Owned first, so that naming sees the owner's other components.
        if (m_owner)
            Components::setOwner(w, m_owner);
        w->setObjectName(n.name);
        AutoName(w, m_owner);
        return load(w, n) ? w : nullptr;
    }

    // An existing component read into (created ones begin loading as they are made).
    void startLoading(QWidget *w)
    {
        TControl *c = TControl::from(w);
        if (c && !c->isLoading()) {
            c->beginLoading();
            m_existing = w;
        }
    }

    bool load(QWidget *w, const Node &n) { return applyProperties(w, n.properties) && loadChildren(w, n); }

    bool applyProperties(QWidget *w, const QList<Property> &properties)
    {
        const TControl *control = TControl::from(w);
        const TClassInfo *info = control ? &control->classInfo() : nullptr;
        // Font parts are gathered and set as one font when the last one is
        // read or another property follows; missing parts keep their value.
        const TPropInfo *fontProp = nullptr;
        TFont font;
        int fontParts = 0;
        const auto flushFont = [&] {
            if (fontProp && fontParts)
                fontProp->write(w, QVariant::fromValue(font));
            fontProp = nullptr;
            fontParts = 0;
        };

        for (const Property &p : properties) {
            const TPropInfo *direct = info ? info->property(p.name) : nullptr;
            const TPropInfo *partOf = nullptr;
            const TPropInfo *listOf = nullptr;
            int part = -1;
            const qsizetype dot = p.name.lastIndexOf(QLatin1Char('.'));
            if (!direct && info && dot > 0) {
                const TPropInfo *base = info->property(p.name.left(dot));
                const QString suffix = p.name.mid(dot + 1);
                if (base && base->type == TPropType::Font && (part = fontPart(suffix)) >= 0)
                    partOf = base;
                else if (base && base->type == TPropType::Strings
                         && suffix.compare(QLatin1String("Strings"), Qt::CaseInsensitive) == 0)
                    listOf = base;
            }
            if (fontProp && fontProp != partOf)
                flushFont();

            QString problem;
            if (partOf) {
                if (!fontProp) {
                    fontProp = partOf;
                    font = partOf->read(w).value<TFont>();
                }
                if (setFontPart(font, part, p.value)) {
                    fontParts |= 1 << part;
                    if (fontParts == (1 << fpCount) - 1)
                        flushFont();
                } else {
                    problem = QCoreApplication::translate("Streaming", "Ungültiger Wert für Eigenschaft „%1“ in %2")
                                  .arg(p.name, describe(w));
                }
            } else if (const TPropInfo *target = direct ? direct : listOf) {
                if (const auto v = toVariant(*target, p.value))
                    target->write(w, *v);
                else
                    problem = QCoreApplication::translate("Streaming", "Ungültiger Wert für Eigenschaft „%1“ in %2")
                                  .arg(p.name, describe(w));
            } else {
                problem = QCoreApplication::translate("Streaming", "Unbekannte Eigenschaft „%1“ in %2")
                              .arg(p.name, describe(w));
            }
            if (!problem.isEmpty() && !handle(problem, true))
                return fail(problem);
        }
        flushFont();
        return true;
    }

    bool loadChildren(QWidget *w, const Node &n)
    {
        QList<QPair<QWidget *, const Node *>> made;
        for (const Node &child : n.children) {
            QWidget *cw = create(child, w);
            if (m_failed)
                return false;
            if (cw)
                made.append({cw, &child});
        }
        // Positions among siblings were set while siblings were still
        // missing; set them again, lowest first, now that all are there.
        reapplyOrder(made, QStringLiteral("PageIndex"));
        reapplyOrder(made, QStringLiteral("TabOrder"));
        // The active page needs the pages.
        reapply(w, n, QStringLiteral("ActivePageIndex"));
        return true;
    }

    // Ends loading and tells the caller.
    void finish()
    {
        endExisting();
        for (const QPointer<QWidget> &w : std::as_const(m_created))
            if (TControl *c = TControl::from(w.data()))
                c->endLoading();
        if (m_ctx.onCreated)
            for (const QPointer<QWidget> &w : std::as_const(m_created))
                if (w)
                    m_ctx.onCreated(w);
    }

    void rollback()
    {
        endExisting();
        // Newest first: children go before the containers that hold them.
        for (qsizetype i = m_created.size() - 1; i >= 0; --i)
            delete m_created.at(i).data();
        m_created.clear();
    }

private:
    void endExisting()
    {
        if (TControl *c = TControl::from(m_existing.data()))
            c->endLoading();
        m_existing = nullptr;
    }

    bool handle(const QString &message, bool defaultHandled)
    {
        bool handled = defaultHandled;
        if (m_ctx.onError)
            m_ctx.onError(message, handled);
        return handled;
    }

    bool fail(const QString &message)
    {
        if (!m_failed) {
            m_failed = true;
            error = message;
        }
        return false;
    }

    static std::optional<QVariant> valueOf(QWidget *w, const Node &n, const QString &name, const TPropInfo **prop)
    {
        const TControl *c = TControl::from(w);
        const Property *p = findProperty(n, name);
        *prop = c ? c->classInfo().property(name) : nullptr;
        if (!p || !*prop)
            return std::nullopt;
        return toVariant(**prop, p->value);
    }

    static void reapply(QWidget *w, const Node &n, const QString &name)
    {
        const TPropInfo *prop = nullptr;
        if (const auto v = valueOf(w, n, name, &prop))
            prop->write(w, *v);
    }

    static void reapplyOrder(const QList<QPair<QWidget *, const Node *>> &children, const QString &name)
    {
        struct Item
        {
            int order;
            QWidget *widget;
            const TPropInfo *prop;
        };
        QList<Item> items;
        for (const auto &[w, n] : children) {
            const TPropInfo *prop = nullptr;
            if (const auto v = valueOf(w, *n, name, &prop))
                items.append({v->toInt(), w, prop});
        }
        std::stable_sort(items.begin(), items.end(), [](const Item &a, const Item &b) { return a.order < b.order; });
        for (const Item &item : std::as_const(items))
            item.prop->write(item.widget, item.order);
    }

    const TReadContext &m_ctx;
    QObject *m_owner;
    QSet<const Node *> m_skipped;
    QList<QPointer<QWidget>> m_created;
    QPointer<QWidget> m_existing;
    bool m_failed = false;
};

void setError(QString *error, const QString &message)
{
    if (error)
        *error = message;
}

// One component from the device; a random-access device is left behind it.
bool parseOne(QIODevice &in, Node &node, QString *error)
{
    const qint64 start = in.isSequential() ? 0 : in.pos();
    const QByteArray data = in.readAll();
    const ParseResult r = parseAny(data, skipTextBlanks(data, 0), node);
    if (!r.ok) {
        if (!in.isSequential())
            in.seek(start);
        setError(error, r.error);
        return false;
    }
    if (!in.isSequential())
        in.seek(start + r.end);
    return true;
}

} // namespace

QWidget *readComponent(QIODevice &in, const TReadContext &ctx, QString *error)
{
    Node node;
    if (!parseOne(in, node, error))
        return nullptr;
    Loader loader(ctx, ctx.owner);
    if (!loader.checkClasses(node)) {
        setError(error, loader.error);
        return nullptr;
    }
    if (loader.isSkipped(node)) {
        setError(error, QCoreApplication::translate("Streaming", "Unbekannte Klasse „%1“").arg(node.className));
        return nullptr;
    }
    QWidget *top = loader.create(node, ctx.parent);
    if (!top) {
        setError(error, loader.error);
        loader.rollback();
        return nullptr;
    }
    loader.finish();
    return top;
}

QList<QWidget *> readComponents(QIODevice &in, const TReadContext &ctx, QString *error)
{
    QList<Node> nodes;
    const ParseResult r = parseAll(in.readAll(), nodes);
    if (!r.ok) {
        setError(error, r.error);
        return {};
    }
    Loader loader(ctx, ctx.owner);
    QList<QWidget *> tops;
    for (const Node &node : std::as_const(nodes)) {
        if (!loader.checkClasses(node))
            break;
        if (QWidget *w = loader.create(node, ctx.parent))
            tops << w;
        if (loader.failed())
            break;
    }
    if (loader.failed()) {
        setError(error, loader.error);
        loader.rollback();
        return {};
    }
    loader.finish();
    return tops;
}

bool readInto(QIODevice &in, QWidget *component, const TReadContext &ctx, QString *error)
{
    if (!component) {
        setError(error, QCoreApplication::translate("Streaming", "Keine Komponente zum Einlesen"));
        return false;
    }
    Node node;
    if (!parseOne(in, node, error))
        return false;
    if (const TControl *c = TControl::from(component);
        c && c->classInfo().className.compare(node.className, Qt::CaseInsensitive) != 0) {
        setError(error,
                 QCoreApplication::translate("Streaming", "Klasse „%1“ im Datenstrom passt nicht zu „%2“")
                     .arg(node.className, c->classInfo().className));
        return false;
    }
    QObject *owner = ctx.owner ? ctx.owner : Components::owner(component);
    Loader loader(ctx, owner);
    if (!loader.checkClasses(node, false)) {
        setError(error, loader.error);
        return false;
    }
    loader.startLoading(component);
    const QString oldName = component->objectName();
    if (!node.name.isEmpty() && node.name != oldName) {
        const QObject *other = Components::findComponent(Components::owner(component), node.name);
        if (!other || other == component)
            component->setObjectName(node.name);
    }
    if (!loader.load(component, node)) {
        setError(error, loader.error);
        component->setObjectName(oldName);
        loader.rollback();
        return false;
    }
    loader.finish();
    return true;
}

bool setComponentPropertiesText(QWidget *component, const QString &text, QString *error)
{
    if (!component) {
        setError(error, QCoreApplication::translate("Streaming", "Keine Komponente"));
        return false;
    }
    QList<Property> properties;
    const ParseResult r = parseTextProperties(text.toUtf8(), properties);
    QStringList problems;
    if (!r.ok)
        problems << r.error;
    TReadContext ctx;
    ctx.onError = [&problems](const QString &message, bool &handled) {
        problems << message;
        handled = true;
    };
    Loader loader(ctx, nullptr);
    loader.startLoading(component);
    loader.applyProperties(component, properties);
    loader.finish();
    setError(error, problems.join(QLatin1Char('\n')));
    return problems.isEmpty();
}
