// LuaException: the exception type the host may throw for a failed script.
#pragma once

#include <exception>

#include "zebcore/utility/Strings.h"

namespace zeblua {
namespace utility {

// Nothing in the library throws it, and like every C++ exception it must be caught
// before it reaches a Lua frame.
class LuaException : public std::exception {
public:
    // The localized "Unknown Lua Exception".
    LuaException();
    explicit LuaException(const zebcore::UTF8String& message) : mMessage(message) {}

    zebcore::UTF8String GetMessage() const { return mMessage; }
    const char* what() const noexcept override { return mMessage.c_str(); }

private:
    zebcore::UTF8String mMessage;
};

}  // namespace utility
}  // namespace zeblua
