#include <cstdlib>
#include <string>

#include "cli/DefaultSettings.h"
#include "platform/IniSettingsStore.h"
#include "platform/Path.h"

namespace quorin {
namespace {

std::string ConfigFolder() {
    const char* xdg = std::getenv("XDG_CONFIG_HOME");
    if (xdg && *xdg) {
        return xdg;
    }
    const char* home = std::getenv("HOME");
    return JoinPath(home ? home : "", ".config");
}

}  // namespace

std::unique_ptr<SettingsStore> OpenDefaultSettings() {
    return std::make_unique<IniSettingsStore>(
        JoinPath(JoinPath(ConfigFolder(), "quorin"), "settings.ini"));
}

}  // namespace quorin
