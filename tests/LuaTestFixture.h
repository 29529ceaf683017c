// A fresh Lua state per test, opened exactly as zebhost opens one.
#pragma once

#include <string>

#include <boost/intrusive_ptr.hpp>
#include <gtest/gtest.h>

struct lua_State;

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui
}  // namespace zebui

// A row of a family's fault table: the script that makes a wrapper as w, and one call of a
// method on it, "w:Name(args)".
struct MethodRow {
    const char* maker;
    const char* call;
};

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
    // Three values of a native caller's own, below whatever a callback does; expectSentinels
    // checks that the stack holds them and nothing else, and empties it.
    void pushSentinels();
    void expectSentinels();
    // A full collection cycle.
    void collectGarbage();
    // Pushes node's wrapper into the global name.
    void setWrapper(const char* name, const boost::intrusive_ptr<zebui::ui::UI_Node>& node);
    // Recorded assertion reports with this message.
    static int reportCount(const std::string& message);
    // The node of the control wrapper in the global name; null when the global holds none.
    zebui::ui::UI_Node* wrappedNode(const char* global);
    // That node as a T, held; null when there is none or it is no T.
    template <class T> boost::intrusive_ptr<T> nodeOf(const char* global) {
        return boost::intrusive_ptr<T>(dynamic_cast<T*>(wrappedNode(global)));
    }
    // The row's call answers no value, and raises nothing, on a wrapper the script released
    // and on one it ended through its __gc.
    void expectEndedWrapperAnswersNothing(const MethodRow& row);

    lua_State* L = nullptr;
};

// A method call row of a family's fault table, "w:Name(args)", as "w.Name(self, args)": the
// method taken from w and called on another self.
std::string MethodCallOn(const MethodRow& row, const char* self);
