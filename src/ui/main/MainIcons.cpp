#include "ui/main/MainIcons.h"

// The resources live in a static library, so they are registered by hand
// before their first use; this has to stand outside any namespace.
static void RegisterMainIcons() {
    Q_INIT_RESOURCE(main_icons);
}

namespace flickerscribe::ui {

namespace {

QIcon LoadIcon(const QString& name) {
    static const bool registered = (RegisterMainIcons(), true);
    (void)registered;
    return QIcon(QStringLiteral(":/main/%1.svg").arg(name));
}

}  // namespace

QIcon AppIcon() {
    return LoadIcon(QStringLiteral("app"));
}

QIcon ToolbarIcon(const QString& name) {
    static const QString kNames[] = {
        QStringLiteral("new"),      QStringLiteral("open"), QStringLiteral("save"),   QStringLiteral("add"),
        QStringLiteral("remove"),   QStringLiteral("edit"), QStringLiteral("wizard"), QStringLiteral("play"),
        QStringLiteral("generate"), QStringLiteral("stop"),
    };
    for (const QString& known : kNames)
        if (name == known) return LoadIcon(name);
    return {};
}

}  // namespace flickerscribe::ui
