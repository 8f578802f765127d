#include "cli/DefaultSettings.h"
#include "platform/RegistrySettingsStore.h"

namespace quorin {

std::unique_ptr<SettingsStore> OpenDefaultSettings() {
    return std::make_unique<RegistrySettingsStore>();
}

}  // namespace quorin
