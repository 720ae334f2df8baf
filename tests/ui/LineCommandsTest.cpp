#include <functional>
#include <optional>

#include "LineTestSupport.h"
#include "ui/LineListView.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui::testing_support {
namespace {

using Run = std::function<void(MainWindow&, ScriptedDialogs&)>;

struct CommandCase {
    const char* name;
    Run run;
    TextTimes expected;
    int selectedAfter;
    TextTimes start = kABC;
    int selected = 2;
    const char* message = nullptr;  // the one message shown, if any
    const char* title = "";
    MsgIcon icon = MsgIcon::Exclamation;
    friend void PrintTo(const CommandCase& c, std::ostream* os) { *os << c.name; }
};

class LineCommand : public LinesTest, public testing::WithParamInterface<CommandCase> {};

// The pane is left as it was while the selected line stays the same; a
// command that selects another line (Remove, an Add to an empty list) shows it.
TEST_P(LineCommand, ChangesTheListAsTheCommandSays) {
    const CommandCase& c = GetParam();
    Start(c.start, c.selected);
    MarkPane();
    const auto selectedText = [this] {
        return Script().Count() ? Script().LineAt(Script().SelectedIndex()).Text : std::string("Preview");
    };
    const std::string before = selectedText();
    c.run(*window, dialogs);

    EXPECT_EQ(Lines(), c.expected);
    EXPECT_EQ(Script().SelectedIndex(), c.selectedAfter);
    if (c.selectedAfter > 0) {
        EXPECT_EQ(window->LineList()->currentIndex().row(), c.selectedAfter - 1);
    }
    EXPECT_EQ(PaneText(), selectedText() == before ? "marker" : selectedText());
    for (const DialogCall& input : dialogs.CallsOf(DialogCall::Kind::InputBox)) {
        EXPECT_EQ(input.prompt, u"Copy the selected line how many times?"_s);
        EXPECT_EQ(input.title, u"Copy selected line x times"_s);
        EXPECT_EQ(input.defaultText, u"5"_s);
    }
    const auto messages = dialogs.Messages();
    ASSERT_EQ(messages.size(), c.message ? 1u : 0u);
    if (c.message) {
        EXPECT_EQ(messages[0].text, QString::fromLatin1(c.message));
        EXPECT_EQ(messages[0].title, QString::fromLatin1(c.title));
        EXPECT_EQ(messages[0].icon, c.icon);
        EXPECT_EQ(messages[0].buttons, MsgButtons::Ok);
    }
}

const Run kAfter = [](MainWindow& w, ScriptedDialogs&) { w.AddLine(true); };
const Run kBefore = [](MainWindow& w, ScriptedDialogs&) { w.AddLine(false); };
const Run kRemove = [](MainWindow& w, ScriptedDialogs&) { w.RemoveSelectedLine(); };
const Run kEdit = [](MainWindow& w, ScriptedDialogs&) { w.EditSelectedLine(); };
Run Copy(int mode) {
    return [mode](MainWindow& w, ScriptedDialogs&) { w.CopyLines(mode); };
}
// "Copy selected line x times" with this answer; nullopt is Cancel.
Run Times(std::optional<QString> answer) {
    return [answer](MainWindow& w, ScriptedDialogs& d) {
        d.QueueInput(answer);
        w.CopyLines(2);
    };
}
TextTimes ABCWithCopiesOfB(std::size_t copies) {
    TextTimes lines = kABC;
    lines.insert(lines.end(), copies, "B/20");
    return lines;
}
constexpr const char* kNoLines = "There are no lines to copy";
constexpr MsgIcon kStop = MsgIcon::Critical;

INSTANTIATE_TEST_SUITE_P(
    Cases, LineCommand,
    testing::Values(
        CommandCase{"AddAfterB", kAfter, {"A/10", "B/20", "Text/15", "C/30"}, 2},
        CommandCase{"AddBeforeB", kBefore, {"A/10", "Text/15", "B/20", "C/30"}, 3},
        CommandCase{"AddAfterC", kAfter, {"A/10", "B/20", "C/30", "Text/15"}, 3, kABC, 3},
        CommandCase{"AddBeforeC", kBefore, {"A/10", "B/20", "Text/15", "C/30"}, 4, kABC, 3},
        CommandCase{"AddBeforeA", kBefore, {"Text/15", "A/10", "B/20", "C/30"}, 2, kABC, 1},
        CommandCase{"AddAfterToEmpty", kAfter, {"Text/15"}, 1, {}, 0},
        CommandCase{"AddBeforeToEmpty", kBefore, {"Text/15"}, 1, {}, 0},
        CommandCase{"RemoveB", kRemove, {"A/10", "C/30"}, 2},
        CommandCase{"RemoveTheOnly", kRemove, {}, 0, {"A/10"}, 1},
        CommandCase{"CopySelected", Copy(1), ABCWithCopiesOfB(1), 2},
        CommandCase{"CopyFieldsAsTheyAre", Copy(1), {"^1 a^^ /abc", "^1 a^^ /abc"}, 1, {"^1 a^^ /abc"}, 1},
        CommandCase{"CopyAll", Copy(3), {"A/10", "B/20", "C/30", "A/10", "B/20", "C/30"}, 2},
        CommandCase{"CopyAllReversed", Copy(4), {"A/10", "B/20", "C/30", "C/30", "B/20", "A/10"}, 2},
        CommandCase{"CopyAllOfOne", Copy(3), {"A/10", "A/10"}, 1, {"A/10"}, 1},
        CommandCase{"CopyAllReversedOfOne", Copy(4), {"A/10", "A/10"}, 1, {"A/10"}, 1},
        CommandCase{"TwoTimes", Times(u"2"_s), ABCWithCopiesOfB(2), 2},
        CommandCase{"FiveTimes", Times(u"5"_s), ABCWithCopiesOfB(5), 2},
        CommandCase{"ZeroTimes", Times(u"0"_s), kABC, 2},
        CommandCase{"NegativeTimes", Times(u"-3"_s), kABC, 2},
        CommandCase{"HalfToEven", Times(u"2.5"_s), ABCWithCopiesOfB(2), 2},
        CommandCase{"HalfUp", Times(u"3.5"_s), ABCWithCopiesOfB(4), 2},
        CommandCase{"Exponent", Times(u"1e1"_s), ABCWithCopiesOfB(10), 2},
        CommandCase{"WordTimes", Times(u"abc"_s), kABC, 2, kABC, 2,
                    "Can't copy the selected line. Invalid input (abc)", "Error", kStop},
        CommandCase{"TooManyTimes", Times(u"32768"_s), kABC, 2, kABC, 2,
                    "Can't copy the selected line. Invalid input (32768)", "Error", kStop},
        CommandCase{"Cancel", Times(std::nullopt), kABC, 2, kABC, 2,
                    "Can't copy the selected line. Invalid input ()", "Error", kStop},
        CommandCase{"CopySelectedOfNone", Copy(1), {}, 0, {}, 0, kNoLines, "Add line"},
        CommandCase{"CopyTimesOfNoneAsksNothing", Copy(2), {}, 0, {}, 0, kNoLines, "Add line"},
        CommandCase{"CopyAllOfNone", Copy(3), {}, 0, {}, 0, kNoLines, "Add line"},
        CommandCase{"CopyAllReversedOfNone", Copy(4), {}, 0, {}, 0, kNoLines, "Add line"},
        CommandCase{"RemoveOfNone", kRemove, {}, 0, {}, 0, "Can't remove line.", "", MsgIcon::Information},
        CommandCase{"EditOfNone", kEdit, {}, 0, {}, 0, "No items to edit", "Edit"}),
    testing::PrintToStringParamName());

struct LimitCase {
    const char* name;
    int linesBefore;
    Run run;
    friend void PrintTo(const LimitCase& c, std::ostream* os) { *os << c.name; }
};

class AtTheLineLimit : public LinesTest, public testing::WithParamInterface<LimitCase> {};

TEST_P(AtTheLineLimit, AddingStopsAtTheLimitWithOneMessage) {
    FillTo(GetParam().linesBefore);
    Script().SetLineText(GetParam().linesBefore, "last");
    GetParam().run(*window, dialogs);
    EXPECT_EQ(Script().Count(), kMaxLines);
    EXPECT_EQ(Script().LineAt(GetParam().linesBefore).Text, "last") << "the lines there stay";
    ASSERT_EQ(dialogs.Messages().size(), 1u);
    EXPECT_EQ(dialogs.Messages()[0].title, u"Line limit reached"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, AtTheLineLimit,
    testing::Values(LimitCase{"Add", kMaxLines, kAfter}, LimitCase{"CopySelected", kMaxLines, Copy(1)},
                    LimitCase{"CopyTimes", kMaxLines - 2, Times(u"5"_s)},
                    LimitCase{"CopyAll", 20000, Copy(3)}, LimitCase{"CopyAllReversed", 20000, Copy(4)},
                    LimitCase{"Paste", kMaxLines, [](MainWindow& w, ScriptedDialogs&) { w.PasteLine(); }}),
    testing::PrintToStringParamName());

}  // namespace
}  // namespace flickerscribe::ui::testing_support
