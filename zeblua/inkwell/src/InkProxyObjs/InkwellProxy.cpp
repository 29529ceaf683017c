// Drawing scopes: which surface proxies a scope ends, and how every record that native
// code names by a bare address stays allocated while it is named.
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"

#include <cstddef>
#include <iterator>
#include <list>
#include <map>
#include <new>
#include <unordered_set>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/inkwell/src/LuaSurfaceInterface.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zeblua {
namespace inkwell {

namespace {

using zebui::inkwell::Inkwell;
using zebui::inkwell::SurfaceInterface;

// Scoped surface records by the Inkwell whose scope ends them. Lua owns the records;
// each listed one is anchored (sScopeAnchorsKey) until it leaves the list.
std::map<Inkwell*, std::list<InkwellProxy*>> sLinkedObjects;

// Every surface record the collector has not taken, for checking light userdata.
std::unordered_set<const InkwellProxy*> sSurfaceRecords;

// What a light userdata that names no surface record stands for. Only ever nulled.
InkwellProxy sEndedSurface{nullptr, nullptr, nullptr, false};

// Registry keys, by address. Light userdata keys cost no allocation to look up or clear,
// so a scope can close during unwinding without the risk of a Lua memory error.
// One anchor table holds the Inkwell proxy of every open scope and every listed surface
// record: few live keys at a time, so a new key mostly takes a released one's slot, and a
// scope costs no table of its own. One weak table per slot, so that keeping a value costs
// no table per proxy either.
char sScopeAnchorsKey;                        // [lightud(record)] = its userdata
char sKeptValuesKeys[kKeptBoundSurface + 1];  // per KeptSlot, weak keys: [proxy] = value

// Pushes the registry table under key, or nil.
void pushRegistryTable(lua_State* L, char* key) {
    lua_pushlightuserdata(L, key);
    lua_rawget(L, LUA_REGISTRYINDEX);
}

// Pushes the registry table under key, making it when missing; weakKeys gives it mode "k".
void pushOrMakeRegistryTable(lua_State* L, char* key, bool weakKeys) {
    pushRegistryTable(L, key);
    if (lua_istable(L, -1)) return;
    lua_pop(L, 1);
    lua_newtable(L);
    if (weakKeys) {
        lua_createtable(L, 0, 1);
        lua_pushstring(L, "k");
        lua_setfield(L, -2, "__mode");
        lua_setmetatable(L, -2);
    }
    lua_pushlightuserdata(L, key);
    lua_pushvalue(L, -2);
    lua_rawset(L, LUA_REGISTRYINDEX); /* registry[key] = table */
}

// Pops a key and clears that field of the table at tableIndex (absolute) if it is set.
// Setting nil on a present key never allocates; on an absent one it could.
void clearPresentField(lua_State* L, int tableIndex) {
    lua_pushvalue(L, -1);
    lua_rawget(L, tableIndex); /* key, value */
    const bool present = !lua_isnil(L, -1);
    lua_pop(L, 1);
    if (present) {
        lua_pushnil(L);
        lua_rawset(L, tableIndex); /* t[key] = nil; pops key and nil */
    } else {
        lua_pop(L, 1);
    }
}

// Holds the userdata on top of the stack (left there), whose block is record, until
// releaseAnchor.
void anchor(lua_State* L, InkwellProxy* record) {
    pushOrMakeRegistryTable(L, &sScopeAnchorsKey, false); /* ud, anchors */
    lua_pushlightuserdata(L, record);
    lua_pushvalue(L, -3);
    lua_rawset(L, -3); /* anchors[record] = ud */
    lua_pop(L, 1);
}

// Lets the collector have record again; raises no Lua error.
void releaseAnchor(lua_State* L, InkwellProxy* record) {
    pushRegistryTable(L, &sScopeAnchorsKey);
    if (lua_istable(L, -1)) {
        lua_pushlightuserdata(L, record);
        clearPresentField(L, lua_gettop(L) - 1);
    }
    lua_pop(L, 1);
}

int absoluteIndex(lua_State* L, int index) {
    return index > 0 ? index : lua_gettop(L) + index + 1;
}

}  // namespace

AcquireInkwellProxy::AcquireInkwellProxy(lua_State* L, Inkwell* inkwell, int& argCount)
    : mL(L), mProxy(nullptr) {
    newProxyFromInkwell(L, inkwell, &mProxy);
    anchor(L, mProxy); /* for the scope */
    argCount = 1;
}

AcquireInkwellProxy::~AcquireInkwellProxy() {
    EndInkwellScope(mL, mProxy->inkwell);
    InvalidateProxy(mProxy);
    releaseAnchor(mL, mProxy);
}

int newProxyFromInkwell(lua_State* L, Inkwell* inkwell, InkwellProxy** out) {
    auto* proxy = new (utility::NewProxyBlock(L, sizeof(InkwellProxy), kZebLuaInkwellMetaTableName))
        InkwellProxy{inkwell, nullptr, nullptr, false};
    if (out) *out = proxy;
    return 1;
}

int newProxyFromSurface(lua_State* L, Inkwell* inkwell, SurfaceInterface* surface,
                        InkwellProxy* parent, InkwellProxy** out, bool owned) {
    if (parent && parent->surfaceProxy && !owned) {
        InkwellProxy* existing = parent->surfaceProxy;
        lua_pushlightuserdata(L, existing);
        luaL_getmetatable(L, kZebLuaSurfaceMetaTableName);
        lua_setmetatable(L, -2); /* the metatable of every light userdata */
        if (out) *out = existing;
        return 1;
    }
    auto* proxy = new (utility::NewProxyBlock(L, sizeof(InkwellProxy), kZebLuaSurfaceMetaTableName))
        InkwellProxy{nullptr, surface, nullptr, owned};
    // Its __gc takes it out again; without the module's metatable there is no __gc, and
    // a light userdata of it is then never taken for live.
    if (lua_getmetatable(L, -1)) {
        lua_pop(L, 1);
        sSurfaceRecords.insert(proxy);
    }
    if (!owned) {
        anchor(L, proxy);
        if (parent) parent->surfaceProxy = proxy;
        SurfaceBeginScope(inkwell, proxy);
    }
    if (out) *out = proxy;
    return 1;
}

void SurfaceBeginScope(Inkwell* inkwell, InkwellProxy* proxy) {
    std::list<InkwellProxy*>* depList = &sLinkedObjects[inkwell];
    // ZEB_ASSERT would expand NULL before taking the condition's text.
    ZEB_ASSERT_MSG(depList != NULL, "");
    depList->push_back(proxy);
}

void InvalidateInkwellSubObjects(Inkwell* inkwell) {
    const auto found = sLinkedObjects.find(inkwell);
    if (found == sLinkedObjects.end()) return;
    for (InkwellProxy* proxy : found->second)
        InvalidateProxy(proxy);
    sLinkedObjects.erase(found);
}

void InvalidateProxy(InkwellProxy* proxy) {
    proxy->inkwell = nullptr;
    proxy->surface = nullptr;
}

void EndInkwellScope(lua_State* L, Inkwell* inkwell) {
    const auto found = sLinkedObjects.find(inkwell);
    if (found == sLinkedObjects.end()) return;
    // Clearing a present field never allocates, so no collection can take a record before
    // InvalidateInkwellSubObjects has written to it.
    for (InkwellProxy* record : found->second)
        releaseAnchor(L, record);
    InvalidateInkwellSubObjects(inkwell);
}

InkwellProxy* SurfaceRecordAt(lua_State* L, int index) {
    auto* record = static_cast<InkwellProxy*>(lua_touserdata(L, index));
    if (lua_islightuserdata(L, index) && sSurfaceRecords.count(record) == 0) return &sEndedSurface;
    return record;
}

void ForgetSurfaceRecord(InkwellProxy* record) {
    sSurfaceRecords.erase(record);
    // Only a lua_close with a scope still open gets here with the record listed: the
    // anchors hold every listed record until its scope ends.
    for (auto entry = sLinkedObjects.begin(); entry != sLinkedObjects.end();) {
        entry->second.remove(record);
        entry = entry->second.empty() ? sLinkedObjects.erase(entry) : std::next(entry);
    }
}

void KeepWithProxy(lua_State* L, int proxyIndex, KeptSlot slot) {
    proxyIndex = absoluteIndex(L, proxyIndex);
    pushOrMakeRegistryTable(L, &sKeptValuesKeys[slot], true); /* value, kept */
    lua_pushvalue(L, proxyIndex);
    lua_pushvalue(L, -3);
    lua_rawset(L, -3); /* kept[proxy] = value */
    lua_pop(L, 2);
}

void PushKeptValue(lua_State* L, int proxyIndex, KeptSlot slot) {
    proxyIndex = absoluteIndex(L, proxyIndex);
    pushRegistryTable(L, &sKeptValuesKeys[slot]);
    if (lua_istable(L, -1)) {
        lua_pushvalue(L, proxyIndex);
        lua_rawget(L, -2);
        lua_remove(L, -2);
    }
}

void DropKeptValue(lua_State* L, int proxyIndex, KeptSlot slot) {
    proxyIndex = absoluteIndex(L, proxyIndex);
    pushRegistryTable(L, &sKeptValuesKeys[slot]);
    if (lua_istable(L, -1)) {
        lua_pushvalue(L, proxyIndex);
        clearPresentField(L, lua_gettop(L) - 1);
    }
    lua_pop(L, 1);
}

zebui::inkwell::SupplierInterface* DrawingSupplierOf(const InkwellProxy* proxy) {
    if (proxy->inkwell && proxy->inkwell->GetSupplier()) return proxy->inkwell->GetSupplier();
    if (proxy->surface && proxy->surface->GetSupplier()) return proxy->surface->GetSupplier();
    return zebui::ui::UI_NodeManager::Get(false)->GetDefaultSupplier();
}

}  // namespace inkwell
}  // namespace zeblua
