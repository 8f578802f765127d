#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "index/IndexSettings.h"
#include "index/NameRules.h"
#include "platform/Errors.h"
#include "platform/MemorySettingsStore.h"
#include "platform/Path.h"

namespace quorin {
namespace {

using Names = std::vector<std::string>;

TEST(NameRulesTest, FilterTestsTheLastFourCharactersAsListedAndTempIsAPrefix) {
    const std::string filter(kDefaultFilter);
    for (const char* kept : {"a.txt", "B.HTML", "c.Jpg", "MYHTML", "archive.tar.zip"}) {
        EXPECT_TRUE(PassesFileTypeFilter(kept, filter, true)) << kept;
        EXPECT_FALSE(PassesFileTypeFilter(kept, filter, false)) << kept;
    }
    for (const char* dropped : {"d.jpeg", "e.tmp", "readme", "x.DOCX"}) {
        EXPECT_FALSE(PassesFileTypeFilter(dropped, filter, true)) << dropped;
        EXPECT_TRUE(PassesFileTypeFilter(dropped, filter, false)) << dropped;
    }
    // Characters, not bytes, and upper-cased beyond ASCII.
    EXPECT_TRUE(PassesFileTypeFilter("x.ééé", ".ÉÉÉ ", true));
    EXPECT_FALSE(PassesFileTypeFilter("ab.éé", ".ÉÉ ", true));
    // The temp prefix is coarse on purpose.
    for (const char* temp : {"Temp", "TEMPORARY INTERNET FILES", "Templates", "tempest"}) {
        EXPECT_TRUE(IsTempFolderName(temp)) << temp;
    }
    for (const char* kept : {"My Temp", "Tem", "", "Témp"}) {
        EXPECT_FALSE(IsTempFolderName(kept)) << kept;
    }
}

struct SettingsFields {
    std::string filter = "old";
    bool filterIsInclude = false;
    int32_t updateInterval = 1;
    bool includeSystemFolders = false;
    bool ignoreTempFolders = false;
    DriveTable drives;
    bool allFolders = true;

    void ReadFrom(const SettingsStore& store) {
        ReadIndexSettings(store, {filter, filterIsInclude, updateInterval, includeSystemFolders,
                                  ignoreTempFolders, drives, allFolders});
    }

    // Interval, filter, FilterIsInclude, IncludeSystemFolders, IgnoreTempFolders and AllFolders
    // as 0 or 1, then the drives in use.
    std::string Summary() const {
        std::string summary = std::to_string(updateInterval) + "|" + filter + "|";
        for (const bool flag :
             {filterIsInclude, includeSystemFolders, ignoreTempFolders, allFolders}) {
            summary += flag ? '1' : '0';
        }
        for (size_t i = 0; i < static_cast<size_t>(drives.count); ++i) {
            summary += "|" + drives.slots[i];
        }
        return summary;
    }
};

TEST(IndexSettingsTest, DriveListFollowsTheCountAndItsBound) {
    MemorySettingsStore store;
    for (int i = 0; i < 25; ++i) {
        store.Save("Index", "Drive" + std::to_string(i),
                   std::string(1, static_cast<char>('C' + i)) + ":");
    }
    SettingsFields fields;
    for (const auto& [count, drives, lastDrive] : {std::tuple{"3", 3, "E:"},
                                                   {"1", 1, "C:"},
                                                   {"0", 1, ""},
                                                   {"-2", 1, ""},
                                                   {"2.0", 2, "D:"},
                                                   {"2.5", 2, "D:"},
                                                   {"0.4", 1, ""}}) {
        store.Save("Index", "DriveCount", count);
        fields.ReadFrom(store);
        EXPECT_EQ(fields.drives.count, drives) << count;
        EXPECT_EQ(fields.drives.slots[static_cast<size_t>(drives - 1)],
                  *lastDrive ? lastDrive : DefaultRoot());
        EXPECT_EQ(fields.drives.slots[static_cast<size_t>(drives)], "");  // nothing stale
    }
    store.Save("Index", "DriveCount", "two");
    EXPECT_THROW(fields.ReadFrom(store), TypeMismatchError);
    store.Save("Index", "DriveCount", "22");
    EXPECT_THROW(fields.ReadFrom(store), OutOfRangeError);
    EXPECT_EQ(fields.drives.count, 21);
    EXPECT_EQ(fields.drives.slots[20], "W:");
}

TEST(IndexSettingsTest, DefaultsAndAMismatchKeepsEarlierFields) {
    MemorySettingsStore store;
    SettingsFields fields;
    fields.ReadFrom(store);
    EXPECT_EQ(fields.Summary(),
              "24|.DOC .XLS .HTM .HTML .TXT .URL .ZIP .EXE .COM .BMP .GIF .JPG .WAV |1110|" +
                  DefaultRoot());

    store.Save("Index", "Interval", "12");
    store.Save("Index", "Filter", ".TXT ");
    store.Save("Index", "IncludeSystemFolders", "maybe");
    fields.ignoreTempFolders = false;
    EXPECT_THROW(fields.ReadFrom(store), TypeMismatchError);
    EXPECT_EQ(fields.updateInterval, 12);
    EXPECT_EQ(fields.filter, ".TXT ");
    EXPECT_FALSE(fields.ignoreTempFolders);  // not reached
}

// The store's values, and every write in the order it came.
class RecordingStore final : public SettingsStore {
  public:
    std::string Get(std::string_view section, std::string_view key,
                    std::string_view defaultValue) const override {
        return values.Get(section, key, defaultValue);
    }
    void Save(std::string_view section, std::string_view key, std::string_view value) override {
        writes.push_back(std::string(section) + ":" + std::string(key) + "=" + std::string(value));
        values.Save(section, key, value);
    }

