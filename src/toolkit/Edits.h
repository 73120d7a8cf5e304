#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QVector>

#include "Control.h"
#include "EditStyle.h"

class TTextInputValidator;

// Keeps a control out of the user's way while its form is being designed:
// the control takes no focus and its child widgets (inner line edit,
// viewport, scroll bars) let the mouse through to the control itself, where
// the designer watches it.
class TDesignInputGuard
{
public:
    void apply(QWidget *control, bool designing);
    // Input that could change what the control holds.
    static bool isUserInput(const QEvent *event);

private:
    struct ChildState
    {
        QPointer<QWidget> widget;
        bool ownFocus;
        Qt::FocusPolicy policy;
        bool transparent;
    };
    Qt::FocusPolicy m_policy = Qt::StrongFocus;
    QVector<ChildState> m_children;
    bool m_active = false;
};

// A control whose content the user edits. While designing it drops key and
// mouse input; dropped events propagate to the design surface beneath.
template <class Base>
class TInputControlT : public TControlT<Base>
{
public:
    using TControlT<Base>::TControlT;

protected:
    bool event(QEvent *e) override
    {
        if (this->isDesigning() && TDesignInputGuard::isUserInput(e)) {
            e->ignore();
            return false;
        }
        return TControlT<Base>::event(e);
    }
    void designingChanged() override { m_guard.apply(this, this->isDesigning()); }
    // Edit kinds paint their colour as the background of the text area.
    void applyColor() override
    {
        QPalette pal = this->palette();
        pal.setColor(QPalette::Base, this->Color().toQColor());
        this->setPalette(pal);
        this->update();
    }

private:
    TDesignInputGuard m_guard;
};

// Converts text to the case an edit's CharCase asks for.
QString applyCharCase(const QString &text, TEditCharCase charCase);

