#include "ui/main/MainIcons.h"

// The resources live in a static library, so they are registered by hand
// before their first use; this has to stand outside any namespace.
static void registerMainIcons() {
    Q_INIT_RESOURCE(main_icons);
}

namespace flickerscribe::ui {

namespace {

QIcon loadIcon(const QString& name) {
    static const bool registered = (registerMainIcons(), true);
    (void)registered;
    return QIcon(QStringLiteral(":/main/%1.svg").arg(name));
}

}  // namespace

QIcon appIcon() {
    return loadIcon(QStringLiteral("app"));
}

QIcon toolbarIcon(const QString& name) {
    static const QString kNames[] = {
        QStringLiteral("new"),      QStringLiteral("open"), QStringLiteral("save"),   QStringLiteral("add"),
        QStringLiteral("remove"),   QStringLiteral("edit"), QStringLiteral("wizard"), QStringLiteral("play"),
        QStringLiteral("generate"), QStringLiteral("stop"),
    };
    for (const QString& known : kNames)
        if (name == known) return loadIcon(name);
    return {};
}

}  // namespace flickerscribe::ui
