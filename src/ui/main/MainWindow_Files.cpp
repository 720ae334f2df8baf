#include "document/AnimationFile.h"
#include "script/ConfigImport.h"
#include "ui/common/FileCommands.h"
#include "ui/common/LineLimit.h"
#include "ui/main/MainWindow.h"
#include "ui/dialogs/ScriptWindow.h"

// The commands through the file dialog: Open and Save As of the animation,
// Import of a script, and the generated script.

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

QString AnimationFilter() {
    return MainWindow::tr("Brennock Animation Script (*.fsq)");
}

}  // namespace

void MainWindow::OpenAnimation() {
    fileDialog_.title = tr("Open Brennock Animation");
    fileDialog_.filter = AnimationFilter();
    if (!settings_.openFolder.isEmpty()) fileDialog_.initialFolder = settings_.openFolder;
    if (!dialogs_.ShowOpen(this, fileDialog_)) return;
    OpenAnimationFile(fileDialog_.fileName);
}

void MainWindow::OpenAnimationFile(const QString& path) {
    LoadIntoList(tr("Open"), path, LoadAnimationFile, tr("File not found!\n") + path, tr("Error"));
}

// The whole file is read before the list is touched: a file that can't be
// read to its end (gone, a folder, a pipe, an I/O error) changes nothing.
void MainWindow::LoadIntoList(const QString& stepName, const QString& path, FileLoader load,
                              const QString& notFound, const QString& title) {
    const std::string nativePath = NativePath(path);
    const LoadStatus status =
        history_.ReplaceLines(stepName, [&](AnimationScript& script) { return load(nativePath, script); });
    if (status == LoadStatus::ReadFailed)
        dialogs_.Message(this, notFound, title, MsgIcon::Critical, MsgButtons::Ok);
    if (status == LoadStatus::Truncated) ShowLineLimitMessage(dialogs_, this);
}

void MainWindow::SaveAnimationAs() {
    const auto path = ChooseSavePath(dialogs_, this, fileDialog_,
                                     [this] {
                                         fileDialog_.title = tr("Save Brennock Animation");
                                         fileDialog_.filter = AnimationFilter();
                                         if (!settings_.saveFolder.isEmpty())
                                             fileDialog_.initialFolder = settings_.saveFolder;
                                     },
                                     {tr("File exists! Overwrite?"), tr("Save Brennock Animation")});
    if (!path) return;
    if (const auto error = SaveAnimationFile(*path, script_)) ShowSaveError(dialogs_, this, *error);
}

void MainWindow::ImportScript() {
    dialogs_.Message(this, tr("Note: Currently only .cfg files can be imported!"), tr("Import note"),
                     MsgIcon::Information, MsgButtons::Ok);
    // The folder is left as it is: the dialog opens where it was last.
    fileDialog_.title = tr("Import file");
    fileDialog_.filter = tr("Brennock Scripts (*.cfg)");
    if (!dialogs_.ShowOpen(this, fileDialog_)) return;

    LoadIntoList(tr("Import"), fileDialog_.fileName, ImportFile, tr("File not found!"), tr("Import error"));
}

void MainWindow::GenerateScript() {
    ScriptWindow window(script_, dialogs_, settings_, this);
    window.exec();
}

}  // namespace flickerscribe::ui
