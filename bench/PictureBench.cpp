// The animated picture: time and bytes for each frame of the README's example,
// of a 2,000-frame Bounce run and of "Wave 2" typing a 30-character name.
// Targets: under 2 ms a frame of a 30-character name; under 300 bytes a frame
// for the typing animation.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <string>
#include <vector>

#include "document/AnimationScript.h"
#include "effects/EffectRun.h"
#include "picture/AnimatedPicture.h"

namespace {

using flickerscribe::EffectRow;

// The coded texts an effect list makes, at most `limit` of them.
std::vector<std::string> Frames(const std::string& name, const std::string& tag,
                                const std::vector<EffectRow>& rows,
                                std::size_t limit = flickerscribe::kMaxLines) {
    flickerscribe::AnimationScript script;
    flickerscribe::RunEffectList(script, name, tag, false, rows,
                                 [](const std::string&, const std::string&) { return true; });
    std::vector<std::string> texts;
    for (const auto& line : script.Lines()) {
        if (texts.size() == limit) break;
        texts.push_back(line.Text);
    }
    return texts;
}

void Export(benchmark::State& state, const std::vector<std::string>& texts) {
    std::size_t bytes = 0;
    for (auto _ : state) {
        const auto gif = flickerscribe::picture::DrawAnimatedPicture(texts);
        bytes = gif->size();
        benchmark::DoNotOptimize(bytes);
    }
    const auto frames = static_cast<double>(texts.size());
    state.counters["frames"] = frames;
    state.counters["bytes_per_frame"] = static_cast<double>(bytes) / frames;
    // Seconds per frame, shown as "ms" or "us".
    state.counters["time_per_frame"] = benchmark::Counter(
        frames, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// flickerscribe-cli effects --name Quillon --tag '^4[QZT]' --effect "Wave 2" --effect Bounce --param1 1
void BM_ReadmeExample(benchmark::State& state) {
    Export(state, Frames("Quillon", "^4[QZT]", {{"Wave 2"}, {"Bounce", "1"}}));
}

// The first 2,000 frames of a long Bounce: the tag runs through the name and back.
void BM_Bounce2000(benchmark::State& state) {
    Export(state, Frames("^1Quillon^7 of the ^3Flickerscribe", "^4[QZT]", {{"Bounce", "20"}}, 2000));
}

// A 30-character name typed in letter by letter.
void BM_Wave2Of30Characters(benchmark::State& state) {
    Export(state, Frames("^1Quillon^7 of ^3Flickerscribe^5 maker", "", {{"Wave 2"}}));
}

}  // namespace

BENCHMARK(BM_ReadmeExample)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Bounce2000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Wave2Of30Characters)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
