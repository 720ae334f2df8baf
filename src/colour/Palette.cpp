#include "colour/Palette.h"

#include <array>

namespace flickerscribe {
namespace {

// Digit 0..9 to its colour: 0 and 7 are both white, 1 and 9 both red.
constexpr std::array<Colour, 10> kPalette = {
    kWhite,            // 0
    Rgb(255, 0, 0),    // 1 red
    Rgb(0, 255, 0),    // 2 green
    Rgb(255, 255, 0),  // 3 yellow
    Rgb(0, 0, 255),    // 4 blue
    Rgb(0, 255, 255),  // 5 cyan
    Rgb(255, 0, 255),  // 6 magenta
    kWhite,            // 7
    kBlack,            // 8
    Rgb(255, 0, 0),    // 9 red
};

}  // namespace

Colour ColourFromDigit(std::string_view digit) {
    if (digit.size() != 1 || digit[0] < '0' || digit[0] > '9') return kWhite;
    return kPalette[static_cast<std::size_t>(digit[0] - '0')];
}

std::string DigitFromColour(Colour colour) {
    // Digits 1..8 in order; the first match wins, so white gives 7, never 0,
    // and red gives 1, never 9.
    for (char d = '1'; d <= '8'; ++d) {
        if (kPalette[static_cast<std::size_t>(d - '0')] == colour && d != '7') return std::string(1, d);
    }
    return "7";
}

}  // namespace flickerscribe
