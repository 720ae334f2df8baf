#include <cstdio>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "cli/Terminal.h"
#include "document/AnimationFile.h"
#include "effects/EffectRun.h"

namespace flickerscribe::cli {
namespace {

const CommandSyntax kEffectsSyntax{
    .name = "effects",
    .summary = "make an animation file (.fsq) from a name, a clan tag and a list of effects",
    .details =
        "Each --effect adds one row (\"Wave 2\", \"Bounce\" or \"Wave forward\"), and the\n"
        "rows run in the order given. --param1 and --param2 belong to the row added last;\n"
        "the repeat count of Bounce is its --param1. A repeat count of 5 or more is\n"
        "asked about on the terminal, or answered by --answer; without a terminal the\n"
        "answer is no.",
    .options =
        {
            {"--name", "TEXT", "the player name, with caret colour codes"},
            {"--tag", "TEXT", "the clan tag; none when absent"},
            {"--reverse", "", "put the clan tag behind the name instead of in front"},
            {"--answer", "yes|no", "the answer to the repeat question of Bounce"},
            {"--output", "FILE", "write the animation file to FILE instead of standard output"},
            {"--effect", "NAME", "add an effect row"},
            {"--param1", "TEXT", "Parameter 1 of the row added last"},
            {"--param2", "TEXT", "Parameter 2 of the row added last"},
        },
    .positionals = {},
};

// The rows in the order given: each --effect starts one, and --param1 and
// --param2 fill in the row started last. Empty with `error` set when a
// parameter comes before any effect or a text is no valid UTF-8.
std::vector<EffectRow> EffectRows(const ParsedArgs& args, std::string& error) {
    std::vector<EffectRow> rows;
    for (const auto& [option, value] : args.Options()) {
        if (option != "--effect" && option != "--param1" && option != "--param2") continue;
        auto text = TextArgument(value);
        if (!text) {
            error = NotUtf8(option);
            return {};
        }
        if (option == "--effect") {
            rows.push_back({std::move(*text)});
        } else if (rows.empty()) {
            error = option + " needs an --effect before it";
            return {};
        } else {
            (option == "--param1" ? rows.back().Parameter1 : rows.back().Parameter2) = std::move(*text);
        }
    }
    return rows;
}

// Asks on the terminal: the question on standard error, y or n from standard input.
bool AskOnTerminal(const std::string& title, const std::string& text) {
    WriteText(stderr, title + " " + text + " [y/n] ");
    std::fflush(stderr);
    char line[64];
    if (std::fgets(line, sizeof line, stdin) == nullptr) return false;
    std::size_t i = 0;
    while (line[i] == ' ') ++i;
    return line[i] == 'y' || line[i] == 'Y';
}

YesNoQuestion Answerer(const std::optional<std::string>& answer) {
    if (answer) {
        const bool yes = *answer == "yes";
        return [yes](const std::string&, const std::string&) { return yes; };
    }
    if (IsTerminal(stdin)) return AskOnTerminal;
    return [](const std::string&, const std::string& text) {
        WriteText(stderr, std::string(kProgramName) + ": " + text +
                              " Answered no: standard input is not a terminal (see --answer).\n");
        return false;
    };
}

// Runs an effect list on a new animation, as the wizard's Finish does, and
// writes the animation file.
int RunEffects(const ParsedArgs& args) {
    const auto answer = args.Value("--answer");
    if (answer && *answer != "yes" && *answer != "no") {
        return UsageError(kEffectsSyntax, "--answer takes yes or no, not " + *answer);
    }
    std::string error;
    const std::vector<EffectRow> rows = EffectRows(args, error);
    if (!error.empty()) return UsageError(kEffectsSyntax, error);

    const auto name = TextArgument(args.Value("--name").value_or(""));
    if (!name) return UsageError(kEffectsSyntax, NotUtf8("--name"));
    const auto tag = TextArgument(args.Value("--tag").value_or(""));
    if (!tag) return UsageError(kEffectsSyntax, NotUtf8("--tag"));

    AnimationScript script;
    const EffectRunResult result =
        RunEffectList(script, *name, *tag, args.Has("--reverse"), rows, Answerer(answer));
    if (result.inputRefused) {
        return UsageError(kEffectsSyntax, "the name and the clan tag hold at most " +
                                              std::to_string(kMaxEffectTextLength) + " characters each");
    }
    if (result.lineLimitReached) LineLimitReached();

    const int written = WriteResult(args.Value("--output"), AnimationFileBytes(script));
    if (written != kExitOk) return written;
    return result.lineLimitReached ? kExitLineLimit : kExitOk;
}

}  // namespace

const Command kEffectsCommand{kEffectsSyntax, RunEffects};

}  // namespace flickerscribe::cli
