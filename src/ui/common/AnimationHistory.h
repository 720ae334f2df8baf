#pragma once

#include <QObject>
#include <QString>
#include <QUndoStack>
#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "document/AnimationScript.h"

namespace flickerscribe::ui {

// Every change to the animation goes through here as one step that Undo takes
// back and Redo does again, each restoring the lines and the selected line.
// Built on QUndoStack; the steps call the core's operations. The history
// holds at most kMaxSteps steps and kMaxBytes of kept lines: past either, the
// oldest steps go, but never the newest step. Selection alone is no step, and a change that changes
// nothing makes none.
class AnimationHistory : public QObject {
    Q_OBJECT

public:
    static constexpr int kMaxSteps = 100;
    static constexpr std::size_t kMaxBytes = std::size_t{64} << 20;

    explicit AnimationHistory(AnimationScript& script, QObject* parent = nullptr);
    ~AnimationHistory() override;

    bool canUndo() const;
    bool canRedo() const;
    // The name of the step that Undo or Redo would take ("Remove line").
    QString undoText() const;
    QString redoText() const;
    void undo();
    void redo();
    // The steps that can still be undone, and the bytes of lines all steps keep.
    int undoableSteps() const;
    std::size_t keptBytes() const;

    // --- the changes; each is one step
    // Adds a line so that it gets `index`. False, and no step, when the list is full.
    bool insertLine(const QString& name, int index, AnimationLine line);
    // Removes the line at `index`. False, and no step, for a bad index.
    bool removeLine(const QString& name, int index);
    // A new Text for line `index`. Typing merges with the typing step before
    // it while it goes to the same line and nothing else happened between.
    void setText(const QString& name, int index, std::string text, bool typing = false);
    void setTime(const QString& name, int index, std::string time);
    // Appends the lines behind the last one, as many as fit; false when some
    // didn't.
    bool appendLines(const QString& name, std::vector<AnimationLine> lines);
    // Runs `change` on the script and keeps the whole list from before as one
    // step: for the commands that replace every line. Gives what `change` gave.
    template <typename Change>
    auto replaceLines(const QString& name, Change&& change) {
        std::vector<AnimationLine> before = script_.Lines();
        const int selectedBefore = script_.SelectedIndex();
        if constexpr (std::is_void_v<decltype(change(script_))>) {
            change(script_);
            keepReplaced(name, std::move(before), selectedBefore);
        } else {
            auto result = change(script_);
            keepReplaced(name, std::move(before), selectedBefore);
            return result;
        }
    }

    // The next keystroke starts a step of its own (the selection moved).
    void endTyping();

    // One step of the history (in the source).
    class Step;

signals:
    // After every step, undo and redo: what Undo and Redo offer may have changed.
    void changed();

private:
    void push(Step* step);
    void keepReplaced(const QString& name, const std::vector<AnimationLine>& before, int selectedBefore);
    // Drops the kept lines of the oldest steps until the rest fit kMaxBytes.
    void trim();
    const Step* stepAt(int index) const;

    AnimationScript& script_;
    QUndoStack stack_;
    // Raised by whatever ends a run of typing; a typing step merges only
    // with one of the same run.
    int typingRun_ = 0;
};

}  // namespace flickerscribe::ui
