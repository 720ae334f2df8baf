// The main window's speed: the list of a full animation, the preview pane
// with a name and with the longest text, and the start of the program.

#include <benchmark/benchmark.h>

#include <QTextEdit>
#include <string>

#include "GuiBenchSupport.h"
#include "colour/ColouredText.h"
#include "colour/Palette.h"
#include "ui/widgets/RichPane.h"

namespace {

using flickerscribe::AnimationScript;
using flickerscribe::bench::ShownWindow;

// A coded text whose colour changes at every one of its `length` characters.
std::string EveryCharacterItsColour(int length) {
    std::string coded;
    coded.reserve(static_cast<std::size_t>(length) * 3);
    for (int i = 0; i < length; ++i) {
        coded += '^';
        coded += static_cast<char>('1' + i % 8);
        coded += static_cast<char>('a' + i % 26);
    }
    return coded;
}

void BM_ListResetAndFirstPaint(benchmark::State& state) {
    ShownWindow shown;
    AnimationScript& script = shown.animation;
    const int lines = static_cast<int>(state.range(0));
    for (auto _ : state) {
        {
            AnimationScript::Batch batch(script);
            script.ClearLines();
            flickerscribe::bench::FillNames(script, lines);
        }
        shown.PaintList();
    }
    state.SetItemsProcessed(state.iterations() * lines);
}
BENCHMARK(BM_ListResetAndFirstPaint)->Arg(flickerscribe::kMaxLines)->Unit(benchmark::kMillisecond);

void BM_RenderName(benchmark::State& state) {
    ShownWindow shown;
    const std::string name = EveryCharacterItsColour(64);
    flickerscribe::ui::RichPane pane(shown.Pane());
    for (auto _ : state) {
        flickerscribe::RenderCodedText(name, pane);
        shown.Pane()->viewport()->repaint();
    }
}
BENCHMARK(BM_RenderName)->Unit(benchmark::kMicrosecond);

void BM_RenderLongestTextToFirstPaint(benchmark::State& state) {
    ShownWindow shown;
    const std::string text = EveryCharacterItsColour(32767);
    flickerscribe::ui::RichPane pane(shown.Pane());
    for (auto _ : state) {
        flickerscribe::RenderCodedText(text, pane);
        shown.Pane()->viewport()->repaint();
    }
}
BENCHMARK(BM_RenderLongestTextToFirstPaint)->Unit(benchmark::kMillisecond);

void BM_EncodeLongestText(benchmark::State& state) {
    ShownWindow shown;
    flickerscribe::ui::RichPane pane(shown.Pane());
    flickerscribe::RenderCodedText(EveryCharacterItsColour(32767), pane);
    for (auto _ : state)
        benchmark::DoNotOptimize(flickerscribe::EncodeColouredText(pane, flickerscribe::kWhite));
}
BENCHMARK(BM_EncodeLongestText)->Unit(benchmark::kMillisecond);

void BM_StartUpToFirstPaint(benchmark::State& state) {
    for (auto _ : state) {
        flickerscribe::ui::QtDialogs dialogs;
        flickerscribe::bench::NoSettings store;
        flickerscribe::AnimationScript animation;
        flickerscribe::ui::MainWindow window(animation, dialogs, store);
        window.show();
        window.repaint();
    }
}
BENCHMARK(BM_StartUpToFirstPaint)->Unit(benchmark::kMillisecond);

}  // namespace
