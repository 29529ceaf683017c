// The button family's wrappers against the faults a script can make: values no script can
// set, every method through a released and an ended wrapper, a wrapper ended while an
// argument is read, and change functions that tear down what called them.
#include <string>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/ui/src/ImageProvider.h"
#include "zebui/controls/UI_Button.h"
#include "zebui/controls/UI_PictureTextButton.h"
#include "zebui/controls/UI_RadioButton.h"
#include "zebui/controls/UI_RadioGroup.h"

namespace {

namespace zc = zebui::controls;
using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;

class ButtonFamilyTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        runLua("C = require 'zeblua.zebcontrols'");
    }
};

// Every method of the family once, with the arguments it takes: a script's call of it.
const MethodRow kMethodRows[] = {
    {"C.NewTextButton()", "w:SetValue(true)"},
    {"C.NewTextButton()", "w:GetValue()"},
    {"C.NewTextButton()", "w:SetDisplayContainerNever()"},
    {"C.NewTextButton()", "w:ShouldDisplayContainerNever()"},
    {"C.NewTextButton()", "w:SetDisplayContainerAlways()"},
    {"C.NewTextButton()", "w:ShouldDisplayContainerAlways()"},
    {"C.NewTextButton()", "w:SetDisplayBorderNever()"},
    {"C.NewTextButton()", "w:ShouldDisplayBorderNever()"},
    {"C.NewTextButton()", "w:SetDisplayBorderAlways()"},
    {"C.NewTextButton()", "w:ShouldDisplayBorderAlways()"},
    {"C.NewTextButton()", "w:SetDisplayChromelessNormalState()"},
    {"C.NewTextButton()", "w:ShouldDisplayChromelessNormalState()"},
    {"C.NewTextButton()", "w:SetInsetUndrawnSpace()"},
    {"C.NewTextButton()", "w:ShouldInsetUndrawnSpace()"},
    {"C.NewTextButton()", "w:SetDrawInnerBevelOutline()"},
    {"C.NewTextButton()", "w:ShouldDrawInnerBevelOutline()"},
    {"C.NewTextButton()", "w:SetChangeFocusOnClick(false)"},
    {"C.NewTextButton()", "w:GetChangeFocusOnClick()"},
    {"C.NewTextButton()", "w:SetNotificationOnMouseDown()"},
    {"C.NewTextButton()", "w:GetNotificationOnMouseDown()"},
    {"C.NewTextButton()", "w:SetSpringLoaded()"},
    {"C.NewTextButton()", "w:SetContentOffset(zeblua_CreateNewPointF32(1, 2))"},
    {"C.NewTextButton()", "w:SetCornerRadius(3)"},
    {"C.NewTextButton()", "w:GetCornerRadius()"},
    {"C.NewTextButton()", "w:SetStrokeSizes(1, 2)"},
    {"C.NewTextButton()", "w:GetStrokeSizes()"},
    {"C.NewTextButton()", "w:SetTextIndent(4)"},
    {"C.NewPictureButton()", "w:SetImageBaseName('zeblua_badge')"},
    {"C.NewDisclosureTriangleButton()", "w:SetTwirlDuration(0.5)"},
    {"C.NewCheckbox()", "w:SetChecked()"},
    {"C.NewCheckbox()", "w:IsChecked()"},
    {"C.NewRadioButton()", "w:SetValue()"},
    {"C.NewRadioButton()", "w:GetValue()"},
    {"zebhost.newNode('UI_RadioGroup')", "w:GetSelectedRadioButton()"},
};

// A released wrapper and one a script ended through its __gc answer every method with no
// value and no error.
TEST_F(ButtonFamilyTest, ReleasedAndEndedWrappersAnswerNothing) {
    for (const MethodRow& row : kMethodRows)
        expectEndedWrapperAnswersNothing(row);
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());
}

// A wrapper of another family is the conversion error for every typed row, once its
// arguments are read; a table is "Bad user data".
TEST_F(ButtonFamilyTest, EveryRowCastsItsNode) {
    runLua("knob = C.NewKnob()");
    for (const MethodRow& row : kMethodRows) {
        SCOPED_TRACE(row.call);
        runLua(std::string("w = ") + row.maker);
        EXPECT_NE(luaError(MethodCallOn(row, "knob")).find("Invalid type conversion."),
                  std::string::npos);
        EXPECT_NE(luaError(MethodCallOn(row, "{}")).find("Bad user data"), std::string::npos);
    }
    zebcore::debug::ClearRecordedAssertReports();
}

