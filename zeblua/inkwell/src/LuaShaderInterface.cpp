// Shader: a script's gradients, linear or radial, used only through ShadePath.
#include "zeblua/inkwell/src/LuaShaderInterface.h"

#include <lua.hpp>

#include "zebcore/geom/Geometry.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/ShaderInterface.h"
#include "zebui/inkwell/SupplierInterface.h"

namespace zeblua {
namespace inkwell {

namespace {

constexpr char kShaderClass[] = "Shader";
constexpr char kShaderMetaTable[] = "zeblua.Shader";

using zebcore::geom::PointT;
using zebui::inkwell::ColorRGBA;
using zebui::inkwell::ShaderInterface;
using zebui::inkwell::SupplierInterface;

// As with pens, the proxy holds the shader's one reference and Release drops it.
struct ShaderProxy {
    using Object = ShaderInterface;
    static constexpr const char* kMetatableName = kShaderMetaTable;
    static constexpr const char* kDisplayName = "ShaderInterface";
};

// The arguments both makers share: two points, then two colours.
struct GradientArguments {
    PointT<float> point1, point2;
    ColorRGBA colour1, colour2;
};

void readGradient(lua_State* L, GradientArguments& gradient) {
    GetPointF32FromLua(L, 2, gradient.point1);
    GetPointF32FromLua(L, 3, gradient.point2);
    GetColorRGBAFromLua(L, 4, gradient.colour1);
    GetColorRGBAFromLua(L, 5, gradient.colour2);
}

ShaderInterface* makeLinear(const SupplierInterface& supplier, const GradientArguments& g) {
    const ColorRGBA colours[2] = {g.colour1, g.colour2};
    const float stops[2] = {0.0f, 1.0f};
    return supplier.MakeLinearShader(g.point1, g.point2, colours, stops, 2);
}

ShaderInterface* makeRadial(const SupplierInterface& supplier, const GradientArguments& g) {
    return supplier.MakeRadialShader(g.point1, g.point2, g.colour1, g.colour2);
}

// The body of both makers: arguments first, then the proxy, then the shader into it.
int pushNewShader(lua_State* L,
                  ShaderInterface* (*make)(const SupplierInterface&, const GradientArguments&)) {
    const InkwellProxy* ink = zeblua_checkInkwell(L, 1);
    if (!InkwellInScope(ink)) return 0;
    GradientArguments gradient;
    readGradient(L, gradient);
    ShaderInterface** block = utility::PushPointerProxy<ShaderInterface>(
        L, nullptr, kShaderMetaTable, luaopen_zeblua_inkwell_ShaderInterface);
    *block = make(*DrawingSupplierOf(ink), gradient);
    if (*block) intrusive_ptr_add_ref(*block);
    return 1;
}

// -- shader = Shader.newLinearShader(ink, point1, point2, colour1, colour2)
int shaderNewLinear(lua_State* L) {
    return pushNewShader(L, makeLinear);
}

// -- shader = Shader.newRadialShader(ink, point1, point2, colour1, colour2)
// The two points go on in order; what they mean is the supplier's.
int shaderNewRadial(lua_State* L) {
    return pushNewShader(L, makeRadial);
}

const luaL_Reg kShaderFunctions[] = {
    {"newLinearShader", shaderNewLinear},
    {"newRadialShader", shaderNewRadial},
    {nullptr, nullptr},
};

const luaL_Reg kShaderMethods[] = {
    {"__gc", utility::ReleaseReferenceGC<ShaderProxy>},
    {"__tostring", utility::HeldObject2string<ShaderProxy>},
    {"Release", utility::ReleaseReferenceGC<ShaderProxy>},
    {nullptr, nullptr},
};

int openShaderInterface(lua_State* L) {
    utility::RegisterClassModule(L, kShaderMetaTable, kShaderMethods, kShaderClass,
                                 kShaderFunctions);
    return 1;
}

}  // namespace

const char* const kZebLuaLinearShaderClassName = kShaderClass;
const char* const kZebLuaLinearShaderMetaTableName = kShaderMetaTable;

ShaderInterface** zeblua_checkShaderInterface(lua_State* L, int index) {
    return utility::CheckPointerBlock<ShaderInterface>(L, index, kShaderMetaTable);
}

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_ShaderInterface(lua_State* L) {
    return zeblua::inkwell::openShaderInterface(L);
}
