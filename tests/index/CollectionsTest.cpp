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

std::vector<int32_t> PlainSearch(const IndexItems& items, const std::string& word) {
    std::vector<int32_t> found;
    for (int32_t position = 1; position <= items.Count(); ++position) {
        if (items.Item(position).UCFilename.find(word) != std::string::npos) {
            found.push_back(position);
        }
    }
    return found;
}

TEST(IndexItemsTest, KeepsEveryNameAndFindsEachMatchingRecordOnceAsAPlainSearchOfEachNameDoes) {
    const std::vector<std::string> names = AwkwardNames();
    const auto folderOf = [&](int32_t position) {
        return static_cast<int32_t>(static_cast<size_t>(position - 1) % names.size() * 97 % 5001);
    };
    IndexItems items;
    // The last two would only match across two names.
    std::vector<std::string> words = {
        "",    "A",  "ZA",           "XLS",      "QQQQQQQQQQQQQQQQQQQQ", "\xC3\x89", "@[",
        "A Z", "QZ", "NUL\0INSIDE"s, "ISTANBUL", "XLSR\xC3\x89",         "XLS\nR"};
    for (int round = 0; round < 3; ++round) {  // more than one block of 100 records
        for (const std::string& name : names) {
            items.Add(name, folderOf(items.Count() + 1));
            words.push_back(ToUpper(name));
        }
    }
    for (int32_t position = 1; position <= items.Count(); ++position) {
        const std::string& name = names[static_cast<size_t>(position - 1) % names.size()];
        SCOPED_TRACE(name.substr(0, 40));
        const clsItem item = items.Item(position);
        EXPECT_EQ(item.Filename, name);
        EXPECT_EQ(item.UCFilename, ToUpper(name));
        EXPECT_EQ(item.Directory, folderOf(position));
    }
    EXPECT_THROW(items.Item(items.Count() + 1), OutOfRangeError);
    EXPECT_THROW(items.Add("x", -1), OutOfRangeError);
    for (const std::string& word : words) {
        EXPECT_EQ(items.Find(word, nullptr), PlainSearch(items, word)) << word.substr(0, 40);
    }
    RecordingSearchProgress progress;  // per hundred records
    EXPECT_EQ(items.Find("XLS", &progress), items.Find("XLS", nullptr));
    EXPECT_EQ(progress.log, (std::vector<std::string>{"show " + std::to_string(items.Count()),
                                                      "100", "200", "hide"}));
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

// Paths are stored as differences from the slot before; a refill after Clear must leave every
// later slot, in the refilled block and beyond, as it was. A fixed table stops at its bound.
TEST(FolderTableTest, RefilledSlotsAndTheSlotsAfterThemReadBackAsStoredAndTheBoundIsFixed) {
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
    EXPECT_EQ(folders.Find("d:/other57"), 19);  // case-free
    EXPECT_EQ(folders.Find(model[30]), std::nullopt) << "held beyond the count, not found";
    EXPECT_EQ(folders.Path(kFolderSlots - 1), "") << "never used";
    EXPECT_THROW(folders.Path(-1), OutOfRangeError);

    FolderTable fixed;
    while (fixed.Append("X")) {
    }
    EXPECT_EQ(fixed.Count(), kFolderSlots);
    EXPECT_THROW(fixed.Path(kFolderSlots), OutOfRangeError);
}

}  // namespace
}  // namespace quorin