// A point whose field ends the wrapper that is reading it: the method answers nothing and
// touches nothing freed.
TEST_F(ButtonFamilyTest, WrapperEndedWhileItsPointIsRead) {
    runLua(R"(
        w = C.NewTextButton()
        local p = setmetatable({ y = 2 }, { __index = function(_, key)
          getmetatable(w).__gc(w)
          collectgarbage("collect")
          return 5
        end })
        n = select("#", w:SetContentOffset(p))
    )");
    EXPECT_EQ(luaValue("n"), "0");
}

// Values a script cannot set read as off, and a picture text button is a text button to
// the factory.
TEST_F(ButtonFamilyTest, MixedValuesReadAsOff) {
    const boost::intrusive_ptr<zc::UI_Button> button(new zc::UI_Button);
    const boost::intrusive_ptr<zc::UI_RadioButton> radio(new zc::UI_RadioButton);
    button->SetValue(zc::kButtonValue_Mixed);
    radio->SetValue(zc::kRadioValue_Mixed);
    setWrapper("button", button);
    setWrapper("radio", radio);
    setWrapper("pictureText", NodeP(new zc::UI_PictureTextButton));
    EXPECT_EQ(luaValue("button:GetValue()"), "false");
    EXPECT_EQ(luaValue("radio:GetValue()"), "false");
    EXPECT_EQ(luaValue("getmetatable(pictureText) == debug.getregistry().zebUI_TextButton"),
              "true");
    runLua("button:SetValue(); radio:SetValue()");
    EXPECT_EQ(button->GetValue(), zc::kButtonValue_On);
    EXPECT_EQ(radio->GetValue(), zc::kRadioValue_On);
}

// A picture text button is a text button with an image from the image provider in a
// square at the leading edge, and the label after it.
TEST_F(ButtonFamilyTest, PictureTextButtonDrawsItsImageBeforeItsLabel) {
    const boost::intrusive_ptr<zc::UI_PictureTextButton> button(new zc::UI_PictureTextButton);
    button->UI_SetLocalRectF(zebcore::geom::RectT<float>(0, 0, 80, 24));
    button->SetImageBaseName("zeblua_badge");
    uit::ImageProvider::InstallImageSupply(*button);
    setWrapper("button", button);
    runLua(R"(
        local r = button:GetLabelTextRect()
        label = table.concat({ r.left, r.top, r.width, r.height }, ",")
        local picture = zebhost.draw(button)
        red, green, blue = picture:pixel(11, 3)
        after = table.concat({ picture:pixel(40, 3) }, ",")
        state = zebhost.snapshot(button).state
    )");
    EXPECT_EQ(luaValue("label"), "27,1,52,22");  // the border, the 22-unit image, the gap
    EXPECT_EQ(luaValue("red > 200 and green > 100 and green < 200 and blue < 80"), "true");
    EXPECT_EQ(luaValue("after"), "215,217,222,255");  // the face beside the image
    EXPECT_EQ(luaValue("state.imageName .. tostring(state.imageSupply)"), "zeblua_badgetrue");
}

// A button switched off by its group may take itself and the chosen one out of the tree
// and drop every wrapper; the group and both buttons live through the switch.
TEST_F(ButtonFamilyTest, ChangeFunctionsMayDismantleTheGroup) {
    const boost::intrusive_ptr<zc::UI_RadioGroup> group(new zc::UI_RadioGroup);
    setWrapper("group", group);
    runLua(R"(
        local a
        a, b = C.NewRadioButton(), C.NewRadioButton()
        group:ChildPushBack(a)
        group:ChildPushBack(b)
        a:SetValue()
        a:NotifyWhenChanged(function()
          local first, second = group:ChildGet(1), group:ChildGet(2)
          if first then group:ChildRemove(first); first:Release() end
          if second then group:ChildRemove(second); second:Release() end
          a:Release(); b:Release()
          collectgarbage("collect")
        end)
        b:SetValue()
        value = b:GetValue()
        collectgarbage("collect")
    )");
    EXPECT_EQ(luaValue("value"), "nil");
    EXPECT_EQ(group->ChildSize(), 0u);
    EXPECT_EQ(group->GetSelectedRadioButton(), nullptr);
}

}  // namespace
