#include "ui/MainIcons.h"

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

QIcon ToolbarIcon(const QString& key) {
    static const QString kKeys[] = {
        QStringLiteral("imgnew"),    QStringLiteral("imgopen"),   QStringLiteral("imgsave"),
        QStringLiteral("imgadd"),    QStringLiteral("imgremove"), QStringLiteral("imgedit"),
        QStringLiteral("imgwizard"), QStringLiteral("imgplay"),   QStringLiteral("imggenerate"),
        QStringLiteral("imgstop"),
    };
    for (const QString& known : kKeys)
        if (key == known) return LoadIcon(key.mid(3));
    return {};
}

}  // namespace flickerscribe::ui
