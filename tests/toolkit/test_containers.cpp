// Panels, page controls, radio groups, tab sets and the graphic controls as
// a user sees them: pixels, pages that switch on a click, items that follow.
#include <QtTest>

#include <QRadioButton>

#include "Containers.h"
#include "Graphics.h"
#include "MyBtn.h"

class TestContainers : public QObject
{
    Q_OBJECT

private slots:
    void pagerKeepsItsPagesInStep();
    void pagerPagesAndControlsDieSafely();
    void radioGroupArrangesItsItems();
    void visibleFollowsTheControlNotTheScreen();
    void bevelsShapesAndPanelsPaintTheirKind();
};

namespace {
TAdvOfficePage *addPage(TAdvOfficePager *pager, const QString &caption)
{
    auto *page = new TAdvOfficePage;
    page->setCaption(caption);
    pager->addPage(page);
    return page;
}
} // namespace

void TestContainers::pagerKeepsItsPagesInStep()
{
    QWidget surface;
    surface.resize(400, 300);
    auto *pager = new TAdvOfficePager(&surface);
    pager->setBounds(10, 10, 300, 200);
    // An active page chosen before there are pages is not kept.
    pager->setActivePageIndex(1);
    QCOMPARE(pager->ActivePageIndex(), -1);

    TAdvOfficePage *one = addPage(pager, QStringLiteral("Seite1"));
    TAdvOfficePage *two = addPage(pager, QStringLiteral("Seite2"));
    TAdvOfficePage *three = addPage(pager, QStringLiteral("Seite3"));
    QCOMPARE(pager->ActivePageIndex(), 0);
    QCOMPARE(pager->tabBar()->count(), 3);
    QCOMPARE(pager->tabBar()->tabText(2), QStringLiteral("Seite3"));
    QCOMPARE(three->parentWidget(), static_cast<QWidget *>(pager));
    QCOMPARE(three->PageIndex(), 2);
    QCOMPARE(three->AdvOfficePager(), pager);

    surface.show();
    QVERIFY(QTest::qWaitForWindowExposed(&surface));
    QVERIFY(one->isVisible());
    QVERIFY(!two->isVisible());
    // Every page fills the page area below the tabs.
    QCOMPARE(two->geometry(), pager->pageRect());
    QVERIFY(pager->pageRect().top() >= pager->tabBar()->height() - 1);

    // A click on a tab shows its page.
    QSignalSpy changed(pager, &TAdvOfficePager::activePageChanged);
    QTest::mouseClick(pager->tabBar(), Qt::LeftButton, {}, pager->tabBar()->tabRect(1).center());
    QCOMPARE(pager->ActivePage(), two);
    QVERIFY(two->isVisible());
    QVERIFY(!one->isVisible());
    QCOMPARE(changed.count(), 1);
    // Switching pages is not a change of the page's own Visible.
    QVERIFY(one->Visible());

    // Moving a page reorders the tabs; the active page stays active.
    three->setPageIndex(0);
    QCOMPARE(pager->tabBar()->tabText(0), QStringLiteral("Seite3"));
    QCOMPARE(pager->ActivePage(), two);
    QCOMPARE(pager->ActivePageIndex(), 2);
    two->setCaption(QStringLiteral("Adresse"));
    QCOMPARE(pager->tabBar()->tabText(2), QStringLiteral("Adresse"));

    // Removing the active page activates its neighbour.
    delete two;
    QCOMPARE(pager->PageCount(), 2);
    QCOMPARE(pager->ActivePageIndex(), 1);
    QCOMPARE(pager->tabBar()->count(), 2);

    // Tabs at the bottom: the pages sit above them.
    pager->setTabPosition(tpBottom);
    QCOMPARE(pager->pageRect().top(), 1);
    QVERIFY(pager->tabBar()->geometry().top() >= pager->pageRect().bottom());

    // Reparenting a page to another pager moves it there.
    auto *other = new TAdvOfficePager(&surface);
    one->setParent(other);
    QCOMPARE(pager->PageCount(), 1);
    QCOMPARE(other->PageCount(), 1);
    QCOMPARE(other->ActivePage(), one);
}

void TestContainers::pagerPagesAndControlsDieSafely()
{
    // A pager with pages and controls on them goes in one piece (the
    // sanitizer build catches a page calling back into a dead pager).
    auto *surface = new QWidget;
    auto *pager = new TAdvOfficePager(surface);
    TAdvOfficePage *page = addPage(pager, QStringLiteral("A"));
    addPage(pager, QStringLiteral("B"));
    auto *button = new TMaskBtn(page);
    QCOMPARE(button->TabOrder(), 0);
    delete pager;
    delete surface;

    // A page deleted before its pager.
    TAdvOfficePager lone;
    TAdvOfficePage *p = addPage(&lone, QStringLiteral("X"));
    delete p;
    QCOMPARE(lone.PageCount(), 0);
    QCOMPARE(lone.ActivePageIndex(), -1);
    QVERIFY(!lone.ActivePage());
}

