// Speed of render and encode on the longest text the walks handle.
#include <benchmark/benchmark.h>

#include <string>

#include "MemoryPane.h"
#include "colour/ColouredText.h"

namespace {

// 32767 characters: names with a code every few characters, a visible caret
// now and then, so that runs are short and many.
std::string LongCodedText() {
    const std::string piece = "^1Qu^2il^3lon^^x ^9[^4QZT^5]^a^0 ";
    std::string text;
    while (text.size() + piece.size() <= 32767) text += piece;
    text.append(32767 - text.size(), 'z');
    return text;
}

void BM_RenderAndEncode(benchmark::State& state) {
    const std::string text = LongCodedText();
    flickerscribe::MemoryPane pane;
    for (auto _ : state) {
        flickerscribe::RenderCodedText(text, pane);
        std::string again = flickerscribe::EncodeColouredText(pane, flickerscribe::kWhite);
        benchmark::DoNotOptimize(again);
    }
    state.counters["runs"] = static_cast<double>(pane.Runs().size());
}
BENCHMARK(BM_RenderAndEncode)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
