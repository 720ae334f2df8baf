#pragma once

#include <optional>
#include <string>
#include <string_view>

// The program keeps text in the 8-bit Windows-1252 code page, one byte a
// character, as its files are. These are the one way between that and Unicode.
namespace flickerscribe {

// The Unicode code point of one Windows-1252 byte. The five bytes that the code
// page leaves undefined map to the C1 controls of the same value, so every byte
// survives a round trip.
char32_t Cp1252ToUnicode(unsigned char byte);

// The Windows-1252 byte of a code point, or '?' when the code page has none.
char UnicodeToCp1252(char32_t codePoint);

std::string Cp1252ToUtf8(std::string_view text);
// Bytes that are no valid UTF-8 become '?' too, one for each.
std::string Utf8ToCp1252(std::string_view utf8);

// The code points of UTF-8 text; nullopt when it is no valid UTF-8: a byte
// that starts no character, a sequence cut short, an overlong form (C0 80 for
// NUL), a surrogate or a code point past U+10FFFF.
std::optional<std::u32string> DecodeUtf8(std::string_view utf8);

}  // namespace flickerscribe
