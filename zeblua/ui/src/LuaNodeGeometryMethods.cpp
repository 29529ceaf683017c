// The node set's geometry methods.
#include "zeblua/ui/src/LuaNodeGeometryMethods.h"

#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/SupplierInterface.h"
#include "zebui/inkwell/SurfaceInterface.h"

namespace zeblua {
namespace ui {
namespace {

using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zebui::ui::UI_Node;

void readArgument(lua_State* L, RectT<float>& rect) {
    inkwell::GetRectF32FromLua(L, 2, rect);
}

void readArgument(lua_State* L, PointT<float>& point) {
    inkwell::GetPointF32FromLua(L, 2, point);
}

int pushAnswer(lua_State* L, const RectT<float>& rect) {
    return inkwell::PushRectF32ToLua(L, rect);
}

int pushAnswer(lua_State* L, const PointT<float>& point) {
    return inkwell::PushPointF32ToLua(L, point);
}

enum class Towards { kGlobal, kLocal };

// The rect or point at 2 converted by the node and pushed back. The table is read first:
// its __index may release or end the wrapper, which then answers nothing.
template <class Value> int convertThroughNode(lua_State* L, const char* name, Towards towards) {
    if (!GetControlUserData(L, 1)) return 0;
    Value value;
    readArgument(L, value);
    return PushNodeAnswer(
        L, name,
        [&](const UI_Node& node) {
            return towards == Towards::kGlobal ? node.UI_LocalToGlobalF(value)
                                               : node.UI_GlobalToLocalF(value);
        },
        [](lua_State* state, const Value& answer) { return pushAnswer(state, answer); });
}

struct RecommendedSize {
    bool measured;
    PointT<float> size;
};

// The node measures itself with an Inkwell of its supplier over a surface of one pixel.
RecommendedSize measure(const UI_Node& node) {
    const zebui::inkwell::SupplierInterface* supplier = node.UI_GetDrawSupplier();
    if (!supplier) return {false, {}};
    const boost::intrusive_ptr<zebui::inkwell::SurfaceInterface> surface(
        supplier->MakeOffscreenSurface(1, 1, true));
    if (!surface) return {false, {}};
    zebui::inkwell::Inkwell inkwell(const_cast<zebui::inkwell::SupplierInterface*>(supplier),
                                    surface.get());
    return {true, node.UI_GetRecommendedSize(&inkwell)};
}

int pushMeasured(lua_State* L, const RecommendedSize& recommended) {
    return recommended.measured ? inkwell::PushPointF32ToLua(L, recommended.size) : 0;
}

}  // namespace

int nodeUI_GetLocalRectF(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool withDecorations = lua_toboolean(L, 2) != 0;
    return PushNodeAnswer(
        L, "UI_GetLocalRectF",
        [withDecorations](UI_Node& node) { return node.UI_GetLocalRectF(withDecorations); },
        inkwell::PushRectF32ToLua);
}

// Size listeners run Lua: the node is held for the call.
int nodeUI_SetLocalRectF(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    RectT<float> rect;
    inkwell::GetRectF32FromLua(L, 2, rect);
    return CallOnNode(L, "UI_SetLocalRectF", [&](UI_Node& node) { node.UI_SetLocalRectF(rect); });
}

int nodeUI_LocalToGlobalRectF(lua_State* L) {
    return convertThroughNode<RectT<float>>(L, "UI_LocalToGlobalRectF", Towards::kGlobal);
}

int nodeUI_LocalToGlobalPointF(lua_State* L) {
    return convertThroughNode<PointT<float>>(L, "UI_LocalToGlobalPointF", Towards::kGlobal);
}

int nodeUI_GlobalToLocalRectF(lua_State* L) {
    return convertThroughNode<RectT<float>>(L, "UI_GlobalToLocalRectF", Towards::kLocal);
}

int nodeUI_GlobalToLocalPointF(lua_State* L) {
    return convertThroughNode<PointT<float>>(L, "UI_GlobalToLocalPointF", Towards::kLocal);
}

int nodeUI_GetRecommendedSize(lua_State* L) {
    return PushNodeAnswer(L, "UI_GetRecommendedSize", measure, pushMeasured);
}

int nodeUI_GetClipToSelfEnabled(lua_State* L) {
    return AnswerOfNode(L, "UI_GetClipToSelfEnabled",
                        [](UI_Node& node) { return node.UI_GetClipToSelfEnabled(); });
}

int nodeUI_SetClipToSelfEnabled(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool enabled = lua_toboolean(L, 2) != 0;
    return CallOnNode(L, "UI_SetClipToSelfEnabled",
                      [enabled](UI_Node& node) { node.UI_SetClipToSelfEnabled(enabled); });
}

}  // namespace ui
}  // namespace zeblua
