#include <gtest/gtest.h>

#include <functional>

#include "colour/MemoryPane.h"

namespace fs {
namespace {

constexpr Colour kRed = 0x0000FF;
constexpr Colour kGreen = 0x00FF00;
constexpr Colour kBlue = 0xFF0000;

// Every case starts from "ab" in red followed by "cd" in green, caret at the
// end, and checks the whole state the pane ends in.
struct PaneCase {
    const char* name;
    std::function<void(MemoryPane&)> act;
    std::vector<ColouredRun> runs;
    int selStart;
    int selLength;
    Colour selColor;
};

const PaneCase kPaneCases[] = {
    {"untouched", [](MemoryPane&) {}, {{"ab", kRed}, {"cd", kGreen}}, 4, 0, kGreen},
    {"caret past the end lands at the end",
     [](MemoryPane& p) { p.SetSelStart(99); },
     {{"ab", kRed}, {"cd", kGreen}},
     4,
     0,
     kGreen},
    {"negative caret is the start",
     [](MemoryPane& p) { p.SetSelStart(-5); },
     {{"ab", kRed}, {"cd", kGreen}},
     0,
     0,
     kBlack},
    {"selection is cut at the end",
     [](MemoryPane& p) {
         p.SetSelStart(3);
         p.SetSelLength(10);
     },
     {{"ab", kRed}, {"cd", kGreen}},
     3,
     1,
     kGreen},
    {"setting the start drops the selection",
     [](MemoryPane& p) {
         p.SetSelStart(1);
         p.SetSelLength(2);
         p.SetSelStart(2);
     },
     {{"ab", kRed}, {"cd", kGreen}},
     2,
     0,
     kRed},
    {"colour read is the first selected character's",
     [](MemoryPane& p) {
         p.SetSelStart(1);
         p.SetSelLength(3);
     },
     {{"ab", kRed}, {"cd", kGreen}},
     1,
     3,
     kRed},
    {"colour read at the caret is the character in front",
     [](MemoryPane& p) { p.SetSelStart(3); },
     {{"ab", kRed}, {"cd", kGreen}},
     3,
     0,
     kGreen},
    {"painting a selection",
     [](MemoryPane& p) {
         p.SetSelStart(1);
         p.SetSelLength(2);
         p.SetSelColor(kBlue);
     },
     {{"a", kRed}, {"bc", kBlue}, {"d", kGreen}},
     1,
     2,
     kBlue},
    {"colour at an empty selection waits for the next insertion",
     [](MemoryPane& p) {
         p.SetSelStart(2);
         p.SetSelColor(kBlue);
     },
     {{"ab", kRed}, {"cd", kGreen}},
     2,
     0,
     kBlue},
    {"waiting colour is forgotten when the caret moves",
     [](MemoryPane& p) {
         p.SetSelStart(2);
         p.SetSelColor(kBlue);
         p.SetSelStart(2);
         p.SetSelText("x");
     },
     {{"abx", kRed}, {"cd", kGreen}},
     3,
     0,
     kRed},
    {"insertion takes the waiting colour",
     [](MemoryPane& p) {
         p.SetSelStart(2);
         p.SetSelColor(kBlue);
         p.SetSelText("xy");
     },
     {{"ab", kRed}, {"xy", kBlue}, {"cd", kGreen}},
     4,
     0,
     kBlue},
    {"insertion without a chosen colour takes the one in front",
     [](MemoryPane& p) {
         p.SetSelStart(2);
         p.SetSelText("x");
     },
     {{"abx", kRed}, {"cd", kGreen}},
     3,
     0,
     kRed},
    {"insertion at the very start without a chosen colour is black",
     [](MemoryPane& p) {
         p.SetSelStart(0);
         p.SetSelText("x");
     },
     {{"x", kBlack}, {"ab", kRed}, {"cd", kGreen}},
     1,
     0,
     kBlack},
    {"replacing a painted selection uses the colour just given",
     [](MemoryPane& p) {
         p.SetSelStart(1);
         p.SetSelLength(2);
         p.SetSelColor(kBlue);
         p.SetSelText("XYZ");
     },
     {{"a", kRed}, {"XYZ", kBlue}, {"d", kGreen}},
     4,
     0,
     kBlue},
    {"replacing a selection keeps its first character's colour",
     [](MemoryPane& p) {
         p.SetSelStart(2);
         p.SetSelLength(1);
         p.SetSelText("Q");
     },
     {{"ab", kRed}, {"Qd", kGreen}},
     3,
     0,
     kGreen},
    {"empty text deletes a selection",
     [](MemoryPane& p) {
         p.SetSelStart(1);
         p.SetSelLength(2);
         p.SetSelText("");
     },
     {{"a", kRed}, {"d", kGreen}},
     1,
     0,
     kRed},
    {"empty text at the end changes nothing, a waiting colour stays",
     [](MemoryPane& p) {
         p.SetSelStart(4);
         p.SetSelColor(kBlue);
         p.SetSelText("");
     },
     {{"ab", kRed}, {"cd", kGreen}},
     4,
     0,
     kBlue},
    {"whole new text is black with the caret at the start",
     [](MemoryPane& p) { p.SetText("Preview"); },
     {{"Preview", kBlack}},
     0,
     0,
     kBlack},
    {"empty text empties the pane", [](MemoryPane& p) { p.SetText(""); }, {}, 0, 0, kBlack},
    {"typing into an emptied pane with no colour chosen is black",
     [](MemoryPane& p) {
         p.SetText("");
         p.SetSelText("hi");
     },
     {{"hi", kBlack}},
     2,
     0,
     kBlack},
    {"runs replace everything, caret at the end",
     [](MemoryPane& p) {
         p.SetSelStart(0);
         p.SetSelColor(kBlue);
         p.SetRuns({{"x", kGreen}, {"", kBlue}, {"y", kGreen}});
     },
     {{"xy", kGreen}},
     2,
     0,
     kGreen},
};

TEST(MemoryPane, BehavesLikeARichTextBox) {
    for (const auto& c : kPaneCases) {
        MemoryPane pane;
        pane.SetRuns({{"ab", kRed}, {"cd", kGreen}});
        c.act(pane);
        EXPECT_EQ(pane.Runs(), c.runs) << c.name;
        std::string text;
        for (const auto& run : c.runs) text += run.text;
        EXPECT_EQ(pane.Text(), text) << c.name;
        EXPECT_EQ(pane.SelStart(), c.selStart) << c.name;
        EXPECT_EQ(pane.SelLength(), c.selLength) << c.name;
        EXPECT_EQ(pane.SelColor(), c.selColor) << c.name;
    }
}

TEST(MemoryPane, LockedIsOnlyAFlag) {
    MemoryPane pane;
    EXPECT_FALSE(pane.Locked());
    pane.SetLocked(true);
    pane.SetText("still writable");
    pane.SetSelText("!");
    EXPECT_TRUE(pane.Locked());
    EXPECT_EQ(pane.Text(), "!still writable");
}

}  // namespace
}  // namespace fs
