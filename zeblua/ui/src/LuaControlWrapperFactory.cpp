// The wrapper factory: one dynamic_cast test per wrapper class, first match wins.
#include "zeblua/ui/src/LuaControlWrapperFactory.h"

#include "zeblua/ui/controls/src/UI_HotTextTimecode.h"
#include "zeblua/ui/src/LuaCheckboxWrapper.h"
#include "zeblua/ui/src/LuaControlViewWrapper.h"
#include "zeblua/ui/src/LuaDialogWrapper.h"
#include "zeblua/ui/src/LuaDividerWrapper.h"
#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeWrapper.h"
#include "zeblua/ui/src/LuaOS_WindowWrapper.h"
#include "zeblua/ui/src/LuaOverlaySubView.h"
#include "zeblua/ui/src/LuaOverlaySubViewWrapper.h"
#include "zeblua/ui/src/LuaPopupWindow.h"
#include "zeblua/ui/src/LuaPopupWindowWrapper.h"
#include "zeblua/ui/src/LuaRadioButtonWrapper.h"
#include "zeblua/ui/src/LuaRadioGroupWrapper.h"
#include "zeblua/ui/src/LuaStaticTextWrapper.h"
#include "zeblua/ui/src/LuaTextEditWrapper.h"
#include "zeblua/ui/src/LuaUI_ArrangementViewWrapper.h"
#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_DisclosureButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_HotTextButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_HotTextNumberWrapper.h"
#include "zeblua/ui/src/LuaUI_HotTextTimecodeWrapper.h"
#include "zeblua/ui/src/LuaUI_KnobWrapper.h"
#include "zeblua/ui/src/LuaUI_ListBoxItemWrapper.h"
#include "zeblua/ui/src/LuaUI_ListBoxWrapper.h"
#include "zeblua/ui/src/LuaUI_NodeWrapper.h"
#include "zeblua/ui/src/LuaUI_PictureButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_PopupWrapper.h"
#include "zeblua/ui/src/LuaUI_ScrollBarWrapper.h"
#include "zeblua/ui/src/LuaUI_ScrollViewWrapper.h"
#include "zeblua/ui/src/LuaUI_SearchBoxWrapper.h"
#include "zeblua/ui/src/LuaUI_SectionViewWrapper.h"
#include "zeblua/ui/src/LuaUI_SliderWrapper.h"
#include "zeblua/ui/src/LuaUI_SplitterViewWrapper.h"
#include "zeblua/ui/src/LuaUI_StaticImageWrapper.h"
#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"
#include "zeblua/ui/src/LuaUI_TabWellWrapper.h"
#include "zeblua/ui/src/LuaUI_TextButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_WebViewWrapper.h"
#include "zebui/controls/UI_Button.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/controls/UI_DisclosureTriangleButton.h"
#include "zebui/controls/UI_Divider.h"
#include "zebui/controls/UI_HotTextButton.h"
#include "zebui/controls/UI_HotTextNumber.h"
#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/controls/UI_Knob.h"
#include "zebui/controls/UI_ListBox.h"
#include "zebui/controls/UI_ListBoxItem.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_Popup.h"
#include "zebui/controls/UI_RadioButton.h"
#include "zebui/controls/UI_RadioGroup.h"
#include "zebui/controls/UI_ScrollBar.h"
#include "zebui/controls/UI_ScrollView.h"
#include "zebui/controls/UI_SearchBox.h"
#include "zebui/controls/UI_SectionView.h"
#include "zebui/controls/UI_Slider.h"
#include "zebui/controls/UI_SplitterView.h"
#include "zebui/controls/UI_StaticImage.h"
#include "zebui/controls/UI_StaticText.h"
#include "zebui/controls/UI_TabWell.h"
#include "zebui/controls/UI_TextButton.h"
#include "zebui/controls/UI_TextEdit.h"
#include "zebui/ui/OS_Window.h"
#include "zebui/ui/UI_ArrangementView.h"
#include "zebui/ui/UI_Dialog.h"
#include "zebui/ui/UI_SubView.h"
#include "zebwebview/ZEBWebView.h"

