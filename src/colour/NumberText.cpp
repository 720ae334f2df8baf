#include "colour/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace flickerscribe {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Checks the spelling by hand, so that from_chars sees only what we accept.
bool WellFormed(std::string_view s) {
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    std::size_t digits = 0;
    while (i < s.size() && IsDigit(s[i])) ++i, ++digits;
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && IsDigit(s[i])) ++i, ++digits;
    }
    if (digits == 0) return false;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        ++i;
        if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
        std::size_t expDigits = 0;
        while (i < s.size() && IsDigit(s[i])) ++i, ++expDigits;
        if (expDigits == 0) return false;
    }
    return i == s.size();
}

// The decimal order of magnitude of a well-formed unsigned number: 0 for 1..9,
// -1 for 0.1..0.9, and so on. Only asked when from_chars found it out of range.
long OrderOfMagnitude(std::string_view s) {
    const auto expAt = s.find_first_of("eE");
    const std::string_view mantissa = s.substr(0, expAt);
    long exponent = 0;
    if (expAt != std::string_view::npos) {
        std::string_view e = s.substr(expAt + 1);
        const bool negative = !e.empty() && e.front() == '-';
        if (!e.empty() && (e.front() == '-' || e.front() == '+')) e.remove_prefix(1);
        for (char c : e) exponent = std::min(exponent * 10 + (c - '0'), 1000000L);
        if (negative) exponent = -exponent;
    }
    const auto point = mantissa.find('.');
    const std::size_t intDigits = point == std::string_view::npos ? mantissa.size() : point;
    const auto firstNonZero = mantissa.find_first_of("123456789");
    if (firstNonZero == std::string_view::npos) return -1000000L;
    const long order = firstNonZero < intDigits ? static_cast<long>(intDigits - firstNonZero) - 1
                                                : -static_cast<long>(firstNonZero - intDigits);
    return order + exponent;
}

}  // namespace

std::optional<double> NumberValue(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return std::nullopt;
    const auto last = text.find_last_not_of(' ');
    std::string_view s = text.substr(first, last - first + 1);
    if (!WellFormed(s)) return std::nullopt;

    // from_chars takes no leading '+'.
    bool negative = false;
    if (s.front() == '+' || s.front() == '-') {
        negative = s.front() == '-';
        s.remove_prefix(1);
    }
    double value = 0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
    if (end != s.data() + s.size()) return std::nullopt;
    if (ec == std::errc::result_out_of_range) {
        // A vanishingly small number reads as zero; a huge one is out of range.
        if (OrderOfMagnitude(s) >= 0) return std::nullopt;
        value = 0;
    } else if (ec != std::errc{}) {
        return std::nullopt;
    }
    if (negative) value = -value;
    const double rounded = std::nearbyint(value);  // default mode: ties to even
    if (!(rounded >= -32768.0 && rounded <= 32767.0)) return std::nullopt;
    return value;
}

std::optional<int> WholeNumber(std::string_view text) {
    const auto value = NumberValue(text);
    if (!value) return std::nullopt;
    return static_cast<int>(std::nearbyint(*value));
}

bool IsNumberText(std::string_view text) {
    return NumberValue(text).has_value();
}

}  // namespace flickerscribe
