// Component streams: binary and text form of a control with its children,
// reading them back into new components, and rejecting damaged input.
#include <QBuffer>
#include <QtTest>

#include "Components.h"
#include "Containers.h"
#include "ControlClasses.h"
#include "Edits.h"
#include "Label.h"
#include "MyBtn.h"
#include "Streaming.h"
#include "TestSupport.h"

namespace {

QWidget *readBytes(const QByteArray &bytes, QObject *owner, QWidget *parent, QString *error = nullptr,
                   TReadErrorHandler onError = {})
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    TReadContext ctx;
    ctx.owner = owner;
    ctx.parent = parent;
    ctx.onError = std::move(onError);
    return readComponent(buffer, ctx, error);
}

QString propText(QWidget *w, const TPropInfo &p)
{
    return propertyValueToText(p, p.read(w));
}

// Every published property whose text form differs between a and b.
QStringList differences(QWidget *a, QWidget *b)
{
    QStringList out;
    const TClassInfo &info = TControl::from(a)->classInfo();
    if (&TControl::from(b)->classInfo() != &info)
        return {QStringLiteral("class %1 vs %2").arg(info.className, TControl::from(b)->classInfo().className)};
    for (const TPropInfo &p : info.properties)
        if (propText(a, p) != propText(b, p))
            out << QStringLiteral("%1.%2: %3 vs %4").arg(info.className, p.name, propText(a, p), propText(b, p));
    return out;
}

// Gives every property of w a value away from its default: captions with
// umlauts, quotes and characters outside Latin-1, named and RGB colours,
// a styled font, string lists, the last enumerator, all set bits.
void fillSample(QWidget *w, int variant)
{
    const TClassInfo &info = TControl::from(w)->classInfo();
    int n = variant;
    for (const TPropInfo &p : info.properties) {
        ++n;
        const QVariant current = p.read(w);
        QVariant v;
        switch (p.type) {
        case TPropType::Integer:
            // Top and Tag take two and four bytes in the binary form.
            v = p.name == QLatin1String("Top") ? 300 : p.name == QLatin1String("Tag") ? 70000 : current.toInt() + 3;
            break;
        case TPropType::Boolean:
            // ParentFont/ParentColor on for every other class: the font parts
            // must not turn ParentFont off again when read back.
            v = p.name.startsWith(QLatin1String("Parent")) ? variant % 2 == 0 : !current.toBool();
            break;
        case TPropType::String:
            v = n % 2 ? QStringLiteral("Grüße 'A' %1").arg(n) : QStringLiteral("Preis:\t5 € \"B\" %1").arg(n);
            break;
        case TPropType::Color:
            v = QVariant::fromValue(n % 2 ? Colors::clTeal : TColor::fromRgb(0x12, 0x34, 0x56));
            break;
        case TPropType::Enum:
            v = int(p.enumNames.size()) - 1;
            break;
        case TPropType::Set:
            v = (1 << p.enumNames.size()) - 1;
            break;
        case TPropType::Font: {
            TFont f;
            f.Name = QStringLiteral("DejaVu Serif");
            f.Size = 11 + n % 3;
            f.Color = n % 2 ? Colors::clMaroon : TColor::fromRgb(1, 2, 3);
            f.Style = fsBold | fsStrikeOut;
            v = QVariant::fromValue(f);
            break;
        }
        case TPropType::Strings:
            v = QStringList{QStringLiteral("rot"), QStringLiteral("grün"), QStringLiteral("It's €")};
            break;
        }
        p.write(w, v);
    }
}

} // namespace

class TestStreaming : public QObject
{
    Q_OBJECT

private slots:
    void everyClassRoundTrips();
    void childrenKeepStructureOrderAndTabOrder();
    void pagerKeepsPageOrderAndActivePage();
    void clashingAndEmptyNamesAreAutoNamed();
    void writtenLayoutMatchesTheReference();
    void textFormIsReadableAndTolerant();
    void damagedInputIsRejectedCleanly();
    void unknownClassesPropertiesAndWrongValues();
    void propertiesTextRoundTrips();
    void readIntoFillsAnExistingComponent();
};

