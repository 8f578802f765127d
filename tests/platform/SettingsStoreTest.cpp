#include "platform/Errors.h"
#include "platform/FileSystem.h"
#include "platform/IniSettingsStore.h"
#include "platform/Path.h"
#include "platform/TextFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

#ifdef _WIN32
#include "platform/Text.h"
#include "platform/WinHandles.h"
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quorin {
namespace {

using namespace std::string_literals;

const std::string kMegabyte(1 << 20, 'x');

std::string ErrorOf(const std::string& path) {
    try {
        IniSettingsStore store(path);
    } catch (const FileError& error) {
        return error.what();
    }
    return "no error";
}

TEST(IniSettingsStore, ReadsSectionsKeysAndValuesAsWritten) {
    TempFolder temp;
    const std::string path = temp.WriteFile("quorin.ini",
                                            "\xEF\xBB\xBF; written by hand\r\n"
                                            "\r\n"
                                            "[Index]\r\n"
                                            "Filter=.DOC .TXT \r\n"
                                            "  Interval = 12\n"
                                            "# comment\r"
                                            "[ Main ]\r\n"
                                            "Folder=C:\\Program Files\\Quorin=1\r\n"
                                            "Title=caf\xE9\r\n"
                                            "Nul=a\0b\r"s +
                                                "Long=" + kMegabyte);
    const IniSettingsStore store(path);
    EXPECT_EQ(store.Get("INDEX", "filter", ""), ".DOC .TXT ") << "the trailing blank is data";
    EXPECT_EQ(store.Get("Index", "Interval", ""), " 12");
    EXPECT_EQ(store.Get("main", "Folder", ""), "C:\\Program Files\\Quorin=1");
    EXPECT_EQ(store.Get("Main", "Title", ""), "caf\xC3\xA9");
    EXPECT_EQ(store.Get("Main", "Nul", ""), "a\0b"s);
    EXPECT_EQ(store.Get("Main", "Long", ""), kMegabyte) << "no final line end";
    EXPECT_EQ(store.Get("Main", "Missing", "default"), "default");
    for (const char* empty : {"", "\r"}) {
        EXPECT_EQ(IniSettingsStore(temp.WriteFile("empty.ini", empty)).Get("Index", "A", "24"),
                  "24");
    }
}

TEST(IniSettingsStore, SavesEveryValueItCanWriteAsALine) {
    TempFolder temp;
    const std::string path = JoinPath(JoinPath(temp.Path(), "new folder"), "settings.ini");
    {
        IniSettingsStore store(path);
        EXPECT_EQ(store.Get("Index", "Interval", "24"), "24") << "a missing file is empty";
        store.Save("Index", "Filter", ".DOC .XLS ");
        store.Save("Main", "Left", "1200");
        store.Save("index", "FILTER", ".TXT ");
        store.Save("Index", "Drive0", "C:");
    }
    EXPECT_EQ(ReadWholeFile(path),
              "[Index]\r\nDrive0=C:\r\nFilter=.TXT \r\n\r\n[Main]\r\nLeft=1200\r\n");

    IniSettingsStore refusing(JoinPath(temp.Path(), "refused.ini"));
    for (const auto& [section, key, value] : {std::tuple{"Main", "a=b", "1"},
                                              {"Main", "", "1"},
                                              {"Main", ";key", "1"},
                                              {"Main", " key", "1"},
                                              {"", "key", "1"},
                                              {"Main", "key", "two\r\nlines"}}) {
        EXPECT_THROW(refusing.Save(section, key, value), Error) << key << "=" << value;
    }
    EXPECT_FALSE(FileExists(JoinPath(temp.Path(), "refused.ini")));
}

TEST(IniSettingsStore, AMalformedLineOrAnUnreadableFileFailsNamingIt) {
    TempFolder temp;
    for (const auto& [content, line] : {std::pair{"; comment\r\nkey=value\r\n", 2},
                                        {"[Main]\r\nok=1\r\n\r\njust text\r\n", 4},
                                        {"[Main]\r\n=value\r\n", 2},
                                        {"[Main\r\n", 1}}) {
        const std::string path = temp.WriteFile("bad.ini", content);
        EXPECT_EQ(ErrorOf(path), "Line " + std::to_string(line) + " of the settings file \"" +
                                     path +
                                     "\" is neither a [section] header nor a key=value line.");
    }

    const std::string locked = temp.WriteFile("locked.ini", "[Main]\r\n");
#ifdef _WIN32
    const UniqueFileHandle lock(CreateFileW(Widen(locked).c_str(), GENERIC_READ, 0, nullptr,
                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(lock);
#else
    if (geteuid() == 0) {
        GTEST_SKIP() << "root reads every file";
    }
    ASSERT_EQ(chmod(locked.c_str(), 0), 0);
#endif
    EXPECT_NE(ErrorOf(locked).find("\"" + locked + "\""), std::string::npos) << ErrorOf(locked);
}

}  // namespace
}  // namespace quorin
