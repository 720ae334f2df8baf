// The commands over lines on a big animation in a shown main window: adding
// at the top of a full list, copying every line of a half-full one, and one
// character typed at the end of the longest text the pane serves.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTest>
#include <QTextEdit>
#include <string>

#include "GuiBenchSupport.h"

namespace {

using flickerscribe::AnimationScript;
using flickerscribe::bench::ShownWindow;

// Cuts the list back to `count` lines in one go.
void TrimTo(AnimationScript& script, int count) {
    AnimationScript::Batch batch(script);
    while (script.Count() > count) script.RemoveLine(script.Count());
}

void BM_AddLineAtTheTopOfAFullList(benchmark::State& state) {
    ShownWindow shown(flickerscribe::kMaxLines - 1);
    AnimationScript& script = shown.animation;
    for (auto _ : state) {
        shown.Trigger(QStringLiteral("btnaddbefore"));  // the last line the list can take
        shown.PaintList();
        state.PauseTiming();
        script.RemoveLine(1);
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_AddLineAtTheTopOfAFullList)->Unit(benchmark::kMillisecond);

void BM_CopyAllLines(benchmark::State& state) {
    const int lines = flickerscribe::kMaxLines / 2;
    ShownWindow shown(lines);
    for (auto _ : state) {
        shown.Trigger(QStringLiteral("btncopyall"));
        shown.PaintList();
        state.PauseTiming();
        TrimTo(shown.animation, lines);
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * lines);
}
BENCHMARK(BM_CopyAllLines)->Unit(benchmark::kMillisecond);

// A text of 32766 shown characters whose colour changes every `run`
// characters; one more typed at its end makes the longest text.
std::string LongText(int run) {
    std::string coded;
    for (int i = 0; i < flickerscribe::kMaxLines - 1; ++i) {
        if (i % run == 0) {
            coded += '^';
            coded += static_cast<char>('1' + (i / run) % 8);
        }
        coded += static_cast<char>('a' + i % 26);
    }
    return coded;
}

// The change handler alone on the longest text: encode the pane, write the
// line, tell the list.
void BM_ChangeHandlerOnTheLongestText(benchmark::State& state) {
    ShownWindow shown(1);
    shown.animation.SetLineText(1, LongText(static_cast<int>(state.range(0))) + "x");
    QTextEdit* pane = shown.Pane();
    for (auto _ : state) emit pane->textChanged();
}
BENCHMARK(BM_ChangeHandlerOnTheLongestText)->Arg(1)->Arg(16)->Unit(benchmark::kMillisecond);

// The whole keystroke: the widget's own insert and layout of the line, then
// the change handler.
void BM_TypeAtTheEndOfTheLongestText(benchmark::State& state) {
    ShownWindow shown(1);
    shown.animation.SetLineText(1, LongText(static_cast<int>(state.range(0))));
    QTextEdit* pane = shown.Pane();
    pane->moveCursor(QTextCursor::End);
    for (auto _ : state) {
        QTest::keyClick(pane, Qt::Key_X);  // the key, the widget's insert, and the change handler
        state.PauseTiming();
        QTest::keyClick(pane, Qt::Key_Backspace);
        state.ResumeTiming();
    }
}
// Colour changes every character, and every 16 characters.
BENCHMARK(BM_TypeAtTheEndOfTheLongestText)->Arg(1)->Arg(16)->Unit(benchmark::kMillisecond);

}  // namespace
