#pragma once

#include <string>
#include <vector>

namespace flickerscribe {

// One frame of the animation. All three fields are text; Time is not checked
// here, it only becomes a number when the script is generated.
struct AnimationLine {
    std::string Text;
    std::string Time = "15";
    std::string Action = "[none]";

    bool operator==(const AnimationLine&) const = default;
};

// Every count and position over lines is a signed 16-bit number, so a list
// holds at most this many lines. Adding beyond it is refused: AppendLine and
// InsertLine return false and change nothing, and the caller stops.
inline constexpr int kMaxLines = 32767;

// Follows every change of an AnimationScript, so that a view can mirror it.
// The "About" calls come before the change, the others after it. Inside a
// Batch no per-line calls are made: the view sees one reset.
class ScriptListener {
public:
    virtual ~ScriptListener() = default;
    virtual void AboutToInsert(int index) = 0;  // the new line will have this index
    virtual void Inserted(int index) = 0;
    virtual void AboutToRemove(int index) = 0;
    virtual void Removed(int index) = 0;
    virtual void LineChanged(int index) = 0;  // Text or Time of that line
    virtual void AboutToReset() = 0;
    virtual void ResetDone() = 0;
    virtual void SelectionChanged(int index) = 0;  // new SelectedIndex, 0 for none
};

// The one animation of the program: ordered lines, 1-based, plus the
// selection. A non-empty script always has exactly one selected line.
class AnimationScript {
public:
    AnimationScript() = default;
    AnimationScript(const AnimationScript&) = delete;
    AnimationScript& operator=(const AnimationScript&) = delete;

    int Count() const { return static_cast<int>(lines_.size()); }
    bool IsFull() const { return Count() >= kMaxLines; }

    // Adds a line behind the last one. False when the list is full.
    bool AppendLine(std::string text, std::string time, std::string action);
    // Adds a line so that it gets `index` (1 to Count + 1). False when the
    // list is full or the index is out of range.
    bool InsertLine(int index, std::string text, std::string time, std::string action);
    // Removes the line at `index`. False (and nothing changes) for a bad index.
    bool RemoveLine(int index);
    void ClearLines();

    // `index` must be 1 to Count.
    const AnimationLine& LineAt(int index) const;
    // All lines, first to last.
    const std::vector<AnimationLine>& Lines() const { return lines_; }
    // Puts `lines` (at most kMaxLines) in the place of the script's lines and
    // selects line `selected` (0 with no lines), giving the old lines back:
    // an exchange without a copy, which the view sees as one reset.
    std::vector<AnimationLine> ExchangeLines(std::vector<AnimationLine> lines, int selected);
    void SetLineText(int index, std::string text);
    void SetLineTime(int index, std::string time);

    int SelectedIndex() const { return selected_; }
    // The user's choice of line; ignored for an index out of range.
    void SelectLine(int index);

    // At most one listener, the view. Pass nullptr to detach.
    void SetListener(ScriptListener* listener) { listener_ = listener; }

    // Groups the changes of a command that replaces the whole list, so that the
    // view is told once with a reset instead of once per line. Nests.
    class Batch {
    public:
        explicit Batch(AnimationScript& script);
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        AnimationScript& script_;
    };

private:
    bool Valid(int index) const { return index >= 1 && index <= Count(); }
    ScriptListener* Notify() const { return batchDepth_ == 0 ? listener_ : nullptr; }
    void SetSelected(int index);

    std::vector<AnimationLine> lines_;
    int selected_ = 0;
    ScriptListener* listener_ = nullptr;
    int batchDepth_ = 0;
};

}  // namespace flickerscribe
