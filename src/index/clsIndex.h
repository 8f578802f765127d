#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "index/DriveTable.h"
#include "index/FolderTable.h"
#include "index/IndexItems.h"
#include "index/IndexProgress.h"
#include "index/MatchList.h"
#include "index/clsItem.h"
#include "index/clsItems.h"
#include "platform/Clock.h"
#include "platform/EventPump.h"
#include "platform/Prompter.h"
#include "platform/SettingsStore.h"

namespace quorin {

// What the engine works with; it owns none of it.
struct IndexServices {
    SettingsStore& settings;
    const Clock& clock;
    Prompter& prompter;
    EventPump& events;
    std::string programFolder;  // holds "index.txt", "words.txt" and "findfile.avi"
};

// The index engine: its settings, the folder table and index records of the last build, and the
// user's word assignments.
class clsIndex {
  public:
    // Reads the settings, "index.txt" and "words.txt"; a bad setting or a bad "words.txt"
    // throws.
    explicit clsIndex(IndexServices services);

    std::string Filter;  // upper-case extensions, each followed by a blank: ".DOC .XLS "
    bool FilterIsInclude = true;
    double LastUpdated = 0;       // OLE date of the index in memory; 0 when there is none
    int32_t UpdateInterval = 24;  // hours
    bool IncludeSystemFolders = true;
    bool IgnoreTempFolders = true;
    bool AllFolders = false;  // the folder table grows past 5001 slots

    // The collection itself; callers remove words from it and then call SaveWords.
    clsItems& Words() { return words_; }
    const clsItems& Words() const { return words_; }
    std::array<std::string, kDriveSlots> Drives() const { return drives_.slots; }
    bool Indexing() const { return indexing_; }
    int32_t FolderCount() const { return folders_.Count(); }
    int32_t ItemCount() const { return items_->Count(); }
    // The folders the 5001-slot table left out of the last build; nothing until a build of
    // this session completes, since "index.txt" does not record it.
    std::optional<int32_t> FoldersLeftOut() const { return foldersLeftOut_; }
    const std::string& ProgramFolder() const { return services_.programFolder; }

    // Rebuilds the index, yielding to events as it goes. Returns at once while a build runs.
    void CreateIndex(bool Silent, BuildProgress& ParentForm);
    // Takes effect after the folder being walked.
    void Cancel() { cancelled_ = true; }

    // The records whose names contain Word, without regard to case; nothing when none do.
    std::optional<MatchList> FindMatch(std::string_view Word,
                                       SearchProgress* progress = nullptr) const;
    // Throws OutOfRangeError outside the folder table's slots (0..5000 unless AllFolders).
    std::string GetPath(int32_t DirectoryID) const;
    std::optional<int32_t> GetDirectory(std::string_view Path) const;

    // Throws DuplicateKeyError, adding and saving nothing, when the word is assigned already.
    void AddWord(const clsItem& NewWord);
    void SaveWords();
    void LoadWords();
    void UpdateSettings();

  private:
    // The number of folders left out; nothing when cancelled.
    std::optional<int32_t> WalkDrives(bool Silent, BuildProgress& ParentForm, FolderTable& folders,
                                      IndexItems& items);
    void SaveIndex(BuildProgress& ParentForm, FolderTable folders,
                   std::shared_ptr<IndexItems> items, int32_t foldersLeftOut);
    void ReportCancel();
    void ReadIndex();
    std::string ProgramFile(std::string_view name) const;

    IndexServices services_;
    DriveTable drives_;
    FolderTable folders_;
    std::shared_ptr<IndexItems> items_ = std::make_shared<IndexItems>();
    clsItems words_;
    std::optional<int32_t> foldersLeftOut_;
    bool indexing_ = false;
    bool cancelled_ = false;
};

}  // namespace quorin
