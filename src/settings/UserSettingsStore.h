#pragma once

#include <memory>

#include "settings/SettingsStore.h"

namespace flickerscribe::settings {

// The current user's settings store of this platform: the registry on
// Windows, a configuration file elsewhere.
std::unique_ptr<SettingsStore> openUserSettingsStore();

}  // namespace flickerscribe::settings
