#include "settings/RegistryStore.h"

#include "settings/Win32Registry.h"

namespace flickerscribe::settings {

QString RegistryStore::ReadValue(const QString& valueName, const QString& defaultValue) const {
    return QString::fromStdWString(
        win32::ReadRegistryString(valueName.toStdWString(), defaultValue.toStdWString()));
}

void RegistryStore::WriteValue(const QString& valueName, const QString& value) {
    win32::WriteRegistryString(valueName.toStdWString(), value.toStdWString());
}

}  // namespace flickerscribe::settings
