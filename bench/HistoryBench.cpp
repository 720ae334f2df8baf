// Undo and redo of a wizard run that filled the list, in a shown main window:
// each puts a whole list of 32767 lines in the place of another and lets the
// list show it.

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include "GuiBenchSupport.h"
#include "effects/EffectRun.h"

namespace {

using flickerscribe::AnimationScript;
using flickerscribe::bench::ShownWindow;

// A wizard run that fills the list: "Bounce" twelve times over a name.
void FillByTheWizard(ShownWindow& shown) {
    shown.window.history().replaceLines(QStringLiteral("Wizard"), [](AnimationScript& script) {
        return flickerscribe::RunEffectList(script, "Quillon", "[Q]", false, {{"Bounce", "12", "0"}},
                                            [](const std::string&, const std::string&) { return true; });
    });
}

void BM_UndoWizardRun(benchmark::State& state) {
    ShownWindow shown(3);
    FillByTheWizard(shown);
    if (shown.window.script().Count() != flickerscribe::kMaxLines)
        state.SkipWithError("the run didn't fill the list");
    for (auto _ : state) {
        shown.window.undo();
        shown.PaintList();
        state.PauseTiming();
        shown.window.redo();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_UndoWizardRun)->Unit(benchmark::kMillisecond);

void BM_RedoWizardRun(benchmark::State& state) {
    ShownWindow shown(3);
    FillByTheWizard(shown);
    for (auto _ : state) {
        state.PauseTiming();
        shown.window.undo();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        shown.window.redo();
        shown.PaintList();
    }
    if (shown.window.script().Count() != flickerscribe::kMaxLines) state.SkipWithError("redo lost lines");
}
BENCHMARK(BM_RedoWizardRun)->Unit(benchmark::kMillisecond);

}  // namespace
