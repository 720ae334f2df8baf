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
    virtual QString ReadValue(const QString& valueName, const QString& defaultValue = {}) const = 0;
    // Creates the store if needed and keeps the value exactly; an empty text is
    // stored as an empty value, not deleted.
    virtual void WriteValue(const QString& valueName, const QString& value) = 0;
};

// The settings in memory, read from the store: texts unchanged, a flag true
// only for the exact text "1".
Settings LoadSettings(const SettingsStore& store);

}  // namespace flickerscribe::settings
