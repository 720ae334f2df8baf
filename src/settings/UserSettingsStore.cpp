#include "settings/UserSettingsStore.h"

#ifdef _WIN32
#include "settings/RegistryStore.h"
#else
#include "settings/QSettingsStore.h"
#endif

namespace flickerscribe::settings {

std::unique_ptr<SettingsStore> openUserSettingsStore() {
#ifdef _WIN32
    return std::make_unique<RegistryStore>();
#else
    return std::make_unique<QSettingsStore>();
#endif
}

}  // namespace flickerscribe::settings
