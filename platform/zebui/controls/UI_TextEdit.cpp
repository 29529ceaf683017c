// An editable text field.
#include "zebui/controls/UI_TextEdit.h"

namespace zebui {
namespace controls {

UI_TextEdit::UI_TextEdit(zebcore::utility::Flags<unsigned int> /*flags*/, int /*alignment*/) {}

UI_TextEdit::~UI_TextEdit() = default;

}  // namespace controls
}  // namespace zebui
