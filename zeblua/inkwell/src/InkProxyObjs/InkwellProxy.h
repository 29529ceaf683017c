// Drawing scopes: the record behind Inkwell and surface proxies, the guard that opens and
// closes a scope around a draw callback, and the registry of surface proxies a scope ends.
#pragma once

struct lua_State;

namespace zebui {
namespace inkwell {
class Inkwell;
class SupplierInterface;
class SurfaceInterface;
}  // namespace inkwell
}  // namespace zebui

namespace zeblua {
namespace inkwell {

// The whole payload of an Inkwell proxy and of a surface proxy; the metatable tells them
// apart. A null inkwell (Inkwell proxy) or surface (surface proxy) means the proxy has
// ended: out of scope or released.
struct InkwellProxy {
    // Inkwell proxy: the drawing object. Surface proxy: the Inkwell that draws on the
    // surface, null for an offscreen surface until NewInkwell binds one.
    zebui::inkwell::Inkwell* inkwell;
    // Surface proxy only: the surface.
    zebui::inkwell::SurfaceInterface* surface;
    // Inkwell proxy only: the surface proxy GetSurface made, not owned.
    InkwellProxy* surfaceProxy;
    // Inkwell proxy: it deletes the Inkwell (NewInkwell). Surface proxy: it holds one
    // reference on an offscreen surface.
    bool owned;
    // Surface proxy only: states its PushStateStack pushed that its PopStateStack has not
    // popped. A pop beyond them is refused, so a script never pops a state its scope's
    // opener saved, and the scope pops what is left when it closes.
    int pushedStates;
    // Inkwell proxy only: the depth of the guard whose record it is, whose slot holds the
    // surface record it makes; 0 for one made outside a guard.
    int scopeDepth;
};

// Scope guard of a draw callback, made on the native stack right before lua_pcall:
//   lua_rawgeti(L, LUA_REGISTRYINDEX, fn);
//   int argCount = 0;
//   { AcquireInkwellProxy scope(L, inkwell, argCount); lua_pcall(L, argCount, 0, 0); }
// Pushes the Inkwell proxy the callback receives: a fresh userdata, never one of an
// earlier scope, holding a handle to the guard's native record. The destructor, on return
// or on unwinding, pops the states the callback pushed on its surface and left there, then
// ends that record, which every handle to it then reads as ended, and every surface proxy
// taken on the same Inkwell, also those of an enclosing scope. The surface record the
// proxy makes is held in the slot of the scope's depth, so a callback that drops it cannot
// free what the destructor writes to. Both carry their kind's scoped metatable, which has
// no __gc, so collecting them costs nothing and ending them calls no Lua function. Raises
// only Lua's memory error, or an error for guards nested deeper than 256, and only while
// it is being made.
class AcquireInkwellProxy {
public:
    // Sets argCount to 1, the one value pushed.
    AcquireInkwellProxy(lua_State* L, zebui::inkwell::Inkwell* inkwell, int& argCount);
    ~AcquireInkwellProxy();
    AcquireInkwellProxy(const AcquireInkwellProxy&) = delete;
    AcquireInkwellProxy& operator=(const AcquireInkwellProxy&) = delete;

private:
    lua_State* mL;
    InkwellProxy* mProxy;  // the native record of mDepth
    int mDepth;
};

enum class DrawingKind { kInkwell, kSurface };

// The record of the Inkwell or surface proxy at index: its metatable is the kind's registered
// one or, for a guard's proxies, the kind's scoped one, which answers the same methods and
// whose "__metatable" is the registered one, so getmetatable shows no difference. A guard's
// Inkwell proxy gives its native record, or an ended record once its scope has closed; any
// other gives its userdata's block. Anything else raises luaL_checkudata's error with the
// registered name.
void* CheckDrawingProxy(lua_State* L, int index, DrawingKind kind);

// Pushes an Inkwell proxy that lends inkwell, outside any scope; returns 1.
int newProxyFromInkwell(lua_State* L, zebui::inkwell::Inkwell* inkwell, InkwellProxy** out);

// Pushes a surface proxy; returns 1. Not owned and parent already holding a surface proxy:
// pushes that record's address as a light userdata with the surface metatable, which Lua
// 5.1 then gives every light userdata in the state; a method call on it reaches the same
// record. Otherwise a new record (inkwell null); not owned, it becomes parent's surface
// proxy, is listed in the scope of inkwell and is held until that scope ends: in the slot of
// parent's depth when parent is a guard's (its proxy, a method's self, is then at index 1),
// else in a registry table (an owned Inkwell's scope ends when it is released). Owned: the
// caller adds the surface's reference. Raises Lua's memory error; returns 0, pushing nothing,
// when the list could not grow.
int newProxyFromSurface(lua_State* L, zebui::inkwell::Inkwell* inkwell,
                        zebui::inkwell::SurfaceInterface* surface, InkwellProxy* parent,
                        InkwellProxy** out, bool owned);

// Ends every surface proxy listed under inkwell, in list order, and forgets the list.
void InvalidateInkwellSubObjects(zebui::inkwell::Inkwell* inkwell);

// Ends one proxy: inkwell and surface become null.
void InvalidateProxy(InkwellProxy* proxy);

// Closes the scope on inkwell: InvalidateInkwellSubObjects, then lets the collector have
// the records it kept writable. Raises no Lua error.
void EndInkwellScope(lua_State* L, zebui::inkwell::Inkwell* inkwell);

// The record of the surface proxy at index (already checked as one). A light userdata
// is a bare address the collector does not follow: one that names no record Lua still
// holds gives a shared record that has ended, so a stale value reports instead of
// reading freed memory. Raises no Lua error.
InkwellProxy* SurfaceRecordAt(lua_State* L, int index);

// Values that live exactly as long as a proxy userdata, in slots of a weak-keyed
// registry table: how a record named by a bare address in another is kept allocated.
enum KeptSlot {
    kKeptScopedSurface = 1,  // the surfaceProxy of an Inkwell proxy made outside a guard
    kKeptBoundSurface = 2,   // the surface NewInkwell bound an owned Inkwell to
};
// Pops the value on top of the stack into slot of the proxy userdata at proxyIndex.
void KeepWithProxy(lua_State* L, int proxyIndex, KeptSlot slot);
// Pushes the value in slot of the proxy at proxyIndex, or nil; raises no Lua error.
void PushKeptValue(lua_State* L, int proxyIndex, KeptSlot slot);
// Clears slot, if set, without raising a Lua error.
void DropKeptValue(lua_State* L, int proxyIndex, KeptSlot slot);

// The supplier that makes objects for a proxy: its Inkwell's, else its surface's, else
// the application's default. Never null.
zebui::inkwell::SupplierInterface* DrawingSupplierOf(const InkwellProxy* proxy);

}  // namespace inkwell
}  // namespace zeblua
