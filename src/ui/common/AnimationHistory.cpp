#include "ui/common/AnimationHistory.h"

#include <QUndoCommand>
#include <optional>
#include <utility>

namespace flickerscribe::ui {
namespace {

std::size_t BytesOf(const AnimationLine& line) {
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

    std::vector<AnimationLine> Unpack() const {
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

    std::size_t Bytes() const { return bytes_.capacity() + ends_.capacity() * sizeof(std::size_t); }

private:
    std::string bytes_;
    std::vector<std::size_t> ends_;
};

// Lets go of the memory a value holds (a moved-in short string would keep it).
template <typename T>
void Release(T& value) {
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
    virtual std::size_t Bytes() const = 0;
    bool Dropped() const { return dropped_; }
    // Lets go of what the step keeps; it can't be undone or redone any more.
    void Drop() {
        dropped_ = true;
        Forget();
    }

    void redo() final {
        if (first_) {
            first_ = false;
            if (!alreadyMade_) Forth();
            selectedAfter_ = script_.SelectedIndex();
            return;
        }
        Forth();
        script_.SelectLine(selectedAfter_);
    }
    void undo() final {
        Back();
        script_.SelectLine(selectedBefore_);
    }

protected:
    virtual void Forth() = 0;
    virtual void Back() = 0;
    virtual void Forget() = 0;

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

    std::size_t Bytes() const override { return BytesOf(line_); }

private:
    void Forth() override { remove_ ? Take() : Put(); }
    void Back() override { remove_ ? Put() : Take(); }
    void Put() { script_.InsertLine(index_, line_.Text, line_.Time, line_.Action); }
    void Take() { script_.RemoveLine(index_); }
    void Forget() override { Release(line_); }

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

    std::size_t Bytes() const override { return before_.size() + after_.size(); }
    int id() const override { return typingRun_ ? kTypingId : -1; }
    bool mergeWith(const QUndoCommand* other) override {
        const auto* next = static_cast<const FieldStep*>(other);
        if (next->typingRun_ != typingRun_ || next->index_ != index_) return false;
        after_ = next->after_;
        return true;
    }

private:
    void Forth() override { Write(after_); }
    void Back() override { Write(before_); }
    void Write(const std::string& value) {
        field_ == Field::Text ? script_.SetLineText(index_, value) : script_.SetLineTime(index_, value);
    }
    void Forget() override {
        Release(before_);
        Release(after_);
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

    std::size_t Bytes() const override { return lines_.Bytes(); }

private:
    void Forth() override {
        // Many lines reach the view as one reset, not one row at a time.
        std::optional<AnimationScript::Batch> batch;
        if (count_ > 1) batch.emplace(script_);
        for (AnimationLine& line : lines_.Unpack())
            script_.AppendLine(std::move(line.Text), std::move(line.Time), std::move(line.Action));
    }
    void Back() override {
        std::optional<AnimationScript::Batch> batch;
        if (count_ > 1) batch.emplace(script_);
        for (std::size_t i = 0; i < count_; ++i) script_.RemoveLine(script_.Count());
    }
    void Forget() override { Release(lines_); }

    PackedLines lines_;
    const std::size_t count_;
};

// Every line replaced. The step keeps the list that is not in the script and
// exchanges it with the script's at each undo and redo.
class ReplaceStep : public AnimationHistory::Step {
public:
    ReplaceStep(const QString& name, AnimationScript& script, PackedLines before, int selectedBefore)
        : Step(name, script, selectedBefore, true), other_(std::move(before)) {}

    std::size_t Bytes() const override { return other_.Bytes(); }

private:
    void Forth() override { Exchange(selectedAfter_); }
    void Back() override { Exchange(selectedBefore_); }
    void Exchange(int selected) {
        std::vector<AnimationLine> lines = other_.Unpack();
        other_ = PackedLines(script_.Lines());
        script_.ExchangeLines(std::move(lines), selected);
    }
    void Forget() override { Release(other_); }

    PackedLines other_;
};

}  // namespace steps

AnimationHistory::AnimationHistory(AnimationScript& script, QObject* parent)
    : QObject(parent), script_(script) {
    stack_.setUndoLimit(kMaxSteps);
}

AnimationHistory::~AnimationHistory() = default;

const AnimationHistory::Step* AnimationHistory::StepAt(int index) const {
    return static_cast<const Step*>(stack_.command(index));
}

bool AnimationHistory::CanUndo() const {
    return stack_.canUndo() && !StepAt(stack_.index() - 1)->Dropped();
}

bool AnimationHistory::CanRedo() const {
    return stack_.canRedo() && !StepAt(stack_.index())->Dropped();
}

QString AnimationHistory::UndoText() const {
    return CanUndo() ? stack_.undoText() : QString();
}

QString AnimationHistory::RedoText() const {
    return CanRedo() ? stack_.redoText() : QString();
}

void AnimationHistory::Undo() {
    if (!CanUndo()) return;
    ++typingRun_;
    stack_.undo();
    Trim();
    emit Changed();
}

void AnimationHistory::Redo() {
    if (!CanRedo()) return;
    ++typingRun_;
    stack_.redo();
    Trim();
    emit Changed();
}

int AnimationHistory::UndoableSteps() const {
    int steps = 0;
    for (int i = stack_.index() - 1; i >= 0 && !StepAt(i)->Dropped(); --i) ++steps;
    return steps;
}

std::size_t AnimationHistory::KeptBytes() const {
    std::size_t bytes = 0;
    for (int i = 0; i < stack_.count(); ++i) bytes += StepAt(i)->Bytes();
    return bytes;
}

void AnimationHistory::EndTyping() {
    ++typingRun_;
}

void AnimationHistory::Push(Step* step) {
    if (step->id() != kTypingId) ++typingRun_;
    stack_.push(step);
    Trim();
    emit Changed();
}

bool AnimationHistory::InsertLine(const QString& name, int index, AnimationLine line) {
    if (script_.IsFull() || index < 1 || index > script_.Count() + 1) return false;
    Push(new steps::LineStep(name, script_, index, std::move(line), false));
    return true;
}

bool AnimationHistory::RemoveLine(const QString& name, int index) {
    if (index < 1 || index > script_.Count()) return false;
    Push(new steps::LineStep(name, script_, index, script_.LineAt(index), true));
    return true;
}

void AnimationHistory::SetText(const QString& name, int index, std::string text, bool typing) {
    if (index < 1 || index > script_.Count() || script_.LineAt(index).Text == text) return;
    Push(new steps::FieldStep(name, script_, index, steps::FieldStep::Field::Text, std::move(text),
                              typing ? std::optional<int>(typingRun_) : std::nullopt));
}

void AnimationHistory::SetTime(const QString& name, int index, std::string time) {
    if (index < 1 || index > script_.Count() || script_.LineAt(index).Time == time) return;
    Push(new steps::FieldStep(name, script_, index, steps::FieldStep::Field::Time, std::move(time),
                              std::nullopt));
}

bool AnimationHistory::AppendLines(const QString& name, std::vector<AnimationLine> lines) {
    const std::size_t room = static_cast<std::size_t>(kMaxLines - script_.Count());
    const bool all = lines.size() <= room;
    if (!all) lines.resize(room);
    if (!lines.empty()) Push(new steps::AppendStep(name, script_, lines));
    return all;
}

void AnimationHistory::KeepReplaced(const QString& name, const std::vector<AnimationLine>& before,
                                    int selectedBefore) {
    if (before == script_.Lines() && selectedBefore == script_.SelectedIndex()) return;
    Push(new steps::ReplaceStep(name, script_, PackedLines(before), selectedBefore));
}

void AnimationHistory::Trim() {
    std::size_t bytes = KeptBytes();
    // The step Undo would take stays, however large: New over a huge list can
    // always be taken back.
    for (int i = 0; i < stack_.index() - 1 && bytes > kMaxBytes; ++i) {
        auto* step = const_cast<Step*>(StepAt(i));
        if (step->Dropped()) continue;
        bytes -= step->Bytes();
        step->Drop();
    }
}

}  // namespace flickerscribe::ui
