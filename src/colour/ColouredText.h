#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "colour/Pane.h"

namespace flickerscribe {

// What a render puts into a pane for a coded text: its shown characters in
// their colours, neighbours of one colour merged into one run.
std::vector<ColouredRun> RenderRuns(std::string_view codedText);

// Replaces the pane's content by the coloured characters of `codedText`.
void RenderCodedText(std::string_view codedText, Pane& pane);

// The coded text of a sequence of coloured characters: a code goes in front of
// each character whose colour differs from the one before, the first being
// compared with `startColour`.
std::string EncodeRuns(const std::vector<ColouredRun>& runs, Colour startColour);

// The coded text of the whole pane.
std::string EncodeColouredText(const Pane& pane, Colour startColour);

}  // namespace flickerscribe
