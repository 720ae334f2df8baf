#include "ui/common/FileCommands.h"

#include "document/AnimationFile.h"
#include "ui/common/Dialogs.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {

// The core takes UTF-8 paths: on Windows it opens them by their wide-character
// names, elsewhere UTF-8 is the file system's own encoding (as Qt takes it).
std::string nativePath(const QString& path) {
    return path.toStdString();
}

std::optional<std::string> chooseSavePath(Dialogs& dialogs, QWidget* parent, FileDialogState& dialog,
                                          const std::function<void()>& prepare,
                                          const OverwriteQuestion& question) {
    for (;;) {
        if (prepare) prepare();
        if (!dialogs.showSave(parent, dialog)) return std::nullopt;
        std::string path = nativePath(dialog.fileName);
        if (!FileExists(path)) return path;
        switch (dialogs.message(parent, question.text, question.title, MsgIcon::Question,
                                MsgButtons::YesNoCancel)) {
            case MsgAnswer::Yes:
                return path;
            case MsgAnswer::No:
                continue;
            case MsgAnswer::Ok:
            case MsgAnswer::Cancel:
                return std::nullopt;
        }
    }
}

void showSaveError(Dialogs& dialogs, QWidget* parent, const SaveError& error) {
    const QString text = u"Error saving script!\n%1\n%2"_s.arg(QString::number(error.number),
                                                               QString::fromStdString(error.text));
    dialogs.message(parent, text, u"Error"_s, MsgIcon::Critical, MsgButtons::Ok);
}

}  // namespace flickerscribe::ui
