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
};

FailingAllocator sAllocator;

void* failingAlloc(void* data, void* block, size_t oldSize, size_t newSize) {
    auto* allocator = static_cast<FailingAllocator*>(data);
    if (newSize > oldSize && allocator->countdown > 0 && --allocator->countdown == 0)
        return nullptr;
    return allocator->original(allocator->originalData, block, oldSize, newSize);
}

// -- failAllocation(n)
int failAllocation(lua_State* L) {
    sAllocator.countdown = luaL_checkinteger(L, 1);
    return 0;
}

}  // namespace

void InstallFailingAllocator(lua_State* L) {
    sAllocator.original = lua_getallocf(L, &sAllocator.originalData);
    sAllocator.countdown = 0;
    lua_setallocf(L, failingAlloc, &sAllocator);
    lua_register(L, "failAllocation", failAllocation);
}
