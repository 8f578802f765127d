#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>

#include "EngineFixture.h"
#include "platform/Errors.h"
#include "platform/FileSystem.h"
#include "platform/TextFile.h"
#include "support/FileMarks.h"

namespace quorin {
namespace {

using EngineTest = EngineFixture;

TEST_F(EngineTest, WalkIsBreadthFirstAcrossRootsInDriveOrder) {
    for (const char* file :
         {"r1/f1.txt", "r1/a/f3.txt", "r1/a/deep/f5.txt", "r2/f2.txt", "r2/b/f4.txt"}) {
        tree.WriteFile(file, "");
    }
    UseRoots({"r1", "r2"});
    auto index = MakeIndex();
    index->CreateIndex(true, ui);
    EXPECT_EQ(index->FolderCount(), 5);
    EXPECT_EQ(Matches(*index, ""),
              (Paths{TreePath("r1/f1.txt"), TreePath("r2/f2.txt"), TreePath("r1/a/f3.txt"),
                     TreePath("r2/b/f4.txt"), TreePath("r1/a/deep/f5.txt")}));
    EXPECT_EQ(Matches(*index, "F4.TXT"), Matches(*index, "f4.txt"));
    EXPECT_FALSE(index->FindMatch("nothing like it"));
}

// Hidden entries are the listing's (DirectoryListingTest, whose lister the walk uses).
TEST_F(EngineTest, TempAndSystemFoldersAreSkippedOnlyWhenAsked) {
    tree.WriteFile("r/Templates/t1.txt", "");
    tree.WriteFile("r/My Temp/t2.txt", "");
    tree.WriteFile("r/temp.txt", "");  // files are never skipped by name
    tree.WriteFile("r/shown.txt", "");
    const bool systemAttribute = MarkSystem(tree.WriteFile("r/sys.txt", ""));
    UseRoots({"r"});
    auto index = MakeIndex();
    index->CreateIndex(true, ui);
    EXPECT_EQ(Matches(*index, "t1"), Paths{});
    EXPECT_EQ(Matches(*index, "t2"), Paths{TreePath("r/My Temp/t2.txt")});
    EXPECT_EQ(Matches(*index, "temp.txt"), Paths{TreePath("r/temp.txt")});
    EXPECT_EQ(index->FolderCount(), 2);
    EXPECT_EQ(Matches(*index, "sys").size(), 1u);

    settings.Save("Index", "IgnoreTempFolders", "0");
    settings.Save("Index", "IncludeSystemFolders", "False");
    index->UpdateSettings();
    index->CreateIndex(true, ui);
    EXPECT_EQ(Matches(*index, "t1").size(), 1u);
    EXPECT_EQ(Matches(*index, "sys").empty(), systemAttribute);
    EXPECT_EQ(Matches(*index, "shown").size(), 1u);
}

// "index.txt" as the 5001-slot table would have saved it: the folder lines and the records of
// the first 5001 slots.
std::string CutAtTheFolderLimit(const std::string& text) {
    std::istringstream lines(text);
    std::string line;
    std::string cut;
    std::getline(lines, line);
    cut += line + "\n";
    std::getline(lines, line);
    const int32_t folders = std::stoi(line);
    cut += " " + std::to_string(std::min(folders, kFolderSlots)) + "\r\n";
    for (int32_t slot = 0; slot < folders && std::getline(lines, line); ++slot) {
        cut += slot < kFolderSlots ? line + "\n" : "";
    }
    std::string name;
    while (std::getline(lines, line) && std::getline(lines, name)) {
        cut += std::stoi(line) < kFolderSlots ? line + "\n" + name + "\n" : "";
    }
    return cut;
}

TEST_F(EngineTest, FolderTableCapLeavesOutTheSurplusUnlessAllFoldersAndTheDefaultStaysAsItWas) {
    // 21 roots naming one folder reach the cap without creating thousands of folders.
    for (int i = 0; i < 240; ++i) {
        tree.WriteFile("r/d" + std::to_string(i) + "/f.txt", "");
    }
    UseRoots(Paths(kDriveSlots, "r"));
    const int32_t subfolders = 240 * kDriveSlots;
    std::map<std::string, std::string> saved;
    for (const std::string allFolders : {"", "False", "True"}) {
        if (!allFolders.empty()) {
            settings.Save("Index", "AllFolders", allFolders);
        }
        const bool all = allFolders == "True";
        const int32_t folders = all ? kDriveSlots + subfolders : kFolderSlots;
        auto index = MakeIndex();
        index->CreateIndex(false, ui);
        // One file in each stored subfolder; those left out are not walked.
        EXPECT_EQ(index->FolderCount(), folders);
        EXPECT_EQ(index->ItemCount(), folders - kDriveSlots);
        EXPECT_EQ(index->FoldersLeftOut(), all ? 0 : subfolders - (kFolderSlots - kDriveSlots));

        const auto reloaded = MakeIndex();
        EXPECT_EQ(reloaded->FolderCount(), folders);
        EXPECT_EQ(reloaded->ItemCount(), folders - kDriveSlots);
        EXPECT_EQ(reloaded->LastUpdated, clock.now);
        EXPECT_EQ(reloaded->FoldersLeftOut(), std::nullopt);  // "index.txt" does not say
        saved[allFolders] = ReadWholeFile(ProgramFile("index.txt"));
    }
    EXPECT_EQ(saved["False"], saved[""]);
    EXPECT_EQ(saved["False"], CutAtTheFolderLimit(saved["True"]));
    settings.Save("Index", "AllFolders", "False");
    EXPECT_EQ(MakeIndex()->LastUpdated, 0);  // more folder lines than 5001 slots is damage
}

// A second build asked for while one runs returns at once, leaving no trace in either window.
TEST_F(EngineTest, CounterShowsEveryFolderWhenSilentAndEveryFifthOtherwise) {
    for (int i = 0; i < 11; ++i) {
        tree.MakeFolder("r/d" + std::to_string(i));
    }
    UseRoots({"r"});
    auto index = MakeIndex();
    ScriptedUi other;
    bool indexingSeen = true;
    ui.onEvents = [&] {
        indexingSeen = indexingSeen && index->Indexing();
        index->CreateIndex(true, other);
    };
    index->CreateIndex(false, ui);
    EXPECT_TRUE(indexingSeen);
    EXPECT_TRUE(other.log.empty());
    EXPECT_EQ(ui.log, (Paths{"begin", "0", "events", "5", "events", "10", "events", "Saving...",
                             "events", "end"}));

    ui.log.clear();
    index->CreateIndex(true, ui);
    ASSERT_EQ(ui.log.size(), 28u);
    EXPECT_EQ(ui.log[1] + ui.log[3] + ui.log[23], "0111");
}

TEST_F(EngineTest, CancelKeepsThePreviousIndexAndItsFile) {
    tree.WriteFile("r/old.txt", "");
    UseRoots({"r"});
    auto index = MakeIndex();
    ui.onEvents = [&] { index->Cancel(); };
    index->CreateIndex(false, ui);  // the first build: no index to fall back on
    EXPECT_TRUE(prompter.boxes.at(0).text.ends_with("the index created at ."));
    EXPECT_FALSE(FileExists(ProgramFile("index.txt")));
    EXPECT_EQ(index->LastUpdated, 0);

    ui.onEvents = nullptr;
    index->CreateIndex(true, ui);
    const auto oldMatches = index->FindMatch("old");
    // The index in memory is the one kept, not the file, which may have changed since.
    const std::string changed = "no longer an index\r\n";
    ReplaceFileWhole(ProgramFile("index.txt"), changed);
    std::filesystem::remove(FsPath(TreePath("r/old.txt")));
    tree.WriteFile("r/new.txt", "");
    clock.now += 1;
    ui.onEvents = [&] { index->Cancel(); };
    index->CreateIndex(true, ui);

    const test::ScriptedPrompter::Box& box = prompter.boxes.at(1);
    EXPECT_EQ(box.title + "|" + box.text,
              "Update Index Cancelled|Indexing has been canceled. Quorin will continue to use the "
              "index created at " +
                  FormatLocalDateTime(45000.5) + ".");
    EXPECT_TRUE(box.buttons == PromptButtons::Ok && box.icon == PromptIcon::Information);
    EXPECT_EQ(ReadWholeFile(ProgramFile("index.txt")), changed);
    EXPECT_EQ(index->LastUpdated, 45000.5);
    EXPECT_EQ(Matches(*index, ".txt"), (Paths{TreePath("r/old.txt")}));
    EXPECT_EQ(oldMatches->Item(1).Filename, "old.txt");  // an open list survives any rebuild
    EXPECT_FALSE(index->Indexing());
    EXPECT_EQ(ui.log.back(), "end");
}

TEST_F(EngineTest, AFailedSaveKeepsTheNewIndexDatedNowAndEndsTheBuild) {
    tree.WriteFile("r/new.txt", "");
    UseRoots({"r"});
    auto index = MakeIndex(TreePath("no such folder"));
    EXPECT_THROW(index->CreateIndex(true, ui), FileError);
    EXPECT_EQ(index->LastUpdated, clock.now);
    EXPECT_EQ(Matches(*index, "new"), (Paths{TreePath("r/new.txt")}));
    EXPECT_FALSE(index->Indexing());
    EXPECT_EQ(ui.log.back(), "end");
}

TEST_F(EngineTest, WordsRoundTripAndKeepTheirFilesWhenARebuildMovesEveryFolder) {
    tree.WriteFile("r/sub/ Budget, 98.xls", "");
    tree.WriteFile("r/plan.doc", "");
    UseRoots({"r"});
    auto index = MakeIndex();
    index->CreateIndex(true, ui);
    const clsItem budget = index->FindMatch("budget")->Item(1);
    const clsItem plan = index->FindMatch("plan")->Item(1);
    index->AddWord(clsItem{"Budget", budget.Filename, budget.Directory, ""});
    index->AddWord(clsItem{"ünï", "top.txt", 0, ""});
    EXPECT_THROW(index->AddWord(clsItem{"BUDGET", "top.txt", 0, ""}), DuplicateKeyError);
    EXPECT_EQ(index->Words().Count(), 2);

    // A new first root moves every folder to another slot; a word saved while the build runs
    // still names its real folder.
    settings.Save("Index", "DriveCount", "2");
    settings.Save("Index", "Drive0", tree.MakeFolder("r0/a"));
    settings.Save("Index", "Drive1", TreePath("r"));
    index->UpdateSettings();
    std::string savedDuringBuild;
    ui.onEvents = [&] {
        if (savedDuringBuild.empty()) {
            index->AddWord(clsItem{"plan", plan.Filename, plan.Directory, ""});
            savedDuringBuild = ReadWholeFile(ProgramFile("words.txt"));
        }
    };
    index->CreateIndex(true, ui);

    const std::string r = TreePath("r");
    EXPECT_EQ(savedDuringBuild, "Budget\r\n" + TreePath("r/sub") +
                                    "\r\n Budget, 98.xls\r\nünï\r\n" + r +
                                    "\r\ntop.txt\r\nplan\r\n" + r + "\r\nplan.doc\r\n");
    for (const char* word : {"plan", "budget"}) {
        const clsItem* assigned = index->Words().Item(word);
        ASSERT_NE(assigned, nullptr);
        EXPECT_EQ(JoinPath(index->GetPath(assigned->Directory), assigned->Filename),
                  Matches(*index, word).at(0));
    }
    const auto reloaded = MakeIndex();
    ASSERT_EQ(reloaded->Words().Count(), 3);
    EXPECT_EQ(reloaded->Words().Item(2)->Word, "ünï");
    EXPECT_EQ(reloaded->Words().Item(2)->Directory, 1);
}

TEST_F(EngineTest, WordOfAVanishedFolderFallsBackToTheFirstRoot) {
    UseRoots({"r"});
    program.WriteFile("words.txt", "gone\r\n" + TreePath("r/gone") + "\r\nold.txt\r\n");
    auto index = MakeIndex();
    index->CreateIndex(true, ui);
    EXPECT_EQ(index->Words().Item("GONE")->Directory, 0);
    index->SaveWords();
    EXPECT_EQ(ReadWholeFile(ProgramFile("words.txt")),
              "gone\r\n" + TreePath("r") + "\r\nold.txt\r\n");

    program.WriteFile("words.txt", "Budget\r\nC:\r\na\r\nbudget\r\nC:\r\nb\r\n");
    EXPECT_THROW(MakeIndex(), DuplicateKeyError);
}

}  // namespace
}  // namespace quorin
