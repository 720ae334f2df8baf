#include "cli/Args.h"

#include <algorithm>

#include "cli/Terminal.h"

namespace flickerscribe::cli {
namespace {

const OptionSyntax* FindOption(const CommandSyntax& syntax, std::string_view name) {
    const auto it = std::find_if(syntax.options.begin(), syntax.options.end(),
                                 [&](const OptionSyntax& o) { return o.name == name; });
    return it == syntax.options.end() ? nullptr : &*it;
}

bool IsHelp(std::string_view arg) {
    return arg == "--help" || arg == "-h";
}

ParseOutcome Fail(std::string message) {
    ParseOutcome outcome;
    outcome.kind = ParseOutcome::Kind::UsageError;
    outcome.error = std::move(message);
    return outcome;
}

}  // namespace

bool ParsedArgs::Has(std::string_view option) const {
    return std::any_of(options_.begin(), options_.end(), [&](const auto& o) { return o.first == option; });
}

std::optional<std::string> ParsedArgs::Value(std::string_view option) const {
    for (auto it = options_.rbegin(); it != options_.rend(); ++it) {
        if (it->first == option) return it->second;
    }
    return std::nullopt;
}

std::vector<std::string> ParsedArgs::Values(std::string_view option) const {
    std::vector<std::string> values;
    for (const auto& [name, value] : options_) {
        if (name == option) values.push_back(value);
    }
    return values;
}

ParseOutcome ParseArgs(const CommandSyntax& syntax, std::span<const std::string> args) {
    ParseOutcome outcome;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (optionsEnded || arg == "-" || !arg.starts_with('-')) {
            outcome.args.AddPositional(arg);
            continue;
        }
        if (arg == "--") {
            optionsEnded = true;
            continue;
        }
        if (IsHelp(arg)) {
            outcome.kind = ParseOutcome::Kind::Help;
            return outcome;
        }
        const auto equals = arg.find('=');
        const std::string name = arg.substr(0, equals);
        const OptionSyntax* option = FindOption(syntax, name);
        if (option == nullptr) {
            return Fail("unknown option " + arg + " (a text that begins with '-' goes behind --)");
        }
        if (option->valueName.empty()) {
            if (equals != std::string::npos) return Fail("option " + name + " takes no value");
            outcome.args.AddOption(name, {});
        } else if (equals != std::string::npos) {
            outcome.args.AddOption(name, arg.substr(equals + 1));
        } else if (i + 1 < args.size()) {
            outcome.args.AddOption(name, args[++i]);
        } else {
            return Fail("option " + name + " needs a value " + std::string(option->valueName));
        }
    }

    const auto& given = outcome.args.Positionals();
    const std::size_t wanted = syntax.positionals.size();
    if (given.size() < wanted) return Fail("missing " + std::string(syntax.positionals[given.size()]));
    if (given.size() > wanted && !(syntax.lastRepeats && wanted > 0)) {
        return Fail("unexpected argument " + given[wanted]);
    }
    return outcome;
}

std::string UsageLine(const CommandSyntax& syntax) {
    std::string line = "usage: " + std::string(kProgramName) + " " + std::string(syntax.name);
    for (const OptionSyntax& option : syntax.options) {
        line += " [" + std::string(option.name);
        if (!option.valueName.empty()) line += " " + std::string(option.valueName);
        line += "]";
    }
    for (std::string_view positional : syntax.positionals) line += " " + std::string(positional);
    if (syntax.lastRepeats && !syntax.positionals.empty()) line += "...";
    return line;
}

std::string CommandHelp(const CommandSyntax& syntax) {
    std::string help = UsageLine(syntax) + "\n\n" + std::string(syntax.summary) + "\n";
    if (!syntax.details.empty()) help += std::string(syntax.details) + "\n";
    std::vector<std::pair<std::string, std::string_view>> rows;
    for (const OptionSyntax& option : syntax.options) {
        std::string left = std::string(option.name);
        if (!option.valueName.empty()) left += " " + std::string(option.valueName);
        rows.emplace_back(std::move(left), option.help);
    }
    rows.emplace_back("--help", "show this help");
    std::size_t width = 0;
    for (const auto& row : rows) width = std::max(width, row.first.size());
    help += "\nOptions:\n";
    for (const auto& [left, text] : rows) {
        help += "  " + left + std::string(width - left.size() + 2, ' ') + std::string(text) + "\n";
    }
    return help;
}

int UsageError(const CommandSyntax& syntax, std::string_view message) {
    Complain(message);
    WriteNative(stderr, UsageLine(syntax) + "\n");
    return kExitUsage;
}

}  // namespace flickerscribe::cli
