// Undo and Redo of every change, and the last animation kept between runs.

#include <csignal>

#include "MainWindowFixture.h"
#include "ui/common/AnimationHistory.h"
#include "ui/common/TerminationSignals.h"

namespace flickerscribe::ui::testing_support {
namespace {

class History : public MainWindowTest {
public:
    void SetUp() override {
        keptFolder = PathOf(u"kept"_s);
        MainWindowTest::SetUp();
    }
    // Ctrl and a key in the list, with the window active again after a dialog.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        Key(key, modifiers);
    }
};

// Typing into one line is one step until the selection moves or a command
// runs, even when the selection comes back; two lines are never one step.
TEST_F(History, TypingMergesUntilTheSelectionMovesOrACommandRuns) {
    Start(kABC, 1);
    Show();
    QTest::keyClicks(PaneEdit(), u"12"_s);
    Press(Qt::Key_Down, {});
    QTest::keyClicks(PaneEdit(), u"3"_s);
    QTest::keyClicks(PaneEdit(), u"4"_s);
    Press(Qt::Key_Up, {});
    QTest::keyClicks(PaneEdit(), u"0"_s);
    Press(Qt::Key_Down, {});
    Trigger(u"btncopylast"_s);
    QTest::keyClicks(PaneEdit(), u"5"_s);
    const TextTimes typed = {"A120/10", "B345/20", "C/30", "B34/20"};
    EXPECT_EQ(Lines(), typed);
    const TextTimes undone[] = {{"A120/10", "B34/20", "C/30", "B34/20"},
                                {"A120/10", "B34/20", "C/30"},
                                {"A12/10", "B34/20", "C/30"},
                                {"A12/10", "B/20", "C/30"},
                                kABC};
    for (const TextTimes& expected : undone) {  // from the pane, whose own undo must not answer
        QTest::keyClick(PaneEdit(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Lines(), expected);
    }
    EXPECT_FALSE(named(u"mnuEditUndo"_s)->isEnabled());
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Lines(), undone[3]);
}

// At most 100 steps, and at most 64 MB of kept lines: the oldest steps go.
TEST(AnimationHistoryLimits, TheOldestStepsGoFirst) {
    AnimationScript script;
    AnimationHistory history(script);
    ASSERT_TRUE(script.AppendLine("a", "15", "[none]"));
    for (int i = 0; i <= AnimationHistory::kMaxSteps; ++i) history.setText(u"Edit"_s, 1, std::to_string(i));
    EXPECT_EQ(history.undoableSteps(), AnimationHistory::kMaxSteps);
    // Texts of 1 MB: each step keeps 2 MB, and 64 MB hold 32 of them; a step
    // that goes lets go of both its texts.
    for (int i = 0; i < 40; ++i) history.setText(u"Edit"_s, 1, std::string(1 << 20, char('a' + i % 2)));
    EXPECT_LE(history.keptBytes(), AnimationHistory::kMaxBytes);
    EXPECT_EQ(history.undoableSteps(), 32);

    // A step larger than the whole cap stays while it is the newest: New over
    // a huge list can be taken back.
    const std::vector<AnimationLine> huge(kMaxLines, AnimationLine{std::string(2100, 'h'), "15", "[none]"});
    history.replaceLines(u"Open"_s, [&](AnimationScript& s) { s.ExchangeLines(huge, 1); });
    history.replaceLines(u"New"_s, [](AnimationScript& s) { s.ClearLines(); });
    ASSERT_TRUE(history.canUndo());
    history.undo();
    EXPECT_EQ(script.Count(), kMaxLines);
    history.redo();
    EXPECT_EQ(script.Count(), 0);
}

// --- the animations kept

// A later run reopens the newest of another run, as one step; a run that changed
// nothing keeps nothing; the menu lists what reads whole, newest first.
TEST_F(History, EachRunKeepsItsOwnAnimationAndALaterRunGetsThemBack) {
    EXPECT_FALSE(named<QMenu>(u"mnuFileKept"_s)->isEnabled() || named(u"mnuFileSave"_s)->isEnabled());
    Show();
    Trigger(u"btnadd"_s);
    window->close();
    EXPECT_EQ(KeptFiles().size(), 1);

    MakeWindow();
    window->close();
    EXPECT_EQ(KeptFiles().size(), 1) << "a run that changed nothing";

    // Two at once; the first is kept last. Garbage and a file cut short are no
    // kept animations.
    MakeWindow();
    AnimationScript otherAnimation;
    auto other = std::make_unique<MainWindow>(otherAnimation, dialogs, store, keptFolder);
    EXPECT_EQ(script().Count(), 0) << "the program starts empty";
    WriteBytes(PathOf(u"kept/kept-garbage.fsq"_s), "\x01\x02 no animation");
    WriteBytes(PathOf(u"kept/kept-cut.fsq"_s), "#v050#\r\nA\r\n15\r\n[none]\r\nB\r\n15\r\n");
    WriteBytes(PathOf(u"two.fsq"_s), "#v050#\r\n^1Two & more\r\n20\r\n[none]\r\nx\r\n15\r\n[none]\r\n");
    other->openAnimationFile(PathOf(u"two.fsq"_s));
    other->close();
    emit named<QMenu>(u"mnuFile"_s)->aboutToShow();  // which readies Reopen
    ASSERT_TRUE(named(u"mnuFileReopen"_s)->isEnabled());
    Trigger(u"mnuFileReopen"_s);
    EXPECT_EQ(Lines(), TextTimes({"^1Two & more/20", "x/15"})) << "the newest, the other program's";
    window->close();
    EXPECT_EQ(KeptFiles().size(), 5);

    MakeWindow();
    Show();
    emit named<QMenu>(u"mnuFile"_s)->aboutToShow();
    for (int shown = 0; shown < 2; ++shown)
        emit named<QMenu>(u"mnuFileKept"_s)->aboutToShow();  // opened twice
    QStringList captions;
    for (QAction* entry : named<QMenu>(u"mnuFileKept"_s)->actions())
        captions << entry->text().section(u" - "_s, 1);
    EXPECT_EQ(captions,
              (QStringList{u"2 lines - Two && more"_s, u"2 lines - Two && more"_s, u"1 line - Text"_s}));
    named<QMenu>(u"mnuFileKept"_s)->actions().back()->trigger();
    EXPECT_EQ(Lines(), TextTimes{"Text/15"});
    EXPECT_TRUE(dialogs.Asked().empty() && named(u"mnuEditUndo"_s)->isEnabled()) << "a step, no question";
}

// Work without a pause is kept one interval after the first change not yet kept.
TEST_F(History, WorkWithoutAPauseIsKeptInTime) {
    named<QTimer>(u"timKeep"_s)->setInterval(100);
    Start({"a/15"});
    int changes = 0;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            Trigger(u"btncopylast"_s);
            ++changes;
            return !KeptFiles().isEmpty();
        },
        3000));
    EXPECT_LT(changes, 250);
}

