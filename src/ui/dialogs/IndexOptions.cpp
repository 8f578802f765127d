#include "ui/dialogs/IndexOptions.h"

#include <string_view>

namespace quorin {
namespace {

constexpr std::string_view kSection = "Index";

}  // namespace

// The two boolean forms differ on purpose; the engine reads both.
void SaveIndexOptions(const IndexOptions& options, SettingsStore& store) {
    store.Save(kSection, "Interval", options.interval);
    store.Save(kSection, "Filter", options.filter);
    store.Save(kSection, "FilterIsInclude", options.filterIsInclude ? "True" : "False");
    store.Save(kSection, "IncludeSystemFolders", options.includeSystemFolders ? "-1" : "0");
    store.Save(kSection, "IgnoreTempFolders", options.ignoreTempFolders ? "-1" : "0");
    store.Save(kSection, "AllFolders", options.allFolders ? "True" : "False");
    for (size_t n = 0; n < options.drives.size(); ++n) {
        store.Save(kSection, "Drive" + std::to_string(n), options.drives[n]);
    }
    store.Save(kSection, "DriveCount", std::to_string(options.drives.size()));
}

}  // namespace quorin
