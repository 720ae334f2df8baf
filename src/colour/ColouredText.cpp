#include "colour/ColouredText.h"

#include "colour/NumberText.h"

namespace flickerscribe {
namespace {

// Appends one shown character, growing the last run when it has the same
// colour, so that neighbours of one colour end up in one run.
void AddCharacter(std::vector<ColouredRun>& runs, char c, Colour colour) {
    if (runs.empty() || runs.back().colour != colour) runs.push_back(ColouredRun{{}, colour});
    runs.back().text.push_back(c);
}

}  // namespace

std::vector<ColouredRun> RenderRuns(std::string_view codedText) {
    std::vector<ColouredRun> runs;
    Colour inForce = ColourFromDigit("0");
    const std::size_t n = codedText.size();
    std::size_t i = 0;  // 0-based here; the walk's position is i + 1
    while (i < n) {
        if (codedText[i] == '^') {
            // The caret and whatever stands behind it go together; only a
            // digit there changes the colour. The end of the text is no digit.
            ++i;
            if (i < n && IsNumberText(codedText.substr(i, 1)))
                inForce = ColourFromDigit(codedText.substr(i, 1));
            ++i;
        }
        // The character behind a code or a dropped pair is shown untested.
        if (i < n) AddCharacter(runs, codedText[i], inForce);
        ++i;
    }
    return runs;
}

void RenderCodedText(std::string_view codedText, Pane& pane) {
    pane.SetRuns(RenderRuns(codedText));
}

std::string EncodeRuns(const std::vector<ColouredRun>& runs, Colour startColour) {
    std::size_t size = 0;
    for (const auto& run : runs) size += run.text.size() + 2;
    std::string out;
    out.reserve(size);
    Colour last = startColour;
    for (const auto& run : runs) {
        if (run.text.empty()) continue;
        // A code goes in only where the colour changes, in front of the first
        // character of the new colour; colours compare as values.
        if (run.colour != last) {
            last = run.colour;
            out.push_back('^');
            out += DigitFromColour(run.colour);
        }
        out += run.text;
    }
    return out;
}

std::string EncodeColouredText(const Pane& pane, Colour startColour) {
    return EncodeRuns(pane.Runs(), startColour);
}

}  // namespace flickerscribe
