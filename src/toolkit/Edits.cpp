#include "Edits.h"

#include <QChildEvent>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QValidator>

#include "CommonProps.h"
#include "EditStyle.h"

using PropBuilder::prop;

// Applies CharCase and MaxLength to what the user types or pastes, so an
// edit never holds text of the wrong case, not even for a moment. Like the
// edits masks come from, MaxLength limits the user only: text the program
// sets is kept whole, and a text already too long does not grow.
class TTextInputValidator : public QValidator
{
public:
    explicit TTextInputValidator(QObject *parent) : QValidator(parent) {}

    TEditCharCase charCase = ecNormal;
    int maxLength = 0;

    // Runs a change made by the program rather than the user.
    template <class F>
    void programmatic(F &&change)
    {
        m_programmatic = true;
        change();
        m_programmatic = false;
    }

    State validate(QString &input, int &pos) const override
    {
        input = applyCharCase(input, charCase);
        const int allowed = qMax(maxLength, m_lastLength);
        if (!m_programmatic && maxLength > 0 && input.size() > allowed) {
            // What was just typed or pasted ends at the cursor; its tail goes.
            const int cut = qMin(int(input.size()) - allowed, pos);
            input.remove(pos - cut, cut);
            pos -= cut;
        }
        m_lastLength = int(input.size());
        return Acceptable;
    }

private:
    bool m_programmatic = false;
    mutable int m_lastLength = 0;
};

QString applyCharCase(const QString &text, TEditCharCase charCase)
{
    switch (charCase) {
    case ecUpperCase: return text.toUpper();
    case ecLowerCase: return text.toLower();
    case ecNormal: break;
    }
    return text;
}

void TDesignInputGuard::apply(QWidget *control, bool designing)
{
    if (designing == m_active)
        return;
    m_active = designing;
    if (designing) {
        m_policy = control->focusPolicy();
        control->setFocusPolicy(Qt::NoFocus);
        m_children.clear();
        for (QWidget *child : control->findChildren<QWidget *>()) {
            if (child->isWindow())
                continue;
            // A focus proxy passes its policy on to the widget it stands for.
            const bool ownFocus = !child->focusProxy();
            m_children.append({child, ownFocus, child->focusPolicy(),
                               child->testAttribute(Qt::WA_TransparentForMouseEvents)});
            if (ownFocus)
                child->setFocusPolicy(Qt::NoFocus);
            child->setAttribute(Qt::WA_TransparentForMouseEvents, true);
        }
        if (control->hasFocus())
            control->clearFocus();
    } else {
        for (const ChildState &state : std::as_const(m_children)) {
            if (!state.widget)
                continue;
            if (state.ownFocus)
                state.widget->setFocusPolicy(state.policy);
            state.widget->setAttribute(Qt::WA_TransparentForMouseEvents, state.transparent);
        }
        m_children.clear();
        control->setFocusPolicy(m_policy);
    }
}

bool TDesignInputGuard::isUserInput(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        return true;
    default:
        return false;
    }
}

// --- TcxTextEdit -----------------------------------------------------------

TcxTextEdit::TcxTextEdit(QWidget *parent)
    : TInputControlT<QLineEdit>(parent), TEditStyled(this, /*borders*/ true)
{
    m_input = new TTextInputValidator(this);
    setValidator(m_input);
    setColor(Colors::clWindow);
    resize(121, 21);
    attachToParent();
}

QVector<TPropInfo> TcxTextEdit::textEditProperties()
{
    namespace P = CommonProps;
    return {
        P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
        prop("AutoSelect", &TcxTextEdit::AutoSelect, &TcxTextEdit::setAutoSelect, {}, QVariant(true)),
        prop("CharCase", &TcxTextEdit::CharCase, &TcxTextEdit::setCharCase, enumNames<TEditCharCase>(),
             QVariant(int(ecNormal))),
        P::Color(), P::Font(), P::ParentFont(),
        prop("MaxLength", &TcxTextEdit::MaxLength, &TcxTextEdit::setMaxLength, {}, QVariant(0)),
        prop("ReadOnly", &TcxTextEdit::ReadOnly, &TcxTextEdit::setReadOnly, {}, QVariant(false)),
        prop("Text", &TcxTextEdit::Text, &TcxTextEdit::setText),
        P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(),
        P::Visible(), P::Enabled(),
    };
}

const TClassInfo &TcxTextEdit::staticClassInfo()
{
    static const TClassInfo info{QStringLiteral("TcxTextEdit"), textEditProperties(),
                                 [] { return new TcxTextEdit; },
                                 /*windowed*/ true, /*acceptsControls*/ false, /*setCaptionFromName*/ true};
    return info;
}

