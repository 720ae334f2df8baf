#include <string>

#include "cli/Commands.h"
#include "cli/Terminal.h"
#include "document/AnimationFile.h"
#include "script/ScriptText.h"

namespace flickerscribe::cli {
namespace {

// The script text of an animation file, ended by CR LF as a saved script is.
int RunGenerate(const ParsedArgs& args) {
    const std::string& input = args.Positionals().front();
    AnimationScript script;
    bool cut = false;
    if (!ReadAnimationInput(input, script, cut)) return kExitFileError;

    std::string text =
        BuildScriptText(script, [](const std::string& message) { WriteText(stderr, message + "\n"); });
    text += kScriptLineEnd;
    const int written = WriteResult(args.Value("--output"), text);
    if (written != kExitOk) return written;
    return cut ? kExitLineLimit : kExitOk;
}

}  // namespace

const Command kGenerateCommand{
    {
        .name = "generate",
        .summary = "write the game script (.cfg) of an animation file",
        .details = "INPUT is a project file (.fsq) or a plain list of names, one a line behind a\n"
                   "first line that is skipped; - reads standard input. A time that is no number\n"
                   "is reported on standard error and waits 15.",
        .options = {{"--output", "FILE", "write the script to FILE instead of standard output"}},
        .positionals = {"INPUT"},
    },
    RunGenerate,
};

}  // namespace flickerscribe::cli
