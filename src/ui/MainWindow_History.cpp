#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include "document/AnimationFile.h"
#include "ui/FileCommands.h"
#include "ui/MainWindow.h"

using namespace Qt::Literals::StringLiterals;

// Undo and Redo over the animation's history, and the last animation kept
// between runs of the program.

namespace flickerscribe::ui {

void MainWindow::Undo() {
    if (!Playing()) history_.Undo();
}

void MainWindow::Redo() {
    if (!Playing()) history_.Redo();
}

void MainWindow::UpdateUndoActions() {
    const auto caption = [](const QString& verb, const QString& step) {
        return step.isEmpty() ? verb : verb + u' ' + step;
    };
    undoAction_->setEnabled(history_.CanUndo() && !Playing());
    undoAction_->setText(caption(u"Undo"_s, history_.UndoText()));
    redoAction_->setEnabled(history_.CanRedo() && !Playing());
    redoAction_->setText(caption(u"Redo"_s, history_.RedoText()));
}

void MainWindow::UpdateReopenAction() {
    reopenAction_->setEnabled(!keptAnimation_.isEmpty() && QFileInfo(keptAnimation_).isFile());
}

void MainWindow::KeepAnimation() {
    keepTimer_->stop();
    if (kept_ || keptAnimation_.isEmpty() || script_.Count() == 0) return;
    kept_ = true;
    const QString folder = QFileInfo(keptAnimation_).absolutePath();
    std::optional<SaveError> error;
    if (!QDir().mkpath(folder)) {
        error = SaveError{EACCES, "the folder can't be made"};
    } else {
        error = SaveAnimationFile(NativePath(keptAnimation_), script_);
    }
    // Never a message box: this runs at the end of the program too.
    if (error) {
        qWarning("Flickerscribe: the last animation could not be kept in %s: %s (%d)",
                 qUtf8Printable(keptAnimation_), error->text.c_str(), error->number);
    }
    UpdateReopenAction();
}

void MainWindow::ReopenLastAnimation() {
    LoadIntoList(u"Reopen last animation"_s, keptAnimation_, LoadAnimationFile,
                 u"File not found!\n"_s + keptAnimation_, u"Error"_s);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    KeepAnimation();
    QMainWindow::closeEvent(event);
}

}  // namespace flickerscribe::ui
