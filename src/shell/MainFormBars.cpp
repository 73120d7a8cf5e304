// The tool bars.
#include "MainForm.h"

#include "Colors.h"
#include "ControlKinds.h"
#include "MaskResolutions.h"
#include "PaletteIcons.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontComboBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

namespace {

QIcon colorSwatch(const QColor &color)
{
    QPixmap pixmap(16, 12);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QColor(0x60, 0x60, 0x60));
    painter.setBrush(color);
    painter.drawRect(0, 0, 15, 11);
    return QIcon(pixmap);
}

QToolButton *styleButton(QWidget *parent, const char *name, const QString &text, const QString &toolTip,
                         void (QFont::*apply)(bool))
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setToolTip(toolTip);
    button->setCheckable(true);
    button->setAutoRaise(true);
    QFont f = button->font();
    (f.*apply)(true);
    button->setFont(f);
    button->setFixedSize(24, 24);
    return button;
}

QSpinBox *positionSpin(QToolBar *bar, const char *name, const QString &caption, int tag)
{
    auto *label = new QLabel(caption, bar);
    label->setContentsMargins(6, 0, 2, 0);
    bar->addWidget(label);
    auto *spin = new QSpinBox(bar);
    spin->setObjectName(QLatin1String(name));
    spin->setRange(-32768, 32767);
    spin->setProperty("Tag", tag);
    spin->setAccelerated(true);
    spin->setMinimumWidth(64);
    label->setBuddy(spin);
    bar->addWidget(spin);
    return spin;
}

} // namespace

QToolBar *TMainForm::createBar(int index, const QString &name)
{
    auto *bar = new QToolBar(name, this);
    bar->setObjectName(name);
    bar->setProperty("BarIndex", index);
    bar->setIconSize(QSize(16, 16));
    Bars[index] = bar;
    return bar;
}

void TMainForm::createToolBars()
{
    Bars = QList<QToolBar *>(BarCount, nullptr);

    QToolBar *mainMenu = createBar(MainMenuBar, QStringLiteral("Main Menu"));
    mainMenu->addWidget(m_menuBar);
    mainMenu->setMovable(false);
    addToolBar(Qt::TopToolBarArea, mainMenu);
    addToolBarBreak(Qt::TopToolBarArea);

    createFileBar();
    createEditBar();
    createFontBar();
    addToolBar(Qt::TopToolBarArea, Bars[FileMenuBar]);
    addToolBar(Qt::TopToolBarArea, Bars[EditMenuBar]);
    addToolBar(Qt::TopToolBarArea, Bars[FontBar]);
    addToolBarBreak(Qt::TopToolBarArea);

    createElementsBar();
    createModifyBar();
    addToolBar(Qt::TopToolBarArea, Bars[ElementsBar]);
    addToolBarBreak(Qt::TopToolBarArea);
    addToolBar(Qt::TopToolBarArea, Bars[ModifyMenuBar]);

    createStatusBar();
    addToolBar(Qt::BottomToolBarArea, Bars[StatusBar]);
}

void TMainForm::createFileBar()
{
    QToolBar *bar = createBar(FileMenuBar, QStringLiteral("File Menu"));
    for (QAction *item : {FileNewItem, FileOpenItem, FileSaveItem, FileSaveAsItem, FileCloseItem, static_cast<QAction *>(nullptr),
                          dxBarButton7, CreateTableItem}) {
        if (!item) {
            bar->addSeparator();
            continue;
        }
        bar->addAction(item);
        bar->widgetForAction(item)->setObjectName(item->objectName() + QStringLiteral("Button"));
    }
}

void TMainForm::createEditBar()
{
    QToolBar *bar = createBar(EditMenuBar, QStringLiteral("Edit Menu"));
    for (QAction *item : {CutItem, CopyItem, PasteItem, DeleteItem}) {
        bar->addAction(item);
        bar->widgetForAction(item)->setObjectName(item->objectName() + QStringLiteral("Button"));
    }
    bar->addSeparator();
    bar->addAction(LockItem);
    bar->addSeparator();
    bar->addAction(UndoItem);
    bar->addAction(RedoItem);
}

