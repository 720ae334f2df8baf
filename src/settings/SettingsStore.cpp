#include "settings/SettingsStore.h"

namespace flickerscribe::settings {

namespace {

// A flag is on only for the exact text "1": "0", "true", " 1" and a missing
// value are all off.
const QString kOn = QStringLiteral("1");
const QString kOff = QStringLiteral("0");

}  // namespace

Settings loadSettings(const SettingsStore& store) {
    Settings settings;
    settings.openFolder = store.readValue(value::kOpenFolder);
    settings.saveFolder = store.readValue(value::kSaveFolder);
    settings.name = store.readValue(value::kName);
    settings.clanTag = store.readValue(value::kClanTag);
    settings.reverse = store.readValue(value::kReverse) == kOn;
    settings.editInPlace = store.readValue(value::kEditInPlace) == kOn;
    return settings;
}

void saveSettings(SettingsStore& store, const Settings& settings) {
    store.writeValue(value::kEditInPlace, settings.editInPlace ? kOn : kOff);
    store.writeValue(value::kName, settings.name);
    store.writeValue(value::kClanTag, settings.clanTag);
    store.writeValue(value::kReverse, settings.reverse ? kOn : kOff);
    store.writeValue(value::kOpenFolder, settings.openFolder);
    store.writeValue(value::kSaveFolder, settings.saveFolder);
    store.writeValue(value::kGenerateFolder, settings.saveFolder);
}

}  // namespace flickerscribe::settings
