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

// 8 bytes of a key from `from` on as a number whose order is theirs (zeros past its end).
uint64_t PieceOf(const std::string& key, size_t from) {
    uint64_t piece = 0;
    for (size_t i = from; i < from + 8; ++i) {
        piece = (piece << 8) | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    }
    return piece;
}

struct RankedKey {
    uint64_t piece;  // of the key, at the bytes being compared
    uint32_t size;
    int32_t index;
};
using RankedKeys = std::vector<RankedKey>::iterator;

// Sorts the keys by their bytes from `from` on, 8 at a time as one number; only keys alike in
// those 8 go on to the next 8. Matches share long starts (often the word looked for), and
// comparing 100,000 scattered keys whole from their first byte took a third of a sort by Name.
void SortKeysFrom(RankedKeys first, RankedKeys last, const std::vector<std::string>& keys,
                  size_t from) {
    bool longer = false;
    for (auto entry = first; entry != last; ++entry) {
        entry->piece = PieceOf(keys[static_cast<size_t>(entry->index)], from);
        longer = longer || entry->size > from + 8;
    }
    // Of two keys that read alike, the one that ends first comes first.
    std::sort(first, last, [](const RankedKey& a, const RankedKey& b) {
        return a.piece != b.piece ? a.piece < b.piece : a.size < b.size;
    });
    if (!longer) {
        return;
    }
    for (auto run = first; run != last;) {
        const auto end = std::find_if(
            run, last, [piece = run->piece](const RankedKey& key) { return key.piece != piece; });
        if (end - run > 1) {
            SortKeysFrom(run, end, keys, from + 8);
        }
        run = end;
    }
}

// Each key's place among the keys, equal keys sharing one.
std::vector<int32_t> RanksOf(const std::vector<std::string>& keys) {
    std::vector<RankedKey> sorted(keys.size());
    for (size_t i = 0; i < keys.size(); ++i) {
        sorted[i] = RankedKey{0, static_cast<uint32_t>(keys[i].size()), static_cast<int32_t>(i)};
    }
    SortKeysFrom(sorted.begin(), sorted.end(), keys, 0);
    std::vector<int32_t> ranks(keys.size());
    int32_t rank = 0;
    for (size_t i = 0; i < sorted.size(); ++i) {
        if (i > 0 && keys[static_cast<size_t>(sorted[i].index)] !=
                         keys[static_cast<size_t>(sorted[i - 1].index)]) {
            ++rank;
        }
        ranks[static_cast<size_t>(sorted[i].index)] = rank;
    }
    return ranks;
}

}  // namespace

void MatchRows::Fill(const MatchList& matches,
                     const std::function<std::string(int32_t)>& folderPath) {
    matches_ = &matches;
    order_.reserve(static_cast<size_t>(matches.Count()));
    directories_.reserve(static_cast<size_t>(matches.Count()));
    for (int32_t position = 1; position <= matches.Count(); ++position) {
        const int32_t directory = matches.Directory(position);
        if (!folders_.contains(directory)) {
            std::string path = folderPath(directory);
            std::wstring text = Widen(path);
            folders_.emplace(directory, FolderEntry{std::move(path), std::move(text), 0});
        }
        directories_.push_back(directory);
        order_.push_back(position);
    }
}

// The sort keys come first, a name at a time; ranking them is one step at the end.
bool MatchRows::RankNames(std::chrono::milliseconds budget) {
    return RankNamesUntil(std::chrono::steady_clock::now() + budget);
}

bool MatchRows::RankNamesUntil(std::chrono::steady_clock::time_point end) {
    if (nameRanks_.size() == order_.size()) {
        return true;
    }
    nameKeys_.reserve(order_.size());
    while (nameKeys_.size() < order_.size()) {
        const auto position = static_cast<int32_t>(nameKeys_.size() + 1);
        nameKeys_.push_back(SortKeyOf(Widen(matches_->Filename(position))));
        if (nameKeys_.size() % 256 == 0 && std::chrono::steady_clock::now() >= end) {
            return false;
        }
    }
    nameRanks_ = RanksOf(nameKeys_);
    nameKeys_ = {};
    return true;
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

// The rows are sorted by each text's rank among the column's texts, which the first sort by the
// column works out: a sort itself only compares numbers.
void MatchRows::Sort(int column, MatchesSortOrder order) {
    MakeRanks(column);
    std::vector<std::pair<int32_t, int32_t>> ranked;  // rank, position
    ranked.reserve(order_.size());
    for (const int32_t position : order_) {
        ranked.emplace_back(Rank(position, column), position);
    }
    const bool descending = order == MatchesSortOrder::Descending;
    std::stable_sort(ranked.begin(), ranked.end(), [descending](const auto& a, const auto& b) {
        return descending ? b.first < a.first : a.first < b.first;
    });
    std::transform(ranked.begin(), ranked.end(), order_.begin(),
                   [](const auto& row) { return row.second; });
}

const MatchRows::FolderEntry& MatchRows::FolderOf(int32_t position) const {
    return folders_.at(directories_.at(static_cast<size_t>(position - 1)));
}

int32_t MatchRows::Rank(int32_t position, int column) const {
    return column == MatchesSort::kName ? nameRanks_[static_cast<size_t>(position - 1)]
                                        : FolderOf(position).rank;
}

void MatchRows::MakeRanks(int column) {
    if (column == MatchesSort::kName) {
        RankNamesUntil(std::chrono::steady_clock::time_point::max());
        return;
    }
    if (foldersRanked_) {
        return;
    }
    std::vector<std::string> keys;
    for (const auto& [directory, folder] : folders_) {
        keys.push_back(SortKeyOf(folder.text));
    }
    const std::vector<int32_t> ranks = RanksOf(keys);
    auto rank = ranks.begin();
    for (auto& [directory, folder] : folders_) {
        folder.rank = *rank++;
    }
    foldersRanked_ = true;
}

}  // namespace quorin
