#include <QGuiApplication>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "cli/Terminal.h"
#include "document/AnimationFile.h"
#include "picture/AnimatedPicture.h"

namespace flickerscribe::cli {
namespace {

const CommandSyntax kPictureSyntax{
    .name = "picture",
    .summary = "draw an animation file as an animated picture (GIF)",
    .details =
        "INPUT is a project file (.fsq) or a plain list of names, as for generate; - reads\n"
        "standard input. Each line is one frame of 100 ms, drawn as the preview pane draws\n"
        "it, and the picture loops for ever: the same bytes as the window's File, Export\n"
        "animated picture. A picture goes to a file or a pipe, never to a terminal; an\n"
        "animation without lines is refused with status 1.",
    .options = {{"--output", "FILE", "write the picture to FILE instead of standard output"}},
    .positionals = {"INPUT"},
};

// Qt draws the text: its GUI module on the offscreen platform, which needs no
// display, whatever QT_QPA_PLATFORM says.
std::optional<std::string> Draw(const std::vector<std::string>& texts) {
    static char program[] = "flickerscribe-cli";
    static char platformOption[] = "-platform";
    static char offscreen[] = "offscreen";
    char* argv[] = {program, platformOption, offscreen, nullptr};
    int argc = 3;
    // Qt's notes about its surroundings (no runtime folder, say) are none of
    // the user's business here; only its grave errors reach standard error.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type == QtCriticalMsg || type == QtFatalMsg) Complain(message.toLocal8Bit().toStdString());
    });
    QGuiApplication application(argc, argv);
    return picture::DrawAnimatedPicture(texts);
}

int RunPicture(const ParsedArgs& args) {
    const auto output = args.Value("--output");
    if ((!output || *output == "-") && IsTerminal(stdout))
        return UsageError(kPictureSyntax, "a picture is no text for the terminal: give --output FILE");

    const std::string& input = args.Positionals().front();
    AnimationScript script;
    bool cut = false;
    if (!ReadAnimationInput(input, script, cut)) return kExitFileError;
    if (script.Count() == 0) {
        Complain("there is no animation to draw in " + input);
        return kExitFileError;
    }

    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(script.Count()));
    for (const AnimationLine& line : script.Lines()) texts.push_back(line.Text);
    const int written = WriteResult(output, *Draw(texts));
    if (written != kExitOk) return written;
    return cut ? kExitLineLimit : kExitOk;
}

}  // namespace

const Command kPictureCommand{kPictureSyntax, RunPicture};

}  // namespace flickerscribe::cli
