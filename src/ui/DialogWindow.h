#pragma once

#include <QFont>
#include <QString>

class QDialog;
class QWidget;

namespace flickerscribe::ui {

// The small sans-serif face that the dialogs are laid out for: their twips
// positions leave room for its captions, not for a larger desktop default.
QFont DialogFont();

// Enter presses the push button that has the focus; only where the focus is on
// something else does Enter reach the window (a dialog's default button).
// Every dialog made below has this already.
void PressFocusedButtonOnEnter(QWidget& window);

// Gives a dialog its name, caption and DialogFont, and makes it a fixed window of the given
// client size in twips: no minimise or maximise button, no size grip, no
// entry of its own in the task bar. Shown with an owner, Qt centres it on the
// owner.
void MakeFixedDialog(QDialog& dialog, const QString& name, const QString& caption, int clientWidth,
                     int clientHeight);

// Like MakeFixedDialog, but the user can resize, minimise and maximise the
// window; the size given is the one it opens with.
void MakeSizableDialog(QDialog& dialog, const QString& name, const QString& caption, int clientWidth,
                       int clientHeight);

}  // namespace flickerscribe::ui