void TcxTextEdit::setText(const QString &text)
{
    noteChange();
    m_input->programmatic([&] { QLineEdit::setText(applyCharCase(text, m_input->charCase)); });
}

int TcxTextEdit::MaxLength() const
{
    return m_input->maxLength;
}

void TcxTextEdit::setMaxLength(int length)
{
    noteChange();
    m_input->maxLength = qMax(0, length);
}

TEditCharCase TcxTextEdit::CharCase() const
{
    return m_input->charCase;
}

void TcxTextEdit::setCharCase(TEditCharCase charCase)
{
    noteChange();
    m_input->charCase = charCase;
    setText(text());
}

void TcxTextEdit::focusInEvent(QFocusEvent *event)
{
    TInputControlT<QLineEdit>::focusInEvent(event);
    if (!m_autoSelect)
        deselect();
}

// --- TcxComboBox -----------------------------------------------------------

TcxComboBox::TcxComboBox(QWidget *parent)
    : TInputControlT<QComboBox>(parent), TEditStyled(this, /*borders*/ true)
{
    setEditable(true);
    // Typed values are the field's value, not new list entries.
    setInsertPolicy(QComboBox::NoInsert);
    m_input = new TTextInputValidator(this);
    lineEdit()->setValidator(m_input);
    setColor(Colors::clWindow);
    resize(145, 21);
    attachToParent();
}

const TClassInfo &TcxComboBox::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TcxComboBox"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("AutoSelect", &TcxComboBox::AutoSelect, &TcxComboBox::setAutoSelect, {}, QVariant(true)),
            prop("CharCase", &TcxComboBox::CharCase, &TcxComboBox::setCharCase, enumNames<TEditCharCase>(),
                 QVariant(int(ecNormal))),
            P::Color(), P::Font(), P::ParentFont(),
            prop("Items", &TcxComboBox::Items, &TcxComboBox::setItems, {}, QVariant(QStringList())),
            prop("MaxLength", &TcxComboBox::MaxLength, &TcxComboBox::setMaxLength, {}, QVariant(0)),
            prop("ReadOnly", &TcxComboBox::ReadOnly, &TcxComboBox::setReadOnly, {}, QVariant(false)),
            prop("Text", &TcxComboBox::Text, &TcxComboBox::setText),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(),
            P::Visible(), P::Enabled(),
        },
        [] { return new TcxComboBox; },
        /*windowed*/ true,
        /*acceptsControls*/ false,
        /*setCaptionFromName*/ true};
    return info;
}

QString TcxComboBox::Text() const
{
    return lineEdit()->text();
}

void TcxComboBox::setText(const QString &text)
{
    noteChange();
    // A value from the list selects its entry, as choosing it would.
    const QString value = applyCharCase(text, m_input->charCase);
    m_input->programmatic([&] {
        setCurrentIndex(findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive));
        setEditText(value);
    });
}

QStringList TcxComboBox::Items() const
{
    QStringList items;
    items.reserve(count());
    for (int i = 0; i < count(); ++i)
        items << itemText(i);
    return items;
}

void TcxComboBox::setItems(const QStringList &items)
{
    noteChange();
    // Filling the list would select its first entry; the value stays as it was.
    const QString text = Text();
    const QSignalBlocker blocker(this);
    m_input->programmatic([&] {
        clear();
        addItems(items);
        setCurrentIndex(int(items.indexOf(text)));
        setEditText(text);
    });
}

int TcxComboBox::MaxLength() const
{
    return m_input->maxLength;
}

void TcxComboBox::setMaxLength(int length)
{
    noteChange();
    m_input->maxLength = qMax(0, length);
}

void TcxComboBox::setReadOnly(bool readOnly)
{
    noteChange();
    m_readOnly = readOnly;
    lineEdit()->setReadOnly(readOnly);
    if (readOnly)
        hidePopup();
}

TEditCharCase TcxComboBox::CharCase() const
{
    return m_input->charCase;
}

void TcxComboBox::setCharCase(TEditCharCase charCase)
{
    noteChange();
    m_input->charCase = charCase;
    setText(Text());
}

void TcxComboBox::showPopup()
{
    if (m_readOnly || isDesigning())
        return;
    QComboBox::showPopup();
}

void TcxComboBox::keyPressEvent(QKeyEvent *event)
{
    if (m_readOnly) {
        // These would step to another item.
        switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            event->ignore();
            return;
        default:
            break;
        }
    }
    QComboBox::keyPressEvent(event);
}