// Only the last runs' animations stay; this run's is one of them.
TEST_F(History, TheFolderHoldsTheLastTenRuns) {
    ASSERT_TRUE(QDir().mkpath(keptFolder));
    for (int run = 1; run <= 12; ++run) {
        const QString path = PathOf(u"kept/kept-old-%1.fsq"_s.arg(run, 2, 10, QChar(u'0')));
        WriteBytes(path, "#v050#\r\n");
        SetAge(path, 100 - run);
    }
    Trigger(u"btnadd"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(KeptFiles().size(), 12) << "kept within the interval, not at once";
    Tick(u"timKeep"_s);
    const QStringList files = KeptFiles();
    ASSERT_EQ(files.size(), 10);
    EXPECT_TRUE(files.front().contains(u"kept-2"_s)) << "this run's, named by its date";
    EXPECT_TRUE(files.back().endsWith(u"kept-old-04.fsq"_s));
}

// A failed keep is said in the window (no message box) and tried again, at the end too.
TEST_F(History, AKeptFileThatCantBeWrittenIsSaidAndTriedAgain) {
    WriteBytes(keptFolder, "a file where the folder should be");
    MakeWindow();
    Show();
    named<QTimer>(u"timKeep"_s)->setInterval(50);
    Trigger(u"btnadd"_s);
    auto* problem = window->findChild<QLabel*>(u"lblKeepProblem"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return problem = window->findChild<QLabel*>(u"lblKeepProblem"_s); }));
    EXPECT_TRUE(problem->isVisible());
    EXPECT_TRUE(problem->text().startsWith(u"Your work could not be kept"_s))
        << problem->text().toStdString();
    QFile::remove(keptFolder);
    ASSERT_TRUE(QTest::qWaitFor([&] { return KeptFiles().size() == 1; }));
    EXPECT_FALSE(problem->isVisible());

    // Failing at the end too, it is tried again while the program still runs.
    Trigger(u"btnadd"_s);
    QDir(keptFolder).removeRecursively();
    WriteBytes(keptFolder, "in the way again");
    window->close();
    EXPECT_TRUE(problem->text().startsWith(u"Your work could not be kept"_s));
    QFile::remove(keptFolder);
    ASSERT_TRUE(QTest::qWaitFor([&] { return KeptFiles().size() == 1; }));
    EXPECT_EQ(ReadBytes(KeptFiles()[0]), "#v050#\r\nText\r\n15\r\n[none]\r\nText\r\n15\r\n[none]\r\n");
    EXPECT_TRUE(dialogs.Calls().empty());
}

// Ended by a signal (a shutdown, a logout), the program keeps the animation.
TEST_F(History, ASignalToEndKeepsTheAnimation) {
#ifdef _WIN32
    GTEST_SKIP() << "Windows ends a program through its window, not by SIGTERM or SIGHUP";
#else
    for (const int signal : {SIGTERM, SIGHUP}) {
        MakeWindow();
        endOnTerminationSignals(window.get(), [this] { window->exit(); });
        Show();
        Trigger(u"btnadd"_s);
        const qsizetype before = KeptFiles().size();
        ::raise(signal);
        EXPECT_TRUE(QTest::qWaitFor([&] { return KeptFiles().size() == before + 1; })) << signal;
        EXPECT_FALSE(window->isVisible());
    }
#endif
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
