// The default message of LuaException.
#include "zeblua/utility/src/LuaException.h"

#include "zebcore/config/Localizer.h"

namespace zeblua {
namespace utility {

LuaException::LuaException()
    : mMessage(zebcore::utility::UTF16to8(zebcore::config::Localizer::Get()->GetLocalizedString(
          "$$$/zeblua/utility/UnknownLuaException=Unknown Lua Exception"))) {}

}  // namespace utility
}  // namespace zeblua
