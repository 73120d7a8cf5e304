#include "Maske.h"

#include "Colors.h"

#include <QPalette>
#include <QScrollArea>

TMaske::TMaske(QWidget *parent)
    : QMdiSubWindow(parent)
{
    // A closed mask is gone: the main window never keeps hidden masks around.
    setAttribute(Qt::WA_DeleteOnClose);

    m_scrollBox = new QScrollArea(this);
    m_scrollBox->setObjectName(QStringLiteral("ScrollBox1"));
    m_scrollBox->setFrameShape(QFrame::NoFrame);
    // The surface grows with the window but never below the design size, so
    // a small window scrolls instead of squeezing the controls.
    m_scrollBox->setWidgetResizable(true);

    m_surface = new QWidget;
    m_surface->setObjectName(QStringLiteral("Maske"));
    m_surface->setAutoFillBackground(true);
    QPalette pal = m_surface->palette();
    pal.setColor(QPalette::Window, Colors::clBtnFace.toQColor(pal));
    m_surface->setPalette(pal);
    m_surface->setMinimumSize(m_designWidth, m_designHeight);
    m_scrollBox->setWidget(m_surface);

    setWidget(m_scrollBox);
    resize(640, 460);
}

TMaske::~TMaske() = default;

void TMaske::setPath(const QString &path)
{
    if (m_path == path)
        return;
    m_path = path;
    Q_EMIT pathChanged(m_path);
}
