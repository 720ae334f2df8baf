#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "colour/Pane.h"

namespace flickerscribe {

// A pane held in memory, behaving like the rich text box the panes are built
// on, so the render and encode walks and the windows' logic run without one.
// - Unpainted text is black. Selection writes clamp to the text, and forget a
//   pending insertion colour (the caret moved).
// - SetSelColour colours the selection, or with none sets the pending colour.
//   SelColour reads the first selected character's colour; with no selection
//   the pending colour, else the one before the caret, else black.
// - SetSelText inserts in the colour SelColour reads, caret behind it.
// - SetText (caret at 0) and SetRuns (caret at the end) forget the pending colour.
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
