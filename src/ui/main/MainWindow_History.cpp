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

void MainWindow::undo() {
    if (!playing()) history_.undo();
}

void MainWindow::redo() {
    if (!playing()) history_.redo();
}

void MainWindow::updateUndoActions() {
    const auto caption = [](const QString& verb, const QString& step) {
        return step.isEmpty() ? verb : verb + u' ' + step;
    };
    undoAction_->setEnabled(history_.canUndo() && !playing());
    undoAction_->setText(caption(tr("Undo"), history_.undoText()));
    redoAction_->setEnabled(history_.canRedo() && !playing());
    redoAction_->setText(caption(tr("Redo"), history_.redoText()));
}

void MainWindow::updateReopenAction() {
    const QStringList files = kept_.files();
    reopenAction_->setEnabled(std::any_of(files.begin(), files.end(),
                                          [this](const QString& file) { return file != kept_.ownFile(); }));
    keptMenu_->setEnabled(!files.isEmpty());
}

void MainWindow::fillKeptMenu() {
    keptMenu_->clear();
    for (const KeptAnimations::Entry& entry : kept_.entries()) {
        connect(keptMenu_->addAction(entryCaption(entry)), &QAction::triggered, this,
                [this, path = entry.path] { openKeptAnimation(path); });
    }
    if (keptMenu_->isEmpty()) keptMenu_->addAction(tr("None can be read"))->setEnabled(false);
}

void MainWindow::keepAnimation() {
    keepTimer_->stop();
    if (keptCurrent_ || !kept_.enabled() || script_.Count() == 0) return;
    const auto error = kept_.keep(script_);
    keptCurrent_ = !error;
    // Tried again in 30 seconds, and at the end of the program.
    if (error) keepTimer_->start();
    showKeepProblem(error);
    updateReopenAction();
}

// Never a message box: keeping runs at the end of the program too.
void MainWindow::showKeepProblem(const std::optional<SaveError>& error) {
    if (!error) {
        if (keepProblem_ != nullptr) statusBar()->hide();
        return;
    }
    qWarning("Flickerscribe: the animation could not be kept in %s: %s (%d)", qUtf8Printable(kept_.ownFile()),
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

void MainWindow::reopenLastAnimation() {
    // The newest that another run kept and that can be read whole.
    for (const QString& path : kept_.files()) {
        if (path == kept_.ownFile()) continue;
        const LoadStatus status = history_.replaceLines(
            tr("Reopen last animation"),
            [&](AnimationScript& script) { return LoadWholeAnimationFile(nativePath(path), script); });
        if (status == LoadStatus::Truncated) showLineLimitMessage(dialogs_, this);
        if (status != LoadStatus::ReadFailed) return;
    }
    dialogs_.message(this, tr("File not found!"), tr("Error"), MsgIcon::Critical, MsgButtons::Ok);
}

void MainWindow::openKeptAnimation(const QString& path) {
    loadIntoList(tr("Open kept animation"), path, LoadWholeAnimationFile, tr("File not found!\n") + path,
                 tr("Error"));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    keepAnimation();
    QMainWindow::closeEvent(event);
}

}  // namespace flickerscribe::ui
