#pragma once

#include <string>
#include <vector>

#include "colour/Pane.h"

namespace flickerscribe {

// Cuts a multi-line pane, given as its coloured runs with '\n' as the line
// break, into the coded texts of its text lines, the way Simple edit saves
// them:
// - the colours are encoded as EncodeRuns does, starting from white, and the
//   last colour runs on across line breaks, so a text line that begins in the
//   colour the one before it ended in gets no code at its head;
// - a text line whose coded text holds nothing but blanks is left out (a line
//   of blanks in a new colour begins with a code and so is kept, and still
//   passes its colour on to the next line);
// - text that was never painted is black and gets "^8".
// Characters are copied as they are: a caret or digit typed by the user is
// not taken for a code.
std::vector<std::string> SplitColouredLines(const std::vector<ColouredRun>& runs);

}  // namespace flickerscribe
