#include "index/clsIndex.h"

#include <utility>
#include <vector>

#include "index/FolderWalker.h"
#include "index/IndexFile.h"
#include "index/IndexSettings.h"
#include "index/WordsFile.h"
#include "platform/Path.h"
#include "platform/Text.h"
#include "platform/TextFile.h"

namespace quorin {
namespace {

constexpr std::string_view kIndexFile = "index.txt";
constexpr std::string_view kWordsFile = "words.txt";
// Yielding costs time, so a build the user watches reports every fifth folder only.
constexpr int32_t kWatchedCounterStep = 5;

// Clears the indexing flag however the build ends, so that a failed save does not block every
// later build.
class IndexingFlag {
  public:
    explicit IndexingFlag(bool& flag) : flag_(flag) { flag_ = true; }
    IndexingFlag(const IndexingFlag&) = delete;
    IndexingFlag& operator=(const IndexingFlag&) = delete;
    ~IndexingFlag() { flag_ = false; }

  private:
    bool& flag_;
};

}  // namespace

clsIndex::clsIndex(IndexServices services) : services_(std::move(services)) {
    UpdateSettings();
    ReadIndex();
    LoadWords();
}

void clsIndex::CreateIndex(bool Silent, BuildProgress& ParentForm) {
    if (indexing_) {
        return;
    }
    const IndexingFlag flag(indexing_);
    ParentForm.BuildStarted();
    try {
        // The walk fills tables of its own and the engine takes them only when it completes:
        // while the build yields, every folder number handed out before (the words', a list of
        // matches') still means its folder, so a word saved then is written with its real one.
        FolderTable folders(AllFolders);
        auto items = std::make_shared<IndexItems>();
        if (const auto foldersLeftOut = WalkDrives(Silent, ParentForm, folders, *items)) {
            SaveIndex(ParentForm, std::move(folders), std::move(items), *foldersLeftOut);
        } else {
            ReportCancel();
        }
    } catch (...) {
        ParentForm.BuildEnded();
        throw;
    }
    ParentForm.BuildEnded();
}

std::optional<int32_t> clsIndex::WalkDrives(bool Silent, BuildProgress& ParentForm,
                                            FolderTable& folders, IndexItems& items) {
    for (int32_t drive = 0; drive < drives_.count; ++drive) {
        folders.Append(drives_.slots[static_cast<size_t>(drive)]);
    }
    cancelled_ = false;
    FolderWalker walker(
        WalkOptions{Filter, FilterIsInclude, IncludeSystemFolders, IgnoreTempFolders}, folders,
        items);
    // The table is the queue: walking it in slot order while it grows is breadth-first.
    for (int32_t slot = 0; slot < folders.Count(); ++slot) {
        walker.Walk(slot);
        if (Silent || slot % kWatchedCounterStep == 0) {
            ParentForm.SetCounter(std::to_string(slot));
            services_.events.DoEvents();
        }
        if (cancelled_) {
            return std::nullopt;
        }
    }
    return walker.FoldersLeftOut();
}

void clsIndex::SaveIndex(BuildProgress& ParentForm, FolderTable folders,
                         std::shared_ptr<IndexItems> items, int32_t foldersLeftOut) {
    ParentForm.SetCounter("Saving...");
    services_.events.DoEvents();
    // The new index is what the program holds, and is dated now, whether or not it can be
    // written: a program folder that refuses the file then gives one error, not a rebuild at
    // every tick until the day has passed. A new collection, so that lists of matches from the
    // old index stay whole.
    folders_ = std::move(folders);
    items_ = std::move(items);
    foldersLeftOut_ = foldersLeftOut;
    LastUpdated = services_.clock.Now();
    // The assignments' folder numbers point into the table that has just changed; "words.txt"
    // holds their folders as paths.
    LoadWords();
    ReplaceFileWhole(ProgramFile(kIndexFile), FormatIndexFile(LastUpdated, folders_, *items_));
}

void clsIndex::ReportCancel() {
    const std::string created = LastUpdated == 0 ? std::string() : FormatLocalDateTime(LastUpdated);
    services_.prompter.Ask(
        "Update Index Cancelled",
        "Indexing has been canceled. Quorin will continue to use the index created at " + created +
            ".",
        PromptButtons::Ok, PromptIcon::Information);
}

void clsIndex::ReadIndex() {
    items_ = std::make_shared<IndexItems>();
    folders_ = FolderTable(AllFolders);
    const std::string path = ProgramFile(kIndexFile);
    if (FileExists(path)) {
        LastUpdated = ReadIndexFile(path, folders_, *items_).value_or(0);
    }
}

std::optional<MatchList> clsIndex::FindMatch(std::string_view Word,
                                             SearchProgress* progress) const {
    std::vector<int32_t> positions = items_->Find(ToUpper(Word), progress);
    if (positions.empty()) {
        return std::nullopt;
    }
    return MatchList(items_, std::move(positions));
}

std::string clsIndex::GetPath(int32_t DirectoryID) const {
    return folders_.Path(DirectoryID);
}

std::optional<int32_t> clsIndex::GetDirectory(std::string_view Path) const {
    return folders_.Find(Path);
}

void clsIndex::AddWord(const clsItem& NewWord) {
    words_.Add(NewWord.Filename, NewWord.Directory, NewWord.Word, NewWord.Word);
    SaveWords();
}

void clsIndex::SaveWords() {
    std::vector<WordRecord> records;
    for (const clsItem& item : words_) {
        records.push_back(WordRecord{item.Word, GetPath(item.Directory), item.Filename});
    }
    ReplaceFileWhole(ProgramFile(kWordsFile), FormatWordsFile(records));
}

void clsIndex::LoadWords() {
    words_ = clsItems();
    const std::string path = ProgramFile(kWordsFile);
    if (!FileExists(path)) {
        return;
    }
    ReadWordsFile(path, [this](const WordRecord& record) {
        // A folder no longer indexed falls back to slot 0, the first drive's root.
        words_.Add(record.Filename, GetDirectory(record.Folder).value_or(0), record.Word,
                   record.Word);
    });
}

void clsIndex::UpdateSettings() {
    ReadIndexSettings(
        services_.settings,
        IndexSettingsFields{Filter, FilterIsInclude, UpdateInterval, IncludeSystemFolders,
                            IgnoreTempFolders, drives_, AllFolders});
}

std::string clsIndex::ProgramFile(std::string_view name) const {
    return JoinPath(services_.programFolder, name);
}

}  // namespace quorin
