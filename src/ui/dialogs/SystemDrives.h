#pragma once

#include <string>
#include <vector>

namespace quorin {

// The system's drives as the General page lists them, in the system's order: the letter in
// lower case and a colon, then the volume label in brackets when there is one ("c: [DATA]").
std::vector<std::string> SystemDriveEntries();

// The system's type of the drive with this root ("c:\").
unsigned SystemDriveType(const std::string& root);

}  // namespace quorin
