// The attribute layer shared by all control classes: tab order per parent,
// aligned children, colours, automatic captions, loading state, and the
// published property lists.
#include <QtTest>
#include <memory>

#include "CommonProps.h"
#include "Components.h"
#include "Containers.h"
#include "Edits.h"
#include "ControlClasses.h"
#include "Graphics.h"
#include "MyBtn.h"
#include "helper_properties.h"

class TestControlLayer : public QObject
{
    Q_OBJECT

private slots:
    void tabOrderAndStackingArePerParent();
    void alignedChildrenShareTheClientArea();
    void systemColoursKeepTheirIdentity();
    void captionFollowsTheNameUntilChanged();
    void autoSizeWaitsWhileLoading();
    void everyPropertyKeepsWhatIsWritten();
    void maskButtonAndDataLabel();
    void geometryIsClampedNotCrashed();
};

void TestControlLayer::tabOrderAndStackingArePerParent()
{
    QWidget surface;
    auto *a = new TMaskBtn(&surface);
    auto *b = new TMaskBtn(&surface);
    auto *panel = new TPanel(&surface);
    auto *c = new TMaskBtn(&surface);
    auto *label = new TLabel(&surface);

    QCOMPARE(a->TabOrder(), 0);
    QCOMPARE(b->TabOrder(), 1);
    QCOMPARE(panel->TabOrder(), 2);
    QCOMPARE(c->TabOrder(), 3);
    QCOMPARE(label->TabOrder(), -1); // a graphic control takes no focus

    c->setTabOrder(0);
    QCOMPARE(ControlLayout::tabList(&surface), (QList<QWidget *>{c, a, b, panel}));
    c->setTabOrder(99); // past the end: last
    QCOMPARE(c->TabOrder(), 3);
    c->setTabOrder(-1); // ignored
    QCOMPARE(c->TabOrder(), 3);

    // Moving to the panel starts a new numbering there and closes the gap here.
    b->setParent(panel);
    QCOMPARE(b->TabOrder(), 0);
    QCOMPARE(ControlLayout::tabList(&surface), (QList<QWidget *>{a, panel, c}));
    auto *d = new TMaskBtn(panel);
    QCOMPARE(d->TabOrder(), 1);
    delete b;
    QCOMPARE(d->TabOrder(), 0);
    QCOMPARE(ControlLayout::tabList(panel), (QList<QWidget *>{d}));

    // The focus chain follows the tab order.
    surface.show();
    QVERIFY(QTest::qWaitForWindowExposed(&surface));
    a->setTabOrder(1); // panel, a, c
    QCOMPARE(a->nextInFocusChain(), static_cast<QWidget *>(c));

    // Graphic controls lie beneath the windowed ones whatever the order of
    // making; front and back move a control within its own layer, between
    // widgets that are no controls (a grid below, handles above).
    auto *grid = new QWidget(&surface);
    grid->lower();
    auto *handles = new QWidget(&surface);
    auto *bevel = new TBevel(&surface);
    auto *shape = new TShape;
    shape->setParent(&surface);
    const auto stacking = [&surface] {
        QList<QWidget *> order;
        for (QObject *o : surface.children())
            if (o->isWidgetType())
                order << static_cast<QWidget *>(o);
        return order;
    };
    QCOMPARE(stacking(), (QList<QWidget *>{grid, label, bevel, shape, a, panel, c, handles}));
    ControlLayout::bringToFront(label);
    ControlLayout::sendToBack(c);
    ControlLayout::bringToFront(a);
    ControlLayout::sendToBack(shape);
    QCOMPARE(stacking(), (QList<QWidget *>{grid, shape, bevel, label, c, panel, a, handles}));
}

