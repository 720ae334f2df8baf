// The render and encode walks on arbitrary coded text, and the memory pane
// they fill: what a pane shows encodes to a text that renders the same again.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "FuzzChecks.h"
#include "MemoryPane.h"
#include "colour/ColouredText.h"
#include "colour/Palette.h"

namespace {

std::string Shown(const std::vector<flickerscribe::ColouredRun>& runs) {
    std::string text;
    for (const auto& run : runs) text += run.text;
    return text;
}

bool Merged(const std::vector<flickerscribe::ColouredRun>& runs) {
    for (std::size_t i = 0; i < runs.size(); ++i) {
        if (runs[i].text.empty()) return false;
        if (i > 0 && runs[i - 1].colour == runs[i].colour) return false;
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view coded(reinterpret_cast<const char*>(data), size);
    const std::vector<flickerscribe::ColouredRun> runs = flickerscribe::RenderRuns(coded);
    FUZZ_CHECK(Merged(runs));
    const std::string shown = Shown(runs);
    FUZZ_CHECK(shown.size() <= coded.size());

    // The pane holds exactly what the walk gave, and reads back the same.
    flickerscribe::MemoryPane pane;
    flickerscribe::RenderCodedText(coded, pane);
    FUZZ_CHECK(pane.Text() == shown);
    FUZZ_CHECK(pane.Runs() == runs);
    FUZZ_CHECK(pane.SelStart() == pane.Length() && pane.SelLength() == 0);

    // Encoding and rendering again gives the same coloured characters, as long
    // as no shown character is a caret (a shown caret would read as a code).
    const flickerscribe::Colour start = flickerscribe::ColourFromDigit("0");
    const std::string encoded = flickerscribe::EncodeColouredText(pane, start);
    FUZZ_CHECK(encoded == flickerscribe::EncodeRuns(runs, start));
    if (shown.find('^') == std::string::npos) {
        FUZZ_CHECK(flickerscribe::RenderRuns(encoded) == runs);
        // A text that is its own encoding is a fixed point of the round trip.
        FUZZ_CHECK(flickerscribe::EncodeRuns(flickerscribe::RenderRuns(encoded), start) == encoded);
    }

    // Writing the runs through the pane's per-character operations gives the
    // same content as the bulk write.
    if (size <= 256) {
        flickerscribe::MemoryPane typed;
        for (const auto& run : runs) {
            typed.SetSelStart(typed.Length());
            typed.SetSelColour(run.colour);
            typed.SetSelText(run.text);
        }
        FUZZ_CHECK(typed.Runs() == runs);
    }
    return 0;
}
