#include "ControlKinds.h"

#include "ControlReader.h"
#include "ControlWriter.h"

#include <QCoreApplication>
#include <QHash>

namespace {

using R = TControlReader;
using W = TControlWriter;
using P = TPaletteCode;

constexpr unsigned kEdit = pfEditStyle | pfToolFont;

} // namespace

namespace ControlKinds {

const QList<TControlKind> &all()
{
    // clang-format off
    static const QList<TControlKind> kinds = {
        // class            prefix           single     singleName code            palette button         caption                                                 hint                                                sort word       stem             loader               writer                inspector      placement
        {"TAdvOfficePager", "PageControl_",  nullptr,   nullptr,   P::PageControl, "dxBarBtnPageControl", QT_TRANSLATE_NOOP("ControlKinds", "PageControl"),       nullptr,                                            -1, nullptr,    nullptr,         &R::LoadPageControl, &W::WritePageControl, "PageControl", pfClassHint},
        {"TAdvOfficePage",  "Page_",         nullptr,   nullptr,   P::None,        nullptr,               nullptr,                                                nullptr,                                            -1, nullptr,    nullptr,         &R::LoadPage,        &W::WritePage,        "Page",        pfNone},
        {"TPanel",          "Panel_",        nullptr,   nullptr,   P::Panel,       "dxBarPanel",          QT_TRANSLATE_NOOP("ControlKinds", "Panel"),             nullptr,                                            -1, nullptr,    nullptr,         &R::LoadPanel,       &W::WritePanel,       "Panel",       pfLastFont},
        {"TLabel",          "Label_",        nullptr,   nullptr,   P::Label,       "dxBarBtnLabel",       QT_TRANSLATE_NOOP("ControlKinds", "Beschriftung"),      nullptr,                                            -1, nullptr,    nullptr,         &R::LoadLabel,       &W::WriteLabel,       "Label",       pfClassHint | pfTransparent | pfToolFont},
        {"TDBLabel",        "DBLabel_",      nullptr,   nullptr,   P::DBLabel,     "dxBarBtnDBLabel",     QT_TRANSLATE_NOOP("ControlKinds", "Beschriftungsfeld"), nullptr,                                            -1, nullptr,    nullptr,         &R::LoadDBLabel,     &W::WriteDBLabel,     "DBLabel",     pfTransparent | pfToolFont},
        {"TcxTextEdit",     "Field_",        nullptr,   nullptr,   P::Edit,        "dxBarBtnEdit",        QT_TRANSLATE_NOOP("ControlKinds", "Eingabefeld"),       nullptr,                                             0, "Feld",     "dxEdit",        &R::LoadField,       &W::WriteField,       "Edit",        kEdit | pfEditable | pfNoTabStop},
        {"TcxComboBox",     "CField_",       nullptr,   nullptr,   P::Combo,       "dxBarBtnCombo",       QT_TRANSLATE_NOOP("ControlKinds", "Auswahlfeld"),       nullptr,                                             1, "CFeld",    "dxPickEdit",    &R::LoadCField,      &W::WriteCField,      "Combo",       kEdit | pfEditable | pfNoTabStop | pfClassHint | pfClassText},
        {"TcxDBPopupEdit",  "LField_",       nullptr,   nullptr,   P::Lookup,      "dxBarBtnDBLockup",    QT_TRANSLATE_NOOP("ControlKinds", "LookUp"),            nullptr,                                             5, "LFeld",    "dxPopUpEdit",   &R::LoadLField,      &W::WriteLField,      "LookUp",      kEdit | pfEditable | pfNoTabStop | pfClassHint | pfClassText},
        {"TcxMemo",         "Memo_",         nullptr,   nullptr,   P::Memo,        "dxBarBtnMemo",        QT_TRANSLATE_NOOP("ControlKinds", "Memofeld"),          nullptr,                                             2, "Memo",     "dxMemo",        &R::LoadMemo,        &W::WriteMemo,        "Memo",        kEdit | pfNoTabStop | pfClassHint},
        {"TcxDBCheckBox",   "CheckBox_",     nullptr,   nullptr,   P::CheckBox,    "dxBarBtnCheckbox",    QT_TRANSLATE_NOOP("ControlKinds", "Checkfeld"),         nullptr,                                             4, "Checkbox", "dxDBCheckEdit", &R::LoadCheckBox,    &W::WriteCheckBox,    "Checkbox",    kEdit | pfClassHint | pfShowHint},
        {"TBevel",          "Bevel_",        nullptr,   nullptr,   P::Bevel,       "dxBarBtnBevel",       QT_TRANSLATE_NOOP("ControlKinds", "Umrahmung"),         nullptr,                                            -1, nullptr,    nullptr,         &R::LoadBevel,       &W::WriteBevel,       "Bevel",       pfClassHint},
        {"TImageAspect",    "Image_",        nullptr,   nullptr,   P::Image,       "dxBarBtnImage",       QT_TRANSLATE_NOOP("ControlKinds", "Image"),             QT_TRANSLATE_NOOP("ControlKinds", "Bild einfügen"), -1, nullptr,    nullptr,         &R::LoadImage,       &W::WriteImage,       "Image",       pfClassHint},
        {"TShape",          "Shape_",        nullptr,   nullptr,   P::Shape,       "dxBarBtnShape",       QT_TRANSLATE_NOOP("ControlKinds", "Formen"),            nullptr,                                            -1, nullptr,    nullptr,         &R::LoadShape,       &W::WriteShape,       "Shape",       pfNone},
        {"TMaskBtn",        "Button_",       nullptr,   nullptr,   P::Button,      "dxBarBtnButton",      QT_TRANSLATE_NOOP("ControlKinds", "Schalter"),          nullptr,                                             3, "Button",   "MaskBtn",       &R::LoadButton,      &W::WriteButton,      "Button",      pfClassHint | pfToolFont},
        // The main grid "Browser" is loaded between the buttons and the numbered grids.
        {"TDBGrid",         "DBBrowser_",    "Browser", "DBGrid1", P::Grid,        "dxBarBtnDBGrid",      QT_TRANSLATE_NOOP("ControlKinds", "Browser"),           nullptr,                                            -1, nullptr,    nullptr,         &R::LoadBrowser,     &W::WriteBrowser,     "Grid",        pfClassHint | pfToolFont},
        {"TcxDBTreeList",   "DBTreeList_",   nullptr,   nullptr,   P::TreeList,    "dxBarTreelist",       QT_TRANSLATE_NOOP("ControlKinds", "DBTreelist"),        nullptr,                                            -1, nullptr,    nullptr,         &R::LoadTreeList,    &W::WriteTreeList,    "TreeList",    pfClassHint | pfToolFont},
        {"TStringGrid",     "StringGrid_",   nullptr,   nullptr,   P::StringGrid,  "dxBarStringgrid",     QT_TRANSLATE_NOOP("ControlKinds", "Stringgrid"),        nullptr,                                            -1, nullptr,    nullptr,         &R::LoadStringGrid,  &W::WriteStringGrid,  "StringGrid",  pfClassHint | pfToolFont},
        {"TDBRadioGroup",   "DBRadioGroup_", nullptr,   nullptr,   P::RadioGroup,  "dxBarRadioButton",    QT_TRANSLATE_NOOP("ControlKinds", "RadioButton"),       nullptr,                                            -1, nullptr,    nullptr,         &R::LoadRadioGroup,  &W::WriteRadioGroup,  "RadioGroup",  pfLastFont},
        // The preview image brings its tab strip; both have fixed names.
        {"TImage",          nullptr,         "View",    nullptr,   P::Preview,     "dxBarBtnPreview",     QT_TRANSLATE_NOOP("ControlKinds", "Vorschau"),          nullptr,                                            -1, nullptr,    nullptr,         &R::LoadView,        &W::WriteView,        nullptr,       pfNone},
        {"TTabSet",         nullptr,         "Tab",     nullptr,   P::None,        nullptr,               nullptr,                                                nullptr,                                            -1, nullptr,    nullptr,         nullptr,             &W::WriteTab,         nullptr,       pfNone},
    };
    // clang-format on
    return kinds;
}

const TControlKind *byClass(const QString &className)
{
    static const QHash<QString, const TControlKind *> index = [] {
        QHash<QString, const TControlKind *> h;
        for (const TControlKind &kind : all())
            h.insert(QString::fromLatin1(kind.className), &kind);
        return h;
    }();
    return index.value(className);
}

const TControlKind *byCode(TPaletteCode code)
{
    for (const TControlKind &kind : all())
        if (code != TPaletteCode::None && kind.code == code)
            return &kind;
    return nullptr;
}

const TControlKind *bySortCode(int sortCode)
{
    for (const TControlKind &kind : all())
        if (sortCode >= 0 && kind.sortCode == sortCode)
            return &kind;
    return nullptr;
}

} // namespace ControlKinds
