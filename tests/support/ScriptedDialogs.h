#pragma once

#include <QStringList>
#include <deque>
#include <optional>
#include <vector>

#include "ui/Dialogs.h"

namespace flickerscribe::ui {

// One question the program asked, as the test sees it afterwards.
struct DialogCall {
    enum class Kind { Message, InputBox, Open, Save, Folder, SetClipboard, GetClipboard };
    Kind kind = Kind::Message;
    QWidget* parent = nullptr;
    QString title;
    QString text;  // the message or prompt, or the text put on the clipboard
    MsgIcon icon = MsgIcon::None;
    MsgButtons buttons = MsgButtons::Ok;
    FileDialogState state;  // a file dialog as it was shown
};

// Dialogs for tests: every call is recorded and answered from what the test
// queued. A question with nothing queued fails the test and is answered like
// Cancel (No for Yes/No), so a test never blocks; a message with the one
// button OK needs no answer.
class ScriptedDialogs : public Dialogs {
public:
    ~ScriptedDialogs() override;

    void QueueMessageAnswer(MsgAnswer answer) { answers_.push_back(answer); }
    void QueueInput(std::optional<QString> text) { inputs_.push_back(std::move(text)); }  // nullopt: Cancel
    void QueueOpen(std::optional<QString> path) { opens_.push_back(std::move(path)); }
    void QueueSave(std::optional<QString> path) { saves_.push_back(std::move(path)); }
    void QueueFolder(QString folder) { folders_.push_back(std::move(folder)); }  // empty: Cancel

    QString clipboard;
    bool clipboardUnreadable = false;

    const std::vector<DialogCall>& Calls() const { return calls_; }
    // Each question in one line: "title [icon]: text", or "open|save title".
    QStringList Asked() const;

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
    DialogCall& Record(DialogCall::Kind kind, QWidget* parent, const QString& title, const QString& text);
    bool AnswerFile(DialogCall::Kind kind, QWidget* parent, FileDialogState& state);

    std::vector<DialogCall> calls_;
    std::deque<MsgAnswer> answers_;
    std::deque<std::optional<QString>> inputs_, opens_, saves_;
    std::deque<QString> folders_;
};

}  // namespace flickerscribe::ui
