// "index.txt" as a user's disk may hold it: whatever the bytes, the reader must not crash, a
// file it accepts must survive a save and a second read unchanged, and a lookup over what it
// read must find exactly the records a plain substring test finds.
#include "FuzzFile.h"

#include "index/IndexFile.h"
#include "platform/OleDate.h"
#include "platform/Text.h"

#include <cstdlib>
#include <string_view>
#include <vector>

namespace quorin::fuzz {
namespace {

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

// Checks the progress contract: shown with the count, advanced by 100s, hidden once.
class CheckedProgress final : public SearchProgress {
  public:
    void Show(int maximum) override { maximum_ = maximum; }
    void SetValue(int value) override {
        Require(value == value_ + 100 && value <= maximum_);
        value_ = value;
    }
    void Hide() override { ++hidden_; }

    bool Finished(int count) const { return hidden_ == 1 && maximum_ == count; }

  private:
    int maximum_ = -1;
    int value_ = 0;
    int hidden_ = 0;
};

void CheckLookup(const IndexItems& items, std::string_view word) {
    if (!IsValidUtf8(word)) {
        return;  // typed words are always valid text
    }
    const std::string upper = ToUpper(word);
    CheckedProgress progress;
    const std::vector<int32_t> found = items.Find(upper, &progress);
    Require(progress.Finished(items.Count()));
    // No name holds a line break, so a word with one matches nothing.
    const bool canMatch = upper.find_first_of("\r\n") == std::string::npos;
    std::vector<int32_t> expected;
    for (int32_t position = 1; canMatch && position <= items.Count(); ++position) {
        if (items.Item(position).UCFilename.find(upper) != std::string::npos) {
            expected.push_back(position);
        }
    }
    Require(found == expected);
}

void CheckRoundTrip(double date, const FolderTable& folders, const IndexItems& items) {
    static FuzzFile saved("index-saved.txt");
    const std::string text = FormatIndexFile(date, folders, items);
    static FolderTable againFolders;  // a fixed table of 5001 slots, reused as the engine does
    IndexItems againItems;
    const auto againDate =
        ReadIndexFile(saved.Write(reinterpret_cast<const uint8_t*>(text.data()), text.size()),
                      againFolders, againItems);
    Require(againDate && FormatIndexDate(*againDate) == FormatIndexDate(date));
    Require(againFolders.Count() == folders.Count() && againItems.Count() == items.Count());
    for (int32_t slot = 0; slot < folders.Count(); ++slot) {
        Require(againFolders.Path(slot) == folders.Path(slot));
    }
    for (int32_t position = 1; position <= items.Count(); ++position) {
        Require(againItems.Filename(position) == items.Filename(position));
        Require(againItems.Directory(position) == items.Directory(position));
    }
}

}  // namespace
}  // namespace quorin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quorin;
    static fuzz::FuzzFile input("index.txt");
    static FolderTable folders;
    IndexItems items;
    const auto date = ReadIndexFile(input.Write(data, size), folders, items);
    if (!date) {
        fuzz::Require(folders.Count() == 0);
    } else {
        fuzz::CheckRoundTrip(*date, folders, items);
    }
    // The input's last few bytes serve as the word, so the fuzzer steers both sides.
    const size_t wordLength = size == 0 ? 0 : std::min<size_t>(data[0] % 8, size);
    fuzz::CheckLookup(
        items,
        std::string_view(reinterpret_cast<const char*>(data) + size - wordLength, wordLength));
    return 0;
}
