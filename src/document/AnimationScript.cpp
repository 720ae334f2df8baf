#include "document/AnimationScript.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace flickerscribe {

bool AnimationScript::AppendLine(std::string text, std::string time, std::string action) {
    return InsertLine(Count() + 1, std::move(text), std::move(time), std::move(action));
}

bool AnimationScript::InsertLine(int index, std::string text, std::string time, std::string action) {
    if (IsFull() || index < 1 || index > Count() + 1) return false;
    if (auto* l = Notify()) l->AboutToInsert(index);
    lines_.insert(lines_.begin() + (index - 1),
                  AnimationLine{std::move(text), std::move(time), std::move(action)});
    if (auto* l = Notify()) l->Inserted(index);
    if (selected_ == 0) {
        SetSelected(index);  // the first line of an empty list becomes the selected one
    } else if (index <= selected_) {
        SetSelected(selected_ + 1);  // same line, one further down
    }
    return true;
}

bool AnimationScript::RemoveLine(int index) {
    if (!Valid(index)) return false;
    if (auto* l = Notify()) l->AboutToRemove(index);
    lines_.erase(lines_.begin() + (index - 1));
    if (auto* l = Notify()) l->Removed(index);
    if (lines_.empty()) {
        SetSelected(0);
    } else if (index < selected_) {
        SetSelected(selected_ - 1);
    } else if (index == selected_) {
        // The line that moves into the removed place, or the new last line.
        const int next = index > Count() ? Count() : index;
        if (next != selected_) {
            SetSelected(next);
        } else if (auto* l = Notify()) {
            l->SelectionChanged(selected_);  // same index, but another line
        }
    }
    return true;
}

void AnimationScript::ClearLines() {
    if (lines_.empty() && selected_ == 0) return;
    if (auto* l = Notify()) l->AboutToReset();
    lines_.clear();
    selected_ = 0;
    if (auto* l = Notify()) l->ResetDone();
}

std::vector<AnimationLine> AnimationScript::ExchangeLines(std::vector<AnimationLine> lines, int selected) {
    assert(lines.size() <= static_cast<std::size_t>(kMaxLines));
    Batch batch(*this);
    lines_.swap(lines);
    selected_ = lines_.empty() ? 0 : std::clamp(selected, 1, Count());
    return lines;
}

const AnimationLine& AnimationScript::LineAt(int index) const {
    assert(Valid(index));
    return lines_[static_cast<std::size_t>(index - 1)];
}

void AnimationScript::SetLineText(int index, std::string text) {
    if (!Valid(index)) return;
    lines_[static_cast<std::size_t>(index - 1)].Text = std::move(text);
    if (auto* l = Notify()) l->LineChanged(index);
}

void AnimationScript::SetLineTime(int index, std::string time) {
    if (!Valid(index)) return;
    lines_[static_cast<std::size_t>(index - 1)].Time = std::move(time);
    if (auto* l = Notify()) l->LineChanged(index);
}

void AnimationScript::SelectLine(int index) {
    if (Valid(index)) SetSelected(index);
}

void AnimationScript::SetSelected(int index) {
    if (selected_ == index) return;
    selected_ = index;
    if (auto* l = Notify()) l->SelectionChanged(selected_);
}

AnimationScript::Batch::Batch(AnimationScript& script) : script_(script) {
    if (script_.batchDepth_++ == 0 && script_.listener_) script_.listener_->AboutToReset();
}

AnimationScript::Batch::~Batch() {
    if (--script_.batchDepth_ == 0 && script_.listener_) {
        script_.listener_->ResetDone();
        script_.listener_->SelectionChanged(script_.selected_);
    }
}

}  // namespace flickerscribe
