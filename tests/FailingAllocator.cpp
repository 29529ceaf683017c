// A Lua allocator that fails one chosen growing request and passes every other one on.
#include "tests/FailingAllocator.h"

#include <cstddef>

#include <lua.hpp>

namespace {

// One test state at a time, so one record will do.
struct FailingAllocator {
    lua_Alloc original = nullptr;
    void* originalData = nullptr;
    lua_Integer countdown = 0;  // requests to go until the failure; 0: disarmed
    bool fired = false;         // the armed failure has happened
};

FailingAllocator sAllocator;

void* failingAlloc(void* data, void* block, size_t oldSize, size_t newSize) {
    auto* allocator = static_cast<FailingAllocator*>(data);
    if (newSize > oldSize && allocator->countdown > 0 && --allocator->countdown == 0) {
        allocator->fired = true;
        return nullptr;
    }
    return allocator->original(allocator->originalData, block, oldSize, newSize);
}

// -- fired = failAllocation(n): whether the failure armed before this call happened
int failAllocation(lua_State* L) {
    const lua_Integer countdown = luaL_checkinteger(L, 1);
    lua_pushboolean(L, sAllocator.fired);
    sAllocator.countdown = countdown;
    sAllocator.fired = false;
    return 1;
}

}  // namespace

void InstallFailingAllocator(lua_State* L) {
    sAllocator.original = lua_getallocf(L, &sAllocator.originalData);
    sAllocator.countdown = 0;
    sAllocator.fired = false;
    lua_setallocf(L, failingAlloc, &sAllocator);
    lua_register(L, "failAllocation", failAllocation);
}
