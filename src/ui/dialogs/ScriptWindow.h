#pragma once

#include <string>

#include "ui/common/Dialogs.h"
#include "ui/dialogs/DialogWindow.h"

class QAction;
class QPlainTextEdit;

namespace flickerscribe {
class AnimationScript;
}
namespace flickerscribe::settings {
struct Settings;
}

namespace flickerscribe::ui {

// The generated script in an editable box, and Save, which writes what the
// box holds to a .cfg file. Opened modally by Generate; a new window each time,
// so it always shows the animation of the moment. Escape would close the
// window and lose the edits in the box: the close box is the way out.
class ScriptWindow : public DialogWindow {
    Q_OBJECT

public:
    // Builds the script of the animation into the box. A Time that is no
    // number is told first, one message per line, in list order, over
    // `parent`. `settings` are the settings in memory; SaveDir is read at
    // each save.
    ScriptWindow(const AnimationScript& script, Dialogs& dialogs, const settings::Settings& settings,
                 QWidget* parent = nullptr);
    ~ScriptWindow() override;

    // The command of the Save menu entry: asks for a name and writes the
    // box's text.
    void saveScript();

    // What a save writes: the box's text as Windows-1252 with CR LF line
    // breaks, followed by one more CR LF.
    std::string scriptFileBytes() const;
    QPlainTextEdit* scriptBox() const { return scriptBox_; }

    // This window's own save dialog.
    FileDialogState& saveDialog() { return saveDialog_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildScript();

    const AnimationScript& script_;
    Dialogs& dialogs_;
    const settings::Settings& settings_;
    QAction* saveAction_;
    QPlainTextEdit* scriptBox_;
    FileDialogState saveDialog_;
    bool placed_ = false;
};

}  // namespace flickerscribe::ui