void TestStreaming::everyClassRoundTrips()
{
    int variant = 0;
    for (const TClassInfo *info : ControlClasses::all()) {
        // One host each: tab order and colours come from the siblings and the parent.
        QWidget hostA, hostB, hostC;
        QWidget *src = info->create();
        src->setParent(&hostA);
        Components::setOwner(src, &hostA);
        src->setObjectName(QStringLiteral("Src") + info->className);
        fillSample(src, variant++);

        const QByteArray binary = componentToBytes(src, TStreamFormat::Binary);
        const QByteArray text = componentToBytes(src, TStreamFormat::Text);
        QVERIFY2(binary.startsWith("TPF0"), qPrintable(info->className));
        const QByteArray head = "object Src" + info->className.toLatin1() + ": " + info->className.toLatin1();
        QVERIFY2(text.startsWith(head), text.constData());

        // The two forms hold the same and convert into one another unchanged.
        QString error;
        QCOMPARE(textToBinary(text, &error), binary);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(binaryToText(binary, &error), text);

        QWidget *fromBinary = readBytes(binary, &hostB, &hostB, &error);
        QVERIFY2(fromBinary, qPrintable(info->className + ": " + error));
        QWidget *fromText = readBytes(text, &hostC, &hostC, &error);
        QVERIFY2(fromText, qPrintable(info->className + ": " + error));
        for (QWidget *copy : {fromBinary, fromText}) {
            QCOMPARE(copy->objectName(), src->objectName());
            QCOMPARE(copy->parentWidget(), copy == fromBinary ? &hostB : &hostC);
            QCOMPARE(Components::owner(copy), static_cast<QObject *>(copy->parentWidget()));
            QVERIFY(!TControl::from(copy)->isLoading());
            const QStringList diff = differences(src, copy);
            QVERIFY2(diff.isEmpty(), qPrintable(diff.join(QLatin1Char('\n'))));
            // Writing the copy gives the same stream again.
            QCOMPARE(componentToBytes(copy, TStreamFormat::Binary), binary);
        }
    }
}

void TestStreaming::childrenKeepStructureOrderAndTabOrder()
{
    QWidget surface;
    auto *panel = new TPanel(&surface);
    Components::setOwner(panel, &surface);
    panel->setObjectName(QStringLiteral("Panel1"));
    panel->setBounds(10, 20, 300, 200);
    auto *label = new TLabel(panel);
    label->setObjectName(QStringLiteral("Label1"));
    label->setCaption(QStringLiteral("Kunde:"));
    label->setBounds(8, 12, 40, 17);
    auto *button = new TMaskBtn(panel);
    button->setObjectName(QStringLiteral("Button1"));
    button->setBounds(100, 150, 75, 25);
    auto *inner = new TPanel(panel);
    inner->setObjectName(QStringLiteral("Inner"));
    inner->setBounds(5, 40, 200, 90);
    auto *edit = new TcxTextEdit(inner);
    edit->setObjectName(QStringLiteral("Edit1"));
    edit->setBounds(3, 4, 120, 21);
    auto *last = new TMaskBtn(panel);
    last->setObjectName(QStringLiteral("Button2"));
    last->setBounds(180, 150, 75, 25);
    // Tab order against creation order: read one by one, Button1 (2) would
    // land before the others.
    last->setTabOrder(0);
    inner->setTabOrder(1);
    QCOMPARE(ControlLayout::tabList(panel), (QList<QWidget *>{last, inner, button}));

    for (TStreamFormat format : {TStreamFormat::Binary, TStreamFormat::Text}) {
        QWidget target;
        target.show(); // children added to a shown parent must show too
        QList<QWidget *> created;
        QBuffer buffer;
        buffer.setData(componentToBytes(panel, format));
        buffer.open(QIODevice::ReadOnly);
        TReadContext ctx;
        ctx.owner = &target;
        ctx.parent = &target;
        ctx.onCreated = [&created](QWidget *w) { created << w; };
        QString error;
        auto *copy = qobject_cast<TPanel *>(readComponent(buffer, ctx, &error));
        QVERIFY2(copy, qPrintable(error));

        QCOMPARE(copy->parentWidget(), &target);
        QCOMPARE(copy->geometry(), QRect(10, 20, 300, 200));
        QStringList names;
        for (QObject *o : Components::components(&target))
            names << o->objectName();
        QCOMPARE(names, (QStringList{"Panel1", "Label1", "Button1", "Inner", "Edit1", "Button2"}));
        QCOMPARE(created.size(), 6);
        QCOMPARE(created.first(), copy);

        // Children, their order, tab order and every property as written.
        QCOMPARE(componentToBytes(copy, format), componentToBytes(panel, format));
        QCOMPARE(Components::findComponent(&target, QStringLiteral("Edit1"))->parent()->objectName(),
                 QStringLiteral("Inner"));
        for (QWidget *w : std::as_const(created))
            QVERIFY2(w->isVisible(), qPrintable(w->objectName()));
    }
}

