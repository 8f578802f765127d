#include "index/IndexItems.h"

#include <algorithm>
#include <limits>

#include "index/SubstringSearcher.h"
#include "platform/Errors.h"
#include "platform/Text.h"

namespace quorin {
namespace {

constexpr int32_t kProgressStep = 100;
constexpr char kNameEnd = '\n';
// A record takes at least 16 bytes of "index.txt" in practice (two line ends, a number, a name),
// so the per-record arrays reserved from the file size rarely grow; pages reserved beyond the
// records never become resident.
constexpr uintmax_t kFileBytesPerRecordGuess = 16;

// Upper-cases in place in the buffer for the ASCII names that make up almost every index, and
// through ToUpper for the others.
void AppendUpper(std::string& out, std::string_view text) {
    const size_t start = out.size();
    out.append(text);
    bool ascii = true;
    for (size_t i = start; i < out.size(); ++i) {
        const char c = out[i];
        ascii = ascii && static_cast<unsigned char>(c) < 0x80;
        if (c >= 'a' && c <= 'z') {
            out[i] = static_cast<char>(c - 'a' + 'A');
        }
    }
    if (!ascii) {
        out.resize(start);
        out += ToUpper(text);
    }
}

uint32_t Offset(size_t size) {
    if (size > std::numeric_limits<uint32_t>::max()) {
        throw OutOfRangeError("The index holds more file names than fit in 4 GB.");
    }
    return static_cast<uint32_t>(size);
}

}  // namespace

void IndexItems::ReserveForFile(uintmax_t fileBytes) {
    const auto records = static_cast<size_t>(fileBytes / kFileBytesPerRecordGuess);
    names_.reserve(static_cast<size_t>(fileBytes));
    upperNames_.reserve(static_cast<size_t>(fileBytes));
    nameStarts_.reserve(records);
    upperStarts_.reserve(records);
    directories_.reserve(records);
}

void IndexItems::Add(std::string_view filename, int32_t directory) {
    nameStarts_.push_back(Offset(names_.size()));
    upperStarts_.push_back(Offset(upperNames_.size()));
    directories_.push_back(directory);
    names_.append(filename);
    AppendUpper(upperNames_, filename);
    upperNames_.push_back(kNameEnd);
}

clsItem IndexItems::Item(int32_t position) const {
    const size_t index = CheckedIndex(position);
    return clsItem{std::string(), std::string(Filename(position)), directories_[index],
                   std::string(UpperName(index))};
}

std::string_view IndexItems::Filename(int32_t position) const {
    const size_t index = CheckedIndex(position);
    const size_t end = index + 1 < nameStarts_.size() ? nameStarts_[index + 1] : names_.size();
    return std::string_view(names_).substr(nameStarts_[index], end - nameStarts_[index]);
}

int32_t IndexItems::Directory(int32_t position) const {
    return directories_[CheckedIndex(position)];
}

std::vector<int32_t> IndexItems::Find(std::string_view upperWord, SearchProgress* progress) const {
    std::vector<int32_t> positions;
    if (upperWord.find_first_of("\r\n") != std::string_view::npos) {
        return positions;  // no name holds a line break; '\n' would only match across records
    }
    if (progress) {
        progress->Show(Count());
    }
    const SubstringSearcher searcher(upperWord);
    for (int32_t first = 0; first < Count(); first += kProgressStep) {
        const int32_t last = std::min(first + kProgressStep, Count());
        FindInBlock(searcher, static_cast<size_t>(first), static_cast<size_t>(last), positions);
        if (progress && last - first == kProgressStep) {
            progress->SetValue(last);
        }
    }
    if (progress) {
        progress->Hide();
    }
    return positions;
}

void IndexItems::FindInBlock(const SubstringSearcher& searcher, size_t first, size_t last,
                             std::vector<int32_t>& positions) const {
    const std::string_view all(upperNames_);
    const size_t blockEnd = UpperStart(last);
    size_t from = UpperStart(first);
    while (from < blockEnd) {
        const size_t hit = searcher.Find(all.substr(from, blockEnd - from));
        if (hit == std::string_view::npos) {
            return;
        }
        // The record holding the hit; the search goes on after that record's name.
        const auto blockBegin = upperStarts_.begin() + static_cast<std::ptrdiff_t>(first);
        const auto blockStop = upperStarts_.begin() + static_cast<std::ptrdiff_t>(last);
        const auto record = std::upper_bound(blockBegin, blockStop, from + hit) - 1;
        const auto index = static_cast<size_t>(record - upperStarts_.begin());
        positions.push_back(static_cast<int32_t>(index) + 1);
        from = UpperStart(index + 1);
    }
}

size_t IndexItems::CheckedIndex(int32_t position) const {
    if (position < 1 || position > Count()) {
        throw OutOfRangeError("There is no index record at position " + std::to_string(position) +
                              "; the index holds " + std::to_string(Count()) + ".");
    }
    return static_cast<size_t>(position - 1);
}

std::string_view IndexItems::UpperName(size_t index) const {
    // Without the '\n' that ends every upper-cased name.
    return std::string_view(upperNames_)
        .substr(upperStarts_[index], UpperStart(index + 1) - upperStarts_[index] - 1);
}

size_t IndexItems::UpperStart(size_t index) const {
    return index < upperStarts_.size() ? upperStarts_[index] : upperNames_.size();
}

}  // namespace quorin
