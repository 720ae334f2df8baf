// Undo and Redo of every change, and the last animation kept between runs.

#include "MainWindowFixture.h"
#include "ui/AnimationHistory.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui::testing_support {
namespace {

// What the user sees of the animation: its lines, the selected one and the pane.
using Seen = std::tuple<TextTimes, int, std::string>;

class History : public MainWindowTest {
public:
    void SetUp() override {
        keptAnimation = PathOf(u"kept/last-animation.fsq"_s);
        MainWindowTest::SetUp();
    }
    Seen Now() { return {Lines(), Script().SelectedIndex(), PaneText()}; }
    // Ctrl and a key in the list, with the window active again after a dialog.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        Key(key, modifiers);
    }
    // Picks the entry of a menu, which readies its entries as it opens.
    void Choose(const char* menu, const char* entry) {
        emit Named<QMenu>(QString::fromLatin1(menu))->aboutToShow();
        ASSERT_TRUE(Named(QString::fromLatin1(entry))->isEnabled()) << entry;
        Trigger(QString::fromLatin1(entry));
    }
    // Runs `act` on the modal window that the next command opens.
    void WhenModal(std::function<void(QWidget*)> act) {
        QTimer::singleShot(0, window.get(), [act] {
            if (QWidget* modal = QApplication::activeModalWidget()) act(modal);
        });
    }
};

struct StepCase {
    const char* name;
    std::function<void(History&)> command;
    const char* step;  // the name Undo gives it
    friend void PrintTo(const StepCase& c, std::ostream* os) { *os << c.name; }
};

class EveryChange : public History, public testing::WithParamInterface<StepCase> {};

// Each change is one step: Ctrl+Z and the menu's Undo bring back the lines,
// the selected line and the pane as they were; Ctrl+Y, Ctrl+Shift+Z and Redo
// bring back the change. (The commands over lines have theirs in the main
// window's table.)
TEST_P(EveryChange, IsOneStepThatUndoAndRedoTakeBackAndDoAgain) {
    Start(kABC, 2);
    Show();
    const Seen before = Now();
    QAction* undo = Named(u"mnuEditUndo"_s);
    QAction* redo = Named(u"mnuEditRedo"_s);
    EXPECT_FALSE(undo->isEnabled());
    GetParam().command(*this);
    const Seen after = Now();
    ASSERT_NE(after, before);
    EXPECT_EQ(undo->text(), u"Undo "_s + QString::fromLatin1(GetParam().step));

    Press(Qt::Key_Z);
    EXPECT_EQ(Now(), before);
    EXPECT_FALSE(undo->isEnabled()) << "one step, not more";
    EXPECT_TRUE(redo->isEnabled());
    Press(Qt::Key_Y);
    EXPECT_EQ(Now(), after);
    undo->trigger();
    EXPECT_EQ(Now(), before);
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Now(), after);
    redo->trigger();
    EXPECT_EQ(Now(), after) << "nothing more to redo";
}

void Trigger(History& t, const char* name) {
    t.Trigger(QString::fromLatin1(name));
}
std::function<void(History&)> Action(const char* name) {
    return [name](History& t) { Trigger(t, name); };
}

// The command, given a file of these bytes.
std::function<void(History&)> OpenFile(const char* command, const char* bytes) {
    return [=](History& t) {
        WriteBytes(t.PathOf(u"file"_s), bytes);
        t.dialogs.QueueOpen(t.PathOf(u"file"_s));
        Trigger(t, command);
    };
}

