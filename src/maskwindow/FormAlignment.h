#pragma once

#include <QWidget>
#include <functional>

class QToolButton;
class TCustomFormDesigner;

// "Ausrichtung": the floating tool window that lines up the selected controls
// of the active mask. Made once at start-up and only shown and hidden after.
// Each button carries its alignment code as the property "Tag"; the property
// "Vertical" tells on which axis it acts.
class TFormAlignment : public QWidget
{
    Q_OBJECT
public:
    explicit TFormAlignment(QWidget *parent = nullptr);

    // The designer of the mask the buttons act on; nullptr or no function:
    // the buttons do nothing.
    std::function<TCustomFormDesigner *()> activeDesigner;

private:
    QToolButton *addButton(const QString &name, const QString &hint, int tag, bool vertical);
    void align(int tag, bool vertical);
};
