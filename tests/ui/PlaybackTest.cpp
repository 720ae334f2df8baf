#include <QTest>
#include <QTimer>

#include "MainWindowFixture.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui::testing_support {
namespace {

// Playback driven tick by tick: ShowNextFrame is called directly, so the test
// decides when a tick comes.
class Playback : public MainWindowTest {
protected:
    QAction* Play() const { return Named(u"btnpreview"_s); }

    void ExpectStopped() {
        EXPECT_EQ(Play()->text(), u"Play"_s);
        EXPECT_EQ(Play()->icon().cacheKey(), playIcon_);
        EXPECT_TRUE(Named(u"btnadd"_s)->isEnabled());
        EXPECT_TRUE(Named(u"btnremove"_s)->isEnabled());
        EXPECT_FALSE(window->Playing());
        EXPECT_FALSE(window->PreviewBusy());
    }

    void ExpectRunning() {
        EXPECT_EQ(Play()->text(), u"Stop"_s);
        EXPECT_NE(Play()->icon().cacheKey(), playIcon_);
        EXPECT_FALSE(Play()->icon().isNull());
        EXPECT_FALSE(Named(u"btnadd"_s)->isEnabled());
        EXPECT_FALSE(Named(u"btnremove"_s)->isEnabled());
        EXPECT_TRUE(window->Playing());
        EXPECT_TRUE(window->PreviewBusy());
        // Every other entry stays live.
        for (const QString& name : {u"btnnew"_s, u"btnopen"_s, u"btnsave"_s, u"btnedit"_s, u"btnwizard"_s,
                                    u"btngenerate"_s, u"mnuEditCut"_s, u"mnuEditPaste"_s, u"mnuFileNew"_s})
            EXPECT_TRUE(Named(name)->isEnabled()) << name.toStdString();
    }

    void SetUp() override {
        MainWindowTest::SetUp();
        playIcon_ = Play()->icon().cacheKey();
    }

    qint64 playIcon_ = 0;
};

struct EmptyListCase {
    const char* name;
    MsgAnswer answer;
    friend void PrintTo(const EmptyListCase& c, std::ostream* os) { *os << c.name; }
};

class PlaybackOfNothing : public Playback, public testing::WithParamInterface<EmptyListCase> {};

TEST_P(PlaybackOfNothing, ShowsTheMessageAndStaysStoppedWhateverTheAnswer) {
    dialogs.QueueMessageAnswer(GetParam().answer);
    window->TogglePlayback();
    ASSERT_EQ(dialogs.Messages().size(), 1u);
    const DialogCall message = dialogs.Messages()[0];
    EXPECT_EQ(message.text, u"There is no animation to play!"_s);
    EXPECT_EQ(message.title, u"Preview Animation"_s);
    EXPECT_EQ(message.icon, MsgIcon::Exclamation);
    EXPECT_EQ(message.buttons, MsgButtons::OkCancel);
    EXPECT_EQ(message.parent, window.get());
    ExpectStopped();
    EXPECT_EQ(PaneText(), "Preview");
}

INSTANTIATE_TEST_SUITE_P(Answers, PlaybackOfNothing,
                         testing::Values(EmptyListCase{"Ok", MsgAnswer::Ok},
                                         EmptyListCase{"Cancel", MsgAnswer::Cancel}),
                         testing::PrintToStringParamName());

TEST_F(Playback, ShowsOneLinePerTickAndStopsWithTheLast) {
    AddLines({"one", "two", "three"});
    window->SetPreview();
    window->TogglePlayback();
    ExpectRunning();
    EXPECT_EQ(PaneText(), "one") << "nothing changes before the first tick";
    const char* frames[] = {"one", "two", "three"};
    for (int tick = 0; tick < 3; ++tick) {
        SCOPED_TRACE(tick);
        if (tick > 0) ExpectRunning();
        window->ShowNextFrame();
        EXPECT_EQ(PaneText(), frames[tick]);
    }
    ExpectStopped();
    EXPECT_EQ(PaneText(), "three") << "the last frame stays";
    EXPECT_TRUE(dialogs.Calls().empty());
}

TEST_F(Playback, ALineOfItsOwnStopsInTheTickThatShowsIt) {
    AddLines({"^4solo"});
    window->TogglePlayback();
    window->ShowNextFrame();
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"solo", Rgb(0, 0, 255)}}));
    ExpectStopped();
}

