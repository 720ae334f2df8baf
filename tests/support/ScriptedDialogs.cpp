#include "ScriptedDialogs.h"

#include <gtest/gtest.h>

namespace flickerscribe::ui {
namespace {

// The answer of a box closed without a choice.
MsgAnswer Refusal(MsgButtons buttons) {
    return buttons == MsgButtons::Ok      ? MsgAnswer::Ok
           : buttons == MsgButtons::YesNo ? MsgAnswer::No
                                          : MsgAnswer::Cancel;
}

// The answer queued first; false, and a failed test, when there is none.
template <typename Answer>
bool Take(std::deque<Answer>& queue, const QString& about, Answer& answer) {
    if (queue.empty()) {
        ADD_FAILURE() << "nothing queued to answer: " << about.toStdString();
        return false;
    }
    answer = queue.front();
    queue.pop_front();
    return true;
}

}  // namespace

ScriptedDialogs::~ScriptedDialogs() {
    EXPECT_TRUE(answers_.empty() && inputs_.empty() && opens_.empty() && saves_.empty() && folders_.empty())
        << "queued answers were left over";
}

QStringList ScriptedDialogs::Asked() const {
    static const char* const kIcons[] = {"none", "stop", "question", "warning", "info"};
    QStringList out;
    for (const DialogCall& c : calls_) {
        if (c.kind == DialogCall::Kind::Message)
            out << QStringLiteral("%1 [%2]: %3").arg(c.title, QLatin1String(kIcons[int(c.icon)]), c.text);
        else if (c.kind == DialogCall::Kind::Open || c.kind == DialogCall::Kind::Save)
            out << (c.kind == DialogCall::Kind::Open ? QStringLiteral("open ") : QStringLiteral("save ")) +
                       c.title;
    }
    return out;
}

DialogCall& ScriptedDialogs::Record(DialogCall::Kind kind, QWidget* parent, const QString& title,
                                    const QString& text) {
    return calls_.emplace_back(DialogCall{kind, parent, title, text, MsgIcon::None, MsgButtons::Ok, {}});
}

MsgAnswer ScriptedDialogs::Message(QWidget* parent, const QString& text, const QString& title, MsgIcon icon,
                                   MsgButtons buttons) {
    DialogCall& call = Record(DialogCall::Kind::Message, parent, title, text);
    call.icon = icon;
    call.buttons = buttons;
    MsgAnswer answer = Refusal(buttons);
    if (buttons != MsgButtons::Ok || !answers_.empty()) Take(answers_, text, answer);
    return answer;
}

std::optional<QString> ScriptedDialogs::InputBox(QWidget* parent, const QString& prompt, const QString& title,
                                                 const QString& defaultText) {
    Record(DialogCall::Kind::InputBox, parent, title, prompt).state.fileName = defaultText;
    std::optional<QString> answer;
    Take(inputs_, prompt, answer);
    return answer;
}

bool ScriptedDialogs::AnswerFile(DialogCall::Kind kind, QWidget* parent, FileDialogState& state) {
    Record(kind, parent, state.title, QString()).state = state;
    std::optional<QString> path;
    if (!Take(kind == DialogCall::Kind::Open ? opens_ : saves_, state.title, path) || !path) return false;
    state.fileName = *path;
    return true;
}

bool ScriptedDialogs::ShowOpen(QWidget* parent, FileDialogState& state) {
    return AnswerFile(DialogCall::Kind::Open, parent, state);
}

bool ScriptedDialogs::ShowSave(QWidget* parent, FileDialogState& state) {
    return AnswerFile(DialogCall::Kind::Save, parent, state);
}

QString ScriptedDialogs::BrowseForFolder(QWidget* parent, const QString& title) {
    Record(DialogCall::Kind::Folder, parent, title, QString());
    QString folder;
    Take(folders_, title, folder);
    return folder;
}

void ScriptedDialogs::SetClipboardText(const QString& text) {
    Record(DialogCall::Kind::SetClipboard, nullptr, QString(), text);
    clipboard = text;
}

std::optional<QString> ScriptedDialogs::ClipboardText() {
    Record(DialogCall::Kind::GetClipboard, nullptr, QString(), QString());
    if (clipboardUnreadable) return std::nullopt;
    return clipboard;
}

}  // namespace flickerscribe::ui
