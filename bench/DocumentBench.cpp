// Speed of the project file on the largest animation the list holds.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "document/AnimationFile.h"
#include "document/AnimationScript.h"

namespace {

// A full list of coloured names of about 40 characters each.
void FillFullList(flickerscribe::AnimationScript& script) {
    for (int i = 0; i < flickerscribe::kMaxLines; ++i) {
        script.AppendLine("^1Quill^7on ^3[QZT]^5 frame " + std::to_string(i) + " ^8end", i % 3 ? "15" : "250",
                          "[none]");
    }
}

std::string BenchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "fs-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) std::abort();
    return pattern;
}

void BM_SaveAnimationFile(benchmark::State& state) {
    flickerscribe::AnimationScript script;
    FillFullList(script);
    const std::string folder = BenchFolder();
    const std::string path = folder + "/full.fsq";
    for (auto _ : state) {
        if (flickerscribe::SaveAnimationFile(path, script)) state.SkipWithError("save failed");
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                            static_cast<int64_t>(std::filesystem::file_size(path)));
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_SaveAnimationFile)->Unit(benchmark::kMillisecond);

void BM_LoadAnimationFile(benchmark::State& state) {
    const std::string folder = BenchFolder();
    const std::string path = folder + "/full.fsq";
    {
        flickerscribe::AnimationScript source;
        FillFullList(source);
        if (flickerscribe::SaveAnimationFile(path, source)) std::abort();
    }
    flickerscribe::AnimationScript script;
    for (auto _ : state) {
        if (flickerscribe::LoadAnimationFile(path, script) != flickerscribe::LoadStatus::Loaded)
            state.SkipWithError("load failed");
    }
    state.counters["lines"] = script.Count();
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_LoadAnimationFile)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
