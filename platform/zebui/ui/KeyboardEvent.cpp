// Key events.
#include "zebui/ui/KeyboardEvent.h"

namespace zebui {
namespace ui {

KeyboardEvent::KeyboardEvent(Action action, const zebcore::UTF16String& characters,
                             const KeyboardCode& code, ModifierFlags modKey, bool isRepeat,
                             const OS_Event& osEvent)
    : mAction(action), mCharacters(characters), mCode(code), mModKey(modKey), mIsRepeat(isRepeat),
      mOSEvent(osEvent) {}

char16_t KeyboardEvent::GetCharacter(size_t index) const {
    return index < mCharacters.size() ? mCharacters[index] : char16_t(0);
}

}  // namespace ui
}  // namespace zebui
