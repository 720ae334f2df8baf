// Undo and Redo of every change, and the last animation kept between runs.

#include "MainWindowFixture.h"
#include "ui/AnimationHistory.h"

namespace flickerscribe::ui::testing_support {
namespace {

class History : public MainWindowTest {
public:
    void SetUp() override {
        keptAnimation = PathOf(u"kept/last-animation.fsq"_s);
        MainWindowTest::SetUp();
    }
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
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Lines(), undone[2]);
}

// A failed Open, a selection alone and Cancel make no step; while playback runs, Undo and Redo wait.
TEST_F(History, NothingChangedIsNoStepAndPlaybackWaits) {
    Show();
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

    // A removed line is kept whole, its time too.
    AnimationScript one;
    AnimationHistory kept(one);
    ASSERT_TRUE(one.AppendLine("a", std::string(1 << 20, '1'), "[none]"));
    kept.RemoveLine(u"Remove"_s, 1);
    EXPECT_GE(kept.KeptBytes(), std::size_t{1} << 20);
    EXPECT_LT(kept.KeptBytes(), std::size_t{2} << 20);
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