void TestContainers::radioGroupArrangesItsItems()
{
    TDBRadioGroup group;
    group.resize(200, 100);
    group.setItems({QStringLiteral("Herr"), QStringLiteral("Frau"), QStringLiteral("Firma")});
    QCOMPARE(group.buttons().size(), 3);
    QCOMPARE(group.ItemIndex(), -1);
    group.setItemIndex(2);
    QVERIFY(group.buttons().at(2)->isChecked());
    group.setItemIndex(-1);
    QCOMPARE(group.ItemIndex(), -1);

    group.setColumns(2);
    const auto &b = group.buttons();
    // Two rows: the first column holds items 0 and 1, the second item 2.
    QCOMPARE(b.at(0)->x(), b.at(1)->x());
    QVERIFY(b.at(2)->x() > b.at(0)->x() + 50);
    QCOMPARE(b.at(2)->y(), b.at(0)->y());
    QVERIFY(b.at(1)->y() > b.at(0)->y());

    // New items keep the chosen index where it still exists.
    group.setItemIndex(1);
    group.setItems({QStringLiteral("Ja"), QStringLiteral("Nein")});
    QCOMPARE(group.ItemIndex(), 1);
    QCOMPARE(group.buttons().at(1)->text(), QStringLiteral("Nein"));

    // While designing, a click lands on the group, not on a button.
    group.show();
    QVERIFY(QTest::qWaitForWindowExposed(&group));
    group.setDesigning(true);
    // Click on the round indicator, where a radio button takes clicks.
    const QPoint indicator(6, group.buttons().at(0)->height() / 2);
    QTest::mouseClick(&group, Qt::LeftButton, {}, group.buttons().at(0)->geometry().topLeft() + indicator);
    QCOMPARE(group.ItemIndex(), 1);
    group.setDesigning(false);
    QTest::mouseClick(group.buttons().at(0), Qt::LeftButton, {}, indicator);
    QCOMPARE(group.ItemIndex(), 0);
}

void TestContainers::visibleFollowsTheControlNotTheScreen()
{
    QWidget surface;
    surface.show();
    QVERIFY(QTest::qWaitForWindowExposed(&surface));
    // Put on a parent that shows, a control shows at once.
    auto *panel = new TPanel(&surface);
    QVERIFY(panel->isVisible());
    QVERIFY(panel->Visible());
    panel->setVisible(false);
    QVERIFY(!panel->Visible());
    // A hidden control moved to another parent stays hidden.
    auto *second = new TPanel(&surface);
    panel->setParent(second);
    QVERIFY(!panel->isVisible());
    // Made before its parent shows, it is Visible all along.
    TPanel parentless;
    QVERIFY(parentless.Visible());
}

void TestContainers::bevelsShapesAndPanelsPaintTheirKind()
{
    QWidget surface;
    surface.resize(300, 200);
    QPalette pal;
    pal.setColor(QPalette::Window, Qt::white);
    surface.setPalette(pal);
    surface.setAutoFillBackground(true);

    auto *bevel = new TBevel(&surface);
    bevel->setBounds(10, 10, 50, 40);
    auto *shape = new TShape(&surface);
    shape->setBounds(100, 10, 60, 40);
    shape->setShape(stEllipse);
    shape->setBrushColor(Colors::clRed);
    shape->setPenColor(Colors::clBlue);
    auto *panel = new TPanel(&surface);
    panel->setBounds(10, 100, 100, 60);
    panel->setColor(Colors::clYellow);
    panel->setCaption(QStringLiteral("Panel"));

    const QImage img = surface.grab().toImage();
    const QRgb shadow = Colors::clBtnShadow.toQColor(surface.palette()).rgb();
    const QRgb white = qRgb(255, 255, 255);
    // A lowered box: shadow on its top edge, light on its bottom edge.
    QCOMPARE(img.pixel(30, 10), shadow);
    QVERIFY(img.pixel(30, 49) != shadow);
    // Its inside is left alone.
    QCOMPARE(img.pixel(30, 30), white);
    // An ellipse: red in the middle, white in the corner.
    QCOMPARE(img.pixel(130, 30), qRgb(255, 0, 0));
    QCOMPARE(img.pixel(101, 11), white);
    // The panel fills with its colour.
    QCOMPARE(img.pixel(20, 150), qRgb(255, 255, 0));

    bevel->setShape(bsTopLine);
    const QImage line = surface.grab().toImage();
    QCOMPARE(line.pixel(30, 10), shadow);
    QCOMPARE(line.pixel(10, 30), white); // no left edge now

    // An empty picture marks its area with its symbol in a corner, leaving
    // the middle to a note placed beneath it.
    auto *picture = new TImageAspect(&surface);
    picture->setBounds(180, 60, 100, 100);
    picture->setDesigning(true);
    const QImage empty = surface.grab().toImage();
    for (int x = 190; x < 270; ++x)
        QCOMPARE(empty.pixel(x, 110), white);
}

QTEST_MAIN(TestContainers)
#include "test_containers.moc"
