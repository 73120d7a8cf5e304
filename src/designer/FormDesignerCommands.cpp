// Commands on the selection: lining controls up, giving them one size, the
// tab order, the alignment palette and the editor of the name lists.
#include <QPointer>
#include <algorithm>
#include <cmath>

#include "FrmAlign.h"
#include "AlignmentPalette.h"
#include "ComponentContainer.h"
#include "Containers.h"
#include "Control.h"
#include "DesignerWidgets.h"
#include "FormDesigner.h"
#include "ListEditorDialogs.h"
#include "FrmSize.h"
#include "TabOrderDialog.h"
#include "UserDialogs.h"

namespace {

// One direction of the form: Left/Width/ClientWidth or Top/Height/ClientHeight.
struct Axis
{
    bool horizontal;

    int pos(const QWidget *w) const { return horizontal ? w->x() : w->y(); }
    int size(const QWidget *w) const { return horizontal ? w->width() : w->height(); }
    int client(const QWidget *parent) const
    {
        return parent ? (horizontal ? parent->width() : parent->height()) : 0;
    }
    void setPos(QWidget *w, int value) const
    {
        if (TControl *c = TControl::from(w))
            horizontal ? c->setLeft(value) : c->setTop(value);
        else
            w->move(horizontal ? QPoint(value, w->y()) : QPoint(w->x(), value));
    }
};

void setSize(QWidget *w, int width, int height)
{
    if (TControl *c = TControl::from(w))
        c->setBounds(w->x(), w->y(), width, height);
    else
        w->resize(width, height);
}

// list: the selection, last selected first; its last entry is the reference.
void alignAxis(const QList<QWidget *> &list, TAlignMode mode, const Axis &axis, bool limitToParent)
{
    const int count = int(list.size());
    if (count == 0 || mode == amNoChange)
        return;
    QWidget *reference = list.last();
    switch (mode) {
    case amNoChange:
        break;
    case amLeftTop:
        if (count < 2)
            return;
        for (QWidget *w : list)
            axis.setPos(w, axis.pos(reference));
        break;
    case amCenters: {
        if (count < 2)
            return;
        int center = axis.pos(reference) + axis.size(reference) / 2;
        if (limitToParent) {
            // No control may leave its parent on the far side.
            for (QWidget *w : list) {
                const int client = axis.client(w->parentWidget());
                if (axis.size(w) / 2 + center > client)
                    center = client - axis.size(w) / 2;
            }
        }
        for (QWidget *w : list)
            axis.setPos(w, center - axis.size(w) / 2);
        break;
    }
    case amRightBottom: {
        if (count < 2)
            return;
        const int far = axis.pos(reference) + axis.size(reference);
        for (QWidget *w : list)
            axis.setPos(w, far - axis.size(w));
        break;
    }
    case amSpace: {
        if (count < 2)
            return;
        // In the order of selection, not of position: the reference may move
        // by what the division leaves over.
        const int first = axis.pos(list.first());
        const int step = (axis.pos(list.last()) - first) / (count - 1);
        for (int i = 0; i < count; ++i)
            axis.setPos(list.at(i), first + i * step);
        break;
    }
    case amWindowCenter: {
        int minPos = axis.pos(list.first());
        int maxEnd = minPos + axis.size(list.first());
        for (QWidget *w : list) {
            minPos = std::min(minPos, axis.pos(w));
            maxEnd = std::max(maxEnd, axis.pos(w) + axis.size(w));
        }
        // The selection moves as one block.
        const int client = axis.client(reference->parentWidget());
        const int shift = (client - maxEnd + minPos) / 2 - minPos;
        for (QWidget *w : list)
            axis.setPos(w, axis.pos(w) + shift);
        break;
    }
    }
}

QList<QRect> geometries(const QList<QWidget *> &controls)
{
    QList<QRect> out;
    for (QWidget *c : controls)
        out << c->geometry();
    return out;
}

int roundToGrid(int value, int step)
{
    // Half way goes to the even multiple, as when dragging.
    return int(std::nearbyint(double(value) / step)) * step;
}

QString classNameOf(const QWidget *w)
{
    if (const TControl *c = TControl::from(w))
        return c->classInfo().className;
    return QString::fromLatin1(w->metaObject()->className());
}

} // namespace

