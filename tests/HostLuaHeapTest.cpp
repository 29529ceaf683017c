// The host's small-block pool: blocks keep their bytes across every size change Lua asks
// for, and a whole state runs and closes on it.
#include <cstring>
#include <string>

#include <gtest/gtest.h>
#include <lua.hpp>

#include "host/src/HostLuaHeap.h"

namespace {

using zebhost::SmallBlockPool;

void* resize(SmallBlockPool& pool, void* block, std::size_t oldSize, std::size_t newSize) {
    return SmallBlockPool::Allocate(&pool, block, oldSize, newSize);
}

void fill(void* block, std::size_t size, unsigned char seed) {
    auto* bytes = static_cast<unsigned char*>(block);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<unsigned char>(seed + i);
}

bool holds(const void* block, std::size_t size, unsigned char seed) {
    const auto* bytes = static_cast<const unsigned char*>(block);
    for (std::size_t i = 0; i < size; ++i)
        if (bytes[i] != static_cast<unsigned char>(seed + i)) return false;
    return true;
}

// Every way a block can change size: within its class, across classes, between the pool and
// the C heap both ways, and shrinking; the common bytes survive each move.
TEST(HostLuaHeapTest, ResizesKeepTheBytesAndFreedBlocksComeBack) {
    SmallBlockPool pool;
    constexpr std::size_t kLargest = SmallBlockPool::kLargestSmallBlock;
    void* block = resize(pool, nullptr, 0, 20);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % 8, 0u);
    fill(block, 20, 1);
    EXPECT_EQ(resize(pool, block, 20, 30), block) << "same size class: no move";
    block = resize(pool, block, 30, 100);
    EXPECT_TRUE(holds(block, 20, 1));
    fill(block, 100, 7);
    block = resize(pool, block, 100, kLargest + 1000); /* into the C heap */
    EXPECT_TRUE(holds(block, 100, 7));
    fill(block, kLargest + 1000, 9);
    block = resize(pool, block, kLargest + 1000, kLargest + 5000);
    EXPECT_TRUE(holds(block, kLargest + 1000, 9));
    block = resize(pool, block, kLargest + 5000, 40); /* back into the pool */
    EXPECT_TRUE(holds(block, 40, 9));
    block = resize(pool, block, 40, 8);
    EXPECT_TRUE(holds(block, 8, 9));
    EXPECT_EQ(resize(pool, block, 8, 0), nullptr);

    // A freed block is the next one of its class; two live blocks never overlap.
    void* first = resize(pool, nullptr, 0, 48);
    void* second = resize(pool, nullptr, 0, 48);
    EXPECT_GE(std::abs(static_cast<char*>(second) - static_cast<char*>(first)), 48);
    resize(pool, first, 48, 0);
    EXPECT_EQ(resize(pool, nullptr, 0, 40), first);
    EXPECT_EQ(resize(pool, nullptr, 0, 0), nullptr) << "Lua frees a null block of size 0";
}

// Far more small blocks than one chunk holds, freed in a different order than made: a state
// that builds and drops tables, strings and closures computes what the C heap's would.
TEST(HostLuaHeapTest, AStateRunsAndClosesOnThePool) {
    SmallBlockPool pool;
    lua_State* L = lua_newstate(SmallBlockPool::Allocate, &pool);
    ASSERT_NE(L, nullptr);
    luaL_openlibs(L);
    ASSERT_EQ(luaL_dostring(L, R"(
        local total, kept = 0, {}
        for round = 1, 20 do
            local t = {}
            for i = 1, 2000 do t[i] = { i, tostring(i) .. "x", function() return i end } end
            for i = 1, 2000, 7 do kept[#kept + 1] = t[i] end
            for i = 1, #t do total = total + t[i][3]() + #t[i][2] end
            collectgarbage()
        end
        local s = string.rep("ab", 5000)
        return total, #kept, #s, kept[100][2]
    )"),
              0)
        << lua_tostring(L, -1);
    EXPECT_EQ(lua_tointeger(L, 1), 20 * (2000 * 2001 / 2 + (9 * 2 + 90 * 3 + 900 * 4 + 1001 * 5)));
    EXPECT_EQ(lua_tointeger(L, 2), 20 * 286);
    EXPECT_EQ(lua_tointeger(L, 3), 10000);
    EXPECT_STREQ(lua_tostring(L, 4), "694x");
    lua_close(L);
}

// The host's own states: made and closed in pairs, whichever heap the build chose.
TEST(HostLuaHeapTest, HostStatesOpenRunAndClose) {
    lua_State* L = zebhost::NewHostState();
    ASSERT_NE(L, nullptr);
    luaL_openlibs(L);
    ASSERT_EQ(luaL_dostring(L, "return select('#', string.byte(string.rep('z', 300), 1, -1))"), 0);
    EXPECT_EQ(lua_tointeger(L, -1), 300);
    zebhost::CloseHostState(L);
}

}  // namespace
