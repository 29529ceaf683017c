// Line coverage for scripts, as the kernel offers it to debugging tools.
#pragma once

struct lua_State;

extern "C" {

// Pushes the universe's coverage table, made on first use and the same table after:
//   hits     table: chunk source ("@file.lua", "=name") -> { [line] = times run }
//   start()  counts the lines run on the calling thread from now on; replaces that
//            thread's debug hook (debug.sethook)
//   stop()   removes the calling thread's debug hook
// The hook reads hits at each line, so a script resets the count by assigning a new table.
void HqLuaCoverage_push(lua_State* L);
}
