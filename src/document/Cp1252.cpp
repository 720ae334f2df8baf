#include "document/Cp1252.h"

#include <array>
#include <optional>

namespace flickerscribe {
namespace {

// 0x80..0x9F; the rest of the code page is the same as Latin-1.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void AppendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

// The code point that starts at `i`, which moves behind it; for what is no
// valid UTF-8 there, nullopt, and `i` moves on by one byte.
std::optional<char32_t> NextCodePoint(std::string_view utf8, std::size_t& i) {
    const auto lead = static_cast<unsigned char>(utf8[i++]);
    if (lead < 0x80) return lead;
    int extra = 0;
    char32_t cp = 0;
    char32_t least = 0;  // below this the form is overlong
    if ((lead & 0xE0) == 0xC0) {
        extra = 1, cp = lead & 0x1F, least = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        extra = 2, cp = lead & 0x0F, least = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        extra = 3, cp = lead & 0x07, least = 0x10000;
    } else {
        return std::nullopt;  // a continuation byte, or no lead byte at all
    }
    std::size_t at = i;
    for (int k = 0; k < extra; ++k, ++at) {
        if (at >= utf8.size()) return std::nullopt;
        const auto b = static_cast<unsigned char>(utf8[at]);
        if ((b & 0xC0) != 0x80) return std::nullopt;
        cp = (cp << 6) | (b & 0x3F);
    }
    if (cp < least || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return std::nullopt;
    i = at;
    return cp;
}

}  // namespace

char32_t Cp1252ToUnicode(unsigned char byte) {
    if (byte >= 0x80 && byte < 0xA0) return kHigh[byte - 0x80];
    return byte;
}

char UnicodeToCp1252(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
    for (std::size_t i = 0; i < kHigh.size(); ++i) {
        if (kHigh[i] == cp) return static_cast<char>(0x80 + i);
    }
    return '?';
}

std::string Cp1252ToUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size() + text.size() / 4);
    for (char c : text) AppendUtf8(out, Cp1252ToUnicode(static_cast<unsigned char>(c)));
    return out;
}

std::string Utf8ToCp1252(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto cp = NextCodePoint(utf8, i);
        out += cp ? UnicodeToCp1252(*cp) : '?';
    }
    return out;
}

std::optional<std::u32string> DecodeUtf8(std::string_view utf8) {
    std::u32string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto cp = NextCodePoint(utf8, i);
        if (!cp) return std::nullopt;
        out += *cp;
    }
    return out;
}

}  // namespace flickerscribe
