#include "settings/SettingsStore.h"

namespace flickerscribe::settings {

namespace {

// A flag is on only for the exact text "1": "0", "true", " 1" and a missing
// value are all off.
const QString kOn = QStringLiteral("1");
const QString kOff = QStringLiteral("0");

}  // namespace

Settings LoadSettings(const SettingsStore& store) {
    Settings settings;
    settings.openFolder = store.ReadValue(value::kOpenFolder);
    settings.saveFolder = store.ReadValue(value::kSaveFolder);
    settings.name = store.ReadValue(value::kName);
    settings.clanTag = store.ReadValue(value::kClanTag);
    settings.reverse = store.ReadValue(value::kReverse) == kOn;
    settings.editInPlace = store.ReadValue(value::kEditInPlace) == kOn;
    return settings;
}

void SaveSettings(SettingsStore& store, const Settings& settings) {
    store.WriteValue(value::kEditInPlace, settings.editInPlace ? kOn : kOff);
    store.WriteValue(value::kName, settings.name);
    store.WriteValue(value::kClanTag, settings.clanTag);
    store.WriteValue(value::kReverse, settings.reverse ? kOn : kOff);
    store.WriteValue(value::kOpenFolder, settings.openFolder);
    store.WriteValue(value::kSaveFolder, settings.saveFolder);
    store.WriteValue(value::kGenerateFolder, settings.saveFolder);
}

}  // namespace flickerscribe::settings
