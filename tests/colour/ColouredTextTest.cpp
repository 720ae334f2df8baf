#include <gtest/gtest.h>

#include "colour/ColouredText.h"
#include "colour/MemoryPane.h"

namespace flickerscribe {
namespace {

constexpr Colour kRed = 0x0000FF;
constexpr Colour kGreen = 0x00FF00;
constexpr Colour kYellow = 0x00FFFF;
constexpr Colour kDarkRed = Rgb(128, 0, 0);  // outside the palette

TEST(RenderRuns, ShowsCharactersInTheColourOfTheirCode) {
    const struct {
        const char* coded;
        std::vector<ColouredRun> runs;
    } cases[] = {
        // clang-format off
        {"^1Fl^7ick", {{"Fl", kRed}, {"ick", kWhite}}},
        {"plain", {{"plain", kWhite}}},
        {"a^bc", {{"ac", kWhite}}},
        {"Hi^", {{"Hi", kWhite}}}, {"Hi^3", {{"Hi", kWhite}}},
        {"^1^2x", {{"^2x", kRed}}},
        {"^^1x", {{"1x", kWhite}}},
        {"^1^", {{"^", kRed}}},
        {"^8dark^7", {{"dark", kBlack}}},
        {"^a", {}}, {"", {}}, {"^1", {}}, {"^", {}},
        {"^1a^ b", {{"ab", kRed}}},    // a blank is no digit: the pair goes, the colour stays
        {"^x^3y", {{"^3y", kWhite}}},  // behind a dropped pair the caret is shown untested
        {"^0a^9b^3c", {{"a", kWhite}, {"b", kRed}, {"c", kYellow}}},
        {"^1a^9b", {{"ab", kRed}}},    // same colour twice stays one run
        {"^2\xE9\n\xFF", {{"\xE9\n\xFF", kGreen}}},
        // clang-format on
    };
    for (const auto& c : cases) EXPECT_EQ(RenderRuns(c.coded), c.runs) << c.coded;
}

TEST(RenderCodedText, ReplacesThePaneAndLeavesLockedAlone) {
    for (const bool locked : {false, true}) {
        MemoryPane pane;
        pane.SetText("old content");
        pane.SetLocked(locked);
        RenderCodedText("^1Fl^7ick", pane);
        EXPECT_EQ(pane.Runs(), (std::vector<ColouredRun>{{"Fl", kRed}, {"ick", kWhite}}));
        EXPECT_EQ(pane.Locked(), locked);
    }
}

TEST(EncodeRuns, PutsACodeOnlyWhereTheColourChanges) {
    const struct {
        const char* name;
        std::vector<ColouredRun> runs;
        Colour start;
        const char* coded;
    } cases[] = {
        // clang-format off
        {"empty pane", {}, kWhite, ""},
        {"all in the start colour", {{"plain", kWhite}}, kWhite, "plain"},
        {"white against a black start", {{"plain", kWhite}}, kBlack, "^7plain"},
        {"black against a black start", {{"dark", kBlack}}, kBlack, "dark"},
        {"black against a white start", {{"dark", kBlack}}, kWhite, "^8dark"},
        {"a code at each change", {{"Fl", kRed}, {"ick", kWhite}}, kWhite, "^1Fl^7ick"},
        {"split runs of one colour", {{"a", kRed}, {"", kGreen}, {"b", kRed}}, kWhite, "^1ab"},
        {"outside the palette differs by value", {{"a", kWhite}, {"b", kDarkRed}, {"c", kWhite}}, kWhite, "a^7b^7c"},
        {"start outside the palette", {{"a", kWhite}}, kDarkRed, "^7a"},
        // clang-format on
    };
    for (const auto& c : cases) {
        EXPECT_EQ(EncodeRuns(c.runs, c.start), c.coded) << c.name;
        MemoryPane pane;
        pane.SetRuns(c.runs);
        EXPECT_EQ(EncodeColouredText(pane, c.start), c.coded) << c.name;
    }
}

TEST(RenderThenEncode, GivesTheShortestCodesForWhatIsShown) {
    const struct {
        const char* coded;
        Colour start;
        const char* again;
    } cases[] = {
        // clang-format off
        {"^1Fl^7ick", kWhite, "^1Fl^7ick"}, {"^7abc", kWhite, "abc"}, {"^0abc", kWhite, "abc"},
        {"x^0y^9z", kWhite, "xy^1z"}, {"^8dark^7", kWhite, "^8dark"}, {"a^bc", kWhite, "ac"},
        {"^1^2x", kWhite, "^1^2x"}, {"^9a", kWhite, "^1a"}, {"^1^", kWhite, "^1^"},
        {"plain", kBlack, "^7plain"}, {"^8dark", kBlack, "dark"},
        // clang-format on
    };
    for (const auto& c : cases) {
        MemoryPane pane;
        RenderCodedText(c.coded, pane);
        EXPECT_EQ(EncodeColouredText(pane, c.start), c.again) << c.coded;
    }
}

}  // namespace
}  // namespace flickerscribe
