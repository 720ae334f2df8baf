// The project-file reader on arbitrary bytes: it never fails, never passes the
// line limit, reads every Action as "[none]", and what it read comes back the
// same after a save and a second read.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "FuzzChecks.h"
#include "document/AnimationFile.h"
#include "document/AnimationScript.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    flickerscribe::AnimationScript script;
    const flickerscribe::LoadStatus status = flickerscribe::LoadAnimationBytes(bytes, script);
    FUZZ_CHECK(status != flickerscribe::LoadStatus::ReadFailed);
    FUZZ_CHECK(script.Count() <= flickerscribe::kMaxLines);
    FUZZ_CHECK((status == flickerscribe::LoadStatus::Truncated) ==
                   (script.Count() == flickerscribe::kMaxLines) ||
               status == flickerscribe::LoadStatus::Loaded);
    if (status == flickerscribe::LoadStatus::Truncated)
        FUZZ_CHECK(script.Count() == flickerscribe::kMaxLines);
    FUZZ_CHECK(script.SelectedIndex() >= 0 && script.SelectedIndex() <= script.Count());
    for (int i = 1; i <= script.Count(); ++i) {
        const flickerscribe::AnimationLine& line = script.LineAt(i);
        FUZZ_CHECK(line.Action == "[none]");
        // A carriage return always ends a line, so no field can hold one.
        FUZZ_CHECK(line.Text.find('\r') == std::string_view::npos);
        FUZZ_CHECK(line.Time.find('\r') == std::string_view::npos);
    }

    const std::string saved = flickerscribe::AnimationFileBytes(script);
    flickerscribe::AnimationScript again;
    FUZZ_CHECK(flickerscribe::LoadAnimationBytes(saved, again) != flickerscribe::LoadStatus::ReadFailed);
    FUZZ_CHECK(again.Count() == script.Count());
    for (int i = 1; i <= script.Count(); ++i) FUZZ_CHECK(again.LineAt(i) == script.LineAt(i));
    FUZZ_CHECK(flickerscribe::AnimationFileBytes(again) == saved);
    return 0;
}
