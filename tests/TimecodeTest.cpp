// The timecode hot text from native code and from scripts: its setup, the formatter's and
// the parser's answers of every form, the edit box's life, the timer ids it passes on,
// the script functions' references and a state that closes under a living control.
#include <string>

#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/ui/controls/src/UI_HotTextTimecode.h"
#include "zebui/controls/UI_TextEdit.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/OS_Event.h"

namespace {

using zeblua::controls::TimecodeTextEdit;
using zeblua::controls::UI_HotTextTimecode;
using TimecodeP = boost::intrusive_ptr<UI_HotTextTimecode>;
namespace zu = zebui::ui;

zu::MouseEvent wheel(int delta) {
    return zu::MouseEvent(zu::kMouseAction_Wheel, zu::kMouseButton_None, 0, {5, 5}, 0,
                          zu::OS_Event(), delta, 0, 0, 0, zu::kSwipeDirection_None, 0);
}

zebui::controls::UI_TextEdit* editOf(const UI_HotTextTimecode& control) {
    return control.ChildSize()
               ? dynamic_cast<zebui::controls::UI_TextEdit*>(control.ChildGet(0).get())
               : nullptr;
}

TEST(TimecodeNativeTest, SetupBoundsAndInit) {
    const TimecodeP control(new UI_HotTextTimecode());
    EXPECT_EQ(control->GetValue(), 0);
    EXPECT_EQ(control->GetMinimum(), 0);
    EXPECT_EQ(control->GetMaximum(), 86340000.0);
    EXPECT_EQ(control->GetMinValue(), 0) << "the toolkit's lower bound";
    EXPECT_TRUE(control->GetWantsKeyboardFocus());
    EXPECT_TRUE(control->GetSuppressFocusDrawing());
    control->SetMinMax(9, -9);
    EXPECT_EQ(control->GetMinimum(), 9) << "kept as given, not compared";
    EXPECT_EQ(control->GetMaximum(), -9);
    control->UpdateValue(90000000);
    EXPECT_EQ(control->GetValue(), 90000000) << "SetValue passes the typed maximum";
    control->SetValue(-5);
    EXPECT_EQ(control->GetValue(), 0) << "and stops at the toolkit's 0";
    control->UpdateValue(42);
    control->Init();
    EXPECT_EQ(control->GetValue(), 0);
    EXPECT_EQ(control->GetMinimum(), 0);
    EXPECT_EQ(control->GetMaximum(), 86340000.0);
}

TEST(TimecodeNativeTest, FunctionsGivenAtConstructionShowAndParse) {
    int formats = 0;
    const TimecodeP control(new UI_HotTextTimecode(
        boost::make_shared<zeblua::controls::ValueToStringFunction>([&](double value) {
            ++formats;
            return zebcore::utility::UTF8to16("v" + std::to_string(static_cast<int>(value)));
        }),
        boost::make_shared<zeblua::controls::StringToValueFunction>(
            [](const zebcore::UTF16String& text) { return text == u"ten" ? 10.0 : -1.0; })));
    EXPECT_EQ(control->GetText(), u"v0");
    const int before = formats;
    control->SetValue(0);
    EXPECT_EQ(formats, before) << "no change, no update";
    control->BeginInPlaceEdit(true, zu::kFocusChangeReason_Program, u"ten");
    ASSERT_TRUE(editOf(*control));
    EXPECT_EQ(editOf(*control)->GetValue(), u"ten");
    EXPECT_TRUE(dynamic_cast<TimecodeTextEdit*>(editOf(*control)));
    editOf(*control)->FinishInteractiveChange();
    EXPECT_EQ(control->GetValue(), 10);
    EXPECT_EQ(control->GetText(), u"v10");
    EXPECT_FALSE(control->IsEditingInPlace());
    EXPECT_FALSE(editOf(*control)->UI_IsShown());
    control->RemoveTimecodeTextEditControl(true);
    EXPECT_EQ(control->ChildSize(), 0u);
}

TEST(TimecodeNativeTest, TheEditBoxTakesTheWheelOnlyWhenItTurnsAndIsEnabled) {
    const boost::intrusive_ptr<TimecodeTextEdit> box(new TimecodeTextEdit());
    box->SetValue(u"12:00");
    box->SetSelection(2, 2);
    EXPECT_FALSE(box->UI_DoMouseEvent(box.get(), wheel(0)));
    EXPECT_EQ(box->GetSelection().first, 2u);
    box->SetDisabled(true);
    EXPECT_FALSE(box->UI_DoMouseEvent(box.get(), wheel(2)));
    box->SetDisabled(false);
    EXPECT_TRUE(box->UI_DoMouseEvent(box.get(), wheel(-1)));
    EXPECT_EQ(box->GetSelection(), std::make_pair(size_t(0), size_t(5)));
    EXPECT_EQ(box->GetValue(), u"12:00");
}

TEST(TimecodeNativeTest, OtherTimerIdsReachTheBaseAndADisabledEditIsReported) {
    const TimecodeP control(new UI_HotTextTimecode());
    int heard = 0;
    control->UI_InstallTimerNotifyFunction(boost::make_shared<zu::TimerNotifyFunction>(
        [&](int id) { return id == 4242 ? (++heard, true) : false; }));
    EXPECT_TRUE(control->UI_DoTimerNotify(4242));
    EXPECT_EQ(heard, 1);
    EXPECT_FALSE(control->UI_DoTimerNotify(4243));
    zebcore::debug::ClearRecordedAssertReports();
    control->SetDisabled(true);
    control->BeginInPlaceEdit(false, zu::kFocusChangeReason_Program, u"???");
    ASSERT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u);
    EXPECT_EQ(zebcore::debug::RecordedAssertReports()[0].expression, "!IsDisabled()");
    EXPECT_TRUE(editOf(*control)) << "the edit goes on behind the report";
}

