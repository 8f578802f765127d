#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "EngineFixture.h"
#include "platform/Errors.h"
#include "platform/IniSettingsStore.h"

namespace quorin {
namespace {

using namespace std::string_literals;

const std::string kMegabyte(1 << 20, 'x');

std::string IndexText(int folderCount, const std::vector<std::string>& lines) {
    std::string text = "2024-01-15 10:30:00\r\n " + std::to_string(folderCount) + "\r\n";
    for (int slot = 0; slot < folderCount; ++slot) {
        text += "C:\\F" + std::to_string(slot) + "\r\n";
    }
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

struct IndexCase {
    const char* what;
    std::string bytes;
    bool dated;  // LastUpdated set: the file counts as whole
    int32_t folders;
    std::vector<std::string> names;  // the records kept, in order
};

struct WordsCase {
    const char* what;
    std::string bytes;
    std::vector<std::string> words;  // loaded; a case without words and with error throws
    const char* error;               // part of the FileError's message, or nullptr
};

class BadInput : public EngineFixture {
  protected:
    std::vector<std::string> Names(const clsIndex& index) {
        std::vector<std::string> names;
        const std::optional<MatchList> all = index.FindMatch("");
        for (int32_t i = 1; all && i <= all->Count(); ++i) {
            names.push_back(all->Item(i).Filename);
        }
        return names;
    }
};

TEST_F(BadInput, IndexFileKeepsWhatItCanAndOnlyAWholeFileCountsAsAnIndex) {
    const std::string folders6000 = IndexText(6000, {});
    std::string withExtraFolderLines = IndexText(5001, {});
    withExtraFolderLines += "C:\\beyond the count\r\n 0\r\nlost.txt\r\n";
    const std::vector<IndexCase> cases = {
        {"empty file", "", false, 0, {}},
        {"only CR", "\r", false, 0, {}},
        {"only CRs", "\r\r\r\r", false, 0, {}},
        {"no final line end",
         "2024-01-15 10:30:00\r\n 1\r\nC:\r\n 0\r\na.txt\r\n 0\r\nb.txt",
         true,
         1,
         {"a.txt", "b.txt"}},
        {"LF and lone CR line ends",
         "2024-01-15 10:30:00\n 1\rC:\n 0\ra.txt\n",
         true,
         1,
         {"a.txt"}},
        {"byte order mark", "\xEF\xBB\xBF" + IndexText(1, {" 0", "a.txt"}), true, 1, {"a.txt"}},
        {"1 MB name",
         IndexText(1, {" 0", kMegabyte, " 0", "after.txt"}),
         true,
         1,
         {kMegabyte, "after.txt"}},
        {"1 MB first line", kMegabyte + "\r\n 1\r\nC:\r\n 0\r\na.txt\r\n", false, 0, {}},
        {"NUL bytes in a name", IndexText(1, {" 0", "a\0b.txt"s}), true, 1, {"a\0b.txt"s}},
        {"NUL byte in a record number",
         IndexText(1, {" 0", "a.txt", " 0\0"s, "b.txt"}),
         false,
         0,
         {"a.txt"}},
        {"invalid UTF-8 name",
         IndexText(1, {" 0", "r\xE9sum\xE9.doc"}),
         true,
         1,
         {"r\xC3\xA9sum\xC3\xA9.doc"}},
        {"folder count of 5002", IndexText(5002, {" 0", "a.txt"}), false, 0, {}},
        {"6000 folder lines", folders6000, false, 0, {}},
        {"folder lines beyond the count of 5001", withExtraFolderLines, false, 0, {}},
        {"negative folder count", "2024-01-15 10:30:00\r\n-1\r\n", false, 0, {}},
        {"negative record number",
         IndexText(2, {" 1", "a.txt", "-1", "b.txt", " 0", "c.txt"}),
         false,
         0,
         {"a.txt"}},
        {"huge record number",
         IndexText(2, {" 1", "a.txt", " 99999999999", "b.txt"}),
         false,
         0,
         {"a.txt"}},
        {"record number beyond the table", IndexText(2, {" 5001", "a.txt"}), false, 0, {}},
        {"record number past the folder count is still a slot",
         IndexText(1, {" 7", "a.txt"}),
         true,
         1,
         {"a.txt"}},
        {"number without its name", IndexText(1, {" 0", "a.txt", " 0"}), false, 0, {"a.txt"}},
        {"date that is not a date", "2024-02-30 10:30:00\r\n 0\r\n", false, 0, {}},
    };
    for (const IndexCase& c : cases) {
        SCOPED_TRACE(c.what);
        program.WriteFile("index.txt", c.bytes);
        const auto index = MakeIndex();
        EXPECT_EQ(index->LastUpdated != 0, c.dated);
        EXPECT_EQ(index->FolderCount(), c.folders);
        EXPECT_EQ(Names(*index), c.names);
    }
}

TEST_F(BadInput, WordsFileLoadsWholeAssignmentsOrSaysWhatIsWrong) {
    program.WriteFile("index.txt", IndexText(1, {" 0", "a.txt"}));
    const std::vector<WordsCase> cases = {
        {"empty file", "", {}, nullptr},
        {"only CR", "\r", {}, "multiple of three"},
        {"no final line end", "one\r\nC:\\F0\r\na.txt", {"one"}, nullptr},
        {"4 lines", "one\r\nC:\\F0\r\na.txt\r\ntwo\r\n", {}, "multiple of three"},
        {"5 lines", "one\r\nC:\\F0\r\na.txt\r\ntwo\r\nC:\\F0\r\n", {}, "multiple of three"},
        {"NUL bytes", "o\0e\r\nC:\\F0\r\na.txt\r\n"s, {"o\0e"s}, nullptr},
        {"invalid UTF-8", "caf\xE9\r\nC:\\F0\r\na.txt\r\n", {"caf\xC3\xA9"}, nullptr},
        {"1 MB word", kMegabyte + "\r\nC:\\F0\r\na.txt\r\n", {kMegabyte}, nullptr},
        {"LF and CR line ends", "one\nC:\\F0\ra.txt\r\ntwo\rgone\na.txt", {"one", "two"}, nullptr},
    };
    for (const WordsCase& c : cases) {
        SCOPED_TRACE(c.what);
        program.WriteFile("words.txt", c.bytes);
        if (c.error) {
            try {
                MakeIndex();
                ADD_FAILURE() << "no error";
            } catch (const FileError& e) {
                EXPECT_NE(std::string(e.what()).find(c.error), std::string::npos) << e.what();
                EXPECT_NE(std::string(e.what()).find("words.txt"), std::string::npos);
            }
            continue;
        }
        const auto index = MakeIndex();
        std::vector<std::string> words;
        for (const clsItem& item : index->Words()) {
            words.push_back(item.Word);
            EXPECT_EQ(item.Directory, 0);  // "C:\F0" is slot 0 and "gone" falls back to it
        }
        EXPECT_EQ(words, c.words);
    }
}

// Found by fuzzing: the reader skips a byte order mark at the start of the file, so a first word
// that begins with that character lost it on the next save and load.
TEST_F(BadInput, FirstWordBeginningWithAByteOrderMarkSurvivesSaving) {
    program.WriteFile("index.txt", IndexText(1, {" 0", "a.txt"}));
    program.WriteFile("words.txt", "\xEF\xBB\xBF\xEF\xBB\xBFodd\r\nC:\\F0\r\na.txt\r\n");
    MakeIndex()->SaveWords();
    const auto index = MakeIndex();
    ASSERT_EQ(index->Words().Count(), 1);
    EXPECT_EQ(index->Words().Item(1)->Word, "\xEF\xBB\xBFodd");
}

TEST_F(BadInput, SettingsFileLoadsAwkwardBytesAndBadValuesFailTyped) {
    const auto load = [&](const std::string& text) {
        return IniSettingsStore(program.WriteFile("settings.ini", text));
    };
    EXPECT_EQ(load("").Get("Index", "Interval", "24"), "24");
    EXPECT_EQ(load("\r").Get("Index", "Interval", "24"), "24");
    EXPECT_EQ(load("[Index]\r\nInterval=7").Get("Index", "Interval", ""), "7");
    EXPECT_EQ(load("[Index]\rFilter=" + kMegabyte).Get("Index", "Filter", "").size(),
              kMegabyte.size());
    EXPECT_EQ(load("[Index]\nDrive0=a\0b"s).Get("Index", "Drive0", ""), "a\0b"s);

    settings.Save("Index", "Interval", "x" + kMegabyte);
    EXPECT_THROW(MakeIndex(), TypeMismatchError);
    settings.Save("Index", "Interval", "24");
    settings.Save("Index", "DriveCount", "5002");
    EXPECT_THROW(MakeIndex(), OutOfRangeError);
}

}  // namespace
}  // namespace quorin
