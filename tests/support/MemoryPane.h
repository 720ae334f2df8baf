#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "colour/Pane.h"

namespace flickerscribe {

// A pane in memory that behaves like the rich text box, for tests without one.
// Unpainted text is black; selection writes clamp to the text. SetSelColour
// colours the selection, or with none sets a pending colour, which a moved
// caret, SetText (caret at 0) and SetRuns (caret at the end) forget. SelColour
// reads the first selected character's colour; with no selection the pending
// colour, else the one before the caret, else black. SetSelText inserts in it.
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
