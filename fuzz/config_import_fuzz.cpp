// The config importer on arbitrary bytes: it never fails on data, never passes
// the line limit, leaves no double quote in a Text, and a Time it sets is
// either the default or a number.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "FuzzChecks.h"
#include "colour/NumberText.h"
#include "document/AnimationScript.h"
#include "script/ConfigImport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    flickerscribe::AnimationScript script;
    // A line the import can't make: it takes every double quote out.
    script.AppendLine("left \"over\"", "1", "[none]");
    const flickerscribe::LoadStatus status = flickerscribe::ImportBytes(bytes, script);
    FUZZ_CHECK(status != flickerscribe::LoadStatus::ReadFailed);
    FUZZ_CHECK(script.Count() <= flickerscribe::kMaxLines);
    if (status == flickerscribe::LoadStatus::Truncated)
        FUZZ_CHECK(script.Count() == flickerscribe::kMaxLines);
    for (int i = 1; i <= script.Count(); ++i) {
        const flickerscribe::AnimationLine& line = script.LineAt(i);
        FUZZ_CHECK(line.Text.find('"') == std::string_view::npos);
        FUZZ_CHECK(line.Text.find('\r') == std::string_view::npos);
        FUZZ_CHECK(line.Action == "[none]");
        FUZZ_CHECK(line.Time == "15" || flickerscribe::IsNumberText(line.Time));
    }
    // Taking the quotes out twice changes nothing more.
    const std::string once = flickerscribe::RemoveQuotes(bytes);
    FUZZ_CHECK(flickerscribe::RemoveQuotes(once) == once);
    FUZZ_CHECK(once.size() <= bytes.size());
    return 0;
}
