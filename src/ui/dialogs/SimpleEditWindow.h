#pragma once

#include <memory>

#include "ui/dialogs/DialogWindow.h"

class QTextEdit;

namespace flickerscribe {
class Pane;
}  // namespace flickerscribe

namespace flickerscribe::ui {

class AnimationHistory;
class Dialogs;
class RichPane;

// Simple edit: the whole animation typed into one multi-line pane, one frame
// a text line, painted with the colour buttons. Save replaces the line list by
// the pane's lines; the window stays open and never shows the list. The pane
// fills the window below the colour strip. Escape would throw away the whole
// pane without a question: it does nothing here; Close is the way out.
class SimpleEditWindow : public DialogWindow {
    Q_OBJECT

public:
    SimpleEditWindow(AnimationHistory& history, Dialogs& dialogs, QWidget* parent = nullptr);
    ~SimpleEditWindow() override;

    Pane& previewPane();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Empties the list and appends one line (with the default time and action)
    // for each text line of the pane that holds more than blanks. Asks
    // nothing; only a full list stops it, and then the user is told.
    void saveToList();

    AnimationHistory& history_;
    Dialogs& dialogs_;
    QTextEdit* paneEdit_;
    std::unique_ptr<RichPane> pane_;
};

}  // namespace flickerscribe::ui
