// Change notification binders: their functions, their listener and their slot.
#include "zeblua/ui/src/LuaChangeBinder.h"

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>

#include "zeblua/ui/src/LuaBindingTable.h"
#include "zeblua/utility/src/MainThread.h"

namespace zeblua {
namespace ui {

LuaChangeBinder::LuaChangeBinder() = default;

LuaChangeBinder::~LuaChangeBinder() {
    if (mListener) mListener->clear();
}

bool LuaChangeBinder::AddFunction(lua_State* L, int reference) {
    lua_State* main = utility::GetMainThread(L);
    if (!main) return false;
    mFunctions.push_back(LuaFunctionEntry{main, reference});
    return true;
}

const zebui::ui::MessageFunctionP&
LuaChangeBinder::Listen(const zebui::ui::MessageFunctionP& listener) {
    mListener = listener;
    return mListener;
}

LuaChangeBinder* ChangeBinderOf(zebui::ui::UI_Node* node, int slot,
                                LuaChangeBinder* (*make)(zebui::ui::UI_Node* node)) {
    const boost::intrusive_ptr<LuaBindingTable> table =
        LuaBindingTable::GetLuaBindingTable(node, true);
    if (!table) return nullptr;
    boost::intrusive_ptr<LuaBinder>& binder = table->slots[slot];
    if (!binder) binder.reset(make(node));
    return dynamic_cast<LuaChangeBinder*>(binder.get());
}

}  // namespace ui
}  // namespace zeblua
