// Proxy userdata: how a native object is handed to a script and taken back.
#pragma once

#include <cstddef>
#include <new>

struct lua_State;

namespace zeblua {
namespace utility {

// A proxy is a full userdata whose metatable comes from the registry under the
// module's metatable name. Two of its forms are built here:
//   pointer form       the block is one word, the object pointer (T*)
//   owner-flag form    the block is an OwnedPointer<T>: the pointer, and whether the
//                      proxy owns the object or only lends it
// Nulling the pointer is how a proxy dies before its userdata does: every __gc and
// Release below nulls it, so a second one, or a __gc after Release, does nothing.

template <class T> struct OwnedPointer {
    T* object;
    bool owned;  // true: the proxy deletes the object at collection
};

// --- Non-template core ---------------------------------------------------------------
// metatableName is always a module's constant name: its address is remembered per state
// in place of hashing the name on every call, so it must not be a passing buffer.

// The luaopen function of the module that registers a proxy's metatable.
using ModuleOpener = int (*)(lua_State*);

// Pushes the metatable registered under metatableName, opening its module first with
// opener when it is missing. Raises Lua's memory error, or whatever the opener raises.
void PushProxyMetatable(lua_State* L, const char* metatableName, ModuleOpener opener);

// Pushes a new userdata of size bytes with the metatable registered under metatableName.
// A proxy never reaches a script bare: when that module has not been opened yet, opener
// opens it first (as require would, leaving its global table), so a proxy handed out
// before its module was required still has its methods and its __gc. Raises Lua's memory
// error, or whatever error the opener raises.
void* NewProxyBlock(lua_State* L, size_t size, const char* metatableName, ModuleOpener opener);

// luaL_checkudata: the block at index, or Lua's standard type error naming metatableName.
void* CheckProxyBlock(lua_State* L, int index, const char* metatableName);

// Null without an error if the value at index is no userdata at all; otherwise as
// CheckProxyBlock, so a userdata of another type still raises.
void* TestProxyBlock(lua_State* L, int index, const char* metatableName);

// A __tostring body: pushes "<displayName>(%p)" with shown, which is the userdata block
// or the object held in it, as each module's format says. Returns 1.
int PushProxyString(lua_State* L, const char* displayName, const void* shown);

// The __gc of a proxy that owns nothing.
int NothingGC(lua_State* L);

// A script can copy a __gc into a metatable of its own (newproxy(true)); the collector
// then calls it on that userdata, from whatever allocation made it run, in a host's
// unprotected call too, where a type error would abort the process. True when the running
// function is the __gc of the metatable of the userdata at 1 and that metatable is not
// the one registered under metatableName: the __gc then ends nothing and raises nothing.
bool IsCopiedFinalizer(lua_State* L, const char* metatableName);
// As IsCopiedFinalizer, whatever the metatable; the caller has found it is not its own.
bool RunsAsFinalizerOfArgument(lua_State* L);

// --- Pushing -------------------------------------------------------------------------

template <class T>
T** PushPointerProxy(lua_State* L, T* object, const char* metatableName, ModuleOpener opener) {
    return new (NewProxyBlock(L, sizeof(T*), metatableName, opener)) T*(object);
}

// For counted objects: the proxy holds one reference of its own (none for null).
template <class T>
T** PushCountedProxy(lua_State* L, T* object, const char* metatableName, ModuleOpener opener) {
    T** block = PushPointerProxy(L, object, metatableName, opener);
    if (object) intrusive_ptr_add_ref(object);  // after the push, which may raise
    return block;
}

template <class T>
OwnedPointer<T>* PushOwnedPointerProxy(lua_State* L, T* object, bool owned,
                                       const char* metatableName, ModuleOpener opener) {
    return new (NewProxyBlock(L, sizeof(OwnedPointer<T>), metatableName, opener))
        OwnedPointer<T>{object, owned};
}

// --- Checked access: the bodies of the zeblua_check... accessors -----------------------

// The pointer-form block, for callers that read or clear the pointer themselves.
template <class T> T** CheckPointerBlock(lua_State* L, int index, const char* metatableName) {
    return static_cast<T**>(CheckProxyBlock(L, index, metatableName));
}

// The held pointer, which is null once the proxy has been released.
template <class T> T* CheckProxyPointer(lua_State* L, int index, const char* metatableName) {
    return *CheckPointerBlock<T>(L, index, metatableName);
}

// The held pointer, or null without an error when the value is no userdata.
template <class T> T* TestProxyPointer(lua_State* L, int index, const char* metatableName) {
    T** block = static_cast<T**>(TestProxyBlock(L, index, metatableName));
    return block ? *block : nullptr;
}

template <class T>
OwnedPointer<T>* CheckOwnedPointer(lua_State* L, int index, const char* metatableName) {
    return static_cast<OwnedPointer<T>*>(CheckProxyBlock(L, index, metatableName));
}

// --- Ending a proxy: the shared bodies of __gc and Release -----------------------------
// Each nulls the pointer before it lets go, so a destructor that reaches the proxy
// again finds it dead. None of them raises.

// Sole owner: delete through the virtual destructor.
template <class T> void DeleteHeldObject(T** block) {
    T* object = *block;
    *block = nullptr;
    delete object;
}

// Lent or owned: delete only when the record says the proxy owns the object.
template <class T> void DeleteIfOwned(OwnedPointer<T>* record) {
    T* object = record->object;
    record->object = nullptr;
    if (record->owned) delete object;
}

// Counted: drop the proxy's one reference.
template <class T> void ReleaseHeldReference(T** block) {
    T* object = *block;
    *block = nullptr;
    if (object) intrusive_ptr_release(object);
}

// --- Metamethods from a proxy description ---------------------------------------------
// A module describes its proxy once and names the metamethods in its luaL_Reg table:
//   struct PenProxy {
//       using Object = zebui::inkwell::PenInterface;
//       static constexpr const char* kMetatableName = "zeblua.inkwell.PenInterface";
//       static constexpr const char* kDisplayName = "PenInterface";
//   };
//   {"__gc", DeleteObjectGC<PenProxy>}, {"__tostring", HeldObject2string<PenProxy>},
// Each checks argument 1 against the metatable, so a script that calls obj.__gc on
// something else gets Lua's type error, and each does nothing on a null pointer or as a
// copied finalizer (IsCopiedFinalizer).

template <class Proxy> int DeleteObjectGC(lua_State* L) {
    if (IsCopiedFinalizer(L, Proxy::kMetatableName)) return 0;
    DeleteHeldObject(CheckPointerBlock<typename Proxy::Object>(L, 1, Proxy::kMetatableName));
    return 0;
}

template <class Proxy> int DeleteIfOwnedGC(lua_State* L) {
    if (IsCopiedFinalizer(L, Proxy::kMetatableName)) return 0;
    DeleteIfOwned(CheckOwnedPointer<typename Proxy::Object>(L, 1, Proxy::kMetatableName));
    return 0;
}

template <class Proxy> int ReleaseReferenceGC(lua_State* L) {
    if (IsCopiedFinalizer(L, Proxy::kMetatableName)) return 0;
    ReleaseHeldReference(CheckPointerBlock<typename Proxy::Object>(L, 1, Proxy::kMetatableName));
    return 0;
}

// The toolkit owns the object: the proxy only forgets it.
template <class Proxy> int ClearPointerGC(lua_State* L) {
    if (IsCopiedFinalizer(L, Proxy::kMetatableName)) return 0;
    *CheckPointerBlock<typename Proxy::Object>(L, 1, Proxy::kMetatableName) = nullptr;
    return 0;
}

// "%p" shows the userdata block.
template <class Proxy> int Block2string(lua_State* L) {
    return PushProxyString(L, Proxy::kDisplayName, CheckProxyBlock(L, 1, Proxy::kMetatableName));
}

// "%p" shows the object a pointer-form proxy holds (null once released).
template <class Proxy> int HeldObject2string(lua_State* L) {
    return PushProxyString(L, Proxy::kDisplayName,
                           CheckProxyPointer<typename Proxy::Object>(L, 1, Proxy::kMetatableName));
}

}  // namespace utility
}  // namespace zeblua