void TestStreaming::pagerKeepsPageOrderAndActivePage()
{
    QWidget surface;
    auto *pager = new TAdvOfficePager(&surface);
    pager->setObjectName(QStringLiteral("Pager"));
    pager->setBounds(0, 0, 400, 300);
    QList<TAdvOfficePage *> pages;
    for (const char *caption : {"Allgemein", "Adresse", "Notizen"}) {
        auto *page = new TAdvOfficePage;
        page->setCaption(QString::fromUtf8(caption));
        page->setObjectName(QStringLiteral("Seite") + page->Caption());
        pager->addPage(page);
        pages << page;
    }
    // Page order apart from child order: "Notizen" first.
    pages.at(2)->setPageIndex(0);
    auto *onSecond = new TLabel(pager->Pages(1));
    onSecond->setObjectName(QStringLiteral("Street"));
    onSecond->setCaption(QStringLiteral("Straße"));
    auto *edit = new TcxTextEdit(pager->Pages(1));
    edit->setObjectName(QStringLiteral("StreetEdit"));
    pager->setActivePageIndex(1);

    for (TStreamFormat format : {TStreamFormat::Binary, TStreamFormat::Text}) {
        QWidget target;
        QString error;
        auto *copy = qobject_cast<TAdvOfficePager *>(
            readBytes(componentToBytes(pager, format), &target, &target, &error));
        QVERIFY2(copy, qPrintable(error));
        QCOMPARE(copy->PageCount(), 3);
        QStringList captions;
        for (int i = 0; i < copy->PageCount(); ++i)
            captions << copy->Pages(i)->Caption();
        QCOMPARE(captions, (QStringList{"Notizen", "Allgemein", "Adresse"}));
        QCOMPARE(copy->ActivePageIndex(), 1);
        QCOMPARE(copy->tabBar()->currentIndex(), 1);
        QVERIFY(!copy->Pages(1)->isHidden());
        QVERIFY(copy->Pages(0)->isHidden());
        // The copy writes as the original did, the controls on the pages included.
        QCOMPARE(componentToBytes(copy, format), componentToBytes(pager, format));
    }
}

