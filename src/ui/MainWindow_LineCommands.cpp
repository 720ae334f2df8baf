#include <optional>
#include <string>

#include "colour/NumberText.h"
#include "ui/LineLimit.h"
#include "ui/MainWindow.h"
#include "ui/TextConv.h"

using namespace Qt::Literals::StringLiterals;

// The commands that make, copy and remove lines by hand: the toolbar's Add
// button with its drop-down menu, and Remove. None of them moves the
// selection or redraws the pane: the pane goes on showing what it showed.

namespace flickerscribe::ui {

namespace {

const std::string kNewText = "Text";
const std::string kNewTime = "15";
const std::string kNewAction = "[none]";

}  // namespace

void MainWindow::AddLine(bool after) {
    bool added = false;
    if (script_.Count() == 0) {
        // Before or after makes no difference in an empty list; the new line
        // becomes the selected one.
        added = script_.AppendLine(kNewText, kNewTime, kNewAction);
    } else {
        const int selected = script_.SelectedIndex();
        added = script_.InsertLine(after ? selected + 1 : selected, kNewText, kNewTime, kNewAction);
    }
    if (!added) ShowLineLimitMessage(dialogs_, this);
}

void MainWindow::RemoveSelectedLine() {
    if (!script_.RemoveLine(script_.SelectedIndex()))
        dialogs_.Message(this, u"Can't remove line."_s, QString(), MsgIcon::Information, MsgButtons::Ok);
}

void MainWindow::CopyLines(int mode) {
    if (script_.Count() < 1) {
        // The same title in all four modes, although they copy.
        dialogs_.Message(this, u"There are no lines to copy"_s, u"Add line"_s, MsgIcon::Exclamation,
                         MsgButtons::Ok);
        return;
    }

    // How many copies of which lines: the copies always go behind the last
    // line, in the order the mode gives.
    int times = 1;
    if (mode == 2) {
        const QString answer = dialogs_
                                   .InputBox(this, u"Copy the selected line how many times?"_s,
                                             u"Copy selected line x times"_s, u"5"_s)
                                   .value_or(QString());
        const std::optional<int> count = WholeNumber(FromQString(answer));
        if (!count) {
            dialogs_.Message(this, u"Can't copy the selected line. Invalid input ("_s + answer + u")"_s,
                             u"Error"_s, MsgIcon::Critical, MsgButtons::Ok);
            return;
        }
        times = *count;  // below 1: nothing to copy, and nothing to say
    }

    // Read before the first copy, so that the copies are not copied again.
    const int count = script_.Count();
    const int selected = script_.SelectedIndex();
    int copies = 0;
    switch (mode) {
        case 1:
        case 2:
            copies = times;
            break;
        case 3:
        case 4:
            copies = count;
            break;
        default:
            return;
    }
    if (copies < 1) return;

    // Many lines at once reach the view as one reset, not one row at a time.
    std::optional<AnimationScript::Batch> batch;
    if (copies > 1) batch.emplace(script_);
    bool full = false;
    for (int i = 1; i <= copies && !full; ++i) {
        int source = selected;
        if (mode == 3) source = i;
        if (mode == 4) source = count + 1 - i;
        // A copy of the fields: appending may move the lines in memory.
        const AnimationLine line = script_.LineAt(source);
        full = !script_.AppendLine(line.Text, line.Time, line.Action);
    }
    batch.reset();
    if (full) ShowLineLimitMessage(dialogs_, this);
}

}  // namespace flickerscribe::ui
