// The floating alignment palette: its buttons, hints and context menu.
#include <QtTest>

#include <QMenu>
#include <QToolButton>

#include "AlignmentPalette.h"
#include "helper_dialogs.h"

using namespace DialogTest;

namespace {

struct Button
{
    const char *name;
    const char *hint;
    TAlignMode horizontal;
    TAlignMode vertical;
};

const Button kButtons[] = {
    {"btnAlignLeft", "Align left edges", amLeftTop, amNoChange},
    {"btnAlignHCenter", "Align horizontal centers", amCenters, amNoChange},
    {"btnAlignRight", "Align right edges", amRightBottom, amNoChange},
    {"btnSpaceH", "Space equally, horizontally", amSpace, amNoChange},
    {"btnCenterH", "Center horizontally in window", amWindowCenter, amNoChange},
    {"btnAlignTop", "Align tops", amNoChange, amLeftTop},
    {"btnAlignVCenter", "Align vertical centers", amNoChange, amCenters},
    {"btnAlignBottom", "Align bottoms", amNoChange, amRightBottom},
    {"btnSpaceV", "Space equally, vertically", amNoChange, amSpace},
    {"btnCenterV", "Center vertically in window", amNoChange, amWindowCenter},
};

QList<QToolButton *> paletteButtons(TfrmAlignmentPalette *palette)
{
    QList<QToolButton *> buttons;
    for (const Button &b : kButtons)
        buttons << child<QToolButton>(palette, b.name);
    return buttons;
}

// Right-clicks a button of the palette and returns the palette's menu. The
// click goes through the window, as the platform delivers it, so that Qt
// turns it into a context menu request.
QMenu *openMenu(TfrmAlignmentPalette *palette)
{
    QWidget *spot = child<QToolButton>(palette, "btnSpaceH");
    QTest::mouseClick(palette->windowHandle(), Qt::RightButton, {}, spot->mapTo(palette, spot->rect().center()));
    return palette->findChild<QMenu *>();
}

QAction *menuAction(QMenu *menu, const QString &text)
{
    for (QAction *a : menu->actions()) {
        if (a->text() == text)
            return a;
    }
    qWarning("no menu item \"%s\"", qPrintable(text));
    return nullptr;
}

void clickMenuItem(QMenu *menu, const QString &text)
{
    QAction *action = menuAction(menu, text);
    QVERIFY(action);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
}

} // namespace

class TestAlignPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsAlignInTheirDirection();
    void menuSwitchesHintsAndStayOnTop();
    void menuHidesThePalette();
    void optionsFromTheEngine();
};

void TestAlignPalette::buttonsAlignInTheirDirection()
{
    TfrmAlignmentPalette palette;
    QList<QPair<TAlignMode, TAlignMode>> calls;
    palette.onAlign = [&calls](TAlignMode h, TAlignMode v) { calls << qMakePair(h, v); };
    QVERIFY(showAndWait(&palette));
    QCOMPARE(palette.windowTitle(), QStringLiteral("Align"));
    QVERIFY(palette.windowFlags().testFlag(Qt::Tool));

    const QList<QToolButton *> buttons = paletteButtons(&palette);
    QCOMPARE(buttons.count(nullptr), 0);
    for (int i = 0; i < buttons.size(); ++i) {
        const Button &b = kButtons[i];
        QCOMPARE(buttons[i]->toolTip(), QString::fromLatin1(b.hint));
        QVERIFY2(!buttons[i]->icon().isNull(), b.name);
        calls.clear();
        QTest::mouseClick(buttons[i], Qt::LeftButton);
        QCOMPARE(calls.size(), 1);
        QCOMPARE(calls.first(), qMakePair(b.horizontal, b.vertical));
    }
    // The two directions get distinct pictures.
    const QImage left = buttons[0]->icon().pixmap(16, 16).toImage();
    const QImage top = buttons[5]->icon().pixmap(16, 16).toImage();
    QVERIFY(left != top);

    // Without a handler a click does no harm.
    palette.onAlign = nullptr;
    QTest::mouseClick(buttons[0], Qt::LeftButton);
}

