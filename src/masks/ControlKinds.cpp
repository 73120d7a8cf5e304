#include "ControlKinds.h"

#include "ControlReader.h"
#include "ControlWriter.h"

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
        // class            prefix            single     singleName code           palette button         caption              hint             sort word        stem             loader               writer               inspector      placement
        {"TAdvOfficePager", "PageControl_",  nullptr,   nullptr,   P::PageControl, "dxBarBtnPageControl", "PageControl",       nullptr,         -1, nullptr,     nullptr,         &R::LoadPageControl, &W::WritePageControl, "PageControl", pfClassHint},
        {"TAdvOfficePage",  "Page_",         nullptr,   nullptr,   P::None,        nullptr,               nullptr,             nullptr,         -1, nullptr,     nullptr,         &R::LoadPage,        &W::WritePage,        "Page",        pfNone},
        {"TPanel",          "Panel_",        nullptr,   nullptr,   P::Panel,       "dxBarPanel",          "Panel",             nullptr,         -1, nullptr,     nullptr,         &R::LoadPanel,       &W::WritePanel,       "Panel",       pfLastFont},
        {"TLabel",          "Label_",        nullptr,   nullptr,   P::Label,       "dxBarBtnLabel",       "Beschriftung",      nullptr,         -1, nullptr,     nullptr,         &R::LoadLabel,       &W::WriteLabel,       "Label",       pfClassHint | pfTransparent | pfToolFont},
        {"TDBLabel",        "DBLabel_",      nullptr,   nullptr,   P::DBLabel,     "dxBarBtnDBLabel",     "Beschriftungsfeld", nullptr,         -1, nullptr,     nullptr,         &R::LoadDBLabel,     &W::WriteDBLabel,     "DBLabel",     pfTransparent | pfToolFont},
        {"TcxTextEdit",     "Field_",        nullptr,   nullptr,   P::Edit,        "dxBarBtnEdit",        "Eingabefeld",       nullptr,          0, "Feld",      "dxEdit",        &R::LoadField,       &W::WriteField,       "Edit",        kEdit | pfEditable | pfNoTabStop},
        {"TcxComboBox",     "CField_",       nullptr,   nullptr,   P::Combo,       "dxBarBtnCombo",       "Auswahlfeld",       nullptr,          1, "CFeld",     "dxPickEdit",    &R::LoadCField,      &W::WriteCField,      "Combo",       kEdit | pfEditable | pfNoTabStop | pfClassHint | pfClassText},
        {"TcxDBPopupEdit",  "LField_",       nullptr,   nullptr,   P::Lookup,      "dxBarBtnDBLockup",    "LookUp",            nullptr,          5, "LFeld",     "dxPopUpEdit",   &R::LoadLField,      &W::WriteLField,      "LookUp",      kEdit | pfEditable | pfNoTabStop | pfClassHint | pfClassText},
        {"TcxMemo",         "Memo_",         nullptr,   nullptr,   P::Memo,        "dxBarBtnMemo",        "Memofeld",          nullptr,          2, "Memo",      "dxMemo",        &R::LoadMemo,        &W::WriteMemo,        "Memo",        kEdit | pfNoTabStop | pfClassHint},
        {"TcxDBCheckBox",   "CheckBox_",     nullptr,   nullptr,   P::CheckBox,    "dxBarBtnCheckbox",    "Checkfeld",         nullptr,          4, "Checkbox",  "dxDBCheckEdit", &R::LoadCheckBox,    &W::WriteCheckBox,    "Checkbox",    kEdit | pfClassHint | pfShowHint},
        {"TBevel",          "Bevel_",        nullptr,   nullptr,   P::Bevel,       "dxBarBtnBevel",       "Umrahmung",         nullptr,         -1, nullptr,     nullptr,         &R::LoadBevel,       &W::WriteBevel,       "Bevel",       pfClassHint},
        {"TImageAspect",    "Image_",        nullptr,   nullptr,   P::Image,       "dxBarBtnImage",       "Image",             "Bild einfügen", -1, nullptr,     nullptr,         &R::LoadImage,       &W::WriteImage,       "Image",       pfClassHint},
        {"TShape",          "Shape_",        nullptr,   nullptr,   P::Shape,       "dxBarBtnShape",       "Formen",            nullptr,         -1, nullptr,     nullptr,         &R::LoadShape,       &W::WriteShape,       "Shape",       pfNone},
        {"TMaskBtn",        "Button_",       nullptr,   nullptr,   P::Button,      "dxBarBtnButton",      "Schalter",          nullptr,          3, "Button",    "MaskBtn",       &R::LoadButton,      &W::WriteButton,      "Button",      pfClassHint | pfToolFont},
        // The main grid "Browser" is loaded between the buttons and the numbered grids.
        {"TDBGrid",         "DBBrowser_",    "Browser", "DBGrid1", P::Grid,        "dxBarBtnDBGrid",      "Browser",           nullptr,         -1, nullptr,     nullptr,         &R::LoadBrowser,     &W::WriteBrowser,     "Grid",        pfClassHint | pfToolFont},
        {"TcxDBTreeList",   "DBTreeList_",   nullptr,   nullptr,   P::TreeList,    "dxBarTreelist",       "DBTreelist",        nullptr,         -1, nullptr,     nullptr,         &R::LoadTreeList,    &W::WriteTreeList,    "TreeList",    pfClassHint | pfToolFont},
        {"TStringGrid",     "StringGrid_",   nullptr,   nullptr,   P::StringGrid,  "dxBarStringgrid",     "Stringgrid",        nullptr,         -1, nullptr,     nullptr,         &R::LoadStringGrid,  &W::WriteStringGrid,  "StringGrid",  pfClassHint | pfToolFont},
        {"TDBRadioGroup",   "DBRadioGroup_", nullptr,   nullptr,   P::RadioGroup,  "dxBarRadioButton",    "RadioButton",       nullptr,         -1, nullptr,     nullptr,         &R::LoadRadioGroup,  &W::WriteRadioGroup,  "RadioGroup",  pfLastFont},
        // The preview image brings its tab strip; both have fixed names.
        {"TImage",          nullptr,         "View",    nullptr,   P::Preview,     "dxBarBtnPreview",     "Vorschau",          nullptr,         -1, nullptr,     nullptr,         &R::LoadView,        &W::WriteView,        nullptr,       pfNone},
        {"TTabSet",         nullptr,         "Tab",     nullptr,   P::None,        nullptr,               nullptr,             nullptr,         -1, nullptr,     nullptr,         nullptr,             &W::WriteTab,         nullptr,       pfNone},
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
