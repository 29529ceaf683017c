// Native strings of the base library and the conversions between them.
#pragma once

#include <string>
#include <vector>

namespace zebcore {

// Scripts hold UTF-8; the toolkit takes UTF-16 code units in the processor's byte order.
using UTF8String = std::string;
using UTF16String = std::u16string;

namespace utility {

enum UnicodeErrorCode { kUnicodeNoError = 0, kUnicodeInvalidSequence = 1 };

// Invalid UTF-8 and unpaired surrogates never throw: each bad sequence becomes U+FFFD,
// and the first problem is reported through the optional out-parameters.
UTF16String UTF8to16(const UTF8String& text, UnicodeErrorCode* error = nullptr,
                     unsigned long* errorOffset = nullptr);
UTF8String UTF16to8(const UTF16String& text);
UTF8String UTF16to8(const char16_t* zeroTerminated);

// Byte by byte widening, for names known to be ASCII.
UTF16String AsciiToUTF16(const std::string& text);

// Full Unicode case mapping in the root locale: the length may change ("ß" -> "SS").
void ToUpperCase(UTF16String& text);
void ToLowerCase(UTF16String& text);

// Fills placeholders ^1 to ^9 with replacements[0..8]; "^^" is a literal caret.
// A placeholder without a replacement, or a caret before anything else, stays as written.
UTF16String ReplaceInString(const UTF16String& templateText,
                            const std::vector<UTF16String>& replacements);

}  // namespace utility
}  // namespace zebcore
