// Speed of reading and writing mask files. Masks of 100, 1000 and 5000 mixed
// controls (mostly labels and edit fields, some combo boxes, lookups, memos,
// check boxes, buttons, bevels, shapes, grids, tree lists, radio groups,
// panels holding controls and a page control with two pages holding
// controls) are loaded into a real mask window of an invisible main window,
// exactly as File Open does, and saved to a file again. Beside them Qt's own
// form loader reads a .ui file with the same widgets, geometry and nesting,
// and Qt's form builder writes the widget tree it made.
//
// Prints the best of several runs per step, the ratios to Qt and the time per
// control at each size: a constant time per control means linear growth.
//
//   bench_maskfile [CONTROLS ...]     (default: 100 1000 5000)

#include "AppPaths.h"
#include "Components.h"
#include "MainForm.h"
#include "MaskLoader.h"
#include "MaskWriter.h"
#include "Maske.h"
#include "generated_mask.h"

#include <QApplication>
#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QFormBuilder>
#include <QTemporaryDir>
#include <QUiLoader>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <memory>
#include <vector>

namespace {

using namespace GeneratedMask;

// -------------------------------------------------------------- the .ui file

class UiText
{
public:
    void line(int depth, const QString &s) { m_text += QString(depth, QLatin1Char(' ')) + s + QLatin1Char('\n'); }
    void rect(int depth, const QRect &r)
    {
        line(depth, QStringLiteral("<property name=\"geometry\"><rect><x>%1</x><y>%2</y><width>%3</width>"
                                   "<height>%4</height></rect></property>")
                        .arg(r.x())
                        .arg(r.y())
                        .arg(r.width())
                        .arg(r.height()));
    }
    void string(int depth, const char *property, const QString &v)
    {
        line(depth, QStringLiteral("<property name=\"%1\"><string>%2</string></property>")
                        .arg(QLatin1String(property), v.toHtmlEscaped()));
    }
    void number(int depth, const char *property, int v)
    {
        line(depth, QStringLiteral("<property name=\"%1\"><number>%2</number></property>").arg(QLatin1String(property)).arg(v));
    }
    void boolean(int depth, const char *property, bool v)
    {
        line(depth, QStringLiteral("<property name=\"%1\"><bool>%2</bool></property>")
                        .arg(QLatin1String(property), v ? QStringLiteral("true") : QStringLiteral("false")));
    }
    void enumeration(int depth, const char *property, const char *v)
    {
        line(depth, QStringLiteral("<property name=\"%1\"><enum>%2</enum></property>")
                        .arg(QLatin1String(property), QLatin1String(v)));
    }
    void font(int depth, const char *face)
    {
        line(depth, QStringLiteral("<property name=\"font\"><font><family>%1</family><pointsize>10</pointsize>"
                                   "</font></property>")
                        .arg(QLatin1String(face)));
    }
    QByteArray bytes() const { return m_text.toUtf8(); }

private:
    QString m_text;
};

void writeUiWidget(UiText &u, const Layout &l, const std::vector<std::vector<int>> &children, int index, int depth)
{
    const Node &n = l.nodes[size_t(index)];
    const KindInfo &k = kKinds[n.kind];
    const QString caption = captionOf(n);
    u.line(depth, QStringLiteral("<widget class=\"%1\" name=\"%2\">").arg(QLatin1String(k.qtClass), nameOf(n)));
    const int d = depth + 1;
    if (n.kind == kPage)
        u.line(d, QStringLiteral("<attribute name=\"title\"><string>%1</string></attribute>").arg(caption.toHtmlEscaped()));
    else
        u.rect(d, n.geom);
    switch (n.kind) {
    case kPager:
        u.number(d, "currentIndex", 0);
        u.font(d, "Tahoma");
        break;
    case kPanel:
        u.enumeration(d, "frameShape", "QFrame::StyledPanel");
        u.enumeration(d, "frameShadow", "QFrame::Raised");
        u.font(d, "Arial");
        break;
    case kLabel:
        u.string(d, "text", caption);
        u.font(d, "Arial");
        u.boolean(d, "wordWrap", true);
        u.line(d, QStringLiteral("<property name=\"alignment\"><set>Qt::AlignRight|Qt::AlignTop</set></property>"));
        break;
    case kDBLabel:
        u.string(d, "text", caption);
        u.string(d, "toolTip", QStringLiteral("Anzeige %1").arg(n.number));
        u.font(d, "Arial");
        u.boolean(d, "wordWrap", true);
        break;
    case kField:
    case kLField:
        u.string(d, "text", caption);
        u.string(d, "toolTip", QStringLiteral("Eingabe %1").arg(n.number));
        u.number(d, "maxLength", n.kind == kField ? 30 : 20);
        u.font(d, "Arial");
        break;
    case kCField:
        u.boolean(d, "editable", true);
        u.string(d, "toolTip", QStringLiteral("Auswahl %1").arg(n.number));
        u.font(d, "Arial");
        break;
    case kMemo:
        u.string(d, "plainText", caption);
        u.string(d, "toolTip", QStringLiteral("Notiz %1").arg(n.number));
        u.enumeration(d, "verticalScrollBarPolicy", "Qt::ScrollBarAlwaysOn");
        u.font(d, "Arial");
        break;
    case kCheckBox:
        u.string(d, "text", caption);
        u.string(d, "toolTip", QStringLiteral("Schalter %1").arg(n.number));
        u.boolean(d, "checked", n.number % 2 != 0);
        u.font(d, "Arial");
        break;
    case kBevel:
        u.enumeration(d, "frameShape", "QFrame::Box");
        u.enumeration(d, "frameShadow", "QFrame::Sunken");
        break;
    case kShape:
        u.enumeration(d, "frameShape", "QFrame::Panel");
        u.enumeration(d, "frameShadow", "QFrame::Plain");
        break;
    case kButton:
        u.string(d, "text", caption);
        u.font(d, "Arial");
        break;
    case kGrid:
        u.font(d, "Arial");
        u.line(d, QStringLiteral("<column><property name=\"text\"><string>Spaltentitel</string></property></column>"));
        break;
    case kTree:
        u.font(d, "Arial");
        u.line(d, QStringLiteral("<column><property name=\"text\"><string>Spalte</string></property></column>"));
        break;
    case kStringGrid:
        u.font(d, "Arial");
        u.number(d, "rowCount", 5);
        u.number(d, "columnCount", 5);
        break;
    case kRadio:
        u.string(d, "title", caption);
        u.font(d, "Arial");
        u.line(d, QStringLiteral("<widget class=\"QRadioButton\" name=\"%1Ja\"><property name=\"geometry\"><rect><x>4</x>"
                                 "<y>20</y><width>60</width><height>20</height></rect></property><property "
                                 "name=\"text\"><string>Ja</string></property></widget>")
                          .arg(nameOf(n)));
        u.line(d, QStringLiteral("<widget class=\"QRadioButton\" name=\"%1Nein\"><property name=\"geometry\"><rect><x>70</x>"
                                 "<y>20</y><width>60</width><height>20</height></rect></property><property "
                                 "name=\"text\"><string>Nein</string></property></widget>")
                          .arg(nameOf(n)));
        break;
    case kPage:
    case kKindCount:
        break;
    }
    for (int child : children[size_t(index)])
        writeUiWidget(u, l, children, child, d);
    u.line(depth, QStringLiteral("</widget>"));
}

QByteArray makeUi(const Layout &l)
{
    std::vector<std::vector<int>> children(l.nodes.size());
    std::vector<int> top;
    for (int i = 0; i < int(l.nodes.size()); ++i) {
        const int p = l.nodes[size_t(i)].parent;
        (p < 0 ? top : children[size_t(p)]).push_back(i);
    }
    UiText u;
    u.line(0, QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    u.line(0, QStringLiteral("<ui version=\"4.0\">"));
    u.line(1, QStringLiteral("<class>Maske</class>"));
    u.line(1, QStringLiteral("<widget class=\"QWidget\" name=\"Maske\">"));
    u.rect(2, QRect(0, 0, l.width, l.height));
    u.string(2, "windowTitle", QStringLiteral("Kundenstamm"));
    for (int i : top)
        writeUiWidget(u, l, children, i, 2);
    u.line(1, QStringLiteral("</widget>"));
    u.line(1, QStringLiteral("<resources/>"));
    u.line(1, QStringLiteral("<connections/>"));
    u.line(0, QStringLiteral("</ui>"));
    return u.bytes();
}

// ------------------------------------------------------------------ timing

// Qt's form builder warns once per property of a type it cannot write,
// thousands of times per save, and the offscreen platform says on every new
// main window what it cannot do; only those lines are dropped.
QtMessageHandler g_previousHandler = nullptr;
void dropNoise(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg
        && (message.startsWith(QLatin1String("Designer: The property"))
            || message.startsWith(QLatin1String("This plugin does not support"))))
        return;
    if (g_previousHandler)
        g_previousHandler(type, context, message);
}

double msSince(const QElapsedTimer &t)
{
    return double(t.nsecsElapsed()) / 1e6;
}

void flushEvents()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

struct Best
{
    double ms = std::numeric_limits<double>::max();
    void take(double v) { ms = std::min(ms, v); }
};

struct Figures
{
    int controls = 0;
    qint64 dbmBytes = 0, uiBytes = 0, savedDbmBytes = 0, savedUiBytes = 0;
    Best load, loadShow, save, bytesOnly, close;        // Ferolith
    Best qtLoad, qtLoadShow, qtSave, qtSaveBuffer, qtClose; // Qt
    bool verified = false;
};

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}

