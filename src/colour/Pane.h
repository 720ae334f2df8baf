#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "colour/Palette.h"

namespace flickerscribe {

// A stretch of characters of one colour in a pane.
struct ColouredRun {
    std::string text;
    Colour colour = kBlack;

    bool operator==(const ColouredRun&) const = default;
};

// A pane of coloured characters: what the render and encode walks need of a
// rich text box. Positions are 0-based. A line break in a multi-line pane is
// the one character '\n'.
//
// Besides the single-character operations there are two bulk ones that must
// give exactly what the per-character walks would give; they let a widget be
// filled and read in one go rather than one round trip per character.
class Pane {
public:
    virtual ~Pane() = default;

    // All characters, without colours.
    virtual std::string Text() const = 0;
    // Replaces the whole content; the empty string empties the pane.
    virtual void SetText(std::string_view text) = 0;

    virtual int SelStart() const = 0;
    // A position behind the last character is taken as the end of the text.
    virtual void SetSelStart(int position) = 0;
    virtual int SelLength() const = 0;
    // Cut off at the end of the text.
    virtual void SetSelLength(int length) = 0;
    // The colour of the first selected character. With an empty selection: the
    // colour given to SetSelColour since the caret last moved, else the colour
    // of the character in front of the caret (the colour that typing there
    // would take), else black, the colour of text never painted.
    virtual Colour SelColour() const = 0;
    // Colours the selection; with an empty selection, what is inserted next.
    virtual void SetSelColour(Colour colour) = 0;
    // Replaces the selection by `text` in the colour last given to SetSelColour
    // (the colour SelColour reads), leaving the caret behind it. The empty text
    // with an empty selection changes nothing.
    virtual void SetSelText(std::string_view text) = 0;

    virtual bool Locked() const = 0;
    virtual void SetLocked(bool locked) = 0;

    // Replaces the whole content by these runs.
    virtual void SetRuns(const std::vector<ColouredRun>& runs) = 0;
    // The content as runs, neighbours of one colour merged.
    virtual std::vector<ColouredRun> Runs() const = 0;
};

}  // namespace flickerscribe
