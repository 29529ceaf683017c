// A hot text number whose text the script makes and reads.
#include "zeblua/ui/controls/src/UI_HotTextTimecode.h"

#include "zebcore/debug/Debug.h"
#include "zebui/controls/UI_InteractiveControlChangedMessage.h"
#include "zebui/ui/MessageFunctionAdapter.h"
#include "zebui/ui/MouseEvent.h"

namespace zeblua {
namespace controls {
namespace {

namespace zc = zebui::controls;
namespace zu = zebui::ui;

const zebcore::UTF16String kFromValue = u"???";
constexpr double kNoValue = -1.0;

}  // namespace

TimecodeTextEdit::TimecodeTextEdit() : UI_TextEdit(0, 0) {}

bool TimecodeTextEdit::UI_DoMouseEvent(zu::UI_Node*, const zu::MouseEvent& event) {
    if (IsDisabled() || event.GetAction() != zu::kMouseAction_Wheel ||
        event.GetMouseWheelDelta() == 0)
        return false;
    SelectAll();
    return true;
}

UI_HotTextTimecode::UI_HotTextTimecode() {
    setUp();
}

UI_HotTextTimecode::UI_HotTextTimecode(const ValueToStringFunctionP& valueToString,
                                       const StringToValueFunctionP& stringToValue)
    : mValueToString(valueToString), mStringToValue(stringToValue) {
    setUp();
}

UI_HotTextTimecode::~UI_HotTextTimecode() = default;

void UI_HotTextTimecode::setUp() {
    mMinimum = 0.0;
    mMaximum = kDefaultMaximum;
    UI_HotTextNumber::SetValue(0.0);
    UI_HotTextNumber::SetMinValue(0.0);
    SetWantsKeyboardFocus(true);
    SetSuppressFocusDrawing(true);
    // A value already 0 reports no change, and the base made its text before a function
    // given to the constructor could be asked.
    UpdateStringFromValue();
}

void UI_HotTextTimecode::Init() {
    setUp();
}

void UI_HotTextTimecode::SetMinMax(double minimum, double maximum) {
    mMinimum = minimum;
    mMaximum = maximum;
}

void UI_HotTextTimecode::UpdateValue(double value) {
    SetValue(value);
}

void UI_HotTextTimecode::SetValueToStringFunction(const ValueToStringFunctionP& function) {
    mValueToString = function;
    if (IsEditingInPlace())
        UpdateEditFromValue();
    else
        UpdateStringFromValue();
}

void UI_HotTextTimecode::SetStringToValueFunction(const StringToValueFunctionP& function) {
    mStringToValue = function;
}

void UI_HotTextTimecode::UpdateStringFromValue() {
    if (!mValueToString) return UI_HotTextNumber::UpdateStringFromValue();
    const zebcore::UTF16String text = (*mValueToString)(GetValue());
    if (text != GetText()) SetText(text, true);
}

void UI_HotTextTimecode::UpdateEditFromValue() {
    if (!mValueToString) return UI_HotTextNumber::UpdateEditFromValue();
    const zebcore::UTF16String text = (*mValueToString)(GetValue());
    if (zc::UI_TextEdit* edit = GetInPlaceEdit()) edit->SetValue(text);
}

void UI_HotTextTimecode::UpdateValueFromEdit() {
    if (!mStringToValue) return UI_HotTextNumber::UpdateValueFromEdit();
    const zc::UI_TextEdit* edit = GetInPlaceEdit();
    if (!edit) return;
    const zebcore::UTF16String text = edit->GetValue();
    const double answer = (*mStringToValue)(text);
    if (answer == kNoValue || answer == GetValue()) return;
    // The unclamped answer was compared: a value that clamps to the present one is
    // stored again, which changes nothing.
    const double value = answer > mMaximum ? mMaximum : answer < mMinimum ? mMinimum : answer;
    StoreValue(value);
    UpdateStringFromValue();
}

void UI_HotTextTimecode::BeginInPlaceEdit(bool, zu::FocusChangeReason,
                                          const zebcore::UTF16String& text) {
    RemoveTimecodeTextEditControl(false);
    ZEB_ASSERT(!IsDisabled());
    OpenInPlaceEdit(new TimecodeTextEdit(), text,
                    zu::BindMessageFunction(this, &UI_HotTextTimecode::TextEditChanged));
}

void UI_HotTextTimecode::TextEditChanged(zc::UI_InteractiveControlChangedMessage* message) {
    if (mInPlaceEditGuard > 0) return;
    HandleInPlaceEditPhase(message);
}

void UI_HotTextTimecode::RemoveTimecodeTextEditControl(bool removeTimer) {
    RemoveInPlaceEdit(removeTimer);
}

bool UI_HotTextTimecode::UI_DoTimerNotify(int id) {
    if (id != mInPlaceEditTimerID) return UI_HotTextNumber::UI_DoTimerNotify(id);
    RemoveTimecodeTextEditControl(true);
    return true;
}

}  // namespace controls
}  // namespace zeblua
