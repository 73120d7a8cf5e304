#pragma once

#include <QPushButton>

#include "Label.h"

// The action button of a mask. Besides caption, font, glyph layout and
// margin it holds what the button does when the finished mask runs; the
// designer only stores these. The action kind lives in Tag, the program to
// run in Hint.
class TMaskBtn : public TControlT<QPushButton>
{
    Q_OBJECT
public:
    explicit TMaskBtn(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString Caption() const override { return text(); }
    void setCaption(const QString &caption) override
    {
        noteChange();
        setText(caption);
    }

    TButtonLayout Layout() const { return m_layout; }
    void setLayout(TButtonLayout layout);
    // -1 lets the button choose the margin.
    int Margin() const { return m_margin; }
    void setMargin(int margin);
    // The button's own text colour setting; clDefault follows the font colour.
    TColor NormalTextColor() const { return m_normalText; }
    void setNormalTextColor(TColor color);

    QString ZuweisMaske() const { return m_zuweisMaske; }
    void setZuweisMaske(const QString &v)
    {
        noteChange();
        m_zuweisMaske = v;
    }
    QString ZuweisFeld() const { return m_zuweisFeld; }
    void setZuweisFeld(const QString &v)
    {
        noteChange();
        m_zuweisFeld = v;
    }
    QString ZuweisFeldEx() const { return m_zuweisFeldEx; }
    void setZuweisFeldEx(const QString &v)
    {
        noteChange();
        m_zuweisFeldEx = v;
    }
    QString IndexFeld() const { return m_indexFeld; }
    void setIndexFeld(const QString &v)
    {
        noteChange();
        m_indexFeld = v;
    }
    QString ProgExt() const { return m_progExt; }
    void setProgExt(const QString &v)
    {
        noteChange();
        m_progExt = v;
    }
    QString SectionExt() const { return m_sectionExt; }
    void setSectionExt(const QString &v)
    {
        noteChange();
        m_sectionExt = v;
    }
    // Run-time state of the application that runs the mask; never stored.
    qint32 FoundMask() const { return m_foundMask; }
    void setFoundMask(qint32 v)
    {
        noteChange();
        m_foundMask = v;
    }
    qint32 Language() const { return m_language; }
    void setLanguage(qint32 v)
    {
        noteChange();
        m_language = v;
    }
    bool RunAs() const { return m_runAs; }
    void setRunAs(bool v)
    {
        noteChange();
        m_runAs = v;
    }
    QString RegelFeld() const { return m_regelFeld; }
    void setRegelFeld(const QString &v)
    {
        noteChange();
        m_regelFeld = v;
    }
    QString RegelAusdruck() const { return m_regelAusdruck; }
    void setRegelAusdruck(const QString &v)
    {
        noteChange();
        m_regelAusdruck = v;
    }
    QString RegelFarbe() const { return m_regelFarbe; }
    void setRegelFarbe(const QString &v)
    {
        noteChange();
        m_regelFarbe = v;
    }
    bool RegelZeile() const { return m_regelZeile; }
    void setRegelZeile(bool v)
    {
        noteChange();
        m_regelZeile = v;
    }

protected:
    void applyFontColor() override;
    void paintEvent(QPaintEvent *event) override;

private:
    TButtonLayout m_layout = blGlyphLeft;
    int m_margin = -1;
    TColor m_normalText = Colors::clDefault;
    QString m_zuweisMaske;
    QString m_zuweisFeld;
    QString m_zuweisFeldEx;
    QString m_indexFeld;
    QString m_progExt;
    QString m_sectionExt;
    qint32 m_foundMask = 0;
    qint32 m_language = 0;
    bool m_runAs = false;
    QString m_regelFeld;
    QString m_regelAusdruck;
    QString m_regelFarbe;
    bool m_regelZeile = false;
};

// A label that stands for one database field and shows the field's name.
// The description is in HelpKeyword, the field type in Tag, the field length
// as text in Hint.
class TDBLabel : public TLabel
{
    Q_OBJECT
public:
    explicit TDBLabel(QWidget *parent = nullptr);

    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString DataField() const { return m_dataField; }
    void setDataField(const QString &v)
    {
        noteChange();
        m_dataField = v;
    }
    QString DataSource() const { return m_dataSource; }
    void setDataSource(const QString &v)
    {
        noteChange();
        m_dataSource = v;
    }
    bool BrowserEdit() const { return m_browserEdit; }
    void setBrowserEdit(bool v)
    {
        noteChange();
        m_browserEdit = v;
    }

private:
    QString m_dataField;
    QString m_dataSource;
    bool m_browserEdit = false;
};
