#include "ui/DialogIcons.h"

using namespace Qt::Literals::StringLiterals;

// The resources live in a static library, so they are registered by hand
// before their first use; this has to stand outside any namespace.
static void RegisterDialogIcons() {
    Q_INIT_RESOURCE(dialog_icons);
}

namespace flickerscribe::ui {
namespace {

QIcon LoadIcon(const QString& path) {
    static const bool registered = (RegisterDialogIcons(), true);
    (void)registered;
    return QIcon(path);
}

}  // namespace

QIcon CopyIcon() {
    return LoadIcon(u":/dialogs/copy.svg"_s);
}

QIcon FolderIcon() {
    return LoadIcon(u":/dialogs/folder.svg"_s);
}

}  // namespace flickerscribe::ui
