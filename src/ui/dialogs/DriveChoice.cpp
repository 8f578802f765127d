#include "ui/dialogs/DriveChoice.h"

#include <string_view>

namespace quorin {
namespace {

char AsciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Drive designators are a letter and a colon, so ASCII case is all there is to ignore.
bool SameDrive(std::string_view entry, std::string_view drive) {
    entry = entry.substr(0, 2);
    drive = drive.substr(0, 2);
    if (entry.size() != drive.size()) {
        return false;
    }
    for (size_t i = 0; i < entry.size(); ++i) {
        if (AsciiUpper(entry[i]) != AsciiUpper(drive[i])) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::vector<std::string> OfferedDriveEntries(const std::vector<std::string>& entries,
                                             const DriveTypeOf& typeOf) {
    std::vector<std::string> offered;
    for (const std::string& entry : entries) {
        if (entry.empty()) {
            continue;
        }
        const unsigned type = typeOf(entry.substr(0, 1) + ":\\");
        if (type == kFixedDrive || type == kNetworkDrive) {
            offered.push_back(entry);
        }
    }
    return offered;
}

std::vector<bool> ConfiguredDriveSelection(const std::vector<std::string>& entries,
                                           std::span<const std::string> configured) {
    std::vector<bool> selected(entries.size());
    for (const std::string& drive : configured) {
        if (drive.empty()) {
            continue;
        }
        for (size_t i = 0; i < entries.size(); ++i) {
            if (SameDrive(entries[i], drive)) {
                selected[i] = true;
                break;
            }
        }
    }
    return selected;
}

std::vector<std::string> SelectedDrives(const std::vector<std::string>& entries,
                                        const std::vector<bool>& selected) {
    std::vector<std::string> drives;
    for (size_t i = 0; i < entries.size(); ++i) {
        if (selected.at(i)) {
            drives.push_back(entries[i].substr(0, 2));
        }
    }
    return drives;
}

}  // namespace quorin