// A timecode made by the script as `tc`, and its node.
class TimecodeScriptTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        runLua("require 'zeblua.zebcontrols'; tc = zebcontrols.NewHotTextTimecode()");
        mControl = nodeOf<UI_HotTextTimecode>("tc");
        ASSERT_TRUE(mControl);
    }
    void TearDown() override {
        mControl.reset();
        LuaTest::TearDown();
    }
    std::string text() const { return zebcore::utility::UTF16to8(mControl->GetText()); }
    // Types text into a fresh edit and finishes it, as Return does.
    void typeAndFinish(const char16_t* typed) {
        mControl->BeginInPlaceEdit(true, zu::kFocusChangeReason_Program, u"???");
        editOf(*mControl)->SetValue(typed);
        editOf(*mControl)->FinishInteractiveChange();
    }
    TimecodeP mControl;
};

TEST_F(TimecodeScriptTest, FormatterAnswersOfEveryForm) {
    struct Row {
        const char* function;
        std::string shown;
    };
    const Row rows[] = {
        {"function(v) return 'at ' .. v end", "at 5"},
        {"function(v) return 5 end", ""},
        {"function(v) return nil end", ""},
        {"function(v) end", ""},
        {"function(v) return {} end", ""},
        {"function(v) error('no format') end", ""},
        {"function(v) error({}) end", ""},
        {"function(v) return 'a\\0b' end", std::string("a\0b", 3)},
        {"function(v) return 'first', 'second' end", "first"},
    };
    mControl->SetValue(5);
    for (const Row& row : rows) {
        runLua(std::string("tc:SetNumericValue(5); tc:SetValueToStringFunction(") + row.function +
               ")");
        EXPECT_EQ(text(), row.shown) << row.function;
        EXPECT_EQ(lua_gettop(L), 0) << row.function;
    }
}

TEST_F(TimecodeScriptTest, ParserAnswersOfEveryForm) {
    struct Row {
        const char* function;
        double stored;
    };
    const Row rows[] = {
        {"function(t) return 30 end", 30},  {"function(t) return ' 0x10 ' end", 16},
        {"function(t) return -1 end", 7},   {"function(t) return '-1' end", 7},
        {"function(t) return true end", 7}, {"function(t) return 0/0 end", 7},
        {"function(t) return -5 end", 0},   {"function(t) return tonumber(t) * 2 end", 24},
    };
    for (const Row& row : rows) {
        mControl->SetValue(7);
        runLua(std::string("tc:SetStringToValueFunction(") + row.function + ")");
        typeAndFinish(u"12");
        EXPECT_EQ(mControl->GetValue(), row.stored) << row.function;
        EXPECT_EQ(lua_gettop(L), 0) << row.function;
    }
}

