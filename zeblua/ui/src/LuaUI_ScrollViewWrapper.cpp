// The scroll view wrapper: content, viewable rect, scrolling, scale and bars.
#include "zeblua/ui/src/LuaUI_ScrollViewWrapper.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zebui/controls/UI_ScrollBar.h"
#include "zebui/controls/UI_ScrollView.h"

namespace zeblua {
namespace ui {
namespace {

using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zebui::controls::UI_ScrollView;

// A rect the view answers, pushed through the script layer's constructor.
template <class Query> int pushRectOf(lua_State* L, const char* name, Query query) {
    return PushControlAnswer<UI_ScrollView>(L, name, query, inkwell::PushRectF32ToLua);
}

// A new wrapper of the node find(view) answers; nothing for none.
template <class Find> int pushPartOf(lua_State* L, const char* name, Find find) {
    if (!CastControlNode<UI_ScrollView>(L, 1)) return 0;
    return PushFoundNode(L, name, [&](zebui::ui::UI_Node& node) {
        const auto* view = dynamic_cast<UI_ScrollView*>(&node);
        return NodeP(view ? find(*view) : nullptr);
    });
}

// call(view) and, for a live wrapper, one result that is no push: the value on top of the
// stack, the last argument or the wrapper itself, as scripts of this method have had it.
template <class Call> int callAnsweringTop(lua_State* L, const char* name, Call call) {
    if (!CastControlNode<UI_ScrollView>(L, 1)) return 0;
    CallOnControl<UI_ScrollView>(L, name, call);
    return 1;
}

// -- view = scroller:GetContentView()
int controlGetContentView(lua_State* L) {
    return pushPartOf(L, "GetContentView",
                      [](const UI_ScrollView& view) { return view.GetContentView(); });
}

// -- rect = scroller:GetContentRectF()
int controlGetContentRectF(lua_State* L) {
    return pushRectOf(L, "GetContentRectF",
                      [](UI_ScrollView& view) { return view.GetContentRectF(); });
}

// -- scroller:SetContentRectF(rect): the content's size listeners and the change function
// run script, so the view is held.
int controlSetContentRectF(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    RectT<float> rect;
    inkwell::GetRectF32FromLua(L, 2, rect);
    return CallOnControl<UI_ScrollView>(L, "SetContentRectF",
                                        [&](UI_ScrollView& view) { view.SetContentRectF(rect); });
}

// -- rect = scroller:GetViewableRectF()
int controlGetViewableRectF(lua_State* L) {
    return pushRectOf(L, "GetViewableRectF",
                      [](UI_ScrollView& view) { return view.GetViewableRectF(); });
}

// -- rect = scroller:GetViewedContentRectF()
int controlGetViewedContentRectF(lua_State* L) {
    return pushRectOf(L, "GetViewedContentRectF",
                      [](UI_ScrollView& view) { return view.GetViewedContentRectF(); });
}

// -- scroller:ScrollIntoView(rect [, keepInContent]): no flag keeps the content in view.
int controlScrollIntoView(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    RectT<float> rect;
    inkwell::GetRectF32FromLua(L, 2, rect);
    const bool keepInContent = FlagDefaultTrue(L, 3);
    return CallOnControl<UI_ScrollView>(L, "ScrollIntoView", [&](UI_ScrollView& view) {
        view.ScrollIntoView(rect, keepInContent);
    });
}

// -- point = scroller:GetScale()
int controlGetScale(lua_State* L) {
    return PushControlAnswer<UI_ScrollView>(
        L, "GetScale", [](UI_ScrollView& view) { return view.GetScale(); },
        inkwell::PushPointF32ToLua);
}

// -- top = scroller:SetScale(point)
int controlSetScale(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    PointT<float> scale;
    inkwell::GetPointF32FromLua(L, 2, scale);
    return callAnsweringTop(L, "SetScale", [&](UI_ScrollView& view) { view.SetScale(scale); });
}

// -- bar = scroller:GetScrollBarX()
int controlGetScrollBarX(lua_State* L) {
    return pushPartOf(L, "GetScrollBarX",
                      [](const UI_ScrollView& view) { return view.GetScrollBarX(); });
}

// -- bar = scroller:GetScrollBarY()
int controlGetScrollBarY(lua_State* L) {
    return pushPartOf(L, "GetScrollBarY",
                      [](const UI_ScrollView& view) { return view.GetScrollBarY(); });
}

// -- size = scroller:GetScrollBarSize()
int controlGetScrollBarSize(lua_State* L) {
    return AnswerOfControl<UI_ScrollView>(
        L, "GetScrollBarSize", [](UI_ScrollView& view) { return view.GetScrollBarSize(); });
}

// -- top = scroller:SetScrollBarSize(size): the bars' size listeners run script.
int controlSetScrollBarSize(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const float size = static_cast<float>(luaL_checknumber(L, 2));
    return callAnsweringTop(L, "SetScrollBarSize",
                            [&](UI_ScrollView& view) { view.SetScrollBarSize(size); });
}

// -- top = scroller:Update()
int controlUpdate(lua_State* L) {
    return callAnsweringTop(L, "Update", [](UI_ScrollView& view) { view.Update(); });
}

}  // namespace

const luaL_Reg LuaUI_ScrollViewWrapper::methods[] = {
    {"GetContentView", controlGetContentView},
    {"GetContentRectF", controlGetContentRectF},
    {"SetContentRectF", controlSetContentRectF},
    {"GetViewableRectF", controlGetViewableRectF},
    {"GetViewedContentRectF", controlGetViewedContentRectF},
    {"ScrollIntoView", controlScrollIntoView},
    {"GetScale", controlGetScale},
    {"SetScale", controlSetScale},
    {"GetScrollBarX", controlGetScrollBarX},
    {"GetScrollBarY", controlGetScrollBarY},
    {"GetScrollBarSize", controlGetScrollBarSize},
    {"SetScrollBarSize", controlSetScrollBarSize},
    {"Update", controlUpdate},
    {nullptr, nullptr},
};

const char* LuaUI_ScrollViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebScrollView";
    return sMetatableName;
}

void LuaUI_ScrollViewWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua
