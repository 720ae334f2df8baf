#include "settings/SettingsStore.h"

namespace fs::settings {

namespace {

// A flag is on only for the exact text "1": "0", "true", " 1" and a missing
// value are all off.
bool Flag(const QString& text) {
    return text == QStringLiteral("1");
}

}  // namespace

Settings LoadSettings(const SettingsStore& store) {
    Settings settings;
    settings.OpenDir = store.ReadRegistryString(QStringLiteral("OpenDir"));
    settings.SaveDir = store.ReadRegistryString(QStringLiteral("SaveDir"));
    settings.Name = store.ReadRegistryString(QStringLiteral("Name"));
    settings.Clantag = store.ReadRegistryString(QStringLiteral("Clantag"));
    settings.Reverse = Flag(store.ReadRegistryString(QStringLiteral("Reverse")));
    settings.EditItem = Flag(store.ReadRegistryString(QStringLiteral("EditItem")));
    return settings;
}

}  // namespace fs::settings
