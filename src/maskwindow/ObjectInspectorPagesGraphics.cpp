// The pages of bevels, data grids, shapes, lookup fields and pictures.
#include "ObjectInspector.h"

#include "Edits.h"
#include "Graphics.h"
#include "Grids.h"
#include "Maske.h"
#include "UserDialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

int comboIndex(const QComboBox *combo, int value)
{
    return value >= 0 && value < combo->count() ? value : -1;
}

QFont toQFont(const TFont &f)
{
    QFont font(f.Name);
    font.setPointSize(qMax(1, f.Size));
    applyFontStyles(font, f.Style);
    return font;
}

// The colour is not part of what the font dialog edits; it stays.
TFont fromQFont(const QFont &font, TColor color)
{
    TFont f;
    f.Name = font.family();
    f.Size = font.pointSize() > 0 ? font.pointSize() : f.Size;
    f.Color = color;
    f.Style = fontStylesOf(font);
    return f;
}

// The main grid of a mask is its record browser; the others browse details.
const QString kMainGrid = QStringLiteral("DBGrid1");

} // namespace

void TObjInsp::buildGraphicPages()
{
    QFormLayout *f = newPage(QStringLiteral("TBevel"));
    m_bevelShape = addCombo(f, QStringLiteral("Form:"), QStringLiteral("BevelShape"),
                            {QStringLiteral("Box"), QStringLiteral("Rahmen"), QStringLiteral("Linie oben"),
                             QStringLiteral("Linie unten"), QStringLiteral("Linie links"),
                             QStringLiteral("Linie rechts")});
    bind(m_bevelShape, &TObjInsp::BevelShapeClick);

    f = newPage(QStringLiteral("TDBGrid"));
    m_dbGridAlign = addCombo(f, QStringLiteral("Ausrichtung:"), QStringLiteral("DBGridAlign"), alignItems());
    m_dbGridReadOnly = addCheck(f, QStringLiteral("Nur lesen"), QStringLiteral("DBGridReadOnly"));
    m_dbGridScrollbars = addCombo(f, QStringLiteral("Bildlaufleisten:"), QStringLiteral("DBGrid_Scrollbars"),
                                  {QStringLiteral("keine"), QStringLiteral("Horizontal"), QStringLiteral("Vertikal"),
                                   QStringLiteral("beide")});
    m_dbGridStruct = addCheck(f, QStringLiteral("Strukturbrowser aktiv"), QStringLiteral("DBGrid_StructCheckBox"));
    // A detail browser names the field that links it to the record; the
    // mask's main grid has none.
    m_moreBrowserPanel = new QWidget;
    m_moreBrowserPanel->setObjectName(QStringLiteral("MoreBrowserPanel"));
    auto *more = new QFormLayout(m_moreBrowserPanel);
    more->setContentsMargins(0, 0, 0, 0);
    more->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_dbGridField = addLine(more, QStringLiteral("Verknüpfungsfeld:"), QStringLiteral("DBGrid_Field"));
    f->addRow(m_moreBrowserPanel);
    m_primaryBrowserLabel = new QLabel(QStringLiteral("Primärer Browser"));
    m_primaryBrowserLabel->setObjectName(QStringLiteral("PrimaryBrowserLabel"));
    m_primaryBrowserLabel->setAlignment(Qt::AlignCenter);
    m_primaryBrowserLabel->setFrameShape(QFrame::StyledPanel);
    f->addRow(m_primaryBrowserLabel);
    auto *fonts = new QWidget;
    auto *fontsLayout = new QHBoxLayout(fonts);
    fontsLayout->setContentsMargins(0, 0, 0, 0);
    auto *font = new QPushButton(QStringLiteral("Schrift…"));
    font->setObjectName(QStringLiteral("DBGrid_Font"));
    font->setAutoDefault(false);
    auto *headerFont = new QPushButton(QStringLiteral("Titelschrift…"));
    headerFont->setObjectName(QStringLiteral("DBGrid_Headerfont"));
    headerFont->setAutoDefault(false);
    fontsLayout->addWidget(font);
    fontsLayout->addWidget(headerFont);
    f->addRow(QString(), fonts);
    connect(font, &QPushButton::clicked, this, [this] { DBGridFontClick(false); });
    connect(headerFont, &QPushButton::clicked, this, [this] { DBGridFontClick(true); });
    for (QWidget *w : {static_cast<QWidget *>(m_dbGridAlign), static_cast<QWidget *>(m_dbGridReadOnly),
                       static_cast<QWidget *>(m_dbGridField), static_cast<QWidget *>(m_dbGridScrollbars),
                       static_cast<QWidget *>(m_dbGridStruct)})
        bind(w, &TObjInsp::DBGridAlignClick);

    f = newPage(QStringLiteral("TShape"));
    m_shapeStyle = addCombo(f, QStringLiteral("Form:"), QStringLiteral("Shapestyle"),
                            {QStringLiteral("Rechteck"), QStringLiteral("Quadrat"),
                             QStringLiteral("Rechteck mit abgerundeten Ecken"),
                             QStringLiteral("Quadrat mit abgerundeten Ecken"), QStringLiteral("Ellipse"),
                             QStringLiteral("Kreis")});
    bind(m_shapeStyle, &TObjInsp::ShapestyleChange);
    auto *fill = new QPushButton(QStringLiteral("Farbe…"));
    fill->setObjectName(QStringLiteral("ShapeBrushColor"));
    fill->setAutoDefault(false);
    f->addRow(QStringLiteral("Füllung:"), fill);
    auto *border = new QPushButton(QStringLiteral("Farbe…"));
    border->setObjectName(QStringLiteral("ShapePenColor"));
    border->setAutoDefault(false);
    f->addRow(QStringLiteral("Rahmen:"), border);
    connect(fill, &QPushButton::clicked, this, [this] { ShapeColorClick(false); });
    connect(border, &QPushButton::clicked, this, [this] { ShapeColorClick(true); });

    f = newPage(QStringLiteral("TcxDBPopupEdit"));
    m_luName = addLine(f, QStringLiteral("Feldname:"), QStringLiteral("LUName"));
    m_luDatabase = addLine(f, QStringLiteral("Tabellenname:"), QStringLiteral("LUDatabase"));
    m_luPicklist = addCheck(f, QStringLiteral("Auswahltabelle"), QStringLiteral("LUPicklist"));
    m_luFieldTyp = addCombo(f, QStringLiteral("Feldtyp:"), QStringLiteral("LUFieldTyp"), fieldTypeItems());
    m_luFieldSize = addSpin(f, QStringLiteral("Feldlänge:"), QStringLiteral("LUFieldSize"), 0, 32767);
    m_luCharCase = addCombo(f, QStringLiteral("Schreibweise:"), QStringLiteral("LUCharCase"), charCaseItems());
    m_luReadonly = addCheck(f, QStringLiteral("Nur lesen"), QStringLiteral("LUReadonly"));
    m_luNameCaption = addLine(f, QStringLiteral("Feldtitel im Browser:"), QStringLiteral("LUNameCaption"));
    for (QWidget *w : {static_cast<QWidget *>(m_luName), static_cast<QWidget *>(m_luDatabase),
                       static_cast<QWidget *>(m_luPicklist), static_cast<QWidget *>(m_luFieldTyp),
                       static_cast<QWidget *>(m_luFieldSize), static_cast<QWidget *>(m_luCharCase),
                       static_cast<QWidget *>(m_luReadonly), static_cast<QWidget *>(m_luNameCaption)})
        bind(w, &TObjInsp::LUNameChange);

    f = newPage(QStringLiteral("TImageAspect"));
    auto *fileRow = new QWidget;
    auto *fileLayout = new QHBoxLayout(fileRow);
    fileLayout->setContentsMargins(0, 0, 0, 0);
    fileLayout->setSpacing(2);
    m_imageFileEdit = new QLineEdit;
    m_imageFileEdit->setObjectName(QStringLiteral("ImageFileEdit"));
    m_imageFileEdit->setMinimumWidth(60);
    auto *browse = new QToolButton;
    browse->setObjectName(QStringLiteral("ImageFileBtn"));
    browse->setText(QStringLiteral("…"));
    browse->setToolTip(QStringLiteral("Bild auswählen"));
    fileLayout->addWidget(m_imageFileEdit, 1);
    fileLayout->addWidget(browse);
    f->addRow(QStringLiteral("Datei:"), fileRow);
    m_imageStretch = addCheck(f, QStringLiteral("Strecken"), QStringLiteral("ImageStrechCheckBox"));
    connect(browse, &QToolButton::clicked, this, &TObjInsp::ImageFileBtnClick);
    bind(m_imageFileEdit, &TObjInsp::ImageStrechCheckBoxClick);
    bind(m_imageStretch, &TObjInsp::ImageStrechCheckBoxClick);
}

