// Builds, fills and writes every inspector page from its rows. Values go
// through the control's published properties, so a page needs no code of
// its own to show or store an attribute.
#include "ObjectInspector.h"

#include "Control.h"
#include "ControlClasses.h"
#include "Maske.h"
#include "UserDialogs.h"
#include "ValueEncodings.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <optional>

namespace {

// A row's properties; the first is the one shown.
QStringList propertyNames(const InspectorRow &row)
{
    return row.property.isEmpty() ? QStringList() : row.property.split(QLatin1Char(','));
}

// What the editor holds, in its own terms: text, number, index or flag.
QVariant editorValue(QWidget *w, const InspectorRow &row)
{
    switch (row.kind) {
    case EditorKind::Line: {
        const QString text = static_cast<QLineEdit *>(w)->text();
        return (row.flags & RowFlag::Trimmed) ? text.trimmed() : text;
    }
    case EditorKind::Memo:
        return static_cast<QPlainTextEdit *>(w)->toPlainText();
    case EditorKind::Spin:
        return static_cast<QSpinBox *>(w)->value();
    case EditorKind::Combo:
        return static_cast<QComboBox *>(w)->currentIndex();
    case EditorKind::Radios: {
        const QList<QRadioButton *> buttons = w->findChildren<QRadioButton *>();
        for (int i = 0; i < buttons.size(); ++i)
            if (buttons.at(i)->isChecked())
                return i;
        return -1;
    }
    case EditorKind::Check:
        return static_cast<QCheckBox *>(w)->isChecked();
    default:
        return QVariant();
    }
}

void setEditorValue(QWidget *w, const InspectorRow &row, const QVariant &value)
{
    switch (row.kind) {
    case EditorKind::Line:
        static_cast<QLineEdit *>(w)->setText(value.toString());
        break;
    case EditorKind::Memo:
        static_cast<QPlainTextEdit *>(w)->setPlainText(value.toString());
        break;
    case EditorKind::Spin:
        static_cast<QSpinBox *>(w)->setValue(value.toInt());
        break;
    case EditorKind::Combo: {
        // A value the list does not name shows nothing.
        auto *combo = static_cast<QComboBox *>(w);
        const int index = value.toInt();
        const int unlisted = (row.flags & RowFlag::FirstWhenUnlisted) ? 0 : -1;
        combo->setCurrentIndex(index >= 0 && index < combo->count() ? index : unlisted);
        break;
    }
    case EditorKind::Radios: {
        const QList<QRadioButton *> buttons = w->findChildren<QRadioButton *>();
        const int index = value.toInt();
        if (index >= 0 && index < buttons.size())
            buttons.at(index)->setChecked(true);
        break;
    }
    case EditorKind::Check:
        static_cast<QCheckBox *>(w)->setChecked(value.toBool());
        break;
    default:
        break;
    }
}

bool isChoice(EditorKind kind) { return kind == EditorKind::Combo || kind == EditorKind::Radios; }

bool holdsValue(EditorKind kind)
{
    return kind == EditorKind::Line || kind == EditorKind::Spin || kind == EditorKind::Combo
        || kind == EditorKind::Radios || kind == EditorKind::Check || kind == EditorKind::Memo;
}

// A property value as the row's editor shows it.
QVariant toEditor(const TPropInfo &info, const QVariant &value, EditorKind kind)
{
    switch (info.type) {
    case TPropType::String:
        // A number kept as text, such as a data label's length in its hint.
        return kind == EditorKind::Spin ? QVariant(value.toString().trimmed().toInt()) : value;
    case TPropType::Strings:
        return value.toStringList().join(QLatin1Char('\n'));
    case TPropType::Boolean:
        return isChoice(kind) ? QVariant(value.toBool() ? 1 : 0) : value;
    case TPropType::Integer:
        return kind == EditorKind::Check ? QVariant(value.toInt() == 1) : value;
    default:
        return value;
    }
}

// The editor's value as the property takes it; none when the editor shows
// no choice for an enumeration.
std::optional<QVariant> toProperty(const TPropInfo &info, const QVariant &value, EditorKind kind)
{
    switch (info.type) {
    case TPropType::String:
        return kind == EditorKind::Spin ? QVariant(QString::number(value.toInt())) : QVariant(value.toString());
    case TPropType::Strings: {
        const QString text = value.toString();
        return QVariant(text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n')));
    }
    case TPropType::Boolean:
        if (isChoice(kind))
            return value.toInt() < 0 ? std::nullopt : std::optional<QVariant>(QVariant(value.toInt() == 1));
        return QVariant(value.toBool());
    case TPropType::Integer:
        return kind == EditorKind::Check ? QVariant(value.toBool() ? 1 : 0) : QVariant(value.toInt());
    case TPropType::Enum:
        return value.toInt() < 0 ? std::nullopt : std::optional<QVariant>(QVariant(value.toInt()));
    default:
        return std::nullopt;
    }
}

// The number an editor's state stands for when it enables another.
int editorNumber(QWidget *w, const InspectorRow &row)
{
    const QVariant v = editorValue(w, row);
    return v.typeId() == QMetaType::Bool ? int(v.toBool()) : v.toInt();
}

const InspectorRow *rowNamed(const InspectorPage &page, const QString &name)
{
    for (const InspectorRow &row : page.rows)
        if (row.name == name)
            return &row;
    return nullptr;
}

QFont toQFont(const TFont &f)
{
    QFont font(f.Name);
    font.setPointSize(qMax(1, f.Size));
    applyFontStyles(font, f.Style);
    return font;
}

} // namespace

void TObjInsp::buildPages()
{
    for (const InspectorPage &page : pageTable()) {
        QFormLayout *form = newPage(page.caption);
        QHash<QString, QFormLayout *> panels;
        for (const InspectorRow &row : page.rows) {
            QFormLayout *target = form;
            if (!row.panel.isEmpty()) {
                target = panels.value(row.panel);
                if (!target) {
                    auto *panel = new QWidget;
                    panel->setObjectName(row.panel);
                    target = new QFormLayout(panel);
                    target->setContentsMargins(0, 0, 0, 0);
                    target->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
                    form->addRow(panel);
                    panels.insert(row.panel, target);
                    m_editors.insert(row.panel, {panel, panel, form});
                }
            }
            buildRow(page, row, target);
        }
    }
}

namespace {
// The rows hold the German source texts; the editors show them translated.
QString shown(const QString &text)
{
    return text.isEmpty() ? text : TObjInsp::tr(text.toUtf8().constData());
}

QStringList shown(const QStringList &items)
{
    QStringList out;
    for (const QString &item : items)
        out << shown(item);
    return out;
}
} // namespace

void TObjInsp::buildRow(const InspectorPage &page, const InspectorRow &row, QFormLayout *form)
{
    const TClassInfo *info = ControlClasses::find(page.caption);
    for (QString name : propertyNames(row)) {
        if (name.startsWith(QLatin1Char('!')))
            name.remove(0, 1);
        if (!info || !info->property(name))
            qWarning("Inspector page %s: the class publishes no property %s", qPrintable(page.caption),
                     qPrintable(name));
    }

    const InspectorHandler change = page.change;
    QWidget *editor = nullptr;
    QWidget *field = nullptr;
    QString label = shown(row.label);
    switch (row.kind) {
    case EditorKind::Line: {
        auto *edit = new QLineEdit;
        edit->setMinimumWidth(60);
        connect(edit, &QLineEdit::textChanged, this, change);
        editor = edit;
        if (row.click) {
            // The value with the button that picks or edits it.
            field = new QWidget;
            auto *box = new QHBoxLayout(field);
            box->setContentsMargins(0, 0, 0, 0);
            box->setSpacing(2);
            auto *button = new QToolButton;
            button->setObjectName(row.buttonName);
            button->setText(QStringLiteral("…"));
            button->setToolTip(shown(row.buttonTip));
            box->addWidget(edit, 1);
            box->addWidget(button);
            connect(button, &QToolButton::clicked, this, row.click);
        }
        break;
    }
    case EditorKind::Spin: {
        auto *spin = new QSpinBox;
        spin->setRange(row.min, row.max);
        spin->setSpecialValueText(shown(row.specialText));
        spin->setMaximumWidth(90);
        connect(spin, qOverload<int>(&QSpinBox::valueChanged), this, change);
        editor = spin;
        break;
    }
    case EditorKind::Combo: {
        auto *combo = new QComboBox;
        const QStringList items = shown(row.items);
        combo->addItems(items);
        // Choices as long as "Groß/Kleinschreibung" show whole; longer ones
        // must not widen the narrow tool window further.
        qsizetype longest = 6;
        for (const QString &item : items)
            longest = qMax(longest, item.size());
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(int(qMin<qsizetype>(longest, 20)));
        connect(combo, qOverload<int>(&QComboBox::currentIndexChanged), this, change);
        editor = combo;
        break;
    }
    case EditorKind::Radios: {
        const bool framed = row.flags & RowFlag::Framed;
        editor = framed ? new QGroupBox(label) : new QWidget;
        auto *grid = new QGridLayout(editor);
        if (framed)
            grid->setContentsMargins(6, 4, 6, 4);
        else
            grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(2);
        auto *group = new QButtonGroup(editor);
        for (int i = 0; i < row.items.size(); ++i) {
            auto *radio = new QRadioButton(shown(row.items.at(i)));
            radio->setObjectName(row.itemNames.value(i, row.name + QStringLiteral("_%1").arg(i)));
            group->addButton(radio, i);
            // Two in a row in a frame, one above the other beside a label.
            grid->addWidget(radio, framed ? i / 2 : i, framed ? i % 2 : 0);
            connect(radio, &QRadioButton::toggled, this, [this, change](bool on) {
                if (on)
                    (this->*change)();
            });
        }
        if (framed)
            label.clear();
        break;
    }
    case EditorKind::Check: {
        auto *check = new QCheckBox(label);
        connect(check, &QCheckBox::toggled, this, change);
        editor = check;
        label.clear();
        break;
    }
    case EditorKind::Memo: {
        auto *memo = new QPlainTextEdit;
        memo->setTabChangesFocus(true);
        memo->setFixedHeight(90);
        connect(memo, &QPlainTextEdit::textChanged, this, change);
        editor = memo;
        break;
    }
    case EditorKind::Button:
    case EditorKind::ColorButton:
    case EditorKind::FontButton: {
        const bool color = row.kind == EditorKind::ColorButton;
        auto *button = new QPushButton(color ? tr("Farbe…") : label);
        button->setAutoDefault(false);
        const QString caption = page.caption;
        const QString property = row.property;
        if (row.kind == EditorKind::Button)
            connect(button, &QPushButton::clicked, this, row.click);
        else if (color)
            connect(button, &QPushButton::clicked, this, [=] { pickColor(caption, property); });
        else
            connect(button, &QPushButton::clicked, this, [=] { pickFont(caption, property); });
        editor = button;
        if (!color)
            label.clear();
        break;
    }
    case EditorKind::Note: {
        auto *note = new QLabel(label);
        note->setAlignment(Qt::AlignCenter);
        note->setFrameShape(QFrame::StyledPanel);
        editor = note;
        label.clear();
        break;
    }
    case EditorKind::Custom:
        form->addRow(row.build(*this));
        return;
    }

    editor->setObjectName(row.name);
    if (!field)
        field = editor;
    const bool spans = label.isEmpty() && (row.kind == EditorKind::Radios || row.kind == EditorKind::Note);
    if (spans)
        form->addRow(field);
    else
        form->addRow(label, field);
    m_editors.insert(row.name, {editor, field, form});
}

void TObjInsp::fillPage(const InspectorPage &page)
{
    const TControl *control = TControl::from(m_current.data());
    for (const InspectorRow &row : page.rows) {
        QWidget *w = m_editors.value(row.name).widget;
        if (!w)
            continue;
        if (row.read) {
            setEditorValue(w, row, row.read(*this));
            continue;
        }
        const QStringList names = propertyNames(row);
        const TPropInfo *info = control && !names.isEmpty() ? control->classInfo().property(names.first()) : nullptr;
        if (info && holdsValue(row.kind))
            setEditorValue(w, row, toEditor(*info, info->read(m_current), row.kind));
    }
    syncPage(page);
}

void TObjInsp::syncPage(const InspectorPage &page)
{
    for (const InspectorRow &row : page.rows) {
        if (row.enabledBy.isEmpty())
            continue;
        const InspectorRow *by = rowNamed(page, row.enabledBy);
        QWidget *byEditor = m_editors.value(row.enabledBy).widget;
        if (QWidget *w = m_editors.value(row.name).widget; w && by && byEditor)
            w->setEnabled(editorNumber(byEditor, *by) == row.enabledValue);
    }
    if (page.sync)
        page.sync(*this);
}

void TObjInsp::writePage(const QString &caption)
{
    const InspectorPage *page = pageFor(caption);
    if (!page)
        return;
    // Enabling follows the editors even while they are being filled.
    syncPage(*page);
    QWidget *c = m_current;
    if (m_updating || !c || classNameOf(c) != caption)
        return;
    const TClassInfo &info = TControl::from(c)->classInfo();
    for (const InspectorRow &row : page->rows) {
        QWidget *w = m_editors.value(row.name).widget;
        if (!w)
            continue;
        const QVariant value = editorValue(w, row);
        if (row.write) {
            row.write(*this, value);
            continue;
        }
        for (QString name : propertyNames(row)) {
            const bool negate = name.startsWith(QLatin1Char('!'));
            if (negate)
                name.remove(0, 1);
            const TPropInfo *prop = info.property(name);
            if (!prop)
                continue;
            std::optional<QVariant> v = toProperty(*prop, value, row.kind);
            if (!v)
                continue;
            if (negate)
                v = QVariant(!v->toBool());
            // An untouched editor leaves its property alone.
            if (prop->read(c) != *v)
                prop->write(c, *v);
        }
    }
    if (page->afterWrite)
        page->afterWrite(*this, c);
    markModified();
}

void TObjInsp::pickColor(const QString &caption, const QString &property)
{
    QWidget *c = m_current;
    const TPropInfo *prop = c && classNameOf(c) == caption ? TControl::from(c)->classInfo().property(property) : nullptr;
    if (!prop)
        return;
    const std::optional<TColor> color = UserDialogs::instance().colorDialog(this, prop->read(c).value<TColor>());
    if (!color)
        return;
    prop->write(c, QVariant::fromValue(*color));
    markModified();
}

void TObjInsp::pickFont(const QString &caption, const QString &property)
{
    QWidget *c = m_current;
    const TPropInfo *prop = c && classNameOf(c) == caption ? TControl::from(c)->classInfo().property(property) : nullptr;
    if (!prop)
        return;
    TFont font = prop->read(c).value<TFont>();
    const std::optional<QFont> chosen = UserDialogs::instance().fontDialog(this, toQFont(font));
    if (!chosen)
        return;
    // The colour is not part of what the font dialog edits; it stays.
    font.Name = chosen->family();
    if (chosen->pointSize() > 0)
        font.Size = chosen->pointSize();
    font.Style = fontStylesOf(*chosen);
    prop->write(c, QVariant::fromValue(font));
    markModified();
}

void TObjInsp::showRow(const QString &name, bool shown)
{
    const Editor e = m_editors.value(name);
    if (e.form)
        e.form->setRowVisible(e.field, shown);
}

void TObjInsp::setRowLabel(const QString &name, const QString &text)
{
    const Editor e = m_editors.value(name);
    if (auto *label = e.form ? qobject_cast<QLabel *>(e.form->labelForField(e.field)) : nullptr)
        label->setText(text);
}
