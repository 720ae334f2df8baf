#include <QApplication>

#include "settings/UserSettingsStore.h"
#include "ui/QtDialogs.h"
#include "ui/frmMain.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Flickerscribe"));
    QApplication::setApplicationVersion(
        QStringLiteral("%1.%2.%3").arg(FS_VERSION_MAJOR).arg(FS_VERSION_MINOR).arg(FS_VERSION_PATCH));
    fs::ui::QtDialogs dialogs;
    const auto store = fs::settings::OpenUserSettingsStore();
    fs::ui::frmMain window(dialogs, *store);
    window.show();
    return QApplication::exec();
}