// ---- filling ----

void TObjInsp::fillBevel(QWidget *w)
{
    if (auto *c = qobject_cast<TBevel *>(w))
        m_bevelShape->setCurrentIndex(comboIndex(m_bevelShape, c->Shape()));
}

void TObjInsp::fillDBGrid(QWidget *w)
{
    auto *c = qobject_cast<TDBGrid *>(w);
    if (!c)
        return;
    m_dbGridAlign->setCurrentIndex(comboIndex(m_dbGridAlign, c->Align()));
    m_dbGridReadOnly->setChecked(c->ReadOnly());
    m_dbGridField->setText(c->Hint());
    m_dbGridScrollbars->setCurrentIndex(comboIndex(m_dbGridScrollbars, c->Tag()));
    m_dbGridStruct->setChecked(c->TabStop());
    const bool main = c->objectName() == kMainGrid;
    m_moreBrowserPanel->setVisible(!main);
    m_primaryBrowserLabel->setVisible(main);
}

void TObjInsp::fillShape(QWidget *w)
{
    if (auto *c = qobject_cast<TShape *>(w))
        m_shapeStyle->setCurrentIndex(comboIndex(m_shapeStyle, c->Shape()));
}

void TObjInsp::fillPopupEdit(QWidget *w)
{
    auto *c = qobject_cast<TcxDBPopupEdit *>(w);
    if (!c)
        return;
    m_luName->setText(c->DataField());
    m_luDatabase->setText(c->EditMask());
    m_luCharCase->setCurrentIndex(comboIndex(m_luCharCase, c->CharCase()));
    m_luPicklist->setChecked(c->PopupSizeable());
    // Without a pick list the type is -1; show the first type until one is chosen.
    m_luFieldTyp->setCurrentIndex(c->Tag() >= 0 && c->Tag() < m_luFieldTyp->count() ? c->Tag() : 0);
    m_luFieldSize->setValue(c->MaxLength());
    m_luReadonly->setChecked(c->ReadOnly());
    m_luNameCaption->setText(c->HelpKeyword());
    updateLookupEnabling();
}

