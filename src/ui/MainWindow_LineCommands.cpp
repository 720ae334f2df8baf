#include <algorithm>
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
    // Before or after makes no difference in an empty list; the new line
    // becomes the selected one.
    const int selected = script_.SelectedIndex();
    const int index = script_.Count() == 0 ? 1 : after ? selected + 1 : selected;
    if (!history_.InsertLine(u"Add line"_s, index, AnimationLine{kNewText, kNewTime, kNewAction}))
        ShowLineLimitMessage(dialogs_, this);
}

void MainWindow::RemoveSelectedLine() {
    if (!history_.RemoveLine(u"Remove line"_s, script_.SelectedIndex()))
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

    // The copies, read before the first one goes in, so that none is copied
    // again; no more than fit.
    const std::vector<AnimationLine>& lines = script_.Lines();
    const std::size_t room = static_cast<std::size_t>(kMaxLines - script_.Count());
    std::vector<AnimationLine> copies;
    switch (mode) {
        case 1:
        case 2:
            if (times > 0)
                copies.assign(std::min(static_cast<std::size_t>(times), room + 1),
                              lines[static_cast<std::size_t>(script_.SelectedIndex() - 1)]);
            break;
        case 3:
            copies.assign(lines.begin(),
                          lines.begin() + static_cast<std::ptrdiff_t>(std::min(lines.size(), room + 1)));
            break;
        case 4:
            copies.assign(lines.rbegin(),
                          lines.rbegin() + static_cast<std::ptrdiff_t>(std::min(lines.size(), room + 1)));
            break;
        default:
            return;
    }
    if (!history_.AppendLines(u"Copy lines"_s, std::move(copies))) ShowLineLimitMessage(dialogs_, this);
}

}  // namespace flickerscribe::ui
