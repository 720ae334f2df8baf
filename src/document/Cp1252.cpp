#include "document/Cp1252.h"

#include <array>

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
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        int extra = 0;
        char32_t cp = 0;
        if (lead < 0x80) {
            cp = lead;
        } else if ((lead & 0xE0) == 0xC0 && lead >= 0xC2) {
            extra = 1, cp = lead & 0x1F;
        } else if ((lead & 0xF0) == 0xE0) {
            extra = 2, cp = lead & 0x0F;
        } else if ((lead & 0xF8) == 0xF0 && lead <= 0xF4) {
            extra = 3, cp = lead & 0x07;
        } else {
            out += '?';
            ++i;
            continue;
        }
        bool ok = i + static_cast<std::size_t>(extra) < utf8.size();
        for (int k = 1; ok && k <= extra; ++k) {
            const auto b = static_cast<unsigned char>(utf8[i + static_cast<std::size_t>(k)]);
            if ((b & 0xC0) != 0x80)
                ok = false;
            else
                cp = (cp << 6) | (b & 0x3F);
        }
        if (!ok) {
            out += '?';
            ++i;
            continue;
        }
        i += static_cast<std::size_t>(extra) + 1;
        out += UnicodeToCp1252(cp);
    }
    return out;
}

}  // namespace flickerscribe
