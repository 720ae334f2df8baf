#include <optional>
#include <string>

#include "ui/common/LineLimit.h"
#include "ui/common/TextConv.h"
#include "ui/main/MainWindow.h"

// The Edit menu's Cut, Copy and Paste: one line's coded text to and from the
// clipboard, as plain text with its caret codes in view. Time and Action
// never travel: a pasted line gets "15" and "[none]".

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {

namespace {

// A line's text holds no line break, and one paste makes one line: of a
// clipboard text with breaks (CR LF, CR or LF) only the first line is kept.
QString firstLine(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\r' || text[i] == u'\n') return text.left(i);
    }
    return text;
}

}  // namespace

void MainWindow::cutLine() {
    if (script_.Count() == 0) return;
    dialogs_.setClipboardText(toQString(script_.LineAt(script_.SelectedIndex()).Text));
    history_.removeLine(tr("Cut"), script_.SelectedIndex());
    setPreview();
}

void MainWindow::copyLine() {
    if (script_.Count() == 0) return;
    dialogs_.setClipboardText(toQString(script_.LineAt(script_.SelectedIndex()).Text));
}

void MainWindow::pasteLine() {
    // A clipboard that can't be read now leaves the list as it was.
    const std::optional<QString> clipboard = dialogs_.clipboardText();
    if (!clipboard) return;
    // The new line goes behind the selected one, which stays selected; into
    // an empty list it goes as the first line, and is selected.
    const int index = script_.Count() > 0 ? script_.SelectedIndex() + 1 : 1;
    if (!history_.insertLine(tr("Paste"), index, AnimationLine{.Text = fromQString(firstLine(*clipboard))})) {
        showLineLimitMessage(dialogs_, this);
        return;
    }
    setPreview();
}

}  // namespace flickerscribe::ui
