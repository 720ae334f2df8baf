// The one number test against an independent reading of the same rule: an
// optional sign, digits with an optional fraction and exponent, blanks around,
// read by the C library, rounded half to even into -32768..32767.
#include <cerrno>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "FuzzChecks.h"
#include "colour/NumberText.h"

namespace {

bool Digit(char c) {
    return c >= '0' && c <= '9';
}

// The spelling, with the blanks already trimmed.
bool Spelled(std::string_view s) {
    std::size_t i = 0, digits = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    for (; i < s.size() && Digit(s[i]); ++i) ++digits;
    if (i < s.size() && s[i] == '.')
        for (++i; i < s.size() && Digit(s[i]); ++i) ++digits;
    if (digits == 0) return false;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        ++i;
        if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
        const std::size_t at = i;
        while (i < s.size() && Digit(s[i])) ++i;
        if (i == at) return false;
    }
    return i == s.size();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto value = flickerscribe::NumberValue(text);
    const auto whole = flickerscribe::WholeNumber(text);
    const bool passes = flickerscribe::IsNumberText(text);
    FUZZ_CHECK(passes == value.has_value());
    FUZZ_CHECK(passes == whole.has_value());
    if (passes) {
        FUZZ_CHECK(std::isfinite(*value));
        FUZZ_CHECK(*whole >= -32768 && *whole <= 32767);
        FUZZ_CHECK(static_cast<double>(*whole) == std::nearbyint(*value));
    }

    // Blanks around never change the answer.
    const std::string padded = "  " + std::string(text) + " ";
    FUZZ_CHECK(flickerscribe::IsNumberText(padded) == passes);

    const auto first = text.find_first_not_of(' ');
    const std::string trimmed = first == std::string_view::npos
                                    ? std::string()
                                    : std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
    bool expected = false;
    double reference = 0;
    if (Spelled(trimmed)) {
        errno = 0;
        reference = std::strtod(trimmed.c_str(), nullptr);
        expected = std::isfinite(reference) && std::nearbyint(reference) >= -32768 &&
                   std::nearbyint(reference) <= 32767;
    }
    FUZZ_CHECK(passes == expected);
    // Below the smallest normal double a reader may give zero or the denormal.
    if (passes)
        FUZZ_CHECK(*value == reference || (std::fabs(*value) < 1e-300 && std::fabs(reference) < 1e-300));
    return 0;
}
