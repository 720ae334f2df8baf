#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/AnimationScript.h"

namespace flickerscribe {
namespace {

std::vector<std::string> Texts(const AnimationScript& s) {
    std::vector<std::string> out;
    for (int i = 1; i <= s.Count(); ++i) out.push_back(s.LineAt(i).Text);
    return out;
}

void Fill(AnimationScript& s, std::initializer_list<const char*> texts) {
    for (const char* t : texts) ASSERT_TRUE(s.AppendLine(t, "15", "[none]"));
}

TEST(AnimationScript, EmptyHasNoSelectionAndClearIsHarmless) {
    AnimationScript s;
    EXPECT_EQ(s.Count(), 0);
    EXPECT_EQ(s.SelectedIndex(), 0);
    s.ClearLines();
    EXPECT_EQ(s.SelectedIndex(), 0);
    EXPECT_FALSE(s.RemoveLine(1));
}

TEST(AnimationScript, FirstLineAddedIsSelectedAndLaterOnesAreNot) {
    AnimationScript s;
    Fill(s, {"A", "B"});
    EXPECT_EQ(s.SelectedIndex(), 1);
    s.ClearLines();
    EXPECT_EQ(s.SelectedIndex(), 0);
    Fill(s, {"C"});
    EXPECT_EQ(s.SelectedIndex(), 1);
}

// Each case: lines A B C D, select `selected`, then do one operation; the
// selected line must still be the same line, or the documented neighbour.
struct SelectionCase {
    const char* name;
    int selected;
    bool insert;  // else remove
    int index;
    std::vector<std::string> expectTexts;
    std::string expectSelectedText;
    friend void PrintTo(const SelectionCase& c, std::ostream* os) { *os << c.name; }
};

class SelectionRules : public testing::TestWithParam<SelectionCase> {};

TEST_P(SelectionRules, SelectedLineFollowsItsLine) {
    const auto& c = GetParam();
    AnimationScript s;
    Fill(s, {"A", "B", "C", "D"});
    s.SelectLine(c.selected);
    if (c.insert) {
        ASSERT_TRUE(s.InsertLine(c.index, "N", "15", "[none]"));
    } else {
        ASSERT_TRUE(s.RemoveLine(c.index));
    }
    EXPECT_EQ(Texts(s), c.expectTexts);
    ASSERT_GE(s.SelectedIndex(), 1);
    EXPECT_EQ(s.LineAt(s.SelectedIndex()).Text, c.expectSelectedText);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, SelectionRules,
    testing::Values(SelectionCase{"InsertInFront", 1, true, 1, {"N", "A", "B", "C", "D"}, "A"},
                    SelectionCase{"InsertBehind", 2, true, 3, {"A", "B", "N", "C", "D"}, "B"},
                    SelectionCase{"InsertAtEnd", 4, true, 5, {"A", "B", "C", "D", "N"}, "D"},
                    SelectionCase{"RemoveInFront", 3, false, 1, {"B", "C", "D"}, "C"},
                    SelectionCase{"RemoveBehind", 2, false, 4, {"A", "B", "C"}, "B"},
                    SelectionCase{"RemoveSelectedTakesNext", 2, false, 2, {"A", "C", "D"}, "C"},
                    SelectionCase{"RemoveSelectedLastTakesNewLast", 4, false, 4, {"A", "B", "C"}, "C"}),
    testing::PrintToStringParamName());

TEST(AnimationScript, RemovingTheOnlyLineLeavesNoSelection) {
    AnimationScript s;
    Fill(s, {"A"});
    EXPECT_TRUE(s.RemoveLine(1));
    EXPECT_EQ(s.SelectedIndex(), 0);
}

TEST(AnimationScript, BadIndexesChangeNothing) {
    AnimationScript s;
    Fill(s, {"A"});
    EXPECT_FALSE(s.InsertLine(0, "x", "15", "[none]"));
    EXPECT_FALSE(s.InsertLine(3, "x", "15", "[none]"));
    EXPECT_FALSE(s.RemoveLine(2));
    s.SelectLine(5);
    s.SetLineText(9, "x");
    EXPECT_EQ(Texts(s), std::vector<std::string>{"A"});
    EXPECT_EQ(s.SelectedIndex(), 1);
}

TEST(AnimationScript, FieldsAreKeptAsText) {
    AnimationScript s;
    Fill(s, {"A", "A"});
    s.SetLineTime(1, "abc");
    s.SetLineText(2, "^1x");
    EXPECT_EQ(s.Count(), 2);
    EXPECT_EQ(s.LineAt(1), (AnimationLine{"A", "abc", "[none]"}));
    EXPECT_EQ(s.LineAt(2), (AnimationLine{"^1x", "15", "[none]"}));
}

TEST(AnimationScript, RefusesTheLineBeyondTheLimit) {
    AnimationScript s;
    for (int i = 0; i < kMaxLines; ++i) ASSERT_TRUE(s.AppendLine("x", "15", "[none]"));
    EXPECT_TRUE(s.IsFull());
    EXPECT_FALSE(s.AppendLine("y", "15", "[none]"));
    EXPECT_FALSE(s.InsertLine(1, "y", "15", "[none]"));
    EXPECT_EQ(s.Count(), kMaxLines);
    EXPECT_EQ(s.LineAt(1).Text, "x");
}

// Records what a view would be told.
struct Recorder : ScriptListener {
    std::vector<std::string> events;
    void AboutToInsert(int i) override { events.push_back("about-insert " + std::to_string(i)); }
    void Inserted(int i) override { events.push_back("inserted " + std::to_string(i)); }
    void AboutToRemove(int i) override { events.push_back("about-remove " + std::to_string(i)); }
    void Removed(int i) override { events.push_back("removed " + std::to_string(i)); }
    void LineChanged(int i) override { events.push_back("changed " + std::to_string(i)); }
    void AboutToReset() override { events.push_back("about-reset"); }
    void ResetDone() override { events.push_back("reset"); }
    void SelectionChanged(int i) override { events.push_back("select " + std::to_string(i)); }
};

TEST(AnimationScript, ListenerHearsEachChange) {
    AnimationScript s;
    Recorder r;
    s.SetListener(&r);
    s.AppendLine("A", "15", "[none]");
    s.InsertLine(1, "B", "15", "[none]");
    s.SetLineText(2, "C");
    s.RemoveLine(2);
    s.ClearLines();
    EXPECT_EQ(r.events, (std::vector<std::string>{"about-insert 1", "inserted 1", "select 1",  //
                                                  "about-insert 1", "inserted 1", "select 2",  //
                                                  "changed 2",                                 //
                                                  "about-remove 2", "removed 2", "select 1",   //
                                                  "about-reset", "reset"}));
}

TEST(AnimationScript, BatchIsOneReset) {
    AnimationScript s;
    Recorder r;
    s.SetListener(&r);
    {
        AnimationScript::Batch outer(s);
        s.ClearLines();
        {
            AnimationScript::Batch inner(s);
            for (int i = 0; i < 100; ++i) s.AppendLine("x", "15", "[none]");
        }
    }
    EXPECT_EQ(r.events, (std::vector<std::string>{"about-reset", "reset", "select 1"}));
    EXPECT_EQ(s.Count(), 100);
}

}  // namespace
}  // namespace flickerscribe