void TCustomFormDesigner::prepareSelection(bool dropLocked)
{
    if (!m_active)
        return;
    QWidget *current = currentControl();
    if (!current)
        return;
    QWidget *parent = current->parentWidget();
    for (QWidget *c : selection()) {
        if (c->parentWidget() != parent || (dropLocked && IsLocked(c))) {
            DeleteControl(c);
            c->update();
        }
    }
}

void TCustomFormDesigner::reportMoveSize(const QList<QWidget *> &controls, const QList<QRect> &before)
{
    bool changed = false;
    for (int i = 0; i < controls.size(); ++i) {
        if (controls.at(i)->geometry() == before.value(i))
            continue;
        changed = true;
        DoMoveSizeControl(controls.at(i));
    }
    if (changed)
        DoChange();
    UpdateGrabs();
    if (m_overlay)
        m_overlay->refresh();
}

void TCustomFormDesigner::AlignToGrid()
{
    if (!m_active)
        return;
    QList<QWidget *> controls;
    for (QWidget *c : selection())
        if (!IsLocked(c))
            controls << c;
    const QList<QRect> before = geometries(controls);
    for (QWidget *c : controls) {
        const Axis horizontal{true}, vertical{false};
        horizontal.setPos(c, roundToGrid(c->x(), m_gridStep));
        vertical.setPos(c, roundToGrid(c->y(), m_gridStep));
    }
    reportMoveSize(controls, before);
}

void TCustomFormDesigner::AlignControls(TAlignMode horizontal, TAlignMode vertical)
{
    if (!m_active)
        return;
    prepareSelection(true);
    QList<QWidget *> list = selection();
    if (list.isEmpty())
        return;
    std::reverse(list.begin(), list.end());
    const QList<QRect> before = geometries(list);
    const bool limit = m_moveLimitMode == lmControls;
    alignAxis(list, horizontal, Axis{true}, limit);
    alignAxis(list, vertical, Axis{false}, limit);
    reportMoveSize(list, before);
}

void TCustomFormDesigner::SizeControls(TSizeMode widthMode, int widthValue, TSizeMode heightMode, int heightValue)
{
    if (!m_active)
        return;
    prepareSelection(true);
    const QList<QWidget *> list = selection();
    if (list.isEmpty())
        return;
    int minWidth = list.first()->width(), maxWidth = minWidth;
    int minHeight = list.first()->height(), maxHeight = minHeight;
    for (QWidget *c : list) {
        minWidth = std::min(minWidth, c->width());
        maxWidth = std::max(maxWidth, c->width());
        minHeight = std::min(minHeight, c->height());
        maxHeight = std::max(maxHeight, c->height());
    }
    const auto target = [](TSizeMode mode, int current, int smallest, int largest, int value) {
        switch (mode) {
        case smNoChange:
            return current;
        case smToSmallest:
            return smallest;
        case smToLargest:
            return largest;
        case smValue:
            return std::max(0, value);
        }
        return current;
    };
    const QList<QRect> before = geometries(list);
    for (QWidget *c : list)
        setSize(c, target(widthMode, c->width(), minWidth, maxWidth, widthValue),
                target(heightMode, c->height(), minHeight, maxHeight, heightValue));
    reportMoveSize(list, before);
}

// ---- dialogs ----

void TCustomFormDesigner::AlignDialog()
{
    QPointer<TfrmAlign> dialog = new TfrmAlign(ParentForm());
    const int result = UserDialogs::instance().execDialog(dialog);
    if (!dialog)
        return;
    const TAlignMode horizontal = dialog->horizontal();
    const TAlignMode vertical = dialog->vertical();
    delete dialog.data();
    if (result == QDialog::Accepted)
        AlignControls(horizontal, vertical);
}

void TCustomFormDesigner::SizeDialog()
{
    QPointer<TfrmSize> dialog = new TfrmSize(ParentForm());
    const int result = UserDialogs::instance().execDialog(dialog);
    if (!dialog)
        return;
    const TSizeMode widthMode = dialog->widthMode(), heightMode = dialog->heightMode();
    const int widthValue = dialog->widthValue(), heightValue = dialog->heightValue();
    delete dialog.data();
    if (result == QDialog::Accepted)
        SizeControls(widthMode, widthValue, heightMode, heightValue);
}

