#include <string>

#include "cli/Commands.h"
#include "cli/Terminal.h"
#include "document/AnimationFile.h"
#include "script/ConfigImport.h"

namespace flickerscribe::cli {
namespace {

// The animation file of a game script: one line for each `set name`.
int RunImport(const ParsedArgs& args) {
    const std::string& input = args.Positionals().front();
    const auto data = ReadInput(input);
    if (!data) return CannotRead(input);

    AnimationScript script;
    const bool cut = ImportBytes(*data, script) == LoadStatus::Truncated;
    if (cut) LineLimitReached();

    const int written = WriteResult(args.Value("--output"), AnimationFileBytes(script));
    if (written != kExitOk) return written;
    return cut ? kExitLineLimit : kExitOk;
}

}  // namespace

const Command kImportCommand{
    {
        .name = "import",
        .summary = "read a game script (.cfg) into an animation file (.fsq)",
        .details = "Each set name statement makes one line, timed by a wait behind it; everything\n"
                   "else is passed over. - reads standard input.",
        .options = {{"--output", "FILE", "write the animation file to FILE instead of standard output"}},
        .positionals = {"INPUT"},
    },
    RunImport,
};

}  // namespace flickerscribe::cli
