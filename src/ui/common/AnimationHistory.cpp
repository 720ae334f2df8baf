#include "ui/common/AnimationHistory.h"

#include <QUndoCommand>
#include <optional>
#include <utility>

namespace flickerscribe::ui {
namespace {

std::size_t bytesOf(const AnimationLine& line) {
    return sizeof(AnimationLine) + line.Text.size() + line.Time.size() + line.Action.size();
}

// A list of lines as the history keeps it: all fields in one block of bytes,
// with where each ends. Two allocations a list instead of one or more a line,
// so that a history of whole lists is small and leaves little of the heap in
// pieces when it lets them go.
class PackedLines {
public:
    PackedLines() = default;
    explicit PackedLines(const std::vector<AnimationLine>& lines) {
        std::size_t size = 0;
        for (const AnimationLine& line : lines)
            size += line.Text.size() + line.Time.size() + line.Action.size();
        bytes_.reserve(size);
        ends_.reserve(lines.size() * 3);
        for (const AnimationLine& line : lines) {
            for (const std::string* field : {&line.Text, &line.Time, &line.Action}) {
                bytes_ += *field;
                ends_.push_back(bytes_.size());
            }
        }
    }

    std::vector<AnimationLine> unpack() const {
        std::vector<AnimationLine> lines(ends_.size() / 3);
        std::size_t start = 0;
        std::size_t field = 0;
        for (AnimationLine& line : lines) {
            for (std::string* value : {&line.Text, &line.Time, &line.Action}) {
                value->assign(bytes_, start, ends_[field] - start);
                start = ends_[field++];
            }
        }
        return lines;
    }

    // Moves exchange the storage, so that what was held goes with the other.
    PackedLines(PackedLines&& other) noexcept = default;
    PackedLines& operator=(PackedLines&& other) noexcept {
        bytes_.swap(other.bytes_);
        ends_.swap(other.ends_);
        return *this;
    }

    std::size_t bytes() const { return bytes_.capacity() + ends_.capacity() * sizeof(std::size_t); }

private:
    std::string bytes_;
    std::vector<std::size_t> ends_;
};

// Lets go of the memory a value holds (a moved-in short string would keep it).
template <typename T>
void release(T& value) {
    T empty{};
    std::swap(value, empty);
}

// The id under which typing steps merge.
constexpr int kTypingId = 1;

}  // namespace

// One step: a change it can take back and do again. The change itself is
// made by the first redo(), which QUndoStack::push calls, unless its command
// made it already (a list replaced). Undo and redo each leave selected the
// line that was selected before, or after, the change.
class AnimationHistory::Step : public QUndoCommand {
public:
    Step(const QString& name, AnimationScript& script, int selectedBefore, bool alreadyMade = false)
        : QUndoCommand(name), script_(script), selectedBefore_(selectedBefore), alreadyMade_(alreadyMade) {}

    // The bytes of the lines the step keeps.
    virtual std::size_t bytes() const = 0;
    bool dropped() const { return dropped_; }
    // Lets go of what the step keeps; it can't be undone or redone any more.
    void drop() {
        dropped_ = true;
        forget();
    }

    void redo() final {
        if (first_) {
            first_ = false;
            if (!alreadyMade_) forth();
            selectedAfter_ = script_.SelectedIndex();
            return;
        }
        forth();
        script_.SelectLine(selectedAfter_);
    }
    void undo() final {
        back();
        script_.SelectLine(selectedBefore_);
    }

protected:
    virtual void forth() = 0;
    virtual void back() = 0;
    virtual void forget() = 0;

    AnimationScript& script_;
    const int selectedBefore_;
    int selectedAfter_ = 0;

private:
    const bool alreadyMade_;
    bool first_ = true;
    bool dropped_ = false;
};

namespace steps {

// A line added, or (with `remove`) taken away.
class LineStep : public AnimationHistory::Step {
public:
    LineStep(const QString& name, AnimationScript& script, int index, AnimationLine line, bool remove)
        : Step(name, script, script.SelectedIndex()),
          index_(index),
          line_(std::move(line)),
          remove_(remove) {}

