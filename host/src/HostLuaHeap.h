// The allocator of the states zebhost opens: Lua's small blocks (proxies, tables, strings,
// closures) come from per-size free lists instead of the C heap.
#pragma once

#include <cstddef>

struct lua_State;

namespace zebhost {

// A pool of small blocks for one state, which uses it from one thread at a time. Blocks
// are carved from chunks and go back on their size's free list when freed; the chunks go
// only with the pool. Larger blocks come from the C heap.
class SmallBlockPool {
public:
    SmallBlockPool() = default;
    ~SmallBlockPool();
    SmallBlockPool(const SmallBlockPool&) = delete;
    SmallBlockPool& operator=(const SmallBlockPool&) = delete;

    // A lua_Alloc, with the pool as its ud.
    static void* Allocate(void* ud, void* block, std::size_t oldSize, std::size_t newSize);

    // Blocks of at most this size come from the pool.
    static constexpr std::size_t kLargestSmallBlock = 256;

private:
    static constexpr std::size_t kGranule = 16;  // Lua's blocks need 8-byte alignment
    static constexpr std::size_t kClassCount = kLargestSmallBlock / kGranule + 1;
    static constexpr std::size_t kChunkSize = 64 * 1024;

    struct FreeBlock {
        FreeBlock* next;
    };
    struct Chunk {
        Chunk* previous;
    };

    static std::size_t sizeClass(std::size_t size) { return (size + kGranule - 1) / kGranule; }
    void* take(std::size_t sizeClass) {
        if (FreeBlock* block = mFree[sizeClass]) {
            mFree[sizeClass] = block->next;
            return block;
        }
        return carve(sizeClass);
    }
    void give(void* block, std::size_t sizeClass) {
        auto* freed = static_cast<FreeBlock*>(block);
        freed->next = mFree[sizeClass];
        mFree[sizeClass] = freed;
    }
    // A block from the newest chunk, or from a new one; null when out of memory.
    void* carve(std::size_t sizeClass);

    FreeBlock* mFree[kClassCount] = {};
    Chunk* mChunks = nullptr;
    char* mNext = nullptr;  // the rest of the newest chunk
    char* mEnd = nullptr;
};

// A new state on a pool of its own where the build asks for it (optimised builds; the
// checked builds keep the C heap, so that the address sanitizer and valgrind see every Lua
// block), else as luaL_newstate makes one; null when out of memory.
lua_State* NewHostState();
// lua_close, then the state's pool.
void CloseHostState(lua_State* L);

}  // namespace zebhost
