// Drawing scopes: which surface proxies a scope ends, and how every record that native
// code names by a bare address stays allocated while it is named.
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <vector>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/inkwell/src/LuaSurfaceInterface.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/MainThread.h"
#include "zeblua/utility/src/RegistryTables.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zeblua {
namespace inkwell {

namespace {

using utility::ClearPresentField;
using utility::HeldSelfReference;
using utility::PushOrMakeRegistryTable;
using utility::PushRegistryTable;
using utility::SelfReference;
using zebui::inkwell::Inkwell;
using zebui::inkwell::SurfaceInterface;

// A listed surface record, the Inkwell whose scope ends it, and where it is anchored: a slot
// of the scope table, or 0 for the anchor table of records made outside a guard.
struct LinkedRecord {
    Inkwell* inkwell;
    InkwellProxy* record;
    int slot;
};

// Scoped surface records in the order they were listed. Lua owns the records; each listed
// one is anchored until it leaves the list, so only lua_close can free a listed record,
// and the anchors' close sentinels unlist it first. Few at a time: a flat vector.
std::vector<LinkedRecord> sLinkedObjects;

// Guards open, across all states; a guard's record and surface slot are numbered by its depth.
int sScopeDepth = 0;

// A guard's Inkwell record is native, one per depth, and its proxy's userdata holds only a
// handle to it: the guard ends the record by its generation, so nothing has to hold the
// userdata while the scope is open, and the collector takes it whenever the script lets go.
// A handle kept past its scope finds another generation (0 while no guard of that depth is
// open) and reads as ended. A guard whose destructor a Lua error skipped (longjmp runs none)
// leaves its generation set, which the next guard of that depth finds.
struct ScopeRecord {
    InkwellProxy proxy;
    unsigned long long generation;
};
struct ScopeHandle {
    ScopeRecord* scope;
    unsigned long long generation;
};
// Lua nests at most a couple of hundred C calls in one state, and a guard is one of them.
constexpr int kDeepestScope = 256;
ScopeRecord sScopeRecords[kDeepestScope + 1];  // by depth, from 1
unsigned long long sLastGeneration = 0;
// What an ended handle reads: filled again at every read, so a write through one never stays.
InkwellProxy sEndedInkwell;

// What a light userdata that names no surface record stands for. Only ever nulled.
InkwellProxy sEndedSurface{nullptr, nullptr, nullptr, false, 0, 0};

// Registry keys, by address.
// The scope table, one per state: the two kinds' registered and scoped metatables, its own
// registry reference, then one slot per guard depth for the surface record its GetSurface
// made. Integer keys in the table's array part, so a scope hashes nothing, and a slot is
// only ever set again, never added, once the deepest scope has been open. It is itself the
// scoped Inkwell metatable (its slot names it), so GetSurface reaches the slots through the
// metatable of the proxy it is called on, which the proxy check has just read.
// The anchor table holds the records listed for an Inkwell made outside a guard. One weak
// table per slot, so that keeping a value costs no table per proxy either. The live
// records are weak-valued: an entry goes when the collector takes its record, whether or
// not a __gc runs, so a light userdata is checked there and never against memory that may
// be gone.
char sScopeTableKey;                          // see kInkwellMetatable and surfaceSlot
char sScopeAnchorsKey;                        // [lightud(record)] = its userdata
char sLiveRecordsKey;                         // weak values: [lightud(record)] = its userdata
char sKeptValuesKeys[kKeptBoundSurface + 1];  // per KeptSlot, weak keys: [proxy] = value

enum ScopeTableSlot {
    kInkwellMetatable = 1,
    kScopedInkwellMetatable,
    kSurfaceMetatable,
    kScopedSurfaceMetatable,
    kOwnReference,
    kFirstAnchorSlot,
};

// A draw path reads the scope table at every proxy check and every scope.
const utility::CachedRegistryReference sScopeTableReference;
// The addresses of the four metatables in the scope table, taken when its reference was
// kept: while it holds, a proxy check compares its metatable's address with these and reads
// no table. The scope table keeps them alive, so no other table can have their addresses.
const void* sMetatableAddresses[kScopedSurfaceMetatable + 1];

// Where the surface record that the guard of depth made is held.
int surfaceSlot(int depth) {
    return kFirstAnchorSlot + depth - 1;
}

int metatableSlot(DrawingKind kind, bool scoped) {
    if (kind == DrawingKind::kInkwell) return scoped ? kScopedInkwellMetatable : kInkwellMetatable;
    return scoped ? kScopedSurfaceMetatable : kSurfaceMetatable;
}

// The record joins the list; false when the list could not grow.
bool list(const LinkedRecord& linked) {
    try {
        sLinkedObjects.push_back(linked);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// The record leaves the list.
void unlist(const InkwellProxy* record) {
    sLinkedObjects.erase(
        std::remove_if(sLinkedObjects.begin(), sLinkedObjects.end(),
                       [record](const LinkedRecord& linked) { return linked.record == record; }),
        sLinkedObjects.end());
}

// A close sentinel of both anchor tables: a scope still open when the state closes (an
// Inkwell proxy made outside a guard, or an owned Inkwell a script stripped of its __gc, or
// a guard a Lua error skipped) must not leave the state's records listed once their memory
// goes. Metatables in the scope table are no records, and unlisting them finds nothing.
int unlistAnchoredRecords(lua_State* L) {
    for (const void* key : {&sScopeAnchorsKey, &sScopeTableKey}) {
        PushRegistryTable(L, key);
        if (lua_istable(L, -1)) {
            lua_pushnil(L);
            while (lua_next(L, -2)) { /* table, key, value */
                if (lua_type(L, -1) == LUA_TUSERDATA)
                    unlist(static_cast<const InkwellProxy*>(lua_touserdata(L, -1)));
                lua_pop(L, 1);
            }
        }
        lua_pop(L, 1);
    }
    return 0;
}

// Makes the table at scopedIndex the scoped form of the registered metatable on top of the
// stack: the same __index and __tostring, no __gc, and "__metatable" answering the
// registered table.
void makeScopedMetatable(lua_State* L, int scopedIndex) {
    for (const char* field : {"__index", "__tostring"}) {
        lua_getfield(L, -1, field);
        lua_setfield(L, scopedIndex, field);
    }
    lua_pushvalue(L, -1);
    lua_setfield(L, scopedIndex, "__metatable");
}

// Puts the registered metatable of metatableName, opening its module first if need be, and
// its scoped form in the scope table on top of the stack; the scoped Inkwell metatable is the
// scope table itself.
void fillMetatables(lua_State* L, DrawingKind kind, const char* metatableName,
                    utility::ModuleOpener opener) {
    const int table = lua_gettop(L);
    if (kind == DrawingKind::kInkwell)
        lua_pushvalue(L, table);
    else
        lua_createtable(L, 0, 3);                          /* T, scoped */
    utility::PushProxyMetatable(L, metatableName, opener); /* T, scoped, registered */
    makeScopedMetatable(L, table + 1);
    lua_rawseti(L, table, metatableSlot(kind, false)); /* T, scoped */
    lua_rawseti(L, table, metatableSlot(kind, true));  /* T */
}

// pushExistingScopeTable when the reference is not kept for L: looks the table up by its
// key, and keeps the reference when L can.
bool lookUpScopeTable(lua_State* L) {
    PushRegistryTable(L, &sScopeTableKey);
    if (!lua_istable(L, -1)) return false;
    sScopeTableReference.Keep(L, HeldSelfReference(L, -1, kOwnReference));
    for (int slot = kInkwellMetatable; slot <= kScopedSurfaceMetatable; ++slot) {
        lua_rawgeti(L, -1, slot);
        sMetatableAddresses[slot] = lua_topointer(L, -1);
        lua_pop(L, 1);
    }
    return true;
}

// Pushes the scope table of L's state and answers true; before the first scope, pushes nil
// and answers false. Raises no Lua error.
bool pushExistingScopeTable(lua_State* L) {
    return sScopeTableReference.Push(L) || lookUpScopeTable(L);
}

// Pushes the scope table, making it when missing, and answers its index. Raises Lua's memory
// error, or an opener's.
int pushScopeTable(lua_State* L) {
    if (sScopeTableReference.Push(L)) return lua_gettop(L);
    if (!lookUpScopeTable(L)) {
        lua_pop(L, 1);
        lua_createtable(L, kFirstAnchorSlot + 8, 0);
        fillMetatables(L, DrawingKind::kInkwell, kZebLuaInkwellMetaTableName,
                       luaopen_zebluaInkwell);
        fillMetatables(L, DrawingKind::kSurface, kZebLuaSurfaceMetaTableName,
                       luaopen_zebSurfaceInterface);
        // Named in the registry only once whole, with the sentinel of its anchors.
        PushOrMakeRegistryTable(L, &sScopeAnchorsKey, nullptr, unlistAnchoredRecords);
        lua_pop(L, 1);
        lua_pushlightuserdata(L, &sScopeTableKey);
        lua_pushvalue(L, -2);
        lua_rawset(L, LUA_REGISTRYINDEX); /* registry[key] = T */
    }
    if (!sScopeTableReference.Holds(L)) SelfReference(L, -1, kOwnReference); /* T[own] */
    return lua_gettop(L);
}

// A new userdata for a guard's surface record, with the scoped surface metatable from the
// scope table at tableIndex: the record is anchored in a slot for as long as its scope is
// open, so a __gc could never find it live, and ending it is then a write to its fields alone.
InkwellProxy* newScopedSurfaceRecord(lua_State* L, int tableIndex, const InkwellProxy& fields) {
    auto* record = new (lua_newuserdata(L, sizeof(InkwellProxy))) InkwellProxy(fields);
    lua_rawgeti(L, tableIndex, kScopedSurfaceMetatable);
    lua_setmetatable(L, -2);
    return record;
}

// A guard of depth whose destructor a Lua error skipped left its record open and its
// surface record listed: both are ended, and the surface record unlisted, before the depth
// is used again, so no listed record is ever let go. Ending an ended record again changes
// nothing. Raises no Lua error.
void endSkippedScope(lua_State* L, int depth) {
    ScopeRecord& scope = sScopeRecords[depth];
    InvalidateProxy(&scope.proxy);
    scope.generation = 0;
    if (pushExistingScopeTable(L)) {
        lua_rawgeti(L, -1, surfaceSlot(depth));
        if (auto* record = static_cast<InkwellProxy*>(lua_touserdata(L, -1))) {
            unlist(record);
            InvalidateProxy(record);
        }
        lua_pop(L, 1);
    }
    lua_pop(L, 1);
}

// The record a guard's handle names, or an ended one once its scope has closed.
InkwellProxy* handleRecord(const ScopeHandle& handle) {
    if (handle.scope->generation == handle.generation) return &handle.scope->proxy;
    sEndedInkwell = InkwellProxy{nullptr, nullptr, nullptr, false, 0, 0};
    return &sEndedInkwell;
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

// Names the surface record of parent as live: from here on light userdata name it, and only
// a record in this table is read through one. Its userdata is where parent's scope holds it.
void markLive(lua_State* L, const InkwellProxy& parent) {
    lua_checkstack(L, 4);
    if (parent.scopeDepth > 0) {
        pushExistingScopeTable(L);
        lua_rawgeti(L, -1, surfaceSlot(parent.scopeDepth));
    } else {
        PushRegistryTable(L, &sScopeAnchorsKey);
        lua_pushlightuserdata(L, parent.surfaceProxy);
        lua_rawget(L, -2);
    }
    if (lua_touserdata(L, -1) == parent.surfaceProxy) {
        PushOrMakeRegistryTable(L, &sLiveRecordsKey, "v", nullptr); /* T, ud, live */
        lua_pushlightuserdata(L, parent.surfaceProxy);
        lua_pushvalue(L, -3);
        lua_rawset(L, -3); /* live[record] = ud */
        lua_pop(L, 1);
    }
    lua_pop(L, 2);
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

// The slot of kind's metatable at that address, by the addresses taken with the scope
// table's reference, or 0.
int slotByAddress(const void* metatable, DrawingKind kind) {
    for (const bool scoped : {true, false})
        if (metatable == sMetatableAddresses[metatableSlot(kind, scoped)])
            return metatableSlot(kind, scoped);
    return 0;
}

// The slot of the metatable on top of the stack (popped) among kind's two in L's scope
// table, when the table's reference is not kept for L: found by looking the table up,
// which keeps the reference when L can. Raises no Lua error.
int slotByLookup(lua_State* L, DrawingKind kind) {
    const void* metatable = lua_topointer(L, -1);
    pushExistingScopeTable(L); /* mt, T */
    int matched = 0;
    if (sScopeTableReference.Holds(L)) {
        matched = slotByAddress(metatable, kind);
    } else if (lua_istable(L, -1)) {
        for (const bool scoped : {true, false}) {
            lua_rawgeti(L, -1, metatableSlot(kind, scoped));
            if (!matched && lua_rawequal(L, -1, -3)) matched = metatableSlot(kind, scoped);
            lua_pop(L, 1);
        }
    }
    lua_pop(L, 2);
    return matched;
}

// The slot in the scope table of the metatable of the value at index when it is one of kind's
// two, else 0. Raises no Lua error.
int scopeTableMetatableSlot(lua_State* L, int index, DrawingKind kind) {
    if (!lua_getmetatable(L, index)) return 0;
    if (!sScopeTableReference.Holds(L)) return slotByLookup(L, kind);
    const void* metatable = lua_topointer(L, -1);
    lua_pop(L, 1); /* the value at index keeps it alive */
    return slotByAddress(metatable, kind);
}

}  // namespace

AcquireInkwellProxy::AcquireInkwellProxy(lua_State* L, Inkwell* inkwell, int& argCount)
    : mL(L), mProxy(nullptr), mDepth(sScopeDepth + 1) {
    if (mDepth > kDeepestScope) luaL_error(L, "draw scopes nested deeper than %d", kDeepestScope);
    lua_checkstack(L, 6); /* the first scope of a state makes its table under the proxy */
    ScopeRecord& scope = sScopeRecords[mDepth];
    if (scope.generation != 0) endSkippedScope(L, mDepth);
    auto* handle = static_cast<ScopeHandle*>(lua_newuserdata(L, sizeof(ScopeHandle)));
    *handle = ScopeHandle{&scope, 0}; /* names no open scope until the end */
    pushScopeTable(L);                /* the scoped Inkwell metatable */
    lua_setmetatable(L, -2);          /* the last call that can raise */
    scope.proxy = InkwellProxy{inkwell, nullptr, nullptr, false, 0, mDepth};
    scope.generation = ++sLastGeneration;
    handle->generation = scope.generation;
    mProxy = &scope.proxy;
    sScopeDepth = mDepth;
    argCount = 1;
}

// The surface records of enclosing scopes on the same Inkwell end here too, but stay in
// their slots until their own scope closes, since their Inkwell records still name them.
// The guard's surface record stays in the slot of its depth, ended, until the next guard
// of that depth puts its own there: a closing scope writes no slot and calls no Lua function.
AcquireInkwellProxy::~AcquireInkwellProxy() {
    popScriptStates(*mProxy);
    EndInkwellScope(mL, mProxy->inkwell);
    // Only GetSurface fills the surface slot, and it names what it put there.
    if (mProxy->surfaceProxy) InvalidateProxy(mProxy->surfaceProxy);
    InvalidateProxy(mProxy);
    sScopeRecords[mDepth].generation = 0;
    sScopeDepth = mDepth - 1;
}

void* CheckDrawingProxy(lua_State* L, int index, DrawingKind kind) {
    const char* metatableName =
        kind == DrawingKind::kInkwell ? kZebLuaInkwellMetaTableName : kZebLuaSurfaceMetaTableName;
    void* block = lua_touserdata(L, index);
    if (block) {
        const int slot = scopeTableMetatableSlot(L, index, kind);
        if (slot == kScopedInkwellMetatable) return handleRecord(*static_cast<ScopeHandle*>(block));
        if (slot != 0) return block;
    }
    // No scope has opened in this state yet, or not one of these: the plain check decides.
    return utility::CheckProxyBlock(L, index, metatableName);
}

int newProxyFromInkwell(lua_State* L, Inkwell* inkwell, InkwellProxy** out) {
    auto* proxy = new (utility::NewProxyBlock(L, sizeof(InkwellProxy), kZebLuaInkwellMetaTableName,
                                              luaopen_zebluaInkwell))
        InkwellProxy{inkwell, nullptr, nullptr, false, 0, 0};
    if (out) *out = proxy;
    return 1;
}

int newProxyFromSurface(lua_State* L, Inkwell* inkwell, SurfaceInterface* surface,
                        InkwellProxy* parent, InkwellProxy** out, bool owned) {
    if (parent && parent->surfaceProxy && !owned) {
        InkwellProxy* existing = parent->surfaceProxy;
        markLive(L, *parent);
        lua_pushlightuserdata(L, existing);
        luaL_getmetatable(L, kZebLuaSurfaceMetaTableName);
        lua_setmetatable(L, -2); /* the metatable of every light userdata */
        if (out) *out = existing;
        return 1;
    }
    const InkwellProxy fields{nullptr, surface, nullptr, owned, 0, 0};
    InkwellProxy* proxy = nullptr;
    int slot = 0;
    if (!owned && parent && parent->scopeDepth > 0) {
        // The scope table is the metatable of parent's proxy at 1. The few values this pushes
        // fit in the LUA_MINSTACK free slots Lua gives the methods that call it.
        lua_getmetatable(L, 1);
        const int table = lua_gettop(L);
        proxy = newScopedSurfaceRecord(L, table, fields);
        slot = surfaceSlot(parent->scopeDepth);
        lua_pushvalue(L, -1);
        lua_rawseti(L, table, slot);
        lua_remove(L, table);
    } else {
        proxy = new (utility::NewProxyBlock(L, sizeof(InkwellProxy), kZebLuaSurfaceMetaTableName,
                                            luaopen_zebSurfaceInterface)) InkwellProxy(fields);
        if (!owned) anchor(L, proxy);
    }
    if (!owned) {
        if (!list(LinkedRecord{inkwell, proxy, slot})) {
            InvalidateProxy(proxy);
            if (slot == 0) releaseAnchor(L, proxy); /* a slot's record goes with its scope */
            lua_pop(L, 1);
            return 0;
        }
        if (parent) parent->surfaceProxy = proxy;
    }
    if (out) *out = proxy;
    return 1;
}

void InvalidateInkwellSubObjects(Inkwell* inkwell) {
    auto kept = sLinkedObjects.begin();
    for (const LinkedRecord& linked : sLinkedObjects) {
        if (linked.inkwell == inkwell)
            InvalidateProxy(linked.record);
        else
            *kept++ = linked;
    }
    sLinkedObjects.erase(kept, sLinkedObjects.end());
}

void InvalidateProxy(InkwellProxy* proxy) {
    proxy->inkwell = nullptr;
    proxy->surface = nullptr;
}

void EndInkwellScope(lua_State* L, Inkwell* inkwell) {
    if (sLinkedObjects.empty()) return; /* most scopes took no surface */
    // Clearing a present field never allocates, so no collection can take a record before
    // InvalidateInkwellSubObjects has written to it.
    for (const LinkedRecord& linked : sLinkedObjects)
        if (linked.inkwell == inkwell && linked.slot == 0) releaseAnchor(L, linked.record);
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
