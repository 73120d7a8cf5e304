#pragma once

#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "Control.h"

class TCustomFormDesigner;

// Stands for one non-visual component of the form on the design control: a
// small box with the component's picture and, when the engine shows component
// captions, its name underneath. The box is a control of its own so that the
// engine selects, moves and lists it like any other; where it sits is kept
// on the component ("designLeft"/"designTop"), since the component has no place.
class TComponentContainer : public TControlT<QWidget>
{
    Q_OBJECT
public:
    static constexpr int kBoxSize = 28;

    explicit TComponentContainer(QWidget *parent = nullptr);
    ~TComponentContainer() override;

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    // A container on owner (the design control) for component.
    static TComponentContainer *CreateWithComponent(QWidget *owner, QObject *component,
                                                    TCustomFormDesigner *designer);

    TCustomFormDesigner *Designer() const { return m_designer; }
    QObject *Component() const { return m_component; }
    QPixmap Bitmap() const { return m_bitmap; }
    QString Caption() const override { return m_caption; }

    // Takes picture, caption and position from the component and the engine.
    void UpdateContainer();

    // The box within the widget (the caption goes below it).
    QRect boxRect() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private:
    QPointer<TCustomFormDesigner> m_designer;
    QPointer<QObject> m_component;
    QPixmap m_bitmap;
    QString m_caption;
    bool m_updating = false;
};
