#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QWidget>

#include "Types.h"

class TMemIniFile;
class TMaskDocument;
class TControl;

// Creates the controls of one mask file in a mask document, one loader per
// kind of control (the kinds table names them). Every control stays in its loading state until finish(),
// so nothing sizes itself and tab orders are applied all at once.
class TControlReader
{
public:
    TControlReader(TMaskDocument *mask, const TMemIniFile &ini);

    void LoadPageControl(const QString &section);
    void LoadPage(const QString &section);
    void LoadPanel(const QString &section);
    void LoadLabel(const QString &section);
    void LoadDBLabel(const QString &section);
    void LoadField(const QString &section);
    void LoadCField(const QString &section);
    void LoadLField(const QString &section);
    void LoadMemo(const QString &section);
    void LoadCheckBox(const QString &section);
    void LoadBevel(const QString &section);
    void LoadImage(const QString &section);
    void LoadShape(const QString &section);
    void LoadButton(const QString &section);
    void LoadBrowser(const QString &section);   // the main grid and the numbered ones
    void LoadTreeList(const QString &section);
    void LoadStringGrid(const QString &section);
    void LoadRadioGroup(const QString &section);
    // The preview image from "View" and its tab strip from "Tab"; nothing
    // when the preview has no place.
    void LoadView(const QString &section);

    // Ends loading: the mask's component order follows the order of the
    // sections in the file, tab orders are applied, the controls show.
    void finish();

    const QList<QWidget *> &controls() const { return m_controls; }

private:
    // A new control of the class, owned by the mask, named by the naming
    // rule (or given the fixed name), on the parent its section names.
    template <class T>
    T *create(const QString &section, const QString &fixedName = QString());
    QWidget *parentFor(const QString &section, const QWidget *self) const;

    QString str(const QString &section, const QString &key, const QString &def = QString()) const;
    int integer(const QString &section, const QString &key, int def) const;
    bool boolean(const QString &section, const QString &key, bool def) const;
    TColor color(const QString &section, const QString &key, TColor def) const;
    // An enumeration's ordinal; out-of-range values give the default.
    int ordinal(const QString &section, const QString &key, int def, int count) const;
    void bounds(TControl *c, const QString &section, int defHeight, int defWidth, int defPos = 0) const;
    TFont font(const QString &section, const QString &sizeKey, const TFont &def,
               const QString &nameKey = QStringLiteral("FName"), const QString &colorKey = QStringLiteral("FColor"),
               const QString &styleKey = QStringLiteral("FStyle")) const;
    // The font the control's own kind falls back to: face and size as given,
    // black, no styles.
    static TFont defaultFont(const QString &name, int size);
    void readTabOrder(TControl *c, const QString &section) const;
    void styled(QWidget *w) const;

    TMaskDocument *m_mask;
    const TMemIniFile &m_ini;
    QList<QWidget *> m_controls;
};
