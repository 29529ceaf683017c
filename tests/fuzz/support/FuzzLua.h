// The fuzz targets' common ground: one Lua state per process, opened as zebhost opens one,
// and Lua values decoded from the fuzzer's bytes.
#pragma once

#include <cstddef>

#include <fuzzer/FuzzedDataProvider.h>

struct lua_State;

namespace zebfuzz {

// Opens the process's state (standard libraries, the library, the script layer), silences
// assertion echo and runs setup, a chunk that requires what the target drives. Aborts when
// any of it fails: nothing could be fuzzed then. The state lives until the process ends.
lua_State* OpenState(const char* setup);

// A number that is usually a boundary: small integers, fractions, zeros of both signs, NaN,
// infinities, the edges of int, of 2^53 and of float and double, or any double at all.
double ConsumeNumber(FuzzedDataProvider& data);

// Bytes of the input as a Lua string of at most maxLength (at most 256) bytes, NULs included.
void PushText(lua_State* L, FuzzedDataProvider& data, size_t maxLength);

// Any value a script could pass: nil, a boolean, a number, a numeric string, text, a table
// (nested up to depth) or a Lua function.
void PushAny(lua_State* L, FuzzedDataProvider& data, int depth = 1);

// A number as ConsumeNumber gives it, a numeric string now and then, rarely anything else.
void PushNumberLike(lua_State* L, FuzzedDataProvider& data);

// A table with the named fields, as the readers of geometry, colours and events take them.
// A field is now and then missing or of another type; now and then the table gets a
// metatable whose __index answers a number, runs a full collection first, raises an error
// or answers nil, so readers meet script code in the middle of a read.
void PushRecord(lua_State* L, FuzzedDataProvider& data, const char* const* fields, int count);

// lua_pcall without message handler. A failure must leave a string (the library raises
// script mistakes as messages); anything else aborts. Returns lua_pcall's status.
int Call(lua_State* L, int nargs, int nresults);

// After each input: empties the stack, runs a chunk that needs the globals and the script
// layer, and now and then collects all garbage, so a proxy or reference that an input
// broke is met while the input is still the one at fault. Aborts when the state is broken.
void ExpectUsable(lua_State* L);

}  // namespace zebfuzz
