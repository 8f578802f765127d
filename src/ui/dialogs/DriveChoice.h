#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace quorin {

// Drive types as the system reports them; only these two are offered for indexing.
inline constexpr unsigned kFixedDrive = 3;
inline constexpr unsigned kNetworkDrive = 4;

// The system's type of the drive with the given root ("c:\").
using DriveTypeOf = std::function<unsigned(const std::string& root)>;

// The system's drive entries ("c: [DATA]") that the General page offers: fixed and network
// drives, in the system's order, unchanged.
std::vector<std::string> OfferedDriveEntries(const std::vector<std::string>& entries,
                                             const DriveTypeOf& typeOf);

// Per entry, whether it starts selected: each configured drive ("C:") selects the first entry
// whose first two characters are its own, regardless of case. Empty slots select nothing.
std::vector<bool> ConfiguredDriveSelection(const std::vector<std::string>& entries,
                                           std::span<const std::string> configured);

// What OK stores for the drives: the first two characters of each selected entry ("c:"), in
// list order.
std::vector<std::string> SelectedDrives(const std::vector<std::string>& entries,
                                        const std::vector<bool>& selected);

}  // namespace quorin
