#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "index/FolderTable.h"
#include "index/IndexItems.h"
#include "index/clsItems.h"
#include "platform/Errors.h"
#include "platform/Text.h"

namespace quorin {
namespace {

using namespace std::string_literals;

TEST(clsItemsTest, PositionsFromOneAndCaseFreeKeys) {
    clsItems words;
    words.Add("Budget 98.xls", 3, "Budget", "Budget");
    words.Add("a.txt", 0, "", "");
    words.Add("a.txt", 0, "", "");  // unkeyed records may repeat
    words.Add("c.txt", 0, "zeta", "zeta");
    EXPECT_EQ(words.Item(1)->UCFilename, "BUDGET 98.XLS");
    EXPECT_EQ(words.Item(0), nullptr);
    EXPECT_EQ(words.Item(5), nullptr);
    EXPECT_EQ(words.Item("bUDGET")->Directory, 3);
    EXPECT_EQ(words.Item("missing"), nullptr);
    EXPECT_THROW(words.Add("d.txt", 0, "budget", "budget"), DuplicateKeyError);
    EXPECT_EQ(words.Count(), 4);

    words.Remove("BUDGET");
    words.Remove(2);
    ASSERT_EQ(words.Count(), 2);
    EXPECT_EQ(words.Item(2)->Word, "zeta");
    EXPECT_THROW(words.Remove("budget"), OutOfRangeError);
    EXPECT_THROW(words.Remove(3), OutOfRangeError);
    words.Add("e.txt", 0, "budget", "budget");  // its key is free again
}

class RecordingSearchProgress final : public SearchProgress {
  public:
    void Show(int maximum) override { log.push_back("show " + std::to_string(maximum)); }
    void SetValue(int value) override { log.push_back(std::to_string(value)); }
    void Hide() override { log.push_back("hide"); }
    std::vector<std::string> log;
};

TEST(IndexItemsTest, FindReportsItsProgressPerHundredRecords) {
    IndexItems items;
    for (int i = 0; i < 250; ++i) {
        items.Add(i % 50 == 7 ? "aXaXa " + std::to_string(i) + ".doc" : "other.txt", i);
    }
    RecordingSearchProgress progress;
    EXPECT_EQ(items.Find("XA", &progress), (std::vector<int32_t>{8, 58, 108, 158, 208}));
    EXPECT_EQ(progress.log, (std::vector<std::string>{"show 250", "100", "200", "hide"}));
    EXPECT_THROW(items.Item(251), OutOfRangeError);
}

// Names are upper-cased in pieces of 8 and 16 bytes that overlap at the end: every length, with
// and without a byte above 0x7F at the last place, which sends the name down the other path.
std::vector<std::string> AwkwardNames() {
    std::vector<std::string> names = {
        "Budget 98.XLS",
        "r\xC3\xA9sum\xC3\xA9, draft.doc",
        "stra\xC3\x9F"
        "e.txt",
        "\xC4\xB1stanbul.txt",  // dotless i: its upper case is one byte shorter
        "\xC9\x90.txt",         // turned a: its upper case is one byte longer
        "nul\0inside.txt"s,
        "@[`{ punctuation around the letters z a Z A",
        std::string(20000, 'q')};
    const std::string letters = "aZ-b.yC9x_qRmW~0kLp sTuvEfgHIjNoD";
    for (size_t length = 0; length <= letters.size(); ++length) {
        names.push_back(letters.substr(0, length));
        names.push_back(letters.substr(0, length) + "\xC3\xA9");
    }
    return names;
}

TEST(IndexItemsTest, KeepsEveryNameItsCaseItsUpperCaseAndItsFolder) {
    const std::vector<std::string> names = AwkwardNames();
    IndexItems items;
    for (size_t i = 0; i < names.size(); ++i) {
        items.Add(names[i], static_cast<int32_t>(i * 97 % 5001));
    }
    ASSERT_EQ(items.Count(), static_cast<int32_t>(names.size()));
    for (size_t i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(names[i].substr(0, 40));
        const clsItem item = items.Item(static_cast<int32_t>(i + 1));
        EXPECT_EQ(item.Filename, names[i]);
        EXPECT_EQ(item.UCFilename, ToUpper(names[i]));
        EXPECT_EQ(item.Directory, static_cast<int32_t>(i * 97 % 5001));
    }
    EXPECT_THROW(items.Add("x", -1), OutOfRangeError);
}

std::vector<int32_t> PlainSearch(const IndexItems& items, const std::string& word) {
    std::vector<int32_t> found;
    for (int32_t position = 1; position <= items.Count(); ++position) {
        if (items.Item(position).UCFilename.find(word) != std::string::npos) {
            found.push_back(position);
        }
    }
    return found;
}

TEST(IndexItemsTest, FindsEachMatchingRecordOnceAsAPlainSearchOfEachNameDoes) {
    const std::vector<std::string> names = AwkwardNames();
    IndexItems items;
    // The last two would only match across two names.
    std::vector<std::string> words = {
        "",    "A",  "ZA",           "XLS",      "QQQQQQQQQQQQQQQQQQQQ", "\xC3\x89", "@[",
        "A Z", "QZ", "NUL\0INSIDE"s, "ISTANBUL", "XLSR\xC3\x89",         "XLS\nR"};
    for (int round = 0; round < 3; ++round) {  // more than one block of 100 records
        for (const std::string& name : names) {
            items.Add(name, round);
            words.push_back(ToUpper(name));
        }
    }
    for (const std::string& word : words) {
        EXPECT_EQ(items.Find(word, nullptr), PlainSearch(items, word)) << word.substr(0, 40);
    }
}

// A lookup scans all names as one text, 64 bytes at a time, and gives each hit to its record by
// counting name ends: names and words of random lengths cross those blocks and the text's end.
TEST(IndexItemsTest, RandomLookupsAgreeWithThePlainSearch) {
    std::mt19937 random(11);
    const auto text = [&](size_t most, const char* letters) {
        std::string s(random() % (most + 1), ' ');
        for (char& c : s) {
            c = letters[random() % 3];
        }
        return s;
    };
    for (int round = 0; round < 300; ++round) {
        IndexItems items;
        for (size_t count = random() % 40; count > 0; --count) {
            items.Add(text(round % 3 == 0 ? 150 : 6, "aAb"), 0);
        }
        for (int lookup = 0; lookup < 10; ++lookup) {
            const std::string word = text(lookup == 0 ? 70 : 4, "AAB");
            ASSERT_EQ(items.Find(word, nullptr), PlainSearch(items, word)) << word;
        }
    }
}

TEST(FolderTableTest, FindIsCaseFreeAmongUsedSlotsAndTheBoundIsFixed) {
    FolderTable folders;
    for (const char* path : {"C:", "C:\\WINDOWS", "D:\\Old"}) {
        folders.Append(path);
    }
    EXPECT_EQ(folders.Find("c:\\windows"), 1);
    folders.Clear();
    folders.Append("E:");
    EXPECT_EQ(folders.Find("D:\\Old"), std::nullopt);  // beyond the count
    EXPECT_EQ(folders.Path(2), "D:\\Old");             // but still held
    EXPECT_THROW(folders.Path(kFolderSlots), OutOfRangeError);
    EXPECT_THROW(folders.Path(-1), OutOfRangeError);
    while (folders.Append("X")) {
    }
    EXPECT_EQ(folders.Count(), kFolderSlots);
}

// Paths are stored as differences from the slot before; a refill after Clear must leave every
// later slot, in the refilled block and beyond, as it was.
TEST(FolderTableTest, RefilledSlotsAndTheSlotsAfterThemReadBackAsStored) {
    FolderTable folders(true);
    std::vector<std::string> model;
    for (int i = 0; i < 40; ++i) {
        model.push_back("C:/Deep/Folder" + std::to_string(i % 7) + "/" + std::to_string(i));
        folders.Append(model.back());
    }
    folders.Clear();
    for (int i = 0; i < 21; ++i) {
        model[static_cast<size_t>(i)] = i % 5 == 0 ? "" : "D:/Other" + std::to_string(i * 3);
        folders.Append(model[static_cast<size_t>(i)]);
    }
    for (size_t slot = 0; slot < model.size(); ++slot) {
        EXPECT_EQ(folders.Path(static_cast<int32_t>(slot)), model[slot]) << slot;
    }
    EXPECT_EQ(folders.Find("d:/other57"), 19);
    EXPECT_EQ(folders.Path(kFolderSlots - 1), "") << "never used";
}

}  // namespace
}  // namespace quorin
