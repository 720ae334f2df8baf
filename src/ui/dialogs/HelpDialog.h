#pragma once

#include "ui/dialogs/DialogWindow.h"

namespace flickerscribe::ui {

class Dialogs;

// Where help can be found: the web site, the forums and the author's e-mail
// address and chat number, each in a read-only box with a button that copies
// it to the clipboard. Enter presses only a focused button; Escape closes.
class HelpDialog : public DialogWindow {
    Q_OBJECT

public:
    explicit HelpDialog(Dialogs& dialogs, QWidget* parent = nullptr);

private:
    Dialogs& dialogs_;
};

}  // namespace flickerscribe::ui