    MemorySettingsStore values;
    Names writes;
};

TEST(IndexSettingsTest, OptionsWriteTheKeysInOrderAndFormsAndReadBackInBothBooleanForms) {
    RecordingStore store;
    store.values.Save("Index", "Drive2", "x:");
    SaveIndexOptions({"2.5", ".TXT ", true, false, true, {"c:", "e:"}, true}, store);
    EXPECT_EQ(store.writes, (Names{"Index:Interval=2.5", "Index:Filter=.TXT ",
                                   "Index:FilterIsInclude=True", "Index:IncludeSystemFolders=0",
                                   "Index:IgnoreTempFolders=-1", "Index:AllFolders=True",
                                   "Index:Drive0=c:", "Index:Drive1=e:", "Index:DriveCount=2"}));
    EXPECT_EQ(store.Get("Index", "Drive2", ""), "x:");
    SettingsFields fields;
    fields.ReadFrom(store);
    EXPECT_EQ(fields.Summary(), "2|.TXT |1011|c:|e:");

    store.writes.clear();
    SaveIndexOptions({"24", "", false, true, false, {}}, store);
    EXPECT_EQ(store.writes,
              (Names{"Index:Interval=24", "Index:Filter=", "Index:FilterIsInclude=False",
                     "Index:IncludeSystemFolders=-1", "Index:IgnoreTempFolders=0",
                     "Index:AllFolders=False", "Index:DriveCount=0"}));
    fields.ReadFrom(store);
    EXPECT_EQ(fields.Summary(), "24||0100|" + DefaultRoot());
}

// Which texts are numbers and how they round is ConversionsTest's; here the interval's own
// bounds and messages.
TEST(IndexSettingsTest, IntervalReadsAsTheNearestWholeNumberOrFailsSayingWhy) {
    MemorySettingsStore store;
    SettingsFields fields;
    for (const auto& [text, hours] :
         {std::pair{"2.5", 2}, {"3.5", 4}, {"-3", -3}, {"2147483647.49", INT32_MAX}}) {
        store.Save("Index", "Interval", text);
        fields.ReadFrom(store);
        EXPECT_EQ(fields.updateInterval, hours) << text;
        EXPECT_TRUE(IsReadableInterval(text)) << text;
    }
    const struct {
        std::string text;
        std::string message;
    } refused[] = {
        {"99999999999",
         "The setting \"Interval\" in section \"Index\" holds \"99999999999\", which is outside "
         "the interval's range of -2147483648 to 2147483647 hours."},
        {"2147483647.5", "outside the interval's range"},
        {"-2147483649", "outside the interval's range"},
        {"abc", "The setting \"Interval\" in section \"Index\" must be a number, not \"abc\"."},
        {"", "must be a number"},
        {"1e3", "must be a number"},
        {"x" + std::string(1 << 20, 'x'), "must be a number"},
    };
    for (const auto& [text, message] : refused) {
        store.Save("Index", "Interval", text);
        std::string error = "no error";
        try {
            fields.ReadFrom(store);
        } catch (const Error& e) {
            error = e.what();
            EXPECT_EQ(dynamic_cast<const OverflowError*>(&e) != nullptr,
                      message.find("range") != std::string::npos);
        }
        EXPECT_NE(error.find(message), std::string::npos) << error.substr(0, 200);
        EXPECT_FALSE(IsReadableInterval(text)) << text.substr(0, 40);
    }
}

}  // namespace
}  // namespace quorin
