#include <gtest/gtest.h>

#include <optional>

#include "MemoryPane.h"
#include "colour/ColouredText.h"
#include "colour/NumberText.h"
#include "colour/SimpleEditWalk.h"

namespace flickerscribe {
namespace {

constexpr Colour kRed = 0x0000FF, kGreen = 0x00FF00, kYellow = 0x00FFFF, kBlue = 0xFF0000, kCyan = 0xFFFF00,
                 kMagenta = 0xFF00FF;
constexpr Colour kDarkRed = Rgb(128, 0, 0);  // outside the palette

// What the pane shows for a coded text and the codes it gives back (from white).
// A caret takes the character behind it; only a digit there changes the colour.
TEST(RenderRuns, ShowsCharactersInTheColourOfTheirCode) {
    const std::tuple<const char*, std::vector<ColouredRun>, const char*> cases[] = {
        // clang-format off
        {"^1Fl^7ick", {{"Fl", kRed}, {"ick", kWhite}}, "^1Fl^7ick"}, {"plain", {{"plain", kWhite}}, "plain"},
        {"^0abc", {{"abc", kWhite}}, "abc"},     {"a^bc", {{"ac", kWhite}}, "ac"},     {"Hi^", {{"Hi", kWhite}}, "Hi"},
        {"Hi^3", {{"Hi", kWhite}}, "Hi"},        {"^1^2x", {{"^2x", kRed}}, "^1^2x"},   {"^^1x", {{"1x", kWhite}}, "1x"},
        {"^1^", {{"^", kRed}}, "^1^"},           {"^8dark^7", {{"dark", kBlack}}, "^8dark"}, {"", {}, ""}, {"^", {}, ""},
        {"^1a^ b", {{"ab", kRed}}, "^1ab"},      {"^x^3y", {{"^3y", kWhite}}, "^3y"},
        {"x^0y^9z^3w", {{"xy", kWhite}, {"z", kRed}, {"w", kYellow}}, "xy^1z^3w"},
        {"^4a^5b^6c", {{"a", kBlue}, {"b", kCyan}, {"c", kMagenta}}, "^4a^5b^6c"},
        {"^2\xE9\n\xFF", {{"\xE9\n\xFF", kGreen}}, "^2\xE9\n\xFF"},
        // clang-format on
    };
    for (const auto& [coded, runs, again] : cases) {
        EXPECT_EQ(RenderRuns(coded), runs) << coded;
        MemoryPane pane;
        pane.SetText("old content");
        RenderCodedText(coded, pane);
        EXPECT_EQ(pane.Runs(), runs) << coded;
        EXPECT_EQ(EncodeColouredText(pane, kWhite), again) << coded;
    }
}

// Codes compare from white, the last colour running on across line breaks
// (whose own colours don't count); a blank line without a code is left out.
TEST(SimpleEditWalk, SplitsThePaneIntoCodedLines) {
    const std::pair<std::vector<ColouredRun>, std::vector<std::string>> cases[] = {
        // clang-format off
        {{{"ab", kRed}, {"\n", kBlue}, {"cd", kRed}, {"e", kGreen}, {"\n", kBlack}, {"   ", kGreen}, {"\n\n", kBlue},
          {"f", kWhite}}, {"^1ab", "cd^2e", "^7f"}},
        {{{"ab\ncd", kRed}, {"e\n   \n\n", kGreen}, {"f", kWhite}}, {"^1ab", "cd^2e", "^7f"}},
        {{{"ab\ncd", kRed}, {"e\n", kGreen}, {"   \n\nf", kWhite}}, {"^1ab", "cd^2e", "^7   ", "f"}},
        {{{"plain", kBlack}}, {"^8plain"}},
        {{}, {}},
        {{{"  \n\n   \n", kWhite}}, {}},
        {{{"a\n\n\nb", kRed}}, {"^1a", "b"}},
        {{{"a", kGreen}, {"b\nc", kRed}}, {"^2a^1b", "c"}},
        {{{"^9", kGreen}, {"^", kWhite}}, {"^2^9^7^"}},
        {{{"x", kDarkRed}, {"y", kWhite}}, {"^7x^7y"}},
        // clang-format on
    };
    for (const auto& [runs, lines] : cases) EXPECT_EQ(SplitColouredLines(runs), lines) << lines.size();
    EXPECT_EQ(EncodeRuns({{"", kGreen}, {"x", kRed}}, kWhite), "^1x") << "an empty run shows no colour";
}

const std::string kZeros(400, '0');

// Trimmed, rounded half to even, within -32768..32767; exponents are weighed
// against the mantissa, even behind many zeros. No value: the test fails.
TEST(NumberText, WhatPassesAndItsRoundedValue) {
    const std::pair<std::string, std::optional<int>> cases[] = {
        // clang-format off
        {"15", 15},          {" 15", 15},        {"15 ", 15},          {"  15  ", 15},
        {"-3", -3},          {"+7", 7},          {"007", 7},           {"0", 0},
        {"1.5", 2},          {"2.5", 2},         {"3.5", 4},           {"-2.5", -2},
        {".5", 0},           {"1.", 1},          {"0.51", 1},          {"32767", 32767},
        {"-32768", -32768},  {"32767.4", 32767}, {"-32768.5", -32768}, {"1e3", 1000},
        {"1E3", 1000},       {"1e+2", 100},      {"25e-1", 2},         {"1e-400", 0},
        {"-0.0001e-399", 0}, {kZeros + "1e-398", 0}, {"0." + kZeros + "1e400", 0},
        {"32768", {}}, {"-32769", {}}, {"32767.5", {}}, {"-32768.6", {}}, {"1e400", {}}, {kZeros + ".1e400", {}},
        {"1" + kZeros, {}}, {"1" + kZeros + "e-50", {}}, {"abc", {}}, {"", {}}, {" ", {}}, {"\t15", {}},
        {"15\t", {}}, {"1 5", {}}, {"inf", {}}, {"nan", {}}, {"0x10", {}}, {"&H10", {}}, {"1e", {}}, {"1e+", {}},
        {"e5", {}}, {".", {}}, {"-", {}}, {"+-5", {}}, {"--5", {}}, {"5-", {}}, {"1.2.3", {}}, {"1e5.0", {}},
        {"1,5", {}}, {"^", {}}, {"1e2x", {}}, {"2 e1", {}}, {"1x5", {}}, {"1E", {}}, {"1e-", {}},
        // clang-format on
    };
    for (const auto& [text, whole] : cases) {
        EXPECT_EQ(WholeNumber(text), whole) << '"' << text << '"';
        EXPECT_EQ(NumberValue(text).has_value(), whole.has_value()) << '"' << text << '"';
        EXPECT_EQ(IsNumberText(text), whole.has_value()) << '"' << text << '"';
    }
    EXPECT_DOUBLE_EQ(*NumberValue("0.9"), 0.9);  // the fraction stays for callers that round down
    EXPECT_DOUBLE_EQ(*NumberValue(" -99.9e-1 "), -9.99);
    // Only the text given is read, not the characters behind it.
    const std::tuple<const char*, int, int> cut[] = {
        {"1e23", 3, 100}, {"1.5", 1, 1}, {"1.5", 2, 1}, {"15", 1, 1}};
    for (const auto& [text, size, whole] : cut)
        EXPECT_EQ(WholeNumber(std::string_view(text).substr(0, size)), whole) << text << size;
    for (int b = 0; b < 256; ++b) {
        const char c = static_cast<char>(b);
        EXPECT_EQ(IsNumberText(std::string_view(&c, 1)), c >= '0' && c <= '9') << b;
    }
}

}  // namespace
}  // namespace flickerscribe
