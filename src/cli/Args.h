#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace flickerscribe::cli {

inline constexpr std::string_view kProgramName = "flickerscribe-cli";

// How the program ends.
enum ExitStatus : int {
    kExitOk = 0,
    kExitFileError = 1,  // a file that can't be read or written
    kExitUsage = 2,      // the command line doesn't fit the command
    kExitLineLimit = 3,  // the 32767-line limit stopped the work; what stood was written
};

struct OptionSyntax {
    std::string_view name;       // with its dashes: "--output"
    std::string_view valueName;  // "FILE"; empty for an option that takes no value
    std::string_view help;
};

// What a command accepts. Every option is optional; --help is always there.
// The positional arguments are all required, in this order.
struct CommandSyntax {
    std::string_view name;
    std::string_view summary;  // one line, for the list of commands
    std::string_view details;  // more lines for the command's own help; may be empty
    std::vector<OptionSyntax> options;
    std::vector<std::string_view> positionals;
    bool lastRepeats = false;  // the last positional may be given more than once
};

// The arguments of one command, as given. Options keep their order, so an
// option given twice has all its values.
class ParsedArgs {
public:
    bool Has(std::string_view option) const;
    // The value last given to the option.
    std::optional<std::string> Value(std::string_view option) const;
    std::vector<std::string> Values(std::string_view option) const;
    const std::vector<std::string>& Positionals() const { return positionals_; }
    // Every option with its value ("" for a flag), in the order given.
    const std::vector<std::pair<std::string, std::string>>& Options() const { return options_; }

    void AddOption(std::string name, std::string value) {
        options_.emplace_back(std::move(name), std::move(value));
    }
    void AddPositional(std::string value) { positionals_.push_back(std::move(value)); }

private:
    std::vector<std::pair<std::string, std::string>> options_;
    std::vector<std::string> positionals_;
};

struct ParseOutcome {
    enum class Kind { Run, Help, UsageError };
    Kind kind = Kind::Run;
    ParsedArgs args;
    std::string error;  // for UsageError
};

// Reads the arguments behind the command's name. An option's value is the
// next argument whatever it looks like ("--name -=X=-"), or follows an '='
// in the same argument. A lone "-" is a positional argument (standard input),
// and everything behind "--" is positional too.
ParseOutcome ParseArgs(const CommandSyntax& syntax, std::span<const std::string> args);

// "usage: flickerscribe-cli generate [--output FILE] INPUT"
std::string UsageLine(const CommandSyntax& syntax);
// The usage line, the summary, the details and one line for each option.
std::string CommandHelp(const CommandSyntax& syntax);

// Writes the message and the command's usage to standard error; gives
// kExitUsage. For checks a command makes beyond what ParseArgs knows.
int UsageError(const CommandSyntax& syntax, std::string_view message);

}  // namespace flickerscribe::cli
