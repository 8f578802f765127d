#include <gtest/gtest.h>

#include "EngineFixture.h"
#include "index/IndexFile.h"
#include "index/WordsFile.h"
#include "platform/Errors.h"
#include "platform/OleDate.h"

namespace quorin {
namespace {

using namespace std::string_literals;

const std::string kDate = "2023-03-15 12:00:00";
const std::string kMegabyte(1 << 20, 'x');

// Text to tables and back to the same text: awkward names, their order, folders and date, in a
// growable table that takes any folder count.
TEST(IndexFileTest, RoundTripKeepsAwkwardNamesAndAnyFolderCountInAGrowableTable) {
    std::string text = kDate + "\r\n 5003\r\nC:\r\nC:\\ Leading, commas\r\nC:\\Ünïcødé ✓\r\n";
    for (int i = 3; i < 5003; ++i) {
        text += "C:\\" + std::to_string(i) + "\r\n";
    }
    text +=
        " 0\r\n  two blanks.txt\r\n 1\r\na,b,c.doc\r\n 2\r\nRésumé.doc\r\n 5002\r\ntrailing "
        ".txt\r\n";
    TempFolder folder;
    FolderTable folders(true);
    IndexItems items;
    EXPECT_EQ(ReadIndexFile(folder.WriteFile("index.txt", text), folders, items),
              ParseIndexDate(kDate));
    EXPECT_EQ(folders.Path(2), "C:\\Ünïcødé ✓");
    EXPECT_EQ(items.Filename(1), "  two blanks.txt");
    EXPECT_EQ(folders.Path(items.Directory(4)), "C:\\5002");
    EXPECT_THROW(folders.Path(5003), OutOfRangeError);
    EXPECT_EQ(FormatIndexFile(*ParseIndexDate(kDate), folders, items), text);
}

std::string IndexText(int folderCount, const std::vector<std::string>& lines) {
    std::string text = kDate + "\r\n " + std::to_string(folderCount) + "\r\n";
    for (int slot = 0; slot < folderCount; ++slot) {
        text += "C:\\F" + std::to_string(slot) + "\r\n";
    }
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

using BadInput = EngineFixture;

// A file's bytes and what the engine made of them.
struct FileCase {
    const char* what;
    std::string bytes;
    std::string loaded;
};

// Whether the engine took the file as whole (dated), its folder count and the names it kept.
TEST_F(BadInput, IndexFileKeepsTheRecordsBeforeAFaultAndOnlyAWholeFileCountsAsAnIndex) {
    const FileCase cases[] = {
        {"empty file", "", "undated 0:"},
        {"only CR", "\r", "undated 0:"},
        {"only CRs", "\r\r\r\r", "undated 0:"},
        {"no folders", kDate + "\r\n 0\r\n", "dated 0:"},
        {"no final line end", IndexText(1, {" 0", "a.txt", " 0"}) + "b.txt",
         "dated 1: a.txt b.txt"},
        {"LF and lone CR line ends, blanks around numbers", kDate + "\n1 \rC:\n   0  \ra.txt\n",
         "dated 1: a.txt"},
        {"byte order mark", "\xEF\xBB\xBF" + IndexText(1, {" 0", "a.txt"}), "dated 1: a.txt"},
        {"1 MB name", IndexText(1, {" 0", kMegabyte, " 0", "b.txt"}),
         "dated 1: " + kMegabyte + " b.txt"},
        {"1 MB first line", kMegabyte + "\r\n 1\r\nC:\r\n 0\r\na.txt\r\n", "undated 0:"},
        {"NUL bytes in a name", IndexText(1, {" 0", "a\0b.txt"s}), "dated 1: a\0b.txt"s},
        {"NUL byte in a record number", IndexText(1, {" 0", "a.txt", " 0\0"s, "b.txt"}),
         "undated 0: a.txt"},
        {"record number that is not a number", IndexText(1, {" 0", "a.txt", "x1", "b.txt"}),
         "undated 0: a.txt"},
        {"empty record number", IndexText(1, {" 0", "a.txt", ""}), "undated 0: a.txt"},
        {"number without its name", IndexText(1, {" 0", "a.txt", " 0"}), "undated 0: a.txt"},
        {"invalid UTF-8 name", IndexText(1, {" 0", "r\xE9sum\xE9.doc"}),
         "dated 1: r\xC3\xA9sum\xC3\xA9.doc"},
        {"folder count that is not a number", kDate + "\r\nabc\r\n", "undated 0:"},
        {"negative folder count", kDate + "\r\n-1\r\n", "undated 0:"},
        {"fewer folder lines than counted", kDate + "\r\n 2\r\nC:\r\n", "undated 0:"},
        {"folder count of 5002", IndexText(5002, {" 0", "a.txt"}), "undated 0:"},
        {"6000 folder lines", IndexText(6000, {}), "undated 0:"},
        {"folder lines beyond the count of 5001",
         IndexText(5001, {}) + "C:\\more\r\n 0\r\nlost.txt\r\n", "undated 0:"},
        {"negative record number", IndexText(2, {" 1", "a.txt", "-1", "b.txt", " 0", "c.txt"}),
         "undated 0: a.txt"},
        {"huge record number", IndexText(2, {" 1", "a.txt", " 99999999999", "b.txt"}),
         "undated 0: a.txt"},
        {"record number beyond the table", IndexText(2, {" 5001", "a.txt"}), "undated 0:"},
        {"record number past the folder count is still a slot", IndexText(1, {" 7", "a.txt"}),
         "dated 1: a.txt"},
        {"date that is not a date", "2024-02-30 10:30:00\r\n 0\r\n", "undated 0:"},
    };
    for (const auto& [what, bytes, summary] : cases) {
        SCOPED_TRACE(what);
        program.WriteFile("index.txt", bytes);
        const auto index = MakeIndex();
        std::string loaded = index->LastUpdated != 0 ? "dated " : "undated ";
        loaded.append(std::to_string(index->FolderCount())).append(":");
        const std::optional<MatchList> all = index->FindMatch("");
        for (int32_t i = 1; all && i <= all->Count(); ++i) {
            loaded.append(" ").append(all->Item(i).Filename);
        }
        EXPECT_EQ(loaded, summary);
    }
}

// Each record read as "word|folder|file;", then the error's message.
TEST(WordsFileTest, ReadsWholeRecordsAndSaysWhereTheFileEndsTooSoon) {
    TempFolder folder;
    const std::string path = JoinPath(folder.Path(), "words.txt");
    const std::string shortFile = "The file \"" + path +
                                  "\" ends in the middle of an assignment: its line count must be "
                                  "a multiple of three.";
    const std::string bom = "\xEF\xBB\xBF";
    const FileCase cases[] = {
        {"empty file", "", ""},
        {"only CR", "\r", shortFile},
        {"no final line end", "one\r\nC:\r\na.txt", "one|C:|a.txt;"},
        {"4 lines", "one\r\nC:\r\na.txt\r\ntwo\r\n", "one|C:|a.txt;" + shortFile},
        {"5 lines", "one\r\nC:\r\na.txt\r\ntwo\r\nC:\r\n", "one|C:|a.txt;" + shortFile},
        {"NUL bytes", "o\0e\r\nC:\r\na.txt\r\n"s, "o\0e|C:|a.txt;"s},
        {"invalid UTF-8", "caf\xE9\r\nC:\r\na.txt\r\n", "caf\xC3\xA9|C:|a.txt;"},
        {"1 MB word", kMegabyte + "\r\nC:\r\na.txt\r\n", kMegabyte + "|C:|a.txt;"},
        {"LF and CR line ends", "one\nC:\ra.txt\r\ntwo\rD:\na.txt", "one|C:|a.txt;two|D:|a.txt;"},
        {"nothing saved", FormatWordsFile({}), ""},
        // Found by fuzzing: the reader skips a byte order mark at the start of the file, so a
        // first word that began with that character lost it on the next save and load.
        {"saved",
         FormatWordsFile(
             {{bom + "odd", "C:\\My Documents", " Budget, 98.xls"}, {"Ünï", "D:", "ünï.txt"}}),
         bom + "odd|C:\\My Documents| Budget, 98.xls;Ünï|D:|ünï.txt;"},
    };
    for (const auto& [what, bytes, expected] : cases) {
        SCOPED_TRACE(what);
        folder.WriteFile("words.txt", bytes);
        std::string read;
        try {
            ReadWordsFile(path, [&](const WordRecord& record) {
                read += record.Word + "|" + record.Folder + "|" + record.Filename + ";";
            });
        } catch (const FileError& e) {
            read += e.what();
        }
        EXPECT_EQ(read, expected);
    }
}

}  // namespace
}  // namespace quorin
