#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "index/DriveTable.h"
#include "platform/SettingsStore.h"

namespace quorin {

inline constexpr std::string_view kDefaultFilter =
    ".DOC .XLS .HTM .HTML .TXT .URL .ZIP .EXE .COM .BMP .GIF .JPG .WAV ";

// The engine's own fields that section "Index" is read into.
struct IndexSettingsFields {
    std::string& filter;
    bool& filterIsInclude;
    int32_t& updateInterval;
    bool& includeSystemFolders;
    bool& ignoreTempFolders;
    DriveTable& drives;
    bool& allFolders;
};

// "Interval" as the engine reads it: a number with a fraction gives the nearest whole number,
// halves to even ("2.5" gives 2). TypeMismatchError for text that is not a number, OverflowError
// for a number that 32 bits cannot hold; both name the setting.
int32_t ConvertInterval(const std::string& value);

// Whether ConvertInterval takes `value`, so that the Options dialog never stores an interval that
// would stop the next start.
bool IsReadableInterval(const std::string& value);

// Reads section "Index" key by key, straight into the fields: when a value is not of its kind
// (TypeMismatchError) or there are more than 21 drives (OutOfRangeError), the fields read
// before keep their new values and the later ones their old values.
void ReadIndexSettings(const SettingsStore& store, const IndexSettingsFields& fields);

}  // namespace quorin
