#include "DemoWindow.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>

#include "Components.h"
#include "Containers.h"
#include "ControlClasses.h"
#include "Control.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "MyBtn.h"

namespace {
template <class T>
T *place(QWidget *owner, QWidget *parent, int x, int y, int w, int h)
{
    auto *c = new T(parent);
    Components::setOwner(c, owner);
    AutoName(c, owner);
    c->setBounds(x, y, w, h);
    return c;
}
} // namespace

DemoWindow::DemoWindow()
{
    setWindowTitle(QStringLiteral("Form designer demo"));
    auto *scroll = new QScrollArea(this);
    m_surface = new QWidget;
    m_surface->setObjectName(QStringLiteral("DesignSurface"));
    m_surface->setMinimumSize(900, 640);
    m_surface->setAutoFillBackground(true);
    scroll->setWidget(m_surface);
    setCentralWidget(scroll);
    m_status = new QLabel;
    statusBar()->addWidget(m_status, 1);

    buildForm();
    m_designer = new TFormDesigner(this);
    m_designer->setDesignControl(m_surface);
    m_designer->setDisplayGrid(true);
    m_designer->setSnapToGrid(true);
    m_designer->setEnableAxisDrag(true);
    m_designer->setShowComponentCaptions(true);
    m_designer->setAlignmentLines(lpLeft | lpTop | lpRight | lpBottom);
    for (auto set : {&TFormDesigner::setAlignmentColorLeft, &TFormDesigner::setAlignmentColorTop,
                     &TFormDesigner::setAlignmentColorRight, &TFormDesigner::setAlignmentColorBottom})
        (m_designer->*set)(Colors::clBlue);
    m_designer->setLockedGrabBorder(Colors::clRed);
    m_designer->setLockedGrabFill(Colors::clRed);
    m_designer->OnSelectionChange = [this](QObject *) { showSelection(); };
    m_designer->OnMoveSizeControl = [this](QObject *, QWidget *) { showSelection(); };
    buildMenus();
    m_designer->setActive(true);
    showSelection();
}

void DemoWindow::buildForm()
{
    QWidget *form = this;
    auto *header = place<TPanel>(form, m_surface, 0, 0, 900, 40);
    header->setCaption(QStringLiteral("Customer record"));
    header->setAlign(alTop);

    const QStringList labels = {"Number:", "Name:", "Street:", "City:", "Phone:", "E-mail:"};
    for (int i = 0; i < labels.size(); ++i) {
        auto *label = place<TLabel>(form, m_surface, 16, 64 + i * 32, 80, 17);
        label->setCaption(labels.at(i));
        QWidget *edit = ControlClasses::create(QStringLiteral("TcxTextEdit"));
        edit->setParent(m_surface);
        Components::setOwner(edit, form);
        AutoName(edit, form);
        TControl::from(edit)->setBounds(104, 60 + i * 32, 200 + (i % 2) * 40, 21);
        edit->show();
    }
    auto *notes = ControlClasses::create(QStringLiteral("TcxMemo"));
    notes->setParent(m_surface);
    Components::setOwner(notes, form);
    AutoName(notes, form);
    TControl::from(notes)->setBounds(104, 264, 240, 80);
    notes->show();

    auto *group = place<TPanel>(form, m_surface, 368, 56, 240, 160);
    group->setBevelOuter(bvLowered);
    group->setCaption(QString());
    for (int i = 0; i < 4; ++i) {
        auto *b = place<TMaskBtn>(form, group, 16 + (i % 2) * 110, 16 + (i / 2) * 40, 96, 25);
        b->setCaption(QStringList{"Search", "Assign", "List", "Rule"}.at(i));
    }
    auto *check = ControlClasses::create(QStringLiteral("TcxDBCheckBox"));
    check->setParent(group);
    Components::setOwner(check, form);
    AutoName(check, form);
    TControl::from(check)->setBounds(16, 110, 150, 21);
    check->show();

    auto *pager = place<TAdvOfficePager>(form, m_surface, 368, 232, 400, 200);
    for (const char *caption : {"General", "Details", "Notes"}) {
        auto *page = new TAdvOfficePage;
        Components::setOwner(page, form);
        AutoName(page, form);
        page->setCaption(QString::fromLatin1(caption));
        pager->addPage(page);
    }
    auto *pageLabel = place<TLabel>(form, pager->Pages(0), 12, 12, 120, 17);
    pageLabel->setCaption(QStringLiteral("On the first page"));
    place<TBevel>(form, m_surface, 16, 360, 330, 80);
    auto *shape = place<TShape>(form, m_surface, 640, 64, 80, 60);
    shape->setShape(stRoundRect);
    shape->setBrushColor(Colors::clSkyBlue);
    auto *group2 = place<TDBRadioGroup>(form, m_surface, 640, 136, 200, 80);
    group2->setCaption(QStringLiteral("Salutation"));
    group2->setItems({"Mr", "Ms", "Company"});
    auto *grid = ControlClasses::create(QStringLiteral("TDBGrid"));
    grid->setParent(m_surface);
    Components::setOwner(grid, form);
    AutoName(grid, form);
    TControl::from(grid)->setBounds(16, 460, 752, 150);
    if (const TPropInfo *columns = TControl::from(grid)->classInfo().property(QStringLiteral("Columns")))
        columns->write(grid, QStringList{"Number=80", "Date=100", "Article=260", "Quantity=80", "Price=100"});
    grid->show();
}

