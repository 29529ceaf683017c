// LuaBindery: the Lua functions a native object keeps by operation name.
#pragma once

#include <cstddef>
#include <map>
#include <string>

struct lua_State;

namespace zeblua {
namespace utility {

// A mix-in for native classes that call script functions by name. The mixing class
// owns it; it isn't reference counted. Each bound function is held by one registry
// reference, the only thing that keeps it alive: the bindery holds no reference to
// the userdata through which it was bound, so that proxy may be collected while the
// native object goes on calling Lua.
//
// A typical call from native code, in one of the forms of LuaCallForms.h:
//   if (pushBoundFxn("DoCursor")) { push the arguments on mState; CallTruthy(mState, n, ...); }
class LuaBindery {
public:
    // The functions are called on the main thread of L's state, never on L itself when
    // it is a coroutine (one that may be suspended or collected by the time of a call).
    // Where no opener has run on the main thread, L is kept, with an assertion report.
    // The state must outlive the object: the destructor releases the references on it.
    explicit LuaBindery(lua_State* L);
    // Releases every reference, in name order.
    virtual ~LuaBindery();

    LuaBindery(const LuaBindery&) = delete;
    LuaBindery& operator=(const LuaBindery&) = delete;

    // For the mixing class's Lua method -- obj:BindZebOperation(name, fn) --: index 2 is
    // the name, index 3 the function, checked with Lua's usual argument errors. The
    // reference goes to the value on top, so with more than three arguments it is the
    // last one that gets bound. A second binding under a name releases the first.
    // Always true.
    bool BindZEBOperation(lua_State* L);

    // Pushes the function bound under the whole name on the bindery's state and answers
    // true; answers false with nothing pushed when there is none (or name is null), and
    // the caller then skips the call and takes its default.
    bool pushBoundFxn(const char* name) const;

protected:
    lua_State* mState;                           // the main thread of the state
    std::map<std::string, int> mBoundFunctions;  // operation name -> registry reference

private:
    // Stores the reference and answers the one that no longer has an owner: the
    // replaced one, LUA_NOREF, or on failure the new one itself.
    int storeReference(const char* name, size_t nameLength, int reference) noexcept;
};

// The whole Lua method of a mixing class once it has read its native object from
// argument 1: a null object binds nothing and checks nothing. Returns 0 results.
int BindZebOperationOn(lua_State* L, LuaBindery* target);

}  // namespace utility
}  // namespace zeblua
