#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <deque>
#include <optional>
#include <vector>

#include "ui/common/Dialogs.h"

namespace flickerscribe::ui {

// One question the program asked, as the test sees it afterwards.
struct DialogCall {
    enum class Kind { Message, InputBox, Open, Save, Folder, SetClipboard, GetClipboard };
    Kind kind = Kind::Message;
    QWidget* parent = nullptr;
    QString title;
    QString text;  // the message or prompt, or the text put on the clipboard
    MsgIcon icon = MsgIcon::None;
    FileDialogState state;  // a file dialog as it was shown
};

// Every call recorded and answered from the test's queue; an unqueued question
// (OK alone needs none) or an answer left over fails the test, never blocks it.
class ScriptedDialogs : public Dialogs {
public:
    ~ScriptedDialogs() override {
        EXPECT_TRUE(answers_.empty() && inputs_.empty() && opens_.empty() && saves_.empty() &&
                    folders_.empty())
            << "queued answers were left over";
    }

    void QueueMessageAnswer(MsgAnswer answer) { answers_.push_back(answer); }
    void QueueInput(std::optional<QString> text) { inputs_.push_back(std::move(text)); }  // nullopt: Cancel
    void QueueOpen(std::optional<QString> path) { opens_.push_back(std::move(path)); }
    void QueueSave(std::optional<QString> path) { saves_.push_back(std::move(path)); }
    void QueueFolder(QString folder) { folders_.push_back(std::move(folder)); }  // empty: Cancel

    QString clipboard;
    bool clipboardUnreadable = false;

    const std::vector<DialogCall>& Calls() const { return calls_; }
    // Each message as "title [icon]: text", each file dialog as "open|save title".
    QStringList Asked() const {
        static const char* const kIcons[] = {"none", "stop", "question", "warning", "info"};
        QStringList out;
        for (const DialogCall& c : calls_) {
            if (c.kind == DialogCall::Kind::Message)
                out << QStringLiteral("%1 [%2]: %3").arg(c.title, QLatin1String(kIcons[int(c.icon)]), c.text);
            if (c.kind == DialogCall::Kind::Open || c.kind == DialogCall::Kind::Save)
                out << QStringLiteral("%1 %2").arg(
                    QLatin1String(c.kind == DialogCall::Kind::Open ? "open" : "save"), c.title);
        }
        return out;
    }

    MsgAnswer message(QWidget* parent, const QString& text, const QString& title, MsgIcon icon,
                      MsgButtons buttons) override {
        calls_.push_back({DialogCall::Kind::Message, parent, title, text, icon, {}});
        if (buttons == MsgButtons::Ok && answers_.empty()) return MsgAnswer::Ok;
        return take(answers_, text, buttons == MsgButtons::YesNo ? MsgAnswer::No : MsgAnswer::Cancel);
    }
    std::optional<QString> inputBox(QWidget* parent, const QString& prompt, const QString& title,
                                    const QString&) override {
        calls_.push_back({DialogCall::Kind::InputBox, parent, title, prompt, MsgIcon::None, {}});
        return take(inputs_, prompt, std::optional<QString>());
    }
    bool showOpen(QWidget* parent, FileDialogState& state) override {
        return AnswerFile(DialogCall::Kind::Open, parent, state, opens_);
    }
    bool showSave(QWidget* parent, FileDialogState& state) override {
        return AnswerFile(DialogCall::Kind::Save, parent, state, saves_);
    }
    QString browseForFolder(QWidget* parent, const QString& title) override {
        calls_.push_back({DialogCall::Kind::Folder, parent, title, {}, MsgIcon::None, {}});
        return take(folders_, title, QString());
    }
    void setClipboardText(const QString& text) override {
        calls_.push_back({DialogCall::Kind::SetClipboard, nullptr, {}, text, MsgIcon::None, {}});
        clipboard = text;
    }
    std::optional<QString> clipboardText() override {
        calls_.push_back({DialogCall::Kind::GetClipboard, nullptr, {}, {}, MsgIcon::None, {}});
        return clipboardUnreadable ? std::nullopt : std::optional<QString>(clipboard);
    }

private:
    // The answer queued first, or `refusal` and a failed test when there is none.
    template <typename Answer>
    static Answer take(std::deque<Answer>& queue, const QString& about, Answer refusal) {
        if (queue.empty()) {
            ADD_FAILURE() << "nothing queued to answer: " << about.toStdString();
            return refusal;
        }
        Answer answer = std::move(queue.front());
        queue.pop_front();
        return answer;
    }
    bool AnswerFile(DialogCall::Kind kind, QWidget* parent, FileDialogState& state,
                    std::deque<std::optional<QString>>& queue) {
        calls_.push_back({kind, parent, state.title, {}, MsgIcon::None, state});
        const std::optional<QString> path = take(queue, state.title, std::optional<QString>());
        if (path) state.fileName = *path;
        return path.has_value();
    }

    std::vector<DialogCall> calls_;
    std::deque<MsgAnswer> answers_;
    std::deque<std::optional<QString>> inputs_, opens_, saves_;
    std::deque<QString> folders_;
};

}  // namespace flickerscribe::ui
