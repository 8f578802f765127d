#include "platform/DirectoryListing.h"

#include "platform/Path.h"
#include "support/FileMarks.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quorin {
namespace {

// Name -> is a folder, without the "." and ".." that Windows reports.
std::map<std::string, bool> List(const std::string& folder, bool includeSystem) {
    std::map<std::string, bool> entries;
    ListFolder(folder, includeSystem, [&](std::string_view name, bool isFolder) {
        EXPECT_TRUE(entries.emplace(std::string(name), isFolder).second) << "twice: " << name;
    });
    entries.erase(".");
    entries.erase("..");
    return entries;
}

TEST(ListFolder, ReportsFilesAndFoldersButNoHiddenOnes) {
    TempFolder temp;
    temp.WriteFile("report.doc", "x");
    temp.WriteFile("caf\xC3\xA9 menu.txt", "x");
    temp.MakeFolder("Sub/Deeper");
#ifdef _WIN32
    if (!MarkHidden(temp.WriteFile("hidden.txt", "x")) || !MarkHidden(temp.MakeFolder("Hidden"))) {
        GTEST_SKIP() << "no hidden attribute here";
    }
#else
    temp.WriteFile(".profile", "x");
    temp.MakeFolder(".cache");
#endif
    const std::map<std::string, bool> expected = {
        {"report.doc", false}, {"caf\xC3\xA9 menu.txt", false}, {"Sub", true}};
    EXPECT_EQ(List(temp.Path(), false), expected);
    EXPECT_EQ(List(temp.Path(), true), expected);
}

// A walk's order: siblings, a cousin, a folder back under an earlier parent, a missing one.
TEST(FolderLister, ListsEachFolderAsListFolderDoes) {
    TempFolder temp;
    for (const char* file : {"A/One/1.txt", "A/Two/2.txt", "B/Three/3.txt", "top.txt"}) {
        temp.MakeFolder(std::string(file).substr(0, std::string(file).rfind('/') + 1));
        temp.WriteFile(file, "x");
    }
    FolderLister lister;
    for (const char* relative : {"", "A", "B", "A/One", "A/Two", "B/Three", "A/One", "A/Gone"}) {
        const std::string folder = *relative ? JoinPath(temp.Path(), relative) : temp.Path();
        std::map<std::string, bool> entries;
        lister.List(folder, false, [&](std::string_view name, bool isFolder) {
            entries.emplace(std::string(name), isFolder);
        });
        entries.erase(".");
        entries.erase("..");
        EXPECT_EQ(entries, List(folder, false)) << relative;
    }
}

TEST(ListFolder, ReportsSystemEntriesOnlyWhenAskedTo) {
    TempFolder temp;
    temp.WriteFile("plain.txt", "x");
    if (!MarkSystem(temp.WriteFile("system.sys", "x")) || !MarkSystem(temp.MakeFolder("Sys"))) {
        GTEST_SKIP() << "no system attribute here";
    }
    const std::map<std::string, bool> plain = {{"plain.txt", false}};
    EXPECT_EQ(List(temp.Path(), false), plain);
    EXPECT_EQ(
        List(temp.Path(), true),
        (std::map<std::string, bool>{{"plain.txt", false}, {"system.sys", false}, {"Sys", true}}));
}

TEST(ListFolder, ListsNothingForAMissingFolderOrAFile) {
    TempFolder temp;
    const std::string file = temp.WriteFile("file.txt", "x");
    EXPECT_TRUE(List(JoinPath(temp.Path(), "absent"), true).empty());
    EXPECT_TRUE(List(file, true).empty());
}

#ifdef _WIN32
TEST(ListFolder, ReportsDotEntriesAsTheOsGivesThem) {
    TempFolder temp;
    std::map<std::string, bool> entries;
    ListFolder(temp.Path(), false, [&](std::string_view name, bool isFolder) {
        entries[std::string(name)] = isFolder;
    });
    EXPECT_EQ(entries, (std::map<std::string, bool>{{".", true}, {"..", true}}));
}
#else
TEST(ListFolder, PosixSkipsLineBreaksAndNeverFollowsLinks) {
    TempFolder temp;
    temp.WriteFile("two\nlines.txt", "x");
    temp.WriteFile("carriage\rreturn.txt", "x");
    const std::string target = temp.MakeFolder("Target");
    ASSERT_EQ(symlink(target.c_str(), JoinPath(temp.Path(), "link").c_str()), 0);
    EXPECT_EQ(List(temp.Path(), false),
              (std::map<std::string, bool>{{"Target", true}, {"link", false}}));
}

TEST(ListFolder, PosixListsNothingForAnUnreadableFolder) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "root reads every folder";
    }
    TempFolder temp;
    const std::string locked = temp.MakeFolder("locked");
    temp.WriteFile("locked/inside.txt", "x");
    ASSERT_EQ(chmod(locked.c_str(), 0), 0);
    const auto entries = List(locked, false);
    chmod(locked.c_str(), 0700);
    EXPECT_TRUE(entries.empty());
}
#endif

}  // namespace
}  // namespace quorin
