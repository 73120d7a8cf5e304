#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include "Types.h"

class QWidget;
class TControl;
class TMemIniFile;
class TMaskDocument;
struct TControlKind;

// Writes the sections of a mask's controls, one writer per kind of control.
// Each kind counts its own sections from 1 in the order they are visited;
// the tab-capable kinds add their line to "Sort", combo boxes their item
// lists to the pick-list blocks.
class TControlWriter
{
public:
    TControlWriter(const TMaskDocument *mask, TMemIniFile &ini, QStringList &pickLists);

    // Writes the control when its exact class is one the mask file knows;
    // other components are not saved.
    void write(QObject *component);

    // One writer per kind of control.
    void WritePageControl(QWidget *w, const QString &s);
    void WritePage(QWidget *w, const QString &s);
    void WriteLabel(QWidget *w, const QString &s);
    void WriteDBLabel(QWidget *w, const QString &s);
    void WriteField(QWidget *w, const QString &s);
    void WriteCField(QWidget *w, const QString &s);
    void WriteLField(QWidget *w, const QString &s);
    void WriteMemo(QWidget *w, const QString &s);
    void WriteButton(QWidget *w, const QString &s);
    void WriteBevel(QWidget *w, const QString &s);
    void WriteImage(QWidget *w, const QString &s);
    void WriteShape(QWidget *w, const QString &s);
    void WritePanel(QWidget *w, const QString &s);
    void WriteCheckBox(QWidget *w, const QString &s);
    void WriteTreeList(QWidget *w, const QString &s);
    void WriteStringGrid(QWidget *w, const QString &s);
    void WriteRadioGroup(QWidget *w, const QString &s);
    void WriteBrowser(QWidget *w, const QString &s);
    void WriteView(QWidget *w, const QString &s);
    void WriteTab(QWidget *w, const QString &s);

private:
    // The section of the control; number is the number of a numbered one.
    QString sectionOf(const TControlKind &kind, const QWidget *w, QString *number);
    void str(const QString &s, const char *key, const QString &value);
    void integer(const QString &s, const char *key, int value);
    void boolean(const QString &s, const char *key, bool value);
    void color(const QString &s, const char *key, TColor value);
    void parent(const QString &s, QWidget *w);
    void bounds(const QString &s, const TControl *c);
    // FName, size, FColor, FStyle in the order of the kinds that write the
    // colour first (labels, page controls) or last (the others).
    void fontColorFirst(const QString &s, const TControl *c, const char *sizeKey);
    void fontColorAfterSize(const QString &s, const TControl *c);
    void sortLine(const TControl *c, const TControlKind &kind, const QString &number);

    const TMaskDocument *m_mask;
    TMemIniFile &m_ini;
    QStringList &m_pickLists;
    QSet<QString> m_pickListNames; // case-folded names of the blocks written
    QHash<QString, int> m_counters;
};
