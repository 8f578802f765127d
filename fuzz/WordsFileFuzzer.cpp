// "words.txt" of any shape: the reader hands over whole records or throws FileError, a file it
// accepts survives a save and a second read, and the keyed collection takes the words as the
// engine's loader gives them.
#include "FuzzFile.h"

#include "index/WordsFile.h"
#include "index/clsItems.h"
#include "platform/Errors.h"

#include <cstdlib>
#include <vector>

namespace quorin::fuzz {
namespace {

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

bool SameRecords(const std::vector<WordRecord>& a, const std::vector<WordRecord>& b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (size_t i = 0; i < a.size(); ++i) {
        if (a[i].Word != b[i].Word || a[i].Folder != b[i].Folder ||
            a[i].Filename != b[i].Filename) {
            return false;
        }
    }
    return true;
}

// As LoadWords does: each word is a key, a repeated one throws and adds nothing.
void CheckCollection(const std::vector<WordRecord>& records) {
    clsItems words;
    for (const WordRecord& record : records) {
        const int32_t before = words.Count();
        try {
            words.Add(record.Filename, 0, record.Word, record.Word);
        } catch (const DuplicateKeyError&) {
            Require(words.Count() == before && words.Item(record.Word) != nullptr);
            continue;
        }
        const clsItem* added =
            record.Word.empty() ? words.Item(words.Count()) : words.Item(record.Word);
        Require(added != nullptr && added->Filename == record.Filename);
    }
    while (words.Count() > 0) {
        words.Remove(1);
    }
}

}  // namespace
}  // namespace quorin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quorin;
    static fuzz::FuzzFile input("words.txt");
    static fuzz::FuzzFile saved("words-saved.txt");
    std::vector<WordRecord> records;
    const auto collect = [](std::vector<WordRecord>& into) {
        return [&into](const WordRecord& record) { into.push_back(record); };
    };
    bool whole = true;
    try {
        ReadWordsFile(input.Write(data, size), collect(records));
    } catch (const FileError&) {
        whole = false;
    }
    fuzz::CheckCollection(records);
    if (whole) {
        const std::string text = FormatWordsFile(records);
        std::vector<WordRecord> again;
        ReadWordsFile(saved.Write(reinterpret_cast<const uint8_t*>(text.data()), text.size()),
                      collect(again));
        fuzz::Require(fuzz::SameRecords(records, again));
    }
    return 0;
}
