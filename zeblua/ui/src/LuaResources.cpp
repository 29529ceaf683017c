// zebUIResources: three resource accessors, images loaded from them, and cursors.
#include "zeblua/ui/src/LuaResources.h"

#include <cstdint>
#include <cstring>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "vex/app/App.h"
#include "vex/utility/Resources.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/inkwell/src/LuaImageInterface.h"
#include "zeblua/inkwell/src/LuaSupplier.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zebui/inkwell/ImageInterface.h"
#include "zebui/ui/UI_NodeManager.h"
#include "zebui/utility/Cursor.h"
#include "zebui/utility/InkwellImageResourceCache.h"
#include "zebui/utility/ResourceManager.h"

namespace zeblua {
namespace ui {

namespace {

constexpr char kResourcesClass[] = "zebUIResources";
constexpr char kResourcesMetaTable[] = "zeblua.zebUIResources";

// The accessor names, each also a string of the same value on the global table.
constexpr char kToolkitResources[] = "zebui_resources";
constexpr char kFrameworkResources[] = "vex_resources";
constexpr char kAppResources[] = "app_resources";

using zebui::inkwell::ImageInterface;
using zebui::inkwell::SupplierInterface;
using zebui::utility::InkwellImageResourceCache;
using zebui::utility::ResourceManager;

// The block of a resources value: two lent pointers, in this order.
struct ResourcesRecord {
    const ResourceManager* manager;
    const InkwellImageResourceCache* cache;
};

struct ResourcesProxy {
    static constexpr const char* kMetatableName = kResourcesMetaTable;
    static constexpr const char* kDisplayName = kResourcesClass;
};

const ResourcesRecord* checkResources(lua_State* L, int index) {
    return static_cast<const ResourcesRecord*>(
        utility::CheckProxyBlock(L, index, kResourcesMetaTable));
}

// Fills the empty image proxy block with the named image, handing it the reference the
// cache returned. False when the image cannot be had, for whatever reason the toolkit
// throws; no C++ object of this frame outlives the call.
bool loadImage(const ResourcesRecord& resources, const SupplierInterface* supplier,
               const char* name, ImageInterface** block) {
    if (!resources.manager || !resources.cache) return false;
    try {
        *block =
            resources.cache
                ->GetImage(*resources.manager, supplier, name, zebui::utility::kImageFileType_PNG)
                .detach();
    } catch (...) {
        return false;
    }
    return *block != nullptr;
}

// -- resources = zebUIResources.getResources(accessorName)
// No value for "app_resources" while there is no application.
int resourcesGetResources(lua_State* L) {
    const char* name = luaL_checkstring(L, 1);
    if (std::strcmp(name, kToolkitResources) == 0) {
        const auto* manager = zebui::ui::UI_NodeManager::Get(false);
        return PushResourcesToLua(L, manager->GetResourceManager(),
                                  manager->GetInkwellImageResourceCache());
    }
    if (std::strcmp(name, kFrameworkResources) == 0)
        return PushResourcesToLua(L, vex::utility::GetResourceManager(),
                                  vex::utility::GetInkwellImageCache());
    if (std::strcmp(name, kAppResources) == 0) {
        const vex::app::App* app = vex::app::App::GetApp();
        if (!app) return 0;
        return PushResourcesToLua(L, app->GetAppResourceManager(), app->GetInkwellImageCache());
    }
    return luaL_error(L, "resource accessor '%s' not found", name);
}

// -- zebUIResources.DisplayCursorFromImage(image [, hotX = -1 [, hotY = -1]])
// The hot spot is 16-bit; the cursor holds its own reference on the image.
int resourcesDisplayCursorFromImage(lua_State* L) {
    ImageInterface* image = *inkwell::zeblua_checkImage(L, 1);
    const lua_Integer hotX = lua_gettop(L) >= 2 ? luaL_checkinteger(L, 2) : -1;
    const lua_Integer hotY = lua_gettop(L) >= 3 ? luaL_checkinteger(L, 3) : -1;
    ZEB_ASSERT_MSG(image != nullptr, "Attempting to use an out-of-scope ImageInterface");
    if (!image) return 0;
    zebui::utility::DisplayCursorFromImage(image, static_cast<int16_t>(hotX),
                                           static_cast<int16_t>(hotY));
    return 0;
}

// -- image = resources:getImage(supplier, name)
// A PNG resource of that name, decoded by the supplier, cached by the accessor.
int resourcesGetImage(lua_State* L) {
    const ResourcesRecord* resources = checkResources(L, 1);
    const SupplierInterface* supplier = inkwell::zeblua_checkSupplier(L, 2);
    const char* name = luaL_checkstring(L, 3);
    // The proxy first, empty: once the image is in it, nothing can raise and lose the
    // reference.
    inkwell::newProxyFromImage(L, nullptr);
    if (!loadImage(*resources, supplier, name, inkwell::zeblua_checkImage(L, -1)))
        return luaL_error(L, "image '%s' not found", name);
    return 1;
}

// -- resources:DisplayCursor(cursorID)
int resourcesDisplayCursor(lua_State* L) {
    const ResourcesRecord* resources = checkResources(L, 1);
    const lua_Integer cursorID = luaL_checkinteger(L, 2);
    if (resources->manager) resources->manager->DisplayCursor(static_cast<int>(cursorID));
    return 0;
}

const luaL_Reg kResourcesFunctions[] = {
    {"getResources", resourcesGetResources},
    {"DisplayCursorFromImage", resourcesDisplayCursorFromImage},
    {nullptr, nullptr},
};

const luaL_Reg kResourcesMethods[] = {
    {"__gc", utility::NothingGC},
    {"__tostring", utility::Block2string<ResourcesProxy>},
    {"getImage", resourcesGetImage},
    {"DisplayCursor", resourcesDisplayCursor},
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaUIResourcesClassName = kResourcesClass;
const char* const kZebLuaUIResourcesMetaTableName = kResourcesMetaTable;

int PushResourcesToLua(lua_State* L, const ResourceManager* manager,
                       const InkwellImageResourceCache* cache) {
    new (utility::NewProxyBlock(L, sizeof(ResourcesRecord), kResourcesMetaTable,
                                luaopen_zebluaResources)) ResourcesRecord{manager, cache};
    return 1;
}

int luaopen_zebluaResources(lua_State* L) {
    utility::RegisterClassModule(L, kResourcesMetaTable, kResourcesMethods, kResourcesClass,
                                 kResourcesFunctions);
    utility::SetStringConstant(L, kToolkitResources, kToolkitResources);
    utility::SetStringConstant(L, kFrameworkResources, kFrameworkResources);
    utility::SetStringConstant(L, kAppResources, kAppResources);
    return 1;
}

}  // namespace ui
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebUIResources(lua_State* L) {
    return zeblua::ui::luaopen_zebluaResources(L);
}
