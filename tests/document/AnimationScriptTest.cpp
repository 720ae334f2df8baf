#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "TempFolder.h"
#include "document/AnimationScript.h"

namespace flickerscribe {
namespace {

// The lines as "A *B C:9": the selected one starred, a time other than 15 behind a colon.
std::string Show(const AnimationScript& s) {
    std::string out;
    for (int i = 1; i <= s.Count(); ++i) {
        const AnimationLine& line = s.LineAt(i);
        out += std::string(i > 1 ? " " : "") + (i == s.SelectedIndex() ? "*" : "") + line.Text +
               (line.Time == "15" ? "" : ":" + line.Time);
    }
    return out;
}

// One word an operation: s<n> select, i<n> insert "N", r<n> remove, t<n> text
// "x", m<n> time "9", c clear, e<n> exchange for X Y selecting n, E exchange
// for nothing, ( and ) open and close a batch. A refused operation says "no".
void Play(AnimationScript& s, test::Recorder& view, const std::string& program) {
    std::vector<std::unique_ptr<AnimationScript::Batch>> batches;
    std::istringstream words(program);
    for (std::string w; words >> w;) {
        const int n = w.size() > 1 ? std::stoi(w.substr(1)) : 0;
        bool done = true;
        // clang-format off
        switch (w[0]) {
            case 's': s.SelectLine(n); break;
            case 'i': done = s.InsertLine(n, "N", "15", "[none]"); break;
            case 'r': done = s.RemoveLine(n); break;
            case 't': s.SetLineText(n, "x"); break;
            case 'm': s.SetLineTime(n, "9"); break;
            case 'c': s.ClearLines(); break;
            case 'e': s.ExchangeLines({{"X"}, {"Y"}}, n); break;
            case 'E': s.ExchangeLines({}, n); break;
            case '(': batches.push_back(std::make_unique<AnimationScript::Batch>(s)); break;
            case ')': batches.pop_back(); break;
        }
        // clang-format on
        if (!done) view.Say("no");
    }
}

// Every case starts from A B C D with A selected.
TEST(AnimationScript, KeepsTheSelectionOnItsLineAndTellsTheView) {
    const struct {
        const char *program, *lines, *told;
    } cases[] = {
        // clang-format off
        {"", "*A B C D", ""},                                 {"s3 s3 s0 s5", "A B *C D", "s3"},
        {"i1", "N *A B C D", "[+1 +1] s2"},                   {"s2 i3", "A *B N C D", "s2 [+3 +3]"},
        {"s4 i5", "A B C *D N", "s4 [+5 +5]"},                {"i0 i6 r0 r5", "*A B C D", "no no no no"},
        {"s3 r1", "B *C D", "s3 [-1 -1] s2"},                 {"s2 r4", "A *B C", "s2 [-4 -4]"},
        {"s2 r2", "A *C D", "s2 [-2 -2] s2"},                 {"s4 r4", "A B *C", "s4 [-4 -4] s3"},
        {"t2 m3 t0 m5", "*A x C:9 D", "~2 ~3"},               {"c c", "", "[R R]"},
        {"r1 r1 r1 r1", "", "[-1 -1] s1 [-1 -1] s1 [-1 -1] s1 [-1 -1] s0"},
        {"c i1 i1", "N *N", "[R R] [+1 +1] s1 [+1 +1] s2"},   {"s3 e0", "*X Y", "s3 [R R] s1"},
        {"e1", "*X Y", "[R R] s1"},                           {"e9", "X *Y", "[R R] s2"},
        {"E3", "", "[R R] s0"},                               {"( c ( i1 i1 ) t1 r9 )", "x *N", "[R no R] s2"},
        // clang-format on
    };
    for (const auto& c : cases) {
        AnimationScript s;
        for (const char* text : {"A", "B", "C", "D"}) s.AppendLine(text, "15", "[none]");
        test::Recorder view;
        s.SetListener(&view);
        Play(s, view, c.program);
        EXPECT_EQ(Show(s), c.lines) << c.program;
        EXPECT_EQ(view.log, c.told) << c.program;
    }
}

}  // namespace
}  // namespace flickerscribe
