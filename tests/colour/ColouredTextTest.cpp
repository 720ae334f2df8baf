#include <gtest/gtest.h>

#include "colour/ColouredText.h"
#include "colour/MemoryPane.h"
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
        {{{"plain", kWhite}}, {"plain"}},
        {{}, {}},
        {{{"  \n\n   \n", kWhite}}, {}},
        {{{"a\n\n\nb", kRed}}, {"^1a", "b"}},
        {{{"a", kGreen}, {"b\nc", kRed}}, {"^2a^1b", "c"}},
        {{{"x\n", kRed}}, {"^1x"}},
        {{{"^9", kGreen}, {"^", kWhite}}, {"^2^9^7^"}},
        {{{"x", kDarkRed}, {"y", kWhite}}, {"^7x^7y"}},
        {{{"  a  ", kWhite}}, {"  a  "}},
        {{{"a", kRed}, {"", kGreen}, {"b", kRed}}, {"^1ab"}},
        // clang-format on
    };
    for (const auto& c : cases) EXPECT_EQ(SplitColouredLines(c.runs), c.lines) << c.lines.size();
}

}  // namespace
}  // namespace flickerscribe
