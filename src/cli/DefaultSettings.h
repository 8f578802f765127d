#pragma once

#include <memory>

#include "platform/SettingsStore.h"

namespace quorin {

// The settings the program itself uses: the registry on Windows; on POSIX
// $XDG_CONFIG_HOME/quorin/settings.ini, or ~/.config/quorin/settings.ini.
std::unique_ptr<SettingsStore> OpenDefaultSettings();

}  // namespace quorin
