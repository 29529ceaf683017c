// Root registration, the embedded code searcher and the registration forms.
#include <lua.hpp>

#include "tests/LuaTestFixture.h"

class ModuleEntryTest : public LuaTest {};

TEST_F(ModuleEntryTest, RequireOfTheRootGivesTheStringTableWhileTheGlobalHoldsNumeric) {
    // The session registered the root already; a host that had not, requires it afresh.
    runLua("package.loaded.zeblua = nil; root = require 'zeblua'");
    EXPECT_EQ(luaValue("root == zebString"), "true");
    EXPECT_EQ(luaValue("type(zeblua.numeric)"), "table");
    EXPECT_EQ(luaValue("zeblua.zebString"), "nil");
}