void TMainForm::createFontBar()
{
    QToolBar *bar = createBar(FontBar, QStringLiteral("Font"));

    dxBarFontNameCombo1 = new QFontComboBox(bar);
    dxBarFontNameCombo1->setObjectName(QStringLiteral("dxBarFontNameCombo1"));
    dxBarFontNameCombo1->setToolTip(tr("Schriftart"));
    dxBarFontNameCombo1->setMaximumWidth(170);
    bar->addWidget(dxBarFontNameCombo1);

    dxBarFontSize1 = new QComboBox(bar);
    dxBarFontSize1->setObjectName(QStringLiteral("dxBarFontSize1"));
    dxBarFontSize1->setToolTip(tr("Schriftgrad"));
    dxBarFontSize1->setEditable(true);
    dxBarFontSize1->setInsertPolicy(QComboBox::NoInsert);
    dxBarFontSize1->setValidator(new QIntValidator(1, 999, dxBarFontSize1));
    for (int size : {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72})
        dxBarFontSize1->addItem(QString::number(size));
    dxBarFontSize1->setMinimumContentsLength(3);
    bar->addWidget(dxBarFontSize1);

    dxBarColorCombo1 = new QComboBox(bar);
    dxBarColorCombo1->setObjectName(QStringLiteral("dxBarColorCombo1"));
    dxBarColorCombo1->setToolTip(tr("Schriftfarbe"));
    for (const QString &name : ColorIdents()) {
        const std::optional<TColor> color = StringToColor(name);
        if (!color || color->isNone() || color->isDefault())
            continue;
        dxBarColorCombo1->addItem(colorSwatch(color->toQColor(palette())), name, QVariant(color->value()));
    }
    dxBarColorCombo1->setMinimumContentsLength(9);
    dxBarColorCombo1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    bar->addWidget(dxBarColorCombo1);

    bar->addSeparator();
    dxBarButtonBold = styleButton(bar, "dxBarButtonBold", tr("F"), tr("Fett"), &QFont::setBold);
    dxBarButtonItalic = styleButton(bar, "dxBarButtonItalic", tr("K"), tr("Kursiv"), &QFont::setItalic);
    dxBarButtonUnderline = styleButton(bar, "dxBarButtonUnderline", tr("U"), tr("Unterstrichen"), &QFont::setUnderline);
    bar->addWidget(dxBarButtonBold);
    bar->addWidget(dxBarButtonItalic);
    bar->addWidget(dxBarButtonUnderline);

    // The font tools act on the selected controls; none can be selected yet.
    for (QWidget *w : std::initializer_list<QWidget *>{dxBarFontNameCombo1, dxBarFontSize1, dxBarColorCombo1,
                                                       dxBarButtonBold, dxBarButtonItalic, dxBarButtonUnderline})
        w->setEnabled(false);
}

void TMainForm::createElementsBar()
{
    QToolBar *bar = createBar(ElementsBar, tr("Elemente"));
    bar->setIconSize(QSize(24, 24));
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    // The palette is a wide row of captions; a step smaller and, where the
    // face has one, condensed keeps it on one screen.
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() - 1);
    small.setStretch(QFont::SemiCondensed);
    bar->setFont(small);

    m_paletteGroup = new QActionGroup(this);
    m_paletteGroup->setObjectName(QStringLiteral("ElementsGroup"));
    m_paletteGroup->setExclusive(true);

    auto addEntry = [this, bar](const char *name, const QString &caption, TPaletteCode code, const QString &toolTip) {
        const int tag = int(code);
        auto *item = new QAction(PaletteIcons::controlIcon(code), caption, m_paletteGroup);
        item->setObjectName(QLatin1String(name));
        item->setCheckable(true);
        item->setData(tag);
        item->setProperty("Tag", tag);
        item->setToolTip(toolTip.isEmpty() ? caption : toolTip);
        bar->addAction(item);
        QWidget *button = bar->widgetForAction(item);
        button->setObjectName(QLatin1String(name));
        button->setProperty("Tag", tag);
        return item;
    };

    // The arrow is the state "nothing to place": it is part of the group so
    // choosing it releases the control button that was down.
    QAction *arrow = addEntry("dxBarBtnDefault", tr("Auswahl"), TPaletteCode::None, tr("Auswählen"));
    arrow->setChecked(true);
    bar->addSeparator();
    // The palette lists the kinds by their codes, the numbers of the mask
    // files, hence the gap after 13.
    QList<const TControlKind *> kinds;
    for (const TControlKind &kind : ControlKinds::all())
        if (kind.code != TPaletteCode::None)
            kinds << &kind;
    std::sort(kinds.begin(), kinds.end(), [](auto a, auto b) { return int(a->code) < int(b->code); });
    for (const TControlKind *kind : kinds)
        addEntry(kind->paletteName, QCoreApplication::translate("ControlKinds", kind->paletteCaption), kind->code,
                 kind->paletteHint ? QCoreApplication::translate("ControlKinds", kind->paletteHint) : QString());
}

