#include <optional>

#include "LineTestSupport.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui::testing_support {
namespace {

TEST_F(LinesTest, CopyPasteCutWorkedExample) {
    Start({"^1A/20", "^2B/30"}, 1);
    window->SetPreview();
    window->CopyLine();
    EXPECT_EQ(dialogs.clipboard, u"^1A"_s);
    EXPECT_EQ(Lines(), TextTimes({"^1A/20", "^2B/30"}));

    dialogs.clipboard = u"^3Hi there"_s;
    window->PasteLine();
    EXPECT_EQ(Lines(), TextTimes({"^1A/20", "^3Hi there/15", "^2B/30"}));
    EXPECT_EQ(Script().SelectedIndex(), 1);
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"A", kRed}}));

    window->CutLine();
    EXPECT_EQ(dialogs.clipboard, u"^1A"_s);
    EXPECT_EQ(Lines(), TextTimes({"^3Hi there/15", "^2B/30"}));
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"Hi there", Rgb(255, 255, 0)}}));
}

struct PasteCase {
    const char* name;
    std::optional<QString> clipboard;  // nullopt: it can't be read
    TextTimes expected;
    const char* shown;  // the pane afterwards
    TextTimes start = kABC;
    int selected = 2;
    friend void PrintTo(const PasteCase& c, std::ostream* os) { *os << c.name; }
};

class Paste : public LinesTest, public testing::WithParamInterface<PasteCase> {};

// One paste makes one line behind the selected one, which stays selected;
// of a text with line breaks only the first line is kept.
TEST_P(Paste, MakesOneLineOfTheClipboardsFirstLine) {
    Start(GetParam().start, GetParam().selected);
    MarkPane();
    dialogs.clipboardUnreadable = !GetParam().clipboard;
    dialogs.clipboard = GetParam().clipboard.value_or(QString());
    window->PasteLine();
    EXPECT_EQ(Lines(), GetParam().expected);
    EXPECT_EQ(Script().SelectedIndex(), GetParam().selected == 0 ? 1 : GetParam().selected);
    EXPECT_EQ(PaneText(), GetParam().shown);
    EXPECT_FALSE(PaneLocked());
    EXPECT_TRUE(dialogs.Messages().empty());
}

TextTimes ABWithCThen(const char* pasted) {
    return {"A/10", "B/20", std::string(pasted) + "/15", "C/30"};
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Paste,
    testing::Values(PasteCase{"Plain", u" ^1x ^^ "_s, ABWithCThen(" ^1x ^^ "), "B"},
                    PasteCase{"Empty", u""_s, ABWithCThen(""), "B"},
                    PasteCase{"CrLf", u"one\r\ntwo\r\nthree"_s, ABWithCThen("one"), "B"},
                    PasteCase{"Cr", u"one\rtwo"_s, ABWithCThen("one"), "B"},
                    PasteCase{"Lf", u"^4one\ntwo\n"_s, ABWithCThen("^4one"), "B"},
                    PasteCase{"LeadingBreak", u"\r\nsecond"_s, ABWithCThen(""), "B"},
                    PasteCase{"WindowsCharacters", u"\u20ac\u00e9"_s, ABWithCThen("\x80\xE9"), "B"},
                    PasteCase{"LastSelected", u"D"_s, {"A/10", "B/20", "C/30", "D/15"}, "C", kABC, 3},
                    PasteCase{"IntoAnEmptyList", u"^1Hi"_s, {"^1Hi/15"}, "Hi", {}, 0},
                    PasteCase{"Unreadable", std::nullopt, kABC, "marker"}),
    testing::PrintToStringParamName());

struct CutCopyCase {
    const char* name;
    bool cut;
    TextTimes start;
    TextTimes expected;
    QString clipboard;
    friend void PrintTo(const CutCopyCase& c, std::ostream* os) { *os << c.name; }
};

class CutCopy : public LinesTest, public testing::WithParamInterface<CutCopyCase> {};

TEST_P(CutCopy, TakeTheSelectedLinesTextOnly) {
    Start(GetParam().start, 1);
    window->SetPreview();
    dialogs.clipboard = u"kept"_s;
    GetParam().cut ? window->CutLine() : window->CopyLine();
    EXPECT_EQ(Lines(), GetParam().expected);
    EXPECT_EQ(dialogs.clipboard, GetParam().clipboard);
    // Cut draws the pane anew; Copy leaves it.
    EXPECT_EQ(PaneText(), GetParam().expected.empty() ? "Preview" : Script().LineAt(1).Text);
    EXPECT_EQ(PaneLocked(), GetParam().expected.empty());
}

INSTANTIATE_TEST_SUITE_P(Cases, CutCopy,
                         testing::Values(CutCopyCase{"CutTheOnlyLine", true, {"only/30"}, {}, u"only"_s},
                                         CutCopyCase{
                                             "Copy", false, {"A/10", "B/20"}, {"A/10", "B/20"}, u"A"_s},
                                         CutCopyCase{"CutOfNone", true, {}, {}, u"kept"_s},
                                         CutCopyCase{"CopyOfNone", false, {}, {}, u"kept"_s}),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace flickerscribe::ui::testing_support