bool TCustomFormDesigner::TabOrderDialog()
{
    if (!m_active)
        return false;
    prepareSelection(false);

    // The container: the first designable windowed control that takes
    // controls, from the current control (or its parent) upwards.
    QWidget *container = nullptr;
    if (QWidget *current = currentControl()) {
        const TControl *c = TControl::from(current);
        QWidget *w = c && c->classInfo().windowed ? current : current->parentWidget();
        for (; w && w != m_attached; w = w->parentWidget()) {
            const TControl *candidate = TControl::from(w);
            if (candidate && IsDesignable(w) && candidate->classInfo().windowed
                && candidate->classInfo().acceptsControls) {
                container = w;
                break;
            }
        }
    }
    if (!container)
        container = m_attached;

    QList<QPair<QString, QWidget *>> entries;
    for (QWidget *w : ControlLayout::tabList(container)) {
        if (!w || qobject_cast<TGrabHandle *>(w) || qobject_cast<TComponentContainer *>(w)
            || w->parentWidget() != container)
            continue;
        entries.append({QStringLiteral("%1: %2").arg(w->objectName(), classNameOf(w)), w});
    }

    QPointer<TfrmTabOrder> dialog = new TfrmTabOrder(ParentForm());
    dialog->setEntries(entries);
    const int result = UserDialogs::instance().execDialog(dialog);
    if (!dialog)
        return false;
    const QList<QWidget *> order = dialog->controlsInOrder();
    delete dialog.data();
    if (result != QDialog::Accepted)
        return false;
    // Placing each at its index in turn leaves exactly this order.
    for (int i = 0; i < order.size(); ++i)
        if (TControl *c = TControl::from(order.at(i)))
            c->setTabOrder(i);
    DoChange();
    return true;
}

// ---- the alignment palette ----

QWidget *TCustomFormDesigner::AlignmentPaletteForm() const
{
    return m_palette;
}

void TCustomFormDesigner::setAlignmentPalette(TAlignmentPaletteOptions v)
{
    m_alignmentPalette = v;
    if (auto *palette = qobject_cast<TfrmAlignmentPalette *>(m_palette.data()))
        palette->setOptions(v);
}

void TCustomFormDesigner::ShowAlignmentPalette()
{
    auto *palette = qobject_cast<TfrmAlignmentPalette *>(m_palette.data());
    if (!palette) {
        QWidget *form = ParentForm();
        palette = new TfrmAlignmentPalette(form ? form->window() : nullptr);
        m_palette = palette;
        palette->setOptions(m_alignmentPalette);
        palette->onAlign = [this](TAlignMode horizontal, TAlignMode vertical) {
            AlignControls(horizontal, vertical);
        };
        palette->onOptionsChanged = [this](TAlignmentPaletteOptions options) {
            // The palette does not know apAutoShow; keep the engine's.
            m_alignmentPalette = (options & ~TAlignmentPaletteOptions(apAutoShow))
                                 | (m_alignmentPalette & apAutoShow);
        };
    }
    palette->show();
    palette->raise();
    if (OnShowAlignmentPalette)
        OnShowAlignmentPalette(this, palette);
}

void TCustomFormDesigner::HideAlignmentPalette()
{
    if (m_palette)
        m_palette->hide();
}

// ---- the name lists ----

void TCustomFormDesigner::EditControlLists(TListType defaultList)
{
    QPointer<TfrmFDEditor> dialog = new TfrmFDEditor(ParentForm());
    dialog->setLists(m_lists[ltLocked], m_lists[ltProtected], m_lists[ltTransparent]);
    dialog->setCurrentList(defaultList);
    dialog->availableNames = [this] {
        QStringList names;
        if (m_attached)
            for (QWidget *w : m_attached->findChildren<QWidget *>())
                if (IsDesignable(w) && !qobject_cast<TComponentContainer *>(w) && !w->objectName().isEmpty())
                    names << w->objectName();
        return names;
    };
    const int result = UserDialogs::instance().execDialog(dialog);
    if (!dialog)
        return;
    const QStringList locked = dialog->list(ltLocked);
    const QStringList protectedNames = dialog->list(ltProtected);
    const QStringList transparent = dialog->list(ltTransparent);
    delete dialog.data();
    if (result != QDialog::Accepted)
        return;
    setLockedControls(locked);
    setProtectedControls(protectedNames);
    setTransparentControls(transparent);
}