void TestStreaming::clashingAndEmptyNamesAreAutoNamed()
{
    QWidget source;
    auto *label = new TLabel(&source);
    label->setObjectName(QStringLiteral("Label1"));
    QCOMPARE(label->Caption(), QStringLiteral("Label1"));
    const QByteArray named = componentToBytes(label, TStreamFormat::Binary);
    auto *unnamed = new TLabel(&source);
    unnamed->setCaption(QStringLiteral("ohne Namen"));
    const QByteArray anonymous = componentToBytes(unnamed, TStreamFormat::Binary);
    const QByteArray anonymousText = componentToBytes(unnamed, TStreamFormat::Text);
    QVERIFY(anonymousText.startsWith("object TLabel\n"));

    QWidget owner;
    auto *existing = new TLabel(&owner);
    Components::setOwner(existing, &owner);
    existing->setObjectName(QStringLiteral("label1")); // names match regardless of case

    QWidget *copy = readBytes(named, &owner, &owner);
    QVERIFY(copy);
    QCOMPARE(copy->objectName(), QStringLiteral("Label2"));
    // The caption is the stream's, not the new name's.
    QCOMPARE(qobject_cast<TLabel *>(copy)->Caption(), QStringLiteral("Label1"));
    QWidget *second = readBytes(anonymous, &owner, &owner);
    QVERIFY(second);
    QCOMPARE(second->objectName(), QStringLiteral("Label3"));
    QCOMPARE(qobject_cast<TLabel *>(second)->Caption(), QStringLiteral("ohne Namen"));
}

void TestStreaming::writtenLayoutMatchesTheReference()
{
    // Every kind of value the writer picks by size or content: integers of
    // one, two and four bytes, Latin-1, wide and long strings, identifiers,
    // RGB colours, sets, lists, names with umlauts and code points beyond
    // 16 bits. The reference files were written once and checked by hand.
    QWidget host;
    auto *panel = new TPanel(&host);
    panel->setObjectName(QStringLiteral("Panel1"));
    panel->setCaption(QStringLiteral("Gr\u00f6\u00dfe 'x'\nzwei"));
    panel->setBounds(10, 300, 400, 200);
    // Nothing may depend on the fonts installed.
    panel->setFont(TFont{QStringLiteral("Arial"), 8, Colors::clWindowText, {}});
    const struct
    {
        const char *name;
        int tag;
        QString caption;
    } labels[] = {{"L", 5, QStringLiteral("Grüße")},
                  {"L2", 300, QStringLiteral("5 €")},
                  {"L3", 70000, QString(300, QLatin1Char('x'))},
                  {"Größe", -2, QStringLiteral("\U0001F600 ok")}};
    for (const auto &l : labels) {
        auto *label = new TLabel(panel);
        label->setObjectName(QString::fromUtf8(l.name));
        label->setAutoSize(false);
        label->setBounds(8, 4, 60, 17);
        label->setTag(l.tag);
        label->setCaption(l.caption);
    }
    auto *styled = panel->findChild<TLabel *>(QStringLiteral("L2"));
    styled->setAlignment(taCenter);
    styled->setColor(Colors::clTeal);
    styled->setFont(TFont{QStringLiteral("Arial"), 9, TColor::fromRgb(0x10, 0x20, 0x30), fsBold | fsItalic});
    auto *group = new TDBRadioGroup(panel);
    group->setObjectName(QStringLiteral("Farbe"));
    group->setItems({QStringLiteral("rot"), QStringLiteral("grün")});
    group->setFont(TFont{QStringLiteral("Arial"), 9, Colors::clRed, fsBold | fsItalic});
    group->setBounds(8, 30, 120, 80);

    const QByteArray binary = componentToBytes(panel, TStreamFormat::Binary);
    const QByteArray text = componentToBytes(panel, TStreamFormat::Text);
    QCOMPARE(binary, readFileBytes(QStringLiteral(FEROLITH_SOURCE_DIR "/tests/toolkit/data/layout.bin")));
    QCOMPARE(text, readFileBytes(QStringLiteral(FEROLITH_SOURCE_DIR "/tests/toolkit/data/layout.txt")));
    QCOMPARE(textToBinary(text), binary);
    QWidget reader;
    QString error;
    QWidget *back = readBytes(binary, &reader, &reader, &error);
    QVERIFY2(back, qPrintable(error));
    QCOMPARE(componentToBytes(back, TStreamFormat::Binary), binary);
}