void TObjInsp::fillImage(QWidget *w)
{
    auto *c = qobject_cast<TImageAspect *>(w);
    if (!c)
        return;
    m_imageFileEdit->setText(c->FileName());
    m_imageStretch->setChecked(c->AutoSize());
}

// ---- writing ----

void TObjInsp::BevelShapeClick()
{
    auto *c = current<TBevel>();
    if (!c || m_bevelShape->currentIndex() < 0)
        return;
    c->setShape(TBevelShape(m_bevelShape->currentIndex()));
    markModified();
}

void TObjInsp::DBGridAlignClick()
{
    auto *c = current<TDBGrid>();
    if (!c)
        return;
    if (m_dbGridAlign->currentIndex() >= 0)
        c->setAlign(TAlign(m_dbGridAlign->currentIndex()));
    c->setReadOnly(m_dbGridReadOnly->isChecked());
    c->setHint(m_dbGridField->text());
    c->setTag(m_dbGridScrollbars->currentIndex());
    c->setTabStop(m_dbGridStruct->isChecked());
    markModified();
}

void TObjInsp::DBGridFontClick(bool header)
{
    auto *c = qobject_cast<TDBGrid *>(m_current.data());
    if (!c)
        return;
    const TFont old = header ? c->TitleFont() : c->Font();
    const std::optional<QFont> chosen = UserDialogs::instance().fontDialog(this, toQFont(old));
    if (!chosen)
        return;
    const TFont font = fromQFont(*chosen, old.Color);
    if (header)
        c->setTitleFont(font);
    else
        c->setFont(font);
    markModified();
}

void TObjInsp::ShapestyleChange()
{
    auto *c = current<TShape>();
    if (!c || m_shapeStyle->currentIndex() < 0)
        return;
    c->setShape(TShapeType(m_shapeStyle->currentIndex()));
    markModified();
}

void TObjInsp::ShapeColorClick(bool border)
{
    auto *c = qobject_cast<TShape *>(m_current.data());
    if (!c)
        return;
    const std::optional<TColor> color =
        UserDialogs::instance().colorDialog(this, border ? c->PenColor() : c->BrushColor());
    if (!color)
        return;
    if (border)
        c->setPenColor(*color);
    else
        c->setBrushColor(*color);
    markModified();
}

void TObjInsp::updateLookupEnabling()
{
    // Type and length describe the pick-list field; without one they mean nothing.
    const bool pick = m_luPicklist->isChecked();
    m_luFieldTyp->setEnabled(pick);
    m_luFieldSize->setEnabled(pick);
}

void TObjInsp::LUNameChange()
{
    updateLookupEnabling();
    auto *c = current<TcxDBPopupEdit>();
    if (!c)
        return;
    c->setDataField(m_luName->text().trimmed());
    c->setEditMask(m_luDatabase->text());
    if (m_luCharCase->currentIndex() >= 0)
        c->setCharCase(TEditCharCase(m_luCharCase->currentIndex()));
    c->setPopupSizeable(m_luPicklist->isChecked());
    c->setTag(m_luFieldTyp->currentIndex());
    c->setMaxLength(m_luFieldSize->value());
    c->setReadOnly(m_luReadonly->isChecked());
    c->setHelpKeyword(m_luNameCaption->text());
    if (!c->PopupSizeable())
        c->setTag(-1);
    markModified();
}

void TObjInsp::ImageStrechCheckBoxClick()
{
    auto *c = current<TImageAspect>();
    if (!c)
        return;
    if (c->FileName() != m_imageFileEdit->text())
        c->setFileName(m_imageFileEdit->text());
    c->setAutoSize(m_imageStretch->isChecked());
    markModified();
}

void TObjInsp::ImageFileBtnClick()
{
    if (!qobject_cast<TImageAspect *>(m_current.data()))
        return;
    TFileDialog dialog;
    dialog.title = QStringLiteral("Bild auswählen");
    dialog.filter = QStringLiteral("Bilder (*.bmp;*.png;*.jpg;*.jpeg;*.gif)|*.bmp;*.png;*.jpg;*.jpeg;*.gif|"
                                   "Alle Dateien (*.*)|*.*");
    dialog.fileName = m_imageFileEdit->text();
    dialog.fileMustExist = true;
    if (dialog.execute(this))
        m_imageFileEdit->setText(dialog.fileName);
}
