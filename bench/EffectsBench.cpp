// Speed of the effect engine on the largest inputs it meets in practice.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "document/AnimationScript.h"
#include "effects/EffectRun.h"

namespace {

const auto kYes = [](const std::string&, const std::string&) { return true; };

// A name of 1000 visible characters with a colour code every tenth one.
std::string LongName() {
    std::string name;
    for (int i = 0; i < 1000; ++i) {
        if (i % 10 == 0) name += "^" + std::to_string(i / 10 % 8 + 1);
        name += static_cast<char>('a' + i % 26);
    }
    return name;
}

void RunOnce(benchmark::State& state, const std::string& name, const std::string& tag, bool reverse,
             const flickerscribe::EffectRow& row) {
    flickerscribe::AnimationScript script;
    const std::vector<flickerscribe::EffectRow> rows = {row};
    for (auto _ : state) {
        const flickerscribe::EffectRunResult result =
            flickerscribe::RunEffectList(script, name, tag, reverse, rows, kYes);
        benchmark::DoNotOptimize(result);
    }
    state.counters["lines"] = script.Count();
}

// Eleven repetitions on seven characters: 30705 lines, just under the limit.
void BM_Bounce11(benchmark::State& state) {
    RunOnce(state, "Quillon", "[QZT]", false, {"Bounce", "11"});
}

void BM_Wave2(benchmark::State& state) {
    RunOnce(state, LongName(), "^4[QZT]", state.range(0) != 0, {"Wave 2"});
}

void BM_WaveForward(benchmark::State& state) {
    RunOnce(state, LongName(), "^4[QZT]", state.range(0) != 0, {"Wave forward"});
}

}  // namespace

BENCHMARK(BM_Bounce11)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Wave2)->ArgName("reverse")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WaveForward)->ArgName("reverse")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
