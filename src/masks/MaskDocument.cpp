#include "MaskDocument.h"

#include "Colors.h"
#include "Components.h"
#include "Containers.h"
#include "EditStyle.h"
#include "Edits.h"

#include <QGuiApplication>
#include <QPalette>
#include <QScreen>

TMaskDocument::TMaskDocument(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("Maske"));
    setProperty(TAdvOfficePager::kStyleProperty, m_officePagerStyle);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Colors::clBtnFace.toQColor(pal));
    setPalette(pal);

    // Until a resolution is chosen or loaded, the mask is designed for the
    // screen it is made on.
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        m_pixel = screen->depth();
        m_screenHeight = screen->size().height();
        m_screenWidth = screen->size().width();
    }

    m_cxStyleController = new TcxEditStyleController(this);
    m_cxStyleController->setObjectName(QStringLiteral("cxStyleController"));
    Components::setOwner(m_cxStyleController, this);
}

void TMaskDocument::adoptEditStyle()
{
    for (QObject *component : Components::components(this)) {
        if (auto *styled = dynamic_cast<TEditStyled *>(component); styled && !styled->StyleController())
            styled->setStyleController(m_cxStyleController);
    }
}

TAdvOfficePage *TMaskDocument::NewOPage(const QString &caption)
{
    auto *page = new TAdvOfficePage;
    Components::setOwner(page, this);
    AutoName(page, this);
    page->setCaption(caption);
    return page;
}

void TMaskDocument::setOfficePagerStyle(int style)
{
    m_officePagerStyle = style;
    setProperty(TAdvOfficePager::kStyleProperty, style);
    for (TAdvOfficePager *pager : findChildren<TAdvOfficePager *>())
        pager->setOfficeStyle(style);
}