void TestAlignPalette::menuSwitchesHintsAndStayOnTop()
{
    TfrmAlignmentPalette palette;
    palette.setOptions(apStayOnTop | apShowHints);
    QList<TAlignmentPaletteOptions> reported;
    palette.onOptionsChanged = [&reported](TAlignmentPaletteOptions o) { reported << o; };
    QVERIFY(showAndWait(&palette));
    QVERIFY(palette.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    const QList<QToolButton *> buttons = paletteButtons(&palette);

    QMenu *menu = openMenu(&palette);
    QVERIFY(menu && menu->isVisible());
    QVERIFY(menuAction(menu, QStringLiteral("&Stay on top"))->isChecked());
    QVERIFY(menuAction(menu, QStringLiteral("Sho&w hints"))->isChecked());
    QVERIFY(menuAction(menu, QStringLiteral("Hide")));

    clickMenuItem(menu, QStringLiteral("Sho&w hints"));
    QVERIFY(!menu->isVisible());
    for (QToolButton *b : buttons)
        QVERIFY2(b->toolTip().isEmpty(), qPrintable(b->objectName()));
    QCOMPARE(reported, QList<TAlignmentPaletteOptions>{apStayOnTop});

    menu = openMenu(&palette);
    QVERIFY(menu->isVisible());
    QVERIFY(!menuAction(menu, QStringLiteral("Sho&w hints"))->isChecked());
    clickMenuItem(menu, QStringLiteral("Sho&w hints"));
    QCOMPARE(buttons[5]->toolTip(), QStringLiteral("Align tops"));

    menu = openMenu(&palette);
    clickMenuItem(menu, QStringLiteral("&Stay on top"));
    QVERIFY(!palette.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(reported.last(), TAlignmentPaletteOptions(apShowHints));
    // The flag change must not make the palette disappear.
    QVERIFY(palette.isVisible());

    menu = openMenu(&palette);
    QVERIFY(!menuAction(menu, QStringLiteral("&Stay on top"))->isChecked());
    clickMenuItem(menu, QStringLiteral("&Stay on top"));
    QVERIFY(palette.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(palette.isVisible());
    QCOMPARE(reported.size(), 4);
}

void TestAlignPalette::menuHidesThePalette()
{
    TfrmAlignmentPalette palette;
    QVERIFY(showAndWait(&palette));
    QMenu *menu = openMenu(&palette);
    QVERIFY(menu && menu->isVisible());
    clickMenuItem(menu, QStringLiteral("Hide"));
    QVERIFY(!palette.isVisible());

    QVERIFY(showAndWait(&palette));
    palette.close();
    QVERIFY(!palette.isVisible());
}

void TestAlignPalette::optionsFromTheEngine()
{
    TfrmAlignmentPalette palette;
    int reported = 0;
    palette.onOptionsChanged = [&reported](TAlignmentPaletteOptions) { ++reported; };
    QVERIFY(showAndWait(&palette));
    const QList<QToolButton *> buttons = paletteButtons(&palette);

    palette.setOptions(apFlatButtons | apAutoShow);
    for (QToolButton *b : buttons) {
        QVERIFY(b->autoRaise());
        QVERIFY(b->toolTip().isEmpty());
    }
    QVERIFY(!palette.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(palette.isVisible());

    palette.setOptions(apShowHints | apStayOnTop);
    for (QToolButton *b : buttons)
        QVERIFY(!b->autoRaise());
    QCOMPARE(buttons[9]->toolTip(), QStringLiteral("Center vertically in window"));
    QVERIFY(palette.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    // The engine's own changes are not echoed back to it.
    QCOMPARE(reported, 0);
    // The menu shows what the engine set.
    QMenu *menu = openMenu(&palette);
    QVERIFY(menuAction(menu, QStringLiteral("&Stay on top"))->isChecked());
    QVERIFY(menuAction(menu, QStringLiteral("Sho&w hints"))->isChecked());
    menu->close();
}

QTEST_MAIN(TestAlignPalette)
#include "test_alignpalette.moc"
