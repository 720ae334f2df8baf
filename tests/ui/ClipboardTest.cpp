#include "LineTestSupport.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui::testing_support {
namespace {

using Clipboard = LinesTest;
using Kind = DialogCall::Kind;

TEST_F(Clipboard, CopyPasteCutWorkedExample) {
    ASSERT_TRUE(Script().AppendLine("^1A", "20", "[none]"));
    ASSERT_TRUE(Script().AppendLine("^2B", "30", "[none]"));
    window->SetPreview();

    window->mnuEditCopy_Click();
    EXPECT_EQ(dialogs.clipboard, u"^1A"_s);
    EXPECT_EQ(Lines(), (std::vector<std::string>{"^1A/20", "^2B/30"}));

    dialogs.clipboard = u"^3Hi there"_s;
    window->mnuEditPaste_Click();
    EXPECT_EQ(Lines(), (std::vector<std::string>{"^1A/20", "^3Hi there/15", "^2B/30"}));
    EXPECT_EQ(Script().LineAt(2).Action, "[none]");
    EXPECT_EQ(Script().SelectedIndex(), 1);
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"A", kRed}}));

    window->mnuEditCut_Click();
    EXPECT_EQ(dialogs.clipboard, u"^1A"_s);
    EXPECT_EQ(Lines(), (std::vector<std::string>{"^3Hi there/15", "^2B/30"}));
    EXPECT_EQ(Script().SelectedIndex(), 1);
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"Hi there", Rgb(255, 255, 0)}}))
        << "the pane shows the line selected in place of the cut one";
}

struct PasteCase {
    const char* name;
    QString clipboard;
    const char* text;  // what the new line holds
};

class PasteText : public LinesTest, public testing::WithParamInterface<PasteCase> {};

// One paste makes exactly one line, and no line break reaches it: of a text
// with breaks the first line is kept.
TEST_P(PasteText, MakesOneLineBehindTheSelectedOne) {
    AddABC();
    dialogs.clipboard = GetParam().clipboard;
    window->mnuEditPaste_Click();
    ASSERT_EQ(Script().Count(), 4);
    EXPECT_EQ(Script().LineAt(3), (AnimationLine{GetParam().text, "15", "[none]"}));
    EXPECT_EQ(Script().SelectedIndex(), 2);
    EXPECT_EQ(PaneText(), "B");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PasteText,
    testing::Values(PasteCase{"Plain", u" ^1x ^^ "_s, " ^1x ^^ "}, PasteCase{"Empty", u""_s, ""},
                    PasteCase{"CrLf", u"one\r\ntwo\r\nthree"_s, "one"}, PasteCase{"Cr", u"one\rtwo"_s, "one"},
                    PasteCase{"Lf", u"^4one\ntwo"_s, "^4one"},
                    PasteCase{"TrailingBreak", u"one\r\n"_s, "one"},
                    PasteCase{"LeadingBreak", u"\nsecond"_s, ""},
                    PasteCase{"WindowsCharacters", u"\u20ac\u00e9"_s, "\x80\xE9"}),
    [](const testing::TestParamInfo<PasteCase>& info) { return std::string(info.param.name); });

TEST_F(Clipboard, PasteIntoAnEmptyListSelectsAndShowsTheLine) {
    dialogs.clipboard = u"^1Hi"_s;
    window->mnuEditPaste_Click();
    EXPECT_EQ(Lines(), (std::vector<std::string>{"^1Hi/15"}));
    EXPECT_EQ(Script().SelectedIndex(), 1);
    EXPECT_FALSE(PaneLocked());
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"Hi", kRed}}));
}

TEST_F(Clipboard, PasteWithTheLastLineSelectedGivesANewLastLine) {
    AddABC();
    Script().SelectLine(3);
    dialogs.clipboard = u"D"_s;
    window->mnuEditPaste_Click();
    EXPECT_EQ(Lines(), (std::vector<std::string>{"A/10", "B/20", "C/30", "D/15"}));
    EXPECT_EQ(Script().SelectedIndex(), 3);
}

TEST_F(Clipboard, AnUnreadableClipboardLeavesEverythingAsItWas) {
    AddABC();
    MarkPane();
    dialogs.clipboardUnreadable = true;
    window->mnuEditPaste_Click();
    EXPECT_EQ(Lines(), (std::vector<std::string>{"A/10", "B/20", "C/30"}));
    EXPECT_EQ(PaneText(), "marker") << "no redraw either";
    EXPECT_TRUE(dialogs.Messages().empty());
}

TEST_F(Clipboard, CutOfTheOnlyLineLocksThePane) {
    AddLines({"^2only"});
    window->SetPreview();
    window->mnuEditCut_Click();
    EXPECT_EQ(Script().Count(), 0);
    EXPECT_EQ(dialogs.clipboard, u"^2only"_s);
    EXPECT_EQ(PaneText(), "Preview");
    EXPECT_TRUE(PaneLocked());
}

class ClipboardOnEmptyList : public LinesTest, public testing::WithParamInterface<bool> {};

TEST_P(ClipboardOnEmptyList, CutAndCopyLeaveTheClipboardAlone) {
    dialogs.clipboard = u"kept"_s;
    if (GetParam()) {
        window->mnuEditCut_Click();
    } else {
        window->mnuEditCopy_Click();
    }
    EXPECT_EQ(dialogs.clipboard, u"kept"_s);
    EXPECT_TRUE(dialogs.Calls().empty());
    EXPECT_EQ(Script().Count(), 0);
}

INSTANTIATE_TEST_SUITE_P(CutOrCopy, ClipboardOnEmptyList, testing::Bool());

TEST_F(Clipboard, PasteIntoAFullListIsRefusedWithTheLimitMessage) {
    FillTo(kMaxLines);
    MarkPane();
    dialogs.clipboard = u"one more"_s;
    window->mnuEditPaste_Click();
    EXPECT_EQ(Script().Count(), kMaxLines);
    EXPECT_EQ(Script().LineAt(2).Text, "x");
    ASSERT_EQ(dialogs.Messages().size(), 1u);
    EXPECT_EQ(dialogs.Messages()[0].title, kLimitTitle);
    EXPECT_EQ(PaneText(), "marker");
}

TEST_F(Clipboard, PasteDuringPlaybackDrawsTheSelectedLineAndWritesNothingBack) {
    AddABC();
    window->TogglePlayback();
    ASSERT_TRUE(window->Playing());
    dialogs.clipboard = u"^1P"_s;
    window->mnuEditPaste_Click();
    EXPECT_EQ(PaneText(), "B");
    EXPECT_TRUE(window->PreviewBusy);
    EXPECT_EQ(Lines(), (std::vector<std::string>{"A/10", "B/20", "^1P/15", "C/30"}));
    window->TogglePlayback();
}

}  // namespace
}  // namespace fs::ui::testing_support
