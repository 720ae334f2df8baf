// Undo and redo of an Open that filled the list with a wizard run, in a shown
// main window: each puts a whole list of 32767 lines in the place of another
// and lets the list show it.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "GuiBenchSupport.h"
#include "document/AnimationFile.h"
#include "effects/EffectRun.h"

namespace {

using flickerscribe::AnimationScript;
using flickerscribe::bench::ShownWindow;

// Opens a wizard run that fills the list: "Bounce" twelve times over a name.
void FillByTheWizard(ShownWindow& shown) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bounce.fsq"));
    AnimationScript bounce;
    flickerscribe::RunEffectList(bounce, "Quillon", "[Q]", false, {{"Bounce", "12", "0"}},
                                 [](const std::string&, const std::string&) { return true; });
    if (!flickerscribe::SaveAnimationFile(path.toStdString(), bounce)) shown.window.openAnimationFile(path);
}

void BM_UndoWizardRun(benchmark::State& state) {
    ShownWindow shown(3);
    FillByTheWizard(shown);
    if (shown.animation.Count() != flickerscribe::kMaxLines)
        state.SkipWithError("the run didn't fill the list");
    for (auto _ : state) {
        shown.Trigger(QStringLiteral("mnuEditUndo"));
        shown.PaintList();
        state.PauseTiming();
        shown.Trigger(QStringLiteral("mnuEditRedo"));
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
        shown.Trigger(QStringLiteral("mnuEditUndo"));
        QCoreApplication::processEvents();
        state.ResumeTiming();
        shown.Trigger(QStringLiteral("mnuEditRedo"));
        shown.PaintList();
    }
    if (shown.animation.Count() != flickerscribe::kMaxLines) state.SkipWithError("redo lost lines");
}
BENCHMARK(BM_RedoWizardRun)->Unit(benchmark::kMillisecond);

}  // namespace
