#pragma once

#include <QImage>
#include <QWidget>

#include "Control.h"

// Graphic controls: they paint themselves and hold no focus.

// A sunken or raised frame or line, used to group fields visually.
class TBevel : public TControlT<QWidget>
{
    Q_OBJECT
public:
    explicit TBevel(QWidget *parent = nullptr);
    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    TBevelShape Shape() const { return m_shape; }
    void setShape(TBevelShape shape);
    TBevelStyle Style() const { return m_style; }
    void setStyle(TBevelStyle style);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    TBevelShape m_shape = bsBox;
    TBevelStyle m_style = bsLowered;
};

// A rectangle, square, rounded rectangle, ellipse or circle with a fill
// (Brush.Color) and an outline (Pen.Color).
class TShape : public TControlT<QWidget>
{
    Q_OBJECT
public:
    explicit TShape(QWidget *parent = nullptr);
    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    TShapeType Shape() const { return m_shape; }
    void setShape(TShapeType shape);
    TColor BrushColor() const { return m_brushColor; }
    void setBrushColor(TColor color);
    TColor PenColor() const { return m_penColor; }
    void setPenColor(TColor color);
    int PenWidth() const { return m_penWidth; }
    void setPenWidth(int width);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    TShapeType m_shape = stRectangle;
    TColor m_brushColor = Colors::clWhite;
    TColor m_penColor = Colors::clBlack;
    int m_penWidth = 1;
};

// Common painting of the two picture controls: the picture, or while
// designing an outline with a picture symbol where there is none.
class TPictureControl : public TControlT<QWidget>
{
public:
    explicit TPictureControl(QWidget *parent = nullptr);

    QString FileName() const { return m_fileName; }
    // Loads the picture; a file that cannot be read leaves the control empty.
    void setFileName(const QString &fileName);
    bool Stretch() const { return m_stretch; }
    void setStretch(bool stretch);
    bool hasPicture() const { return !m_image.isNull(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    virtual bool keepAspect() const { return false; }

private:
    QString m_fileName;
    QImage m_image;
    bool m_stretch = false;
};

// The preview image of a mask (one per mask, named "View").
class TImage : public TPictureControl
{
    Q_OBJECT
public:
    explicit TImage(QWidget *parent = nullptr);
    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }
};

// A picture shown in its aspect ratio; AutoSize stretches it to the control.
class TImageAspect : public TPictureControl
{
    Q_OBJECT
public:
    explicit TImageAspect(QWidget *parent = nullptr);
    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    bool AutoSize() const { return Stretch(); }
    void setAutoSize(bool autoSize)
    {
        noteChange();
        setStretch(autoSize);
    }

protected:
    bool keepAspect() const override { return true; }
};
