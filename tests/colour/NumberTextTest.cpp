#include <gtest/gtest.h>

#include <optional>

#include "colour/NumberText.h"

namespace flickerscribe {
namespace {

const std::string kZeros(400, '0');

// Blanks around are trimmed; the value is rounded half to even and must lie
// in -32768..32767; a huge exponent is fine on a tiny mantissa and a tiny
// one reads as zero, even behind many zeros.
TEST(NumberText, NumbersAndTheirRoundedValues) {
    const std::pair<std::string, int> numbers[] = {
        {"15", 15},          {" 15", 15},        {"15 ", 15},          {"  15  ", 15},
        {"-3", -3},          {"+7", 7},          {"007", 7},           {"0", 0},
        {"1.5", 2},          {"2.5", 2},         {"3.5", 4},           {"-2.5", -2},
        {".5", 0},           {"1.", 1},          {"0.51", 1},          {"32767", 32767},
        {"-32768", -32768},  {"32767.4", 32767}, {"-32768.5", -32768}, {"1e3", 1000},
        {"1E3", 1000},       {"1e+2", 100},      {"25e-1", 2},         {"1e-400", 0},
        {"-0.0001e-399", 0},
    };
    for (const auto& [text, whole] : numbers) {
        EXPECT_EQ(WholeNumber(text), whole) << '"' << text << '"';
        EXPECT_TRUE(IsNumberText(text)) << '"' << text << '"';
    }
    EXPECT_EQ(WholeNumber(kZeros + "1e-398"), 0);
    EXPECT_EQ(WholeNumber("0." + kZeros + "1e400"), 0);
    EXPECT_DOUBLE_EQ(*NumberValue("0.9"), 0.9);  // the fraction stays for callers that round down
    EXPECT_DOUBLE_EQ(*NumberValue(" -99.9e-1 "), -9.99);
}

TEST(NumberText, NoNumbers) {
    const std::string texts[] = {
        // clang-format off
        "32768", "-32769", "32767.5", "-32768.6", "1e400", kZeros + ".1e400", "1" + kZeros, "1" + kZeros + "e-50",
        "abc", "", " ", "\t15", "15\t", "1 5", "inf", "nan", "0x10", "&H10", "1e", "1e+", "e5", ".", "-", "+-5",
        "--5", "5-", "1.2.3", "1e5.0", "1,5", "^", "1e2x", "2 e1",
        // clang-format on
    };
    for (const auto& text : texts) {
        EXPECT_EQ(NumberValue(text), std::nullopt) << '"' << text << '"';
        EXPECT_FALSE(IsNumberText(text)) << '"' << text << '"';
    }
}

// Only the text given is read, not the characters behind it.
TEST(NumberText, ReadsOnlyTheTextItIsGiven) {
    EXPECT_EQ(WholeNumber(std::string_view("1e23").substr(0, 3)), 100);
    EXPECT_EQ(WholeNumber(std::string_view("1.5").substr(0, 1)), 1);
    for (int b = 0; b < 256; ++b) {
        const char c = static_cast<char>(b);
        EXPECT_EQ(IsNumberText(std::string_view(&c, 1)), c >= '0' && c <= '9') << b;
    }
}

}  // namespace
}  // namespace flickerscribe
