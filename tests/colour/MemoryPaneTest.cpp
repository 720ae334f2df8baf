#include <gtest/gtest.h>

#include <sstream>

#include "colour/MemoryPane.h"

namespace flickerscribe {
namespace {

constexpr Colour kRed = 0x0000FF;
constexpr Colour kGreen = 0x00FF00;
constexpr Colour kBlue = 0xFF0000;

// Runs a short program of pane operations, one word each: s<n> SelStart,
// l<n> SelLength, c<r|g|b> SelColour, t<text> SelText (t alone: empty),
// T<text> Text, R<text> runs of text in green.
void Play(MemoryPane& pane, const std::string& program) {
    std::istringstream words(program);
    for (std::string w; words >> w;) {
        const std::string arg = w.substr(1);
        const Colour colour = arg == "r" ? kRed : arg == "g" ? kGreen : kBlue;
        switch (w[0]) {
            case 's':
                pane.SetSelStart(std::stoi(arg));
                break;
            case 'l':
                pane.SetSelLength(std::stoi(arg));
                break;
            case 'c':
                pane.SetSelColour(colour);
                break;
            case 't':
                pane.SetSelText(arg);
                break;
            case 'T':
                pane.SetText(arg);
                break;
            case 'R':
                pane.SetRuns({{arg, kGreen}});
                break;
            default:
                FAIL() << w;
        }
    }
}

// Every case starts from "ab" in red and "cd" in green, caret at the end.
struct PaneCase {
    const char* name;
    const char* program;
    std::vector<ColouredRun> runs;
    int selStart, selLength;
    Colour selColor;
};

// clang-format off
const PaneCase kPaneCases[] = {
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
};
// clang-format on

TEST(MemoryPane, BehavesLikeARichTextBox) {
    for (const auto& c : kPaneCases) {
        MemoryPane pane;
        pane.SetRuns({{"ab", kRed}, {"cd", kGreen}});
        Play(pane, c.program);
        std::string text;
        for (const auto& run : c.runs) text += run.text;
        EXPECT_EQ(pane.Runs(), c.runs) << c.name;
        EXPECT_EQ(pane.Text(), text) << c.name;
        EXPECT_EQ(pane.SelStart(), c.selStart) << c.name;
        EXPECT_EQ(pane.SelLength(), c.selLength) << c.name;
        EXPECT_EQ(pane.SelColour(), c.selColor) << c.name;
    }
}

TEST(MemoryPane, LockedIsOnlyAFlag) {
    MemoryPane pane;
    pane.SetLocked(true);
    Play(pane, "Tstill t!");
    EXPECT_TRUE(pane.Locked());
    EXPECT_EQ(pane.Text(), "!still");
}

}  // namespace
}  // namespace flickerscribe
