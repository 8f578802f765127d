#pragma once

#include <string>
#include <vector>

#include "platform/SettingsStore.h"

namespace quorin {

// What the Options dialog's OK stores in section "Index".
struct IndexOptions {
    std::string interval;  // the interval box's text as it stands
    std::string filter;
    bool filterIsInclude = true;
    bool includeSystemFolders = true;
    bool ignoreTempFolders = true;
    std::vector<std::string> drives;  // "c:", as SelectedDrives gives them
    bool allFolders = false;
};

// Writes "Interval", "Filter", "FilterIsInclude" ("True"/"False"), "IncludeSystemFolders" and
// "IgnoreTempFolders" ("-1"/"0"), "AllFolders" ("True"/"False"), then "Drive0".. and
// "DriveCount", in that order. "Drive" keys
// at and above the new count are left as they are. The caller checks the interval first with
// IsReadableInterval; a failing write throws from the store, naming the setting.
void SaveIndexOptions(const IndexOptions& options, SettingsStore& store);

}  // namespace quorin