INSTANTIATE_TEST_SUITE_P(
    Commands, EveryChange,
    testing::Values(
        StepCase{"EditTime",
                 [](History& t) {
                     t.WhenModal([](QWidget* edit) {
                         edit->findChild<QLineEdit*>(u"txtTime"_s)->setText(u"25"_s);
                         QTest::keyClick(edit->findChild<QLineEdit*>(u"txtTime"_s), Qt::Key_Return);
                     });
                     Trigger(t, "btnedit");
                 },
                 "Edit time"},
        StepCase{"InPlaceEdit",
                 [](History& t) {
                     LineListView* list = t.window->LineList();
                     list->edit(list->model()->index(1, 0));
                     auto* editor = list->viewport()->findChild<QLineEdit*>();
                     QTest::keyClicks(editor, u"^2x"_s);
                     QTest::keyClick(editor, Qt::Key_Return);
                     [[maybe_unused]] bool done =
                         QTest::qWaitFor([&] { return t.Script().LineAt(2).Text != "B"; });
                 },
                 "Edit text"},
        StepCase{"Colour",
                 [](History& t) {
                     t.window->ToggleColours();
                     t.window->PreviewPane().SetSelStart(0);
                     t.window->PreviewPane().SetSelLength(1);
                     QTest::mouseClick(t.Named<QPushButton>(u"cmdColor_0"_s), Qt::LeftButton);
                 },
                 "Colour"},
        StepCase{"Typing", [](History& t) { QTest::keyClicks(t.window->PaneEdit(), u"xyz"_s); }, "Typing"},
        StepCase{"New", Action("btnnew"), "New"},
        StepCase{"Open", OpenFile("mnuFileOpen", "#v050#\r\n^1One\r\n9\r\n[none]\r\n"), "Open"},
        StepCase{"Import", OpenFile("mnuFileImport", "set name \"x\"\nwait 7\n"), "Import"},
        StepCase{"Wizard",
                 [](History& t) {
                     Trigger(t, "btnwizard");
                     auto* wizard = t.window->findChild<WizardDialog*>();
                     for (int page = 1; page < WizardDialog::kPageCount; ++page) wizard->NextPage();
                     wizard->findChild<QComboBox*>(u"cmbEffects"_s)->setCurrentIndex(0);
                     wizard->AddEffect();
                     wizard->NextPage();
                 },
                 "Wizard"},
        StepCase{"SimpleEdit",
                 [](History& t) {
                     t.WhenModal([](QWidget* edit) {
                         QTest::keyClicks(edit->findChild<QTextEdit*>(u"txtPreview"_s), u"one"_s);
                         QTest::mouseClick(edit->findChild<QPushButton*>(u"cmdSave"_s), Qt::LeftButton);
                         edit->close();
                     });
                     Trigger(t, "mnuEditSimple");
                 },
                 "Simple edit"},
        StepCase{"ReopenLastAnimation",
                 [](History& t) {
                     QDir().mkpath(QFileInfo(t.keptAnimation).absolutePath());
                     WriteBytes(t.keptAnimation, "#v050#\r\nkept\r\n15\r\n[none]\r\n");
                     t.Choose("mnuFile", "mnuFileReopen");
                 },
                 "Reopen last animation"}),
    testing::PrintToStringParamName());

// Typing into one line is one step until the selection moves or another
// command runs; then the next keystrokes make a step of their own.
TEST_F(History, TypingMergesUntilTheSelectionMovesOrACommandRuns) {
    Start(kABC, 1);
    Show();
    QTest::keyClicks(window->PaneEdit(), u"12"_s);
    Press(Qt::Key_Down, {});
    QTest::keyClicks(window->PaneEdit(), u"3"_s);
    QTest::keyClicks(window->PaneEdit(), u"4"_s);
    Trigger(u"btncopylast"_s);
    QTest::keyClicks(window->PaneEdit(), u"5"_s);
    const TextTimes typed = {"A12/10", "B345/20", "C/30", "B34/20"};
    EXPECT_EQ(Lines(), typed);
    const TextTimes undone[] = {{"A12/10", "B34/20", "C/30", "B34/20"},
                                {"A12/10", "B34/20", "C/30"},
                                {"A12/10", "B/20", "C/30"},
                                kABC};
    for (const TextTimes& expected : undone) {
        Press(Qt::Key_Z);
        EXPECT_EQ(Lines(), expected);
    }
    EXPECT_FALSE(Named(u"mnuEditUndo"_s)->isEnabled());
}

