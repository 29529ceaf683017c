// zebSurfaceInterface: drawing commands of surface proxies, checked against their scope.
#include "zeblua/inkwell/src/LuaSurfaceInterface.h"

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zebcore/geom/Geometry.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaImageInterface.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/inkwell/src/LuaPathInterface.h"
#include "zeblua/inkwell/src/LuaPenInterface.h"
#include "zeblua/inkwell/src/LuaShaderInterface.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zebui/inkwell/BrushP.h"
#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/InkwellTypes.h"
#include "zebui/inkwell/PathP.h"
#include "zebui/inkwell/PenInterface.h"
#include "zebui/inkwell/PenP.h"
#include "zebui/inkwell/ShaderInterface.h"
#include "zebui/inkwell/SurfaceInterface.h"

namespace zeblua {
namespace inkwell {

const char* const kZebLuaSurfaceClassName = "zebSurfaceInterface";
const char* const kZebLuaSurfaceMetaTableName = "zeblua.zebSurfaceInterface";

namespace {

using zebcore::geom::RectT;
using zebui::inkwell::BrushP;
using zebui::inkwell::ColorRGBA;
using zebui::inkwell::PathInterface;
using zebui::inkwell::PathP;
using zebui::inkwell::PenInterface;
using zebui::inkwell::PenP;
using zebui::inkwell::ShaderInterface;
using zebui::inkwell::SurfaceInterface;

// Every method starts here: the record at 1, or null after the report once it has ended.
InkwellProxy* liveSurface(lua_State* L) {
    InkwellProxy* proxy = zeblua_checkSurface(L, 1);
    return SurfaceInScope(proxy) ? proxy : nullptr;
}

// The path holder at index, or null after the report when the script released it.
const PathP* livePath(lua_State* L, int index) {
    const PathP* path = *zeblua_checkPathInterface(L, index);
    ZEB_ASSERT_MSG(path != nullptr, "Attempting to use a released PathInterface");
    return path;
}

// An optional fill flag: true unless the integer given is 0.
bool fillFlag(lua_State* L, int index) {
    return lua_gettop(L) < index || luaL_checkinteger(L, index) != 0;
}

// The C++ halves of the path methods: every argument has been read, so their holders are
// free to live in the frame. Each does nothing when a holder came out empty (reported).
void strokeWithPen(const InkwellProxy& proxy, const PathP& path, const PenInterface& pen) {
    const PathInterface* pathObject = path.operator->();
    if (pathObject) proxy.surface->StrokePath(pen, *pathObject);
}

void strokeWithColour(const InkwellProxy& proxy, const PathP& path, const ColorRGBA& colour,
                      float width) {
    const PenP pen(DrawingSupplierOf(&proxy), colour, width);
    const PenInterface* penObject = pen.operator->();
    if (penObject) strokeWithPen(proxy, path, *penObject);
}

void fillPath(const InkwellProxy& proxy, const PathP& path, const ColorRGBA& colour, bool flag) {
    const BrushP brush(DrawingSupplierOf(&proxy), colour);
    const auto* brushObject = brush.operator->();
    const PathInterface* pathObject = path.operator->();
    if (brushObject && pathObject) proxy.surface->FillPath(*brushObject, *pathObject, flag);
}

void shadePath(const InkwellProxy& proxy, const PathP& path, const ShaderInterface& shader,
               bool flag) {
    const PathInterface* pathObject = path.operator->();
    if (pathObject) proxy.surface->ShadePath(shader, *pathObject, flag);
}

// -- surface:Release()
// A scoped surface only ends; an offscreen one also drops its reference. The second
// Release reports like any use of an ended surface.
int surfaceRelease(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    SurfaceInterface* surface = proxy->surface;
    InvalidateProxy(proxy);
    if (proxy->owned) intrusive_ptr_release(surface);
    return 0;
}

// -- __gc
// Leaves the toolkit's objects alone: a scoped surface is the toolkit's, and an offscreen
// surface that a script never released lives on. Only the record's bookkeeping goes. A
// script calling __gc on a light userdata reaches a record that is not going.
int surfaceGC(lua_State* L) {
    InkwellProxy* proxy = zeblua_checkSurface(L, 1);
    if (lua_type(L, 1) == LUA_TUSERDATA) ForgetSurfaceRecord(proxy);
    return 0;
}

// -- "zebSurfaceInterface(%p)" of the surface, null once ended
int surface2string(lua_State* L) {
    return utility::PushProxyString(L, kZebLuaSurfaceClassName, zeblua_checkSurface(L, 1)->surface);
}

// -- surface:PushStateStack()
int surfacePushStateStack(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (proxy) proxy->surface->PushStateStack();
    return 0;
}

// -- surface:PopStateStack()
int surfacePopStateStack(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (proxy) proxy->surface->PopStateStack();
    return 0;
}

// -- surface:PaintRect(rect, colour)
int surfacePaintRect(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    RectT<float> rect;
    ColorRGBA colour;
    GetRectF32FromLua(L, 2, rect);
    GetColorRGBAFromLua(L, 3, colour);
    proxy->surface->PaintRect(colour, rect);
    return 0;
}

// -- surface:StrokePath(path, pen)  or  surface:StrokePath(path, colour, width)
// The form goes by count: exactly three values, counting the surface, is the pen form.
int surfaceStrokePath(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const PathP* path = livePath(L, 2);
    if (!path) return 0;
    if (lua_gettop(L) == 3) {
        const PenInterface* pen = *zeblua_checkPenInterface(L, 3);
        if (PenInScope(pen)) strokeWithPen(*proxy, *path, *pen);
        return 0;
    }
    ColorRGBA colour;
    GetColorRGBAFromLua(L, 3, colour);
    const float width = static_cast<float>(luaL_checknumber(L, 4));
    strokeWithColour(*proxy, *path, colour, width);
    return 0;
}

// -- surface:FillPath(path, colour [, flag = 1])
int surfaceFillPath(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const PathP* path = livePath(L, 2);
    if (!path) return 0;
    ColorRGBA colour;
    GetColorRGBAFromLua(L, 3, colour);
    const bool flag = fillFlag(L, 4);
    fillPath(*proxy, *path, colour, flag);
    return 0;
}

// -- surface:ShadePath(path, shader [, flag = 1])
int surfaceShadePath(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const PathP* path = livePath(L, 2);
    if (!path) return 0;
    const ShaderInterface* shader = *zeblua_checkShaderInterface(L, 3);
    ZEB_ASSERT_MSG(shader != nullptr, "Attempting to use a released ShaderInterface");
    if (!shader) return 0;
    const bool flag = fillFlag(L, 4);
    shadePath(*proxy, *path, *shader, flag);
    return 0;
}

// -- image = surface:GetSurfaceImage()
// A copy of the present pixels; the image proxy holds its own reference.
int surfaceGetSurfaceImage(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    return newProxyFromImage(L, proxy->surface->GetSurfaceImage());
}

// -- surface:Flush()
int surfaceFlush(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (proxy) proxy->surface->Flush();
    return 0;
}

const luaL_Reg kSurfaceFunctions[] = {{nullptr, nullptr}};

const luaL_Reg kSurfaceMethods[] = {
    {"__gc", surfaceGC},
    {"__tostring", surface2string},
    {"Release", surfaceRelease},
    {"PushStateStack", surfacePushStateStack},
    {"PopStateStack", surfacePopStateStack},
    {"PaintRect", surfacePaintRect},
    {"StrokePath", surfaceStrokePath},
    {"FillPath", surfaceFillPath},
    {"ShadePath", surfaceShadePath},
    {"GetSurfaceImage", surfaceGetSurfaceImage},
    {"Flush", surfaceFlush},
    {nullptr, nullptr},
};

}  // namespace

InkwellProxy* zeblua_checkSurface(lua_State* L, int index) {
    utility::CheckProxyBlock(L, index, kZebLuaSurfaceMetaTableName);
    return SurfaceRecordAt(L, index);
}

bool SurfaceInScope(const InkwellProxy* proxy) {
    ZEB_ASSERT_MSG(proxy->surface != nullptr, "Attempting to use an out-of-scope SurfaceInterface");
    return proxy->surface != nullptr;
}

int luaopen_zebSurfaceInterface(lua_State* L) {
    using utility::SetIntegerConstant;
    namespace ink = zebui::inkwell;
    utility::RegisterClassModule(L, kZebLuaSurfaceMetaTableName, kSurfaceMethods,
                                 kZebLuaSurfaceClassName, kSurfaceFunctions);
    SetIntegerConstant(L, "kAntiAliasPolicy_None", ink::kAntiAliasPolicy_None);
    SetIntegerConstant(L, "kAntiAliasPolicy_Med", ink::kAntiAliasPolicy_Med);
    SetIntegerConstant(L, "kAntiAliasPolicy_High", ink::kAntiAliasPolicy_High);
    SetIntegerConstant(L, "kTextAlignment_Left", ink::kTextAlignment_Left);
    SetIntegerConstant(L, "kTextAlignment_Center", ink::kTextAlignment_Center);
    SetIntegerConstant(L, "kTextAlignment_Right", ink::kTextAlignment_Right);
    SetIntegerConstant(L, "kTextAlignment_Default", ink::kTextAlignment_Default);
    SetIntegerConstant(L, "kTextTruncation_None", ink::kTextTruncation_None);
    SetIntegerConstant(L, "kTextTruncation_End", ink::kTextTruncation_End);
    SetIntegerConstant(L, "kTextTruncation_EndEllipsis", ink::kTextTruncation_EndEllipsis);
    SetIntegerConstant(L, "kTextTruncation_PathEllipsis", ink::kTextTruncation_PathEllipsis);
    return 1;
}

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebSurfaceInterface(lua_State* L) {
    return zeblua::inkwell::luaopen_zebSurfaceInterface(L);
}