namespace zeblua {
namespace ui {
namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;
namespace zc = zebui::controls;
namespace zu = zebui::ui;

struct FactoryRow {
    bool (*matches)(zu::UI_Node*);
    LuaControlWrapperBase* (*push)(lua_State*, const NodeP&);
};

template <class Node> bool isA(zu::UI_Node* node) {
    return dynamic_cast<Node*>(node) != nullptr;
}

template <class Wrapper> LuaControlWrapperBase* push(lua_State* L, const NodeP& node) {
    return CreateAndPushControlWrapper<Wrapper>(L, node);
}

template <class Node, class Wrapper> constexpr FactoryRow row() {
    return {isA<Node>, push<Wrapper>};
}

// A class must come before each class it derives from, or the base's wrapper takes it.
// So the disclosure triangle button (a text button) is tested before the text button, the
// hot text button, list box and list box item (interactive control views) before the
// interactive control view, and the divider (a control view) before the control view.
constexpr FactoryRow kFactoryRows[] = {
    row<zc::UI_StaticText, LuaStaticTextWrapper>(),
    row<zu::UI_Dialog, LuaDialogWrapper>(),
    row<LuaPopupWindow, LuaPopupWindowWrapper>(),
    row<zebwebview::ZEBWebView, LuaUI_WebViewWrapper>(),
    row<zu::OS_Window, LuaOS_WindowWrapper>(),
    row<controls::UI_HotTextTimecode, LuaUI_HotTextTimecodeWrapper>(),
    row<zc::UI_HotTextNumber, LuaUI_HotTextNumberWrapper>(),
    row<zc::UI_Knob, LuaUI_KnobWrapper>(),
    row<zc::UI_ScrollBar, LuaUI_ScrollBarWrapper>(),
    row<zc::UI_Slider, LuaUI_SliderWrapper>(),
    row<zc::UI_Popup, LuaUI_PopupWrapper>(),
    row<LuaMultiColumnTree, LuaMultiColumnTreeWrapper>(),
    row<zc::UI_Checkbox, LuaCheckboxWrapper>(),
    row<zc::UI_RadioButton, LuaRadioButtonWrapper>(),
    row<zc::UI_RadioGroup, LuaRadioGroupWrapper>(),
    row<zc::UI_SearchBox, LuaUI_SearchBoxWrapper>(),
    row<zc::UI_StaticImage, LuaUI_StaticImageWrapper>(),
    row<zc::UI_TextEdit, LuaTextEditWrapper>(),
    row<zc::UI_PictureButton, LuaUI_PictureButtonWrapper>(),
    row<zc::UI_DisclosureTriangleButton, LuaUI_DisclosureButtonWrapper>(),
    row<zc::UI_TextButton, LuaUI_TextButtonWrapper>(),
    row<zc::UI_Button, LuaUI_ButtonWrapper>(),
    row<zc::UI_ScrollView, LuaUI_ScrollViewWrapper>(),
    row<zc::UI_HotTextButton, LuaUI_HotTextButtonWrapper>(),
    row<zc::UI_ListBox, LuaUI_ListBoxWrapper>(),
    row<zc::UI_ListBoxItem, LuaUI_ListBoxItemWrapper>(),
    row<zc::UI_InteractiveControlView, LuaInteractiveControlViewWrapper>(),
    row<zc::UI_Divider, LuaDividerWrapper>(),
    row<zc::UI_ControlView, LuaControlViewWrapper>(),
    row<zc::UI_SplitterView, LuaUI_SplitterViewWrapper>(),
    row<zu::UI_ArrangementView, LuaUI_ArrangementViewWrapper>(),
    row<zc::UI_SectionView, LuaUI_SectionViewWrapper>(),
    row<LuaOverlaySubView, LuaOverlaySubViewWrapper>(),
    row<zc::UI_TabWell, LuaUI_TabWellWrapper>(),
    row<zu::UI_SubView, LuaUI_SubViewWrapper>(),
};

}  // namespace

LuaControlWrapperBase* LuaControlWrapperFactory(const NodeP& node, lua_State* L) {
    if (!node) return nullptr;
    for (const FactoryRow& candidate : kFactoryRows)
        if (candidate.matches(node.get())) return candidate.push(L, node);
    return CreateAndPushControlWrapper<LuaUI_NodeWrapper>(L, node);
}

}  // namespace ui
}  // namespace zeblua
