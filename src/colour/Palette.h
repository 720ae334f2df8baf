#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace flickerscribe {

// A colour in the layout the panes use: red in the lowest byte, then green,
// then blue (value = red + 256 * green + 65536 * blue).
using Colour = std::uint32_t;

constexpr Colour Rgb(unsigned red, unsigned green, unsigned blue) {
    return static_cast<Colour>(red | (green << 8) | (blue << 16));
}
constexpr unsigned RedOf(Colour c) {
    return c & 0xFF;
}
constexpr unsigned GreenOf(Colour c) {
    return (c >> 8) & 0xFF;
}
constexpr unsigned BlueOf(Colour c) {
    return (c >> 16) & 0xFF;
}

inline constexpr Colour kWhite = Rgb(255, 255, 255);
inline constexpr Colour kBlack = Rgb(0, 0, 0);
// The background of every pane.
inline constexpr Colour kPaneGrey = Rgb(128, 128, 128);

// The palette colour of a one-digit string; anything else (empty, a letter,
// "12") is white.
Colour ColourFromDigit(std::string_view digit);
// The digit that stands for a colour: never "0" or "9"; "7" for anything
// outside the palette.
std::string DigitFromColour(Colour colour);

}  // namespace flickerscribe