void TestControlLayer::alignedChildrenShareTheClientArea()
{
    QWidget surface;
    surface.resize(400, 300);
    surface.show(); // a hidden widget gets its resize events only when shown
    auto *top = new TPanel(&surface);
    top->setHeight(40);
    top->setAlign(alTop);
    auto *bottom = new TPanel(&surface);
    bottom->setHeight(30);
    bottom->setAlign(alBottom);
    auto *left = new TPanel(&surface);
    left->setWidth(50);
    left->setAlign(alLeft);
    auto *right = new TPanel(&surface);
    right->setWidth(60);
    right->setAlign(alRight);
    auto *client = new TPanel(&surface);
    client->setAlign(alClient);
    auto *free = new TPanel(&surface);
    free->setBounds(5, 6, 7, 8);

    QCOMPARE(top->geometry(), QRect(0, 0, 400, 40));
    QCOMPARE(bottom->geometry(), QRect(0, 270, 400, 30));
    QCOMPARE(left->geometry(), QRect(0, 40, 50, 230));
    QCOMPARE(right->geometry(), QRect(340, 40, 60, 230));
    QCOMPARE(client->geometry(), QRect(50, 40, 290, 230));
    QCOMPARE(free->geometry(), QRect(5, 6, 7, 8));

    // The container grows: everything follows.
    surface.resize(500, 400);
    QCOMPARE(bottom->geometry(), QRect(0, 370, 500, 30));
    QCOMPARE(client->geometry(), QRect(50, 40, 390, 330));

    // A second top control stacks below the first by position.
    auto *top2 = new TPanel(&surface);
    top2->setBounds(0, 100, 10, 20);
    top2->setAlign(alTop);
    QCOMPARE(top2->geometry(), QRect(0, 40, 500, 20));
    QCOMPARE(client->geometry(), QRect(50, 60, 390, 310));

    // Changing the height of an aligned control moves the others.
    top->setHeight(10);
    QCOMPARE(top2->geometry().top(), 10);
    QCOMPARE(client->geometry().top(), 30);

    // Deleting one gives its room back; un-aligning frees it.
    delete top2;
    QCOMPARE(client->geometry().top(), 10);
    left->setAlign(alNone);
    QCOMPARE(client->geometry().left(), 0);

    // Children of a panel share the panel's area inside its bevel.
    client->setBevelOuter(bvRaised);
    client->setBevelWidth(3);
    auto *inner = new TPanel(client);
    inner->setAlign(alClient);
    QCOMPARE(inner->geometry(), client->rect().adjusted(3, 3, -3, -3));
    client->setBevelInner(bvLowered);
    QCOMPARE(inner->geometry(), client->rect().adjusted(6, 6, -6, -6));
}

void TestControlLayer::systemColoursKeepTheirIdentity()
{
    TPanel panel;
    const TPropInfo *color = panel.classInfo().property(QStringLiteral("Color"));
    QVERIFY(color);
    panel.setColor(Colors::clWindow);
    QCOMPARE(panel.Color(), Colors::clWindow);
    QVERIFY(panel.Color() != Colors::clWhite);
    QCOMPARE(propertyValueToText(*color, color->read(&panel)), QStringLiteral("clWindow"));
    // Painted with the palette's colour for it.
    QCOMPARE(panel.palette().color(QPalette::Window), QApplication::palette().color(QPalette::Base));

    color->write(&panel, *propertyValueFromText(*color, QStringLiteral("$00ff0000")));
    QCOMPARE(panel.Color(), Colors::clBlue);
    QCOMPARE(panel.palette().color(QPalette::Window), QColor(0, 0, 255));

    // A label shows its parent's colour until it gets its own.
    auto *label = new TLabel(&panel);
    QVERIFY(label->ParentColor());
    QCOMPARE(label->Color(), Colors::clBlue);
    label->setColor(Colors::clYellow);
    QVERIFY(!label->ParentColor());
    QCOMPARE(label->Color(), Colors::clYellow);
}

void TestControlLayer::captionFollowsTheNameUntilChanged()
{
    QWidget owner;
    auto *label = new TLabel(&owner);
    Components::setOwner(label, &owner);
    QVERIFY(AutoName(label, &owner));
    QCOMPARE(label->Caption(), QStringLiteral("Label1"));
    label->setObjectName(QStringLiteral("Label7"));
    QCOMPARE(label->Caption(), QStringLiteral("Label7"));
    label->setCaption(QStringLiteral("Kunde:"));
    label->setObjectName(QStringLiteral("Label8"));
    QCOMPARE(label->Caption(), QStringLiteral("Kunde:"));

    // Kinds without the rule keep their caption empty.
    auto *bevel = new TBevel(&owner);
    Components::setOwner(bevel, &owner);
    QVERIFY(AutoName(bevel, &owner));
    QCOMPARE(bevel->objectName(), QStringLiteral("Bevel1"));
    QCOMPARE(bevel->Caption(), QString());

    // While loading, the name never overwrites the caption read from the file.
    auto *button = new TMaskBtn(&owner);
    button->beginLoading();
    button->setCaption(QStringLiteral("Suchen"));
    button->setObjectName(QStringLiteral("Suchen"));
    button->setObjectName(QStringLiteral("MaskBtn1"));
    button->endLoading();
    QCOMPARE(button->Caption(), QStringLiteral("Suchen"));
}

void TestControlLayer::autoSizeWaitsWhileLoading()
{
    TLabel label;
    label.beginLoading();
    label.setBounds(10, 10, 300, 40);
    label.setCaption(QStringLiteral("Ein ziemlich langer Beschriftungstext"));
    TFont font = label.Font();
    font.Size = 20;
    label.setFont(font);
    label.endLoading();
    QCOMPARE(label.geometry(), QRect(10, 10, 300, 40));

    // Outside loading the label fits its text again.
    label.setCaption(QStringLiteral("Kurz"));
    QVERIFY(label.width() < 300);
    QCOMPARE(label.height(), QFontMetrics(label.font()).height());
    label.setAutoSize(false);
    label.setWidth(200);
    label.setCaption(QStringLiteral("x"));
    QCOMPARE(label.width(), 200);
}

