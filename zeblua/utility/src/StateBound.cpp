// The list of live StateBounds, and their detach when a state closes.
#include "zeblua/utility/src/StateBound.h"

#include <algorithm>
#include <vector>

#include <lua.hpp>

#include "zeblua/utility/src/MainThread.h"
#include "zeblua/utility/src/RegistryTables.h"

namespace zeblua {
namespace utility {
namespace {

const char sClosingStateKey = 0;

// Never destroyed: StateBounds that are parts of statics may end after this file's statics.
std::vector<StateBound*>& liveObjects() {
    static auto* sLive = new std::vector<StateBound*>();
    return *sLive;
}

bool isLive(const StateBound* object) {
    const auto& live = liveObjects();
    return std::find(live.begin(), live.end(), object) != live.end();
}

int watchState(lua_State* L) {
    PushOrMakeRegistryTable(L, &sClosingStateKey, nullptr, DetachClosingState);
    return 0;
}

lua_State* watchedMainThread(lua_State* L) {
    if (!L) return nullptr;
    lua_State* main = GetMainThread(L);
    if (!main) main = L;
    if (lua_cpcall(main, watchState, nullptr) == 0) return main;
    lua_pop(main, 1); /* the error value */
    return nullptr;
}

}  // namespace

StateBound::StateBound(lua_State* L) : mBoundState(watchedMainThread(L)) {
    liveObjects().push_back(this);
}

StateBound::~StateBound() {
    auto& live = liveObjects();
    live.erase(std::remove(live.begin(), live.end(), this), live.end());
}

int DetachClosingState(lua_State* L) {
    std::vector<StateBound*> closing;
    for (StateBound* object : liveObjects()) {
        if (object->mBoundState != L) continue;
        object->mBoundState = nullptr;
        closing.push_back(object);
    }
    // One object's farewell may delete others (a cleared history), so each is looked up
    // again before it is told.
    for (StateBound* object : closing)
        if (isLive(object)) object->OnStateClosing();
    return 0;
}

int CountStateBound(lua_State* L) {
    lua_State* main = L ? GetMainThread(L) : nullptr;
    if (!main) main = L;
    const auto& live = liveObjects();
    return static_cast<int>(std::count_if(live.begin(), live.end(), [main](const StateBound* o) {
        return o->GetLuaState() == main;
    }));
}

}  // namespace utility
}  // namespace zeblua
