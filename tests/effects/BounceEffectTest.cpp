#include <gtest/gtest.h>

#include <cmath>

#include "EffectTestSupport.h"
#include "effects/EffectRun.h"

namespace flickerscribe::test {
namespace {

using L = std::vector<std::string>;

TEST(Bounce, TheTagTravelsThroughTheNameAndBack) {
    const EffectCase cases[] = {
        {"Bounce", "1", "^1K^2at", "^4[QZT]", false,
         L{"[QZT]Kat", "K[QZT]at", "Ka[QZT]t", "Kat[QZT]", "Ka[QZT]t", "K[QZT]at", "[QZT]Kat"}, "Kat",
         "[QZT]"},
        {"Bounce", "1", "^1K^2at", "^4[QZT]", true,
         L{"Kat[QZT]", "Ka[QZT]t", "K[QZT]at", "[QZT]Kat", "K[QZT]at", "Ka[QZT]t", "Kat[QZT]"}, "Kat",
         "[QZT]"},
        // The second turn goes forward again and then mirrors all fourteen lines
        // before it, the first turn's included.
        {"Bounce", "2", "^1K^2at", "^4[QZT]", false,
         L{"[QZT]Kat", "K[QZT]at", "Ka[QZT]t", "Kat[QZT]", "Ka[QZT]t", "K[QZT]at", "[QZT]Kat",
           "[QZT]Kat", "K[QZT]at", "Ka[QZT]t", "Kat[QZT]", "Ka[QZT]t", "K[QZT]at", "[QZT]Kat",
           "[QZT]Kat", "K[QZT]at", "Ka[QZT]t", "Kat[QZT]", "Ka[QZT]t", "K[QZT]at", "[QZT]Kat"},
         "Kat", "[QZT]"},
        {"Bounce", "1", "K", "[QZT]", false, L{"[QZT]K", "K[QZT]", "[QZT]K"}, "K", "[QZT]"},
        {"Bounce", "1", "Kat", "", false, L(7, "Kat"), "Kat", ""},
        {"Bounce", "1", "", "[QZT]", false, L{"[QZT]"}, "", "[QZT]"},
        {"Bounce", "1", "", "", true, L{""}, "", ""},
        // Stripping can leave a code: nothing visible, so one frame.
        {"Bounce", "1", "^^12", "[QZT]", false, L{"[QZT]^2"}, "^2", "[QZT]"},
        {"Bounce", "1", "^^12", "[QZT]", true, L{"[QZT]^2"}, "^2", "[QZT]"},
        // The front is cut by characters and the rest counted in visible ones.
        {"Bounce", "1", "^^12ab", "[T]", false, L{"[T]^2ab", "^[T]b", "^2[T]", "^[T]b", "[T]^2ab"}, "^2ab",
         "[T]"},
        {"Bounce", "1", "^^12ab", "[T]", true, L{"^2[T]ab", "^[T]2ab", "[T]^2ab", "^[T]2ab", "^2[T]ab"},
         "^2ab", "[T]"},
    };
    for (const auto& c : cases) CheckEffect(c);
}

TEST(Bounce, RepeatCountGate) {
    // A name of one character makes 3 * 2^R - 3 lines.
    const struct {
        const char* parameter1;
        int lines;
        const char* question;  // nullptr: not asked
    } cases[] = {
        {"0", 0, nullptr},
        {"", 0, nullptr},
        {"abc", 0, nullptr},
        {"-2", 0, nullptr},
        {"0.9", 0, nullptr},
        {"-0.4", 0, nullptr},
        {"32768", 0, nullptr},
        {"1", 3, nullptr},
        {"2.7", 9, nullptr},
        {"4.9", 45, nullptr},
        {"5", 93, "Are you sure you want to repeat the BOUNCE EFFECT 5 times?"},
        {"5.9", 93, "Are you sure you want to repeat the BOUNCE EFFECT 5.9 times?"},
        {" 5 ", 93, "Are you sure you want to repeat the BOUNCE EFFECT  5  times?"},
        {"6", 189, "Are you sure you want to repeat the BOUNCE EFFECT 6 times?"},
    };
    for (const auto& c : cases) {
        for (const bool answer : {true, false}) {
            SCOPED_TRACE(std::string("\"") + c.parameter1 + "\" answered " + (answer ? "Yes" : "No"));
            AnimationScript script;
            std::string name = "^1K";
            std::string tag = "^4[QZT]";
            std::vector<std::string> asked;
            const auto ask = [&](const std::string& title, const std::string& text) {
                EXPECT_EQ(title, "Processing effect list...");
                asked.push_back(text);
                return answer;
            };
            EXPECT_EQ(ApplyEffect(script, name, "Bounce", c.parameter1, "0", tag, false, ask),
                      EffectStatus::Done);
            EXPECT_EQ(asked, c.question ? L{c.question} : L{});
            // No to the question: the effect ends before touching anything.
            const bool runs = c.lines > 0 && (answer || !c.question);
            EXPECT_EQ(script.Count(), runs ? c.lines : 0);
            EXPECT_EQ(name, runs ? "K" : "^1K");
            EXPECT_EQ(tag, runs ? "[QZT]" : "^4[QZT]");
        }
    }
}

TEST(Bounce, WithoutSomeoneToAskALargeCountIsNo) {
    AnimationScript script;
    std::string name = "Kat";
    std::string tag;
    EXPECT_EQ(ApplyEffect(script, name, "Bounce", "5", "0", tag, false, nullptr), EffectStatus::Done);
    EXPECT_EQ(script.Count(), 0);
}

TEST(Bounce, LinesDoublePerRepetition) {
    const struct {
        int repeats;
        int lines;
    } cases[] = {{1, 15}, {2, 45}, {3, 105}, {4, 225}, {5, 465}, {10, 15345}, {11, 30705}};
    for (const auto& c : cases) {
        AnimationScript script;
        std::string name = "Quillon";
        std::string tag = "[QZT]";
        EXPECT_EQ(ApplyEffect(script, name, "Bounce", std::to_string(c.repeats), "0", tag, false,
                              [](const std::string&, const std::string&) { return true; }),
                  EffectStatus::Done);
        EXPECT_EQ(script.Count(), c.lines) << c.repeats;
        // Every repetition starts and ends on the tag in front of the name.
        EXPECT_EQ(script.LineAt(1).Text, "[QZT]Quillon");
        EXPECT_EQ(script.LineAt(script.Count()).Text, "[QZT]Quillon");
    }
}

}  // namespace
}  // namespace flickerscribe::test
