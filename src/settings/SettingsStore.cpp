#include "settings/SettingsStore.h"

namespace flickerscribe::settings {

namespace {

// A flag is on only for the exact text "1": "0", "true", " 1" and a missing
// value are all off.
bool Flag(const QString& text) {
    return text == QStringLiteral("1");
}

}  // namespace

Settings LoadSettings(const SettingsStore& store) {
    Settings settings;
    settings.openFolder = store.ReadValue(QStringLiteral("OpenDir"));
    settings.saveFolder = store.ReadValue(QStringLiteral("SaveDir"));
    settings.name = store.ReadValue(QStringLiteral("Name"));
    settings.clanTag = store.ReadValue(QStringLiteral("Clantag"));
    settings.reverse = Flag(store.ReadValue(QStringLiteral("Reverse")));
    settings.editInPlace = Flag(store.ReadValue(QStringLiteral("EditItem")));
    return settings;
}

}  // namespace flickerscribe::settings
