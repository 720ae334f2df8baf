#pragma once

class QWidget;

namespace flickerscribe::ui {

class Dialogs;

// The one message for work that the 32767-line limit of an animation stopped:
// the lines that stand are kept, and the user is told that the rest is missing.
void showLineLimitMessage(Dialogs& dialogs, QWidget* parent);

}  // namespace flickerscribe::ui
