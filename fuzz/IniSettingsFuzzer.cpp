// The INI settings file, edited by hand or damaged: it loads or throws FileError, the engine's
// settings reader takes what loaded or throws its own clear errors, and a save keeps every value.
#include "FuzzFile.h"

#include "index/IndexSettings.h"
#include "platform/Errors.h"
#include "platform/IniSettingsStore.h"

#include <array>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace quorin::fuzz {
namespace {

constexpr std::array<std::string_view, 9> kIndexKeys = {"Interval",
                                                        "Filter",
                                                        "FilterIsInclude",
                                                        "IncludeSystemFolders",
                                                        "IgnoreTempFolders",
                                                        "DriveCount",
                                                        "Drive0",
                                                        "Drive1",
                                                        "Drive20"};

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void ReadAsEngine(const SettingsStore& store) {
    std::string filter;
    bool filterIsInclude = true;
    int32_t interval = 24;
    bool includeSystem = true;
    bool ignoreTemp = true;
    DriveTable drives;
    bool allFolders = false;
    try {
        ReadIndexSettings(
            store, IndexSettingsFields{filter, filterIsInclude, interval, includeSystem, ignoreTemp,
                                       drives, allFolders});
    } catch (const TypeMismatchError&) {
        return;
    } catch (const OutOfRangeError&) {
        return;
    }
    Require(drives.count >= 1 && drives.count <= kDriveSlots);
}

}  // namespace
}  // namespace quorin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quorin;
    static fuzz::FuzzFile input("settings.ini");
    std::optional<IniSettingsStore> store;
    try {
        store.emplace(input.Write(data, size));
    } catch (const FileError&) {
        return 0;
    }
    fuzz::ReadAsEngine(*store);
    std::array<std::string, fuzz::kIndexKeys.size()> before;
    for (size_t i = 0; i < before.size(); ++i) {
        before[i] = store->Get("Index", fuzz::kIndexKeys[i], "<absent>");
    }
    // Saving rewrites the whole file; reading it back must give the same values.
    store->Save("Main", "Configured", "1");
    const IniSettingsStore again(input.Path());
    for (size_t i = 0; i < before.size(); ++i) {
        fuzz::Require(again.Get("Index", fuzz::kIndexKeys[i], "<absent>") == before[i]);
    }
    fuzz::Require(again.Get("Main", "Configured", "") == "1");
    return 0;
}
