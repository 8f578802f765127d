#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quorin {

// One assignment as "words.txt" holds it: three lines, the folder as a path because folder
// numbers change with every build.
struct WordRecord {
    std::string Word;
    std::string Folder;
    std::string Filename;
};

using WordRecordCallback = std::function<void(const WordRecord& record)>;

// Hands over the records in file order. Throws FileError when the file cannot be read or ends
// in the middle of a record, after handing over the records before it.
void ReadWordsFile(const std::string& path, const WordRecordCallback& onRecord);

// The whole text of the file; no records give an empty text.
std::string FormatWordsFile(const std::vector<WordRecord>& records);

}  // namespace quorin
