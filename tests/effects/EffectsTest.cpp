#include <gtest/gtest.h>

#include "document/AnimationScript.h"
#include "effects/EffectRun.h"

namespace flickerscribe {
namespace {

// The texts from line `from` on, joined by "|"; each line must be 15 and "[none]".
std::string Frames(const AnimationScript& script, int from = 1) {
    std::string frames;
    for (int i = from; i <= script.Count(); ++i) {
        EXPECT_EQ(script.LineAt(i).Time + script.LineAt(i).Action, "15[none]") << i;
        frames += (i > from ? "|" : "") + script.LineAt(i).Text;
    }
    return frames;
}

const YesNoQuestion Yes = [](const std::string&, const std::string&) { return true; };

// One effect on a fresh script: its frames, and the name and tag the next row
// sees. In "^1^2x" only "^1" is a code. Wave 2 types the name in, leaving out
// frames that only add a blank or end in a code; a tag behind gets "^0".
// Bounce sends the tag through the name and back, mirroring, without colours.
TEST(Effects, FramesOfEachEffect) {
    const struct {
        const char *effect, *repeats, *name, *tag;  // repeats: Parameter1, read by Bounce only
        bool reverse;
        const char *frames, *nameAfter, *tagAfter;
    } cases[] = {
        // clang-format off
        {"Wave forward", "9", "^1K^2at", "[QZT]", false, "[QZT]^1K|[QZT] ^2a|[QZT]  ^2t", "^1K^2a^2t", "[QZT]"},
        {"Wave forward", "0", "^1K^2at", "[QZT]", true, "^1K  ^0[QZT]| ^2a ^0[QZT]|  ^2t^0[QZT]", "^1K^2a^2t", "^0[QZT]"},
        {"Wave forward", "0", "ab^1", "", false, "^7a| ^7b|  ^1", "^7a^7b^1", ""},
        {"Wave forward", "0", "a^b", "", false, "^7a| ^7^|  ^7b", "^7a^7^^7b", ""},
        {"Wave forward", "0", "", "[QZT]", true, "", "", "[QZT]"},
        {"Wave 2", "9", "^1Ka^2t", "[QZT]", false, "[QZT]^1K|[QZT]^1Ka|[QZT]^1Ka^2t", "^1Ka^2t", "[QZT]"},
        {"Wave 2", "0", "^1Ka^2t", "[T]", true, "^0[T]|^1K^0[T]|^1Ka^0[T]|^1Ka^2^0[T]|^1Ka^2t^0[T]", "^1Ka^2t", "^0[T]"},
        {"Wave 2", "0", " a  b ", "", false, " a| a  | a  b", " a  b ", ""},
        {"Wave 2", "0", "^1^2ab", "[QZT]", false, "[QZT]^1^2a|[QZT]^1^2ab", "^1^2ab", "[QZT]"},
        {"Wave 2", "0", "Ka^", "", false, "K|Ka|Ka^", "Ka^", ""},
        {"Wave 2", "0", "^1Ka", "", false, "^1K|^1Ka", "^1Ka", ""},
        {"Wave 2", "0", "Kat", "", true, "", "Kat", "^0"},
        {"Bounce", "1", "^1K^2at", "^4[T]", false, "[T]Kat|K[T]at|Ka[T]t|Kat[T]|Ka[T]t|K[T]at|[T]Kat", "Kat", "[T]"},
        {"Bounce", "2.9", "K", "[T]", false, "[T]K|K[T]|[T]K|[T]K|K[T]|[T]K|[T]K|K[T]|[T]K", "K", "[T]"},
        {"Bounce", "1", "", "[QZT]", false, "[QZT]", "", "[QZT]"},
        {"Bounce", "1", "^^12ab", "[T]", false, "[T]^2ab|^[T]b|^2[T]|^[T]b|[T]^2ab", "^2ab", "[T]"},
        {"Bounce", "1", "^^12ab", "[T]", true, "^2[T]ab|^[T]2ab|[T]^2ab|^[T]2ab|^2[T]ab", "^2ab", "[T]"},
        {"wave 2", "0", "^1K", "[QZT]", false, "", "^1K", "[QZT]"},
        // clang-format on
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.effect) + " " + c.repeats + " on \"" + c.name + "\" tag \"" + c.tag +
                     "\"" + (c.reverse ? " reverse" : ""));
        AnimationScript script;
        std::string name = c.name, tag = c.tag;
        EXPECT_EQ(ApplyEffect(script, name, c.effect, c.repeats, "x", tag, c.reverse, Yes),
                  EffectStatus::Done);
        EXPECT_EQ(Frames(script), c.frames);
        EXPECT_EQ(name, c.nameAfter);
        EXPECT_EQ(tag, c.tagAfter);
    }
}

