#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "ui/Dialogs.h"

namespace flickerscribe::ui {

// One question the program asked, as the test sees it afterwards.
struct DialogCall {
    enum class Kind { Message, InputBox, ShowOpen, ShowSave, BrowseForFolder, SetClipboard, GetClipboard };

    Kind kind = Kind::Message;
    QWidget* parent = nullptr;
    QString text;  // the message text, or the text put on the clipboard
    QString title;
    MsgIcon icon = MsgIcon::None;
    MsgButtons buttons = MsgButtons::Ok;
    QString prompt;
    QString defaultText;
    FileDialogState state;  // as the file dialog was given it
};

// Dialogs for tests: records every call and answers from queues that the test
// fills beforehand. A question that finds its queue empty fails the test and
// is answered like a Cancel (No for yes/no), so a test never blocks. A message
// with the one button OK needs no queued answer.
class ScriptedDialogs : public Dialogs {
public:
    ~ScriptedDialogs() override;

    // --- answers, used in the order queued
    void QueueMessageAnswer(MsgAnswer answer) { messageAnswers_.push_back(answer); }
    // nullopt answers Cancel.
    void QueueInput(std::optional<QString> answer) { inputAnswers_.push_back(std::move(answer)); }
    // The path chosen in the dialog, or nullopt for Cancel.
    void QueueOpen(std::optional<QString> fileName) { openAnswers_.push_back(std::move(fileName)); }
    void QueueSave(std::optional<QString> fileName) { saveAnswers_.push_back(std::move(fileName)); }
    // The empty text answers Cancel.
    void QueueFolder(QString folder) { folderAnswers_.push_back(std::move(folder)); }

    // The clipboard this object holds; empty at first.
    QString clipboard;
    // While true, reading the clipboard fails (ClipboardText gives nullopt).
    bool clipboardUnreadable = false;

    // Runs at each call, after it was recorded and before it is answered: lets
    // a test act while a question stands (a timer tick, a second question).
    std::function<void(const DialogCall&)> onCall;

    // --- what was asked
    const std::vector<DialogCall>& Calls() const { return calls_; }
    std::vector<DialogCall> CallsOf(DialogCall::Kind kind) const;
    std::vector<DialogCall> Messages() const { return CallsOf(DialogCall::Kind::Message); }
    void ClearCalls() { calls_.clear(); }
    // True when every queued answer was used.
    bool AllAnswersUsed() const;
    // When set, the destructor fails the test if queued answers were left over.
    bool expectAllAnswersUsed = false;

    MsgAnswer Message(QWidget* parent, const QString& text, const QString& title, MsgIcon icon,
                      MsgButtons buttons) override;
    std::optional<QString> InputBox(QWidget* parent, const QString& prompt, const QString& title,
                                    const QString& defaultText) override;
    bool ShowOpen(QWidget* parent, FileDialogState& state) override;
    bool ShowSave(QWidget* parent, FileDialogState& state) override;
    QString BrowseForFolder(QWidget* parent, const QString& title) override;
    void SetClipboardText(const QString& text) override;
    std::optional<QString> ClipboardText() override;

private:
    void Record(DialogCall call);
    // Records a file dialog and answers it from the open or the save queue.
    bool AnswerFile(DialogCall::Kind kind, QWidget* parent, FileDialogState& state);

    std::vector<DialogCall> calls_;
    std::deque<MsgAnswer> messageAnswers_;
    std::deque<std::optional<QString>> inputAnswers_;
    std::deque<std::optional<QString>> openAnswers_;
    std::deque<std::optional<QString>> saveAnswers_;
    std::deque<QString> folderAnswers_;
};

}  // namespace flickerscribe::ui
