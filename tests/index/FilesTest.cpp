#include <gtest/gtest.h>

#include "index/IndexFile.h"
#include "index/WordsFile.h"
#include "platform/Errors.h"
#include "platform/OleDate.h"
#include "support/TempFolder.h"

namespace quorin {
namespace {

const std::string kDate = "2023-03-15 12:00:00";

struct LoadedIndex {
    std::optional<double> date;
    FolderTable folders;
    IndexItems items;
};

std::unique_ptr<LoadedIndex> Load(const TempFolder& folder, const std::string& content) {
    auto loaded = std::make_unique<LoadedIndex>();
    loaded->folders.Append("stale");
    loaded->date =
        ReadIndexFile(folder.WriteFile("index.txt", content), loaded->folders, loaded->items);
    return loaded;
}

TEST(IndexFileTest, RoundTripKeepsAwkwardNamesOrderAndDate) {
    FolderTable folders;
    for (const char* path : {"C:", "C:\\ Leading, commas", "C:\\Ünïcødé ✓"}) {
        folders.Append(path);
    }
    IndexItems items;
    for (const char* name : {"  two blanks.txt", "a,b,c.doc", "Résumé.doc", "trailing .txt"}) {
        items.Add(name, items.Count() % 3);
    }
    const std::string text = FormatIndexFile(*ParseIndexDate(kDate), folders, items);
    EXPECT_TRUE(text.starts_with(kDate + "\r\n 3\r\nC:\r\n")) << text;

    TempFolder folder;
    const auto loaded = Load(folder, text);
    EXPECT_EQ(loaded->date, ParseIndexDate(kDate));
    ASSERT_EQ(loaded->folders.Count(), 3);
    EXPECT_EQ(loaded->folders.Path(2), folders.Path(2));
    ASSERT_EQ(loaded->items.Count(), items.Count());
    for (int32_t i = 1; i <= items.Count(); ++i) {
        EXPECT_EQ(loaded->items.Filename(i), items.Filename(i));
        EXPECT_EQ(loaded->items.Directory(i), items.Directory(i));
    }
}

TEST(IndexFileTest, EveryFaultClearsDateAndFoldersButKeepsTheRecordsBeforeIt) {
    const std::string head = kDate + "\r\n 1\r\nC:\r\n 0\r\nkept.txt\r\n";
    const struct {
        std::string content;
        bool valid;
        int32_t records;
    } cases[] = {
        {kDate + "\r\n 0\r\n", true, 0},
        {kDate + "\n1 \nD:\n0\nx.txt\n   0  \ny.txt", true, 2},  // blanks around numbers
        {"garbage\r\n 0\r\n", false, 0},
        {kDate + "\r\nabc\r\n", false, 0},
        {kDate + "\r\n 2\r\nC:\r\n", false, 0},  // fewer folder lines than counted
        {head + "x1\r\nbad.txt\r\n", false, 1},
        {head + "\r\n", false, 1},
    };
    TempFolder folder;
    for (const auto& [content, valid, records] : cases) {
        const auto loaded = Load(folder, content);
        EXPECT_EQ(loaded->date.has_value(), valid) << content;
        EXPECT_TRUE(valid || loaded->folders.Count() == 0) << content;
        EXPECT_EQ(loaded->items.Count(), records) << content;
    }
}

TEST(IndexFileTest, AGrowableTableTakesAnyFolderCountAndRecordsInIt) {
    std::string text = kDate + "\r\n 5003\r\n";
    for (int i = 0; i < 5003; ++i) {
        text += "C:\\" + std::to_string(i) + "\r\n";
    }
    text += " 5002\r\nlast.txt\r\n";
    TempFolder folder;
    FolderTable folders(true);
    IndexItems items;
    EXPECT_TRUE(ReadIndexFile(folder.WriteFile("index.txt", text), folders, items));
    EXPECT_EQ(folders.Path(items.Directory(1)), "C:\\5002");
    EXPECT_THROW(folders.Path(5003), OutOfRangeError);
    EXPECT_EQ(FormatIndexFile(*ParseIndexDate(kDate), folders, items), text);
}

TEST(WordsFileTest, RoundTripAndTheRecordsBeforeAShortOne) {
    TempFolder folder;
    const std::string path = folder.WriteFile(
        "words.txt", FormatWordsFile({{"budget", "C:\\My Documents", " Budget, 98.xls"},
                                      {"Ünï", "D:", "ünï.txt"}}) +
                         "half\r\n");
    std::vector<std::string> read;
    EXPECT_THROW(
        ReadWordsFile(path,
                      [&](const WordRecord& record) {
                          read.push_back(record.Word + "|" + record.Folder + "|" + record.Filename);
                      }),
        FileError);
    EXPECT_EQ(read, (std::vector<std::string>{"budget|C:\\My Documents| Budget, 98.xls",
                                              "Ünï|D:|ünï.txt"}));
    EXPECT_EQ(FormatWordsFile({}), "");
}

}  // namespace
}  // namespace quorin