// A single-line text edit.
class TcxTextEdit : public TInputControlT<QLineEdit>, public TEditStyled
{
    Q_OBJECT
public:
    explicit TcxTextEdit(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString Caption() const override { return Text(); }
    void setCaption(const QString &caption) override
    {
        noteChange();
        setText(caption);
    }

    QString Text() const { return text(); }
    void setText(const QString &text);
    // Limits what the user types or pastes; 0: no limit.
    int MaxLength() const;
    void setMaxLength(int length);
    bool ReadOnly() const { return isReadOnly(); }
    void setReadOnly(bool readOnly)
    {
        noteChange();
        QLineEdit::setReadOnly(readOnly);
    }
    TEditCharCase CharCase() const;
    void setCharCase(TEditCharCase charCase);
    // Entering with the keyboard selects the whole text; off, the text stays
    // unselected and typing adds to it.
    bool AutoSelect() const { return m_autoSelect; }
    void setAutoSelect(bool autoSelect)
    {
        noteChange();
        m_autoSelect = autoSelect;
    }

protected:
    static QVector<TPropInfo> textEditProperties();
    void focusInEvent(QFocusEvent *event) override;

private:
    TTextInputValidator *m_input;
    bool m_autoSelect = true;
};

// An editable combo box; Items are the values offered in its list.
class TcxComboBox : public TInputControlT<QComboBox>, public TEditStyled
{
    Q_OBJECT
public:
    explicit TcxComboBox(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString Caption() const override { return Text(); }
    void setCaption(const QString &caption) override
    {
        noteChange();
        setText(caption);
    }

    QString Text() const;
    void setText(const QString &text);
    QStringList Items() const;
    void setItems(const QStringList &items);
    int MaxLength() const;
    void setMaxLength(int length);
    // The value can only be read: no typing, no list, no stepping through items.
    bool ReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
    TEditCharCase CharCase() const;
    void setCharCase(TEditCharCase charCase);
    // As the text edit's.
    bool AutoSelect() const { return m_autoSelect; }
    void setAutoSelect(bool autoSelect)
    {
        noteChange();
        m_autoSelect = autoSelect;
    }

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    TTextInputValidator *m_input;
    bool m_readOnly = false;
    bool m_autoSelect = true;
};

// A lookup field: a text edit with a drop-down button at its right edge.
// Masks keep the lookup table's name in EditMask and the pick-list flag in
// PopupSizeable, so EditMask is never applied as an input mask.
class TcxDBPopupEdit : public TcxTextEdit
{
    Q_OBJECT
public:
    explicit TcxDBPopupEdit(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString DataField() const { return m_dataField; }
    void setDataField(const QString &field)
    {
        noteChange();
        m_dataField = field;
    }
    QString EditMask() const { return m_editMask; }
    void setEditMask(const QString &mask)
    {
        noteChange();
        m_editMask = mask;
    }
    bool PopupSizeable() const { return m_popupSizeable; }
    void setPopupSizeable(bool sizeable)
    {
        noteChange();
        m_popupSizeable = sizeable;
    }

    // Where the drop-down button sits, in widget coordinates.
    QRect buttonRect() const;

Q_SIGNALS:
    // The user pressed the drop-down button.
    void popupRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QString m_dataField;
    QString m_editMask;
    bool m_popupSizeable = false;
};

// A multi-line text edit. Lines and Text are two views of one content.
class TcxMemo : public TInputControlT<QPlainTextEdit>, public TEditStyled
{
    Q_OBJECT
public:
    explicit TcxMemo(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString Caption() const override { return Text(); }
    void setCaption(const QString &caption) override
    {
        noteChange();
        setText(caption);
    }

    QString Text() const { return toPlainText(); }
    void setText(const QString &text);
    QStringList Lines() const;
    void setLines(const QStringList &lines);
    TScrollStyle ScrollBars() const { return m_scrollBars; }
    void setScrollBars(TScrollStyle scrollBars);
    bool WordWrap() const { return m_wordWrap; }
    void setWordWrap(bool wrap);
    bool ReadOnly() const { return isReadOnly(); }
    void setReadOnly(bool readOnly)
    {
        noteChange();
        QPlainTextEdit::setReadOnly(readOnly);
    }
    // Limits what the user types or pastes; 0: no limit.
    int MaxLength() const { return m_maxLength; }
    void setMaxLength(int length)
    {
        noteChange();
        m_maxLength = qMax(0, length);
    }

private:
    void applyWrapping();
    void limitInput(int position, int added);

    TScrollStyle m_scrollBars = ssNone;
    bool m_wordWrap = true;
    int m_maxLength = 0;
    bool m_settingText = false;
};

// A check box bound to a data field; the field holds ValueChecked or
// ValueUnchecked.
class TcxDBCheckBox : public TInputControlT<QCheckBox>, public TEditStyled
{
    Q_OBJECT
public:
    explicit TcxDBCheckBox(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString Caption() const override { return text(); }
    void setCaption(const QString &caption) override
    {
        noteChange();
        setText(caption);
    }

    QString DataField() const { return m_dataField; }
    void setDataField(const QString &field)
    {
        noteChange();
        m_dataField = field;
    }
    bool Checked() const { return isChecked(); }
    void setChecked(bool checked)
    {
        noteChange();
        QCheckBox::setChecked(checked);
    }
    QString ValueChecked() const { return m_valueChecked; }
    void setValueChecked(const QString &value)
    {
        noteChange();
        m_valueChecked = value;
    }
    QString ValueUnchecked() const { return m_valueUnchecked; }
    void setValueUnchecked(const QString &value)
    {
        noteChange();
        m_valueUnchecked = value;
    }
    // taLeftJustify: the box left of the caption; taRightJustify: right of it.
    TAlignment Alignment() const { return m_alignment; }
    void setAlignment(TAlignment alignment);
    bool ReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly)
    {
        noteChange();
        m_readOnly = readOnly;
    }

protected:
    // A check box shows its parent's background; only an own colour fills.
    void applyColor() override;
    void nextCheckState() override;

private:
    QString m_dataField;
    QString m_valueChecked = QStringLiteral("Ja");
    QString m_valueUnchecked = QStringLiteral("Nein");
    TAlignment m_alignment = taLeftJustify;
    bool m_readOnly = false;
};
