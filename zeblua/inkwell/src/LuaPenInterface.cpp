// PenInterface: a script's pens and their line properties.
#include "zeblua/inkwell/src/LuaPenInterface.h"

#include <vector>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/InkwellTypes.h"
#include "zebui/inkwell/PenInterface.h"
#include "zebui/inkwell/SupplierInterface.h"

namespace zeblua {
namespace inkwell {

namespace {

constexpr char kPenClass[] = "PenInterface";
constexpr char kPenMetaTable[] = "zeblua.inkwell.PenInterface";

using zebui::inkwell::ColorRGBA;
using zebui::inkwell::LineCapType;
using zebui::inkwell::LineJoinType;
using zebui::inkwell::PenInterface;

// The proxy holds the pen's one reference, so a counted pointer that native code takes
// for a while never brings it to zero behind the script's back; Release drops that
// reference, which deletes the pen.
struct PenProxy {
    using Object = PenInterface;
    static constexpr const char* kMetatableName = kPenMetaTable;
    static constexpr const char* kDisplayName = "PenInterface";
};

// The pen of the proxy at 1, or null after the report when the script released it.
PenInterface* livePen(lua_State* L) {
    PenInterface* pen = *zeblua_checkPenInterface(L, 1);
    return PenInScope(pen) ? pen : nullptr;
}

// Every argument from 2 up, as floats; the caller has checked them all.
std::vector<float> dashLengths(lua_State* L) {
    std::vector<float> dashes;
    for (int index = 2; index <= lua_gettop(L); ++index)
        dashes.push_back(static_cast<float>(lua_tonumber(L, index)));
    return dashes;
}

void setDashPattern(lua_State* L, PenInterface& pen) {
    const std::vector<float> dashes = dashLengths(L);
    pen.SetDashPattern(dashes.data(), static_cast<int>(dashes.size()));
}

// -- pen = PenInterface.newPen(ink, colour, width)
int penNew(lua_State* L) {
    const InkwellProxy* ink = zeblua_checkInkwell(L, 1);
    if (!InkwellInScope(ink)) return 0;
    ColorRGBA colour;
    GetColorRGBAFromLua(L, 2, colour);
    const float width = static_cast<float>(luaL_checknumber(L, 3));
    PenInterface** block = utility::PushPointerProxy<PenInterface>(
        L, nullptr, kPenMetaTable, luaopen_zeblua_inkwell_PenInterface);
    *block = DrawingSupplierOf(ink)->MakePen(colour, width);
    if (*block) intrusive_ptr_add_ref(*block);
    return 1;
}

// -- pen:SetWidth(width)
int penSetWidth(lua_State* L) {
    PenInterface* pen = livePen(L);
    if (pen) pen->SetWidth(static_cast<float>(luaL_checknumber(L, 2)));
    return 0;
}

// -- pen:SetMiterLimit(limit)
int penSetMiterLimit(lua_State* L) {
    PenInterface* pen = livePen(L);
    if (pen) pen->SetMiterLimit(static_cast<float>(luaL_checknumber(L, 2)));
    return 0;
}

// -- width = pen:GetWidth()
int penGetWidth(lua_State* L) {
    PenInterface* pen = livePen(L);
    if (!pen) return 0;
    lua_pushnumber(L, pen->GetWidth());
    return 1;
}

// -- limit = pen:GetMiterLimit()
int penGetMiterLimit(lua_State* L) {
    PenInterface* pen = livePen(L);
    if (!pen) return 0;
    lua_pushnumber(L, pen->GetMiterLimit());
    return 1;
}

// -- pen:SetLineJoin(PenInterface.kLineJoinType_...)
int penSetLineJoin(lua_State* L) {
    PenInterface* pen = livePen(L);
    if (pen) pen->SetLineJoin(static_cast<LineJoinType>(luaL_checkinteger(L, 2)));
    return 0;
}

// -- pen:SetLineCap(PenInterface.kLineCapType_...)
int penSetLineCap(lua_State* L) {
    PenInterface* pen = livePen(L);
    if (pen) pen->SetLineCap(static_cast<LineCapType>(luaL_checkinteger(L, 2)));
    return 0;
}

// -- join = pen:GetLineJoin()
int penGetLineJoin(lua_State* L) {
    PenInterface* pen = livePen(L);
    if (!pen) return 0;
    lua_pushinteger(L, pen->GetLineJoin());
    return 1;
}

// -- cap = pen:GetLineCap()
int penGetLineCap(lua_State* L) {
    PenInterface* pen = livePen(L);
    if (!pen) return 0;
    lua_pushinteger(L, pen->GetLineCap());
    return 1;
}

// -- pen:SetDashPattern(on, off, ...)
// No argument gives an empty pattern: a solid line again.
int penSetDashPattern(lua_State* L) {
    PenInterface* pen = livePen(L);
    if (!pen) return 0;
    for (int index = 2; index <= lua_gettop(L); ++index)
        luaL_checknumber(L, index);
    return utility::RunNative(L, "SetDashPattern", [&] {
        setDashPattern(L, *pen);
        return 0;
    });
}

const luaL_Reg kPenFunctions[] = {
    {"newPen", penNew},
    {nullptr, nullptr},
};

const luaL_Reg kPenMethods[] = {
    {"__gc", utility::ReleaseReferenceGC<PenProxy>},
    {"Release", utility::ReleaseReferenceGC<PenProxy>},
    {"__tostring", utility::HeldObject2string<PenProxy>},
    {"SetWidth", penSetWidth},
    {"SetMiterLimit", penSetMiterLimit},
    {"GetWidth", penGetWidth},
    {"GetMiterLimit", penGetMiterLimit},
    {"SetLineJoin", penSetLineJoin},
    {"SetLineCap", penSetLineCap},
    {"GetLineJoin", penGetLineJoin},
    {"GetLineCap", penGetLineCap},
    {"SetDashPattern", penSetDashPattern},
    {nullptr, nullptr},
};

// Registers in class form and adds the line style constants to the table.
int openPenInterface(lua_State* L) {
    using utility::SetIntegerConstant;
    utility::RegisterClassModule(L, kPenMetaTable, kPenMethods, kPenClass, kPenFunctions);
    SetIntegerConstant(L, "kLineJoinType_Miter", zebui::inkwell::kLineJoinType_Miter);
    SetIntegerConstant(L, "kLineJoinType_Bevel", zebui::inkwell::kLineJoinType_Bevel);
    SetIntegerConstant(L, "kLineJoinType_Round", zebui::inkwell::kLineJoinType_Round);
    SetIntegerConstant(L, "kLineJoinType_Default", zebui::inkwell::kLineJoinType_Default);
    SetIntegerConstant(L, "kLineCapType_Flat", zebui::inkwell::kLineCapType_Flat);
    SetIntegerConstant(L, "kLineCapType_Round", zebui::inkwell::kLineCapType_Round);
    SetIntegerConstant(L, "kLineCapType_Square", zebui::inkwell::kLineCapType_Square);
    SetIntegerConstant(L, "kLineCapType_Default", zebui::inkwell::kLineCapType_Default);
    return 1;
}

}  // namespace

const char* const kZebLuaPenInterfaceClassName = kPenClass;
const char* const kZebLuaPenInterfaceMetaTableName = kPenMetaTable;

PenInterface** zeblua_checkPenInterface(lua_State* L, int index) {
    return utility::CheckPointerBlock<PenInterface>(L, index, kPenMetaTable);
}

bool PenInScope(const PenInterface* pen) {
    ZEB_ASSERT_MSG(pen != nullptr, "Attempting to use an out-of-scope PenInterface");
    return pen != nullptr;
}

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_PenInterface(lua_State* L) {
    return zeblua::inkwell::openPenInterface(L);
}
