// The tree row wrapper.
#include "zeblua/ui/src/LuaMultiColumnTreeRowWrapper.h"

#include <lua.hpp>

namespace zeblua {
namespace ui {
namespace {

const luaL_Reg kRowMethods[] = {
    {nullptr, nullptr},
};

}  // namespace

LuaMultiColumnTreeRowWrapper::LuaMultiColumnTreeRowWrapper() = default;

LuaMultiColumnTreeRowWrapper::LuaMultiColumnTreeRowWrapper(
    const boost::intrusive_ptr<LuaMultiColumnTreeRow>& row)
    : mRow(row) {}

LuaMultiColumnTreeRowWrapper::~LuaMultiColumnTreeRowWrapper() = default;

const char* LuaMultiColumnTreeRowWrapper::GetMetatableName() {
    static const char* const sMetatableName = "Zeb.UI_MultiColumnTreeRow";
    return sMetatableName;
}

const luaL_Reg* LuaMultiColumnTreeRowWrapper::GetMethods() {
    return kRowMethods;
}

}  // namespace ui
}  // namespace zeblua
