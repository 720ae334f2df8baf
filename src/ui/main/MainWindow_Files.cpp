#include "document/AnimationFile.h"
#include "script/ConfigImport.h"
#include "ui/common/FileCommands.h"
#include "ui/common/LineLimit.h"
#include "ui/dialogs/ScriptWindow.h"
#include "ui/main/MainWindow.h"

// The commands through the file dialog: Open and Save As of the animation,
// Import of a script, and the generated script.

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

QString animationFilter() {
    return MainWindow::tr("Brennock Animation Script (*.fsq)");
}

}  // namespace

void MainWindow::openAnimation() {
    fileDialog_.title = tr("Open Brennock Animation");
    fileDialog_.filter = animationFilter();
    if (!settings_.openFolder.isEmpty()) fileDialog_.initialFolder = settings_.openFolder;
    if (!dialogs_.showOpen(this, fileDialog_)) return;
    openAnimationFile(fileDialog_.fileName);
}

void MainWindow::openAnimationFile(const QString& path) {
    loadIntoList(tr("Open"), path, LoadAnimationFile, tr("File not found!\n") + path, tr("Error"));
}

// The whole file is read before the list is touched: a file that can't be
// read to its end (gone, a folder, a pipe, an I/O error) changes nothing.
void MainWindow::loadIntoList(const QString& stepName, const QString& path, FileLoader load,
                              const QString& notFound, const QString& title) {
    const std::string fileName = nativePath(path);
    const LoadStatus status =
        history_.replaceLines(stepName, [&](AnimationScript& script) { return load(fileName, script); });
    if (status == LoadStatus::ReadFailed)
        dialogs_.message(this, notFound, title, MsgIcon::Critical, MsgButtons::Ok);
    if (status == LoadStatus::Truncated) showLineLimitMessage(dialogs_, this);
}

void MainWindow::saveAnimationAs() {
    const auto path = chooseSavePath(dialogs_, this, fileDialog_,
                                     [this] {
                                         fileDialog_.title = tr("Save Brennock Animation");
                                         fileDialog_.filter = animationFilter();
                                         if (!settings_.saveFolder.isEmpty())
                                             fileDialog_.initialFolder = settings_.saveFolder;
                                     },
                                     {tr("File exists! Overwrite?"), tr("Save Brennock Animation")});
    if (!path) return;
    if (const auto error = SaveAnimationFile(*path, script_)) showSaveError(dialogs_, this, *error);
}

void MainWindow::importScript() {
    dialogs_.message(this, tr("Note: Currently only .cfg files can be imported!"), tr("Import note"),
                     MsgIcon::Information, MsgButtons::Ok);
    // The folder is left as it is: the dialog opens where it was last.
    fileDialog_.title = tr("Import file");
    fileDialog_.filter = tr("Brennock Scripts (*.cfg)");
    if (!dialogs_.showOpen(this, fileDialog_)) return;

    loadIntoList(tr("Import"), fileDialog_.fileName, ImportFile, tr("File not found!"), tr("Import error"));
}

void MainWindow::generateScript() {
    ScriptWindow window(script_, dialogs_, settings_, this);
    window.exec();
}

}  // namespace flickerscribe::ui
