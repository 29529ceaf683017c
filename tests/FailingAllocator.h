// Lua memory errors on demand, to run the error paths that only an allocation failure takes.
#pragma once

struct lua_State;

// Wraps the allocator of L and sets the global failAllocation(n): counting from that call,
// the n-th request that asks for more memory than the block had fails, once (1: the next
// one); 0 disarms. It answers whether the failure armed before it happened. Shrinking and
// freeing never fail, as with a real allocator.
void InstallFailingAllocator(lua_State* L);
