#include "platform/DirectoryListing.h"

#include "platform/Path.h"
#include "support/FileMarks.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quorin {
namespace {

using Entries = std::map<std::string, bool>;  // name -> is a folder

Entries List(const std::string& folder, bool includeSystem, FolderLister* lister = nullptr) {
    Entries entries;
    const auto add = [&](std::string_view name, bool isFolder) {
        EXPECT_TRUE(entries.emplace(std::string(name), isFolder).second) << "twice: " << name;
    };
    if (lister != nullptr) {
        lister->List(folder, includeSystem, add);
    } else {
        ListFolder(folder, includeSystem, add);
    }
    return entries;
}

TEST(ListFolder, ReportsFilesAndFoldersNoHiddenOnesAndSystemOnesOnlyWhenAskedAsTheListerDoes) {
    TempFolder temp;
    temp.WriteFile("report.doc", "x");
    temp.WriteFile("caf\xC3\xA9 menu.txt", "x");
    for (const char* folder : {"Sub/Deeper", "Sub/Second", "Other/Third"}) {
        temp.MakeFolder(folder);
    }
#ifdef _WIN32
    ASSERT_TRUE(MarkHidden(temp.WriteFile("hidden.txt", "x")));
    ASSERT_TRUE(MarkHidden(temp.MakeFolder("Hidden")));
    Entries all = {{".", true}, {"..", true}};  // as the OS gives them
#else
    temp.WriteFile(".profile", "x");
    temp.MakeFolder(".cache");
    Entries all;
#endif
    const std::string systemFile = temp.WriteFile("system.sys", "x");
    const std::string systemFolder = temp.MakeFolder("Sys");
    const bool system = MarkSystem(systemFile) && MarkSystem(systemFolder);
    all.insert(
        {{"report.doc", false}, {"caf\xC3\xA9 menu.txt", false}, {"Sub", true}, {"Other", true}});
    const Entries plain = all;
    all.insert({{"system.sys", false}, {"Sys", true}});
    EXPECT_EQ(List(temp.Path(), false), system ? plain : all);
    EXPECT_EQ(List(temp.Path(), true), all);
    EXPECT_EQ(List(JoinPath(temp.Path(), "absent"), true), Entries{});
    EXPECT_EQ(List(JoinPath(temp.Path(), "report.doc"), true), Entries{});

    // The lister a walk uses, in a walk's order: siblings, a cousin, a folder back under an
    // earlier parent, a missing one.
    FolderLister lister;
    for (const char* relative : {"", "Sub", "Other", "Sub/Deeper", "Sub/Second", "Other/Third",
                                 "Sub/Deeper", "Sub/Gone"}) {
        const std::string folder = *relative ? JoinPath(temp.Path(), relative) : temp.Path();
        EXPECT_EQ(List(folder, false, &lister), List(folder, false)) << relative;
    }
}

#ifndef _WIN32
TEST(ListFolder, PosixSkipsLineBreaksNeverFollowsLinksAndListsNothingUnreadable) {
    TempFolder temp;
    temp.WriteFile("two\nlines.txt", "x");
    temp.WriteFile("carriage\rreturn.txt", "x");
    const std::string target = temp.MakeFolder("Target");
    temp.WriteFile("Target/inside.txt", "x");
    ASSERT_EQ(symlink(target.c_str(), JoinPath(temp.Path(), "link").c_str()), 0);
    EXPECT_EQ(List(temp.Path(), false), (Entries{{"Target", true}, {"link", false}}));
    // A breadth-first walk with room for only 16 open folders: the others' subfolders are
    // opened from their parent opened again by path.
    for (int folder = 0; folder < 20; ++folder) {
        temp.MakeFolder("Wide/" + std::to_string(folder) + "/Inner");
    }
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit few{32, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
    FolderLister lister;
    std::vector<std::string> walk = {JoinPath(temp.Path(), "Wide")};
    for (size_t at = 0; at < walk.size(); ++at) {
        const std::string folder = walk[at];
        lister.List(folder, false,
                    [&](std::string_view name, bool) { walk.push_back(JoinPath(folder, name)); });
    }
    setrlimit(RLIMIT_NOFILE, &limit);
    EXPECT_EQ(walk.size(), 41U);
    if (geteuid() != 0) {  // root reads every folder
        ASSERT_EQ(chmod(target.c_str(), 0), 0);
        EXPECT_EQ(List(target, false), Entries{});
        chmod(target.c_str(), 0700);
    }
}
#endif

}  // namespace
}  // namespace quorin
