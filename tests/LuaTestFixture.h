// A fresh Lua state per test, opened exactly as zebhost opens one.
#pragma once

#include <string>

#include <gtest/gtest.h>

struct lua_State;

class LuaTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Runs a chunk; a Lua error fails the test with its message.
    void runLua(const std::string& code);
    // Runs a chunk that must fail and returns its message ("" and a test failure if it ran).
    std::string luaError(const std::string& code);
    // Evaluates "return <expression>" and gives the first result through tostring().
    std::string luaValue(const std::string& expression);
    // The number of results of "return <expression>".
    int resultCount(const std::string& expression);
    // A full collection cycle.
    void collectGarbage();

    lua_State* L = nullptr;
};

// A method call row of a family's fault table, "w:Name(args)", as "w.Name(self, args)": the
// method taken from w and called on another self.
std::string MethodCallOn(const std::string& call, const char* self);
