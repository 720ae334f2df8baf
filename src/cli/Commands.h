#pragma once

#include "cli/Args.h"

namespace flickerscribe::cli {

// One command of the program: what it accepts, and what it does with the
// arguments once they fit. `run` gives the exit status.
struct Command {
    CommandSyntax syntax;
    int (*run)(const ParsedArgs& args);
};

// Each defined in the source file of the same name.
extern const Command kGenerateCommand;
extern const Command kImportCommand;
extern const Command kRenderCommand;
extern const Command kEffectsCommand;
extern const Command kPictureCommand;

}  // namespace flickerscribe::cli
