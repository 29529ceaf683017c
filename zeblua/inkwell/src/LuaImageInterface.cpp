// ImageInterface: image proxies, each holding one reference on its image.
#include "zeblua/inkwell/src/LuaImageInterface.h"

#include <lua.hpp>

#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"

namespace zeblua {
namespace inkwell {

namespace {

constexpr char kImageClass[] = "ImageInterface";
constexpr char kImageMetaTable[] = "zeblua.zebImageInterface";

using zebui::inkwell::ImageInterface;

struct ImageProxy {
    using Object = ImageInterface;
    static constexpr const char* kMetatableName = kImageMetaTable;
    static constexpr const char* kDisplayName = "ImageInterface";
};

// -- width = image:GetWidth()
// A released image answers nothing, and reports nothing either.
int imageGetWidth(lua_State* L) {
    const ImageInterface* image = *zeblua_checkImage(L, 1);
    if (!image) return 0;
    lua_pushinteger(L, image->GetWidth());
    return 1;
}

// -- height = image:GetHeight()
int imageGetHeight(lua_State* L) {
    const ImageInterface* image = *zeblua_checkImage(L, 1);
    if (!image) return 0;
    lua_pushinteger(L, image->GetHeight());
    return 1;
}

const luaL_Reg kImageFunctions[] = {{nullptr, nullptr}};

const luaL_Reg kImageMethods[] = {
    {"__gc", utility::ReleaseReferenceGC<ImageProxy>},
    {"Release", utility::ReleaseReferenceGC<ImageProxy>},
    {"__tostring", utility::HeldObject2string<ImageProxy>},
    {"GetWidth", imageGetWidth},
    {"GetHeight", imageGetHeight},
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaImageClassName = kImageClass;
const char* const kZebLuaImageMetaTableName = kImageMetaTable;

// The proxy takes its own reference once it exists. Only Lua's memory error can stop the
// push, and its longjmp would skip releasing the reference that image carries.
int newProxyFromImage(lua_State* L, boost::intrusive_ptr<ImageInterface> image) {
    utility::PushCountedProxy(L, image.get(), kImageMetaTable, luaopen_zebImageInterface);
    return 1;
}

ImageInterface** zeblua_checkImage(lua_State* L, int index) {
    return utility::CheckPointerBlock<ImageInterface>(L, index, kImageMetaTable);
}

int luaopen_zebImageInterface(lua_State* L) {
    utility::RegisterClassModule(L, kImageMetaTable, kImageMethods, kImageClass, kImageFunctions);
    return 1;
}

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebImageInterface(lua_State* L) {
    return zeblua::inkwell::luaopen_zebImageInterface(L);
}