void TMainForm::createModifyBar()
{
    QToolBar *bar = createBar(ModifyMenuBar, QStringLiteral("Modify Menu"));
    dxBarSpinLeft = positionSpin(bar, "dxBarSpinLeft", tr("Links:"), 1);
    dxBarSpinTop = positionSpin(bar, "dxBarSpinTop", tr("Oben:"), 2);
    dxBarSpinWidth = positionSpin(bar, "dxBarSpinWidth", tr("Breite:"), 3);
    dxBarSpinHeight = positionSpin(bar, "dxBarSpinHeight", tr("Höhe:"), 4);
    bar->addSeparator();
    dxBarSpinTabOrder = positionSpin(bar, "dxBarSpinTabOrder", QStringLiteral("TabOrder:"), 0);
    dxBarSpinTabOrder->setRange(0, 9999);
    dxBarSpinTabOrder->setProperty("Tag", QVariant());
    bar->addSeparator();

    auto *resLabel = new QLabel(tr("Auflösung"), bar);
    resLabel->setContentsMargins(6, 0, 4, 0);
    bar->addWidget(resLabel);
    MaskResList = new QComboBox(bar);
    MaskResList->setObjectName(QStringLiteral("MaskResList"));
    MaskResList->addItems(MaskResolutions::texts());
    MaskResList->setCurrentIndex(3);
    resLabel->setBuddy(MaskResList);
    bar->addWidget(MaskResList);
    // Scroll range back to the screen the program runs on.
    dxBarNormal = bar->addAction(QStringLiteral("Normal"));
    dxBarNormal->setObjectName(QStringLiteral("dxBarNormal"));
    dxBarNormal->setToolTip(tr("Bildlaufbereich der Maske an den Bildschirm anpassen"));
    dxBarNormal->setEnabled(false);

    // Position and size follow the selected control, which the designer brings.
    for (QWidget *w : std::initializer_list<QWidget *>{dxBarSpinLeft, dxBarSpinTop, dxBarSpinWidth, dxBarSpinHeight,
                                                       dxBarSpinTabOrder, MaskResList})
        w->setEnabled(false);
}

void TMainForm::createStatusBar()
{
    QToolBar *bar = createBar(StatusBar, QStringLiteral("Statusbar"));
    bar->setMovable(false);
    bar->setFloatable(false);

    auto *panel = new QWidget(bar);
    panel->setObjectName(QStringLiteral("StatusPanel"));
    auto *layout = new QHBoxLayout(panel);
    layout->setContentsMargins(4, 1, 4, 1);
    m_statusPath = new QLabel(panel);
    m_statusPath->setObjectName(QStringLiteral("StatusPath"));
    m_statusPath->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_statusPath->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_statusVersion = new QLabel(panel);
    m_statusVersion->setObjectName(QStringLiteral("StatusVersion"));
    m_statusVersion->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_statusRecord = new QLabel(panel);
    m_statusRecord->setObjectName(QStringLiteral("StatusRecord"));
    // "Datensatz 12345 von 100000" stays readable beside a long path.
    m_statusRecord->setMinimumWidth(m_statusRecord->fontMetrics().horizontalAdvance(
        QCoreApplication::translate("TRunSession", "Datensatz %1 von %2")
            .arg(QStringLiteral("0000000"), QStringLiteral("0000000"))));
    layout->addWidget(m_statusPath, 1);
    layout->addWidget(m_statusRecord);
    layout->addSpacing(12);
    layout->addWidget(m_statusVersion);
    panel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(panel);
}
