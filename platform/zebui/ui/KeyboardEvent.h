// A key event as the toolkit delivers it to a node.
#pragma once

#include <cstddef>

#include "zebcore/utility/Strings.h"
#include "zebui/ui/InputCodes.h"
#include "zebui/ui/KeyboardCode.h"
#include "zebui/ui/OS_Event.h"

namespace zebui {
namespace ui {

// characters is what the key typed, in UTF-16; a dead or modifier key types nothing.
class KeyboardEvent {
public:
    using Action = KeyboardAction;

    KeyboardEvent(Action action, const zebcore::UTF16String& characters, const KeyboardCode& code,
                  ModifierFlags modKey, bool isRepeat, const OS_Event& osEvent = OS_Event());

    Action GetAction() const { return mAction; }
    // The UTF-16 unit at index, or 0 past the end.
    char16_t GetCharacter(size_t index) const;
    const zebcore::UTF16String& GetCharacters() const { return mCharacters; }
    const KeyboardCode& GetCode() const { return mCode; }
    ModifierFlags GetModKey() const { return mModKey; }
    bool IsRepeat() const { return mIsRepeat; }
    const OS_Event& GetOSEvent() const { return mOSEvent; }

private:
    Action mAction;
    zebcore::UTF16String mCharacters;
    KeyboardCode mCode;
    ModifierFlags mModKey;
    bool mIsRepeat;
    OS_Event mOSEvent;
};

}  // namespace ui
}  // namespace zebui
