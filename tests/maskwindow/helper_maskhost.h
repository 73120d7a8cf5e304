#pragma once

// Stands in for the main window of a mask: records what the mask asks of it
// and ends placements as the main window does.
#include <QStringList>

#include "FormDesigner.h"
#include "MaskHost.h"
#include "Maske.h"

struct RecordingHost : TMaskHost
{
    int tool = 0;
    QStringList calls;
    QList<int> positions;
    QList<QWidget *> fonted;

    int ArmedTool() const override { return tool; }
    void placementDone(TMaske *mask) override
    {
        calls << QStringLiteral("done");
        tool = 0;
        mask->FormDesigner2()->Unlock();
    }
    void placementRefused(TMaske *) override
    {
        calls << QStringLiteral("refused");
        tool = 0;
    }
    void WriteFontStates(QWidget *control) override { fonted << control; }
    bool lastFont(TFont &) const override { return false; }
    void FormDesigner1SelectControl(TMaske *, QWidget *) override { calls << QStringLiteral("select"); }
    void setPositionFields(int top, int height, int left, int width) override
    {
        positions = {top, height, left, width};
    }
    void applyDesignerSettings(TCustomFormDesigner *) override { calls << QStringLiteral("settings"); }
    void maskActivated(TMaske *, TcxEditStyleController *) override { calls << QStringLiteral("activated"); }
    void UpdateComponents() override { calls << QStringLiteral("components"); }
    void showObjectInspector() override { calls << QStringLiteral("inspector"); }
    void maskClosed(TMaske *) override { calls << QStringLiteral("closed"); }
    void PasteItemClick() override { calls << QStringLiteral("paste"); }
    void CopyItemClick() override { calls << QStringLiteral("copy"); }
    void CutItemClick() override { calls << QStringLiteral("cut"); }
    void Lschen1Click() override { calls << QStringLiteral("delete"); }
    void FileSaveItemClick() override
    {
        calls << QStringLiteral("save");
        if (saved)
            saved->setModified(false); // as a save that succeeds
    }
    TMaske *saved = nullptr;
};
