#include "MemoryPane.h"

#include <algorithm>

namespace flickerscribe {

void MemoryPane::SetText(std::string_view text) {
    text_.assign(text);
    colours_.assign(text_.size(), kBlack);
    selStart_ = 0;
    selLength_ = 0;
    pending_.reset();
}

void MemoryPane::SetSelStart(int position) {
    selStart_ = std::clamp(position, 0, Length());
    selLength_ = 0;
    pending_.reset();
}

void MemoryPane::SetSelLength(int length) {
    selLength_ = std::clamp(length, 0, Length() - selStart_);
    pending_.reset();
}

Colour MemoryPane::SelColour() const {
    if (selLength_ > 0) return ColourAt(selStart_);
    if (pending_) return *pending_;
    if (selStart_ > 0) return ColourAt(selStart_ - 1);
    return kBlack;
}

void MemoryPane::SetSelColour(Colour colour) {
    if (selLength_ == 0) {
        pending_ = colour;
        return;
    }
    const auto first = colours_.begin() + selStart_;
    std::fill(first, first + selLength_, colour);
}

void MemoryPane::SetSelText(std::string_view text) {
    if (text.empty() && selLength_ == 0) return;
    const Colour colour = SelColour();
    const auto at = static_cast<std::size_t>(selStart_);
    const auto count = static_cast<std::size_t>(selLength_);
    text_.replace(at, count, text);
    colours_.erase(colours_.begin() + selStart_, colours_.begin() + selStart_ + selLength_);
    colours_.insert(colours_.begin() + selStart_, text.size(), colour);
    selStart_ += static_cast<int>(text.size());
    selLength_ = 0;
    pending_.reset();
}

void MemoryPane::SetRuns(const std::vector<ColouredRun>& runs) {
    text_.clear();
    colours_.clear();
    for (const auto& run : runs) {
        text_ += run.text;
        colours_.insert(colours_.end(), run.text.size(), run.colour);
    }
    selStart_ = Length();
    selLength_ = 0;
    pending_.reset();
}

std::vector<ColouredRun> MemoryPane::Runs() const {
    std::vector<ColouredRun> runs;
    std::size_t i = 0;
    while (i < text_.size()) {
        std::size_t end = i + 1;
        while (end < text_.size() && colours_[end] == colours_[i]) ++end;
        runs.push_back(ColouredRun{text_.substr(i, end - i), colours_[i]});
        i = end;
    }
    return runs;
}

}  // namespace flickerscribe
