#include <optional>

#include "LineTestSupport.h"
#include "ui/LineListView.h"

using namespace Qt::Literals::StringLiterals;

namespace fs::ui::testing_support {
namespace {

using TextTimes = std::vector<std::string>;

// --- Add

struct AddCase {
    const char* name;
    int selected;
    bool after;
    TextTimes expected;
    int selectedAfter;  // the same line B, A or C, at its new index
};

class AddLineTest : public LinesTest, public testing::WithParamInterface<AddCase> {};

TEST_P(AddLineTest, PutsANewLineBesideTheSelectedOneAndKeepsTheSelection) {
    AddABC();
    Script().SelectLine(GetParam().selected);
    MarkPane();
    window->AddLine(GetParam().after);
    EXPECT_EQ(Lines(), GetParam().expected);
    EXPECT_EQ(Script().SelectedIndex(), GetParam().selectedAfter);
    for (int i = 1; i <= Script().Count(); ++i) {
        if (Script().LineAt(i).Text == "Text") {
            EXPECT_EQ(Script().LineAt(i), (AnimationLine{"Text", "15", "[none]"}));
        }
    }
    EXPECT_EQ(PaneText(), "marker") << "the pane isn't redrawn";
    EXPECT_TRUE(dialogs.Calls().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, AddLineTest,
    testing::Values(AddCase{"AfterB", 2, true, {"A/10", "B/20", "Text/15", "C/30"}, 2},
                    AddCase{"BeforeB", 2, false, {"A/10", "Text/15", "B/20", "C/30"}, 3},
                    AddCase{"AfterLast", 3, true, {"A/10", "B/20", "C/30", "Text/15"}, 3},
                    AddCase{"BeforeLast", 3, false, {"A/10", "B/20", "Text/15", "C/30"}, 4},
                    AddCase{"BeforeFirst", 1, false, {"Text/15", "A/10", "B/20", "C/30"}, 2}),
    [](const testing::TestParamInfo<AddCase>& info) { return std::string(info.param.name); });

class AddToEmpty : public LinesTest, public testing::WithParamInterface<bool> {};

TEST_P(AddToEmpty, GivesOneSelectedLineAndLeavesThePaneLocked) {
    window->AddLine(GetParam());
    EXPECT_EQ(Lines(), TextTimes({"Text/15"}));
    EXPECT_EQ(Script().SelectedIndex(), 1);
    EXPECT_EQ(PaneText(), "Preview");
    EXPECT_TRUE(PaneLocked());
}

INSTANTIATE_TEST_SUITE_P(BeforeAndAfter, AddToEmpty, testing::Bool());

// --- Copy, modes 1, 3 and 4

struct CopyCase {
    const char* name;
    int mode;
    TextTimes before;
    TextTimes expected;
};

class CopyLinesTest : public LinesTest, public testing::WithParamInterface<CopyCase> {};

TEST_P(CopyLinesTest, AppendsCopiesAtTheEndAndKeepsTheSelection) {
    for (const std::string& line : GetParam().before) {
        const auto slash = line.find('/');
        ASSERT_TRUE(Script().AppendLine(line.substr(0, slash), line.substr(slash + 1), "[none]"));
    }
    const int selected = Script().Count() >= 2 ? 2 : 1;
    Script().SelectLine(selected);
    MarkPane();
    window->CopyLines(GetParam().mode);
    EXPECT_EQ(Lines(), GetParam().expected);
    EXPECT_EQ(Script().SelectedIndex(), selected);
    EXPECT_EQ(window->ListView()->currentIndex().row(), selected - 1) << "the view keeps the selected row";
    EXPECT_EQ(PaneText(), "marker");
    EXPECT_TRUE(dialogs.Calls().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, CopyLinesTest,
    testing::Values(
        CopyCase{"SelectedLine", 1, {"A/10", "B/20", "C/30"}, {"A/10", "B/20", "C/30", "B/20"}},
        CopyCase{"AllLines", 3, {"A/10", "B/20", "C/30"}, {"A/10", "B/20", "C/30", "A/10", "B/20", "C/30"}},
        CopyCase{
            "AllReversed", 4, {"A/10", "B/20", "C/30"}, {"A/10", "B/20", "C/30", "C/30", "B/20", "A/10"}},
        CopyCase{"AllOfOne", 3, {"A/10"}, {"A/10", "A/10"}},
        CopyCase{"AllReversedOfOne", 4, {"A/10"}, {"A/10", "A/10"}},
        // Codes, blanks and a time that is no number travel unchanged.
        CopyCase{"FieldsAsTheyAre", 1, {"x/1", "^1 a^^ /abc"}, {"x/1", "^1 a^^ /abc", "^1 a^^ /abc"}}),
    [](const testing::TestParamInfo<CopyCase>& info) { return std::string(info.param.name); });

// --- Copy x times: the answer of the input box

struct AnswerCase {
    const char* name;
    std::optional<QString> answer;  // nullopt: Cancel
    int copies;                     // -1: refused with the message
};

class CopyTimes : public LinesTest, public testing::WithParamInterface<AnswerCase> {};

TEST_P(CopyTimes, CopiesTheSelectedLineAsOftenAsTheAnswerSays) {
    AddABC();
    MarkPane();
    dialogs.QueueInput(GetParam().answer);
    window->CopyLines(2);

    const auto inputs = dialogs.CallsOf(DialogCall::Kind::InputBox);
    ASSERT_EQ(inputs.size(), 1u);
    EXPECT_EQ(inputs[0].prompt, u"Copy the selected line how many times?"_s);
    EXPECT_EQ(inputs[0].title, u"Copy selected line x times"_s);
    EXPECT_EQ(inputs[0].defaultText, u"5"_s);

    TextTimes expected = {"A/10", "B/20", "C/30"};
    if (GetParam().copies > 0)
        expected.insert(expected.end(), static_cast<std::size_t>(GetParam().copies), "B/20");
    EXPECT_EQ(Lines(), expected);
    EXPECT_EQ(Script().SelectedIndex(), 2);
    EXPECT_EQ(PaneText(), "marker");

    const auto messages = dialogs.Messages();
    if (GetParam().copies >= 0) {
        EXPECT_TRUE(messages.empty());
    } else {
        ASSERT_EQ(messages.size(), 1u);
        EXPECT_EQ(messages[0].text, u"Can't copy the selected line. Invalid input ("_s +
                                        GetParam().answer.value_or(QString()) + u")"_s);
        EXPECT_EQ(messages[0].title, u"Error"_s);
        EXPECT_EQ(messages[0].icon, MsgIcon::Critical);
        EXPECT_EQ(messages[0].buttons, MsgButtons::Ok);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Answers, CopyTimes,
    testing::Values(AnswerCase{"Two", u"2"_s, 2}, AnswerCase{"TheDefault", u"5"_s, 5},
                    AnswerCase{"Zero", u"0"_s, 0}, AnswerCase{"Negative", u"-3"_s, 0},
                    AnswerCase{"Word", u"abc"_s, -1}, AnswerCase{"TooBig", u"32768"_s, -1},
                    AnswerCase{"Empty", u""_s, -1}, AnswerCase{"Cancel", std::nullopt, -1},
                    AnswerCase{"HalfUp", u"3.5"_s, 4}, AnswerCase{"HalfToEven", u"2.5"_s, 2},
                    AnswerCase{"Exponent", u"1e1"_s, 10}, AnswerCase{"Blanks", u" 3 "_s, 3}),
    [](const testing::TestParamInfo<AnswerCase>& info) { return std::string(info.param.name); });

// --- the empty list

struct EmptyCase {
    const char* name;
    void (*command)(frmMain&);
    const char* text;
    const char* title;
    MsgIcon icon;
};

class OnAnEmptyList : public LinesTest, public testing::WithParamInterface<EmptyCase> {};

TEST_P(OnAnEmptyList, ACommandSaysSoAndChangesNothing) {
    GetParam().command(*window);
    const auto calls = dialogs.Calls();
    ASSERT_EQ(calls.size(), 1u) << "one message, and no input box before it";
    EXPECT_EQ(calls[0].kind, DialogCall::Kind::Message);
    EXPECT_EQ(calls[0].text, QString::fromLatin1(GetParam().text));
    EXPECT_EQ(calls[0].title, QString::fromLatin1(GetParam().title));
    EXPECT_EQ(calls[0].icon, GetParam().icon);
    EXPECT_EQ(calls[0].buttons, MsgButtons::Ok);
    EXPECT_EQ(Script().Count(), 0);
    EXPECT_EQ(PaneText(), "Preview");
    EXPECT_TRUE(PaneLocked());
}

INSTANTIATE_TEST_SUITE_P(
    Commands, OnAnEmptyList,
    testing::Values(EmptyCase{"CopySelected", [](frmMain& w) { w.CopyLines(1); },
                              "There are no lines to copy", "Add line", MsgIcon::Exclamation},
                    EmptyCase{"CopyTimes", [](frmMain& w) { w.CopyLines(2); }, "There are no lines to copy",
                              "Add line", MsgIcon::Exclamation},
                    EmptyCase{"CopyAll", [](frmMain& w) { w.CopyLines(3); }, "There are no lines to copy",
                              "Add line", MsgIcon::Exclamation},
                    EmptyCase{"CopyAllReversed", [](frmMain& w) { w.CopyLines(4); },
                              "There are no lines to copy", "Add line", MsgIcon::Exclamation},
                    EmptyCase{"Remove", [](frmMain& w) { w.RemoveSelectedLine(); }, "Can't remove line.", "",
                              MsgIcon::Information},
                    EmptyCase{"Edit", [](frmMain& w) { w.EditSelectedLine(); }, "No items to edit", "Edit",
                              MsgIcon::Exclamation}),
    [](const testing::TestParamInfo<EmptyCase>& info) { return std::string(info.param.name); });

// --- Remove leaves the pane as it was

TEST_F(LinesTest, RemoveLeavesTheRemovedTextInThePaneAndAnEditThereReachesTheNextLine) {
    AddABC();
    window->SetPreview();  // shows B
    window->RemoveSelectedLine();
    EXPECT_EQ(Lines(), TextTimes({"A/10", "C/30"}));
    EXPECT_EQ(Script().SelectedIndex(), 2);
    EXPECT_EQ(PaneText(), "B");
    EXPECT_FALSE(PaneLocked());
    EXPECT_TRUE(dialogs.Calls().empty());

    window->PreviewEdit()->moveCursor(QTextCursor::End);
    window->PreviewEdit()->insertPlainText(u"!"_s);
    EXPECT_EQ(Lines(), TextTimes({"A/10", "B!/30"})) << "the edited text replaces C's, its time stays";
}

TEST_F(LinesTest, RemoveOfTheOnlyLineLeavesAnUnlockedPaneWhoseEditsReachNoLine) {
    AddLines({"^1only"});
    window->SetPreview();
    window->RemoveSelectedLine();
    EXPECT_EQ(Script().Count(), 0);
    EXPECT_EQ(Script().SelectedIndex(), 0);
    EXPECT_EQ(PaneText(), "only");
    EXPECT_FALSE(PaneLocked());

    window->PreviewEdit()->insertPlainText(u"x"_s);
    EXPECT_EQ(Script().Count(), 0);
    EXPECT_EQ(PaneText(), "onlyx");
}

// --- the line limit

struct LimitCase {
    const char* name;
    int linesBefore;
    void (*command)(frmMain&, ScriptedDialogs&);
};

class AtTheLineLimit : public LinesTest, public testing::WithParamInterface<LimitCase> {};

TEST_P(AtTheLineLimit, AddingStopsAtTheLimitWithOneMessage) {
    FillTo(GetParam().linesBefore);
    Script().SelectLine(1);
    GetParam().command(*window, dialogs);
    EXPECT_EQ(Script().Count(), kMaxLines);
    EXPECT_EQ(Script().SelectedIndex(), 1);
    const auto messages = dialogs.Messages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].title, kLimitTitle);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, AtTheLineLimit,
    testing::Values(
        LimitCase{"AddAfter", kMaxLines, [](frmMain& w, ScriptedDialogs&) { w.AddLine(true); }},
        LimitCase{"AddBefore", kMaxLines, [](frmMain& w, ScriptedDialogs&) { w.AddLine(false); }},
        LimitCase{"CopySelected", kMaxLines, [](frmMain& w, ScriptedDialogs&) { w.CopyLines(1); }},
        LimitCase{"CopyTimes", kMaxLines - 2,
                  [](frmMain& w, ScriptedDialogs& d) {
                      d.QueueInput(u"5"_s);
                      w.CopyLines(2);
                  }},
        LimitCase{"CopyAll", 20000, [](frmMain& w, ScriptedDialogs&) { w.CopyLines(3); }},
        LimitCase{"CopyAllReversed", 20000, [](frmMain& w, ScriptedDialogs&) { w.CopyLines(4); }}),
    [](const testing::TestParamInfo<LimitCase>& info) { return std::string(info.param.name); });

TEST_F(LinesTest, CopyAllReversedUpToTheLimitTakesTheLastLinesFirst) {
    FillTo(kMaxLines - 2);
    Script().SetLineText(kMaxLines - 2, "last");
    Script().SetLineText(kMaxLines - 3, "second last");
    window->CopyLines(4);
    EXPECT_EQ(Script().LineAt(kMaxLines - 1).Text, "last");
    EXPECT_EQ(Script().LineAt(kMaxLines).Text, "second last");
}

}  // namespace
}  // namespace fs::ui::testing_support
