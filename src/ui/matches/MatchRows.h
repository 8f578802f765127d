#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "index/MatchList.h"
#include "ui/matches/MatchesSort.h"

namespace quorin {

// The Matches window's rows over its collection of matches: which match each row shows, in the
// order the last sort left, and the texts the rows show and are sorted by. A row's texts are made
// when they are asked for, so a list of any length costs what is on screen; only sorting reads
// every row, and keeps what it made for the next sort.
class MatchRows {
  public:
    // Once: one row per match in collection order. Every match's folder is read here, so that a
    // match that cannot be read ends the rows before it; the failure is thrown on.
    void Fill(const MatchList& matches, const std::function<std::string(int32_t)>& folderPath);

    // Works on ranking the names for about `budget`, so that a window can do it while it waits
    // for the user and the first sort by name finds it done; true once it is.
    bool RankNames(std::chrono::milliseconds budget);

    int Count() const { return static_cast<int>(order_.size()); }

    // The row's match's position in the collection (from 1).
    int32_t Position(int row) const { return order_.at(static_cast<size_t>(row)); }
    std::optional<int> RowOf(int32_t position) const;

    std::string Filename(int row) const;
    const std::string& Folder(int row) const;
    // The folder the match at `position` showed when the rows were filled.
    const std::string& FolderAt(int32_t position) const { return FolderOf(position).path; }
    std::wstring Text(int row, int column) const;

    // A stable sort of the rows by the column's text, compared as lstrcmpiW compares: without
    // regard to case, by the user's locale.
    void Sort(int column, MatchesSortOrder order);

  private:
    struct FolderEntry {
        std::string path;
        std::wstring text;
        int32_t rank;  // among the folders, made on the first sort by folder
    };

    const FolderEntry& FolderOf(int32_t position) const;
    int32_t Rank(int32_t position, int column) const;
    void MakeRanks(int column);
    bool RankNamesUntil(std::chrono::steady_clock::time_point end);

    const MatchList* matches_ = nullptr;
    std::vector<int32_t> order_;              // by row
    std::vector<int32_t> directories_;        // by position - 1
    std::map<int32_t, FolderEntry> folders_;  // by folder number
    bool foldersRanked_ = false;
    std::vector<std::string> nameKeys_;  // by position - 1, while the names are being ranked
    std::vector<int32_t> nameRanks_;     // by position - 1, once they are
};

}  // namespace quorin
