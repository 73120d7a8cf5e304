#include "Maske.h"

#include "Colors.h"
#include "Components.h"
#include "Containers.h"
#include "EditStyle.h"
#include "Edits.h"
#include "FormDesigner.h"

#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

TMaske::TMaske(QWidget *parent)
    : QMdiSubWindow(parent)
{
    // Until a resolution is chosen or loaded, the mask is designed for the
    // screen it is made on.
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        m_pixel = screen->depth();
        m_screenHeight = screen->size().height();
        m_screenWidth = screen->size().width();
    }

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

    // The engine as masks use it: grid, red locked handles, blue alignment
    // lines on all four edges, no boxes for non-visual components.
    m_formDesigner2 = new TFormDesigner(this);
    m_formDesigner2->setObjectName(QStringLiteral("FormDesigner2"));
    m_formDesigner2->setDesignControl(m_surface);
    m_formDesigner2->setDisplayGrid(true);
    m_formDesigner2->setLockedGrabBorder(Colors::clRed);
    m_formDesigner2->setLockedGrabFill(Colors::clRed);
    m_formDesigner2->setShowNonVisual(false);
    m_formDesigner2->setShowComponentCaptions(true);
    m_formDesigner2->setEnableAxisDrag(true);
    m_formDesigner2->setAlignmentLines(lpLeft | lpTop | lpRight | lpBottom);
    m_formDesigner2->setAlignmentColorLeft(Colors::clBlue);
    m_formDesigner2->setAlignmentColorTop(Colors::clBlue);
    m_formDesigner2->setAlignmentColorRight(Colors::clBlue);
    m_formDesigner2->setAlignmentColorBottom(Colors::clBlue);
    Components::setOwner(m_formDesigner2, this);

    m_cxStyleController = new TcxEditStyleController(this);
    m_cxStyleController->setObjectName(QStringLiteral("cxStyleController"));
    Components::setOwner(m_cxStyleController, this);
    wireDesigner();
}

void TMaske::adoptEditStyle()
{
    for (QObject *component : Components::components(this)) {
        if (auto *styled = dynamic_cast<TEditStyled *>(component); styled && !styled->StyleController())
            styled->setStyleController(m_cxStyleController);
    }
}

TAdvOfficePage *TMaske::NewOPage(const QString &caption)
{
    auto *page = new TAdvOfficePage;
    Components::setOwner(page, this);
    AutoName(page, this);
    page->setCaption(caption);
    return page;
}

TMaske::~TMaske()
{
    // The engine lets go of the surface before the surface goes.
    m_formDesigner2->setActive(false);
}

void TMaske::setScrollRanges(int horizontal, int vertical)
{
    m_surface->setMinimumSize(qBound(0, horizontal, QWIDGETSIZE_MAX), qBound(0, vertical, QWIDGETSIZE_MAX));
}

QSize TMaske::scrollRanges() const
{
    return m_surface->minimumSize();
}

void TMaske::scrollToOrigin()
{
    m_scrollBox->horizontalScrollBar()->setValue(0);
    m_scrollBox->verticalScrollBar()->setValue(0);
}

void TMaske::setPath(const QString &path)
{
    if (m_path == path)
        return;
    m_path = path;
    Q_EMIT pathChanged(m_path);
}