void TcxComboBox::focusInEvent(QFocusEvent *event)
{
    TInputControlT<QComboBox>::focusInEvent(event);
    if (!m_autoSelect)
        lineEdit()->deselect();
}

void TcxComboBox::wheelEvent(QWheelEvent *event)
{
    if (m_readOnly) {
        event->ignore();
        return;
    }
    QComboBox::wheelEvent(event);
}

// --- TcxDBPopupEdit --------------------------------------------------------

namespace {
// The width of the drop-down button, as wide as a combo box's.
constexpr int kPopupButtonWidth = 17;
} // namespace

TcxDBPopupEdit::TcxDBPopupEdit(QWidget *parent) : TcxTextEdit(parent)
{
    setTextMargins(0, 0, kPopupButtonWidth, 0);
    resize(145, 21);
    attachToParent();
}

const TClassInfo &TcxDBPopupEdit::staticClassInfo()
{
    static const TClassInfo info = [] {
        TClassInfo i{QStringLiteral("TcxDBPopupEdit"), textEditProperties(), [] { return new TcxDBPopupEdit; },
                     /*windowed*/ true, /*acceptsControls*/ false, /*setCaptionFromName*/ true};
        i.properties << prop("DataField", &TcxDBPopupEdit::DataField, &TcxDBPopupEdit::setDataField, {},
                             QVariant(QString()))
                     << prop("EditMask", &TcxDBPopupEdit::EditMask, &TcxDBPopupEdit::setEditMask, {},
                             QVariant(QString()))
                     << prop("PopupSizeable", &TcxDBPopupEdit::PopupSizeable, &TcxDBPopupEdit::setPopupSizeable,
                             {}, QVariant(false));
        return i;
    }();
    return info;
}

QRect TcxDBPopupEdit::buttonRect() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect inner = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const int frame = qMax(1, inner.top());
    const int w = qMin(kPopupButtonWidth, qMax(0, width() - 2 * frame));
    return QRect(width() - frame - w, frame, w, qMax(0, height() - 2 * frame));
}


void TcxDBPopupEdit::paintEvent(QPaintEvent *event)
{
    TcxTextEdit::paintEvent(event);
    QPainter p(this);
    QStyleOptionButton button;
    button.initFrom(this);
    button.rect = buttonRect();
    button.state |= QStyle::State_Raised;
    if (!isEnabled())
        button.state &= ~QStyle::State_Enabled;
    p.fillRect(button.rect, palette().color(QPalette::Button));
    style()->drawPrimitive(QStyle::PE_PanelButtonBevel, &button, &p, this);
    QStyleOption arrow = button;
    const int side = qMin(9, qMin(button.rect.width(), button.rect.height()));
    arrow.rect = QRect(0, 0, side, side);
    arrow.rect.moveCenter(button.rect.center());
    arrow.palette.setColor(QPalette::ButtonText, palette().color(QPalette::ButtonText));
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &p, this);
}

void TcxDBPopupEdit::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && buttonRect().contains(event->position().toPoint())) {
        if (!isReadOnly())
            Q_EMIT popupRequested();
        event->accept();
        return;
    }
    TcxTextEdit::mousePressEvent(event);
}

// --- TcxMemo ---------------------------------------------------------------

TcxMemo::TcxMemo(QWidget *parent)
    : TInputControlT<QPlainTextEdit>(parent), TEditStyled(this, /*borders*/ true)
{
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int position, int, int added) { limitInput(position, added); });
    setColor(Colors::clWindow);
    applyWrapping();
    resize(185, 89);
    attachToParent();
}

const TClassInfo &TcxMemo::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TcxMemo"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            P::Color(), P::Font(), P::ParentFont(),
            prop("Lines", &TcxMemo::Lines, &TcxMemo::setLines, {}, QVariant(QStringList())),
            prop("MaxLength", &TcxMemo::MaxLength, &TcxMemo::setMaxLength, {}, QVariant(0)),
            prop("ReadOnly", &TcxMemo::ReadOnly, &TcxMemo::setReadOnly, {}, QVariant(false)),
            prop("ScrollBars", &TcxMemo::ScrollBars, &TcxMemo::setScrollBars, enumNames<TScrollStyle>(),
                 QVariant(int(ssNone))),
            prop("WordWrap", &TcxMemo::WordWrap, &TcxMemo::setWordWrap, {}, QVariant(true)),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(),
            P::Visible(), P::Enabled(),
        },
        [] { return new TcxMemo; },
        /*windowed*/ true,
        /*acceptsControls*/ false,
        /*setCaptionFromName*/ true};
    return info;
}

