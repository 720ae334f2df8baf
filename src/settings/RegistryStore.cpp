#include "settings/RegistryStore.h"

#include "settings/Win32Registry.h"

namespace flickerscribe::settings {

RegistryStore::RegistryStore() : keyName_(win32::kSettingsKey) {}

RegistryStore::RegistryStore(QString keyName) : keyName_(keyName.toStdWString()) {}

QString RegistryStore::readValue(const QString& valueName, const QString& defaultValue) const {
    return QString::fromStdWString(
        win32::readRegistryString(valueName.toStdWString(), defaultValue.toStdWString(), keyName_));
}

void RegistryStore::writeValue(const QString& valueName, const QString& value) {
    win32::writeRegistryString(valueName.toStdWString(), value.toStdWString(), keyName_);
}

}  // namespace flickerscribe::settings
