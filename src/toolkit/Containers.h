#pragma once

#include <QGroupBox>
#include <QList>
#include <QPointer>
#include <QTabBar>
#include <QWidget>

#include "Control.h"

class QRadioButton;

// A panel: a raised or lowered area that groups controls and may show a caption.
class TPanel : public TControlT<QWidget>
{
    Q_OBJECT
public:
    explicit TPanel(QWidget *parent = nullptr);
    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString Caption() const override { return m_caption; }
    void setCaption(const QString &caption) override;
    TAlignment Alignment() const { return m_alignment; }
    void setAlignment(TAlignment alignment);
    TPanelBevel BevelInner() const { return m_bevelInner; }
    void setBevelInner(TPanelBevel bevel);
    TPanelBevel BevelOuter() const { return m_bevelOuter; }
    void setBevelOuter(TPanelBevel bevel);
    int BevelWidth() const { return m_bevelWidth; }
    void setBevelWidth(int width);
    TBorderStyle BorderStyle() const { return m_borderStyle; }
    void setBorderStyle(TBorderStyle style);
    int BorderWidth() const { return m_borderWidth; }
    void setBorderWidth(int width);
    bool Ctl3D() const { return m_ctl3D; }
    void setCtl3D(bool ctl3D);

    QRect alignClientRect() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void changed();

    QString m_caption;
    TAlignment m_alignment = taCenter;
    TPanelBevel m_bevelInner = bvNone;
    TPanelBevel m_bevelOuter = bvRaised;
    int m_bevelWidth = 1;
    TBorderStyle m_borderStyle = bsNone;
    int m_borderWidth = 0;
    bool m_ctl3D = true;
};

// A captioned group of radio buttons bound to one data field; the buttons
// are made from Items and arranged in Columns.
class TDBRadioGroup : public TControlT<QGroupBox>
{
    Q_OBJECT
public:
    explicit TDBRadioGroup(QWidget *parent = nullptr);
    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString Caption() const override { return title(); }
    void setCaption(const QString &caption) override
    {
        noteChange();
        setTitle(caption);
    }
    QStringList Items() const { return m_items; }
    void setItems(const QStringList &items);
    QStringList Values() const { return m_values; }
    void setValues(const QStringList &values)
    {
        noteChange();
        m_values = values;
    }
    int Columns() const { return m_columns; }
    void setColumns(int columns);
    int ItemIndex() const;
    void setItemIndex(int index);
    QString DataField() const { return m_dataField; }
    void setDataField(const QString &field)
    {
        noteChange();
        m_dataField = field;
    }
    bool ReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);

    QList<QRadioButton *> buttons() const { return m_buttons; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void designingChanged() override;

private:
    void arrangeButtons();

    QStringList m_items;
    QStringList m_values;
    QList<QRadioButton *> m_buttons;
    int m_columns = 1;
    QString m_dataField;
    bool m_readOnly = false;
};

// A strip of tabs along the bottom of an area (under the preview image it
// offers the file types).
class TTabSet : public TControlT<QTabBar>
{
    Q_OBJECT
public:
    explicit TTabSet(QWidget *parent = nullptr);
    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QStringList Tabs() const;
    void setTabs(const QStringList &tabs);
    int TabIndex() const { return currentIndex(); }
    void setTabIndex(int index);

protected:
    void applyColor() override;
};

class TAdvOfficePage;

// A page control whose pages are TAdvOfficePage children. The pages are
// direct children of the pager, so a page's parent is the pager and a
// control's parent is its page.
class TAdvOfficePager : public TControlT<QWidget>
{
    Q_OBJECT
public:
    explicit TAdvOfficePager(QWidget *parent = nullptr);
    ~TAdvOfficePager() override;
    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    int PageCount() const { return int(m_pages.size()); }
    TAdvOfficePage *Pages(int index) const;
    int indexOfPage(const TAdvOfficePage *page) const;
    TAdvOfficePage *ActivePage() const;
    void setActivePage(TAdvOfficePage *page);
    // An index outside the pages is ignored.
    int ActivePageIndex() const { return m_activeIndex; }
    void setActivePageIndex(int index);
    TTabPosition TabPosition() const { return m_tabPosition; }
    void setTabPosition(TTabPosition position);

    // Adds the page at the end (making the pager its parent).
    void addPage(TAdvOfficePage *page);

    // The look of tabs and frame: 0 "Office2003 Blau" ... 9 "Office2007
    // Silber"; 8 ("Custom") and unknown values show the platform's own look.
    // A form sets it for all its page controls at once: a pager takes the
    // value of kStyleProperty from its nearest ancestor that carries it.
    int OfficeStyle() const { return m_officeStyle; }
    void setOfficeStyle(int style);
    static const char *const kStyleProperty;

    QTabBar *tabBar() const { return m_tabBar; }
    QRect alignClientRect() const override { return pageRect(); }
    QRect pageRect() const;

signals:
    void activePageChanged(int index);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void applyFontColor() override;
    void changeEvent(QEvent *event) override;

private:
    friend class TAdvOfficePage;
    void insertPage(TAdvOfficePage *page, int index);
    void removePage(TAdvOfficePage *page);
    void movePage(TAdvOfficePage *page, int index);
    void pageCaptionChanged(TAdvOfficePage *page);
    void layoutPages();
    void syncTabs();
    void parentWidgetChanged(QWidget *oldParent) override;
    void adoptInheritedStyle();

    QTabBar *m_tabBar;
    int m_officeStyle = -1;
    QList<TAdvOfficePage *> m_pages;
    int m_activeIndex = -1;
    TTabPosition m_tabPosition = tpTop;
    bool m_syncing = false;
};

// One page of a TAdvOfficePager; controls are placed on it.
class TAdvOfficePage : public TControlT<QWidget>
{
    Q_OBJECT
public:
    explicit TAdvOfficePage(QWidget *parent = nullptr);
    ~TAdvOfficePage() override;
    static const TClassInfo &staticClassInfo();
    const TClassInfo &classInfo() const override { return staticClassInfo(); }

    QString Caption() const override { return m_caption; }
    void setCaption(const QString &caption) override;
    int PageIndex() const;
    void setPageIndex(int index);
    TAdvOfficePager *AdvOfficePager() const { return m_pager; }

protected:
    void parentWidgetChanged(QWidget *oldParent) override;

private:
    friend class TAdvOfficePager;
    QString m_caption;
    TAdvOfficePager *m_pager = nullptr;
};
