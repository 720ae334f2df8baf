#include <gtest/gtest.h>

#include <optional>

#include "colour/ColouredText.h"
#include "colour/MemoryPane.h"
#include "colour/NumberText.h"
#include "colour/SimpleEditWalk.h"

namespace flickerscribe {
namespace {

constexpr Colour kRed = 0x0000FF;
constexpr Colour kGreen = 0x00FF00;
constexpr Colour kYellow = 0x00FFFF;
constexpr Colour kBlue = 0xFF0000;
constexpr Colour kDarkRed = Rgb(128, 0, 0);  // outside the palette

// What the pane shows for a coded text, and the codes it gives back (from
// white). A caret and the character behind it go together; only a digit
// there changes the colour, and the character after the pair is shown untested.
TEST(RenderRuns, ShowsCharactersInTheColourOfTheirCode) {
    const struct {
        const char* coded;
        std::vector<ColouredRun> runs;
        const char* again;
    } cases[] = {
        // clang-format off
        {"^1Fl^7ick", {{"Fl", kRed}, {"ick", kWhite}}, "^1Fl^7ick"}, {"plain", {{"plain", kWhite}}, "plain"},
        {"^0abc", {{"abc", kWhite}}, "abc"},     {"a^bc", {{"ac", kWhite}}, "ac"},     {"Hi^", {{"Hi", kWhite}}, "Hi"},
        {"Hi^3", {{"Hi", kWhite}}, "Hi"},        {"^1^2x", {{"^2x", kRed}}, "^1^2x"},   {"^^1x", {{"1x", kWhite}}, "1x"},
        {"^1^", {{"^", kRed}}, "^1^"},           {"^8dark^7", {{"dark", kBlack}}, "^8dark"}, {"", {}, ""}, {"^", {}, ""},
        {"^1a^ b", {{"ab", kRed}}, "^1ab"},      {"^x^3y", {{"^3y", kWhite}}, "^3y"},
        {"x^0y^9z^3w", {{"xy", kWhite}, {"z", kRed}, {"w", kYellow}}, "xy^1z^3w"},
        {"^2\xE9\n\xFF", {{"\xE9\n\xFF", kGreen}}, "^2\xE9\n\xFF"},
        // clang-format on
    };
    for (const auto& c : cases) {
        EXPECT_EQ(RenderRuns(c.coded), c.runs) << c.coded;
        MemoryPane pane;
        pane.SetText("old content");
        RenderCodedText(c.coded, pane);
        EXPECT_EQ(pane.Runs(), c.runs) << c.coded;
        EXPECT_EQ(EncodeColouredText(pane, kWhite), c.again) << c.coded;
    }
}

// Codes are compared from white, and the last colour runs on across line
// breaks; a line of nothing but blanks is left out unless it starts with a
// code. The breaks carry colours that would change the result if they counted.
TEST(SimpleEditWalk, SplitsThePaneIntoCodedLines) {
    const struct {
        std::vector<ColouredRun> runs;
        std::vector<std::string> lines;
    } cases[] = {
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
    for (const auto& c : cases) EXPECT_EQ(SplitColouredLines(c.runs), c.lines) << c.lines.size();
    EXPECT_EQ(EncodeRuns({{"", kGreen}, {"x", kRed}}, kWhite), "^1x") << "an empty run shows no colour";
}

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
        "--5", "5-", "1.2.3", "1e5.0", "1,5", "^", "1e2x", "2 e1", "1x5", "1E", "1e-",
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
