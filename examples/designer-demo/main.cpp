// designer-demo [--screenshot FILE.png]: the form designer engine on a plain form.
#include <QApplication>
#include <QTimer>

#include "DemoWindow.h"
#include "FormDesigner.h"

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    DemoWindow window;
    window.resize(1000, 760);
    const QStringList args = QApplication::arguments();
    const int shot = int(args.indexOf(QStringLiteral("--screenshot")));
    window.show();
    if (shot > 0 && shot + 1 < args.size()) {
        // Show the engine at work: one control selected with its handles.
        if (QWidget *edit = window.findChild<QWidget *>(QStringLiteral("cxTextEdit2")))
            window.designer()->AddControl(edit);
        QApplication::processEvents();
        const QString file = args.at(shot + 1);
        return window.grab().save(file) ? 0 : 1;
    }
    return app.exec();
}
