#include <cstdio>
#include <string>

#include "cli/Commands.h"
#include "cli/Terminal.h"
#include "colour/ColouredText.h"

namespace flickerscribe::cli {
namespace {

// "FF0000": red first, whatever the layout of the colour value.
std::string HexColour(Colour colour) {
    char hex[7];
    std::snprintf(hex, sizeof hex, "%02X%02X%02X", RedOf(colour), GreenOf(colour), BlueOf(colour));
    return hex;
}

std::string AnsiColour(int layer, Colour colour) {
    return "\x1b[" + std::to_string(layer) + ";2;" + std::to_string(RedOf(colour)) + ";" +
           std::to_string(GreenOf(colour)) + ";" + std::to_string(BlueOf(colour)) + "m";
}

// One line a pane character: its colour, a tab, the character.
std::string RunsListing(const std::vector<ColouredRun>& runs) {
    std::string out;
    for (const ColouredRun& run : runs) {
        const std::string hex = HexColour(run.colour);
        for (char c : run.text) {
            out += hex;
            out += '\t';
            out += c;
            out += '\n';
        }
    }
    return out;
}

// The pane's characters in their colours on the pane's grey.
std::string AnsiPicture(const std::vector<ColouredRun>& runs) {
    std::string out = AnsiColour(48, kPaneGrey);
    for (const ColouredRun& run : runs) out += AnsiColour(38, run.colour) + run.text;
    out += "\x1b[0m\n";
    return out;
}

const CommandSyntax kRenderSyntax{
    .name = "render",
    .summary = "show a coded name in its colours, as the preview pane shows it",
    .details =
        "TEXT holds caret codes: ^1 red, ^2 green, ^3 yellow, ^4 blue, ^5 cyan,\n"
        "^6 magenta, ^7 white, ^8 black. A TEXT that begins with - goes behind --.",
    .options = {{"--runs", "", "one line a character: colour as RRGGBB, a tab, the character"}},
    .positionals = {"TEXT"},
};

int RunRender(const ParsedArgs& args) {
    const auto text = TextArgument(args.Positionals().front());
    if (!text) return UsageError(kRenderSyntax, NotUtf8("TEXT"));
    const auto runs = RenderRuns(*text);
    return WriteResult(std::nullopt, args.Has("--runs") ? RunsListing(runs) : AnsiPicture(runs));
}

}  // namespace

const Command kRenderCommand{kRenderSyntax, RunRender};

}  // namespace flickerscribe::cli