    std::size_t bytes() const override { return bytesOf(line_); }

private:
    void forth() override { remove_ ? take() : put(); }
    void back() override { remove_ ? put() : take(); }
    void put() { script_.InsertLine(index_, line_.Text, line_.Time, line_.Action); }
    void take() { script_.RemoveLine(index_); }
    void forget() override { release(line_); }

    const int index_;
    AnimationLine line_;
    const bool remove_;
};

// A new Text or Time for one line.
class FieldStep : public AnimationHistory::Step {
public:
    enum class Field { Text, Time };
    FieldStep(const QString& name, AnimationScript& script, int index, Field field, std::string after,
              std::optional<int> typingRun)
        : Step(name, script, script.SelectedIndex()),
          index_(index),
          field_(field),
          before_(field == Field::Text ? script.LineAt(index).Text : script.LineAt(index).Time),
          after_(std::move(after)),
          typingRun_(typingRun) {}

    std::size_t bytes() const override { return before_.size() + after_.size(); }
    int id() const override { return typingRun_ ? kTypingId : -1; }
    bool mergeWith(const QUndoCommand* other) override {
        const auto* next = static_cast<const FieldStep*>(other);
        if (next->typingRun_ != typingRun_ || next->index_ != index_) return false;
        after_ = next->after_;
        return true;
    }

private:
    void forth() override { write(after_); }
    void back() override { write(before_); }
    void write(const std::string& value) {
        field_ == Field::Text ? script_.SetLineText(index_, value) : script_.SetLineTime(index_, value);
    }
    void forget() override {
        release(before_);
        release(after_);
    }

    const int index_;
    const Field field_;
    std::string before_;
    std::string after_;
    const std::optional<int> typingRun_;
};

// Lines appended behind the last one.
class AppendStep : public AnimationHistory::Step {
public:
    AppendStep(const QString& name, AnimationScript& script, const std::vector<AnimationLine>& lines)
        : Step(name, script, script.SelectedIndex()), lines_(lines), count_(lines.size()) {}

    std::size_t bytes() const override { return lines_.bytes(); }

private:
    void forth() override {
        // Many lines reach the view as one reset, not one row at a time.
        std::optional<AnimationScript::Batch> batch;
        if (count_ > 1) batch.emplace(script_);
        for (AnimationLine& line : lines_.unpack())
            script_.AppendLine(std::move(line.Text), std::move(line.Time), std::move(line.Action));
    }
    void back() override {
        std::optional<AnimationScript::Batch> batch;
        if (count_ > 1) batch.emplace(script_);
        for (std::size_t i = 0; i < count_; ++i) script_.RemoveLine(script_.Count());
    }
    void forget() override { release(lines_); }

    PackedLines lines_;
    const std::size_t count_;
};

// Every line replaced. The step keeps the list that is not in the script and
// exchanges it with the script's at each undo and redo.
class ReplaceStep : public AnimationHistory::Step {
public:
    ReplaceStep(const QString& name, AnimationScript& script, PackedLines before, int selectedBefore)
        : Step(name, script, selectedBefore, true), other_(std::move(before)) {}

    std::size_t bytes() const override { return other_.bytes(); }

private:
    void forth() override { exchange(selectedAfter_); }
    void back() override { exchange(selectedBefore_); }
    void exchange(int selected) {
        std::vector<AnimationLine> lines = other_.unpack();
        other_ = PackedLines(script_.Lines());
        script_.ExchangeLines(std::move(lines), selected);
    }
    void forget() override { release(other_); }

