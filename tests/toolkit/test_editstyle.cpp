// The shared edit style on the edit controls: the border each style draws,
// the edges, shadow, gradient and hot tracking, and that a control without a
// style controller keeps its own look.
#include <QtTest>

#include "EditStyle.h"
#include "Edits.h"

namespace {

// A window of plain grey holding the controls, so shadow pixels are known.
struct Window
{
    QWidget window;
    Window()
    {
        QPalette pal = window.palette();
        pal.setColor(QPalette::Window, QColor(200, 200, 200));
        window.setPalette(pal);
        window.setAutoFillBackground(true);
        window.resize(400, 300);
        // No edit holds the focus, so none draws a cursor or focus frame.
        window.setFocusPolicy(Qt::StrongFocus);
    }
    bool show()
    {
        window.show();
        window.setFocus();
        return QTest::qWaitForWindowExposed(&window);
    }
    template <class T>
    T *add(const QPoint &pos)
    {
        auto *control = new T(&window);
        control->move(pos);
        return control;
    }
};

QImage shot(QWidget *w)
{
    return w->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Pixels compare as plain RGB values.
QRgb at(const QImage &image, int x, int y)
{
    return image.pixel(x, y);
}

QRgb rgb(const QColor &color)
{
    return color.rgb();
}

// Counts paints of a widget and of its children.
struct PaintCounter : QObject
{
    int paints = 0;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

} // namespace

class TestEditStyle : public QObject
{
    Q_OBJECT

private slots:
    void everyEditKindTakesTheController();
    void borderStylesDrawTheirLines();
    void edgesLeaveOutUnsetSides();
    void shadowAndGradient();
    void hotTrackHighlightsOnlyAtRunTime();
    void aChangeRepaintsAndALostControllerRestores();
};

void TestEditStyle::everyEditKindTakesTheController()
{
    Window w;
    TcxEditStyleController style;
    style.setBorderStyle(ebsSingle);
    style.setBorderColor(Colors::clRed);
    auto *text = w.add<TcxTextEdit>({10, 10});
    auto *combo = w.add<TcxComboBox>({10, 40});
    auto *popup = w.add<TcxDBPopupEdit>({10, 70});
    auto *memo = w.add<TcxMemo>({10, 100});
    auto *check = w.add<TcxDBCheckBox>({200, 10});
    QVERIFY(w.show());

    const QList<QWidget *> bordered = {text, combo, popup, memo};
    for (QWidget *control : bordered) {
        const QImage own = shot(control);
        QVERIFY(at(own, 0, control->height() / 2) != rgb(Qt::red));
        if (auto *e = qobject_cast<TcxTextEdit *>(control))
            e->setStyleController(&style);
        else if (auto *c = qobject_cast<TcxComboBox *>(control))
            c->setStyleController(&style);
        else
            static_cast<TcxMemo *>(control)->setStyleController(&style);
        const QImage styled = shot(control);
        const int w = control->width();
        const int h = control->height();
        // All four sides in the border colour, on top of the inner widgets.
        QCOMPARE(at(styled, 0, h / 2), rgb(Qt::red));
        QCOMPARE(at(styled, w - 1, h / 2), rgb(Qt::red));
        QCOMPARE(at(styled, w / 2, 0), rgb(Qt::red));
        QCOMPARE(at(styled, w / 2, h - 1), rgb(Qt::red));
    }
    QCOMPARE(popup->StyleController(), &style);

    // A check box has no border; only shadow and hot tracking.
    check->setStyleController(&style);
    const QImage box = shot(check);
    for (int x = 0; x < check->width(); ++x)
        QVERIFY(at(box, x, 0) != rgb(Qt::red));
    style.setShadow(true);
    const QImage shadowed = shot(check);
    QCOMPARE(at(shadowed, check->width() - 1, check->height() / 2), rgb(QColor(200, 200, 200).darker(170)));
}

void TestEditStyle::borderStylesDrawTheirLines()
{
    Window w;
    TcxEditStyleController style;
    auto *edit = w.add<TcxTextEdit>({10, 10});
    edit->setStyleController(&style);
    QVERIFY(w.show());
    const QPalette pal = edit->palette();
    const int y = edit->height() / 2;
    const int r = edit->width() - 1;
    const QRgb base = rgb(pal.color(QPalette::Base));

    // The default: a sunken 3D border, two pixels wide.
    QCOMPARE(style.BorderStyle(), ebs3D);
    QImage img = shot(edit);
    QCOMPARE(at(img, 0, y), rgb(pal.color(QPalette::Dark)));
    QCOMPARE(at(img, 1, y), rgb(pal.color(QPalette::Shadow)));
    QCOMPARE(at(img, r, y), rgb(pal.color(QPalette::Light)));
    QCOMPARE(at(img, r - 1, y), rgb(pal.color(QPalette::Midlight)));

    style.setBorderStyle(ebsNone);
    img = shot(edit);
    QCOMPARE(at(img, 0, y), base);
    QCOMPARE(at(img, 1, y), base);
    QCOMPARE(at(img, r, y), base);

    style.setBorderColor(Colors::clBlue);
    style.setBorderStyle(ebsSingle);
    img = shot(edit);
    QCOMPARE(at(img, 0, y), rgb(Qt::blue));
    QCOMPARE(at(img, 1, y), base);

    style.setBorderStyle(ebsThick);
    img = shot(edit);
    QCOMPARE(at(img, 0, y), rgb(Qt::blue));
    QCOMPARE(at(img, 1, y), rgb(Qt::blue));
    QCOMPARE(at(img, r - 1, y), rgb(Qt::blue));

    // Flat ignores the border colour.
    style.setBorderStyle(ebsFlat);
    img = shot(edit);
    QCOMPARE(at(img, 0, y), rgb(pal.color(QPalette::Dark)));

    style.setBorderStyle(ebsUltraFlat);
    QCOMPARE(at(shot(edit), 0, y), rgb(Qt::blue));
    style.setBorderColor(Colors::clDefault);
    const QRgb blueGrey = at(shot(edit), 0, y);
    QVERIFY(qBlue(blueGrey) > qRed(blueGrey));
    style.setBorderStyle(ebsOffice11);
    QCOMPARE(at(shot(edit), 0, y), blueGrey);
    style.setBorderStyle(ebsSingle);
    QCOMPARE(at(shot(edit), 0, y), rgb(pal.color(QPalette::Dark)));
}

void TestEditStyle::edgesLeaveOutUnsetSides()
{
    Window w;
    TcxEditStyleController style;
    style.setBorderStyle(ebsSingle);
    style.setBorderColor(Colors::clRed);
    auto *memo = w.add<TcxMemo>({10, 10});
    memo->setStyleController(&style);
    QVERIFY(w.show());
    const int cx = memo->width() / 2;
    const int cy = memo->height() / 2;
    const int r = memo->width() - 1;
    const int b = memo->height() - 1;

    style.setEdges(bLeft | bRight | bBottom);
    QImage img = shot(memo);
    QVERIFY(at(img, cx, 0) != rgb(Qt::red));
    QCOMPARE(at(img, 0, cy), rgb(Qt::red));
    QCOMPARE(at(img, r, cy), rgb(Qt::red));
    QCOMPARE(at(img, cx, b), rgb(Qt::red));

    style.setEdges(bTop);
    img = shot(memo);
    QCOMPARE(at(img, cx, 0), rgb(Qt::red));
    QVERIFY(at(img, 0, cy) != rgb(Qt::red));
    QVERIFY(at(img, r, cy) != rgb(Qt::red));
    QVERIFY(at(img, cx, b) != rgb(Qt::red));
}

void TestEditStyle::shadowAndGradient()
{
    Window w;
    TcxEditStyleController style;
    style.setBorderStyle(ebsSingle);
    style.setBorderColor(Colors::clRed);
    auto *edit = w.add<TcxTextEdit>({10, 10});
    edit->resize(120, 40);
    edit->setStyleController(&style);
    QVERIFY(w.show());
    const int wd = edit->width();
    const int h = edit->height();
    const QColor back(200, 200, 200);

    style.setShadow(true);
    QImage img = shot(edit);
    // The frame moves in by the shadow; the shadow lies right and below.
    QCOMPARE(at(img, wd - 3, h / 2), rgb(Qt::red));
    QCOMPARE(at(img, wd / 2, h - 3), rgb(Qt::red));
    QCOMPARE(at(img, wd - 1, h / 2), rgb(back.darker(170)));
    QCOMPARE(at(img, wd / 2, h - 1), rgb(back.darker(170)));
    QCOMPARE(at(img, wd - 1, 0), rgb(back)); // the shadow is offset
    style.setShadow(false);

    const QRgb base = rgb(edit->palette().color(QPalette::Base));
    img = shot(edit);
    QCOMPARE(at(img, 3, 3), at(img, 3, h - 4));
    style.setGradient(true);
    img = shot(edit);
    QVERIFY(qGray(at(img, 3, h - 4)) < qGray(at(img, 3, 3)) - 10);
    QVERIFY(qGray(at(img, 3, 3)) >= qGray(base) - 8);

    // A new colour keeps the gradient, shaded from that colour.
    edit->setColor(Colors::clYellow);
    img = shot(edit);
    const QRgb top = at(img, 3, 3);
    const QRgb bottom = at(img, 3, h - 4);
    QVERIFY(qRed(top) > 200 && qGreen(top) > 200 && qBlue(top) < 60);
    QVERIFY(qGray(bottom) < qGray(top) - 10);

    style.setGradient(false);
    img = shot(edit);
    QCOMPARE(at(img, 3, 3), rgb(Qt::yellow));
    QCOMPARE(at(img, 3, h - 4), rgb(Qt::yellow));
}

void TestEditStyle::hotTrackHighlightsOnlyAtRunTime()
{
    Window w;
    TcxEditStyleController style;
    style.setBorderStyle(ebsSingle);
    style.setBorderColor(Colors::clRed);
    auto *combo = w.add<TcxComboBox>({10, 10});
    auto *check = w.add<TcxDBCheckBox>({10, 50});
    combo->setStyleController(&style);
    check->setStyleController(&style);
    QVERIFY(w.show());
    const QRgb highlight = rgb(combo->palette().color(QPalette::Highlight));
    const int y = combo->height() / 2;

    auto enter = [](QWidget *target) {
        QEnterEvent e(QPointF(5, 5), QPointF(5, 5), target->mapToGlobal(QPointF(5, 5)));
        QCoreApplication::sendEvent(target, &e);
    };
    auto leave = [](QWidget *target) {
        QEvent e(QEvent::Leave);
        QCoreApplication::sendEvent(target, &e);
    };

    enter(combo);
    QCOMPARE(at(shot(combo), 0, y), rgb(Qt::red)); // HotTrack is off
    leave(combo);

    style.setHotTrack(true);
    enter(combo);
    QCOMPARE(at(shot(combo), 0, y), highlight);
    leave(combo);
    QCOMPARE(at(shot(combo), 0, y), rgb(Qt::red));

    enter(check);
    QCOMPARE(at(shot(check), 0, check->height() / 2), highlight);
    leave(check);
    QVERIFY(at(shot(check), 0, check->height() / 2) != highlight);

    // While designing the mouse only picks controls.
    combo->setDesigning(true);
    enter(combo);
    QCOMPARE(at(shot(combo), 0, y), rgb(Qt::red));
}

void TestEditStyle::aChangeRepaintsAndALostControllerRestores()
{
    Window w;
    auto *plain = w.add<TcxTextEdit>({10, 10});
    auto *edit = w.add<TcxTextEdit>({10, 50});
    QVERIFY(w.show());
    // Without a controller an edit keeps its own look.
    const QImage own = shot(edit);
    QCOMPARE(own, shot(plain));

    auto *style = new TcxEditStyleController;
    edit->setStyleController(style);
    QCOMPARE(edit->StyleController(), style);
    QCoreApplication::processEvents();
    PaintCounter counter;
    edit->installEventFilter(&counter);
    style->setBorderStyle(ebsNone);
    QCoreApplication::processEvents();
    QVERIFY(counter.paints > 0);
    counter.paints = 0;
    QCoreApplication::processEvents();
    QCOMPARE(counter.paints, 0);
    style->setGradient(true);
    QCoreApplication::processEvents();
    QVERIFY(counter.paints > 0);
    QVERIFY(shot(edit) != own);

    // Taken away or deleted, the controller leaves the edit as it was.
    edit->setStyleController(nullptr);
    QCOMPARE(shot(edit), own);
    QCOMPARE(plain->findChildren<QWidget *>().size(), edit->findChildren<QWidget *>().size());
    edit->setStyleController(style);
    delete style;
    QCOMPARE(edit->StyleController(), nullptr);
    QCOMPARE(shot(edit), own);
}

QTEST_MAIN(TestEditStyle)
#include "test_editstyle.moc"
