#pragma once

#include <QLabel>

#include "Control.h"

// A text label. With AutoSize it fits its text (never while loading, so a
// loaded label keeps the size it was saved with).
class TLabel : public TControlT<QLabel>
{
    Q_OBJECT
public:
    explicit TLabel(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString Caption() const override { return text(); }
    void setCaption(const QString &caption) override;
    TAlignment Alignment() const { return m_alignment; }
    void setAlignment(TAlignment alignment);
    TTextLayout Layout() const { return m_layout; }
    void setLayout(TTextLayout layout);
    bool WordWrap() const { return wordWrap(); }
    void setWordWrap(bool wrap);
    bool AutoSize() const { return m_autoSize; }
    void setAutoSize(bool autoSize);

protected:
    static QVector<TPropInfo> labelProperties();
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void applyTextAlignment();
    void adjustBounds();

    TAlignment m_alignment = taLeftJustify;
    TTextLayout m_layout = tlTop;
    bool m_autoSize = true;
};
