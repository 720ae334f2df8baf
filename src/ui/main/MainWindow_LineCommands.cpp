#include <algorithm>
#include <optional>
#include <string>

#include "colour/NumberText.h"
#include "ui/common/LineLimit.h"
#include "ui/common/TextConv.h"
#include "ui/main/MainWindow.h"

using namespace Qt::Literals::StringLiterals;

// The commands that make, copy and remove lines by hand: the toolbar's Add
// button with its drop-down menu, and Remove. None of them moves the
// selection or redraws the pane: the pane goes on showing what it showed.

namespace flickerscribe::ui {

void MainWindow::addLine(bool after) {
    // Before or after makes no difference in an empty list; the new line
    // becomes the selected one.
    const int selected = script_.SelectedIndex();
    const int index = script_.Count() == 0 ? 1 : after ? selected + 1 : selected;
    if (!history_.insertLine(tr("Add line"), index, AnimationLine{.Text = "Text"}))
        showLineLimitMessage(dialogs_, this);
}

void MainWindow::removeSelectedLine() {
    if (!history_.removeLine(tr("Remove line"), script_.SelectedIndex()))
        dialogs_.message(this, tr("Can't remove line."), QString(), MsgIcon::Information, MsgButtons::Ok);
}

void MainWindow::copyLines(CopyMode mode) {
    if (script_.Count() < 1) {
        // The same title in all four modes, although they copy.
        dialogs_.message(this, tr("There are no lines to copy"), tr("Add line"), MsgIcon::Exclamation,
                         MsgButtons::Ok);
        return;
    }

    // How many copies of which lines: the copies always go behind the last
    // line, in the order the mode gives.
    int times = 1;
    if (mode == CopyMode::SelectedLineTimes) {
        const QString answer = dialogs_
                                   .inputBox(this, tr("Copy the selected line how many times?"),
                                             tr("Copy selected line x times"), u"5"_s)
                                   .value_or(QString());
        const std::optional<int> count = WholeNumber(fromQString(answer));
        if (!count) {
            dialogs_.message(this, tr("Can't copy the selected line. Invalid input (%1)").arg(answer),
                             tr("Error"), MsgIcon::Critical, MsgButtons::Ok);
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
        case CopyMode::SelectedLine:
        case CopyMode::SelectedLineTimes:
            if (times > 0)
                copies.assign(std::min(static_cast<std::size_t>(times), room + 1),
                              lines[static_cast<std::size_t>(script_.SelectedIndex() - 1)]);
            break;
        case CopyMode::AllLines:
            copies.assign(lines.begin(),
                          lines.begin() + static_cast<std::ptrdiff_t>(std::min(lines.size(), room + 1)));
            break;
        case CopyMode::AllLinesReversed:
            copies.assign(lines.rbegin(),
                          lines.rbegin() + static_cast<std::ptrdiff_t>(std::min(lines.size(), room + 1)));
            break;
    }
    if (!history_.appendLines(tr("Copy lines"), std::move(copies))) showLineLimitMessage(dialogs_, this);
}

}  // namespace flickerscribe::ui
