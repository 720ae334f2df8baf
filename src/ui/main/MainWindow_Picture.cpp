#include <QProgressDialog>

#include "document/SafeWrite.h"
#include "picture/AnimatedPicture.h"
#include "ui/common/FileCommands.h"
#include "ui/main/MainWindow.h"
#include "ui/main/MainWindowNames.h"

// File, Export animated picture: the animation as an animated GIF, for players
// to show their names to each other before anyone runs the script.

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {

namespace names = main_window_names;

void MainWindow::exportPicture() {
    const QString title = tr("Export animated picture");
    if (script_.Count() == 0) {
        dialogs_.message(this, tr("There is no animation to export!"), title, MsgIcon::Exclamation,
                         MsgButtons::Ok);
        return;
    }
    const auto path = chooseSavePath(dialogs_, this, fileDialog_,
                                     [this, &title] {
                                         fileDialog_.title = title;
                                         fileDialog_.filter = tr("Animated picture (*.gif)");
                                         if (!settings_.saveFolder.isEmpty())
                                             fileDialog_.initialFolder = settings_.saveFolder;
                                     },
                                     {tr("File exists! Overwrite?"), title});
    if (!path) return;

    // The texts as they are now: the wizard, beside this window, may replace
    // the lines while the frames are drawn.
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(script_.Count()));
    for (const AnimationLine& line : script_.Lines()) texts.push_back(line.Text);

    // The dialog shows when the work looks like taking more than half a
    // second; from then on each frame lets the window answer (the dialog is
    // modal, so its value handles the events waiting), and Cancel stops.
    QProgressDialog progress(tr("Drawing the frames..."), tr("Cancel"), 0, static_cast<int>(texts.size()),
                             this);
    progress.setObjectName(names::kExportProgress);
    progress.setWindowTitle(title);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(500);
    progress.setAutoReset(false);
    progress.setValue(0);
    const auto bytes = picture::DrawAnimatedPicture(texts, [&progress](int done, int) {
        progress.setValue(done);
        return !progress.wasCanceled();
    });
    // Cancelled: nothing is written, an old file stays as it was.
    if (!bytes) return;
    if (const auto error = WriteFileSafely(*path, *bytes)) showSaveError(dialogs_, this, *error);
}

}  // namespace flickerscribe::ui
