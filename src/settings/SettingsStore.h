#pragma once

#include <QString>

#include "settings/Settings.h"

namespace flickerscribe::settings {

// The per-user store of text values under the key "Software/Flickerscribe".
// Failures are silent: a value that can't be read gives the default, one that
// can't be written is lost.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    // The stored text, or `defaultValue` when the value can't be read. Reading
    // never creates the store.
    virtual QString readValue(const QString& valueName, const QString& defaultValue = {}) const = 0;
    // Creates the store if needed and keeps the value exactly; an empty text is
    // stored as an empty value, not deleted.
    virtual void writeValue(const QString& valueName, const QString& value) = 0;
};

// The names of the values in the store, as they are on disk and in the
// registry: they never change.
namespace value {
inline const QString kOpenFolder = QStringLiteral("OpenDir");
inline const QString kSaveFolder = QStringLiteral("SaveDir");
inline const QString kGenerateFolder = QStringLiteral("GenerateDir");  // written, never read
inline const QString kName = QStringLiteral("Name");
inline const QString kClanTag = QStringLiteral("Clantag");
inline const QString kReverse = QStringLiteral("Reverse");
inline const QString kEditInPlace = QStringLiteral("EditItem");
}  // namespace value

// The settings in memory, read from the store: texts unchanged, a flag true
// only for the exact text "1".
Settings loadSettings(const SettingsStore& store);

// Writes all seven values, also those unchanged: flags as "1" or "0", and the
// save folder a second time as GenerateDir.
void saveSettings(SettingsStore& store, const Settings& settings);

}  // namespace flickerscribe::settings
