#include <QSignalBlocker>
#include <QTextEdit>
#include <string>

#include "colour/ColouredText.h"
#include "colour/Palette.h"
#include "ui/common/TextConv.h"
#include "ui/dialogs/EditTimeDialog.h"
#include "ui/main/MainWindow.h"
#include "ui/widgets/LineListView.h"
#include "ui/widgets/RichPane.h"

using namespace Qt::Literals::StringLiterals;

// Editing the selected line: in the coloured pane with the colour strip, by
// keys in the list, and its time in the Edit dialog.

namespace flickerscribe::ui {

void MainWindow::onPaneEdited() {
    writePaneToLine(tr("Typing"), true);
}

void MainWindow::writePaneToLine(const QString& stepName, bool typing) {
    Pane& pane = *preview_;
    const int caret = pane.SelStart();
    // Every change of the pane goes back to the selected line as coded text,
    // with a code only where the colour changes (white counting as the colour
    // before the first character). The program draws into the pane with its
    // signals blocked and locks it while playback runs, so only the user's
    // edits come here; a frame that playback left in the pane reaches no
    // line, and with an empty list there is no line to reach. The line's
    // change comes back to a pane that already shows it, and stays there.
    if (paneShows_ != PaneShows::Frame && script_.Count() >= 1) {
        shownText_ = EncodeColouredText(pane, kWhite);
        paneShows_ = PaneShows::Line;
        history_.setText(stepName, script_.SelectedIndex(), shownText_, typing);
    }
    // The caret stays where it was, and a selection ends at its start. The
    // walk above doesn't move the caret, so this only matters after a colour
    // was set on a selected stretch; leaving an unmoved caret alone keeps a
    // colour chosen for the next typed character.
    if (pane.SelStart() != caret || pane.SelLength() != 0) {
        pane.SetSelStart(caret);
        pane.SetSelLength(0);
    }
}

void MainWindow::paintSelection(int index) {
    Pane& pane = *preview_;
    // A locked pane holds no line to paint: "Preview", or playback's frames.
    // A frame left after playback gives way to the selected line.
    if (pane.Locked()) {
        if (paneShows_ == PaneShows::Frame && !playing()) setPreview();
        return;
    }
    // An empty pane takes no colour: a new text can't start with one.
    if (pane.Text().empty()) return;
    const bool stretch = pane.SelLength() > 0;
    {
        // Whether or not the widget reports a change of colour alone, the line
        // hears of it exactly once, below.
        const QSignalBlocker quiet(paneEdit_);
        pane.SetSelColour(ColourFromDigit(std::string(1, static_cast<char>('1' + index))));
    }
    // With nothing selected no character changed: the colour waits for what
    // is typed next, and typing writes the line. A coloured stretch is a step
    // of its own.
    if (stretch) writePaneToLine(tr("Colour"), false);
}

void MainWindow::onPaneKeyPress(int key) {
    // The Ctrl key alone takes the focus to the list, so that every Ctrl
    // combination begun in the pane works on lines, not on characters.
    if (key == Qt::Key_Control) lineList_->setFocus();
}

void MainWindow::onListKeyPress(int key) {
    // Delete removes with Shift or Ctrl held as well.
    // The list has already moved its selection for this key, so the pane
    // shows the line an arrow key led to.
    if (key == Qt::Key_Delete) removeSelectedLine();
    setPreview();
}

void MainWindow::editSelectedLine() {
    if (script_.Count() > 0) {
        EditTimeDialog window(this);
        if (window.exec() == QDialog::Accepted)
            history_.setTime(tr("Edit time"), script_.SelectedIndex(), fromQString(window.time()));
    } else {
        dialogs_.message(this, tr("No items to edit"), tr("Edit"), MsgIcon::Exclamation, MsgButtons::Ok);
    }
}

}  // namespace flickerscribe::ui
