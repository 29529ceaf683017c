// Lua's allocations through free lists of small blocks.
#include "host/src/HostLuaHeap.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

#include <lua.hpp>

namespace zebhost {

#ifdef ZEBHOST_POOLED_LUA_HEAP
namespace {

// As luaL_newstate's: an error outside any protected call ends the program, with a word.
int panic(lua_State* L) {
    std::fprintf(stderr, "PANIC: unprotected error in call to Lua API (%s)\n", lua_tostring(L, -1));
    return 0;
}

}  // namespace
#endif

SmallBlockPool::~SmallBlockPool() {
    while (mChunks) {
        Chunk* previous = mChunks->previous;
        std::free(mChunks);
        mChunks = previous;
    }
}

void* SmallBlockPool::carve(std::size_t sizeClass) {
    const std::size_t size = sizeClass * kGranule;
    if (static_cast<std::size_t>(mEnd - mNext) < size) {
        // The rest of the old chunk is left unused: smaller than one block of this size.
        auto* chunk = static_cast<Chunk*>(std::malloc(kChunkSize));
        if (!chunk) return nullptr;
        chunk->previous = mChunks;
        mChunks = chunk;
        mNext = reinterpret_cast<char*>(chunk) + kGranule;  // the link keeps the first granule
        mEnd = reinterpret_cast<char*>(chunk) + kChunkSize;
    }
    void* block = mNext;
    mNext += size;
    return block;
}

void* SmallBlockPool::Allocate(void* ud, void* block, std::size_t oldSize, std::size_t newSize) {
    auto& pool = *static_cast<SmallBlockPool*>(ud);
    // Lua passes a block's exact size back, so the size tells where a block came from.
    const bool wasSmall = block && oldSize <= kLargestSmallBlock;
    // Most calls free or make one small object: those two come first.
    if (newSize == 0) {
        if (wasSmall)
            pool.give(block, sizeClass(oldSize));
        else
            std::free(block);
        return nullptr;
    }
    if (!block && newSize <= kLargestSmallBlock) return pool.take(sizeClass(newSize));
    if (wasSmall && sizeClass(oldSize) == sizeClass(newSize)) return block;
    if (newSize > kLargestSmallBlock && !wasSmall) return std::realloc(block, newSize);
    void* moved =
        newSize <= kLargestSmallBlock ? pool.take(sizeClass(newSize)) : std::malloc(newSize);
    if (!moved) return wasSmall && newSize < oldSize ? block : nullptr;  // a shrink may stay
    if (block) {
        std::memcpy(moved, block, oldSize < newSize ? oldSize : newSize);
        if (wasSmall)
            pool.give(block, sizeClass(oldSize));
        else
            std::free(block);
    }
    return moved;
}

lua_State* NewHostState() {
#ifdef ZEBHOST_POOLED_LUA_HEAP
    auto* pool = new (std::nothrow) SmallBlockPool;
    if (!pool) return nullptr;
    lua_State* L = lua_newstate(SmallBlockPool::Allocate, pool);
    if (!L) {
        delete pool;
        return nullptr;
    }
    lua_atpanic(L, panic);
    return L;
#else
    return luaL_newstate();
#endif
}

void CloseHostState(lua_State* L) {
    void* ud = nullptr;
    const lua_Alloc allocate = lua_getallocf(L, &ud);
    lua_close(L);
    if (allocate == SmallBlockPool::Allocate) delete static_cast<SmallBlockPool*>(ud);
}

}  // namespace zebhost