// Checks that the loaded mask holds every control, named and nested as the
// layout expects.
bool verifyMask(TMaske *window, const Layout &l)
{
    const TMaskDocument *mask = window->document();
    const QList<QObject *> components = Components::components(mask);
    int loaded = 0;
    for (QObject *c : components)
        if (qobject_cast<QWidget *>(c))
            ++loaded;
    if (loaded != int(l.nodes.size())) {
        std::fprintf(stderr, "  mask holds %d controls, expected %d\n", loaded, int(l.nodes.size()));
        return false;
    }
    int wrong = 0;
    for (const Node &n : l.nodes) {
        auto *w = qobject_cast<QWidget *>(Components::findComponent(mask, nameOf(n)));
        if (!w) {
            if (wrong++ < 5)
                std::fprintf(stderr, "  %s not found\n", qPrintable(nameOf(n)));
            continue;
        }
        if (n.parent >= 0) {
            const QString expected = nameOf(l.nodes[size_t(n.parent)]);
            const QWidget *p = w->parentWidget();
            // A page may sit in the page control's own stack widget.
            while (p && p->objectName() != expected && p != mask)
                p = p->parentWidget();
            if (!p || p->objectName() != expected) {
                if (wrong++ < 5)
                    std::fprintf(stderr, "  %s is not inside %s\n", qPrintable(nameOf(n)), qPrintable(expected));
            }
        } else if (n.kind != kPage && w->geometry() != n.geom) {
            if (wrong++ < 5)
                std::fprintf(stderr, "  %s has geometry %d,%d %dx%d\n", qPrintable(nameOf(n)), w->x(), w->y(),
                             w->width(), w->height());
        }
    }
    return wrong == 0;
}

