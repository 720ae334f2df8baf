#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "cli/Args.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Terminal.h"

namespace flickerscribe::cli {
namespace {

// Every command of the program, in the order the overview lists them. A new
// command is one line here and one declaration in Commands.h.
const Command* const kCommands[] = {
    &kGenerateCommand, &kImportCommand, &kRenderCommand, &kEffectsCommand, &kPictureCommand,
};

std::string Overview() {
    std::string text = "usage: " + std::string(kProgramName) + " COMMAND [OPTIONS] ARGUMENTS\n       " +
                       std::string(kProgramName) + " COMMAND --help\n\nCommands:\n";
    std::size_t width = 0;
    for (const Command* command : kCommands) width = std::max(width, command->syntax.name.size());
    for (const Command* command : kCommands) {
        text += "  " + std::string(command->syntax.name) +
                std::string(width - command->syntax.name.size() + 2, ' ') +
                std::string(command->syntax.summary) + "\n";
    }
    text +=
        "\nExit status: 0 done, 1 a file could not be read or written, 2 usage error,\n"
        "3 the 32767-line limit stopped the work (the lines that stood were written).\n";
    return text;
}

int Run(const Command& command, std::span<const std::string> args) {
    ParseOutcome outcome = ParseArgs(command.syntax, args);
    switch (outcome.kind) {
        case ParseOutcome::Kind::Help:
            WriteNative(stdout, CommandHelp(command.syntax));
            return kExitOk;
        case ParseOutcome::Kind::UsageError:
            return UsageError(command.syntax, outcome.error);
        case ParseOutcome::Kind::Run:
            break;
    }
    return command.run(outcome.args);
}

int Dispatch(const std::vector<std::string>& args) {
    if (args.empty()) {
        WriteNative(stderr, Overview());
        return kExitUsage;
    }
    if (args[0] == "--help" || args[0] == "-h") {
        WriteNative(stdout, Overview());
        return kExitOk;
    }
    for (const Command* command : kCommands) {
        if (command->syntax.name == args[0]) return Run(*command, std::span(args).subspan(1));
    }
    Complain("unknown command " + args[0]);
    WriteNative(stderr, Overview());
    return kExitUsage;
}

}  // namespace
}  // namespace flickerscribe::cli

int main(int argc, char** argv) {
    return flickerscribe::cli::Dispatch(flickerscribe::cli::ProgramArguments(argc, argv));
}
