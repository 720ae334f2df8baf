// The main window: commands over lines, the clipboard, the pane, playback.

#include "MainWindowFixture.h"

namespace flickerscribe::ui::testing_support {
namespace {

using MainWindowCase = MainWindowTest;

// --- commands, clipboard, list keys; from A/10 B/20 C/30, B selected, unless a row says.

using Act = std::function<void(MainWindowTest&)>;
Act Press(const char* name) {
    return [name](MainWindowTest& t) { t.Trigger(QString::fromLatin1(name)); };
}
Act Times(std::optional<QString> answer) {  // "Copy selected line x times"; nullopt: Cancel
    return [answer](MainWindowTest& t) {
        t.dialogs.QueueInput(answer);
        t.Trigger(u"btncopylastx"_s);
    };
}
Act Paste(std::optional<QString> text) {  // nullopt: a clipboard that can't be read
    return [text](MainWindowTest& t) {
        t.dialogs.clipboardUnreadable = !text;
        t.dialogs.clipboard = text.value_or(QString());
        t.Trigger(u"mnuEditPaste"_s);
    };
}
Act EditTime(QString time) {  // the Edit dialog, answered with this time
    return [time](MainWindowTest& t) {
        QTimer::singleShot(0, [time] {
            auto* box = QApplication::activeModalWidget()->findChild<QLineEdit*>(u"txtTime"_s);
            box->setText(time);
            QTest::keyClick(box, Qt::Key_Return);
        });
        t.Trigger(u"btnedit"_s);
    };
}
Act ListKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    return [key, modifiers](MainWindowTest& t) { t.Key(key, modifiers); };
}

struct CommandCase {
    const char* name;
    Act run;
    TextTimes expected;
    int selectedAfter;
    TextTimes start = kABC;
    int selected = 2;
    const char* asked = "";            // the messages, "title [icon]: text"
    const char* clipboard = "before";  // afterwards
    friend void PrintTo(const CommandCase& c, std::ostream* os) { *os << c.name; }
};

class Command : public MainWindowTest, public testing::WithParamInterface<CommandCase> {};

// The pane stays as it was while the selected line stays the same; a command
// that selects another line, Paste and a key in the list show it.
TEST_P(Command, ChangesTheList) {
    const CommandCase& c = GetParam();
    Start(c.start, c.selected);
    QAbstractItemModelTester model(List()->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    dialogs.clipboard = u"before"_s;
    {
        const QSignalBlocker quiet(PaneEdit());  // drawn by the test, no line's text
        RichPane pane = MainPane();
        RenderCodedText("marker", pane);
    }
    const auto shown = [this] {
        return script().Count() ? script().LineAt(script().SelectedIndex()).Text : "Preview";
    };
    const std::string before = shown();
    c.run(*this);
    EXPECT_EQ(Lines(), c.expected);
    EXPECT_EQ(script().SelectedIndex(), c.selectedAfter);
    EXPECT_EQ(List()->currentIndex().row(), c.selectedAfter - 1);
    // Paste and a key in the list redraw the pane in any case.
    const bool redrawn = std::string(c.name).starts_with("Paste") || std::string(c.name).starts_with("Key");
    std::string plain = script().Count() ? "" : "Preview";
    for (const ColouredRun& run : RenderRuns(shown())) plain += script().Count() ? run.text : "";
    EXPECT_EQ(PaneText(), shown() == before && !redrawn ? "marker" : plain);
    EXPECT_EQ(dialogs.Asked().join(u'|').toStdString(), c.asked);
    EXPECT_EQ(dialogs.clipboard.toStdString(), c.clipboard);
    // What each step takes back and does again, the end-to-end session checks.
    EXPECT_EQ(named(u"mnuEditUndo"_s)->isEnabled(), c.expected != c.start) << "a step only for a change";
}

TextTimes WithCopiesOfB(std::size_t copies) {
    TextTimes lines = kABC;
    lines.insert(lines.end(), copies, "B/20");
    return lines;
}
TextTimes WithPasted(const char* text) {
    return {"A/10", "B/20", std::string(text) + "/15", "C/30"};
}
const char* const kNoLines = "Add line [warning]: There are no lines to copy";
const TextTimes kAC = {"A/10", "C/30"};

INSTANTIATE_TEST_SUITE_P(
    Cases, Command,
    testing::Values(
        CommandCase{"AddAfterB", Press("btnadd"), {"A/10", "B/20", "Text/15", "C/30"}, 2},
        CommandCase{"AddBeforeB", Press("btnaddbefore"), {"A/10", "Text/15", "B/20", "C/30"}, 3},
        CommandCase{"AddAfterC", Press("btnaddafter"), {"A/10", "B/20", "C/30", "Text/15"}, 3, kABC, 3},
        CommandCase{"AddToEmpty", Press("btnaddbefore"), {"Text/15"}, 1, {}, 0},
        CommandCase{"RemoveB", Press("btnremove"), kAC, 2},
        CommandCase{"RemoveTheOnly", Press("btnremove"), {}, 0, {"A/10"}, 1},
        CommandCase{"CopySelected", Press("btncopylast"), WithCopiesOfB(1), 2},
        CommandCase{"CopyAll", Press("btncopyall"), {"A/10", "B/20", "C/30", "A/10", "B/20", "C/30"}, 2},
        CommandCase{
            "CopyAllBack", Press("btncopyallreverse"), {"A/10", "B/20", "C/30", "C/30", "B/20", "A/10"}, 2},
        CommandCase{"TwoTimes", Times(u"2"_s), WithCopiesOfB(2), 2},
        CommandCase{"WordTimes", Times(u"abc"_s), kABC, 2, kABC, 2,
                    "Error [stop]: Can't copy the selected line. Invalid input (abc)"},
        CommandCase{"TooManyTimes", Times(u"32768"_s), kABC, 2, kABC, 2,
                    "Error [stop]: Can't copy the selected line. Invalid input (32768)"},
        CommandCase{"CancelTimes", Times(std::nullopt), kABC, 2, kABC, 2,
                    "Error [stop]: Can't copy the selected line. Invalid input ()"},
        CommandCase{"CopySelectedOfNone", Press("btncopylast"), {}, 0, {}, 0, kNoLines},
        CommandCase{"CopyTimesOfNoneAsksNothing", Press("btncopylastx"), {}, 0, {}, 0, kNoLines},
        CommandCase{"EditTheOnly", EditTime(u"25"_s), {"A/25"}, 1, {"A/10"}, 1},
        CommandCase{"EditOfNone", Press("btnedit"), {}, 0, {}, 0, "Edit [warning]: No items to edit"},
        CommandCase{"Copy", Press("mnuEditCopy"), kABC, 2, kABC, 2, "", "B"},
        CommandCase{"Cut", Press("mnuEditCut"), kAC, 2, kABC, 2, "", "B"},
        CommandCase{"CutTheOnly", Press("mnuEditCut"), {}, 0, {"^1A/10"}, 1, "", "^1A"},
        CommandCase{"CutOfNone", Press("mnuEditCut"), {}, 0, {}, 0},
        CommandCase{"Paste", Paste(u" ^1x ^^ "_s), WithPasted(" ^1x ^^ "), 2, kABC, 2, "", " ^1x ^^ "},
        CommandCase{"PasteFirstLineOfCrLf", Paste(u"one\r\ntwo"_s), WithPasted("one"), 2, kABC, 2, "",
                    "one\r\ntwo"},
        CommandCase{"PasteWindowsCharacters", Paste(u"\u20ac\u00e9"_s), WithPasted("\x80\xE9"), 2, kABC, 2,
                    "", "\u20ac\u00e9"},
        CommandCase{
            "PasteBehindTheLast", Paste(u"D"_s), {"A/10", "B/20", "C/30", "D/15"}, 3, kABC, 3, "", "D"},
        CommandCase{"PasteIntoEmpty", Paste(u"^1Hi"_s), {"^1Hi/15"}, 1, {}, 0, "", "^1Hi"},
        CommandCase{"UnreadablePaste", Paste(std::nullopt), kABC, 2, kABC, 2, "", ""},
        CommandCase{"KeyDown", ListKey(Qt::Key_Down), kABC, 3, kABC, 2},
        CommandCase{"KeyDelete", ListKey(Qt::Key_Delete), kAC, 2},
        CommandCase{"KeyDeleteOfNone", ListKey(Qt::Key_Delete), {}, 0, {}, 0, " [info]: Can't remove line."}),
    testing::PrintToStringParamName());

// At the limit, adding stops there with one message.
TEST_F(MainWindowCase, AddingStopsAtTheLineLimitWithOneMessage) {
    const std::pair<int, Act> cases[] = {
        {kMaxLines, Press("btnadd")}, {kMaxLines, Press("btncopylast")},   {kMaxLines - 2, Times(u"5"_s)},
        {20000, Press("btncopyall")}, {20000, Press("btncopyallreverse")}, {kMaxLines, Paste(u"x"_s)}};
    for (const auto& [before, run] : cases) {
        MakeWindow();
        Start(TextTimes(std::size_t(before), "x/15"), before);
        const auto asked = dialogs.Asked().size();
        run(*this);
        EXPECT_EQ(script().Count(), kMaxLines);
        EXPECT_EQ(
            dialogs.Asked().mid(asked).join(u'|').toStdString(),
            "Line limit reached [warning]: An animation holds at most 32767 lines. The lines up to that "
            "limit are kept; the rest could not be added.");
    }
}

// --- editing in the pane

// Typing reaches the selected line at once in normal form, the caret behind it.
// A colour button colours the selection (which then ends), else what is typed
// next; an empty pane takes no colour.
TEST_F(MainWindowCase, EditsInThePaneReachTheLineInNormalForm) {
    const struct {
        const char* before;
        int start, length;  // the selection; -1: the caret at the end, where drawing leaves it
        int button;         // the colour clicked first; -1: none
        const char* typed;  // "\b" is Backspace, "\r" Enter
        const char* after;
    } cases[] = {
        {"^1ab^2cd", -1, 0, -1, "x", "^1ab^2cdx"},
        {"^0Hi^9you", -1, 0, -1, "!", "Hi^1you!"},
        {"", -1, 0, -1, "x", "^8x"},
        {"abc", 1, 0, -1, "^1", "a^1bc"},
        {"^1abcd", 2, 0, -1, "X", "^1abXcd"},
        {"^1abc", -1, 0, -1, "\b\b\b", ""},
        {"ab", 1, 0, -1, "\r", "ab"},
        {"abcd", 1, 2, 0, "", "a^1bc^7d"},
        {"abcd", 1, 2, 7, "", "a^8bc^7d"},
        {"^1abcd", 0, 1, 6, "", "a^1bcd"},
        {"ab", 2, 0, 1, "c", "ab^2c"},
        {"", 0, 0, 0, "x", "^8x"},
    };
    for (const auto& c : cases) {
        MakeWindow();
        Start({std::string(c.before) + "/30", "other/20"}, 1);
        RichPane pane = MainPane();
        if (c.start >= 0) {
            pane.SetSelStart(c.start);
            pane.SetSelLength(c.length);
        }
        const int caret = pane.SelStart();
        if (c.button >= 0) {
            Trigger(u"mnuEditShowColors"_s);
            QTest::mouseClick(named<QPushButton>(u"cmdColor_%1"_s.arg(c.button)), Qt::LeftButton);
            EXPECT_EQ(pane.SelLength(), 0);
        }
        const auto length = PaneText().size();
        QTest::keyClicks(PaneEdit(), QString::fromLatin1(c.typed));
        EXPECT_EQ(Lines(), TextTimes({std::string(c.after) + "/30", "other/20"}))
            << c.before << " " << c.typed;
        EXPECT_EQ(pane.SelStart(), caret + int(PaneText().size()) - int(length));
    }
}

// --- playback: one line a tick of 100 ms, once

TEST_F(MainWindowCase, PlaybackShowsEachLineOnceAndAStopForgetsThePlace) {
    Start({"^1one/5", "two/99", "three/15"}, 2);
    auto* timer = named<QTimer>(u"timAni"_s);
    QAction* play = named(u"btnpreview"_s);
    play->trigger();
    EXPECT_EQ(timer->interval(), 100);
    EXPECT_EQ(play->text(), u"Stop"_s);
    EXPECT_FALSE(named(u"btnadd"_s)->isEnabled() || named(u"btnremove"_s)->isEnabled());
    EXPECT_EQ(PaneText(), "two") << "nothing before the first tick";
    QTest::keyClicks(PaneEdit(), u"x"_s);
    for (const char* frame : {"^1one", "two"}) {
        Tick();
        EXPECT_EQ(PaneRuns(), RenderRuns(frame));
    }
    ClickLine(1);
    QTest::keyClicks(PaneEdit(), u"x"_s);
    EXPECT_EQ(PaneText(), "one") << "a click shows its line until the next tick, and takes no typing";
    Tick();
    EXPECT_EQ(PaneText(), "three") << "the last frame stays";
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(play->text(), u"Play"_s);
    EXPECT_TRUE(named(u"btnadd"_s)->isEnabled() && named(u"btnremove"_s)->isEnabled());
    EXPECT_EQ(Lines(), TextTimes({"^1one/5", "two/99", "three/15"})) << "playback changes no line";
    EXPECT_EQ(script().SelectedIndex(), 1);

    // A stop forgets the place; an emptied list ends playback.
    Trigger(u"btnpreview"_s);
    Tick();
    Tick();
    Trigger(u"btnpreview"_s);
    EXPECT_EQ(PaneText(), "two") << "a stop draws nothing";
    Trigger(u"btnpreview"_s);
    Tick();
    EXPECT_EQ(PaneText(), "one") << "the next Play starts again";
    Trigger(u"btnnew"_s);
    Tick();
    EXPECT_FALSE(Playing());
    EXPECT_TRUE(dialogs.Calls().empty());
    dialogs.QueueMessageAnswer(MsgAnswer::Cancel);
    Trigger(u"btnpreview"_s);
    EXPECT_EQ(dialogs.Asked().join(u'|'), u"Preview Animation [warning]: There is no animation to play!"_s);
    EXPECT_FALSE(Playing());
    Start({"^2only/15"});
    Trigger(u"btnpreview"_s);
    Tick();
    EXPECT_EQ(PaneText(), "only") << "a single line plays too";
}

// The last frame of playback stays in the pane, but it is no line's text:
// whether playback ran to its end or was stopped, the user's click, key or
// colour brings the selected line back first, and typing edits that line.
TEST_F(MainWindowCase, AfterPlaybackThePaneEditsTheSelectedLineNotTheFrame) {
    Show();
    Trigger(u"mnuEditShowColors"_s);
    for (const bool stopped : {false, true}) {
        for (const char* gesture : {"click", "key", "colour"}) {
            const std::string shown = std::string(gesture) + (stopped ? " after Stop" : " at the end");
            Trigger(u"btnnew"_s);
            Start({"one/15", "two/15", "^3three/15"}, 2);
            PaneEdit()->setFocus();
            Trigger(u"btnpreview"_s);
            Tick();
            if (stopped) {
                Trigger(u"btnpreview"_s);
            } else {
                Tick();
                Tick();
            }
            ASSERT_FALSE(Playing()) << shown;
            EXPECT_EQ(PaneText(), stopped ? "one" : "three") << shown << ": the frame stays";
            if (gesture == std::string("click")) {
                QTest::mouseClick(PaneEdit()->viewport(), Qt::LeftButton);
                EXPECT_EQ(PaneText(), "two") << shown << ": the click shows the line";
            } else if (gesture == std::string("colour")) {
                MainPane().SetSelStart(0);
                MainPane().SetSelLength(2);
                QTest::mouseClick(named<QPushButton>(u"cmdColor_0"_s), Qt::LeftButton);
                EXPECT_EQ(Lines()[1], "two/15") << shown;
                PaneEdit()->setFocus();
            }
            QTest::keyClicks(PaneEdit(), u"x"_s);
            std::string text = script().LineAt(2).Text;
            EXPECT_EQ(text.size(), 4u) << shown << ": " << text;
            EXPECT_EQ(std::erase(text, 'x'), 1u) << shown;
            EXPECT_EQ(text, "two") << shown;
        }
    }
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
