#include "WizardDlg.h"

#include "Components.h"
#include "Edits.h"
#include "FieldListBox.h"
#include "MaskDocument.h"
#include "TableDescription.h"
#include "UserDialogs.h"

#include <QComboBox>
#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
const int kPageCount = 5;

QLabel *prompt(const QString &text, QWidget *buddy = nullptr)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    if (buddy)
        label->setBuddy(buddy);
    return label;
}

QString withSeparator(QString folder)
{
    folder = QDir::toNativeSeparators(folder.trimmed());
    if (!folder.isEmpty() && !folder.endsWith(QLatin1Char('/')) && !folder.endsWith(QLatin1Char('\\')))
        folder += QDir::separator();
    return folder;
}
} // namespace

TWizard::TWizard(TMaskDocument *mask, QWidget *parent)
    : QDialog(parent)
    , m_mask(mask)
{
    setObjectName(QStringLiteral("Wizard"));
    setWindowTitle(tr("Maskeneinstellungen"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    // A white band names the page, as setup wizards do.
    auto *band = new QFrame;
    band->setObjectName(QStringLiteral("TitleBand"));
    band->setBackgroundRole(QPalette::Base);
    band->setAutoFillBackground(true);
    auto *bandRow = new QHBoxLayout(band);
    bandRow->setContentsMargins(16, 10, 16, 10);
    m_pageTitle = new QLabel;
    QFont bold = m_pageTitle->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() + 1);
    m_pageTitle->setFont(bold);
    bandRow->addWidget(m_pageTitle, 1);
    auto *bandLine = new QFrame;
    bandLine->setFrameShape(QFrame::HLine);
    bandLine->setFrameShadow(QFrame::Sunken);

    PageBook = new QStackedWidget;
    PageBook->setObjectName(QStringLiteral("PageBook"));
    for (QWidget *page : {createPage1(), createPage2(), createPage3(), createPage4(), createPage5()})
        PageBook->addWidget(page);
    connect(PageBook, &QStackedWidget::currentChanged, this, &TWizard::SetButtons);

    auto *buttonLine = new QFrame;
    buttonLine->setFrameShape(QFrame::HLine);
    buttonLine->setFrameShadow(QFrame::Sunken);
    m_pageNumber = new QLabel;
    m_pageNumber->setObjectName(QStringLiteral("PageNumber"));
    auto button = [](const char *name, const QString &text) {
        auto *b = new QPushButton(text);
        b->setObjectName(QLatin1String(name));
        b->setAutoDefault(false);
        return b;
    };
    BackBtn = button("BackBtn", tr("Zurück"));
    NextBtn = button("NextBtn", tr("Weiter"));
    OKBtn = button("OKBtn", QStringLiteral("OK"));
    AbbruchBtn = button("AbbruchBtn", tr("Abbruch"));
    connect(BackBtn, &QPushButton::clicked, this, &TWizard::BackBtnClick);
    connect(NextBtn, &QPushButton::clicked, this, &TWizard::NextBtnClick);
    connect(OKBtn, &QPushButton::clicked, this, &TWizard::OKBtnClick);
    connect(AbbruchBtn, &QPushButton::clicked, this, &QDialog::reject);
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(12, 0, 12, 0);
    buttons->addWidget(m_pageNumber);
    buttons->addStretch();
    buttons->addWidget(BackBtn);
    buttons->addWidget(NextBtn);
    buttons->addSpacing(16);
    buttons->addWidget(OKBtn);
    buttons->addWidget(AbbruchBtn);

    auto *main = new QVBoxLayout(this);
    main->setContentsMargins(0, 0, 0, 12);
    main->addWidget(band);
    main->addWidget(bandLine);
    main->addWidget(PageBook, 1);
    main->addWidget(buttonLine);
    main->addLayout(buttons);
    resize(600, 440);
}

TWizard::~TWizard()
{
    // A folder edit that loses the focus while the children are destroyed
    // would call back into a wizard that is already half gone.
    for (QLineEdit *edit : findChildren<QLineEdit *>())
        disconnect(edit, nullptr, this, nullptr);
}

QStringList TWizard::macros()
{
    const QString file = QStringLiteral("\"Dateiname\"");
    return {QStringLiteral("%DATE"), QStringLiteral("%USER"), QStringLiteral("%TT"),  QStringLiteral("%MM"),
            QStringLiteral("%JJ"),   QStringLiteral("%NUM") + file, QStringLiteral("%?NUM") + file};
}

QWidget *TWizard::newPage(const QString &name, const QString &title, QVBoxLayout **layout)
{
    auto *page = new QWidget;
    page->setObjectName(name);
    page->setProperty("title", title);
    *layout = new QVBoxLayout(page);
    (*layout)->setContentsMargins(16, 12, 16, 12);
    return page;
}

QLineEdit *TWizard::folderEdit(const QString &name, QLayout *row, void (TWizard::*exit)())
{
    auto *edit = new QLineEdit;
    edit->setObjectName(name);
    connect(edit, &QLineEdit::editingFinished, this, exit);
    auto *browse = new QToolButton;
    browse->setObjectName(QStringLiteral("btn") + name);
    browse->setText(QStringLiteral("…"));
    browse->setToolTip(tr("Ordner auswählen"));
    connect(browse, &QToolButton::clicked, this, [this, edit, exit] {
        const QString folder
            = UserDialogs::instance().directoryDialog(this, tr("Bitte wählen Sie einen Ordner aus:"), edit->text());
        if (!folder.isEmpty()) {
            edit->setText(folder);
            (this->*exit)();
        }
    });
    row->addWidget(edit);
    row->addWidget(browse);
    return edit;
}

QComboBox *TWizard::fieldCombo(const QString &name, bool editable)
{
    auto *combo = new QComboBox;
    combo->setObjectName(name);
    combo->setEditable(editable);
    if (editable)
        combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setMinimumContentsLength(24);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return combo;
}

QWidget *TWizard::createPage1()
{
    QVBoxLayout *v = nullptr;
    QWidget *page = newPage(QStringLiteral("Config-1"), tr("Datenbank und Tabelle"), &v);
    auto *pathRow = new QHBoxLayout;
    pathRow->setSpacing(2);
    Pfad = folderEdit(QStringLiteral("Pfad"), pathRow, &TWizard::PfadExit);
    Name = new QLineEdit;
    Name->setObjectName(QStringLiteral("Name"));
    connect(Name, &QLineEdit::textChanged, this, &TWizard::SetButtons);
    Titel = new QLineEdit;
    Titel->setObjectName(QStringLiteral("Titel"));
    IndexFeld = fieldCombo(QStringLiteral("IndexFeld"), true);
    v->addWidget(prompt(tr("Geben Sie den Datenbankpfad an:"), Pfad));
    v->addLayout(pathRow);
    v->addSpacing(8);
    v->addWidget(prompt(tr("Geben Sie den Tabellenname an:"), Name));
    v->addWidget(Name);
    v->addSpacing(8);
    v->addWidget(prompt(tr("Geben Sie den Maskentitel an:"), Titel));
    v->addWidget(Titel);
    v->addSpacing(8);
    v->addWidget(prompt(tr("Geben Sie den Indexfeld an:"), IndexFeld));
    v->addWidget(IndexFeld, 0, Qt::AlignLeft);
    v->addStretch();
    return page;
}

QWidget *TWizard::createPage2()
{
    QVBoxLayout *v = nullptr;
    QWidget *page = newPage(QStringLiteral("Config-2"), tr("Zeichnungen, Dateizähler und Fokus"), &v);
    auto *pathRow = new QHBoxLayout;
    pathRow->setSpacing(2);
    CADPath = folderEdit(QStringLiteral("CADPath"), pathRow, &TWizard::CADPathExit);
    Zaehler = new QLineEdit;
    Zaehler->setObjectName(QStringLiteral("Zaehler"));
    Focus = fieldCombo(QStringLiteral("Focus"), true);
    v->addWidget(prompt(tr("Geben Sie den Zeichnungspfad an. In diesem Pfad werden später die Zeichnungen "
                           "bzw. Nc-Programme angelegt:"),
                        CADPath));
    v->addLayout(pathRow);
    v->addSpacing(8);
    v->addWidget(prompt(tr("Geben Sie ein Dateizaehler an (z.B. DATEI.NUM). Beim Anlegen werden dann "
                           "fortlaufende Nummer vergeben:"),
                        Zaehler));
    v->addWidget(Zaehler);
    v->addSpacing(8);
    v->addWidget(prompt(tr("Welcher Datenbankfeld soll beim Anlegen eines neuen Datensatztes den "
                           "Eingabefokus besitzen?"),
                        Focus));
    v->addWidget(Focus, 0, Qt::AlignLeft);
    v->addStretch();
    return page;
}

QWidget *TWizard::createPage3()
{
    QVBoxLayout *v = nullptr;
    QWidget *page = newPage(QStringLiteral("Config-3"), tr("Felder aus dem Dateizähler"), &v);
    SrcList = new TFieldListBox;
    SrcList->setObjectName(QStringLiteral("SrcList"));
    DstList = new TFieldListBox;
    DstList->setObjectName(QStringLiteral("DstList"));
    SrcList->onMove = [this] { IncludeBtnClick(); };
    DstList->onMove = [this] { ExcludeBtnClick(); };
    SrcList->onDrop = [this](const QString &, const QStringList &names) { moveNamed(DstList, SrcList, names); };
    DstList->onDrop = [this](const QString &, const QStringList &names) { moveNamed(SrcList, DstList, names); };

    auto *column = new QVBoxLayout;
    column->addStretch();
    const struct
    {
        const char *name;
        const char *text;
        const char *tip;
        void (TWizard::*click)();
    } buttons[] = {
        {"IncludeBtn", ">", QT_TR_NOOP("Markierte Felder zuweisen"), &TWizard::IncludeBtnClick},
        {"IncAllBtn", ">>", QT_TR_NOOP("Alle Felder zuweisen"), &TWizard::IncAllBtnClick},
        {"ExcludeBtn", "<", QT_TR_NOOP("Markierte Felder entfernen"), &TWizard::ExcludeBtnClick},
        {"ExAllBtn", "<<", QT_TR_NOOP("Alle Felder entfernen"), &TWizard::ExAllBtnClick},
    };
    for (const auto &b : buttons) {
        auto *button = new QPushButton(QLatin1String(b.text));
        button->setObjectName(QLatin1String(b.name));
        button->setToolTip(tr(b.tip));
        button->setAutoDefault(false);
        button->setFixedWidth(40);
        connect(button, &QPushButton::clicked, this, b.click);
        column->addWidget(button);
    }
    column->addStretch();

    Felder = new QLineEdit;
    Felder->setObjectName(QStringLiteral("Felder"));
    Felder->setReadOnly(true);

    auto *grid = new QGridLayout;
    grid->addWidget(prompt(tr("Verfügbare Felder:"), SrcList), 0, 0);
    grid->addWidget(prompt(tr("Zugewiesene Felder:"), DstList), 0, 2);
    grid->addWidget(SrcList, 1, 0);
    grid->addLayout(column, 1, 1);
    grid->addWidget(DstList, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    auto *felderRow = new QHBoxLayout;
    felderRow->addWidget(prompt(tr("Felder:"), Felder));
    felderRow->addWidget(Felder, 1);

    v->addWidget(prompt(tr("Welche Felder sollen beim Anlegen, automatisch mit der Nummer aus dem "
                           "Dateizähler ausgefüllt werden?")));
    v->addSpacing(4);
    v->addLayout(grid, 1);
    v->addLayout(felderRow);
    return page;
}

QWidget *TWizard::createValuePage(const QString &name, const QString &title, const QString &text,
                                  const QString &listTitle, QListWidget **list, QComboBox **field, QComboBox **value)
{
    QVBoxLayout *v = nullptr;
    QWidget *page = newPage(name, title, &v);
    *list = new QListWidget;
    wireValueList(*list);
    *field = fieldCombo(QString(), false);
    *value = fieldCombo(QString(), true);
    (*value)->addItems(macros());
    (*value)->setCurrentIndex(-1);

    auto *side = new QVBoxLayout;
    side->addWidget(prompt(tr("Datenbankfeld:"), *field));
    side->addWidget(*field);
    side->addSpacing(8);
    side->addWidget(prompt(tr("Wert:"), *value));
    side->addWidget(*value);
    side->addSpacing(8);
    auto *hint = prompt(tr("Ein Eintrag entsteht, sobald Feld und Wert gewählt sind. "
                           "Entfernen: Rechtsklick auf den Eintrag, \"Eintrag löschen\"."));
    hint->setForegroundRole(QPalette::PlaceholderText);
    side->addWidget(hint);
    side->addStretch();

    auto *grid = new QGridLayout;
    grid->addWidget(prompt(listTitle, *list), 0, 0);
    grid->addWidget(*list, 1, 0);
    grid->addLayout(side, 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setHorizontalSpacing(12);

    v->addWidget(prompt(text));
    v->addSpacing(4);
    v->addLayout(grid, 1);
    return page;
}

QWidget *TWizard::createPage4()
{
    QWidget *page = createValuePage(
        QStringLiteral("Config-4"), tr("AutoFill Werte"),
        tr("Beim Anlegen können Sie den Feldern ein Standardwert zuweisen. Entweder durch einen Festen "
           "Wert oder durch ein Makro."),
        tr("AutoFill Werte:"), &AutoFill, &AutoFillFeld, &AutofillWert);
    AutoFill->setObjectName(QStringLiteral("AutoFill"));
    AutoFillFeld->setObjectName(QStringLiteral("AutoFillFeld"));
    AutofillWert->setObjectName(QStringLiteral("AutofillWert"));
    connect(AutoFillFeld, &QComboBox::currentTextChanged, this, &TWizard::AutoFillFeldChange);
    connect(AutofillWert, &QComboBox::currentTextChanged, this, &TWizard::AutofillWertChange);
    connect(AutoFill, &QListWidget::currentRowChanged, this, &TWizard::AutoFillClick);
    return page;
}

QWidget *TWizard::createPage5()
{
    QWidget *page = createValuePage(
        QStringLiteral("Config-5"), tr("Default Werte"),
        tr("Beim ausfüllen bzw. editieren eines Datensatzes, können Felder mit festen Werten versehen "
           "werden."),
        tr("Default Werte:"), &Default, &DefaultFeld, &Defaultwert);
    Default->setObjectName(QStringLiteral("Default"));
    DefaultFeld->setObjectName(QStringLiteral("DefaultFeld"));
    Defaultwert->setObjectName(QStringLiteral("Defaultwert"));
    connect(DefaultFeld, &QComboBox::currentTextChanged, this, &TWizard::DefaultFeldChange);
    connect(Defaultwert, &QComboBox::currentTextChanged, this, &TWizard::DefaultwertChange);
    connect(Default, &QListWidget::currentRowChanged, this, &TWizard::DefaultClick);
    return page;
}

void TWizard::showEvent(QShowEvent *event)
{
    FormShow();
    QDialog::showEvent(event);
}

void TWizard::collectFields()
{
    m_fields.clear();
    if (!m_mask)
        return;
    for (QObject *c : Components::components(m_mask)) {
        // Exact classes, as the product has always chosen them: a lookup
        // field is a text edit by descent, yet not offered here.
        const QLatin1String cls(c->metaObject()->className());
        QString name;
        if (cls == QLatin1String("TcxTextEdit"))
            name = static_cast<TcxTextEdit *>(c)->Text();
        else if (cls == QLatin1String("TcxComboBox"))
            name = static_cast<TcxComboBox *>(c)->Text();
        else if (cls == QLatin1String("TcxMemo"))
            name = static_cast<TcxMemo *>(c)->Text();
        name = name.trimmed();
        if (!name.isEmpty() && !m_fields.contains(name, Qt::CaseInsensitive))
            m_fields << name;
    }
}

void TWizard::FormShow()
{
    PageBook->setCurrentIndex(0);
    collectFields();
    const TTableSettings settings = m_mask ? m_mask->TableSettings() : TTableSettings();
    const QString pfad = m_mask ? m_mask->DatenbankPfad() : QString();
    Pfad->setText(pfad.isEmpty() ? m_defaultPfad : pfad);
    Name->setText(m_mask ? m_mask->Tabelle() : QString());
    Titel->setText(m_mask ? m_mask->Titel() : QString());
    CADPath->setText(settings.CadPath);
    Zaehler->setText(settings.Dateizaehler);

    for (QComboBox *combo : {IndexFeld, Focus, AutoFillFeld, DefaultFeld}) {
        const QSignalBlocker block(combo);
        combo->clear();
        combo->addItems(m_fields);
        combo->setCurrentIndex(-1);
    }
    IndexFeld->setCurrentText(settings.Index);
    Focus->setCurrentText(settings.Fokus);

    // Assigned fields stay assigned even when no control shows them now.
    const QStringList assigned = TableDescription::splitFields(settings.Felder);
    SrcList->clear();
    DstList->clear();
    for (const QString &field : m_fields)
        if (!assigned.contains(field, Qt::CaseInsensitive))
            SrcList->addItem(field);
    DstList->addItems(assigned);
    updateFelder();

    AutoFill->clear();
    AutoFill->addItems(settings.AutoFill);
    Default->clear();
    Default->addItems(settings.Default);
    for (QComboBox *value : {AutofillWert, Defaultwert}) {
        const QSignalBlocker block(value);
        value->setCurrentIndex(-1);
        value->setEditText(QString());
    }
    SetButtons();
}

void TWizard::SetButtons()
{
    const int page = PageBook->currentIndex();
    BackBtn->setEnabled(page > 0);
    // Everything after the first page belongs to a table, so it needs a name.
    NextBtn->setEnabled(page < kPageCount - 1 && !Name->text().trimmed().isEmpty());
    m_pageTitle->setText(PageBook->currentWidget()->property("title").toString());
    m_pageNumber->setText(tr("Seite %1 von %2").arg(page + 1).arg(kPageCount));
}

void TWizard::BackBtnClick()
{
    if (PageBook->currentIndex() > 0)
        PageBook->setCurrentIndex(PageBook->currentIndex() - 1);
}

void TWizard::NextBtnClick()
{
    if (PageBook->currentIndex() < kPageCount - 1)
        PageBook->setCurrentIndex(PageBook->currentIndex() + 1);
}

void TWizard::PfadExit()
{
    Pfad->setText(withSeparator(Pfad->text()));
}

void TWizard::CADPathExit()
{
    CADPath->setText(withSeparator(CADPath->text()));
}

void TWizard::OKBtnClick()
{
    PfadExit();
    CADPathExit();
    if (m_mask) {
        m_mask->setDatenbankPfad(Pfad->text());
        m_mask->setTabelle(Name->text().trimmed());
        m_mask->setTitel(Titel->text());
        TTableSettings settings;
        settings.CadPath = CADPath->text();
        settings.Index = IndexFeld->currentText().trimmed();
        settings.Dateizaehler = Zaehler->text().trimmed();
        settings.Fokus = Focus->currentText().trimmed();
        settings.Felder = Felder->text();
        for (int i = 0; i < AutoFill->count(); ++i)
            settings.AutoFill << AutoFill->item(i)->text();
        for (int i = 0; i < Default->count(); ++i)
            settings.Default << Default->item(i)->text();
        m_mask->setTableSettings(settings);
    }
    accept();
}
