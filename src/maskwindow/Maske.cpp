#include "Maske.h"

#include "Colors.h"
#include "Components.h"
#include "Containers.h"
#include "EditStyle.h"
#include "Edits.h"
#include "MaskDocument.h"
#include "FormDesigner.h"

#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

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

    m_document = new TMaskDocument;
    m_document->setMinimumSize(m_designWidth, m_designHeight);
    m_scrollBox->setWidget(m_document);

    setWidget(m_scrollBox);
    resize(640, 460);

    // The engine as masks use it: grid, red locked handles, blue alignment
    // lines on all four edges, no boxes for non-visual components. It edits
    // the document, which owns the controls it places and pastes.
    m_formDesigner2 = new TFormDesigner(m_document);
    m_formDesigner2->setObjectName(QStringLiteral("FormDesigner2"));
    m_formDesigner2->setDesignControl(m_document);
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
    Components::setOwner(m_formDesigner2, m_document);
    wireDesigner();
}

void TMaske::documentLoaded()
{
    setWindowTitle(m_document->Titel());
    for (QObject *component : Components::components(m_document))
        if (auto *pager = qobject_cast<TAdvOfficePager *>(component))
            wirePager(pager);
}

TMaske::~TMaske()
{
    // The engine lets go of the surface before the surface goes.
    m_formDesigner2->setActive(false);
}

void TMaske::setScrollRanges(int horizontal, int vertical)
{
    m_document->setMinimumSize(qBound(0, horizontal, QWIDGETSIZE_MAX), qBound(0, vertical, QWIDGETSIZE_MAX));
}

QSize TMaske::scrollRanges() const
{
    return m_document->minimumSize();
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
