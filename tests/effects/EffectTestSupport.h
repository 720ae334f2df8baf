#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/AnimationScript.h"
#include "effects/EffectRun.h"

namespace flickerscribe::test {

// The Text of every line, in order. Every line an effect makes carries the
// time "15" and the action "[none]"; anything else fails the test here.
inline std::vector<std::string> Texts(const AnimationScript& script) {
    std::vector<std::string> texts;
    for (int i = 1; i <= script.Count(); ++i) {
        const AnimationLine& line = script.LineAt(i);
        EXPECT_EQ(line.Time, "15") << "line " << i;
        EXPECT_EQ(line.Action, "[none]") << "line " << i;
        texts.push_back(line.Text);
    }
    return texts;
}

inline void FillWith(AnimationScript& script, int count, const std::string& text = "filler") {
    for (int i = 0; i < count; ++i) script.AppendLine(text, "15", "[none]");
}

// One effect on a fresh script, and what it leaves: the lines, and the name
// and tag that the next row of a run would see.
struct EffectCase {
    const char* effect;
    const char* parameter1;
    const char* name;
    const char* tag;
    bool reverse;
    std::vector<std::string> lines;
    const char* nameAfter;
    const char* tagAfter;
};

inline void CheckEffect(const EffectCase& c) {
    SCOPED_TRACE(std::string(c.effect) + " \"" + c.parameter1 + "\" on \"" + c.name + "\" tag \"" + c.tag +
                 "\"" + (c.reverse ? " reverse" : ""));
    AnimationScript script;
    std::string name = c.name;
    std::string tag = c.tag;
    const auto yes = [](const std::string&, const std::string&) { return true; };
    EXPECT_EQ(ApplyEffect(script, name, c.effect, c.parameter1, "0", tag, c.reverse, yes),
              EffectStatus::Done);
    EXPECT_EQ(Texts(script), c.lines);
    EXPECT_EQ(name, c.nameAfter);
    EXPECT_EQ(tag, c.tagAfter);
}

}  // namespace flickerscribe::test
