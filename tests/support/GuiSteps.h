#pragma once

// Mouse and keyboard steps for driving windows as a user does.
#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QtTest>

namespace GuiSteps {

template <typename T> T *child(const QObject *parent, const char *name)
{
    T *w = parent->findChild<T *>(QString::fromLatin1(name));
    if (!w)
        qWarning("no child %s", name);
    return w;
}

// The button whose text (with its mnemonic) is the given one.
template<typename T = QAbstractButton>
T *buttonWithText(QWidget *parent, const QString &text)
{
    const QList<T *> buttons = parent->findChildren<T *>();
    for (T *b : buttons) {
        if (b->text() == text)
            return b;
    }
    qWarning("no button \"%s\"", qPrintable(text));
    return nullptr;
}

// Clicks on the radio button's circle: a radio button in a wide layout
// column does not react to clicks beside its text.
inline void clickRadio(QRadioButton *radio)
{
    QStyleOptionButton option;
    option.initFrom(radio);
    option.text = radio->text();
    const QRect hit = radio->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, radio);
    QTest::mouseClick(radio, Qt::LeftButton, {}, hit.center());
}

inline QListWidgetItem *itemWithText(QListWidget *list, const QString &text)
{
    const QList<QListWidgetItem *> found = list->findItems(text, Qt::MatchExactly);
    return found.isEmpty() ? nullptr : found.first();
}

inline void clickItem(QListWidget *list, const QString &text, Qt::KeyboardModifiers modifiers = {})
{
    QListWidgetItem *item = itemWithText(list, text);
    QVERIFY2(item, qPrintable(text));
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, list->visualItemRect(item).center());
}

inline QStringList texts(const QListWidget *list)
{
    QStringList result;
    for (int i = 0; i < list->count(); ++i)
        result << list->item(i)->text();
    return result;
}

// Selects the whole text and types over it (an empty text deletes it).
inline void retype(QWidget *edit, const QString &text)
{
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Delete);
    else
        QTest::keyClicks(edit, text);
}

// Picks an item with the keyboard, as a user steps through a closed combo.
inline void choose(QComboBox *combo, int index)
{
    QTest::keyClick(combo, Qt::Key_Home);
    for (int i = 0; i < index; ++i)
        QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(combo->currentIndex(), index);
}

// Clicks on a check box's box: a wide one does not react beyond its caption.
inline void clickCheck(QAbstractButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
}

inline bool showAndWait(QWidget *w)
{
    w->show();
    return QTest::qWaitForWindowExposed(w);
}

} // namespace GuiSteps
