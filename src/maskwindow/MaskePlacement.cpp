// Placing a new control where the user clicks while a palette tool is armed.
#include <QMdiArea>

#include "Components.h"
#include "Containers.h"
#include "ControlKinds.h"
#include "ControlClasses.h"
#include "Edits.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "Grids.h"
#include "MaskHost.h"
#include "Maske.h"
#include "MyBtn.h"

namespace {
bool acceptsControls(QWidget *w)
{
    const TControl *c = TControl::from(w);
    return c && c->classInfo().acceptsControls;
}
} // namespace

void TMaske::FormDesigner2Message(TDesignMessage &msg)
{
    // Only a left click on this mask while the palette holds the designer,
    // or holds a tool armed on another mask: the tool places on whichever
    // mask the user clicks.
    const bool armed = m_host && m_host->ArmedTool() != 0;
    if (msg.message != DesignMessages::WM_LBUTTONDOWN || !(m_formDesigner2->Locked() || armed) || !msg.hwnd)
        return;
    QWidget *w = msg.hwnd;
    while (w && w != this && !qobject_cast<QMdiArea *>(w))
        w = w->parentWidget();
    if (w != this)
        return;
    msg.message = 0;
    // The clicked mask is the one the tool bars and the inspector serve.
    if (QMdiArea *area = mdiArea(); area && area->activeSubWindow() != this)
        area->setActiveSubWindow(this);

    QWidget *container = nullptr;
    if (msg.hwnd == m_document) {
        container = m_document;
    } else {
        for (QWidget *c = m_formDesigner2->FindWinControl(msg.hwnd); c; c = c->parentWidget()) {
            if (c == m_document || acceptsControls(c)) {
                container = c;
                break;
            }
        }
    }
    const auto code = TPaletteCode(m_host ? m_host->ArmedTool() : 0);
    if (code == TPaletteCode::Preview && qobject_cast<TImage *>(Components::findComponent(m_document, QStringLiteral("View")))) {
        // One preview per mask: refused, and the designer stays locked.
        if (m_host)
            m_host->placementRefused(this);
        return;
    }
    if (container && code != TPaletteCode::None)
        placeControl(code, container, msg.hwnd->mapTo(container, msg.pos));
    if (m_host)
        m_host->placementDone(this);
}

void TMaske::applyToolFont(QWidget *control)
{
    if (m_host)
        m_host->WriteFontStates(control);
}

QWidget *TMaske::placeControl(TPaletteCode code, QWidget *container, const QPoint &pos)
{
    const TControlKind *kind = ControlKinds::byCode(code);
    if (!kind || !container)
        return nullptr;
    const QString className = QString::fromLatin1(kind->className);
    const bool preview = code == TPaletteCode::Preview;
    // One preview per mask, under its fixed name.
    if (preview && qobject_cast<TImage *>(Components::findComponent(m_document, QStringLiteral("View"))))
        return nullptr;

    QWidget *w = ControlClasses::create(className);
    TControl *c = TControl::from(w);
    Components::setOwner(w, m_document);
    if (preview)
        w->setObjectName(QStringLiteral("View"));
    else
        AutoName(w, m_document);
    w->setParent(container);
    c->setLeft(pos.x());
    c->setTop(pos.y());
    w->show();

    const unsigned place = kind->place;
    const auto publish = [&](const char *property, const QVariant &value) {
        if (const TPropInfo *info = c->classInfo().property(QLatin1String(property)))
            info->write(w, value);
    };
    // The class name in the hint is a placeholder the real attribute replaces.
    if (place & pfClassHint)
        c->setHint(className);
    if (place & pfTransparent)
        c->setTransparent(true);
    if (auto *styled = dynamic_cast<TEditStyled *>(w); styled && (place & pfEditStyle))
        styled->setStyleController(m_document->cxStyleController());
    if (place & pfEditable)
        publish("ReadOnly", false);
    if (place & pfNoTabStop)
        c->setTabStop(false);
    if (place & pfClassText)
        publish("Text", className);
    if (place & pfShowHint)
        c->setShowHint(true);
    TFont last;
    // Panels and radio groups take the last tool bar font directly.
    if ((place & pfLastFont) && m_host && m_host->lastFont(last))
        c->setFont(last);

    switch (code) {
    case TPaletteCode::Lookup:
        static_cast<TcxDBPopupEdit *>(w)->setAutoSelect(false);
        break;
    case TPaletteCode::Combo:
        static_cast<TcxComboBox *>(w)->setAutoSelect(false);
        c->setParentFont(false);
        // The mask's own font, not the combo box's, takes the last tool bar
        // font; kept so on purpose.
        if (m_host && m_host->lastFont(last)) {
            QFont f = font();
            f.setFamily(last.Name);
            f.setPointSize(last.Size);
            applyFontStyles(f, last.Style);
            setFont(f);
        }
        break;
    case TPaletteCode::Grid: {
        auto *grid = static_cast<TDBGrid *>(w);
        grid->addColumn(QStringLiteral("Spaltentitel"), 120);
        grid->setTitleFont(c->Font());
        break;
    }
    case TPaletteCode::Button: {
        auto *button = static_cast<TMaskBtn *>(w);
        button->setCaption(QStringLiteral("MaskBtn"));
        button->setRegelFarbe(QStringLiteral("clRed"));
        break;
    }
    case TPaletteCode::Preview:
        c->setBounds(pos.x(), pos.y(), 250, 250);
        if (!Components::findComponent(m_document, QStringLiteral("Tab"))) {
            auto *tabs = new TTabSet(container);
            Components::setOwner(tabs, m_document);
            tabs->setObjectName(QStringLiteral("Tab"));
            tabs->setTabs({QStringLiteral(".DWG"), QStringLiteral(".DXF"), QStringLiteral(".JPG"),
                           QStringLiteral(".TGA")});
            tabs->setBounds(pos.x(), pos.y() + 250, 250, 22);
            tabs->show();
            applyToolFont(tabs);
        }
        break;
    case TPaletteCode::DBLabel:
        c->setHint(QStringLiteral("1")); // the field length
        break;
    case TPaletteCode::PageControl: {
        auto *pager = static_cast<TAdvOfficePager *>(w);
        pager->addPage(m_document->NewOPage(QStringLiteral("Seite1")));
        pager->addPage(m_document->NewOPage(QStringLiteral("Seite2")));
        wirePager(pager);
        break;
    }
    default:
        break;
    }
    if (place & pfToolFont)
        applyToolFont(w);
    m_formDesigner2->ClearControls();
    m_formDesigner2->AddControl(w);
    m_modified = true;
    FormDesigner2PlaceComponent(); // the undo snapshot of the new state
    return w;
}
