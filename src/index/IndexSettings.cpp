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

constexpr std::string_view kSection = "Index";

std::string SettingName(std::string_view key) {
    return "The setting \"" + std::string(key) + "\" in section \"" + std::string(kSection) + "\"";
}

[[noreturn]] void ThrowMismatch(std::string_view key, std::string_view kind,
                                const std::string& value) {
    throw TypeMismatchError(SettingName(key) + " must be " + std::string(kind) + ", not \"" +
                            value + "\".");
}

int32_t ReadNumber(const SettingsStore& store, std::string_view key, std::string_view fallback) {
    const std::string value = store.Get(kSection, key, fallback);
    const std::optional<int32_t> number = ParseWholeNumber(value);
    if (!number) {
        ThrowMismatch(key, "a whole number", value);
    }
    return *number;
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
    const int32_t count = ReadNumber(store, "DriveCount", "0");
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
            store.Get(kSection, "Drive" + std::to_string(slot), "");
    }
    if (count > kDriveSlots) {
        throw OutOfRangeError("The setting \"DriveCount\" in section \"Index\" asks for " +
                              std::to_string(count) + " drives, but at most " +
                              std::to_string(kDriveSlots) + " can be indexed.");
    }
}

}  // namespace

int32_t ConvertInterval(const std::string& value) {
    const std::optional<double> number = ParseDecimalNumber(value);
    if (!number) {
        ThrowMismatch("Interval", "a number", value);
    }
    const std::optional<int32_t> hours = RoundToWholeNumber(*number);
    if (!hours) {
        throw OverflowError(SettingName("Interval") + " holds \"" + value +
                            "\", which is outside the interval's range of " +
                            std::to_string(INT32_MIN) + " to " + std::to_string(INT32_MAX) +
                            " hours.");
    }
    return *hours;
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
    fields.updateInterval = ConvertInterval(store.Get(kSection, "Interval", "24"));
    fields.filter = store.Get(kSection, "Filter", kDefaultFilter);
    fields.filterIsInclude = ReadBoolean(store, "FilterIsInclude", "-1");
    fields.includeSystemFolders = ReadBoolean(store, "IncludeSystemFolders", "-1");
    fields.ignoreTempFolders = ReadBoolean(store, "IgnoreTempFolders", "-1");
    fields.allFolders = ReadBoolean(store, "AllFolders", "False");
    ReadDrives(store, fields.drives);
}

}  // namespace quorin