// One run of Ferolith: a new main window, the mask loaded, shown, saved and
// the whole window closed again.
bool measureFerolith(Figures &f, const Layout &layout, bool first, const QString &dbm, const QString &savedDbm)
{
    auto form = std::make_unique<TMainForm>();
    form->resize(1280, 1024);
    form->show();
    flushEvents();

    QElapsedTimer t;
    t.start();
    TMaske *mask = form->LoadMask(dbm);
    const double load = msSince(t);
    QCoreApplication::processEvents();
    const double loadShow = msSince(t);
    if (!mask) {
        std::fprintf(stderr, "loading failed\n");
        return false;
    }
    QString error;
    f.load.take(load);
    f.loadShow.take(loadShow);
    if (first)
        f.verified = verifyMask(mask, layout);

    QFile::remove(savedDbm); // every run saves a new file, no backup
    t.restart();
    if (!MaskWriter::SaveMask(*mask->document(), savedDbm, &error)) {
        std::fprintf(stderr, "saving failed: %s\n", qPrintable(error));
        return false;
    }
    f.save.take(msSince(t));
    f.savedDbmBytes = QFileInfo(savedDbm).size();

    t.restart();
    const QByteArray bytes = MaskWriter::MaskFileBytes(*mask->document());
    f.bytesOnly.take(msSince(t));
    if (bytes.isEmpty())
        std::fprintf(stderr, "no mask file text\n");

    mask->setModified(false);
    t.restart();
    form.reset();
    flushEvents();
    f.close.take(msSince(t));
    return true;
}

