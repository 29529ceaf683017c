// zebhost.snapshot and the per-class fillers of its state table.
#include "host/src/HostSnapshot.h"

#include <string>

#include <lua.hpp>

#include "host/src/HostNodes.h"
#include "os/NSWindow.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/ui/src/LuaPopupWindow.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaResultString.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/UI_Button.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/controls/UI_DisclosureTriangleButton.h"
#include "zebui/controls/UI_HotTextNumber.h"
#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/controls/UI_Knob.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_PictureTextButton.h"
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
#include "zebui/controls/UI_TabItem.h"
#include "zebui/controls/UI_TabWell.h"
#include "zebui/controls/UI_TextButton.h"
#include "zebui/controls/UI_TextControlBase.h"
#include "zebui/controls/UI_TextEdit.h"
#include "zebui/ui/OS_ViewContainer.h"
#include "zebui/ui/UI_Dialog.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_NodeManager.h"
#include "zebui/ui/UI_SubView.h"

namespace zebhost {
namespace {

namespace zui = zebui::ui;
namespace controls = zebui::controls;

void setBoolean(lua_State* L, const char* name, bool value) {
    lua_pushboolean(L, value);
    lua_setfield(L, -2, name);
}

// Fills the state table on top with the fields of node's class, if node is one.
using StateFiller = void (*)(lua_State* L, const zui::UI_Node& node);

void fillControlViewState(lua_State* L, const zui::UI_Node& node) {
    const auto* control = dynamic_cast<const controls::UI_ControlView*>(&node);
    if (!control) return;
    setBoolean(L, "valueUnknown", control->IsValueUnknown());
    setBoolean(L, "suppressFocusDrawing", control->GetSuppressFocusDrawing());
}

void fillInteractiveControlViewState(lua_State* L, const zui::UI_Node& node) {
    const auto* control = dynamic_cast<const controls::UI_InteractiveControlView*>(&node);
    if (control) setBoolean(L, "inInteractiveChange", control->IsInInteractiveChange());
}

// A plain rect table, made here so that no constructor of the script layer runs.
void pushPlainRect(lua_State* L, const zebcore::geom::RectT<float>& rect) {
    lua_createtable(L, 0, 4);
    lua_pushnumber(L, rect.left);
    lua_setfield(L, -2, "left");
    lua_pushnumber(L, rect.top);
    lua_setfield(L, -2, "top");
    lua_pushnumber(L, rect.width);
    lua_setfield(L, -2, "width");
    lua_pushnumber(L, rect.height);
    lua_setfield(L, -2, "height");
}

// A UTF-16 text of the node as a UTF-8 field of the table on top. The conversion fills a
// string that Lua owns, so a memory error in the push leaves no C++ object behind.
void setConvertedText(lua_State* L, const char* name, const zebcore::UTF16String& text) {
    std::string* converted = zeblua::utility::PushResultString(L);
    zeblua::utility::RunNative(L, "zebhost.snapshot", [&] {
        *converted = zebcore::utility::UTF16to8(text);
        return 0;
    });
    lua_pushlstring(L, converted->data(), converted->size());
    lua_setfield(L, -3, name);
    lua_pop(L, 1); /* the owner of the converted string */
}

void setInteger(lua_State* L, const char* name, lua_Integer value) {
    lua_pushinteger(L, value);
    lua_setfield(L, -2, name);
}

void setNumber(lua_State* L, const char* name, lua_Number value) {
    lua_pushnumber(L, value);
    lua_setfield(L, -2, name);
}

// A text the node holds as UTF-8; the push copies it, so nothing is left if it raises.
void setString(lua_State* L, const char* name, const zebcore::UTF8String& value) {
    lua_pushlstring(L, value.data(), value.size());
    lua_setfield(L, -2, name);
}

// Buttons: value (0 off, 1 on, 2 mixed), pressed, springLoaded, notificationOnMouseDown,
// changeFocusOnClick, and whether the present state draws its container and border; text
// buttons their textIndent, disclosure triangles their twirlDuration. Check boxes: checked.
// Radio buttons: value; radio groups: selected, the id of the button that is on (absent for
// none).
void fillButtonState(lua_State* L, const zui::UI_Node& node) {
    if (const auto* button = dynamic_cast<const controls::UI_Button*>(&node)) {
        setInteger(L, "value", button->GetValue());
        setBoolean(L, "pressed", button->IsPressed());
        setBoolean(L, "springLoaded", button->IsSpringLoaded());
        setBoolean(L, "notificationOnMouseDown", button->GetNotificationOnMouseDown());
        setBoolean(L, "changeFocusOnClick", button->GetChangeFocusOnClick());
        setBoolean(L, "drawsContainer", button->DrawsContainer());
        setBoolean(L, "drawsBorder", button->DrawsBorder());
    }
    if (const auto* textButton = dynamic_cast<const controls::UI_TextButton*>(&node))
        setNumber(L, "textIndent", textButton->GetTextIndent());
    if (const auto* triangle = dynamic_cast<const controls::UI_DisclosureTriangleButton*>(&node))
        setNumber(L, "twirlDuration", triangle->GetTwirlDuration());
    if (const auto* box = dynamic_cast<const controls::UI_Checkbox*>(&node))
        setBoolean(L, "checked", box->IsChecked());
    if (const auto* radio = dynamic_cast<const controls::UI_RadioButton*>(&node))
        setInteger(L, "value", radio->GetValue());
    if (const auto* group = dynamic_cast<const controls::UI_RadioGroup*>(&node)) {
        // The group's members are gathered in a vector: no exception may cross Lua's frame.
        const zui::UI_Node* selected = zeblua::utility::RunNative(
            L, "zebhost.snapshot", [group] { return group->GetSelectedRadioButton().get(); });
        if (selected) setString(L, "selected", selected->UI_GetNodeID());
    }
}

// imageName: the name the picture supply derives its images from; imageSupply: whether
// the control has a supply function.
void fillPictureState(lua_State* L, const zui::UI_Node& node) {
    const controls::PictureSupplyClient* client = nullptr;
    if (const auto* button = dynamic_cast<const controls::UI_PictureButton*>(&node)) {
        setString(L, "imageName", button->GetImageBaseName());
        client = button;
    } else if (const auto* textButton =
                   dynamic_cast<const controls::UI_PictureTextButton*>(&node)) {
        setString(L, "imageName", textButton->GetImageBaseName());
        client = textButton;
    } else if (const auto* image = dynamic_cast<const controls::UI_StaticImage*>(&node)) {
        setString(L, "imageName", image->GetImageName());
        client = image;
    }
    if (client) setBoolean(L, "imageSupply", client->GetImageSupplyFunction() != nullptr);
}

void fillSearchBoxState(lua_State* L, const zui::UI_Node& node) {
    const auto* box = dynamic_cast<const controls::UI_SearchBox*>(&node);
    if (!box) return;
    setBoolean(L, "firstFlag", box->GetFirstFlag());
    setBoolean(L, "secondFlag", box->GetSecondFlag());
    setBoolean(L, "searchHistory", box->mSearchHistory != nullptr);
    setBoolean(L, "savedSearches", box->mSavedSearches != nullptr);
}

// stringValue: the text; selectionStart, selectionEnd: UTF-16 positions from 0.
void fillTextEditState(lua_State* L, const zui::UI_Node& node) {
    const auto* edit = dynamic_cast<const controls::UI_TextEdit*>(&node);
    if (!edit) return;
    setInteger(L, "flags", edit->GetEditFlags().GetValue());
    setInteger(L, "alignment", edit->GetAlignment());
    setConvertedText(L, "stringValue", edit->GetValue());
    setInteger(L, "selectionStart", static_cast<lua_Integer>(edit->GetSelection().first));
    setInteger(L, "selectionEnd", static_cast<lua_Integer>(edit->GetSelection().second));
    setConvertedText(L, "ghostText", edit->GetGhostText());
}

// contentView: the id of the content view it was made with.
void fillScrollViewState(lua_State* L, const zui::UI_Node& node) {
    const auto* scroller = dynamic_cast<const controls::UI_ScrollView*>(&node);
    if (!scroller) return;
    setInteger(L, "flags", scroller->GetScrollFlags().GetValue());
    if (const zui::UI_SubView* content = scroller->GetContentView())
        setString(L, "contentView", content->UI_GetNodeID());
    setNumber(L, "scrollX", scroller->GetScrollOffset().x);
    setNumber(L, "scrollY", scroller->GetScrollOffset().y);
    setNumber(L, "scaleX", scroller->GetScale().x);
    setNumber(L, "scaleY", scroller->GetScale().y);
}

void fillSplitterState(lua_State* L, const zui::UI_Node& node) {
    const auto* splitter = dynamic_cast<const controls::UI_SplitterView*>(&node);
    if (!splitter) return;
    setInteger(L, "direction", splitter->GetDirection());
    setNumber(L, "split", splitter->GetSplit());
    setNumber(L, "barWidth", splitter->GetBarWidth());
}

void fillSectionState(lua_State* L, const zui::UI_Node& node) {
    const auto* section = dynamic_cast<const controls::UI_SectionView*>(&node);
    if (!section) return;
    setConvertedText(L, "title", section->GetTitle());
    setBoolean(L, "opened", section->IsOpened());
    setNumber(L, "headerHeight", section->GetHeaderHeight());
}

// layoutBinding: the bits by which a sub view follows its parent's edges; layoutsChildren:
// whether it moves its own children when it is resized.
void fillLayoutState(lua_State* L, const zui::UI_Node& node) {
    const auto* view = dynamic_cast<const zui::UI_SubView*>(&node);
    if (!view) return;
    setInteger(L, "layoutBinding", view->UI_GetLayoutBinding().GetValue());
    setBoolean(L, "layoutsChildren", view->UI_GetLayoutsChildren());
}

// tabs: the tabs' texts in order; frontmost: the front-most tab's number (from 0), -1 for
// none; tabsOnly: whether the well shows its tabs only.
void fillTabWellState(lua_State* L, const zui::UI_Node& node) {
    const auto* well = dynamic_cast<const controls::UI_TabWell*>(&node);
    if (!well) return;
    lua_createtable(L, well->GetTabCount(), 0);
    for (int index = 0; index < well->GetTabCount(); ++index) {
        lua_createtable(L, 0, 1);
        setConvertedText(L, "text", well->GetTabItem(index)->GetText());
        lua_getfield(L, -1, "text");
        lua_rawseti(L, -3, index + 1);
        lua_pop(L, 1); /* the holder of the text */
    }
    lua_setfield(L, -2, "tabs");
    setInteger(L, "frontmost", well->GetFrontmost());
    setBoolean(L, "tabsOnly", well->GetShowTabsOnly());
}

void fillPopupState(lua_State* L, const zui::UI_Node& node) {
    if (const auto* popup = dynamic_cast<const controls::UI_Popup*>(&node))
        setInteger(L, "popupType", popup->GetPopupType());
}

// A window's records: ownerWindow (the owner's id), ownedCount, active, modal (the top of
// the manager's modal window stack); with a platform window, its level, shadow, worksWhenModal,
// platformClass, parentWindow (the id of the toolkit window of its parent) and
// childWindowCount.
void fillWindowRecords(lua_State* L, const zui::UI_Node& node) {
    const auto* window = dynamic_cast<const zui::OS_Window*>(&node);
    if (!window) return;
    if (const zui::UI_Window* owner = window->GetOwner())
        setString(L, "ownerWindow", owner->UI_GetNodeID());
    setInteger(L, "ownedCount", static_cast<lua_Integer>(window->GetOwnedWindows().size()));
    setBoolean(L, "active", window->IsActive());
    setBoolean(L, "modal", zui::UI_NodeManager::Get(false)->GetModalWindow() == window);
    const NSWindow* platform = window->GetPlatformWindow();
    if (!platform) return;
    setInteger(L, "level", platform->GetLevel());
    setBoolean(L, "hasShadow", platform->hasShadow());
    setBoolean(L, "worksWhenModal", platform->worksWhenModal());
    if (platform->GetClass()) setString(L, "platformClass", platform->GetClass()->name);
    if (const NSWindow* parent = platform->parentWindow())
        setString(L, "parentWindow", parent->GetToolkitWindow()->UI_GetNodeID());
    setInteger(L, "childWindowCount", static_cast<lua_Integer>(platform->childWindows().size()));
}

void fillWindowState(lua_State* L, const zui::UI_Node& node) {
    if (const auto* container = dynamic_cast<const zui::OS_ViewContainer*>(&node))
        setBoolean(L, "popsUp", container->PopsUp());
    if (const auto* popup = dynamic_cast<const zeblua::ui::LuaPopupWindow*>(&node))
        setBoolean(L, "floating", popup->IsFloating());
    fillWindowRecords(L, node);
}

// owner: the id of the owner node, or of the toolkit window of the owning operating
// system window (ownerIsPlatformWindow then true); absent for a dialog without owner.
void fillDialogState(lua_State* L, const zui::UI_Node& node) {
    const auto* dialog = dynamic_cast<const zui::UI_Dialog*>(&node);
    if (!dialog) return;
    setConvertedText(L, "title", dialog->GetTitle());
    const NSWindow* platformOwner = dialog->GetOwnerWindow();
    const zui::UI_Node* owner =
        platformOwner ? platformOwner->GetToolkitWindow() : dialog->GetOwnerNode();
    if (owner) setString(L, "owner", owner->UI_GetNodeID());
    setBoolean(L, "ownerIsPlatformWindow", platformOwner != nullptr);
    setInteger(L, "response", dialog->GetResponse());
    setBoolean(L, "running", dialog->IsRunningModal());
}

// One per class with state of its own, each adding only its own fields: value, bounds,
// text, opened, tabs, split and scroll join here as their classes gain them.
// The label of every control that shows a text: label, fontSizeId, textAlignment and
// customFontSize (0: none).
void fillTextControlState(lua_State* L, const zui::UI_Node& node) {
    const auto* text = dynamic_cast<const controls::UI_TextControlBase*>(&node);
    if (!text) return;
    setConvertedText(L, "label", text->GetLabelText());
    setInteger(L, "fontSizeId", text->GetFontSizeId());
    setInteger(L, "textAlignment", text->GetTextAlignment());
    setNumber(L, "customFontSize", text->GetCustomFontSize());
}

// Hot texts: text (what is shown) and alignment; a number also its value, bounds,
// increment, decimal places and numeric input.
void fillHotTextState(lua_State* L, const zui::UI_Node& node) {
    const auto* hotText = dynamic_cast<const controls::UI_HotText*>(&node);
    if (!hotText) return;
    setConvertedText(L, "text", hotText->GetText());
    setInteger(L, "alignment", hotText->GetAlignment());
    const auto* number = dynamic_cast<const controls::UI_HotTextNumber*>(&node);
    if (!number) return;
    setNumber(L, "value", number->GetValue());
    setNumber(L, "minValue", number->GetMinValue());
    setNumber(L, "maxValue", number->GetMaxValue());
    setNumber(L, "increment", number->GetIncrement());
    setInteger(L, "decimalPlaces", number->GetDecimalPlaces());
    setBoolean(L, "numericInput", number->GetNumericInput());
}

// Knobs: value, minValue, maxValue. Sliders: value and the extent's two ends. Scroll bars:
// the pair (valueStart, valueEnd) and the extent.
void fillNumberControlState(lua_State* L, const zui::UI_Node& node) {
    if (const auto* knob = dynamic_cast<const controls::UI_Knob*>(&node)) {
        setNumber(L, "value", knob->GetValue());
        setNumber(L, "minValue", knob->GetMinValue());
        setNumber(L, "maxValue", knob->GetMaxValue());
    } else if (const auto* slider = dynamic_cast<const controls::UI_Slider*>(&node)) {
        setNumber(L, "value", slider->GetValue());
        setNumber(L, "extentLow", slider->GetExtent().first);
        setNumber(L, "extentHigh", slider->GetExtent().second);
    } else if (const auto* bar = dynamic_cast<const controls::UI_ScrollBar*>(&node)) {
        setNumber(L, "valueStart", bar->GetValue().first);
        setNumber(L, "valueEnd", bar->GetValue().second);
        setNumber(L, "extentLow", bar->GetExtent().first);
        setNumber(L, "extentHigh", bar->GetExtent().second);
    }
}

// A list of UTF-16 texts as the array field name of the table on top.
template <class Texts> void setTextList(lua_State* L, const char* name, const Texts& texts) {
    lua_createtable(L, static_cast<int>(texts.size()), 0);
    int index = 0;
    for (const zebcore::UTF16String& text : texts) {
        lua_createtable(L, 0, 1);
        setConvertedText(L, "text", text);
        lua_getfield(L, -1, "text");
        lua_rawseti(L, -3, ++index);
        lua_pop(L, 1); /* the holder of the text */
    }
    lua_setfield(L, -2, name);
}

// Popups: items, valueString, tightMargins. Static texts: stringValue, hasCustomTextColor.
// Static images: alpha. Search boxes: the three largest sizes and the recent searches.
void fillValueTextState(lua_State* L, const zui::UI_Node& node) {
    if (const auto* popup = dynamic_cast<const controls::UI_Popup*>(&node)) {
        setTextList(L, "items", popup->GetItems());
        setConvertedText(L, "valueString", popup->GetValueString());
        setBoolean(L, "tightMargins", popup->GetTightMargins());
    } else if (const auto* text = dynamic_cast<const controls::UI_StaticText*>(&node)) {
        setConvertedText(L, "stringValue", text->GetValue());
        setBoolean(L, "hasCustomTextColor", text->GetCustomTextColor() != nullptr);
    } else if (const auto* image = dynamic_cast<const controls::UI_StaticImage*>(&node)) {
        setNumber(L, "alpha", image->GetAlpha());
    } else if (const auto* box = dynamic_cast<const controls::UI_SearchBox*>(&node)) {
        setInteger(L, "searchHistoryMaxSize", box->GetSearchHistoryMaxSize());
        setInteger(L, "savedSearchMaxSize", box->GetSavedSearchMaxSize());
        setInteger(L, "searchHistoryDisplayMaxSize", box->GetSearchHistoryDisplayMaxSize());
        if (box->mSearchHistory) setTextList(L, "recentSearches", *box->mSearchHistory);
    }
}

const StateFiller kStateFillers[] = {
    fillControlViewState,   fillInteractiveControlViewState,
    fillButtonState,        fillPictureState,
    fillSearchBoxState,     fillTextEditState,
    fillScrollViewState,    fillSplitterState,
    fillSectionState,       fillPopupState,
    fillWindowState,        fillDialogState,
    fillLayoutState,        fillTabWellState,
    fillTextControlState,   fillHotTextState,
    fillNumberControlState, fillValueTextState,
};

// What UI_Invalidate and UI_UpdateNow were asked since the record was last cleared.
void pushRedrawRecord(lua_State* L, const zui::UI_Node::RedrawRecord& record) {
    lua_createtable(L, 0, 6);
    setInteger(L, "invalidations", static_cast<lua_Integer>(record.invalidateCount));
    setBoolean(L, "wholeNode", record.wholeNode);
    lua_createtable(L, static_cast<int>(record.rects.size()), 0);
    int index = 0;
    for (const zebcore::geom::RectT<int>& rect : record.rects) {
        pushPlainRect(L, zebcore::geom::RectT<float>(
                             static_cast<float>(rect.left), static_cast<float>(rect.top),
                             static_cast<float>(rect.width), static_cast<float>(rect.height)));
        lua_rawseti(L, -2, ++index);
    }
    lua_setfield(L, -2, "rects");
    setInteger(L, "invalidateFlags", record.invalidateFlags.GetValue());
    setInteger(L, "updates", static_cast<lua_Integer>(record.updateNowCount));
    setInteger(L, "updateFlags", record.updateNowFlags.GetValue());
}

// What every node has beside its geometry: tool tip, theme, draw cache policy (the
// toolkit's number), whether the last mouse event went to the node itself, and its
// redraw record.
void setNodeAppearance(lua_State* L, const zui::UI_Node& node) {
    setConvertedText(L, "toolTip", node.UI_GetToolTip());
    setInteger(L, "toolTipWidth", node.UI_GetToolTipWidth());
    setBoolean(L, "toolTipAvoidsBounds", node.UI_GetToolTipAvoidsBounds());
    setConvertedText(L, "themeName", node.GetThemeName());
    setInteger(L, "drawCachePolicy", node.UI_GetDrawCachePolicy());
    setBoolean(L, "clipToSelf", node.UI_GetClipToSelfEnabled());
    setBoolean(L, "mouseOver", node.UI_IsMouseOver(false));
    pushRedrawRecord(L, node.GetRedrawRecord());
    lua_setfield(L, -2, "redraw");
}

// Pushes node's table. Only plain pointers live here: no script runs, so the tree, which
// holds every node below the argument's wrapper, cannot change meanwhile.
void pushSnapshot(lua_State* L, const zui::UI_Node& node, lua_Integer depth) {
    luaL_checkstack(L, 4, "zebhost.snapshot: tree too deep");
    lua_createtable(L, 0, 12);
    char className[128];
    NodeClassName(node, className, sizeof className);
    lua_pushstring(L, className);
    lua_setfield(L, -2, "class");
    const zebcore::UTF8String& id = node.UI_GetNodeID();
    lua_pushlstring(L, id.data(), id.size());
    lua_setfield(L, -2, "id");
    if (node.UI_GetParentNode()) {
        lua_pushinteger(L, node.UI_GetIndex() + 1);
        lua_setfield(L, -2, "index");
    }
    setBoolean(L, "shown", node.UI_IsShown());
    setBoolean(L, "enabled", !node.UI_IsDisabled());
    const zebcore::geom::RectT<float> rect = node.UI_GetLocalRectF(false);
    pushPlainRect(L, rect);
    lua_setfield(L, -2, "rect");
    pushPlainRect(
        L, node.UI_LocalToGlobalF(zebcore::geom::RectT<float>(0, 0, rect.width, rect.height)));
    lua_setfield(L, -2, "globalRect");
    setBoolean(L, "focus", node.UI_HasKeyboardFocus(false));
    setNodeAppearance(L, node);
    lua_pushinteger(L, static_cast<lua_Integer>(node.ChildSize()));
    lua_setfield(L, -2, "childCount");
    lua_newtable(L);
    for (const StateFiller fill : kStateFillers)
        fill(L, node);
    lua_setfield(L, -2, "state");
    if (depth == 0) return;
    lua_createtable(L, static_cast<int>(node.ChildSize()), 0);
    int index = 0;
    for (auto child = node.ChildBegin(); child != node.ChildEnd(); ++child) {
        pushSnapshot(L, **child, depth - 1);
        lua_rawseti(L, -2, ++index);
    }
    lua_setfield(L, -2, "children");
}

int hostSnapshot(lua_State* L) {
    const zui::UI_Node* node = CheckNodeArgument(L, 1);
    const lua_Integer depth = luaL_optinteger(L, 2, -1);
    pushSnapshot(L, *node, depth);
    return 1;
}

const luaL_Reg kSnapshotFunctions[] = {
    {"snapshot", hostSnapshot},
    {nullptr, nullptr},
};

}  // namespace

void OpenHostSnapshot(lua_State* L) {
    zeblua::utility::RegisterFunctionModule(L, "zebhost", kSnapshotFunctions);
    lua_pop(L, 1);
}

}  // namespace zebhost
