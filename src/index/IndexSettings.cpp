#include "index/IndexSettings.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/Errors.h"
#include "platform/LenientConversions.h"
#include "platform/Path.h"

namespace quorin {
namespace {

// Every key of the section, spelled once for the reader and the writer.
constexpr std::string_view kSection = "Index";
constexpr std::string_view kInterval = "Interval";
constexpr std::string_view kFilter = "Filter";
constexpr std::string_view kFilterIsInclude = "FilterIsInclude";
constexpr std::string_view kIncludeSystemFolders = "IncludeSystemFolders";
constexpr std::string_view kIgnoreTempFolders = "IgnoreTempFolders";
constexpr std::string_view kAllFolders = "AllFolders";
constexpr std::string_view kDriveCount = "DriveCount";
constexpr std::string_view kDrivePrefix = "Drive";

std::string DriveKey(size_t slot) {
    return std::string(kDrivePrefix) + std::to_string(slot);
}

std::string SettingName(std::string_view key) {
    return "The setting \"" + std::string(key) + "\" in section \"" + std::string(kSection) + "\"";
}

[[noreturn]] void ThrowMismatch(std::string_view key, std::string_view kind,
                                const std::string& value) {
    throw TypeMismatchError(SettingName(key) + " must be " + std::string(kind) + ", not \"" +
                            value + "\".");
}

// A number as a numeric conversion reads it: the nearest whole number, halves to even. `range`
// names the range in the overflow message ("the interval's range"), `unit` follows its bounds.
int32_t ConvertNumber(std::string_view key, const std::string& value, std::string_view range,
                      std::string_view unit) {
    const std::optional<double> number = ParseDecimalNumber(value);
    if (!number) {
        ThrowMismatch(key, "a number", value);
    }
    const std::optional<int32_t> whole = RoundToWholeNumber(*number);
    if (!whole) {
        throw OverflowError(SettingName(key) + " holds \"" + value + "\", which is outside " +
                            std::string(range) + " of " + std::to_string(INT32_MIN) + " to " +
                            std::to_string(INT32_MAX) + std::string(unit) + ".");
    }
    return *whole;
}

bool ReadBoolean(const SettingsStore& store, std::string_view key, std::string_view fallback) {
    const std::string value = store.Get(kSection, key, fallback);
    const std::optional<bool> flag = ParseLenientBoolean(value);
    if (!flag) {
        ThrowMismatch(key, "True, False or a number", value);
    }
    return *flag;
}

void ReadDrives(const SettingsStore& store, DriveTable& drives) {
    const int32_t count =
        ConvertNumber(kDriveCount, store.Get(kSection, kDriveCount, "0"), "the range", "");
    drives.slots.fill(std::string());
    if (count <= 0) {
        drives.slots[0] = DefaultRoot();
        drives.count = 1;
        return;
    }
    // The first 21 drives are stored even when there are too many.
    drives.count = std::min(count, kDriveSlots);
    for (int32_t slot = 0; slot < drives.count; ++slot) {
        drives.slots[static_cast<size_t>(slot)] =
            store.Get(kSection, DriveKey(static_cast<size_t>(slot)), "");
    }
    if (count > kDriveSlots) {
        throw OutOfRangeError(SettingName(kDriveCount) + " asks for " + std::to_string(count) +
                              " drives, but at most " + std::to_string(kDriveSlots) +
                              " can be indexed.");
    }
}

}  // namespace

int32_t ConvertInterval(const std::string& value) {
    return ConvertNumber(kInterval, value, "the interval's range", " hours");
}

bool IsReadableInterval(const std::string& value) {
    try {
        ConvertInterval(value);
        return true;
    } catch (const TypeMismatchError&) {
        return false;
    } catch (const OverflowError&) {
        return false;
    }
}

void ReadIndexSettings(const SettingsStore& store, const IndexSettingsFields& fields) {
    fields.updateInterval = ConvertInterval(store.Get(kSection, kInterval, "24"));
    fields.filter = store.Get(kSection, kFilter, kDefaultFilter);
    fields.filterIsInclude = ReadBoolean(store, kFilterIsInclude, "-1");
    fields.includeSystemFolders = ReadBoolean(store, kIncludeSystemFolders, "-1");
    fields.ignoreTempFolders = ReadBoolean(store, kIgnoreTempFolders, "-1");
    fields.allFolders = ReadBoolean(store, kAllFolders, "False");
    ReadDrives(store, fields.drives);
}

// The two boolean forms differ on purpose; the reader takes both.
void SaveIndexOptions(const IndexOptions& options, SettingsStore& store) {
    store.Save(kSection, kInterval, options.interval);
    store.Save(kSection, kFilter, options.filter);
    store.Save(kSection, kFilterIsInclude, options.filterIsInclude ? "True" : "False");
    store.Save(kSection, kIncludeSystemFolders, options.includeSystemFolders ? "-1" : "0");
    store.Save(kSection, kIgnoreTempFolders, options.ignoreTempFolders ? "-1" : "0");
    store.Save(kSection, kAllFolders, options.allFolders ? "True" : "False");
    for (size_t n = 0; n < options.drives.size(); ++n) {
        store.Save(kSection, DriveKey(n), options.drives[n]);
    }
    store.Save(kSection, kDriveCount, std::to_string(options.drives.size()));
}

}  // namespace quorin
