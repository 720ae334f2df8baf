#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace flickerscribe::ui {

enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MsgAnswer { Ok, Cancel, Yes, No };

// The state of one file dialog object, kept by its owner between uses, the way
// a common dialog keeps its file name and folder. The filter is in Qt's own
// syntax: "Description (*.ext);;Other (*.*)".
struct FileDialogState {
    QString title;
    QString filter;
    QString initialFolder;  // where the dialog opens, when set
    QString fileName;       // the name last chosen
};

// Every modal question, file dialog and clipboard access of the program goes
// through this, so that tests can answer them. Each window takes one in its
// constructor.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    // An empty title means the application's own name.
    virtual MsgAnswer message(QWidget* parent, const QString& text, const QString& title, MsgIcon icon,
                              MsgButtons buttons) = 0;
    // The answer as text; Cancel gives nullopt.
    virtual std::optional<QString> inputBox(QWidget* parent, const QString& prompt, const QString& title,
                                            const QString& defaultText) = 0;
    // Shows the open or save dialog for `state`. On OK the chosen path is
    // written to state.fileName and true returned; Cancel returns false and
    // leaves `state` as it was. The dialog itself neither asks about
    // overwriting nor adds a suffix.
    virtual bool showOpen(QWidget* parent, FileDialogState& state) = 0;
    virtual bool showSave(QWidget* parent, FileDialogState& state) = 0;
    // The chosen folder, or the empty text on Cancel.
    virtual QString browseForFolder(QWidget* parent, const QString& title) = 0;

    virtual void setClipboardText(const QString& text) = 0;
    // The clipboard's text: empty when it holds none, nullopt when it can't be read.
    virtual std::optional<QString> clipboardText() = 0;
};

}  // namespace flickerscribe::ui
