#pragma once

#include <QDialog>
#include <string>

#include "ui/Dialogs.h"

class QAction;
class QPlainTextEdit;

namespace fs {
class AnimationScript;
}
namespace fs::settings {
struct Settings;
}

namespace fs::ui {

// The generated script in an editable box, and Save, which writes what the
// box holds to a .cfg file. Opened modally by Generate; a new window each time,
// so it always shows the animation of the moment.
class frmScript : public QDialog {
    Q_OBJECT

public:
    // `settings` are the settings in memory; SaveDir is read at each save.
    frmScript(const AnimationScript& script, Dialogs& dialogs, const settings::Settings& settings,
              QWidget* parent = nullptr);
    ~frmScript() override;

    // Builds the script of the animation and puts it into txtScript. A Time
    // that is no number is told first, one message per line, in list order;
    // call this before the window shows.
    void Form_Load();
    // The command of mnuSave: asks for a name and writes the box's text.
    void SaveScript();

    // What a save writes: the box's text as Windows-1252 with CR LF line
    // breaks, followed by one more CR LF.
    std::string ScriptFileBytes() const;
    QPlainTextEdit* ScriptBox() const { return txtScript_; }

    // This window's own save dialog.
    FileDialogState dlgFileOps;

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const AnimationScript& script_;
    Dialogs& dialogs_;
    const settings::Settings& settings_;
    QAction* mnuSave_;
    QPlainTextEdit* txtScript_;
    bool placed_ = false;
};

}  // namespace fs::ui