void TestStreaming::textFormIsReadableAndTolerant()
{
    // Hand-written: other case, tabs, CRLF, blanks around everything, joined
    // and adjoining string parts, hex numbers, an empty list.
    const QByteArray loose =
        "\xEF\xBB\xBF  OBJECT Panel7 :TPanel\r\n"
        "\tLeft=$10\r\n"
        "\tTop =  -3\r\n"
        "\tCaption = 'A' +\r\n  'B'#67   +   #$44\r\n"
        "\tColor = 255\r\n"
        "\tBevelOuter = BVLOWERED\r\n"
        "\tobject TLabel Caption = ''''  end\r\n"
        "\tobject L2: TcxComboBox\r\n\t\tItems.Strings = ( )\r\n\t\tFont.Style = [ fsItalic ,fsBold ]\r\n\tEnd\r\n"
        "End";
    QWidget owner;
    QString error;
    auto *read = qobject_cast<TPanel *>(readBytes(loose, &owner, &owner, &error));
    QVERIFY2(read, qPrintable(error));
    QCOMPARE(read->objectName(), QStringLiteral("Panel7"));
    QCOMPARE(read->Left(), 16);
    QCOMPARE(read->Top(), -3);
    QCOMPARE(read->Caption(), QStringLiteral("ABCD"));
    QCOMPARE(read->Color(), Colors::clRed);
    QCOMPARE(read->BevelOuter(), bvLowered);
    auto *label = qobject_cast<TLabel *>(Components::findComponent(&owner, QStringLiteral("Label1")));
    QVERIFY(label);
    QCOMPARE(label->Caption(), QStringLiteral("'"));
    auto *combo = qobject_cast<TcxComboBox *>(Components::findComponent(&owner, QStringLiteral("L2")));
    QVERIFY(combo);
    QVERIFY(combo->Items().isEmpty());
    QCOMPARE(combo->Font().Style, fsBold | fsItalic);

    QWidget owner2;
    // Syntax errors name their line.
    QVERIFY(!readBytes("object A: TLabel\n  Left = 1\n  Top 2\nend\n", &owner2, &owner2, &error));
    QVERIFY2(error.contains(QLatin1String("Zeile 3")), qPrintable(error));
    QVERIFY(!readBytes("object A: TLabel\n  Caption = 'ab\ncd'\nend\n", &owner2, &owner2, &error));
    QVERIFY2(error.contains(QLatin1String("Zeile 2")), qPrintable(error));
    QVERIFY(!readBytes("object A: TLabel\n  Left = 99999999999\nend\n", &owner2, &owner2, &error));
    QVERIFY(!readBytes("object A: TLabel\n  Caption = #1114112\nend\n", &owner2, &owner2, &error));
    QVERIFY(!readBytes("object A: TLabel\n  Left = 1\n", &owner2, &owner2, &error));
    QCOMPARE(Components::componentCount(&owner2), 0);
}

