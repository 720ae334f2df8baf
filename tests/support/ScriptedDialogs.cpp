#include "ScriptedDialogs.h"

#include <gtest/gtest.h>

namespace flickerscribe::ui {

namespace {

// The answer of a box closed without a choice.
MsgAnswer Refusal(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::Ok:
            return MsgAnswer::Ok;
        case MsgButtons::YesNo:
            return MsgAnswer::No;
        case MsgButtons::OkCancel:
        case MsgButtons::YesNoCancel:
            break;
    }
    return MsgAnswer::Cancel;
}

bool Offers(MsgButtons buttons, MsgAnswer answer) {
    switch (buttons) {
        case MsgButtons::Ok:
            return answer == MsgAnswer::Ok;
        case MsgButtons::OkCancel:
            return answer == MsgAnswer::Ok || answer == MsgAnswer::Cancel;
        case MsgButtons::YesNo:
            return answer == MsgAnswer::Yes || answer == MsgAnswer::No;
        case MsgButtons::YesNoCancel:
            return answer != MsgAnswer::Ok;
    }
    return false;
}

// Whether an answer was queued; a question with none fails the test.
template <class Answer>
bool Queued(const std::deque<Answer>& queue, const char* what, const QString& about) {
    if (queue.empty())
        ADD_FAILURE() << "unexpected " << what << ", no answer queued: " << about.toStdString();
    return !queue.empty();
}

// The queued file name or text, nullopt for Cancel. (The optional itself is
// not moved out: the compiler sees a moved-from QString as uninitialised.)
std::optional<QString> TakeText(std::deque<std::optional<QString>>& queue) {
    const bool given = queue.front().has_value();
    const QString text = given ? *queue.front() : QString();
    queue.pop_front();
    if (!given) return std::nullopt;
    return text;
}

}  // namespace

ScriptedDialogs::~ScriptedDialogs() {
    if (expectAllAnswersUsed && !AllAnswersUsed()) ADD_FAILURE() << "queued dialog answers were not used";
}

std::vector<DialogCall> ScriptedDialogs::CallsOf(DialogCall::Kind kind) const {
    std::vector<DialogCall> out;
    for (const DialogCall& call : calls_)
        if (call.kind == kind) out.push_back(call);
    return out;
}

bool ScriptedDialogs::AllAnswersUsed() const {
    return messageAnswers_.empty() && inputAnswers_.empty() && openAnswers_.empty() && saveAnswers_.empty() &&
           folderAnswers_.empty();
}

void ScriptedDialogs::Record(DialogCall call) {
    calls_.push_back(call);
    // onCall may ask again and so grow calls_: it gets its own copy.
    if (onCall) onCall(call);
}

MsgAnswer ScriptedDialogs::Message(QWidget* parent, const QString& text, const QString& title, MsgIcon icon,
                                   MsgButtons buttons) {
    DialogCall call;
    call.kind = DialogCall::Kind::Message;
    call.parent = parent;
    call.text = text;
    call.title = title;
    call.icon = icon;
    call.buttons = buttons;
    Record(std::move(call));
    if (messageAnswers_.empty()) {
        if (buttons != MsgButtons::Ok)
            ADD_FAILURE() << "unexpected message, no answer queued: " << text.toStdString();
        return Refusal(buttons);
    }
    const MsgAnswer answer = messageAnswers_.front();
    messageAnswers_.pop_front();
    if (!Offers(buttons, answer)) {
        ADD_FAILURE() << "queued answer is no button of the message: " << text.toStdString();
        return Refusal(buttons);
    }
    return answer;
}

std::optional<QString> ScriptedDialogs::InputBox(QWidget* parent, const QString& prompt, const QString& title,
                                                 const QString& defaultText) {
    DialogCall call;
    call.kind = DialogCall::Kind::InputBox;
    call.parent = parent;
    call.prompt = prompt;
    call.title = title;
    call.defaultText = defaultText;
    Record(std::move(call));
    if (!Queued(inputAnswers_, "input box", prompt)) return std::nullopt;
    return TakeText(inputAnswers_);
}

bool ScriptedDialogs::AnswerFile(DialogCall::Kind kind, QWidget* parent, FileDialogState& state) {
    DialogCall call;
    call.kind = kind;
    call.parent = parent;
    call.title = state.title;
    call.state = state;
    Record(std::move(call));
    const bool open = kind == DialogCall::Kind::ShowOpen;
    auto& answers = open ? openAnswers_ : saveAnswers_;
    if (!Queued(answers, open ? "open dialog" : "save dialog", state.title)) return false;
    const std::optional<QString> fileName = TakeText(answers);
    if (fileName) state.fileName = *fileName;
    return fileName.has_value();
}

bool ScriptedDialogs::ShowOpen(QWidget* parent, FileDialogState& state) {
    return AnswerFile(DialogCall::Kind::ShowOpen, parent, state);
}

bool ScriptedDialogs::ShowSave(QWidget* parent, FileDialogState& state) {
    return AnswerFile(DialogCall::Kind::ShowSave, parent, state);
}

QString ScriptedDialogs::BrowseForFolder(QWidget* parent, const QString& title) {
    DialogCall call;
    call.kind = DialogCall::Kind::BrowseForFolder;
    call.parent = parent;
    call.title = title;
    Record(std::move(call));
    if (!Queued(folderAnswers_, "folder browser", title)) return QString();
    QString answer = std::move(folderAnswers_.front());
    folderAnswers_.pop_front();
    return answer;
}

void ScriptedDialogs::SetClipboardText(const QString& text) {
    DialogCall call;
    call.kind = DialogCall::Kind::SetClipboard;
    call.text = text;
    Record(std::move(call));
    clipboard = text;
}

std::optional<QString> ScriptedDialogs::ClipboardText() {
    DialogCall call;
    call.kind = DialogCall::Kind::GetClipboard;
    Record(std::move(call));
    if (clipboardUnreadable) return std::nullopt;
    return clipboard;
}

}  // namespace flickerscribe::ui
