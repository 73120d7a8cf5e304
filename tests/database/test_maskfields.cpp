// The table rows a mask gives: which controls are data fields, where each
// keeps its name, type, size and description, and the key mark.
#include <QTest>
#include <QWidget>

#include "Containers.h"
#include "Edits.h"
#include "Label.h"
#include "MaskFields.h"
#include "MyBtn.h"

class TestMaskFields : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsFromTheDesignSurface()
    {
        QWidget surface;
        auto *edit = new TcxTextEdit(&surface);
        edit->setText(QStringLiteral("Name"));
        edit->setMaxLength(40);
        edit->setHelpKeyword(QStringLiteral("Der Name"));
        auto *panel = new TPanel(&surface);
        auto *number = new TcxTextEdit(panel); // nested in a container
        number->setText(QStringLiteral("Nummer"));
        number->setTag(1);
        number->setMaxLength(8); // only text fields keep a size
        auto *lookup = new TcxDBPopupEdit(&surface);
        lookup->setDataField(QStringLiteral("Kunde"));
        lookup->setText(QStringLiteral("Anzeige"));
        lookup->setTag(7);
        auto *combo = new TcxComboBox(&surface);
        combo->setText(QStringLiteral("Anrede"));
        combo->setMaxLength(10);
        auto *memo = new TcxMemo(&surface);
        memo->setText(QStringLiteral(" Notiz \n"));
        memo->setTag(1); // the plain-text flag, not a type
        auto *check = new TcxDBCheckBox(&surface);
        check->setCaption(QStringLiteral("Aktiv?"));
        check->setDataField(QStringLiteral("Aktiv"));
        auto *unbound = new TcxDBCheckBox(&surface);
        unbound->setCaption(QStringLiteral("nur Anzeige"));
        auto *label = new TDBLabel(&surface);
        label->setDataField(QStringLiteral("NAME")); // the same field again
        auto *group = new TDBRadioGroup(&surface);
        group->setDataField(QStringLiteral("Status"));
        group->setTag(3);
        auto *odd = new TcxTextEdit(&surface);
        odd->setText(QStringLiteral("Seltsam"));
        odd->setTag(42);
        odd->setMaxLength(5);
        new TLabel(&surface); // no data field
        new TMaskBtn(&surface);

        const QVector<TFieldRow> rows = MaskFields::FieldRows(&surface, QStringLiteral("nummer"));
        QStringList got;
        for (const TFieldRow &r : rows)
            got << QStringList{r.FieldName, r.TypeCode, r.Size, r.Key, r.Description}.join(QLatin1Char('|'));
        QCOMPARE(got, (QStringList{
                          "Name|A|40||Der Name",
                          "Nummer|I|| INDEX|",
                          "Kunde|+|||",
                          "Anrede|A|10||",
                          "Notiz|M|||",
                          "Aktiv|L|||",
                          "Status|A|3||",
                          "Seltsam||5||", // an unknown type: the user picks one in the window
                      }));
    }
};

QTEST_MAIN(TestMaskFields)
#include "test_maskfields.moc"
