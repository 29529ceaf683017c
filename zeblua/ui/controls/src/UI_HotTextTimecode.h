// A hot text number whose text the script makes and reads: timecodes, in practice.
#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include "zebui/controls/UI_HotTextNumber.h"
#include "zebui/controls/UI_TextEdit.h"

namespace zeblua {
namespace controls {

using ValueToStringFunction = boost::function<zebcore::UTF16String(double)>;
using StringToValueFunction = boost::function<double(zebcore::UTF16String)>;
using ValueToStringFunctionP = boost::shared_ptr<ValueToStringFunction>;
using StringToValueFunctionP = boost::shared_ptr<StringToValueFunction>;

// The edit box of a timecode: a wheel turn over it selects its text and changes nothing.
class TimecodeTextEdit : public zebui::controls::UI_TextEdit {
public:
    TimecodeTextEdit();
    bool UI_DoMouseEvent(zebui::ui::UI_Node* target, const zebui::ui::MouseEvent& event) override;
};

// The value stays a double; the value to string function makes its text, the string to
// value function reads typed text back, -1 meaning "no value". Without them the control
// shows and takes text as a plain hot text number does.
//
// The minimum and maximum bound typed values only: SetValue and drags are bounded by the
// toolkit's own range (lower bound 0), not by them, and SetMinMax neither clamps nor
// compares them.
class UI_HotTextTimecode : public zebui::controls::UI_HotTextNumber {
public:
    static constexpr double kDefaultMaximum = 86340000.0;

    UI_HotTextTimecode();
    UI_HotTextTimecode(const ValueToStringFunctionP& valueToString,
                       const StringToValueFunctionP& stringToValue);
    ~UI_HotTextTimecode() override;

    // Runs the constructors' setup again on a live control.
    virtual void Init();

    void SetMinMax(double minimum, double maximum);
    double GetMinimum() const { return mMinimum; }
    double GetMaximum() const { return mMaximum; }
    void UpdateValue(double value);
    // Shows the new function's text at once, in the edit box while one is open.
    void SetValueToStringFunction(const ValueToStringFunctionP& function);
    void SetStringToValueFunction(const StringToValueFunctionP& function);

    // Other ids go to the base, so a script's timers on the control still fire.
    bool UI_DoTimerNotify(int id) override;
    void BeginInPlaceEdit(bool flag, zebui::ui::FocusChangeReason reason,
                          const zebcore::UTF16String& text) override;

    // Removes the edit box, open or closing, with its removal timer; with no box the
    // timer goes only when removeTimer is true.
    void RemoveTimecodeTextEditControl(bool removeTimer);

protected:
    void UpdateEditFromValue() override;
    void UpdateValueFromEdit() override;
    void UpdateStringFromValue() override;
    // Follows the edit box, ignoring what its setup causes.
    virtual void TextEditChanged(zebui::controls::UI_InteractiveControlChangedMessage* message);

private:
    void setUp();

    double mMinimum = 0.0;
    double mMaximum = kDefaultMaximum;
    ValueToStringFunctionP mValueToString;
    StringToValueFunctionP mStringToValue;
};

}  // namespace controls
}  // namespace zeblua