// Cancel, a command on an empty list, a failed Open and a selection alone
// make no step; while playback runs, Undo and Redo wait.
TEST_F(History, NothingChangedIsNoStepAndPlaybackWaits) {
    Show();
    Trigger(u"btncopylast"_s);  // "There are no lines to copy"
    Trigger(u"btnnew"_s);
    dialogs.QueueOpen(PathOf(u"missing.fsq"_s));
    Trigger(u"mnuFileOpen"_s);
    Start(kABC, 1);
    Press(Qt::Key_Down, {});
    WhenModal([](QWidget* edit) { edit->close(); });
    Trigger(u"btnedit"_s);
    EXPECT_EQ(window->History().UndoableSteps(), 0);
    Trigger(u"btnadd"_s);
    Trigger(u"btnpreview"_s);
    EXPECT_FALSE(Named(u"mnuEditUndo"_s)->isEnabled());
    Press(Qt::Key_Z);
    EXPECT_EQ(Script().Count(), 4);
    Trigger(u"btnpreview"_s);
    EXPECT_TRUE(Named(u"mnuEditUndo"_s)->isEnabled());
}

// At most 100 steps, and at most 64 MB of kept lines: the oldest steps go.
TEST(AnimationHistoryLimits, TheOldestStepsGoFirst) {
    AnimationScript script;
    AnimationHistory history(script);
    ASSERT_TRUE(script.AppendLine("a", "15", "[none]"));
    for (int i = 0; i <= AnimationHistory::kMaxSteps; ++i) history.SetText(u"Edit"_s, 1, std::to_string(i));
    EXPECT_EQ(history.UndoableSteps(), AnimationHistory::kMaxSteps);
    // Texts of 1 MB: each step keeps 2 MB, and 64 MB hold 32 of them; a step
    // that goes lets go of both its texts.
    for (int i = 0; i < 40; ++i) history.SetText(u"Edit"_s, 1, std::string(1 << 20, char('a' + i % 2)));
    EXPECT_LE(history.KeptBytes(), AnimationHistory::kMaxBytes);
    EXPECT_EQ(history.UndoableSteps(), 32);

    // A full list of long texts, then none, twice: each step that empties the
    // list keeps 36 MB, and the second of them pushes out the first, and with
    // it every older step.
    const std::vector<AnimationLine> big(kMaxLines, AnimationLine{std::string(1000, 'x'), "15", "[none]"});
    for (int i = 0; i < 4; ++i) {
        history.ReplaceLines(u"Replace"_s, [&](AnimationScript& s) {
            s.ExchangeLines(i % 2 == 0 ? big : std::vector<AnimationLine>{}, 1);
        });
    }
    EXPECT_LE(history.KeptBytes(), AnimationHistory::kMaxBytes);
    EXPECT_EQ(history.UndoableSteps(), 2);
    history.Undo();
    history.Undo();
    EXPECT_FALSE(history.CanUndo());
    EXPECT_EQ(script.Count(), 0) << "back to the list after the second replacement";
    history.Redo();
    EXPECT_EQ(script.Count(), kMaxLines);
}

// --- the last animation kept

TEST_F(History, TheAnimationIsKeptAtCloseAndAfterAChangeAndReopensAsOneStep) {
    Show();
    Trigger(u"btnadd"_s);
    window->close();
    EXPECT_EQ(ReadBytes(keptAnimation), "#v050#\r\nText\r\n15\r\n[none]\r\n");

    MakeWindow();
    Show();
    EXPECT_EQ(Script().Count(), 0) << "the program starts empty";
    Named<QTimer>(u"timKeep"_s)->setInterval(10);
    Choose("mnuFile", "mnuFileReopen");
    Trigger(u"btncopylast"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ReadBytes(keptAnimation).size() > 30; }));
    EXPECT_EQ(ReadBytes(keptAnimation), "#v050#\r\nText\r\n15\r\n[none]\r\nText\r\n15\r\n[none]\r\n");
    Press(Qt::Key_Z);
    Press(Qt::Key_Z);
    EXPECT_EQ(Script().Count(), 0) << "the reopen was one step";
    EXPECT_TRUE(dialogs.Asked().empty());
}

TEST_F(History, AKeptFileThatCantBeWrittenIsNoMessage) {
    WriteBytes(PathOf(u"kept"_s), "a file where the folder should be");
    MakeWindow();
    Show();
    Trigger(u"btnadd"_s);
    window->close();
    EXPECT_EQ(ReadBytes(keptAnimation), "<no file>");
    EXPECT_TRUE(dialogs.Calls().empty());
    EXPECT_FALSE(Named(u"mnuFileReopen"_s)->isEnabled());
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
