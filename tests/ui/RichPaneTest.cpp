#include <gmock/gmock.h>

#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

#include "colour/Palette.h"
#include "ui/RichPane.h"

namespace flickerscribe::ui {
namespace {

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kGreen = Rgb(0, 255, 0);
constexpr Colour kOdd = Rgb(128, 0, 0);

using Runs = std::vector<ColouredRun>;

// Every character with its colour, the way a walk position by position sees it.
std::vector<std::pair<char, Colour>> Flatten(const Runs& runs) {
    std::vector<std::pair<char, Colour>> out;
    for (const auto& run : runs)
        for (char c : run.text) out.emplace_back(c, run.colour);
    return out;
}

// Fills the pane one character at a time through the selection operations,
// as the render walk does.
void PaintCharByChar(Pane& pane, const Runs& runs) {
    pane.SetText("");
    int position = 0;
    for (const auto& [c, colour] : Flatten(runs)) {
        pane.SetSelStart(position);
        pane.SetSelLength(1);
        pane.SetSelColour(colour);
        pane.SetSelText(std::string(1, c));
        ++position;
    }
}

// A fresh pane over its own widget for each test.
class RichPaneTest : public testing::Test {
protected:
    QTextEdit edit;
    RichPane pane{&edit};
};

struct RunsCase {
    const char* name;
    Runs given;
    Runs expected;  // merged neighbours, empty runs gone
    friend void PrintTo(const RunsCase& c, std::ostream* os) { *os << c.name; }
};

class RichPaneRuns : public testing::TestWithParam<RunsCase> {};

TEST_P(RichPaneRuns, BulkAndCharacterWalkGiveTheSamePane) {
    const RunsCase& c = GetParam();
    QTextEdit bulkEdit, walkEdit;
    RichPane bulk(&bulkEdit), walk(&walkEdit);

    bulk.SetRuns(c.given);
    PaintCharByChar(walk, c.given);

    EXPECT_EQ(bulk.Runs(), c.expected);
    EXPECT_EQ(walk.Runs(), c.expected);
    std::string text;
    for (const auto& run : c.expected) text += run.text;
    EXPECT_EQ(bulk.Text(), text);
    EXPECT_EQ(walk.Text(), text);

    // Reading back one character at a time agrees with the bulk read.
    const auto chars = Flatten(c.expected);
    for (int p = 0; p < static_cast<int>(chars.size()); ++p) {
        bulk.SetSelStart(p);
        bulk.SetSelLength(1);
        EXPECT_EQ(bulk.SelColour(), chars[static_cast<std::size_t>(p)].second) << "at " << p;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RichPaneRuns,
    testing::Values(
        RunsCase{"Empty", {}, {}}, RunsCase{"EmptyRunsVanish", {{"", kRed}, {"", kGreen}}, {}},
        RunsCase{"OneRun", {{"plain", kWhite}}, {{"plain", kWhite}}},
        RunsCase{"ColourChanges", {{"Fl", kRed}, {"ick", kWhite}}, {{"Fl", kRed}, {"ick", kWhite}}},
        RunsCase{"NeighboursMerge", {{"a", kRed}, {"b", kRed}, {"c", kGreen}}, {{"ab", kRed}, {"c", kGreen}}},
        RunsCase{"BlackAndOutsidePalette", {{"x", kBlack}, {"y", kOdd}}, {{"x", kBlack}, {"y", kOdd}}},
        RunsCase{"EveryCharacterItsColour",
                 {{"a", kRed}, {"b", kGreen}, {"c", kRed}, {"d", kGreen}},
                 {{"a", kRed}, {"b", kGreen}, {"c", kRed}, {"d", kGreen}}},
        // A line break takes the colour of the character in front of it.
        RunsCase{"LineBreaks", {{"ab\n", kRed}, {"cd", kGreen}}, {{"ab\n", kRed}, {"cd", kGreen}}},
        RunsCase{"BreakColouredUnlikeItsLine",
                 {{"ab", kRed}, {"\n", kGreen}, {"cd", kGreen}},
                 {{"ab\n", kRed}, {"cd", kGreen}}},
        RunsCase{"EmptyLines", {{"a\n\n", kRed}, {"b", kGreen}}, {{"a\n\n", kRed}, {"b", kGreen}}},
        RunsCase{"LeadingBreakIsBlack", {{"\nx", kRed}}, {{"\n", kBlack}, {"x", kRed}}},
        // Windows-1252 bytes above 127 and the no-break space survive.
        RunsCase{"HighBytes", {{"\x80\xA0\xE9\xFF^", kWhite}}, {{"\x80\xA0\xE9\xFF^", kWhite}}}),
    testing::PrintToStringParamName());

TEST_F(RichPaneTest, ABulkReplacementRaisesTheChangeSignalOnce) {
    pane.SetText("old");
    QSignalSpy spy(&edit, &QTextEdit::textChanged);
    Runs many;
    for (int i = 0; i < 500; ++i) many.push_back({"x", i % 2 ? kRed : kGreen});
    pane.SetRuns(many);
    EXPECT_EQ(spy.count(), 1);
    pane.SetText("Preview");
    EXPECT_EQ(spy.count(), 2);
}

TEST_F(RichPaneTest, TextTypedWithoutAColourReadsBlack) {
    edit.insertPlainText(QStringLiteral("typed"));
    EXPECT_EQ(pane.Runs(), (Runs{{"typed", kBlack}}));
    pane.SetSelStart(0);
    EXPECT_EQ(pane.SelColour(), kBlack);
}

TEST_F(RichPaneTest, ASoftLineBreakFromPastedRichTextIsABreak) {
    edit.insertHtml(QStringLiteral("ab<br>cd"));
    EXPECT_EQ(pane.Text(), "ab\ncd");
    EXPECT_EQ(pane.Runs(), (Runs{{"ab\ncd", kBlack}}));
}

TEST_F(RichPaneTest, SetTextIsBlackWhateverWasThereBeforeAndRunsLeaveTheCaretAtTheEnd) {
    pane.SetRuns({{"red", kRed}});
    pane.SetText("Preview");
    EXPECT_EQ(pane.Runs(), (Runs{{"Preview", kBlack}}));
    EXPECT_EQ(pane.SelStart(), 0);
    pane.SetRuns({{"abc", kRed}});
    EXPECT_EQ(pane.SelStart(), 3);
    EXPECT_EQ(pane.SelLength(), 0);
}

struct SelectionCase {
    const char* name;
    int start;
    int length;
    int expectedStart;
    int expectedLength;
    friend void PrintTo(const SelectionCase& c, std::ostream* os) { *os << c.name; }
};

class RichPaneSelection : public RichPaneTest, public testing::WithParamInterface<SelectionCase> {};

TEST_P(RichPaneSelection, StartAndLengthAreCutAtTheEnd) {
    const SelectionCase& c = GetParam();
    pane.SetText("abcde");
    pane.SetSelStart(c.start);
    pane.SetSelLength(c.length);
    EXPECT_EQ(pane.SelStart(), c.expectedStart);
    EXPECT_EQ(pane.SelLength(), c.expectedLength);
}

INSTANTIATE_TEST_SUITE_P(Cases, RichPaneSelection,
                         testing::Values(SelectionCase{"Inside", 1, 2, 1, 2},
                                         SelectionCase{"LengthPastEnd", 3, 10, 3, 2},
                                         SelectionCase{"StartAtEnd", 5, 1, 5, 0},
                                         SelectionCase{"StartPastEnd", 40, 1, 5, 0},
                                         SelectionCase{"NegativeStart", -3, 1, 0, 1},
                                         SelectionCase{"NegativeLength", 2, -1, 2, 0}),
                         testing::PrintToStringParamName());

TEST_F(RichPaneTest, SettingTheStartEndsTheSelection) {
    pane.SetText("abcde");
    pane.SetSelStart(1);
    pane.SetSelLength(3);
    pane.SetSelStart(2);
    EXPECT_EQ(pane.SelLength(), 0);
}

TEST_F(RichPaneTest, ColouringASelectionChangesOnlyThoseCharacters) {
    pane.SetRuns({{"abcd", kWhite}});
    pane.SetSelStart(1);
    pane.SetSelLength(2);
    QSignalSpy spy(&edit, &QTextEdit::textChanged);
    pane.SetSelColour(kRed);
    EXPECT_EQ(pane.Runs(), (Runs{{"a", kWhite}, {"bc", kRed}, {"d", kWhite}}));
    EXPECT_EQ(pane.SelColour(), kRed);
    EXPECT_EQ(spy.count(), 1) << "a change of colour alone is a change of the pane";
    EXPECT_EQ(pane.Text(), "abcd");
}

TEST_F(RichPaneTest, AColourChosenWithNothingSelectedColoursWhatIsTypedNext) {
    pane.SetRuns({{"ab", kWhite}});
    pane.SetSelStart(2);
    pane.SetSelColour(kGreen);
    EXPECT_EQ(pane.SelColour(), kGreen);
    EXPECT_EQ(pane.Runs(), (Runs{{"ab", kWhite}})) << "nothing is inserted";
    QTest::keyClicks(&edit, QStringLiteral("xy"));
    EXPECT_EQ(pane.Runs(), (Runs{{"ab", kWhite}, {"xy", kGreen}}));
}

TEST_F(RichPaneTest, TypingTakesTheColourOfTheCharacterInFront) {
    pane.SetRuns({{"ab", kRed}, {"cd", kGreen}});
    pane.SetSelStart(2);
    EXPECT_EQ(pane.SelColour(), kRed);
    QTest::keyClicks(&edit, QStringLiteral("x"));
    EXPECT_EQ(pane.Runs(), (Runs{{"abx", kRed}, {"cd", kGreen}}));
}

TEST_F(RichPaneTest, SelTextReplacesTheSelectionInTheColourJustGiven) {
    pane.SetRuns({{"abcd", kWhite}});
    pane.SetSelStart(1);
    pane.SetSelLength(2);
    pane.SetSelColour(kRed);
    pane.SetSelText("XYZ");
    EXPECT_EQ(pane.Runs(), (Runs{{"a", kWhite}, {"XYZ", kRed}, {"d", kWhite}}));
    EXPECT_EQ(pane.SelStart(), 4);
    EXPECT_EQ(pane.SelLength(), 0);
}

struct CaretColourCase {
    const char* name;
    int caret;
    bool choose;    // SetSelColour(green) at the caret before reading
    bool moveAway;  // then the caret moves and comes back
    Colour expected;
    friend void PrintTo(const CaretColourCase& c, std::ostream* os) { *os << c.name; }
};

class RichPaneCaretColour : public RichPaneTest, public testing::WithParamInterface<CaretColourCase> {};

// With nothing selected the colour read, and inserted by SelText, is the one
// chosen at this caret, else the colour of the character in front, else black.
TEST_P(RichPaneCaretColour, ReadAndInsertedAlike) {
    const CaretColourCase& c = GetParam();
    pane.SetRuns({{"ab", kRed}, {"cd", kWhite}});
    pane.SetSelStart(c.caret);
    if (c.choose) pane.SetSelColour(kGreen);
    if (c.moveAway) {
        pane.SetSelStart(c.caret == 0 ? 1 : 0);
        pane.SetSelStart(c.caret);
    }
    EXPECT_EQ(pane.SelColour(), c.expected);
    pane.SetSelText("x");
    pane.SetSelStart(c.caret);
    pane.SetSelLength(1);
    EXPECT_EQ(pane.SelColour(), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, RichPaneCaretColour,
                         testing::Values(CaretColourCase{"AtStartNothingInFront", 0, false, false, kBlack},
                                         CaretColourCase{"BehindRed", 2, false, false, kRed},
                                         CaretColourCase{"AtEnd", 4, false, false, kWhite},
                                         CaretColourCase{"ChosenAtStart", 0, true, false, kGreen},
                                         CaretColourCase{"ChosenInside", 2, true, false, kGreen},
                                         CaretColourCase{"ChosenThenMoved", 2, true, true, kRed}),
                         testing::PrintToStringParamName());

TEST_F(RichPaneTest, AnEmptySelTextAtTheEndChangesNothing) {
    pane.SetText("ab");
    QSignalSpy spy(&edit, &QTextEdit::textChanged);
    pane.SetSelStart(2);
    pane.SetSelText("");
    EXPECT_EQ(spy.count(), 0);
    EXPECT_EQ(pane.Text(), "ab");
}

TEST_F(RichPaneTest, LockedKeepsTheUserOutButNotTheRoutines) {
    pane.SetLocked(true);
    EXPECT_TRUE(pane.Locked());
    EXPECT_TRUE(edit.isReadOnly());
    pane.SetText("still written");
    EXPECT_EQ(pane.Text(), "still written");
    QTest::keyClicks(&edit, QStringLiteral("zz"));
    EXPECT_EQ(pane.Text(), "still written");
    pane.SetLocked(false);
    EXPECT_FALSE(edit.isReadOnly());
}

// Playback replaces the content ten times a second; no history may pile up.
TEST_F(RichPaneTest, AReplacementOfTheWholeContentLeavesNoHistory) {
    QTest::keyClicks(&edit, QStringLiteral("typed"));
    ASSERT_TRUE(edit.document()->isUndoAvailable());
    pane.SetRuns({{"frame", kRed}});
    EXPECT_FALSE(edit.document()->isUndoAvailable());
    EXPECT_TRUE(edit.document()->isUndoRedoEnabled());
    QTest::keyClicks(&edit, QStringLiteral("x"));
    EXPECT_TRUE(edit.document()->isUndoAvailable()) << "typing keeps its history";
}

}  // namespace
}  // namespace flickerscribe::ui