void TestStreaming::damagedInputIsRejectedCleanly()
{
    QWidget owner;
    QString error;
    // Neither signature; random and mutated streams are the fuzz targets' job.
    QVERIFY(!readBytes("<xml/>", &owner, &owner, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(binaryToText("TPF", &error).isEmpty());
    QVERIFY(textToBinary("object A: TLabel\n  Left = \nend\n", &error).isEmpty());
    QVERIFY(!error.isEmpty());

    // Every truncation is refused (the fuzz targets would take a cut stream
    // as fine); only the text form's final line break may go missing.
    auto *label = new TLabel(&owner);
    label->setCaption(QStringLiteral("Straße €"));
    for (TStreamFormat format : {TStreamFormat::Binary, TStreamFormat::Text}) {
        const QByteArray full = componentToBytes(label, format);
        for (qsizetype cut = format == TStreamFormat::Text ? 2 : 1; cut <= full.size(); ++cut)
            QVERIFY2(!readBytes(full.chopped(cut), &owner, &owner, &error), qPrintable(QString::number(cut)));
    }
    delete label;

    // Nesting beyond the limit: objects and lists, binary and text.
    const QByteArray head("TPF0\x06TLabel\x01" "A\x07" "Caption", 21);
    QByteArray deep("TPF0");
    QByteArray deepText;
    for (int i = 0; i < 200; ++i) {
        deep += QByteArray("\x06TPanel\x00\x00", 9);
        deepText += "object TPanel\n";
    }
    deep += QByteArray(400, '\0');
    for (int i = 0; i < 200; ++i)
        deepText += "end\n";
    QVERIFY(!readBytes(deep, &owner, &owner, &error));
    QVERIFY2(error.contains(QLatin1String("verschachtelt")), qPrintable(error));
    QVERIFY(!readBytes(deepText, &owner, &owner, &error));
    QVERIFY2(error.contains(QLatin1String("verschachtelt")), qPrintable(error));
    QByteArray lists = head + QByteArray(100000, '\x01') + QByteArray(100002, '\0');
    QVERIFY(!readBytes(lists, &owner, &owner, &error));
    QVERIFY2(error.contains(QLatin1String("verschachtelt")), qPrintable(error));
    QByteArray textLists = "object A: TLabel\n  Caption = " + QByteArray(100000, '(') + QByteArray(100000, ')') + "\nend\n";
    QVERIFY(!readBytes(textLists, &owner, &owner, &error));
    QVERIFY2(error.contains(QLatin1String("verschachtelt")), qPrintable(error));
    // Within the limit nesting is fine.
    QByteArray fine("TPF0");
    for (int i = 0; i < 40; ++i)
        fine += QByteArray("\x06TPanel\x00\x00", 9);
    fine += QByteArray(40, '\0');
    QWidget nestOwner;
    QVERIFY2(readBytes(fine, &nestOwner, &nestOwner, &error), qPrintable(error));
    QCOMPARE(Components::componentCount(&nestOwner), 40);
    QCOMPARE(Components::componentCount(&owner), 0);
}

void TestStreaming::unknownClassesPropertiesAndWrongValues()
{
    const QByteArray stream =
        "object P: TPanel\n"
        "  Left = 5\n"
        "  Colour = clRed\n"         // unknown property
        "  Caption = 42\n"           // wrong type
        "  Alignment = 99\n"         // ordinal without a name
        "  BevelOuter = bvNowhere\n" // unknown enumerator
        "  Color = clNoSuch\n"
        "  Font.Style = [fsBold, fsShadow]\n"
        "  Font.Weight = 3\n"
        "  Top = 7\n"
        "  object A: TLabel\n    Caption = 'a'\n  end\n"
        "  object X: TFoo\n    object Y: TLabel\n    end\n  end\n"
        "  object B: TLabel\n    Caption = 'b'\n  end\n"
        "end\n";
    QWidget surface;
    QString error;
    // By default an unknown class gives up, with nothing left behind.
    QVERIFY(!readBytes(stream, &surface, &surface, &error));
    QCOMPARE(error, QStringLiteral("Unbekannte Klasse „TFoo“"));
    QCOMPARE(Components::componentCount(&surface), 0);

    // Skipping it reads the rest; every faulty property is reported and skipped.
    QStringList reported;
    auto *panel = qobject_cast<TPanel *>(
        readBytes(stream, &surface, &surface, &error, [&reported](const QString &message, bool &handled) {
            reported << message;
            handled = true;
        }));
    QVERIFY2(panel, qPrintable(error));
    // Classes are checked before anything is created.
    QCOMPARE(reported.size(), 8);
    QCOMPARE(reported.at(0), QStringLiteral("Unbekannte Klasse „TFoo“"));
    QVERIFY(reported.at(1).contains(QStringLiteral("„Colour“")));
    QVERIFY(reported.at(1).startsWith(QLatin1String("Unbekannte Eigenschaft")));
    QVERIFY(reported.at(2).startsWith(QStringLiteral("Ungültiger Wert für Eigenschaft „Caption“")));
    QVERIFY(reported.at(7).contains(QStringLiteral("„Font.Weight“")));
    // A font whose parts were all wrong is left alone.
    QVERIFY(panel->ParentFont());
    QCOMPARE(panel->Left(), 5);
    QCOMPARE(panel->Top(), 7);
    QCOMPARE(panel->Caption(), QString());
    QCOMPARE(panel->Alignment(), taCenter);
    QCOMPARE(panel->BevelOuter(), bvRaised);
    QCOMPARE(panel->Color(), Colors::clBtnFace);
    QStringList names;
    for (QObject *o : Components::components(&surface))
        names << o->objectName();
    QCOMPARE(names, (QStringList{"P", "A", "B"}));

    // Several components are read all or nothing.
    QWidget clipboardTarget;
    QBuffer buffer;
    buffer.setData("object A: TLabel\nend\nobject B: TPanel\n  object C: TFoo\n  end\nend\n");
    buffer.open(QIODevice::ReadOnly);
    TReadContext ctx;
    ctx.owner = ctx.parent = &clipboardTarget;
    QVERIFY(readComponents(buffer, ctx, &error).isEmpty());
    QCOMPARE(error, QStringLiteral("Unbekannte Klasse „TFoo“"));
    QCOMPARE(Components::componentCount(&clipboardTarget), 0);
    QVERIFY(clipboardTarget.findChildren<QWidget *>().isEmpty());

    // A handler that gives up on a property takes back what was made so far.
    QWidget other;
    QVERIFY(!readBytes(stream, &other, &other, &error, [](const QString &message, bool &handled) {
        handled = !message.contains(QLatin1String("Caption"));
    }));
    QVERIFY(error.contains(QLatin1String("Caption")));
    QCOMPARE(Components::componentCount(&other), 0);
    QVERIFY(other.findChildren<QWidget *>().isEmpty());
    // Also when it gives up deep inside, after children were created.
    const QByteArray late = "object P: TPanel\n  object A: TLabel\n  end\n  object B: TLabel\n    Bad = 1\n  end\nend\n";
    QVERIFY(!readBytes(late, &other, &other, &error, [](const QString &, bool &handled) { handled = false; }));
    QCOMPARE(Components::componentCount(&other), 0);
    QVERIFY(other.findChildren<QWidget *>().isEmpty());
}

void TestStreaming::propertiesTextRoundTrips()
{
    QWidget host;
    auto *source = new TDBRadioGroup(&host);
    fillSample(source, 1);
    const QString text = componentPropertiesText(source);
    QVERIFY(text.startsWith(QLatin1String("Left = 3\nTop = 300\n")));
    QVERIFY(!text.contains(QLatin1String("object")));
    QVERIFY(text.contains(QLatin1String("Items.Strings = (\n  'rot'\n  'gr'#252'n'\n  'It''s '#8364)\n")));
    QWidget otherHost; // its own tab order
    auto *target = new TDBRadioGroup(&otherHost);
    QString error;
    QVERIFY2(setComponentPropertiesText(target, text, &error), qPrintable(error));
    QVERIFY(error.isEmpty());
    const QStringList diff = differences(source, target);
    QVERIFY2(diff.isEmpty(), qPrintable(diff.join(QLatin1Char('\n'))));
    QVERIFY(!TControl::from(target)->isLoading());

    // What cannot be applied is listed; the rest is applied.
    auto *label = new TLabel(&host);
    QVERIFY(!setComponentPropertiesText(label, QStringLiteral("Bogus = 1\nLeft = = 3\nCaption = 'x'\nTop = 9\n"
                                                              "Width = 'breit'\n"),
                                        &error));
    QCOMPARE(error.split(QLatin1Char('\n')).size(), 3);
    QVERIFY(error.contains(QLatin1String("Zeile 2")));
    QVERIFY(error.contains(QStringLiteral("„Bogus“")));
    QVERIFY(error.contains(QStringLiteral("„Width“")));
    QCOMPARE(label->Caption(), QStringLiteral("x"));
    QCOMPARE(label->Top(), 9);
}

void TestStreaming::readIntoFillsAnExistingComponent()
{
    QWidget host;
    auto *panel = new TPanel(&host);
    panel->setObjectName(QStringLiteral("Panel1"));
    panel->setCaption(QStringLiteral("Kopf"));
    panel->setBevelOuter(bvLowered);
    auto *label = new TLabel(panel);
    label->setObjectName(QStringLiteral("Label1"));
    const QByteArray bytes = componentToBytes(panel, TStreamFormat::Binary);

    QWidget owner;
    auto *target = new TPanel(&owner);
    Components::setOwner(target, &owner);
    target->setObjectName(QStringLiteral("Ziel"));
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    TReadContext ctx; // children take the target's owner
    QString error;
    QVERIFY2(readInto(buffer, target, ctx, &error), qPrintable(error));
    QCOMPARE(target->objectName(), QStringLiteral("Panel1"));
    QCOMPARE(target->Caption(), QStringLiteral("Kopf"));
    QCOMPARE(target->BevelOuter(), bvLowered);
    QObject *child = Components::findComponent(&owner, QStringLiteral("Label1"));
    QVERIFY(child);
    QCOMPARE(child->parent(), target);

    // Giving up half-way removes the children made so far and the new name.
    buffer.close();
    buffer.setData("object Kopf2: TPanel\n  object A: TLabel\n  end\n  object B: TLabel\n    Bad = 1\n  end\nend\n");
    buffer.open(QIODevice::ReadOnly);
    TReadContext strict;
    strict.onError = [](const QString &, bool &handled) { handled = false; };
    QVERIFY(!readInto(buffer, target, strict, &error));
    QVERIFY(error.contains(QStringLiteral("„Bad“")));
    QCOMPARE(target->objectName(), QStringLiteral("Panel1"));
    QCOMPARE(Components::componentCount(&owner), 2);
    QVERIFY(!TControl::from(target)->isLoading());
    buffer.close();
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);

    // Another class is refused before anything changes.
    auto *other = new TLabel(&owner);
    buffer.seek(0);
    QVERIFY(!readInto(buffer, other, ctx, &error));
    QVERIFY(error.contains(QLatin1String("TPanel")));
    QCOMPARE(Components::componentCount(&owner), 2);

    // A design surface that is no control takes the children only.
    QWidget surface;
    surface.setObjectName(QStringLiteral("Maske"));
    auto *a = new TcxTextEdit(&surface);
    a->setObjectName(QStringLiteral("Edit1"));
    auto *b = new TPanel(&surface);
    b->setObjectName(QStringLiteral("Panel1"));
    new QWidget(&surface); // no control: not written
    const QByteArray layout = componentToBytes(&surface, TStreamFormat::Text);
    QVERIFY2(layout.startsWith("object Maske: QWidget\n  object Edit1: TcxTextEdit\n"), layout.constData());
    QWidget restored;
    buffer.close();
    buffer.setData(layout);
    buffer.open(QIODevice::ReadOnly);
    ctx.owner = &restored;
    QVERIFY2(readInto(buffer, &restored, ctx, &error), qPrintable(error));
    QCOMPARE(restored.objectName(), QStringLiteral("Maske"));
    QCOMPARE(Components::componentCount(&restored), 2);
    QCOMPARE(componentToBytes(&restored, TStreamFormat::Text), layout);
}

QTEST_MAIN(TestStreaming)
#include "test_streaming.moc"
