// The timecode hot text wrapper and the script functions a timecode holds.
#include "zeblua/ui/src/LuaUI_HotTextTimecodeWrapper.h"

#include <new>
#include <string>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <lua.hpp>

#include "zeblua/ui/controls/src/UI_HotTextTimecode.h"
#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaUI_HotTextNumberWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zeblua/utility/src/LuaCallForms.h"
#include "zeblua/utility/src/StateBound.h"

namespace zeblua {
namespace ui {
namespace {

using controls::UI_HotTextTimecode;

// The parser's answer for text that is no value.
constexpr double kNoValue = -1.0;

// One script function a timecode holds. The function objects that call it share it, so
// its registry reference goes when the control has let go of the last of them and no
// call is running (a running call holds its own share); a closed state takes it along.
class TimecodeScriptFunction : public utility::StateBound {
public:
    TimecodeScriptFunction(lua_State* main, int reference)
        : StateBound(main), mReference(reference) {}
    ~TimecodeScriptFunction() override {
        if (lua_State* L = GetLuaState()) luaL_unref(L, LUA_REGISTRYINDEX, mReference);
    }
    int GetReference() const { return mReference; }

private:
    int mReference;
};
using ScriptFunctionP = boost::shared_ptr<TimecodeScriptFunction>;

// Copies bytes into out, answering false instead of letting an exception out: it runs
// inside a protected Lua call, which C++ exceptions must not cross.
bool copyResult(std::string& out, const char* bytes, size_t length) noexcept {
    try {
        out.assign(bytes, length);
        return true;
    } catch (...) {
        return false;
    }
}

struct FormatCall {
    int reference;
    double value;
    std::string* text;
    bool answered;
};

// Inside lua_cpcall, so a push that runs out of memory ends here and not in the native
// caller. A formatter that fails or answers anything but a string answers nothing.
int runFormatter(lua_State* L) {
    FormatCall* call = static_cast<FormatCall*>(lua_touserdata(L, 1));
    lua_rawgeti(L, LUA_REGISTRYINDEX, call->reference);
    lua_pushnumber(L, call->value);
    if (!utility::CallChecked(L, 1, 1, utility::CallCleanup::kPopTop)) return 0;
    if (lua_type(L, -1) == LUA_TSTRING) {
        size_t length = 0;
        const char* bytes = lua_tolstring(L, -1, &length);
        call->answered = copyResult(*call->text, bytes, length);
    }
    return 0;
}

struct ParseCall {
    int reference;
    const std::string* text;
    double value;
};

// Inside lua_cpcall as well. A numeric string counts as a number.
int runParser(lua_State* L) {
    ParseCall* call = static_cast<ParseCall*>(lua_touserdata(L, 1));
    lua_rawgeti(L, LUA_REGISTRYINDEX, call->reference);
    lua_pushlstring(L, call->text->data(), call->text->size());
    if (!utility::CallChecked(L, 1, 1, utility::CallCleanup::kPopTop)) return 0;
    if (lua_isnumber(L, -1)) call->value = lua_tonumber(L, -1);
    return 0;
}

// The value's text as the script makes it; "" when it can't.
zebcore::UTF16String myDoubleToStringFunction(double value, const ScriptFunctionP& function) {
    lua_State* L = function->GetLuaState();
    std::string text;
    FormatCall call{function->GetReference(), value, &text, false};
    if (!L || lua_cpcall(L, runFormatter, &call) != 0 || !call.answered) return {};
    return zebcore::utility::UTF8to16(text);
}

// The script's value of text; kNoValue when it has none.
double myStringToDoubleFunction(const zebcore::UTF16String& text, const ScriptFunctionP& function) {
    lua_State* L = function->GetLuaState();
    const std::string bytes = zebcore::utility::UTF16to8(text);
    ParseCall call{function->GetReference(), &bytes, kNoValue};
    if (!L || lua_cpcall(L, runParser, &call) != 0) return kNoValue;
    return call.value;
}

// The function object holds its share of the script function by value, so a call in
// progress keeps it even when the control replaces the function meanwhile.
struct Formatter {
    ScriptFunctionP function;
    zebcore::UTF16String operator()(double value) const {
        const ScriptFunctionP running = function;
        return myDoubleToStringFunction(value, running);
    }
};

struct Parser {
    ScriptFunctionP function;
    double operator()(const zebcore::UTF16String& text) const {
        const ScriptFunctionP running = function;
        return myStringToDoubleFunction(text, running);
    }
};

// -- timecode:SetValueToStringFunction(fn): the display shows fn's answer at once.
int hottexttimecodeSetValueToStringFunction(lua_State* L) {
    AddCallbackFunction<UI_HotTextTimecode>(
        L, "SetValueToStringFunction", [](UI_HotTextTimecode& control, LuaFunctionEntry entry) {
            const ScriptFunctionP function =
                boost::make_shared<TimecodeScriptFunction>(entry.state, entry.reference);
            control.SetValueToStringFunction(
                boost::make_shared<controls::ValueToStringFunction>(Formatter{function}));
        });
    return 0;
}

// -- timecode:SetStringToValueFunction(fn): fn reads typed text; -1 means no value.
int hottexttimecodeSetStringToValueFunction(lua_State* L) {
    AddCallbackFunction<UI_HotTextTimecode>(
        L, "SetStringToValueFunction", [](UI_HotTextTimecode& control, LuaFunctionEntry entry) {
            const ScriptFunctionP function =
                boost::make_shared<TimecodeScriptFunction>(entry.state, entry.reference);
            control.SetStringToValueFunction(
                boost::make_shared<controls::StringToValueFunction>(Parser{function}));
        });
    return 0;
}

// -- timecode:SetMinMax(minimum, maximum): bounds of typed values, neither clamped nor
// compared.
int hottexttimecodeSetMinMax(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Number minimum = luaL_checknumber(L, 2);
    const lua_Number maximum = luaL_checknumber(L, 3);
    return CallOnControl<UI_HotTextTimecode>(
        L, "SetMinMax", [&](UI_HotTextTimecode& control) { control.SetMinMax(minimum, maximum); });
}

// -- editing = timecode:IsEditingInPlace()
int hottexttimecodeIsEditingInPlace(lua_State* L) {
    return AnswerOfControl<UI_HotTextTimecode>(
        L, "IsEditingInPlace",
        [](UI_HotTextTimecode& control) { return control.IsEditingInPlace(); });
}

}  // namespace

const luaL_Reg LuaUI_HotTextTimecodeWrapper::methods[] = {
    {"GetNumericValue", NumericValueOf<UI_HotTextTimecode>},
    {"SetNumericValue", SetNumericValueOf<UI_HotTextTimecode>},
    {"SetValueToStringFunction", hottexttimecodeSetValueToStringFunction},
    {"SetStringToValueFunction", hottexttimecodeSetStringToValueFunction},
    {"IsEditingInPlace", hottexttimecodeIsEditingInPlace},
    {"SetMinMax", hottexttimecodeSetMinMax},
    {nullptr, nullptr},
};

const char* const kZebHotTextTimecodeMetatable = "zebHotTextTimecode";

const char* LuaUI_HotTextTimecodeWrapper::GetMetatableName() {
    return kZebHotTextTimecodeMetatable;
}

void LuaUI_HotTextTimecodeWrapper::RegisterMethods(lua_State* L) {
    LuaUI_HotTextNumberWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua
