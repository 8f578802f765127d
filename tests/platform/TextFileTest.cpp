#include "platform/TextFile.h"

#include "platform/Errors.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#ifdef _WIN32
#include "platform/Text.h"
#include "platform/WinHandles.h"
#else
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

#include <filesystem>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace quorin {
namespace {

using namespace std::string_literals;

std::vector<std::string> ReadLines(const std::string& path) {
    TextFileReader reader(path);
    std::vector<std::string> lines;
    std::string line;
    while (reader.ReadLine(line)) {
        lines.push_back(line);
    }
    EXPECT_TRUE(reader.AtEnd());
    return lines;
}

size_t FileCount(const std::string& folder) {
    return static_cast<size_t>(
        std::distance(std::filesystem::directory_iterator(FsPath(folder)), {}));
}

TEST(TextFileReader, SplitsAtEveryKindOfLineEndAndDecodesEachLine) {
    const std::vector<std::pair<std::string, std::vector<std::string>>> cases = {
        {"", {}},
        {"one\r\ntwo\r\n", {"one", "two"}},
        {"one\ntwo\n", {"one", "two"}},
        {"one\rtwo\r", {"one", "two"}},
        {"one\r\ntwo", {"one", "two"}},  // no line end after the last line
        {"mixed\r\nends\nhere\rlast", {"mixed", "ends", "here", "last"}},
        {"\r", {""}},
        {"\r\r", {"", ""}},
        {"\n\r\n", {"", ""}},
        {"a\n\nb", {"a", "", "b"}},
        {" 42 \r\n", {" 42 "}},  // blanks belong to the line
        // Only the first byte order mark is one, and a line that is not UTF-8 is ANSI.
        {"\xEF\xBB\xBF"
         "caf\xC3\xA9\r\ncaf\xE9\r\n\xEF\xBB\xBFx",
         {"caf\xC3\xA9", "caf\xC3\xA9", "\xEF\xBB\xBFx"}},
    };
    TempFolder temp;
    for (const auto& [content, lines] : cases) {
        const std::string path = temp.WriteFile("lines.txt", content);
        EXPECT_EQ(ReadLines(path), lines) << testing::PrintToString(content);
    }
}

// The reader takes the file in pieces of 256 KB: lines, and CR LF pairs, that straddle the
// pieces must come out whole, as must a line longer than a piece.
TEST(TextFileReader, LinesSurviveTheReadersPieces) {
    constexpr size_t kPiece = 256 * 1024;
    std::vector<std::string> lines;
    std::string content;
    const auto add = [&](const std::string& line, const std::string& end) {
        lines.push_back(line);
        content += line + end;
    };
    add(std::string(kPiece - 1, 'a'), "\r\n");  // CR ends the first piece, LF begins the next
    add("b", "\r");
    add(std::string(3 * kPiece, 'c'), "\n");
    add("caf\xE9", "\r\n");
    lines.back() = "caf\xC3\xA9";
    while (content.size() % kPiece != kPiece - 1) {
        add("filler", "\n");
    }
    add("", "\r");    // a lone CR as the last byte of a piece
    add("last", "");  // no final line end
    TempFolder folder;
    const std::vector<std::string> read = ReadLines(folder.WriteFile("lines.txt", content));
    ASSERT_EQ(read.size(), lines.size());
    for (size_t i = 0; i < lines.size(); ++i) {
        EXPECT_TRUE(read[i] == lines[i]) << "line " << i;  // not printed: some are huge
    }
}

std::string ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.what();
    }
    return "no error";
}

// Each failure names the file in a sentence with the system's reason, leaves what was there and
// no temporary file.
TEST(ReplaceFileWhole, ReplacesTheWholeFileAndAFailedReadOrSaveNamesTheFileAndLeavesWhatWasThere) {
    TempFolder temp;
    const std::string index = JoinPath(temp.Path(), "index.txt");
    for (const std::string& content : {"first version, rather long\r\n"s, "second\r\n"s, ""s,
                                       std::string(3 * 1024 * 1024 + 7, 'x')}) {
        ReplaceFileWhole(index, content);
        EXPECT_TRUE(ReadWholeFile(index) == content) << content.size() << " bytes";
    }
    EXPECT_EQ(FileCount(temp.Path()), 1u) << "a temporary file was left behind";
    std::filesystem::remove(FsPath(index));
    const std::string missing = JoinPath(JoinPath(temp.Path(), "missing"), "index.txt");
    for (const std::string& message : {ErrorOf([&] { TextFileReader reader(missing); }),
                                       ErrorOf([&] { ReplaceFileWhole(missing, "data"); })}) {
        EXPECT_NE(message.find("\"" + missing + "\""), std::string::npos) << message;
        EXPECT_EQ(message.back(), '.');
        EXPECT_GT(message.size(), missing.size() + 30) << "the OS reason is missing: " << message;
    }
    EXPECT_EQ(FileCount(temp.Path()), 0u);

    const std::string folder = temp.MakeFolder("index.txt");
    temp.WriteFile("index.txt/inside.txt", "keep");
    EXPECT_THROW(ReplaceFileWhole(folder, "new"), FileError);
    EXPECT_EQ(ReadWholeFile(JoinPath(folder, "inside.txt")), "keep");
#ifdef _WIN32
    const std::string path = temp.WriteFile("words.txt", "old words\r\n");
    {
        const UniqueFileHandle inUse(CreateFileW(Widen(path).c_str(), GENERIC_READ, 0, nullptr,
                                                 OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(inUse);
        EXPECT_THROW(ReplaceFileWhole(path, "new words\r\n"), FileError);
    }
    EXPECT_EQ(ReadWholeFile(path), "old words\r\n");
    EXPECT_EQ(FileCount(temp.Path()), 2u) << "a temporary file was not removed";
#else
    EXPECT_EQ(FileCount(temp.Path()), 1u) << "the temporary file was not removed";
#endif
}

#ifndef _WIN32
// Writes beyond 16 KB fail as on a full disk (EFBIG rather than a signal), in a child process so
// that the limit ends with it.
TEST(ReplaceFileWhole, AFullDiskFailsNamingTheFileAndKeepsTheOldOne) {
    TempFolder temp;
    const std::string path = temp.WriteFile("words.txt", "old words\r\n");
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const rlimit limit{16384, 16384};
        std::signal(SIGXFSZ, SIG_IGN);
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
            _exit(9);
        }
        const std::string error =
            ErrorOf([&] { ReplaceFileWhole(path, std::string(100000, 'x')); });
        _exit(error.starts_with("The file \"" + path + "\" could not be saved: ") ? 0 : 10);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "9: no limit, 10: unclear error";
    EXPECT_EQ(ReadWholeFile(path), "old words\r\n");
    EXPECT_EQ(FileCount(temp.Path()), 1u) << "the temporary file was not removed";
}
#endif

}  // namespace
}  // namespace quorin
