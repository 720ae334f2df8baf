#include <gtest/gtest.h>

#include "EffectTestSupport.h"
#include "effects/EffectRun.h"

namespace flickerscribe::test {
namespace {

using L = std::vector<std::string>;

const auto kYes = [](const std::string&, const std::string&) { return true; };

TEST(EffectRun, RowsChainThroughTheRewrittenNameAndTag) {
    const struct {
        const char* name;
        const char* tag;
        bool reverse;
        std::vector<EffectRow> rows;
        L lines;
    } cases[] = {
        // Bounce strips the colours for the rows behind it and mirrors the
        // wave's lines in front of it.
        {"^1Ka^2t",
         "^4[QZT]",
         false,
         {{"Wave 2"}, {"Bounce", "1"}, {"Wave 2"}},
         {"^4[QZT]^1K", "^4[QZT]^1Ka", "^4[QZT]^1Ka^2t", "[QZT]Kat", "K[QZT]at", "Ka[QZT]t", "Kat[QZT]",
          "Ka[QZT]t", "K[QZT]at", "[QZT]Kat", "^4[QZT]^1Ka^2t", "^4[QZT]^1Ka", "^4[QZT]^1K", "[QZT]K",
          "[QZT]Ka", "[QZT]Kat"}},
        // The tag's protection goes with Bounce and comes back with the next wave.
        {"Kat",
         "[QZT]",
         true,
         {{"Wave 2"}, {"Bounce", "1"}, {"Wave 2"}},
         {"K^0[QZT]", "Ka^0[QZT]", "Kat^0[QZT]", "Kat[QZT]", "Ka[QZT]t", "K[QZT]at", "[QZT]Kat", "K[QZT]at",
          "Ka[QZT]t", "Kat[QZT]", "Kat^0[QZT]", "Ka^0[QZT]", "K^0[QZT]", "K^0[QZT]", "Ka^0[QZT]",
          "Kat^0[QZT]"}},
        // A skipped Bounce leaves the colours on.
        {"^1Ka", "", false, {{"Bounce", "0"}, {"Wave 2"}}, {"^1K", "^1Ka"}},
        // The second Wave forward colours a coloured name: nothing changes.
        {"^1Ka", "", false, {{"Wave forward"}, {"Wave forward"}}, {"^1K", " ^1a", "^1K", " ^1a"}},
        // Names are matched exactly; any other row makes nothing.
        {"Ka", "", false, {{"Wave 2"}, {"wave 2"}, {"Wave two"}, {"Wave 2"}}, {"K", "Ka", "K", "Ka"}},
        {"Ka", "[QZT]", false, {}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.name) + " / " + c.tag);
        AnimationScript script;
        FillWith(script, 3, "from before the run");
        const EffectRunResult result = RunEffectList(script, c.name, c.tag, c.reverse, c.rows, kYes);
        EXPECT_FALSE(result.lineLimitReached);
        EXPECT_FALSE(result.inputRefused);
        EXPECT_EQ(Texts(script), c.lines);
        EXPECT_EQ(script.SelectedIndex(), c.lines.empty() ? 0 : 1);
    }
}

TEST(EffectRun, AnEffectStopsAtTheFirstLineTheFullScriptRefuses) {
    const struct {
        EffectRow row;
        int roomLeft;
        EffectStatus status;
        L lastLines;  // the lines that went in before the script was full
    } cases[] = {
        {{"Wave forward"}, 2, EffectStatus::LineLimitReached, {"[QZT]^7K", "[QZT] ^7a"}},
        {{"Wave 2"}, 2, EffectStatus::LineLimitReached, {"[QZT]K", "[QZT]Ka"}},
        {{"Bounce", "1"}, 2, EffectStatus::LineLimitReached, {"[QZT]Kat", "K[QZT]at"}},
        // The forward pass fits and the mirror pass is refused at once.
        {{"Bounce", "1"}, 4, EffectStatus::LineLimitReached, {"K[QZT]at", "Ka[QZT]t", "Kat[QZT]"}},
        // Effects that make no line don't notice a full script.
        {{"Bounce", "0"}, 0, EffectStatus::Done, {"filler"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.row.Name + " " + c.row.Parameter1 + " with room for " + std::to_string(c.roomLeft));
        AnimationScript script;
        FillWith(script, kMaxLines - c.roomLeft);
        std::string name = "Kat";
        std::string tag = "[QZT]";
        EXPECT_EQ(ApplyEffect(script, name, c.row.Name, c.row.Parameter1, "0", tag, false, kYes), c.status);
        ASSERT_EQ(script.Count(), kMaxLines);
        const L texts = Texts(script);
        EXPECT_EQ(L(texts.end() - static_cast<std::ptrdiff_t>(c.lastLines.size()), texts.end()), c.lastLines);
    }
}

TEST(EffectRun, TheLineLimitEndsTheWholeRun) {
    AnimationScript script;
    int questions = 0;
    const auto ask = [&](const std::string&, const std::string&) { return ++questions, true; };
    const std::vector<EffectRow> rows = {{"Bounce", "12"}, {"Bounce", "5"}, {"Wave 2"}};
    const EffectRunResult result = RunEffectList(script, "Quillon", "[QZT]", false, rows, ask);
    EXPECT_TRUE(result.lineLimitReached);
    EXPECT_FALSE(result.inputRefused);
    EXPECT_EQ(questions, 1);
    ASSERT_EQ(script.Count(), kMaxLines);
    // The 11 turns made 30705 lines, the twelfth's forward pass 8 more, and
    // its mirror pass copied line 30712 down to 28659 before the script was full.
    EXPECT_EQ(script.LineAt(30713).Text, "Quillon[QZT]");
    EXPECT_EQ(script.LineAt(kMaxLines).Text, script.LineAt(28659).Text);
    EXPECT_EQ(script.SelectedIndex(), 1);
}

TEST(EffectRun, OverlongNameOrTagIsRefusedBeforeTheScriptIsCleared) {
    const std::string longest(kMaxEffectTextLength, 'a');
    const std::string tooLong(kMaxEffectTextLength + 1, 'a');
    const struct {
        const std::string& name;
        const std::string& tag;
        bool refused;
    } cases[] = {
        {tooLong, "", true}, {"Kat", tooLong, true}, {tooLong, tooLong, true}, {longest, longest, false}};
    for (const auto& c : cases) {
        AnimationScript script;
        FillWith(script, 2, "keep me");
        int questions = 0;
        // Answered No: an accepted run asks, and then has nothing to add.
        const auto ask = [&](const std::string&, const std::string&) { return ++questions, false; };
        const EffectRunResult result =
            RunEffectList(script, c.name, c.tag, false, {{"Bounce", "5"}, {"Bounce", "0"}}, ask);
        EXPECT_EQ(result.inputRefused, c.refused) << c.name.size() << "/" << c.tag.size();
        EXPECT_FALSE(result.lineLimitReached);
        EXPECT_EQ(questions, c.refused ? 0 : 1);
        EXPECT_EQ(Texts(script), c.refused ? L(2, "keep me") : L{});
    }
}

// Notes whether the view is in the middle of a reset, and any per-line call.
struct ResetWatcher : ScriptListener {
    bool inReset = false;
    int resets = 0;
    int perLineCalls = 0;
    void AboutToInsert(int) override { ++perLineCalls; }
    void Inserted(int) override { ++perLineCalls; }
    void AboutToRemove(int) override { ++perLineCalls; }
    void Removed(int) override { ++perLineCalls; }
    void LineChanged(int) override { ++perLineCalls; }
    void AboutToReset() override { inReset = true; }
    void ResetDone() override { inReset = false, ++resets; }
    void SelectionChanged(int) override {}
};

TEST(EffectRun, TheViewIsUpToDateWhileTheQuestionIsOpen) {
    AnimationScript script;
    FillWith(script, 5);
    ResetWatcher view;
    script.SetListener(&view);
    int linesShown = -1;
    const auto ask = [&](const std::string&, const std::string&) {
        EXPECT_FALSE(view.inReset);
        linesShown = script.Count();
        return true;
    };
    RunEffectList(script, "Ka", "", false, {{"Wave 2"}, {"Bounce", "5"}}, ask);
    EXPECT_EQ(linesShown, 2);
    EXPECT_FALSE(view.inReset);
    EXPECT_EQ(view.resets, 2);
    EXPECT_EQ(view.perLineCalls, 0);
    EXPECT_EQ(script.Count(), (2 + 2 * 2 + 1) * 32 - 5);
    script.SetListener(nullptr);
}

}  // namespace
}  // namespace flickerscribe::test
