#pragma once

#include <string>

#include "settings/SettingsStore.h"

namespace flickerscribe::settings {

// The settings as string values in the per-user registry: the single key
// "Software/Flickerscribe" directly under HKEY_CURRENT_USER (the slash is part
// of the key's name, not a path separator). Windows only; the registry calls
// themselves are in Win32Registry.
class RegistryStore : public SettingsStore {
public:
    RegistryStore();
    // Another key under HKEY_CURRENT_USER, for tests.
    explicit RegistryStore(QString keyName);

    QString readValue(const QString& valueName, const QString& defaultValue = {}) const override;
    void writeValue(const QString& valueName, const QString& value) override;

private:
    std::wstring keyName_;
};

}  // namespace flickerscribe::settings