// Bounce asks before a count of 5 or more; No ends it untouched. Rows: count,
// name, lines made (one character: 3 * 2^R - 3, seven: 15 * 2^R - 15), asks.
TEST(Effects, BounceRepeatCount) {
    const std::tuple<const char*, std::string, int, bool> cases[] = {
        // clang-format off
        {"0", "K", 0, false}, {"abc", "K", 0, false}, {"-2", "K", 0, false}, {"0.9", "K", 0, false},
        {"1", "K", 3, false}, {"2.7", "K", 9, false}, {"4.9", "K", 45, false}, {"5", "K", 93, true},
        {" 5.9 ", "K", 93, true}, {"3", "Quillon", 105, false}, {"11", "Quillon", 30705, true},
        // clang-format on
    };
    for (const auto& [repeats, visible, lines, asks] : cases) {
        for (const bool answer : {true, false}) {
            SCOPED_TRACE(std::string("\"") + repeats + "\" answered " + (answer ? "yes" : "no"));
            AnimationScript script;
            std::string name = "^1" + visible, tag = "^4[QZT]", asked;
            const auto ask = [&](const std::string& title, const std::string& text) {
                asked = title + " " + text;
                return answer;
            };
            EXPECT_EQ(ApplyEffect(script, name, "Bounce", repeats, "0", tag, false, ask), EffectStatus::Done);
            const std::string question = "Are you sure you want to repeat the BOUNCE EFFECT ";
            EXPECT_EQ(asked, asks ? "Processing effect list... " + question + repeats + " times?" : "");
            const bool runs = lines > 0 && (answer || !asks);
            EXPECT_EQ(script.Count(), runs ? lines : 0);
            EXPECT_EQ(name + tag, runs ? visible + "[QZT]" : "^1" + visible + "^4[QZT]");
            EXPECT_EQ(Frames(script, std::max(1, script.Count())), runs ? "[QZT]" + visible : "");
        }
    }
}

// An effect stops at the first line a full script refuses (Bounce's mirror pass too).
TEST(Effects, StopAtTheFirstLineTheFullScriptRefuses) {
    const std::tuple<const char*, bool, int, const char*> cases[] = {
        {"Wave forward", false, 2, "[QZT]^7K|[QZT] ^7a"},
        {"Wave 2", false, 2, "[QZT]K|[QZT]Ka"},
        {"Bounce", false, 4, "[QZT]Kat|K[QZT]at|Ka[QZT]t|Kat[QZT]"},
        {"Bounce", true, 4, "Kat[QZT]|Ka[QZT]t|K[QZT]at|[QZT]Kat"},
    };
    for (const auto& [effect, reverse, room, lastFrames] : cases) {
        AnimationScript script;
        for (int i = room; i < kMaxLines; ++i) script.AppendLine("filler", "15", "[none]");
        std::string name = "Kat", tag = "[QZT]";
        EXPECT_EQ(ApplyEffect(script, name, effect, "1", "0", tag, reverse, Yes),
                  EffectStatus::LineLimitReached);
        EXPECT_EQ(Frames(script, kMaxLines - room + 1), lastFrames) << effect << room;
    }
}

// A run clears the script and applies each row to the name and tag left before it.
TEST(EffectRun, RowsChainThroughTheRewrittenNameAndTag) {
    const std::tuple<const char*, const char*, bool, std::vector<EffectRow>, const char*> cases[] = {
        // clang-format off
        {"Ka", "[QZT]", true, {{"Wave 2"}, {"Bounce", "1"}, {"Wave 2"}},
         "K^0[QZT]|Ka^0[QZT]|Ka[QZT]|K[QZT]a|[QZT]Ka|K[QZT]a|Ka[QZT]|Ka^0[QZT]|K^0[QZT]|K^0[QZT]|Ka^0[QZT]"},
        {"^1Ka", "", false, {{"Bounce", "0"}, {"Wave forward"}, {"Wave two"}, {"Wave forward"}}, "^1K| ^1a|^1K| ^1a"},
        {"Ka", "[QZT]", false, {}, ""},
        // clang-format on
    };
    for (const auto& [name, tag, reverse, rows, frames] : cases) {
        AnimationScript script;
        script.AppendLine("from before the run", "15", "[none]");
        const EffectRunResult result = RunEffectList(script, name, tag, reverse, rows, Yes);
        EXPECT_FALSE(result.lineLimitReached || result.inputRefused);
        EXPECT_EQ(Frames(script), frames);
        EXPECT_EQ(script.SelectedIndex(), script.Count() ? 1 : 0);
    }
}

}  // namespace
}  // namespace flickerscribe
