#include "index/WordsFile.h"

#include "platform/Errors.h"
#include "platform/TextFile.h"

namespace quorin {
namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

void AppendLine(std::string& text, const std::string& line) {
    text.append(line).append("\r\n");
}

}  // namespace

void ReadWordsFile(const std::string& path, const WordRecordCallback& onRecord) {
    TextFileReader reader(path);
    WordRecord record;
    while (reader.ReadLine(record.Word)) {
        if (!reader.ReadLine(record.Folder) || !reader.ReadLine(record.Filename)) {
            throw FileError("The file \"" + path +
                            "\" ends in the middle of an assignment: its line count must be a "
                            "multiple of three.");
        }
        onRecord(record);
    }
}

std::string FormatWordsFile(const std::vector<WordRecord>& records) {
    std::string text;
    // A reader takes a leading byte order mark for the file's own, so a first word that begins
    // with that character keeps it behind a mark of its own.
    if (!records.empty() && records.front().Word.starts_with(kUtf8Bom)) {
        text = kUtf8Bom;
    }
    for (const WordRecord& record : records) {
        AppendLine(text, record.Word);
        AppendLine(text, record.Folder);
        AppendLine(text, record.Filename);
    }
    return text;
}

}  // namespace quorin
