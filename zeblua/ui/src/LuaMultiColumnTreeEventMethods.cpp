// The tree's methods of binding, cell text, grid, border, spinner and custom colours.
#include <cstdint>
#include <cstring>
#include <string>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeWrapper.h"
#include "zeblua/ui/src/ZebBinder.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/inkwell/FontInterface.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/SupplierInterface.h"
#include "zebui/ui/ThemeFonts.h"

namespace zeblua {
namespace ui {
namespace {

using Tree = LuaMultiColumnTree;
using zebcore::UTF16String;

// An optional number by count: the default unless the stack reaches index.
float optionalFloat(lua_State* L, int index, float fallback) {
    return lua_gettop(L) >= index ? static_cast<float>(luaL_checknumber(L, index)) : fallback;
}

// An optional string by count, as a pointer into the stack, or null.
const char* optionalText(lua_State* L, int index, size_t& length) {
    length = 0;
    return lua_gettop(L) >= index ? luaL_checklstring(L, index, &length) : nullptr;
}

UTF16String toUTF16(const char* text, size_t length) {
    return zebcore::utility::UTF8to16(std::string(text, length));
}

// -- ok = tree:BindZebOperation(name, fn): names that begin with "mct" go to the tree,
// every other to the node's binder; false for a released wrapper. The reference is taken
// before the node is, since taking it may collect and so run script.
int mctBindZebOperation(lua_State* L) {
    if (!GetControlUserData(L, 1)) {
        lua_pushboolean(L, 0);
        return 1;
    }
    size_t length = 0;
    const char* name = luaL_checklstring(L, 2, &length);
    luaL_checktype(L, 3, LUA_TFUNCTION);
    const bool ours = length >= 3 && std::strncmp(name, "mct", 3) == 0;
    if (ours && !CastControlNode<Tree>(L, 1)) {  // another class raises before the reference
        lua_pushboolean(L, 0);
        return 1;
    }
    lua_settop(L, 3);
    const int reference = luaL_ref(L, LUA_REGISTRYINDEX);
    Tree* tree = ours ? CastControlNode<Tree>(L, 1) : nullptr;
    zebui::ui::UI_Node* node = ours ? nullptr : LiveNode(L, 1);
    const bool bound = (tree || node) && utility::RunNative(L, "BindZebOperation", [&] {
                           const std::string operation(name, length);
                           if (tree) {
                               const auto held = HoldNode(tree);
                               return tree->BindZEBOperation(L, operation, reference);
                           }
                           const boost::intrusive_ptr<zebui::ui::UI_Node> held(node);
                           return BindZEBOperation(L, node, operation, reference);
                       });
    if (!bound) luaL_unref(L, LUA_REGISTRYINDEX, reference); /* nobody holds it */
    lua_pushboolean(L, bound);
    return 1;
}

// -- tree:DrawCellString(inkwell, rect, text, colour [, size [, inset [, family [, style]]]])
// An inkwell proxy whose scope has ended draws nothing (the assertion report is made).
int mctDrawCellString(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    inkwell::zeblua_checkInkwell(L, 2);
    zebcore::geom::RectT<float> rect;
    inkwell::GetRectF32FromLua(L, 3, rect);
    size_t textLength = 0;
    const char* text = luaL_checklstring(L, 4, &textLength);
    luaL_checktype(L, 5, LUA_TTABLE);
    zebui::inkwell::ColorRGBA colour(0, 0, 0, 1);
    inkwell::GetColorRGBAFromLua(L, 5, colour);
    const float size = optionalFloat(L, 6, Tree::GetCellTextFontSize());
    const float inset = optionalFloat(L, 7, Tree::GetCellTextLeftInset());
    size_t familyLength = 0, styleLength = 0;
    const char* family = optionalText(L, 8, familyLength);
    const char* style = optionalText(L, 9, styleLength);
    if (!GetControlUserData(L, 1)) return 0;  // reading may have run script
    inkwell::InkwellProxy* proxy = inkwell::zeblua_checkInkwell(L, 2);
    if (!inkwell::InkwellInScope(proxy)) return 0;
    zebui::inkwell::Inkwell* ink = proxy->inkwell;
    return utility::RunNative(L, "DrawCellString", [&] {
        Tree::DrawCellString(ink, rect, toUTF16(text, textLength), colour, size, inset,
                             family ? toUTF16(family, familyLength) : zebui::ui::GetFontName(0),
                             style ? toUTF16(style, styleLength) : UTF16String(),
                             zebui::inkwell::kTextAlignment_Left,
                             zebui::inkwell::kTextTruncation_EndEllipsis);
        return 0;
    });
}

// -- width = tree:MeasureStringWidth(inkwell, text [, size [, family]])
int mctMeasureStringWidth(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    inkwell::zeblua_checkInkwell(L, 2);
    size_t textLength = 0;
    const char* text = luaL_checklstring(L, 3, &textLength);
    const float size = lua_gettop(L) > 3 ? static_cast<float>(luaL_checknumber(L, 4))
                                         : Tree::GetCellTextFontSize();
    size_t familyLength = 0;
    const char* family = optionalText(L, 5, familyLength);
    if (!GetControlUserData(L, 1)) return 0;
    inkwell::InkwellProxy* proxy = inkwell::zeblua_checkInkwell(L, 2);
    if (!inkwell::InkwellInScope(proxy) || !proxy->inkwell->GetSupplier()) return 0;
    const zebui::inkwell::SupplierInterface* supplier = proxy->inkwell->GetSupplier();
    const float width = utility::RunNative(L, "MeasureStringWidth", [&] {
        const UTF16String face = family ? toUTF16(family, familyLength) : zebui::ui::GetFontName(0);
        const boost::intrusive_ptr<zebui::inkwell::FontInterface> font(supplier->MakeFont(
            reinterpret_cast<const unsigned short*>(face.c_str()), nullptr, size));
        return font ? font->MeasureText(toUTF16(text, textLength), -1) : 0.0f;
    });
    lua_pushnumber(L, width);
    return 1;
}

// -- tree:SetDrawSpinnerBeforeColumn(column): columns from 1; below 1 is ignored.
int mctSetDrawSpinnerBeforeColumn(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer column = luaL_checkinteger(L, 2);
    if (column < 1) return 0;
    return CallOnControl<Tree>(L, "SetDrawSpinnerBeforeColumn", [&](Tree& tree) {
        tree.SetDrawSpinnerBeforeColumn(static_cast<unsigned int>(column - 1));
    });
}

int mctSetShowBorder(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool show = lua_toboolean(L, 2) == 1;
    return CallOnControl<Tree>(L, "SetShowBorder", [&](Tree& tree) { tree.SetShowBorder(show); });
}

int mctSetDrawGridLines(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool first = lua_toboolean(L, 2) != 0;
    const bool second = lua_toboolean(L, 3) != 0;
    return CallOnControl<Tree>(L, "SetDrawGridLines",
                               [&](Tree& tree) { tree.SetDrawGridLines(first, second); });
}

// -- tree:SetGridLineColors(first, second): both read, from opaque black, before the
// wrapper is fetched.
int mctSetGridLineColors(lua_State* L) {
    zebui::inkwell::ColorRGBA first(0, 0, 0, 1), second(0, 0, 0, 1);
    inkwell::GetColorRGBAFromLua(L, 2, first);
    inkwell::GetColorRGBAFromLua(L, 3, second);
    if (!GetControlUserData(L, 1)) return 0;
    return CallOnControl<Tree>(L, "SetGridLineColors",
                               [&](Tree& tree) { tree.SetGridLineColors(first, second); });
}

int mctSetCustomBackgroundColor(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    zebui::inkwell::ColorRGBA colour(0, 0, 0, 1);
    inkwell::GetColorRGBAFromLua(L, 2, colour);
    return CallOnControl<Tree>(L, "SetCustomBackgroundColor",
                               [&](Tree& tree) { tree.SetCustomBackgroundColor(colour); });
}

int mctClearCustomBackgroundColor(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return CallOnControl<Tree>(L, "ClearCustomBackgroundColor",
                               [](Tree& tree) { tree.ClearCustomBackgroundColor(); });
}

// -- tree:SetCustomSelectionColor(colour): 32 bits, red in the highest byte, alpha lowest.
int mctSetCustomSelectionColor(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Number value = luaL_checknumber(L, 2);
    const auto colour = static_cast<zebui::ui::UI_Color>(
        value >= 0 && value < 4294967296.0 ? static_cast<std::uint32_t>(value) : 0);
    return CallOnControl<Tree>(L, "SetCustomSelectionColor",
                               [&](Tree& tree) { tree.SetCustomSelectionColor(colour); });
}

int mctClearCustomSelectionColor(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return CallOnControl<Tree>(L, "ClearCustomSelectionColor",
                               [](Tree& tree) { tree.ClearCustomSelectionColor(); });
}

}  // namespace

const luaL_Reg LuaMultiColumnTreeWrapper::eventMethods[] = {
    {"BindZebOperation", mctBindZebOperation},
    {"DrawCellString", mctDrawCellString},
    {"MeasureStringWidth", mctMeasureStringWidth},
    {"SetDrawSpinnerBeforeColumn", mctSetDrawSpinnerBeforeColumn},
    {"SetShowBorder", mctSetShowBorder},
    {"SetDrawGridLines", mctSetDrawGridLines},
    {"SetGridLineColors", mctSetGridLineColors},
    {"SetCustomBackgroundColor", mctSetCustomBackgroundColor},
    {"ClearCustomBackgroundColor", mctClearCustomBackgroundColor},
    {"SetCustomSelectionColor", mctSetCustomSelectionColor},
    {"ClearCustomSelectionColor", mctClearCustomSelectionColor},
    {nullptr, nullptr},
};

}  // namespace ui
}  // namespace zeblua
