// Drawing scopes: which surface proxies a scope ends, and how every record that native
// code names by a bare address stays allocated while it is named.
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"

#include <cstddef>
#include <iterator>
#include <list>
#include <map>
#include <new>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/inkwell/src/LuaSurfaceInterface.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/RegistryTables.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zeblua {
namespace inkwell {

namespace {

using utility::ClearPresentField;
using utility::PushOrMakeRegistryTable;
using utility::PushRegistryTable;
using zebui::inkwell::Inkwell;
using zebui::inkwell::SurfaceInterface;

// Scoped surface records by the Inkwell whose scope ends them. Lua owns the records;
// each listed one is anchored (sScopeAnchorsKey) until it leaves the list, so only
// lua_close can free a listed record, and the anchors' close sentinel unlists it first.
std::map<Inkwell*, std::list<InkwellProxy*>> sLinkedObjects;

// What a light userdata that names no surface record stands for. Only ever nulled.
InkwellProxy sEndedSurface{nullptr, nullptr, nullptr, false, 0};

// Registry keys, by address.
// One anchor table holds the Inkwell proxy of every open scope and every listed surface
// record: few live keys at a time, so a new key mostly takes a released one's slot, and a
// scope costs no table of its own. One weak table per slot, so that keeping a value costs
// no table per proxy either. The live records are weak-valued: an entry goes when the
// collector takes its record, whether or not a __gc runs, so a light userdata is checked
// there and never against memory that may be gone.
char sScopeAnchorsKey;                        // [lightud(record)] = its userdata
char sLiveRecordsKey;                         // weak values: [lightud(record)] = its userdata
char sKeptValuesKeys[kKeptBoundSurface + 1];  // per KeptSlot, weak keys: [proxy] = value

// The record leaves every list it is in.
void unlist(const InkwellProxy* record) {
    for (auto entry = sLinkedObjects.begin(); entry != sLinkedObjects.end();) {
        entry->second.remove(const_cast<InkwellProxy*>(record));
        entry = entry->second.empty() ? sLinkedObjects.erase(entry) : std::next(entry);
    }
}

// The anchors' close sentinel: a scope still open when the state closes (an Inkwell proxy
// made outside a guard, or an owned Inkwell a script stripped of its __gc) must not leave
// the state's records listed once their memory goes.
int unlistAnchoredRecords(lua_State* L) {
    PushRegistryTable(L, &sScopeAnchorsKey);
    if (!lua_istable(L, -1)) return 0;
    lua_pushnil(L);
    while (lua_next(L, -2)) { /* anchors, key, userdata */
        lua_pop(L, 1);
        unlist(static_cast<const InkwellProxy*>(lua_touserdata(L, -1)));
    }
    return 0;
}

// Holds the userdata on top of the stack (left there), whose block is record, until
// releaseAnchor.
void anchor(lua_State* L, InkwellProxy* record) {
    PushOrMakeRegistryTable(L, &sScopeAnchorsKey, nullptr, unlistAnchoredRecords); /* ud, anchors */
    lua_pushlightuserdata(L, record);
    lua_pushvalue(L, -3);
    lua_rawset(L, -3); /* anchors[record] = ud */
    lua_pop(L, 1);
}

// Lets the collector have record again; raises no Lua error.
void releaseAnchor(lua_State* L, InkwellProxy* record) {
    PushRegistryTable(L, &sScopeAnchorsKey);
    if (lua_istable(L, -1)) {
        lua_pushlightuserdata(L, record);
        ClearPresentField(L, lua_gettop(L) - 1);
    }
    lua_pop(L, 1);
}

// Names the surface record userdata on top of the stack (left there) as live.
void markLive(lua_State* L, InkwellProxy* record) {
    PushOrMakeRegistryTable(L, &sLiveRecordsKey, "v", nullptr); /* ud, live */
    lua_pushlightuserdata(L, record);
    lua_pushvalue(L, -3);
    lua_rawset(L, -3); /* live[record] = ud */
    lua_pop(L, 1);
}

// Pops what the script pushed on the state stack of the scope's surface and did not pop:
// the state the scope's opener saved is then on top again.
void popScriptStates(const InkwellProxy& inkwellProxy) {
    InkwellProxy* record = inkwellProxy.surfaceProxy;
    if (!record || !inkwellProxy.inkwell) return;
    SurfaceInterface* surface = inkwellProxy.inkwell->GetSurface();
    for (; record->pushedStates > 0; --record->pushedStates)
        if (surface) surface->PopStateStack();
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
    popScriptStates(*mProxy);
    EndInkwellScope(mL, mProxy->inkwell);
    InvalidateProxy(mProxy);
    releaseAnchor(mL, mProxy);
}

int newProxyFromInkwell(lua_State* L, Inkwell* inkwell, InkwellProxy** out) {
    auto* proxy = new (utility::NewProxyBlock(L, sizeof(InkwellProxy), kZebLuaInkwellMetaTableName,
                                              luaopen_zebluaInkwell))
        InkwellProxy{inkwell, nullptr, nullptr, false, 0};
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
    auto* proxy = new (utility::NewProxyBlock(L, sizeof(InkwellProxy), kZebLuaSurfaceMetaTableName,
                                              luaopen_zebSurfaceInterface))
        InkwellProxy{nullptr, surface, nullptr, owned, 0};
    markLive(L, proxy);
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
    if (!lua_islightuserdata(L, index)) return record;
    PushRegistryTable(L, &sLiveRecordsKey);
    bool live = false;
    if (lua_istable(L, -1)) {
        lua_pushlightuserdata(L, record);
        lua_rawget(L, -2);
        live = !lua_isnil(L, -1);
        lua_pop(L, 1);
    }
    lua_pop(L, 1);
    return live ? record : &sEndedSurface;
}

void KeepWithProxy(lua_State* L, int proxyIndex, KeptSlot slot) {
    proxyIndex = absoluteIndex(L, proxyIndex);
    PushOrMakeRegistryTable(L, &sKeptValuesKeys[slot], "k", nullptr); /* value, kept */
    lua_pushvalue(L, proxyIndex);
    lua_pushvalue(L, -3);
    lua_rawset(L, -3); /* kept[proxy] = value */
    lua_pop(L, 2);
}

void PushKeptValue(lua_State* L, int proxyIndex, KeptSlot slot) {
    proxyIndex = absoluteIndex(L, proxyIndex);
    PushRegistryTable(L, &sKeptValuesKeys[slot]);
    if (lua_istable(L, -1)) {
        lua_pushvalue(L, proxyIndex);
        lua_rawget(L, -2);
        lua_remove(L, -2);
    }
}

void DropKeptValue(lua_State* L, int proxyIndex, KeptSlot slot) {
    proxyIndex = absoluteIndex(L, proxyIndex);
    PushRegistryTable(L, &sKeptValuesKeys[slot]);
    if (lua_istable(L, -1)) {
        lua_pushvalue(L, proxyIndex);
        ClearPresentField(L, lua_gettop(L) - 1);
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