// One run of Qt: the .ui file loaded into a widget tree, shown, saved by the
// form builder into a file and into memory, and deleted.
bool measureQt(Figures &f, const Layout &layout, bool first, const QString &ui, const QString &savedUi,
               QUiLoader &uiLoader, QFormBuilder &formBuilder)
{
    QElapsedTimer t;
    t.start();
    QFile in(ui);
    if (!in.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot open %s\n", qPrintable(ui));
        return false;
    }
    QWidget *w = uiLoader.load(&in);
    in.close();
    const double load = msSince(t);
    if (!w) {
        std::fprintf(stderr, "QUiLoader failed: %s\n", qPrintable(uiLoader.errorString()));
        return false;
    }
    // Shown as large as the mask window is, not as large as the form.
    w->resize(1200, 900);
    w->show();
    QCoreApplication::processEvents();
    const double loadShow = msSince(t);
    f.qtLoad.take(load);
    f.qtLoadShow.take(loadShow);
    if (first) {
        int found = 0;
        for (const Node &n : layout.nodes)
            if (w->findChild<QWidget *>(nameOf(n)))
                ++found;
        if (found != int(layout.nodes.size()))
            std::fprintf(stderr, "QUiLoader made %d of %d widgets\n", found, int(layout.nodes.size()));
    }

    t.restart();
    {
        QFile out(savedUi);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(savedUi));
            delete w;
            return false;
        }
        formBuilder.save(&out, w);
    }
    f.qtSave.take(msSince(t));
    f.savedUiBytes = QFileInfo(savedUi).size();

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    t.restart();
    formBuilder.save(&buffer, w);
    f.qtSaveBuffer.take(msSince(t));

    t.restart();
    delete w;
    flushEvents();
    f.qtClose.take(msSince(t));
    return true;
}

Figures measure(int controls, const QTemporaryDir &dir, QUiLoader &uiLoader, QFormBuilder &formBuilder, bool warmUp)
{
    Figures f;
    f.controls = controls;
    const Layout layout = makeLayout(controls);
    for (int k = 0; k < kKindCount; ++k)
        if (layout.perKind[k] > kMaxSection)
            std::fprintf(stderr, "warning: %d sections of %s, the loader reads only %d\n", layout.perKind[k],
                         kKinds[k].prefix, kMaxSection);

    const QString dbm = dir.filePath(QStringLiteral("mask%1.dbm").arg(controls));
    const QString ui = dir.filePath(QStringLiteral("mask%1.ui").arg(controls));
    const QString savedDbm = dir.filePath(QStringLiteral("saved%1.dbm").arg(controls));
    const QString savedUi = dir.filePath(QStringLiteral("saved%1.ui").arg(controls));
    const QByteArray dbmText = makeDbm(layout);
    const QByteArray uiText = makeUi(layout);
    if (!writeFile(dbm, dbmText) || !writeFile(ui, uiText)) {
        std::fprintf(stderr, "cannot write the test files\n");
        return f;
    }
    f.dbmBytes = dbmText.size();
    f.uiBytes = uiText.size();

    // Ferolith and Qt take turns, so a busy machine slows both alike.
    const int runs = warmUp ? 1 : (controls > 2000 ? 3 : 5);
    for (int run = 0; run < runs; ++run) {
        if (!measureFerolith(f, layout, run == 0, dbm, savedDbm)
            || !measureQt(f, layout, run == 0, ui, savedUi, uiLoader, formBuilder))
            break;
    }
    return f;
}

double ratio(double a, double b)
{
    return b > 0 ? a / b : 0;
}

