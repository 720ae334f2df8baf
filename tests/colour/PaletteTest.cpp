#include <gtest/gtest.h>

#include "colour/Palette.h"

namespace flickerscribe {
namespace {

TEST(Palette, DigitsToColours) {
    const struct {
        const char* digit;
        Colour colour;
    } cases[] = {
        {"0", 0xFFFFFF}, {"1", 0x0000FF}, {"2", 0x00FF00},  {"3", 0x00FFFF}, {"4", 0xFF0000},
        {"5", 0xFFFF00}, {"6", 0xFF00FF}, {"7", 0xFFFFFF},  {"8", 0x000000}, {"9", 0x0000FF},
        {"", 0xFFFFFF},  {"a", 0xFFFFFF}, {"12", 0xFFFFFF}, {" ", 0xFFFFFF},
    };
    for (const auto& c : cases) EXPECT_EQ(ColourFromDigit(c.digit), c.colour) << c.digit;
}

TEST(Palette, ColoursToDigits) {
    EXPECT_EQ(DigitFromColour(ColourFromDigit("0")), "7");
    EXPECT_EQ(DigitFromColour(ColourFromDigit("9")), "1");
    for (const char* d : {"1", "2", "3", "4", "5", "6", "7", "8"}) {
        EXPECT_EQ(DigitFromColour(ColourFromDigit(d)), d);
    }
    EXPECT_EQ(DigitFromColour(Rgb(128, 0, 0)), "7");
    EXPECT_EQ(DigitFromColour(kPaneGrey), "7");
}

}  // namespace
}  // namespace flickerscribe
