#include "ui/dialogs/DialogIcons.h"

using namespace Qt::Literals::StringLiterals;

// The resources live in a static library, so they are registered by hand
// before their first use; this has to stand outside any namespace.
static void registerDialogIcons() {
    Q_INIT_RESOURCE(dialog_icons);
}

namespace flickerscribe::ui {
namespace {

QIcon loadIcon(const QString& path) {
    static const bool registered = (registerDialogIcons(), true);
    (void)registered;
    return QIcon(path);
}

}  // namespace

QIcon copyIcon() {
    return loadIcon(u":/dialogs/copy.svg"_s);
}

QIcon folderIcon() {
    return loadIcon(u":/dialogs/folder.svg"_s);
}

}  // namespace flickerscribe::ui
