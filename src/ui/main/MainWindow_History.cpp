#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>

#include "document/AnimationFile.h"
#include "ui/common/FileCommands.h"
#include "ui/common/LineLimit.h"
#include "ui/main/MainWindow.h"
#include "ui/main/MainWindowNames.h"

using namespace Qt::Literals::StringLiterals;

// Undo and Redo over the animation's history, and the last animation kept
// between runs of the program.

namespace flickerscribe::ui {

namespace names = main_window_names;

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
    undoAction_->setText(caption(tr("Undo"), history_.UndoText()));
    redoAction_->setEnabled(history_.CanRedo() && !Playing());
    redoAction_->setText(caption(tr("Redo"), history_.RedoText()));
}

void MainWindow::UpdateReopenAction() {
    const QStringList files = kept_.Files();
    reopenAction_->setEnabled(std::any_of(files.begin(), files.end(),
                                          [this](const QString& file) { return file != kept_.OwnFile(); }));
    keptMenu_->setEnabled(!files.isEmpty());
}

void MainWindow::FillKeptMenu() {
    keptMenu_->clear();
    for (const KeptAnimations::Entry& entry : kept_.Entries()) {
        connect(keptMenu_->addAction(EntryCaption(entry)), &QAction::triggered, this,
                [this, path = entry.path] { OpenKeptAnimation(path); });
    }
    if (keptMenu_->isEmpty()) keptMenu_->addAction(tr("None can be read"))->setEnabled(false);
}

void MainWindow::KeepAnimation() {
    keepTimer_->stop();
    if (keptCurrent_ || !kept_.Enabled() || script_.Count() == 0) return;
    const auto error = kept_.Keep(script_);
    keptCurrent_ = !error;
    // Tried again in 30 seconds, and at the end of the program.
    if (error) keepTimer_->start();
    ShowKeepProblem(error);
    UpdateReopenAction();
}

// Never a message box: keeping runs at the end of the program too.
void MainWindow::ShowKeepProblem(const std::optional<SaveError>& error) {
    if (!error) {
        if (keepProblem_ != nullptr) statusBar()->hide();
        return;
    }
    qWarning("Flickerscribe: the animation could not be kept in %s: %s (%d)", qUtf8Printable(kept_.OwnFile()),
             error->text.c_str(), error->number);
    if (keepProblem_ == nullptr) {
        keepProblem_ = new QLabel(this);
        keepProblem_->setObjectName(names::kKeepProblem);
        statusBar()->addWidget(keepProblem_, 1);
    }
    keepProblem_->setText(tr("Your work could not be kept (%1); trying again in 30 seconds.")
                              .arg(QString::fromLocal8Bit(error->text)));
    statusBar()->show();
}

void MainWindow::ReopenLastAnimation() {
    // The newest that another run kept and that can be read whole.
    for (const QString& path : kept_.Files()) {
        if (path == kept_.OwnFile()) continue;
        const LoadStatus status = history_.ReplaceLines(
            tr("Reopen last animation"),
            [&](AnimationScript& script) { return LoadWholeAnimationFile(NativePath(path), script); });
        if (status == LoadStatus::Truncated) ShowLineLimitMessage(dialogs_, this);
        if (status != LoadStatus::ReadFailed) return;
    }
    dialogs_.Message(this, tr("File not found!"), tr("Error"), MsgIcon::Critical, MsgButtons::Ok);
}

void MainWindow::OpenKeptAnimation(const QString& path) {
    LoadIntoList(tr("Open kept animation"), path, LoadWholeAnimationFile, tr("File not found!\n") + path,
                 tr("Error"));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    KeepAnimation();
    QMainWindow::closeEvent(event);
}

}  // namespace flickerscribe::ui
