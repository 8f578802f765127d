#include <gtest/gtest.h>

#include "index/IndexSettings.h"
#include "index/NameRules.h"
#include "platform/Errors.h"
#include "platform/MemorySettingsStore.h"
#include "platform/Path.h"

namespace quorin {
namespace {

TEST(NameRulesTest, FilterTestsTheLastFourCharactersAsListed) {
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
}

TEST(NameRulesTest, TempPrefixIsCoarseOnPurpose) {
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
};

TEST(IndexSettingsTest, EmptyStoreGivesTheDefaults) {
    SettingsFields fields;
    fields.ReadFrom(MemorySettingsStore());
    EXPECT_EQ(fields.updateInterval, 24);
    EXPECT_EQ(fields.filter, ".DOC .XLS .HTM .HTML .TXT .URL .ZIP .EXE .COM .BMP .GIF .JPG .WAV ");
    EXPECT_TRUE(fields.filterIsInclude && fields.includeSystemFolders && fields.ignoreTempFolders);
    EXPECT_FALSE(fields.allFolders);
    EXPECT_EQ(fields.drives.count, 1);
    EXPECT_EQ(fields.drives.slots[0], DefaultRoot());
}

TEST(IndexSettingsTest, DriveListFollowsTheCountAndItsBound) {
    MemorySettingsStore store;
    for (int i = 0; i < 25; ++i) {
        store.Save("Index", "Drive" + std::to_string(i),
                   std::string(1, static_cast<char>('C' + i)) + ":");
    }
    SettingsFields fields;
    for (const auto& [count, drives, lastDrive] :
         {std::tuple{"3", 3, "E:"}, {"1", 1, "C:"}, {"0", 1, ""}, {"-2", 1, ""}}) {
        store.Save("Index", "DriveCount", count);
        fields.ReadFrom(store);
        EXPECT_EQ(fields.drives.count, drives) << count;
        EXPECT_EQ(fields.drives.slots[static_cast<size_t>(drives - 1)],
                  *lastDrive ? lastDrive : DefaultRoot());
        EXPECT_EQ(fields.drives.slots[static_cast<size_t>(drives)], "");  // nothing stale
    }
    store.Save("Index", "DriveCount", "22");
    EXPECT_THROW(fields.ReadFrom(store), OutOfRangeError);
    EXPECT_EQ(fields.drives.count, 21);
    EXPECT_EQ(fields.drives.slots[20], "W:");
}

TEST(IndexSettingsTest, BothWritersBooleansReadBackAndAMismatchKeepsEarlierFields) {
    MemorySettingsStore store;
    SettingsFields fields;
    for (const auto& [text, expected] :
         {std::pair{"False", false}, {"0", false}, {"True", true}, {"-1", true}}) {
        store.Save("Index", "FilterIsInclude", text);
        store.Save("Index", "AllFolders", text);
        fields.ReadFrom(store);
        EXPECT_EQ(fields.filterIsInclude, expected) << text;
        EXPECT_EQ(fields.allFolders, expected) << text;
    }
    store.Save("Index", "Interval", "12");
    store.Save("Index", "Filter", ".TXT ");
    store.Save("Index", "IncludeSystemFolders", "maybe");
    fields.ignoreTempFolders = false;
    EXPECT_THROW(fields.ReadFrom(store), TypeMismatchError);
    EXPECT_EQ(fields.updateInterval, 12);
    EXPECT_EQ(fields.filter, ".TXT ");
    EXPECT_FALSE(fields.ignoreTempFolders);  // not reached

    store.Save("Index", "Interval", "abc");
    std::string message;
    try {
        fields.ReadFrom(store);
    } catch (const TypeMismatchError& error) {
        message = error.what();
    }
    EXPECT_EQ(message,
              "The setting \"Interval\" in section \"Index\" must be a number, not \"abc\".");
}

TEST(IndexSettingsTest, IntervalWithAFractionReadsAsTheNearestWholeNumber) {
    MemorySettingsStore store;
    SettingsFields fields;
    for (const auto& [text, hours] : {std::pair{"2.5", 2},
                                      {"3.5", 4},
                                      {"1.5", 2},
                                      {" 12 ", 12},
                                      {"-3", -3},
                                      {"0.4", 0},
                                      {"2147483647.49", INT32_MAX}}) {
        store.Save("Index", "Interval", text);
        fields.ReadFrom(store);
        EXPECT_EQ(fields.updateInterval, hours) << text;
        EXPECT_TRUE(IsReadableInterval(text)) << text;
    }
    for (const char* tooLarge : {"2147483647.5", "99999999999", "-2147483649"}) {
        store.Save("Index", "Interval", tooLarge);
        EXPECT_THROW(fields.ReadFrom(store), OverflowError) << tooLarge;
        EXPECT_FALSE(IsReadableInterval(tooLarge)) << tooLarge;
    }
    for (const char* notANumber : {"abc", "", "3 hours", "1e3", "&H10"}) {
        store.Save("Index", "Interval", notANumber);
        EXPECT_THROW(fields.ReadFrom(store), TypeMismatchError) << notANumber;
        EXPECT_FALSE(IsReadableInterval(notANumber)) << notANumber;
    }
    try {
        ConvertInterval("99999999999");
        ADD_FAILURE() << "no overflow";
    } catch (const OverflowError& error) {
        EXPECT_STREQ(
            error.what(),
            "The setting \"Interval\" in section \"Index\" holds \"99999999999\", which is "
            "outside the interval's range of -2147483648 to 2147483647 hours.");
    }
}

}  // namespace
}  // namespace quorin
