#pragma once

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>

// The hourglass while a long command runs, restored on every way out. Without
// a GUI application (the batch tool's commands may run without one) it does
// nothing.
class TWaitCursor
{
public:
    TWaitCursor()
    {
        if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
            QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
            m_set = true;
        }
    }
    ~TWaitCursor()
    {
        if (m_set)
            QGuiApplication::restoreOverrideCursor();
    }
    TWaitCursor(const TWaitCursor &) = delete;
    TWaitCursor &operator=(const TWaitCursor &) = delete;

private:
    bool m_set = false;
};
