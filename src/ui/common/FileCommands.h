#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>

#include "document/SafeWrite.h"

class QWidget;

namespace flickerscribe::ui {

class Dialogs;
struct FileDialogState;

// A path chosen in a file dialog, as the core's file routines take it: in the
// file system's own encoding. Paths are no Windows-1252 text.
std::string nativePath(const QString& path);

// What a save asks when the chosen file is there already.
struct OverwriteQuestion {
    QString text;
    QString title;
};

// The save dialog of a command, shown until the user settles on a name.
// `prepare` sets the dialog up before each showing. A name that exists is
// taken only after Yes to `question`; No shows the dialog again, with the name
// last chosen in it; Cancel, in the dialog or in the question, gives nullopt.
std::optional<std::string> chooseSavePath(Dialogs& dialogs, QWidget* parent, FileDialogState& dialog,
                                          const std::function<void()>& prepare,
                                          const OverwriteQuestion& question);

// "Error saving script!", the error number and the error text, each on a line
// of its own, as a stop message titled "Error".
void showSaveError(Dialogs& dialogs, QWidget* parent, const SaveError& error);

}  // namespace flickerscribe::ui
