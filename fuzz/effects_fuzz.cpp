// The effect engine on small random runs: a name and a clan tag of at most 64
// characters, at most 4 rows of the known effects (and a stranger), answers to
// the repeat question from the input. A run never passes the line limit and
// every line it makes has the engine's own Time and Action.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "FuzzChecks.h"
#include "colour/NumberText.h"
#include "document/AnimationScript.h"
#include "effects/EffectRun.h"

namespace {

constexpr std::size_t kMaxText = 64;
constexpr std::size_t kMaxRows = 4;
// A repeat count above this is answered No, so that one input stays quick.
constexpr int kMaxRepeatsAnsweredYes = 400;

const char* const kEffectNames[] = {"Wave forward", "Wave 2", "Bounce", "bounce", ""};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    const bool reverse = in.ConsumeBool();
    const bool answerYes = in.ConsumeBool();
    std::string name = in.ConsumeRandomLengthString(kMaxText);
    std::string tag = in.ConsumeRandomLengthString(kMaxText);
    std::vector<flickerscribe::EffectRow> rows(in.ConsumeIntegralInRange<std::size_t>(0, kMaxRows));
    for (auto& row : rows) {
        row.Name = kEffectNames[in.ConsumeIntegralInRange<std::size_t>(0, std::size(kEffectNames) - 1)];
        row.Parameter1 = in.ConsumeRandomLengthString(8);
        row.Parameter2 = in.ConsumeRandomLengthString(8);
    }

    flickerscribe::AnimationScript script;
    script.AppendLine("before the run", "1", "x");
    int questions = 0;
    const flickerscribe::YesNoQuestion ask = [&](const std::string& title, const std::string& text) {
        ++questions;
        FUZZ_CHECK(!title.empty() && !text.empty());
        // The question is only put for the rows' own repeat counts.
        for (const auto& row : rows)
            if (text.find(row.Parameter1) != std::string::npos) {
                const auto repeats = flickerscribe::NumberValue(row.Parameter1);
                if (repeats && *repeats <= kMaxRepeatsAnsweredYes) return answerYes;
            }
        return false;
    };
    const flickerscribe::EffectRunResult result =
        flickerscribe::RunEffectList(script, name, tag, reverse, rows, ask);

    FUZZ_CHECK(!result.inputRefused);
    FUZZ_CHECK(script.Count() <= flickerscribe::kMaxLines);
    if (result.lineLimitReached) FUZZ_CHECK(script.Count() == flickerscribe::kMaxLines);
    FUZZ_CHECK(questions <= static_cast<int>(rows.size()));
    for (int i = 1; i <= script.Count(); ++i) {
        const flickerscribe::AnimationLine& line = script.LineAt(i);
        FUZZ_CHECK(line.Time == "15");
        FUZZ_CHECK(line.Action == "[none]");
    }
    return 0;
}
