#include <gtest/gtest.h>

#include <sstream>

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

// The colour of each digit, and the digit that colour is written back as.
TEST(Palette, DigitsAndColours) {
    const struct {
        const char* digit;
        Colour colour;  // red in the lowest byte
        const char* back;
    } cases[] = {
        {"0", 0xFFFFFF, "7"},  {"1", 0x0000FF, "1"}, {"2", 0x00FF00, "2"}, {"3", 0x00FFFF, "3"},
        {"4", 0xFF0000, "4"},  {"5", 0xFFFF00, "5"}, {"6", 0xFF00FF, "6"}, {"7", 0xFFFFFF, "7"},
        {"8", 0x000000, "8"},  {"9", 0x0000FF, "1"}, {"", 0xFFFFFF, "7"},  {"a", 0xFFFFFF, "7"},
        {"12", 0xFFFFFF, "7"}, {" ", 0xFFFFFF, "7"}, {"/", 0xFFFFFF, "7"}, {":", 0xFFFFFF, "7"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ColourFromDigit(c.digit), c.colour) << c.digit;
        EXPECT_EQ(DigitFromColour(c.colour), c.back) << c.digit;
    }
    EXPECT_EQ(DigitFromColour(Rgb(128, 0, 0)), "7");
    EXPECT_EQ(DigitFromColour(kPaneGrey), "7");
}

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

TEST(EncodeRuns, PutsACodeOnlyWhereTheColourChanges) {
    const struct {
        std::vector<ColouredRun> runs;
        Colour start;
        const char* coded;
    } cases[] = {
        // clang-format off
        {{}, kWhite, ""}, {{{"plain", kWhite}}, kBlack, "^7plain"}, {{{"dark", kBlack}}, kBlack, "dark"},
        {{{"dark", kBlack}}, kWhite, "^8dark"}, {{{"a", kRed}, {"", kGreen}, {"b", kRed}}, kWhite, "^1ab"},
        {{{"a", kWhite}, {"b", kDarkRed}, {"c", kWhite}}, kWhite, "a^7b^7c"}, {{{"a", kWhite}}, kDarkRed, "^7a"},
        // clang-format on
    };
    for (const auto& c : cases) EXPECT_EQ(EncodeRuns(c.runs, c.start), c.coded) << c.coded;
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

// Runs a short program of pane operations, one word each: s<n> SelStart,
// l<n> SelLength, c<r|g|b> SelColour, t<text> SelText (t alone: empty),
// T<text> Text, R<text> runs of text in green.
void Play(MemoryPane& pane, const std::string& program) {
    std::istringstream words(program);
    for (std::string w; words >> w;) {
        const std::string arg = w.substr(1);
        const Colour colour = arg == "r" ? kRed : arg == "g" ? kGreen : kBlue;
        // clang-format off
        switch (w[0]) {
            case 's': pane.SetSelStart(std::stoi(arg)); break;
            case 'l': pane.SetSelLength(std::stoi(arg)); break;
            case 'c': pane.SetSelColour(colour); break;
            case 't': pane.SetSelText(arg); break;
            case 'T': pane.SetText(arg); break;
            case 'R': pane.SetRuns({{arg, kGreen}}); break;
        }
        // clang-format on
    }
}

// Every case starts from "ab" in red and "cd" in green, caret at the end.
TEST(MemoryPane, BehavesLikeARichTextBox) {
    const struct {
        const char *name, *program;
        std::vector<ColouredRun> runs;
        int selStart, selLength;
        Colour selColour;
    } cases[] = {
        // clang-format off
        {"untouched", "", {{"ab", kRed}, {"cd", kGreen}}, 4, 0, kGreen},
        {"caret past the end lands at the end", "s99", {{"ab", kRed}, {"cd", kGreen}}, 4, 0, kGreen},
        {"negative caret is the start, nothing in front is black", "s-5", {{"ab", kRed}, {"cd", kGreen}}, 0, 0, kBlack},
        {"selection is cut at the end", "s3 l10", {{"ab", kRed}, {"cd", kGreen}}, 3, 1, kGreen},
        {"setting the start drops the selection", "s1 l2 s2", {{"ab", kRed}, {"cd", kGreen}}, 2, 0, kRed},
        {"colour read is the first selected character's", "s1 l3", {{"ab", kRed}, {"cd", kGreen}}, 1, 3, kRed},
        {"colour read at the caret is the character in front", "s3", {{"ab", kRed}, {"cd", kGreen}}, 3, 0, kGreen},
        {"painting a selection", "s1 l2 cb", {{"a", kRed}, {"bc", kBlue}, {"d", kGreen}}, 1, 2, kBlue},
        {"colour at an empty selection waits", "s2 cb", {{"ab", kRed}, {"cd", kGreen}}, 2, 0, kBlue},
        {"waiting colour is forgotten when the caret is set", "s2 cb s2 tx", {{"abx", kRed}, {"cd", kGreen}}, 3, 0, kRed},
        {"waiting colour is forgotten when the length is set", "s2 cb l0 tx", {{"abx", kRed}, {"cd", kGreen}}, 3, 0, kRed},
        {"insertion takes the waiting colour", "s2 cb txy", {{"ab", kRed}, {"xy", kBlue}, {"cd", kGreen}}, 4, 0, kBlue},
        {"insertion with no colour chosen takes the one in front", "s2 tx", {{"abx", kRed}, {"cd", kGreen}}, 3, 0, kRed},
        {"insertion at the very start is black", "s0 tx", {{"x", kBlack}, {"ab", kRed}, {"cd", kGreen}}, 1, 0, kBlack},
        {"replacing a painted selection", "s1 l2 cb tXYZ", {{"a", kRed}, {"XYZ", kBlue}, {"d", kGreen}}, 4, 0, kBlue},
        {"replacing keeps the first selected colour", "s2 l1 tQ", {{"ab", kRed}, {"Qd", kGreen}}, 3, 0, kGreen},
        {"empty text deletes a selection", "s1 l2 t", {{"a", kRed}, {"d", kGreen}}, 1, 0, kRed},
        {"empty text at the end keeps the waiting colour", "s4 cb t", {{"ab", kRed}, {"cd", kGreen}}, 4, 0, kBlue},
        {"whole new text is black, caret at the start", "TPreview", {{"Preview", kBlack}}, 0, 0, kBlack},
        {"typing into an emptied pane is black", "T thi", {{"hi", kBlack}}, 2, 0, kBlack},
        {"runs replace everything, caret at the end", "s0 cb Rxy", {{"xy", kGreen}}, 2, 0, kGreen},
        // clang-format on
    };
    for (const auto& c : cases) {
        MemoryPane pane;
        pane.SetRuns({{"ab", kRed}, {"cd", kGreen}});
        Play(pane, c.program);
        EXPECT_EQ(pane.Runs(), c.runs) << c.name;
        EXPECT_EQ(pane.SelStart(), c.selStart) << c.name;
        EXPECT_EQ(pane.SelLength(), c.selLength) << c.name;
        EXPECT_EQ(pane.SelColour(), c.selColour) << c.name;
    }
}

}  // namespace
}  // namespace flickerscribe
