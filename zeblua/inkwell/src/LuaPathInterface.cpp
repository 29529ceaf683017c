// PathInterface: a script's paths, each a heap PathP owned by its proxy.
#include "zeblua/inkwell/src/LuaPathInterface.h"

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zebcore/geom/Geometry.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/inkwell/PathP.h"

namespace zeblua {
namespace inkwell {

namespace {

constexpr char kPathClass[] = "PathInterface";
constexpr char kPathMetaTable[] = "zeblua.zebPathInterface";

using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zebui::inkwell::PathInterface;
using zebui::inkwell::PathP;

// Lua owns the PathP; deleting it drops the path's reference.
struct PathProxy {
    using Object = PathP;
    static constexpr const char* kMetatableName = kPathMetaTable;
    static constexpr const char* kDisplayName = "zebPathInterface";
};

// The path of the proxy at 1, or null after the report when the script released it. The
// point and rect readers run __index metamethods, script code that may release the path:
// a method that reads a table asks again once it has read them.
PathInterface* livePath(lua_State* L) {
    const PathP* holder = *zeblua_checkPathInterface(L, 1);
    ZEB_ASSERT_MSG(holder != nullptr, "Attempting to use a release PathInterface");
    return holder ? holder->operator->() : nullptr;
}

// Two numbers, not a point table.
PointT<float> checkCoordinates(lua_State* L, int index) {
    const float x = static_cast<float>(luaL_checknumber(L, index));
    const float y = static_cast<float>(luaL_checknumber(L, index + 1));
    return PointT<float>(x, y);
}

// -- path = PathInterface.newPath(ink)
int pathNew(lua_State* L) {
    const InkwellProxy* ink = zeblua_checkInkwell(L, 1);
    if (!InkwellInScope(ink)) return 0;
    PathP** block =
        utility::PushPointerProxy<PathP>(L, nullptr, kPathMetaTable, luaopen_zebPathInterface);
    *block = utility::RunNative(L, "newPath", [ink] { return new PathP(DrawingSupplierOf(ink)); });
    return 1;
}

// -- path:MoveTo(x, y)
int pathMoveTo(lua_State* L) {
    PathInterface* path = livePath(L);
    if (path) path->MoveTo(checkCoordinates(L, 2));
    return 0;
}

// -- path:LineTo(x, y)
int pathLineTo(lua_State* L) {
    PathInterface* path = livePath(L);
    if (path) path->LineTo(checkCoordinates(L, 2));
    return 0;
}

// -- path:BezierTo(control1, control2, end)
int pathBezierTo(lua_State* L) {
    PathInterface* path = livePath(L);
    if (!path) return 0;
    PointT<float> control1, control2, end;
    GetPointF32FromLua(L, 2, control1);
    GetPointF32FromLua(L, 3, control2);
    GetPointF32FromLua(L, 4, end);
    path = livePath(L); /* a field's __index may have released it */
    if (path) path->BezierTo(control1, control2, end);
    return 0;
}

// -- path:AddRect(rect)
int pathAddRect(lua_State* L) {
    PathInterface* path = livePath(L);
    if (!path) return 0;
    RectT<float> rect;
    GetRectF32FromLua(L, 2, rect);
    path = livePath(L); /* a field's __index may have released it */
    if (path) path->AddRect(rect);
    return 0;
}

// -- path:AddArc(centre, radius [, firstAngle = 0 [, secondAngle = 360]])
int pathAddArc(lua_State* L) {
    PathInterface* path = livePath(L);
    if (!path) return 0;
    PointT<float> centre;
    GetPointF32FromLua(L, 2, centre);
    const float radius = static_cast<float>(luaL_checknumber(L, 3));
    const int top = lua_gettop(L);
    const float firstAngle = top >= 4 ? static_cast<float>(luaL_checknumber(L, 4)) : 0.0f;
    const float secondAngle = top >= 5 ? static_cast<float>(luaL_checknumber(L, 5)) : 360.0f;
    path = livePath(L); /* a field's __index may have released it */
    if (path) path->AddArc(centre, radius, firstAngle, secondAngle);
    return 0;
}

// -- path:ClosePath()
int pathClosePath(lua_State* L) {
    PathInterface* path = livePath(L);
    if (path) path->ClosePath();
    return 0;
}

const luaL_Reg kPathFunctions[] = {
    {"newPath", pathNew},
    {nullptr, nullptr},
};

const luaL_Reg kPathMethods[] = {
    {"__gc", utility::DeleteObjectGC<PathProxy>},
    {"Release", utility::DeleteObjectGC<PathProxy>},
    {"__tostring", utility::HeldObject2string<PathProxy>},
    {"MoveTo", pathMoveTo},
    {"LineTo", pathLineTo},
    {"BezierTo", pathBezierTo},
    {"AddRect", pathAddRect},
    {"AddArc", pathAddArc},
    {"ClosePath", pathClosePath},
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaPathClassName = kPathClass;
const char* const kZebLuaPathMetaTableName = kPathMetaTable;

PathP** zeblua_checkPathInterface(lua_State* L, int index) {
    return utility::CheckPointerBlock<PathP>(L, index, kPathMetaTable);
}

int luaopen_zebPathInterface(lua_State* L) {
    utility::RegisterClassModule(L, kPathMetaTable, kPathMethods, kPathClass, kPathFunctions);
    return 1;
}

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebPathInterface(lua_State* L) {
    return zeblua::inkwell::luaopen_zebPathInterface(L);
}