TEST_F(TimecodeScriptTest, TheParserSeesTheTypedTextAsUtf8AndTheCallerKeepsItsStack) {
    runLua("seen = nil; tc:SetStringToValueFunction(function(t) seen = t; return 3 end)");
    pushSentinels();
    typeAndFinish(u"\u00e9t\u00e9");
    expectSentinels();
    EXPECT_EQ(luaValue("seen"), "\xc3\xa9t\xc3\xa9");
    EXPECT_EQ(mControl->GetValue(), 3);
}

TEST_F(TimecodeScriptTest, AFormatterSetWhileEditingFillsTheBox) {
    mControl->SetValue(8);
    mControl->BeginInPlaceEdit(true, zu::kFocusChangeReason_Program, u"7");
    runLua("tc:SetValueToStringFunction(function(v) return 'v' .. v end)");
    EXPECT_EQ(editOf(*mControl)->GetValue(), u"v8") << "the box shows the new text";
    EXPECT_EQ(luaValue("tc:IsEditingInPlace()"), "true");
}

TEST_F(TimecodeScriptTest, ReplacedFunctionsAreReleasedOnceNothingRunsThem) {
    runLua(R"(
        kept = setmetatable({}, { __mode = "k" })
        local first = function(v) return "first" end
        kept[first] = true
        tc:SetValueToStringFunction(first)
        local parser = function(t) return 1 end
        kept[parser] = true
        tc:SetStringToValueFunction(parser)
    )");
    EXPECT_EQ(text(), "first");
    runLua("tc:SetValueToStringFunction(function(v) return 'second' end)");
    runLua("tc:SetStringToValueFunction(function(t) return 2 end)");
    runLua("collectgarbage(); collectgarbage()");
    EXPECT_EQ(luaValue("next(kept)"), "nil") << "both replaced functions were collected";
    EXPECT_EQ(text(), "second");
}

TEST_F(TimecodeScriptTest, AFormatterThatReplacesItselfFinishesItsCall) {
    runLua(R"(
        tc:SetValueToStringFunction(function(v)
            tc:SetValueToStringFunction(function(w) return "inner " .. w end)
            collectgarbage()
            return "outer " .. v
        end)
    )");
    EXPECT_EQ(text(), "outer 0") << "the outer call's answer is the last shown";
    mControl->SetValue(3);
    EXPECT_EQ(text(), "inner 3");
}

TEST_F(TimecodeScriptTest, FunctionsSetInACoroutineRunOnTheMainThread) {
    runLua(R"(
        local co = coroutine.create(function()
            tc:SetValueToStringFunction(function(v) return coroutine.running() and "co" or "main" end)
            coroutine.yield()
        end)
        coroutine.resume(co)
        co = nil
        collectgarbage()
    )");
    mControl->SetValue(1);
    EXPECT_EQ(text(), "main");
}

TEST_F(TimecodeScriptTest, AControlThatOutlivesItsStateShowsNothingAndCallsNothing) {
    runLua("tc:SetValueToStringFunction(function(v) return 'v' .. v end)");
    runLua("tc:SetStringToValueFunction(function(t) return 5 end)");
    EXPECT_EQ(text(), "v0");
    lua_close(L);
    L = nullptr;
    mControl->SetValue(2);
    EXPECT_EQ(text(), "") << "no state to format in";
    typeAndFinish(u"9");
    EXPECT_EQ(mControl->GetValue(), 2) << "nor to parse in";
}

TEST_F(TimecodeScriptTest, ArgumentErrorsChangeNothing) {
    EXPECT_NE(luaError("tc:SetValueToStringFunction('f')").find("function expected, got string"),
              std::string::npos);
    EXPECT_NE(luaError("tc:SetMinMax(1)").find("bad argument #2"), std::string::npos);
    EXPECT_EQ(mControl->GetMaximum(), 86340000.0);
    EXPECT_NE(luaError("tc:SetNumericValue('x')").find("number expected"), std::string::npos);
    EXPECT_EQ(luaValue("select('#', tc:SetMinMax(1, 2))"), "0");
    EXPECT_EQ(mControl->GetMinimum(), 1);
    EXPECT_EQ(luaValue("tc:GetNumericValue()"), "0");
    runLua("tc:Release()");
    EXPECT_EQ(luaValue("select('#', tc:SetMinMax(3, 4))"), "0") << "released: nothing";
    EXPECT_EQ(luaValue("select('#', tc:GetNumericValue())"), "0");
    EXPECT_EQ(mControl->GetMinimum(), 1);
}

}  // namespace