double usPerControl(const Best &b, int controls)
{
    return b.ms * 1000.0 / controls;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    std::vector<int> sizes;
    for (int i = 1; i < argc; ++i) {
        const int n = QString::fromLocal8Bit(argv[i]).toInt();
        if (n >= 50)
            sizes.push_back(n);
    }
    if (sizes.empty())
        sizes = {100, 1000, 5000};

    g_previousHandler = qInstallMessageHandler(dropNoise);

    QTemporaryDir dir;
    if (!dir.isValid()) {
        std::fprintf(stderr, "no temporary directory\n");
        return 1;
    }
    // To look at the generated and saved files afterwards.
    if (qEnvironmentVariableIsSet("BENCH_MASKFILE_KEEP")) {
        dir.setAutoRemove(false);
        std::printf("files kept in %s\n", qPrintable(dir.path()));
    }
    AppPaths::setSettingsFileOverride(dir.filePath(QStringLiteral("bench_maskfile.ini")));

    QUiLoader uiLoader;
    QFormBuilder formBuilder;

    // Fonts, styles and plug-ins are loaded once, before anything counts.
    measure(100, dir, uiLoader, formBuilder, true);

    // The fixed cost of a mask window: an empty mask file.
    {
        const QString empty = dir.filePath(QStringLiteral("empty.dbm"));
        writeFile(empty, QByteArray("[Datenbank]\r\nTitel=Leer\r\n"));
        Best best;
        for (int run = 0; run < 5; ++run) {
            auto form = std::make_unique<TMainForm>();
            form->resize(1280, 1024);
            form->show();
            flushEvents();
            QElapsedTimer t;
            t.start();
            TMaske *mask = form->LoadMask(empty);
            best.take(msSince(t));
            mask->setModified(false);
            form.reset();
            flushEvents();
        }
        std::printf("empty mask load (new mask window, no controls): %.2f ms\n\n", best.ms);
    }

    std::vector<Figures> all;
    for (int n : sizes) {
        all.push_back(measure(n, dir, uiLoader, formBuilder, false));
        const Figures &f = all.back();
        std::printf("%d controls: .dbm %.1f KB (saved %.1f KB), .ui %.1f KB (saved %.1f KB), load check %s\n",
                    f.controls, f.dbmBytes / 1024.0, f.savedDbmBytes / 1024.0, f.uiBytes / 1024.0,
                    f.savedUiBytes / 1024.0, f.verified ? "ok" : "FAILED");
        std::fflush(stdout);
    }

    std::printf("\nbest of 5 runs (3 above 2000 controls), milliseconds\n");
    std::printf("%8s | %10s %10s | %10s %10s | %6s %6s || %10s %10s | %10s %10s | %6s %6s || %8s %8s\n",
                "controls", "load", "+show", "Qt load", "+show", "ratio", "+show", "save", "bytes", "Qt save",
                "Qt buffer", "ratio", "bytes", "close", "Qt close");
    for (const Figures &f : all)
        std::printf("%8d | %10.2f %10.2f | %10.2f %10.2f | %6.2f %6.2f || %10.2f %10.2f | %10.2f %10.2f | %6.2f %6.2f "
                    "|| %8.2f %8.2f\n",
                    f.controls, f.load.ms, f.loadShow.ms, f.qtLoad.ms, f.qtLoadShow.ms, ratio(f.load.ms, f.qtLoad.ms),
                    ratio(f.loadShow.ms, f.qtLoadShow.ms), f.save.ms, f.bytesOnly.ms, f.qtSave.ms, f.qtSaveBuffer.ms,
                    ratio(f.save.ms, f.qtSave.ms), ratio(f.bytesOnly.ms, f.qtSaveBuffer.ms), f.close.ms, f.qtClose.ms);
    std::printf("ratio = Ferolith / Qt (below 1 means Ferolith is faster); bytes = MaskFileBytes against\n"
                "QFormBuilder::save into a QBuffer; save = MaskWriter::SaveMask against QFormBuilder::save\n"
                "into a file; +show = including the first round of events after loading.\n");

    std::printf("\nmicroseconds per control (constant = linear growth)\n");
    std::printf("%8s | %9s %9s %9s | %9s %9s %9s | %9s %9s\n", "controls", "load", "save", "bytes", "Qt load",
                "Qt save", "Qt buffer", "close", "Qt close");
    for (const Figures &f : all)
        std::printf("%8d | %9.1f %9.1f %9.1f | %9.1f %9.1f %9.1f | %9.1f %9.1f\n", f.controls,
                    usPerControl(f.load, f.controls), usPerControl(f.save, f.controls),
                    usPerControl(f.bytesOnly, f.controls), usPerControl(f.qtLoad, f.controls),
                    usPerControl(f.qtSave, f.controls), usPerControl(f.qtSaveBuffer, f.controls),
                    usPerControl(f.close, f.controls), usPerControl(f.qtClose, f.controls));
    for (size_t i = 1; i < all.size(); ++i) {
        const Figures &a = all[i - 1];
        const Figures &b = all[i];
        const auto growth = [&](const Best Figures::*m) {
            return ratio(usPerControl(b.*m, b.controls), usPerControl(a.*m, a.controls));
        };
        std::printf("growth of the time per control %d -> %d (1.0 linear, %.1f quadratic): load %.2f, save %.2f, "
                    "bytes %.2f, Qt load %.2f, Qt save %.2f, close %.2f, Qt close %.2f\n",
                    a.controls, b.controls, double(b.controls) / a.controls, growth(&Figures::load),
                    growth(&Figures::save), growth(&Figures::bytesOnly), growth(&Figures::qtLoad),
                    growth(&Figures::qtSave), growth(&Figures::close), growth(&Figures::qtClose));
    }
    return 0;
}