void TestControlLayer::everyPropertyKeepsWhatIsWritten()
{
    // The lists and the classes agree: each setter writes the attribute its
    // getter reads, no property disturbs another, and every value survives
    // its text form.
    QWidget owner;
    for (const TClassInfo *info : ControlClasses::all()) {
        QCOMPARE(ControlClasses::find(info->className.toUpper()), info);
        // A fresh control holds the defaults its list declares (streams
        // leave out what equals them).
        std::unique_ptr<QWidget> fresh(info->create());
        QCOMPARE(QString::fromLatin1(fresh->metaObject()->className()), info->className);
        QCOMPARE(&TControl::from(fresh.get())->classInfo(), info);
        QStringList seen;
        for (const TPropInfo &p : info->properties) {
            const QString where = info->className + "." + p.name;
            QVERIFY2(!seen.contains(p.name, Qt::CaseInsensitive), qPrintable(where));
            seen << p.name;
            QVERIFY2(!p.defaultValue.isValid() || p.isDefault(fresh.get()), qPrintable(where));
            const QString text = propertyValueToText(p, p.read(fresh.get()));
            const auto back = propertyValueFromText(p, text);
            QVERIFY2(back.has_value(), qPrintable(where + " = " + text));
            // Every setter counts as a change: undo snapshots reuse a
            // control's stream while its count stays.
            // (A flag is switched: Qt's own setters report real changes only.)
            const quint64 revision = TControl::from(fresh.get())->revision();
            p.write(fresh.get(), p.type == TPropType::Boolean ? QVariant(!back->toBool()) : *back);
            QVERIFY2(TControl::from(fresh.get())->revision() > revision, qPrintable(where + " is not counted"));
            p.write(fresh.get(), *back);
            QCOMPARE(propertyValueToText(p, p.read(fresh.get())), text);
        }

        QWidget *w = createSecond(*info, &owner);
        // Indexes into pages, items and tabs depend on what there is; the
        // tests of those controls cover them.
        writeEveryProperty(w, {QStringLiteral("ActivePageIndex"), QStringLiteral("PageIndex"),
                               QStringLiteral("ItemIndex"), QStringLiteral("TabIndex")});
        if (QTest::currentTestFailed())
            return;
        // The getters read the Qt widget itself; only this needs saying.
        if (auto *lookup = qobject_cast<TcxDBPopupEdit *>(w))
            QCOMPARE(lookup->inputMask(), QString()); // the lookup table's name is no input mask
    }
    QVERIFY(!ControlClasses::find(QStringLiteral("TForm")));
    QVERIFY(!ControlClasses::create(QStringLiteral("")));
}

void TestControlLayer::maskButtonAndDataLabel()
{
    TMaskBtn button;
    button.classInfo().property(QStringLiteral("Margin"))->write(&button, 300);
    QCOMPARE(button.Margin(), 255);

    // The button's own text colour wins over the font colour.
    TFont font = button.Font();
    font.Color = Colors::clRed;
    button.setFont(font);
    QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(255, 0, 0));
    button.setNormalTextColor(Colors::clGreen);
    QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(0, 128, 0));

    // The data label is a label with a field; the plain label has none.
    QVERIFY(TDBLabel::staticClassInfo().property(QStringLiteral("DataField")));
    QVERIFY(!TLabel::staticClassInfo().property(QStringLiteral("DataField")));
}

void TestControlLayer::geometryIsClampedNotCrashed()
{
    TPanel panel;
    panel.setBounds(-2147483647 - 1, 2147483647, -2147483647 - 1, 2147483647);
    QVERIFY(panel.Width() >= 0);
    QVERIFY(panel.Height() >= 0);
    panel.setWidth(-5);
    QCOMPARE(panel.Width(), 0);
    panel.setBounds(1, 2, 3, 4);
    QCOMPARE(panel.geometry(), QRect(1, 2, 3, 4));

    // A stack of huge aligned controls: every place stays in range, none wraps round.
    TPanel host;
    host.setBounds(0, 0, 500, 500);
    QList<TPanel *> stack;
    for (int i = 0; i < 300; ++i) {
        auto *p = new TPanel(&host);
        p->setBounds(0, i, 10, 16777215);
        p->setAlign(i % 2 ? alTop : alLeft);
        stack << p;
    }
    for (TPanel *p : std::as_const(stack)) {
        const QRect r = p->geometry();
        QVERIFY2(r.top() >= 0 && r.left() >= 0 && r.top() <= 32767 && r.left() <= 32767 && r.height() <= 32767,
                 qPrintable(QStringLiteral("%1,%2 %3").arg(r.left()).arg(r.top()).arg(r.height())));
    }
}

QTEST_MAIN(TestControlLayer)
#include "test_controllayer.moc"