void TcxMemo::setText(const QString &text)
{
    noteChange();
    // MaxLength limits the user, not the program.
    m_settingText = true;
    setPlainText(text);
    m_settingText = false;
}

QStringList TcxMemo::Lines() const
{
    const QString text = toPlainText();
    return text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
}

void TcxMemo::setLines(const QStringList &lines)
{
    noteChange();
    setText(lines.join(QLatin1Char('\n')));
}

void TcxMemo::setScrollBars(TScrollStyle scrollBars)
{
    noteChange();
    m_scrollBars = scrollBars;
    const bool horizontal = scrollBars == ssHorizontal || scrollBars == ssBoth;
    const bool vertical = scrollBars == ssVertical || scrollBars == ssBoth;
    setHorizontalScrollBarPolicy(horizontal ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(vertical ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    applyWrapping();
}

void TcxMemo::setWordWrap(bool wrap)
{
    noteChange();
    m_wordWrap = wrap;
    applyWrapping();
}

void TcxMemo::applyWrapping()
{
    // A horizontal scroll bar is there to reach the ends of long lines.
    const bool horizontal = m_scrollBars == ssHorizontal || m_scrollBars == ssBoth;
    setLineWrapMode(m_wordWrap && !horizontal ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

void TcxMemo::limitInput(int position, int added)
{
    if (m_settingText || m_maxLength <= 0 || added <= 0)
        return;
    const int excess = document()->characterCount() - 1 - m_maxLength;
    if (excess <= 0)
        return;
    // Drop the end of what was just inserted, as much as is too much.
    const int cut = qMin(excess, added);
    m_settingText = true;
    QTextCursor cursor(document());
    cursor.setPosition(position + added - cut);
    cursor.setPosition(position + added, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    m_settingText = false;
}

// --- TcxDBCheckBox ---------------------------------------------------------

TcxDBCheckBox::TcxDBCheckBox(QWidget *parent)
    : TInputControlT<QCheckBox>(parent), TEditStyled(this, /*borders*/ false)
{
    setParentColor(true);
    resize(121, 21);
    attachToParent();
}

const TClassInfo &TcxDBCheckBox::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TcxDBCheckBox"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("Alignment", &TcxDBCheckBox::Alignment, &TcxDBCheckBox::setAlignment, enumNames<TAlignment>(),
                 QVariant(int(taLeftJustify))),
            prop("Caption", &TcxDBCheckBox::Caption, &TcxDBCheckBox::setCaption),
            prop("Checked", &TcxDBCheckBox::Checked, &TcxDBCheckBox::setChecked, {}, QVariant(false)),
            P::Color(), P::ParentColor(),
            prop("DataField", &TcxDBCheckBox::DataField, &TcxDBCheckBox::setDataField, {}, QVariant(QString())),
            P::Font(), P::ParentFont(),
            prop("ReadOnly", &TcxDBCheckBox::ReadOnly, &TcxDBCheckBox::setReadOnly, {}, QVariant(false)),
            prop("ValueChecked", &TcxDBCheckBox::ValueChecked, &TcxDBCheckBox::setValueChecked, {},
                 QVariant(QStringLiteral("Ja"))),
            prop("ValueUnchecked", &TcxDBCheckBox::ValueUnchecked, &TcxDBCheckBox::setValueUnchecked, {},
                 QVariant(QStringLiteral("Nein"))),
            P::TabOrder(), P::TabStop(), P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(),
            P::Visible(), P::Enabled(),
        },
        [] { return new TcxDBCheckBox; },
        /*windowed*/ true,
        /*acceptsControls*/ false,
        /*setCaptionFromName*/ true};
    return info;
}

void TcxDBCheckBox::setAlignment(TAlignment alignment)
{
    noteChange();
    m_alignment = alignment;
    // Right to left puts the box at the right edge, the caption before it.
    setLayoutDirection(alignment == taRightJustify ? Qt::RightToLeft : Qt::LeftToRight);
}

void TcxDBCheckBox::applyColor()
{
    // The button role is what the widget fills with; the box itself stays white.
    const bool fill = !ParentColor() && !Transparent();
    if (fill) {
        QPalette pal = palette();
        const QColor c = Color().toQColor();
        pal.setColor(QPalette::Window, c);
        pal.setColor(backgroundRole(), c);
        setPalette(pal);
    }
    setAutoFillBackground(fill);
    update();
}

void TcxDBCheckBox::nextCheckState()
{
    if (!m_readOnly)
        QCheckBox::nextCheckState();
}
