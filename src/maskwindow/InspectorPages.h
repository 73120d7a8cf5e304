#pragma once

// An inspector page as data: one row per editor, saying what it shows, what
// it is called and which published property of the control it edits. The
// inspector builds, fills and writes every page from these rows alone; a row
// with a behaviour of its own carries hooks.
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <functional>

class QWidget;
class TObjInsp;

enum class EditorKind {
    Line,        // one line of text
    Spin,        // a whole number within a range
    Combo,       // one of a list; the item index is the value
    Radios,      // one of a few as radio buttons; the checked index is the value
    Check,       // yes or no
    Memo,        // several lines, one list item each
    Button,      // a command: runs the row's click handler
    ColorButton, // picks the colour in the row's property
    FontButton,  // picks face, size and style of the font in the row's property
    Note,        // a framed text, no value
    Custom,      // built by the row's build hook
};

namespace RowFlag {
enum : unsigned {
    Trimmed = 1,           // written without leading and trailing blanks
    FirstWhenUnlisted = 2, // a value the list lacks shows its first item rather than none
    Framed = 4,            // radios in a titled frame across the page
};
}

using InspectorHandler = void (TObjInsp::*)();

struct InspectorRow
{
    EditorKind kind = EditorKind::Line;
    QString label;      // text before the editor; a check box's or button's own text
    QString name;       // object name of the editor
    // The published properties it edits, comma-separated. The first one is
    // shown; all are written, a "!" before a name writes the negation.
    QString property;
    QStringList items;     // choices of a combo or radio group
    QStringList itemNames; // object names of the radio buttons; else name_0, name_1 ...
    unsigned flags = 0;
    int min = 0;
    int max = 0;
    QString specialText; // what a spin box shows at its minimum
    QString panel;       // rows naming one panel sit together on a sub-panel of that name
    QString enabledBy;   // enabled only while that editor's value is enabledValue
    int enabledValue = 0;
    InspectorHandler click = nullptr; // button rows, and the tool button beside a line
    QString buttonName;               // that tool button
    QString buttonTip;
    // Values that do not live on the control itself.
    std::function<QVariant(const TObjInsp &)> read;
    std::function<void(TObjInsp &, const QVariant &)> write;
    std::function<QWidget *(TObjInsp &)> build; // Custom rows

    InspectorRow &with(unsigned f) { flags |= f; return *this; }
    InspectorRow &enabledWhile(const QString &editor, int value)
    {
        enabledBy = editor;
        enabledValue = value;
        return *this;
    }
    InspectorRow &withButton(const QString &objectName, const QString &tip, InspectorHandler handler)
    {
        buttonName = objectName;
        buttonTip = tip;
        click = handler;
        return *this;
    }
    InspectorRow &onPanel(const QString &panelName) { panel = panelName; return *this; }
};

struct InspectorPage
{
    QString caption;                  // the class it serves
    InspectorHandler change = nullptr; // the page's change handler, bound to every editor
    QVector<InspectorRow> rows;
    // After filling and before each write: enabling and showing rows.
    std::function<void(TObjInsp &)> sync;
    // After every row is written: rules across rows.
    std::function<void(TObjInsp &, QWidget *control)> afterWrite;
};

namespace Rows {
InspectorRow line(const char *label, const char *name, const char *property, unsigned flags = 0);
InspectorRow spin(const char *label, const char *name, const char *property, int min, int max);
InspectorRow combo(const char *label, const char *name, const char *property, const QStringList &items,
                   unsigned flags = 0);
InspectorRow radios(const char *label, const char *name, const char *property, const QStringList &items,
                    unsigned flags = 0);
InspectorRow check(const char *text, const char *name, const char *property);
InspectorRow memo(const char *label, const char *name, const char *property);
InspectorRow button(const char *text, const char *name, InspectorHandler click);
InspectorRow colorButton(const char *label, const char *name, const char *property);
InspectorRow fontButton(const char *text, const char *name, const char *property);
InspectorRow note(const char *text, const char *name);
InspectorRow custom(std::function<QWidget *(TObjInsp &)> build);

const QStringList &alignItems();
const QStringList &fieldTypeItems();
const QStringList &charCaseItems();
} // namespace Rows
