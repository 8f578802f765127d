#include "index/IndexFile.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <system_error>

#include "platform/Errors.h"
#include "platform/FileSystem.h"
#include "platform/LenientConversions.h"
#include "platform/OleDate.h"
#include "platform/TextFile.h"

namespace quorin {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
// " 5000\r\n": a record's number line at most.
constexpr size_t kNumberLineBytes = 7;

uintmax_t FileSizeOrZero(const std::string& path) {
    std::error_code error;
    const uintmax_t size = std::filesystem::file_size(FsPath(path), error);
    return error ? 0 : size;
}

// The number lines the program writes (" 42"), read without the general parser, which took a
// sixth of a load; anything else goes to it.
constexpr size_t kMostDigits = 9;  // below 2^31 whatever they are

std::optional<int32_t> ParseWrittenNumber(std::string_view line) {
    if (line.size() < 2 || line.size() > kMostDigits + 1 || line[0] != ' ') {
        return ParseWholeNumber(line);
    }
    int32_t value = 0;
    for (const char c : line.substr(1)) {
        const auto digit = static_cast<unsigned>(static_cast<unsigned char>(c) - '0');
        if (digit > 9) {
            return ParseWholeNumber(line);
        }
        value = value * 10 + static_cast<int32_t>(digit);
    }
    return value;
}

std::optional<int32_t> ParseInRange(std::string_view line, int32_t max) {
    const std::optional<int32_t> number = ParseWrittenNumber(line);
    if (!number || *number < 0 || *number > max) {
        return std::nullopt;
    }
    return number;
}

bool EndsLineAt(const char* at, const char* end) {
    return end - at >= 2 && at[0] == '\r' && at[1] == '\n';
}

// Folder lines as the program writes them (an ASCII path, CR LF), taken straight from the bytes
// read ahead, as records are below; counts them off `left` and gives the bytes taken.
size_t TakeWrittenFolders(std::string_view ahead, int32_t& left, FolderTable& folders) {
    const char* const end = ahead.data() + ahead.size();
    const char* line = ahead.data();
    for (; left > 0; --left) {
        const LineScan scan = ScanLine(line, end);
        if (!scan.ascii || !EndsLineAt(scan.end, end)) {
            break;
        }
        folders.Append(std::string_view(line, static_cast<size_t>(scan.end - line)));
        line = scan.end + 2;
    }
    return static_cast<size_t>(line - ahead.data());
}

bool ReadFolders(TextFileReader& reader, std::string_view& line, uintmax_t fileBytes,
                 FolderTable& folders) {
    if (!reader.ReadLine(line)) {
        return false;
    }
    // More folder lines than a fixed table holds is damage; a growable table takes any count.
    const std::optional<int32_t> count =
        ParseInRange(line, folders.Growable() ? INT32_MAX : kFolderSlots);
    if (!count) {
        return false;
    }
    // The reservation is held to what the file can hold (a folder line of a real index is
    // rarely shorter than 16 bytes, and the table's text is about a quarter of the lines'), so
    // that a damaged count does not reserve gigabytes.
    folders.Reserve(static_cast<int32_t>(std::min<uintmax_t>(*count, fileBytes / 16)),
                    static_cast<size_t>(fileBytes / 4));
    folders.Clear();
    for (int32_t left = *count; left > 0; --left) {
        reader.Skip(TakeWrittenFolders(reader.Ahead(), left, folders));
        if (left == 0) {
            break;
        }
        if (!reader.ReadLine(line)) {
            return false;
        }
        folders.Append(line);
    }
    return true;
}

// Records as the program writes them (" 42" CR LF, an ASCII name, CR LF), taken straight from the
// bytes read ahead: the line reader's work for each line was two thirds of a load. Stops at the
// first record of any other shape or not yet read whole, which is left to the line reader, and
// gives the bytes taken.
size_t TakeWrittenRecords(std::string_view ahead, int32_t maxDirectory, IndexItems& items) {
    const char* const end = ahead.data() + ahead.size();
    const char* record = ahead.data();
    for (;;) {
        if (record == end || *record != ' ') {
            break;
        }
        const char* const digits = record + 1;
        const char* p = digits;
        int32_t directory = 0;
        for (; p < end && static_cast<size_t>(p - digits) < kMostDigits; ++p) {
            const auto digit = static_cast<unsigned>(static_cast<unsigned char>(*p) - '0');
            if (digit > 9) {
                break;
            }
            directory = directory * 10 + static_cast<int32_t>(digit);
        }
        if (p == digits || directory > maxDirectory || !EndsLineAt(p, end)) {
            break;
        }
        const char* const name = p + 2;
        const LineScan scan = ScanLine(name, end);
        if (!scan.ascii || !EndsLineAt(scan.end, end)) {
            break;
        }
        items.AddAscii(std::string_view(name, static_cast<size_t>(scan.end - name)), directory);
        record = scan.end + 2;
    }
    return static_cast<size_t>(record - ahead.data());
}

// Records run to the end of the file; a number line without its name line is a fault.
bool ReadRecords(TextFileReader& reader, std::string_view& line, int32_t folderSlots,
                 IndexItems& items) {
    for (;;) {
        reader.Skip(TakeWrittenRecords(reader.Ahead(), folderSlots - 1, items));
        if (!reader.ReadLine(line)) {
            return true;
        }
        const std::optional<int32_t> directory = ParseInRange(line, folderSlots - 1);
        if (!directory || !reader.ReadLine(line)) {
            return false;
        }
        items.Add(line, *directory);
    }
}

// Lines are read as views into the file's bytes, so a million records cost no copy per line.
std::optional<double> ReadLines(TextFileReader& reader, uintmax_t fileBytes, FolderTable& folders,
                                IndexItems& items) {
    std::string_view line;
    if (!reader.ReadLine(line)) {
        return std::nullopt;
    }
    const std::optional<double> date = ParseIndexDate(line);
    if (!date || !ReadFolders(reader, line, fileBytes, folders) ||
        !ReadRecords(reader, line, folders.Slots(), items)) {
        return std::nullopt;
    }
    return date;
}

std::optional<double> ReadFile(const std::string& path, FolderTable& folders, IndexItems& items) {
    try {
        const uintmax_t fileBytes = FileSizeOrZero(path);
        items.ReserveForFile(fileBytes);
        TextFileReader reader(path);
        return ReadLines(reader, fileBytes, folders, items);
    } catch (const Error&) {
        return std::nullopt;
    }
}

void AppendLine(std::string& text, std::string_view line) {
    text.append(line).append(kLineEnd);
}

// The blank stands where a minus sign would.
void AppendNumberLine(std::string& text, int32_t number) {
    char digits[16];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    if (number >= 0) {
        text.push_back(' ');
    }
    AppendLine(text, std::string_view(digits, static_cast<size_t>(result.ptr - digits)));
}

}  // namespace

std::optional<double> ReadIndexFile(const std::string& path, FolderTable& folders,
                                    IndexItems& items) {
    const std::optional<double> date = ReadFile(path, folders, items);
    if (!date) {
        folders.Clear();
    }
    return date;
}

std::string FormatIndexFile(double lastUpdated, const FolderTable& folders,
                            const IndexItems& items) {
    std::string text;
    text.reserve(items.NameBytes() +
                 static_cast<size_t>(items.Count()) * (kNumberLineBytes + kLineEnd.size()));
    AppendLine(text, FormatIndexDate(lastUpdated));
    AppendNumberLine(text, folders.Count());
    for (int32_t slot = 0; slot < folders.Count(); ++slot) {
        AppendLine(text, folders.Path(slot));
    }
    for (int32_t position = 1; position <= items.Count(); ++position) {
        AppendNumberLine(text, items.Directory(position));
        items.AppendFilename(position, text);
        text.append(kLineEnd);
    }
    return text;
}

}  // namespace quorin
