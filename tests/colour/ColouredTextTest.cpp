#include <gtest/gtest.h>

#include "colour/ColouredText.h"
#include "colour/MemoryPane.h"

namespace fs {
namespace {

constexpr Colour kRed = 0x0000FF;
constexpr Colour kGreen = 0x00FF00;
constexpr Colour kYellow = 0x00FFFF;
constexpr Colour kDarkRed = Rgb(128, 0, 0);  // outside the palette

struct RenderCase {
    const char* coded;
    std::vector<ColouredRun> runs;
};

const RenderCase kRenderCases[] = {
    {"^1Fl^7ick", {{"Fl", kRed}, {"ick", kWhite}}},
    {"plain", {{"plain", kWhite}}},
    {"a^bc", {{"ac", kWhite}}},
    {"Hi^", {{"Hi", kWhite}}},
    {"Hi^3", {{"Hi", kWhite}}},
    {"^1^2x", {{"^2x", kRed}}},
    {"^^1x", {{"1x", kWhite}}},
    {"^1^", {{"^", kRed}}},
    {"^8dark^7", {{"dark", kBlack}}},
    {"^a", {}},
    {"", {}},
    {"^1", {}},
    {"^", {}},
    // A blank behind a caret is no digit: the pair goes, the colour stays.
    {"^1a^ b", {{"ab", kRed}}},
    // The character behind a dropped pair is shown untested, caret or not.
    {"^x^3y", {{"^3y", kWhite}}},
    {"^0a^9b^3c", {{"a", kWhite}, {"b", kRed}, {"c", kYellow}}},
    // Same colour twice in a row stays one run.
    {"^1a^9b", {{"ab", kRed}}},
    // Bytes above 0x7F and a line break are characters like any other.
    {"^2\xE9\n\xFF", {{"\xE9\n\xFF", kGreen}}},
};

TEST(RenderRuns, ShowsCharactersInTheColourOfTheirCode) {
    for (const auto& c : kRenderCases) EXPECT_EQ(RenderRuns(c.coded), c.runs) << c.coded;
}

TEST(RenderCodedText, ReplacesThePaneAndLeavesLockedAlone) {
    for (const bool locked : {false, true}) {
        MemoryPane pane;
        pane.SetText("old content");
        pane.SetLocked(locked);
        RenderCodedText("^1Fl^7ick", pane);
        EXPECT_EQ(pane.Text(), "Flick");
        EXPECT_EQ(pane.Runs(), (std::vector<ColouredRun>{{"Fl", kRed}, {"ick", kWhite}}));
        EXPECT_EQ(pane.Locked(), locked);
    }
}

struct EncodeCase {
    const char* name;
    std::vector<ColouredRun> runs;
    Colour start;
    const char* coded;
};

const EncodeCase kEncodeCases[] = {
    {"empty pane", {}, kWhite, ""},
    {"all in the start colour white", {{"plain", kWhite}}, kWhite, "plain"},
    {"white against a black start", {{"plain", kWhite}}, kBlack, "^7plain"},
    {"black against a black start", {{"dark", kBlack}}, kBlack, "dark"},
    {"black against a white start", {{"dark", kBlack}}, kWhite, "^8dark"},
    {"a code at each change", {{"Fl", kRed}, {"ick", kWhite}}, kWhite, "^1Fl^7ick"},
    {"runs of one colour split apart need no code between them",
     {{"a", kRed}, {"", kGreen}, {"b", kRed}},
     kWhite,
     "^1ab"},
    {"a colour outside the palette differs from white by value",
     {{"a", kWhite}, {"b", kDarkRed}, {"c", kWhite}},
     kWhite,
     "a^7b^7c"},
    {"start colour outside the palette", {{"a", kWhite}}, kDarkRed, "^7a"},
};

TEST(EncodeRuns, PutsACodeOnlyWhereTheColourChanges) {
    for (const auto& c : kEncodeCases) EXPECT_EQ(EncodeRuns(c.runs, c.start), c.coded) << c.name;
}

TEST(EncodeColoredText, ReadsThePaneRuns) {
    for (const auto& c : kEncodeCases) {
        MemoryPane pane;
        pane.SetRuns(c.runs);
        EXPECT_EQ(EncodeColoredText(pane, c.start), c.coded) << c.name;
    }
}

TEST(RenderThenEncode, GivesTheShortestCodesForWhatIsShown) {
    const struct {
        const char* coded;
        Colour start;
        const char* again;
    } cases[] = {
        {"^1Fl^7ick", kWhite, "^1Fl^7ick"}, {"^7abc", kWhite, "abc"},       {"^0abc", kWhite, "abc"},
        {"x^0y^9z", kWhite, "xy^1z"},       {"^8dark^7", kWhite, "^8dark"}, {"a^bc", kWhite, "ac"},
        {"^1^2x", kWhite, "^1^2x"},         {"^9a", kWhite, "^1a"},         {"plain", kBlack, "^7plain"},
        {"^8dark", kBlack, "dark"},         {"^1^", kWhite, "^1^"},         {"^", kWhite, ""},
    };
    for (const auto& c : cases) {
        MemoryPane pane;
        RenderCodedText(c.coded, pane);
        EXPECT_EQ(EncodeColoredText(pane, c.start), c.again) << c.coded;
    }
}

}  // namespace
}  // namespace fs
