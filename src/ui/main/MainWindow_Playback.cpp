#include <QAction>
#include <QSignalBlocker>
#include <QTextEdit>
#include <QTimer>

#include "colour/ColouredText.h"
#include "ui/main/MainWindow.h"
#include "ui/main/MainWindowNames.h"
#include "ui/widgets/RichPane.h"

using namespace Qt::Literals::StringLiterals;

// Playback: the toolbar's Play button shows the lines in the preview pane one
// per tick of the play timer, from the first to the last, once.

namespace flickerscribe::ui {

namespace names = main_window_names;

bool MainWindow::playing() const {
    return playTimer_->isActive();
}

void MainWindow::togglePlayback() {
    // Every press starts again from the first line; a stop forgets the place.
    playIndex_ = 1;
    if (!playing()) {
        if (script_.Count() == 0) {
            // Whatever the answer, nothing else happens.
            dialogs_.message(this, tr("There is no animation to play!"), tr("Preview Animation"),
                             MsgIcon::Exclamation, MsgButtons::OkCancel);
            return;
        }
        playAction_->setText(tr("Stop"));
        playAction_->setIcon(stopIcon_);
        addAction_->setEnabled(false);
        removeAction_->setEnabled(false);
        // The pane takes no edit while it plays.
        preview_->SetLocked(true);
        playTimer_->start();
        updateUndoActions();
    } else {
        playAction_->setText(tr("Play"));
        playAction_->setIcon(playIcon_);
        addAction_->setEnabled(true);
        removeAction_->setEnabled(true);
        playTimer_->stop();
        updateUndoActions();
        // The last frame stays in the pane, but it is no line's text: the pane
        // stays locked until it shows the selected line again, which the
        // user's next click, key or colour in the pane brings. Stopped before
        // the first frame, the pane shows the selected line at once.
        if (paneShows_ != PaneShows::Frame) setPreview();
    }
}

void MainWindow::showNextFrame() {
    // The list is asked anew at each tick: a list that became shorter or
    // empty meanwhile ends playback here, without a word.
    if (script_.Count() == 0 || playIndex_ > script_.Count()) {
        togglePlayback();
        return;
    }
    {
        const QSignalBlocker quiet(paneEdit_);
        RenderCodedText(script_.LineAt(playIndex_).Text, *preview_);
    }
    paneShows_ = PaneShows::Frame;
    ++playIndex_;
    // The tick that shows the last line also stops; the frame stays.
    if (playIndex_ > script_.Count()) togglePlayback();
}

}  // namespace flickerscribe::ui