TEST_F(Playback, StopMidwayKeepsTheFrameAndTheNextPlayStartsAtTheTop) {
    AddLines({"1", "2", "3", "4", "5"});
    window->TogglePlayback();
    window->ShowNextFrame();
    window->ShowNextFrame();
    window->TogglePlayback();
    ExpectStopped();
    EXPECT_EQ(PaneText(), "2");
    window->TogglePlayback();
    window->ShowNextFrame();
    EXPECT_EQ(PaneText(), "1");
}

TEST_F(Playback, FramesShowInTheirColoursAndTimeDoesNotMatter) {
    ASSERT_TRUE(Script().AppendLine("^1a^2b", "5", "[none]"));
    ASSERT_TRUE(Script().AppendLine("^2c", "99", "[none]"));
    window->TogglePlayback();
    window->ShowNextFrame();
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"a", kRed}, {"b", kGreen}}));
    window->ShowNextFrame();
    EXPECT_EQ(PaneRuns(), (std::vector<ColouredRun>{{"c", kGreen}}));
    ExpectStopped();
}

struct ShrinkCase {
    const char* name;
    int removeFromEnd;  // lines removed after the second frame; -1 empties the list
    friend void PrintTo(const ShrinkCase& c, std::ostream* os) { *os << c.name; }
};

class PlaybackOfAShrinkingList : public Playback, public testing::WithParamInterface<ShrinkCase> {};

TEST_P(PlaybackOfAShrinkingList, StopsAtTheNextTickWithoutAWord) {
    AddLines({"1", "2", "3", "4"});
    window->TogglePlayback();
    window->ShowNextFrame();
    window->ShowNextFrame();
    if (GetParam().removeFromEnd < 0) {
        window->NewAnimation();
    } else {
        for (int i = 0; i < GetParam().removeFromEnd; ++i) Script().RemoveLine(Script().Count());
    }
    ExpectRunning();
    window->ShowNextFrame();
    ExpectStopped();
    EXPECT_EQ(PaneText(), "2") << "a stop draws nothing";
    EXPECT_TRUE(dialogs.Calls().empty());
}

INSTANTIATE_TEST_SUITE_P(Cases, PlaybackOfAShrinkingList,
                         testing::Values(ShrinkCase{"Emptied", -1}, ShrinkCase{"ShorterThanThePlace", 2}),
                         testing::PrintToStringParamName());

TEST_F(Playback, AListThatGrowsPlaysOnToItsNewEnd) {
    AddLines({"1", "2"});
    window->TogglePlayback();
    window->ShowNextFrame();
    AddLines({"3"});
    window->ShowNextFrame();
    ExpectRunning();
    window->ShowNextFrame();
    EXPECT_EQ(PaneText(), "3");
    ExpectStopped();
}

TEST_F(Playback, SetPreviewWhilePlayingStaysBusyAndLeavesTheLinesAlone) {
    AddLines({"^1one", "two", "three"});
    Script().SelectLine(2);
    const std::vector<AnimationLine> before{Script().LineAt(1), Script().LineAt(2), Script().LineAt(3)};
    window->TogglePlayback();
    window->ShowNextFrame();
    window->ShowClickedLine(3);
    EXPECT_TRUE(window->PreviewBusy());
    EXPECT_EQ(PaneText(), "three") << "the clicked line shows until the next tick";
    window->ShowNextFrame();
    EXPECT_EQ(PaneText(), "two");
    window->ShowNextFrame();
    ExpectStopped();
    EXPECT_EQ(Script().SelectedIndex(), 3) << "playback neither moves nor reads the selection";
    EXPECT_EQ((std::vector<AnimationLine>{Script().LineAt(1), Script().LineAt(2), Script().LineAt(3)}),
              before);
}

TEST_F(Playback, TheToolbarButtonStartsAndStops) {
    AddLines({"a", "b"});
    window->RunToolbarCommand(u"btnpreview"_s);
    ExpectRunning();
    window->RunToolbarCommand(u"btnpreview"_s);
    ExpectStopped();
}

// The real timer: three lines play in about 300 ms and stop by themselves.
TEST_F(Playback, TheTimerPlaysTheWholeListOnce) {
    AddLines({"1", "2", "3"});
    std::vector<std::string> frames;
    QObject::connect(window->PaneEdit(), &QTextEdit::textChanged, window.get(), [&] {
        if (window->Playing()) frames.push_back(PaneText());
    });
    window->TogglePlayback();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->Playing(); }, 5000));
    EXPECT_EQ(frames, (std::vector<std::string>{"1", "2", "3"}));
    ExpectStopped();
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
