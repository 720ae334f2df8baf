#pragma once

#include <optional>

#include "colour/Pane.h"

class QTextEdit;

namespace flickerscribe::ui {

// The pane operations over a QTextEdit, so that the core's render and encode
// walks run on a real widget. Bulk reads and writes go by runs, in one edit
// block with one character format per colour, never a round trip per
// character. A paragraph break of the widget is the pane character '\n'.
// Text that was never painted has the pane's default colour, black (which
// styleGreyPane makes the widget show as black).
class RichPane : public Pane {
public:
    explicit RichPane(QTextEdit* edit);

    QTextEdit* widget() const { return edit_; }

    std::string Text() const override;
    void SetText(std::string_view text) override;
    int SelStart() const override;
    void SetSelStart(int position) override;
    int SelLength() const override;
    void SetSelLength(int length) override;
    Colour SelColour() const override;
    void SetSelColour(Colour colour) override;
    void SetSelText(std::string_view text) override;
    bool Locked() const override;
    void SetLocked(bool locked) override;
    void SetRuns(const std::vector<ColouredRun>& runs) override;
    std::vector<ColouredRun> Runs() const override;

private:
    QTextEdit* edit_;
    // A colour given to SetSelColour with nothing selected, and where the caret
    // stood then: it holds for the next insertion until the caret moves.
    std::optional<Colour> pending_;
    int pendingAt_ = 0;
};

}  // namespace flickerscribe::ui
