#pragma once

#include "ui/common/Dialogs.h"

namespace flickerscribe::ui {

// The dialogs of a running program: Qt's message box, input dialog, file and
// folder dialogs, and the system clipboard.
class QtDialogs : public Dialogs {
public:
    MsgAnswer message(QWidget* parent, const QString& text, const QString& title, MsgIcon icon,
                      MsgButtons buttons) override;
    std::optional<QString> inputBox(QWidget* parent, const QString& prompt, const QString& title,
                                    const QString& defaultText) override;
    bool showOpen(QWidget* parent, FileDialogState& state) override;
    bool showSave(QWidget* parent, FileDialogState& state) override;
    QString browseForFolder(QWidget* parent, const QString& title) override;
    void setClipboardText(const QString& text) override;
    std::optional<QString> clipboardText() override;

private:
    bool showFileDialog(QWidget* parent, FileDialogState& state, bool save);

    // The folder of the last file chosen, where a dialog with no folder of its
    // own opens next.
    QString lastFolder_;
};

}  // namespace flickerscribe::ui
