// Placing a new control where the user clicks while a palette tool is armed.
#include <QMdiArea>

#include "Components.h"
#include "Containers.h"
#include "ControlClasses.h"
#include "Edits.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "Grids.h"
#include "MaskHost.h"
#include "Maske.h"
#include "MyBtn.h"

namespace {
// The control class of each palette code; 14 and 15 have none.
const char *const kPaletteClasses[21] = {
    nullptr,       "TLabel",       "TcxTextEdit",    "TcxComboBox",  "TcxMemo",   "TcxDBCheckBox", "TDBGrid",
    "TMaskBtn",    "TBevel",       "TImage",         "TDBLabel",     "TShape",    "TcxDBPopupEdit", "TImageAspect",
    nullptr,       nullptr,        "TAdvOfficePager", "TPanel",      "TDBRadioGroup", "TcxDBTreeList", "TStringGrid",
};

bool acceptsControls(QWidget *w)
{
    const TControl *c = TControl::from(w);
    return c && c->classInfo().acceptsControls;
}
} // namespace

void TMaske::FormDesigner2Message(TDesignMessage &msg)
{
    // Only a left click on this mask while the palette holds the designer.
    if (msg.message != DesignMessages::WM_LBUTTONDOWN || !m_formDesigner2->Locked() || !msg.hwnd)
        return;
    QWidget *w = msg.hwnd;
    while (w && w != this && !qobject_cast<QMdiArea *>(w))
        w = w->parentWidget();
    if (w != this)
        return;
    msg.message = 0;

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
    const int code = m_host ? m_host->ArmedTool() : 0;
    if (code == 9 && qobject_cast<TImage *>(Components::findComponent(m_document, QStringLiteral("View")))) {
        // One preview per mask: refused, and the designer stays locked.
        if (m_host)
            m_host->placementRefused(this);
        return;
    }
    if (container && code > 0)
        placeControl(code, container, msg.hwnd->mapTo(container, msg.pos));
    if (m_host)
        m_host->placementDone(this);
}

void TMaske::applyToolFont(QWidget *control)
{
    if (m_host)
        m_host->WriteFontStates(control);
}

QWidget *TMaske::placeControl(int code, QWidget *container, const QPoint &pos)
{
    if (code < 1 || code > 20 || !kPaletteClasses[code] || !container)
        return nullptr;
    const QString className = QString::fromLatin1(kPaletteClasses[code]);
    if (code == 9 && qobject_cast<TImage *>(Components::findComponent(m_document, QStringLiteral("View"))))
        return nullptr;

    QWidget *w = ControlClasses::create(className);
    TControl *c = TControl::from(w);
    Components::setOwner(w, m_document);
    if (code == 9)
        w->setObjectName(QStringLiteral("View"));
    else
        AutoName(w, m_document);
    w->setParent(container);
    c->setLeft(pos.x());
    c->setTop(pos.y());
    w->show();

    // The class name in the hint is a placeholder the real attribute replaces.
    const auto placeholderHint = [&] { c->setHint(className); };
    bool toolFont = true;
    TFont last;
    switch (code) {
    case 1:
        placeholderHint();
        c->setTransparent(true);
        break;
    case 2: {
        auto *edit = static_cast<TcxTextEdit *>(w);
        edit->setStyleController(m_document->cxStyleController());
        c->setTabStop(false);
        edit->setReadOnly(false);
        break;
    }
    case 3: {
        auto *combo = static_cast<TcxComboBox *>(w);
        combo->setStyleController(m_document->cxStyleController());
        c->setParentFont(false);
        combo->setReadOnly(false);
        // The mask's own font, not the combo box's, takes the last tool bar
        // font; kept so on purpose.
        if (m_host && m_host->lastFont(last)) {
            QFont f = font();
            f.setFamily(last.Name);
            f.setPointSize(last.Size);
            applyFontStyles(f, last.Style);
            setFont(f);
        }
        placeholderHint();
        c->setTabStop(false);
        combo->setText(className);
        break;
    }
    case 4:
        static_cast<TcxMemo *>(w)->setStyleController(m_document->cxStyleController());
        placeholderHint();
        c->setTabStop(false);
        break;
    case 5:
        static_cast<TcxDBCheckBox *>(w)->setStyleController(m_document->cxStyleController());
        placeholderHint();
        c->setShowHint(true);
        break;
    case 6: {
        auto *grid = static_cast<TDBGrid *>(w);
        placeholderHint();
        grid->addColumn(QStringLiteral("Spaltentitel"), 120);
        grid->setTitleFont(c->Font());
        break;
    }
    case 7: {
        auto *button = static_cast<TMaskBtn *>(w);
        button->setCaption(QStringLiteral("MaskBtn"));
        button->setRegelFarbe(QStringLiteral("clRed"));
        placeholderHint(); // the program to run
        break;
    }
    case 8:
        placeholderHint();
        toolFont = false;
        break;
    case 9: {
        c->setBounds(pos.x(), pos.y(), 250, 250);
        toolFont = false;
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
    }
    case 10:
        c->setHint(QStringLiteral("1")); // the field length
        c->setTransparent(true);
        break;
    case 11:
        toolFont = false;
        break;
    case 12: {
        auto *lookup = static_cast<TcxDBPopupEdit *>(w);
        lookup->setStyleController(m_document->cxStyleController());
        lookup->setReadOnly(false);
        c->setTabStop(false);
        placeholderHint();
        lookup->setText(className);
        break;
    }
    case 13:
        placeholderHint();
        toolFont = false;
        break;
    case 16: {
        auto *pager = static_cast<TAdvOfficePager *>(w);
        placeholderHint();
        pager->addPage(m_document->NewOPage(QStringLiteral("Seite1")));
        pager->addPage(m_document->NewOPage(QStringLiteral("Seite2")));
        wirePager(pager);
        toolFont = false;
        break;
    }
    case 17:
    case 18:
        // Panels and radio groups take the last tool bar font directly.
        if (m_host && m_host->lastFont(last))
            c->setFont(last);
        toolFont = false;
        break;
    case 19:
    case 20:
        placeholderHint();
        break;
    default:
        break;
    }
    if (toolFont)
        applyToolFont(w);
    m_formDesigner2->ClearControls();
    m_formDesigner2->AddControl(w);
    m_modified = true;
    FormDesigner2PlaceComponent(); // the undo snapshot of the new state
    return w;
}
