// zebInkwell: surfaces and suppliers from an Inkwell proxy, and Inkwells of a script's own.
#include "zeblua/inkwell/src/LuaInkwell.h"

#include <memory>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaSupplier.h"
#include "zeblua/inkwell/src/LuaSurfaceInterface.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/inkwell/FontInterface.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/RedrawDebugFlash.h"
#include "zebui/inkwell/SupplierInterface.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/ThemeFonts.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zeblua {
namespace inkwell {

const char* const kZebLuaInkwellClassName = "zebInkwell";
const char* const kZebLuaInkwellMetaTableName = "zeblua.zebInkwell";

namespace {

using zebui::inkwell::FontInterface;
using zebui::inkwell::Inkwell;
using zebui::inkwell::SupplierInterface;
using zebui::inkwell::SurfaceInterface;

// Deletes the Inkwell of an owned proxy at index 1. Every record that names it by address
// forgets it first: the surfaces GetSurface took from it end, and the surface NewInkwell
// bound it to keeps drawing without it. Raises no Lua error.
void endOwnedInkwell(lua_State* L, InkwellProxy* proxy) {
    Inkwell* inkwell = proxy->inkwell;
    proxy->inkwell = nullptr;
    EndInkwellScope(L, inkwell);
    PushKeptValue(L, 1, kKeptBoundSurface);
    if (!lua_isnil(L, -1)) {
        InkwellProxy* bound = SurfaceRecordAt(L, -1);
        if (bound->inkwell == inkwell) bound->inkwell = nullptr;
    }
    lua_pop(L, 1);
    DropKeptValue(L, 1, kKeptBoundSurface);
    SurfaceInterface* surface = inkwell->GetSurface();
    delete inkwell;
    if (surface) intrusive_ptr_release(surface);  // the reference NewInkwell took
}

// -- ink:Release(), and __gc
// Only an Inkwell that NewInkwell made is deleted; a draw callback's belongs to the toolkit.
int inkwellRelease(lua_State* L) {
    if (utility::IsCopiedFinalizer(L, kZebLuaInkwellMetaTableName)) return 0;
    InkwellProxy* proxy = zeblua_checkInkwell(L, 1);
    if (proxy->owned && proxy->inkwell) endOwnedInkwell(L, proxy);
    return 0;
}

// -- "zebInkwell(%p)" of the Inkwell, null once ended
int inkwell2string(lua_State* L) {
    return utility::PushProxyString(L, kZebLuaInkwellClassName, zeblua_checkInkwell(L, 1)->inkwell);
}

// -- surface = ink:CreateOffscreenSurface(width, height, flag)
// A new owned surface proxy with no Inkwell until NewInkwell; the flag is the supplier's.
int inkwellCreateOffscreenSurface(lua_State* L) {
    InkwellProxy* proxy = zeblua_checkInkwell(L, 1);
    if (!InkwellInScope(proxy)) return 0;
    const int width = static_cast<int>(luaL_checkinteger(L, 2));
    const int height = static_cast<int>(luaL_checkinteger(L, 3));
    const bool flag = lua_toboolean(L, 4) != 0;
    // The proxy first: its push is the only thing that can raise a Lua error, and the
    // surface must not exist yet if it does. Making the surface can throw.
    return utility::RunNative(L, "CreateOffscreenSurface", [&] {
        InkwellProxy* surface = nullptr;
        newProxyFromSurface(L, proxy->inkwell, nullptr, proxy, &surface, true);
        surface->surface = DrawingSupplierOf(proxy)->MakeOffscreenSurface(width, height, flag);
        if (surface->surface) intrusive_ptr_add_ref(surface->surface);
        return 1;
    });
}

// -- surface = ink:GetSurface()
// One record per scope: a second call gives the same record as a light userdata.
int inkwellGetSurface(lua_State* L) {
    InkwellProxy* proxy = zeblua_checkInkwell(L, 1);
    if (!InkwellInScope(proxy)) return 0;
    const bool first = proxy->surfaceProxy == nullptr;
    InkwellProxy* surface = nullptr;
    if (!newProxyFromSurface(L, proxy->inkwell, proxy->inkwell->GetSurface(), proxy, &surface,
                             false))
        return luaL_error(L, "GetSurface: %s", "std::bad_alloc"); /* as a thrown one reads */
    surface->inkwell = proxy->inkwell;
    if (first && proxy->scopeDepth == 0) {
        // surfaceProxy is a bare address: the record lives at least as long as this proxy.
        // A guard's proxy needs none of this: its scope's slot holds the record until the
        // proxy has ended, and an ended proxy never reads surfaceProxy.
        lua_pushvalue(L, -1);
        KeepWithProxy(L, 1, kKeptScopedSurface);
    }
    return 1;
}

// -- supplier = ink:GetSupplier()
int inkwellGetSupplier(lua_State* L) {
    InkwellProxy* proxy = zeblua_checkInkwell(L, 1);
    if (!InkwellInScope(proxy)) return 0;
    return PushSupplierToLua(L, proxy->inkwell->GetSupplier());
}

// -- zebInkwell.SetRedrawDebugFlashDelay(delay)
int inkwellSetRedrawDebugFlashDelay(lua_State* L) {
    zebui::inkwell::SetRedrawDebugFlashDelay(static_cast<unsigned>(luaL_checknumber(L, 1)));
    return 0;
}

// -- ink = zebInkwell.NewInkwell(surface)
// An owned Inkwell over the surface, with the surface's supplier or the default one. It
// holds a reference on the surface, so releasing the surface first leaves it drawable.
int inkwellNewInkwell(lua_State* L) {
    InkwellProxy* surface = zeblua_checkSurface(L, 1);
    if (!SurfaceInScope(surface)) return 0;
    InkwellProxy* proxy = nullptr;
    newProxyFromInkwell(L, nullptr, &proxy);
    const int proxyIndex = lua_gettop(L);
    lua_pushvalue(L, 1);
    KeepWithProxy(L, proxyIndex, kKeptBoundSurface); /* the last push that can raise */
    SupplierInterface* supplier = surface->surface->GetSupplier();
    if (!supplier) supplier = zebui::ui::UI_NodeManager::Get(false)->GetDefaultSupplier();
    proxy->inkwell = utility::RunNative(L, "NewInkwell",
                                        [&] { return new Inkwell(supplier, surface->surface); });
    proxy->owned = true;
    intrusive_ptr_add_ref(surface->surface);
    surface->inkwell = proxy->inkwell;
    return 1;
}

// The width of text in a font of the application's default supplier; family null is the
// theme's main family. The font is made at count 0 and never held: deleted here.
float measureWithoutSurface(const char* text, float size, const char* family) {
    const zebcore::UTF16String units = zebcore::utility::UTF8to16(text);
    const zebcore::UTF16String familyUnits =
        family ? zebcore::utility::UTF8to16(family) : zebui::ui::GetFontName(0);
    const std::unique_ptr<FontInterface> font(
        zebui::ui::UI_NodeManager::Get(false)->GetDefaultSupplier()->MakeFont(
            reinterpret_cast<const unsigned short*>(familyUnits.c_str()), nullptr, size));
    return font ? font->MeasureText(units, -1) : 0.0f;
}

// -- width = zebInkwell.MeasureStringWidth(text)
// -- width = zebInkwell.MeasureStringWidth(text, nil, nil, fontSize, family)
// Measures without a surface. Beyond the text the size comes from position 4 and the
// family (UTF-8) from position 5, and positions 2 and 3 are never read: one argument or
// five work, and two to four raise the argument error of the position that is missing.
int inkwellMeasureStringWidth(lua_State* L) {
    const char* text = luaL_checkstring(L, 1);
    const int count = lua_gettop(L);
    const lua_Number size =
        count > 1 ? luaL_checknumber(L, 4) : zebui::controls::UI_ControlView::DefaultTextSize();
    const char* family = count >= 3 ? luaL_checkstring(L, 5) : nullptr;
    const float width = utility::RunNative(L, "MeasureStringWidth", [&] {
        return measureWithoutSurface(text, static_cast<float>(size), family);
    });
    lua_pushnumber(L, width);
    return 1;
}

const luaL_Reg kInkwellFunctions[] = {
    {"SetRedrawDebugFlashDelay", inkwellSetRedrawDebugFlashDelay},
    {"NewInkwell", inkwellNewInkwell},
    {"MeasureStringWidth", inkwellMeasureStringWidth},
    {nullptr, nullptr},
};

const luaL_Reg kInkwellMethods[] = {
    {"__gc", inkwellRelease},
    {"Release", inkwellRelease},
    {"__tostring", inkwell2string},
    {"CreateOffscreenSurface", inkwellCreateOffscreenSurface},
    {"GetSurface", inkwellGetSurface},
    {"GetSupplier", inkwellGetSupplier},
    {nullptr, nullptr},
};

}  // namespace

InkwellProxy* zeblua_checkInkwell(lua_State* L, int index) {
    return static_cast<InkwellProxy*>(CheckDrawingProxy(L, index, DrawingKind::kInkwell));
}

bool InkwellInScope(const InkwellProxy* proxy) {
    ZEB_ASSERT_MSG(proxy->inkwell != nullptr, "Attempting to use an out-of-scope Inkwell");
    return proxy->inkwell != nullptr;
}

int luaopen_zebluaInkwell(lua_State* L) {
    utility::RegisterClassModule(L, kZebLuaInkwellMetaTableName, kInkwellMethods,
                                 kZebLuaInkwellClassName, kInkwellFunctions);
    return 1;
}

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebInkwell(lua_State* L) {
    return zeblua::inkwell::luaopen_zebluaInkwell(L);
}
