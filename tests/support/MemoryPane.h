#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "colour/Pane.h"

namespace flickerscribe {

// A pane held in memory: one colour per character, a selection, and the
// colour waiting for the next insertion. It behaves like the rich text box the
// panes are built on, so the render and encode walks, and the windows' logic,
// can run without a widget.
//
// - Text never painted (SetText, or inserted into an empty pane with no colour
//   chosen) is black, the box's default colour.
// - SetSelStart: negative is 0, past the end is the end; the selection becomes
//   empty there (SelLength 0). SetSelLength: negative is 0, cut at the end.
//   Every write of either forgets a pending insertion colour, as the caret
//   counts as moved.
// - SetSelColour with a selection colours it; with an empty selection it sets
//   the pending colour: what SetSelText inserts next.
// - SelColour read: the colour of the first selected character; with an empty
//   selection the pending colour if one was set since the caret last moved,
//   else the colour of the character in front of the caret, else black.
// - SetSelText replaces the selection by the text in the colour SelColour reads
//   at that moment (the colour last given to SetSelColour, or the colour the
//   place already had), and leaves the caret behind the inserted text with an
//   empty selection. The empty text with an empty selection changes nothing.
// - SetText and SetRuns replace everything and forget a pending colour;
//   SetText puts the caret at 0, SetRuns at the end (where a render walk
//   leaves it).
// - Locked only records the flag: the routines can always write.
class MemoryPane : public Pane {
public:
    MemoryPane() = default;

    std::string Text() const override { return text_; }
    void SetText(std::string_view text) override;

    int SelStart() const override { return selStart_; }
    void SetSelStart(int position) override;
    int SelLength() const override { return selLength_; }
    void SetSelLength(int length) override;
    Colour SelColour() const override;
    void SetSelColour(Colour colour) override;
    void SetSelText(std::string_view text) override;

    bool Locked() const override { return locked_; }
    void SetLocked(bool locked) override { locked_ = locked; }

    void SetRuns(const std::vector<ColouredRun>& runs) override;
    std::vector<ColouredRun> Runs() const override;

    // The colour of the character at a 0-based position (0 to length - 1).
    Colour ColourAt(int position) const { return colours_[static_cast<std::size_t>(position)]; }
    int Length() const { return static_cast<int>(text_.size()); }

private:
    std::string text_;
    std::vector<Colour> colours_;  // one per character of text_
    int selStart_ = 0;
    int selLength_ = 0;
    std::optional<Colour> pending_;
    bool locked_ = false;
};

}  // namespace flickerscribe
