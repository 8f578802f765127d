#include "ui/matches/MatchRows.h"

#include <windows.h>

#include <algorithm>

#include "platform/Text.h"

namespace quorin {
namespace {

// Keys whose byte order is the order CompareStringW (and so lstrcmpiW) gives the texts.
std::string SortKeyOf(const std::wstring& text) {
    constexpr DWORD kFlags = LCMAP_SORTKEY | NORM_IGNORECASE;
    std::string key(text.size() * 8 + 16, '\0');
    int size = LCMapStringW(LOCALE_USER_DEFAULT, kFlags, text.c_str(), -1,
                            reinterpret_cast<LPWSTR>(key.data()), static_cast<int>(key.size()));
    if (size == 0) {
        size = LCMapStringW(LOCALE_USER_DEFAULT, kFlags, text.c_str(), -1, nullptr, 0);
        key.assign(static_cast<size_t>(size), '\0');
        LCMapStringW(LOCALE_USER_DEFAULT, kFlags, text.c_str(), -1,
                     reinterpret_cast<LPWSTR>(key.data()), size);
    }
    key.resize(static_cast<size_t>(size));
    return key;
}

}  // namespace

MatchRows::~MatchRows() {
    stopNameKeys_ = true;
}

void MatchRows::Fill(const MatchList& matches,
                     const std::function<std::string(int32_t)>& folderPath) {
    matches_ = &matches;
    order_.clear();
    directories_.clear();
    folders_.clear();
    nameKeys_.clear();
    order_.reserve(static_cast<size_t>(matches.Count()));
    directories_.reserve(static_cast<size_t>(matches.Count()));
    for (int32_t position = 1; position <= matches.Count(); ++position) {
        const int32_t directory = matches.Directory(position);
        if (!folders_.contains(directory)) {
            std::string path = folderPath(directory);
            std::wstring text = Widen(path);
            folders_.emplace(directory, FolderEntry{std::move(path), std::move(text), {}});
        }
        directories_.push_back(directory);
        order_.push_back(position);
    }
    StartNameKeys();
}

// Only the collection's shared, unchanging records are read on the other thread, and the
// collection outlives the rows.
void MatchRows::StartNameKeys() {
    const MatchList* matches = matches_;
    nameKeysMade_ = std::async(std::launch::async, [this, matches, count = Count()] {
        std::vector<std::string> keys;
        keys.reserve(static_cast<size_t>(count));
        for (int32_t position = 1; position <= count && !stopNameKeys_; ++position) {
            keys.push_back(SortKeyOf(Widen(matches->Filename(position))));
        }
        return keys;
    });
}

std::optional<int> MatchRows::RowOf(int32_t position) const {
    const auto found = std::find(order_.begin(), order_.end(), position);
    return found == order_.end() ? std::nullopt
                                 : std::optional<int>(static_cast<int>(found - order_.begin()));
}

std::string MatchRows::Filename(int row) const {
    return matches_->Filename(Position(row));
}

const std::string& MatchRows::Folder(int row) const {
    return FolderOf(Position(row)).path;
}

std::wstring MatchRows::Text(int row, int column) const {
    return column == MatchesSort::kName ? Widen(Filename(row)) : FolderOf(Position(row)).text;
}

// Each row's key is looked up once, not at every comparison.
void MatchRows::Sort(int column, MatchesSortOrder order) {
    MakeSortKeys(column);
    std::vector<std::pair<const std::string*, int32_t>> keyed;
    keyed.reserve(order_.size());
    for (const int32_t position : order_) {
        keyed.emplace_back(&SortKey(position, column), position);
    }
    const bool descending = order == MatchesSortOrder::Descending;
    std::stable_sort(keyed.begin(), keyed.end(), [descending](const auto& a, const auto& b) {
        return descending ? *b.first < *a.first : *a.first < *b.first;
    });
    std::transform(keyed.begin(), keyed.end(), order_.begin(),
                   [](const auto& row) { return row.second; });
}

const MatchRows::FolderEntry& MatchRows::FolderOf(int32_t position) const {
    return folders_.at(directories_.at(static_cast<size_t>(position - 1)));
}

const std::string& MatchRows::SortKey(int32_t position, int column) const {
    return column == MatchesSort::kName ? nameKeys_[static_cast<size_t>(position - 1)]
                                        : FolderOf(position).sortKey;
}

void MatchRows::MakeSortKeys(int column) {
    if (column == MatchesSort::kName) {
        if (nameKeysMade_.valid()) {
            nameKeys_ = nameKeysMade_.get();
        }
        if (nameKeys_.size() == order_.size()) {
            return;
        }
        nameKeys_.resize(order_.size());
        for (const int32_t position : order_) {
            nameKeys_[static_cast<size_t>(position - 1)] =
                SortKeyOf(Widen(matches_->Filename(position)));
        }
        return;
    }
    for (auto& [directory, folder] : folders_) {
        if (folder.sortKey.empty()) {
            folder.sortKey = SortKeyOf(folder.text);
        }
    }
}

}  // namespace quorin