    PackedLines other_;
};

}  // namespace steps

AnimationHistory::AnimationHistory(AnimationScript& script, QObject* parent)
    : QObject(parent), script_(script) {
    stack_.setUndoLimit(kMaxSteps);
}

AnimationHistory::~AnimationHistory() = default;

const AnimationHistory::Step* AnimationHistory::stepAt(int index) const {
    return static_cast<const Step*>(stack_.command(index));
}

bool AnimationHistory::canUndo() const {
    return stack_.canUndo() && !stepAt(stack_.index() - 1)->dropped();
}

bool AnimationHistory::canRedo() const {
    return stack_.canRedo() && !stepAt(stack_.index())->dropped();
}

QString AnimationHistory::undoText() const {
    return canUndo() ? stack_.undoText() : QString();
}

QString AnimationHistory::redoText() const {
    return canRedo() ? stack_.redoText() : QString();
}

void AnimationHistory::undo() {
    if (!canUndo()) return;
    ++typingRun_;
    stack_.undo();
    trim();
    emit changed();
}

void AnimationHistory::redo() {
    if (!canRedo()) return;
    ++typingRun_;
    stack_.redo();
    trim();
    emit changed();
}

int AnimationHistory::undoableSteps() const {
    int steps = 0;
    for (int i = stack_.index() - 1; i >= 0 && !stepAt(i)->dropped(); --i) ++steps;
    return steps;
}

std::size_t AnimationHistory::keptBytes() const {
    std::size_t bytes = 0;
    for (int i = 0; i < stack_.count(); ++i) bytes += stepAt(i)->bytes();
    return bytes;
}

void AnimationHistory::endTyping() {
    ++typingRun_;
}

void AnimationHistory::push(Step* step) {
    if (step->id() != kTypingId) ++typingRun_;
    stack_.push(step);
    trim();
    emit changed();
}

bool AnimationHistory::insertLine(const QString& name, int index, AnimationLine line) {
    if (script_.IsFull() || index < 1 || index > script_.Count() + 1) return false;
    push(new steps::LineStep(name, script_, index, std::move(line), false));
    return true;
}

bool AnimationHistory::removeLine(const QString& name, int index) {
    if (index < 1 || index > script_.Count()) return false;
    push(new steps::LineStep(name, script_, index, script_.LineAt(index), true));
    return true;
}

void AnimationHistory::setText(const QString& name, int index, std::string text, bool typing) {
    if (index < 1 || index > script_.Count() || script_.LineAt(index).Text == text) return;
    push(new steps::FieldStep(name, script_, index, steps::FieldStep::Field::Text, std::move(text),
                              typing ? std::optional<int>(typingRun_) : std::nullopt));
}

void AnimationHistory::setTime(const QString& name, int index, std::string time) {
    if (index < 1 || index > script_.Count() || script_.LineAt(index).Time == time) return;
    push(new steps::FieldStep(name, script_, index, steps::FieldStep::Field::Time, std::move(time),
                              std::nullopt));
}

bool AnimationHistory::appendLines(const QString& name, std::vector<AnimationLine> lines) {
    const std::size_t room = static_cast<std::size_t>(kMaxLines - script_.Count());
    const bool all = lines.size() <= room;
    if (!all) lines.resize(room);
    if (!lines.empty()) push(new steps::AppendStep(name, script_, lines));
    return all;
}

void AnimationHistory::keepReplaced(const QString& name, const std::vector<AnimationLine>& before,
                                    int selectedBefore) {
    if (before == script_.Lines() && selectedBefore == script_.SelectedIndex()) return;
    push(new steps::ReplaceStep(name, script_, PackedLines(before), selectedBefore));
}

void AnimationHistory::trim() {
    std::size_t bytes = keptBytes();
    // The step Undo would take stays, however large: New over a huge list can
    // always be taken back.
    for (int i = 0; i < stack_.index() - 1 && bytes > kMaxBytes; ++i) {
        auto* step = const_cast<Step*>(stepAt(i));
        if (step->dropped()) continue;
        bytes -= step->bytes();
        step->drop();
    }
}

}  // namespace flickerscribe::ui