void DemoWindow::buildMenus()
{
    QMenu *edit = menuBar()->addMenu(QStringLiteral("&Edit"));
    edit->addAction(QStringLiteral("Cu&t"), QKeySequence::Cut, m_designer, &TCustomFormDesigner::CutToClipboard);
    edit->addAction(QStringLiteral("&Copy"), QKeySequence::Copy, m_designer, &TCustomFormDesigner::CopyToClipboard);
    edit->addAction(QStringLiteral("&Paste"), QKeySequence::Paste, m_designer,
                    &TCustomFormDesigner::PasteFromClipboard);
    edit->addSeparator();
    edit->addAction(QStringLiteral("Select &all"), QKeySequence::SelectAll, m_designer,
                    &TCustomFormDesigner::SelectAll);
    edit->addAction(QStringLiteral("&Lock selection"), this, [this] {
        QStringList names = m_designer->LockedControls();
        for (int i = 0; i < m_designer->ControlCount(); ++i)
            if (!names.contains(m_designer->Controls(i)->objectName()))
                names << m_designer->Controls(i)->objectName();
        m_designer->setLockedControls(names);
    });
    edit->addAction(QStringLiteral("Control &lists..."), this, [this] { m_designer->EditControlLists(ltLocked); });

    QMenu *arrange = menuBar()->addMenu(QStringLiteral("&Arrange"));
    arrange->addAction(QStringLiteral("&Align..."), m_designer, &TCustomFormDesigner::AlignDialog);
    arrange->addAction(QStringLiteral("&Size..."), m_designer, &TCustomFormDesigner::SizeDialog);
    arrange->addAction(QStringLiteral("&Tab order..."), this, [this] { m_designer->TabOrderDialog(); });
    arrange->addAction(QStringLiteral("Align to &grid"), m_designer, &TCustomFormDesigner::AlignToGrid);
    arrange->addAction(QStringLiteral("Alignment &palette"), m_designer, &TCustomFormDesigner::ShowAlignmentPalette);

    auto *context = new QMenu(this);
    context->addAction(QStringLiteral("Align to grid"), m_designer, &TCustomFormDesigner::AlignToGrid);
    context->addAction(QStringLiteral("Align..."), m_designer, &TCustomFormDesigner::AlignDialog);
    context->addAction(QStringLiteral("Size..."), m_designer, &TCustomFormDesigner::SizeDialog);
    m_designer->setPopupMenu(context);

    QMenu *view = menuBar()->addMenu(QStringLiteral("&Designer"));
    QAction *active = view->addAction(QStringLiteral("&Active"));
    active->setCheckable(true);
    active->setChecked(true);
    connect(active, &QAction::toggled, this, [this](bool on) { m_designer->setActive(on); });
    QAction *grid = view->addAction(QStringLiteral("Display &grid"));
    grid->setCheckable(true);
    grid->setChecked(true);
    connect(grid, &QAction::toggled, this, [this](bool on) { m_designer->setDisplayGrid(on); });
    QAction *snap = view->addAction(QStringLiteral("&Snap to grid"));
    snap->setCheckable(true);
    snap->setChecked(true);
    connect(snap, &QAction::toggled, this, [this](bool on) { m_designer->setSnapToGrid(on); });
}

void DemoWindow::showSelection()
{
    QWidget *c = m_designer->currentControl();
    if (!c) {
        m_status->setText(QStringLiteral("Nothing selected"));
        return;
    }
    m_status->setText(QStringLiteral("%1 (%2)  %3, %4  %5 x %6  —  %7 selected")
                          .arg(c->objectName(), QString::fromLatin1(c->metaObject()->className()))
                          .arg(c->x())
                          .arg(c->y())
                          .arg(c->width())
                          .arg(c->height())
                          .arg(m_designer->ControlCount()));
}
