#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "document/AnimationScript.h"
#include "script/ConfigImport.h"
#include "script/ScriptText.h"

namespace {

// A full list: 32767 lines of 30 characters with colour codes and varied times.
void FillFullList(flickerscribe::AnimationScript& script) {
    const std::string times[] = {"15", "7", "250", "0", "1.5"};
    for (int i = 0; i < flickerscribe::kMaxLines; ++i) {
        std::string text = "^" + std::to_string(1 + i % 8) + "Quillon^7[QZT]^3" + std::to_string(100000 + i);
        text.resize(30, '-');
        script.AppendLine(std::move(text), times[i % 5], "[none]");
    }
}

void BM_BuildScriptText(benchmark::State& state) {
    flickerscribe::AnimationScript script;
    FillFullList(script);
    for (auto _ : state) {
        std::string text = flickerscribe::BuildScriptText(script, nullptr);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(BM_BuildScriptText)->Unit(benchmark::kMillisecond);

// The generated script of a full list, about 65500 lines, read back from a file.
void BM_ImportFile(benchmark::State& state) {
    flickerscribe::AnimationScript source;
    FillFullList(source);
    const std::string text = flickerscribe::BuildScriptText(source, nullptr) + "\r\n";
    const auto path = std::filesystem::temp_directory_path() /
                      ("flickerscribe-bench-" + std::to_string(::getpid()) + ".cfg");
    std::ofstream(path, std::ios::binary) << text;

    flickerscribe::AnimationScript script;
    for (auto _ : state) {
        if (flickerscribe::ImportFile(path.string(), script) != flickerscribe::LoadStatus::Loaded)
            state.SkipWithError("import failed");
        benchmark::DoNotOptimize(script.Count());
    }
    std::filesystem::remove(path);
}
BENCHMARK(BM_ImportFile)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
