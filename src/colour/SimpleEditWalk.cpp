#include "colour/SimpleEditWalk.h"

#include <string_view>

#include "colour/ColouredText.h"

namespace flickerscribe {

std::vector<std::string> SplitColouredLines(const std::vector<ColouredRun>& runs) {
    std::vector<std::string> lines;
    Colour last = kWhite;
    std::vector<ColouredRun> line;

    const auto finishLine = [&] {
        std::string piece = EncodeRuns(line, last);
        // The colour of the line's last character is what the next line is
        // compared with; an empty line passes the colour on unchanged.
        for (auto run = line.rbegin(); run != line.rend(); ++run) {
            if (!run->text.empty()) {
                last = run->colour;
                break;
            }
        }
        if (piece.find_first_not_of(' ') != std::string::npos) lines.push_back(std::move(piece));
        line.clear();
    };

    for (const ColouredRun& run : runs) {
        const std::string_view text = run.text;
        std::size_t start = 0;
        while (true) {
            const std::size_t lineBreak = text.find('\n', start);
            const std::string_view part = text.substr(start, lineBreak - start);
            if (!part.empty()) line.push_back({std::string(part), run.colour});
            if (lineBreak == std::string_view::npos) break;
            finishLine();
            start = lineBreak + 1;
        }
    }
    finishLine();
    return lines;
}

}  // namespace flickerscribe
