#include "NameGenerator.h"

#include <array>
#include <cctype>

namespace quorin::bench {
namespace {

// No word begins with "temp", so no folder is skipped as a TEMP folder.
constexpr std::array<std::string_view, 96> kVocabulary = {
    "budget",   "report",   "invoice", "holiday", "photo",  "img",      "setup",   "readme",
    "letter",   "draft",    "final",   "copy",    "notes",  "summary",  "project", "meeting",
    "agenda",   "minutes",  "family",  "garden",  "music",  "album",    "track",   "movie",
    "scan",     "receipt",  "tax",     "return",  "salary", "contract", "offer",   "resume",
    "cover",    "plan",     "design",  "sketch",  "model",  "render",   "backup",  "archive",
    "old",      "new",      "test",    "sample",  "data",   "export",   "import",  "config",
    "settings", "install",  "update",  "patch",   "driver", "manual",   "guide",   "help",
    "index",    "table",    "chart",   "graph",   "sales",  "client",   "vendor",  "order",
    "shipping", "travel",   "ticket",  "booking", "hotel",  "flight",   "map",     "route",
    "school",   "homework", "essay",   "lecture", "slides", "poster",   "flyer",   "logo",
    "icon",     "theme",    "font",    "sound",   "voice",  "memo",     "log",     "debug",
    "release",  "version",  "alpha",   "beta",    "server", "printer",  "mobile",  "desktop"};

constexpr std::array<std::string_view, 32> kExtensions = {
    ".doc", ".docx", ".xls", ".xlsx", ".pdf", ".txt", ".jpg",  ".jpeg", ".png",  ".gif", ".bmp",
    ".mp3", ".wav",  ".avi", ".mp4",  ".zip", ".exe", ".dll",  ".htm",  ".html", ".url", ".lnk",
    ".ini", ".log",  ".cpp", ".h",    ".ppt", ".csv", ".json", ".xml",  ".msi",  ".tmp"};

void ApplyCase(std::string& word, bool upper, bool capitalize) {
    for (size_t i = 0; i < word.size(); ++i) {
        const auto c = static_cast<unsigned char>(word[i]);
        word[i] =
            static_cast<char>(upper || (capitalize && i == 0) ? std::toupper(c) : std::tolower(c));
    }
}

}  // namespace

std::string NameGenerator::FileName(uint32_t minWords, uint32_t maxWords) {
    const CaseStyle style = PickStyle();
    std::string name = Words(minWords + random_.Below(maxWords - minWords + 1), style);
    if (random_.Below(3) != 0) {
        name += Separator(style);
        name += Number();
    }
    return name + Extension();
}

std::string NameGenerator::FolderName() {
    const CaseStyle style = PickStyle();
    std::string name = Words(1 + random_.Below(2), style);
    if (random_.OneIn(4)) {
        name += Separator(style);
        name += Number();
    }
    return name;
}

std::string NameGenerator::Words(uint32_t count, CaseStyle style) {
    std::string text;
    const uint32_t planted = random_.OneIn(rareOneIn_) ? random_.Below(count) : count;
    for (uint32_t i = 0; i < count; ++i) {
        if (i > 0) {
            text += Separator(style);
        }
        std::string word(i == planted ? kRareWord : kVocabulary[random_.Below(kVocabulary.size())]);
        ApplyCase(word, style == CaseStyle::Upper,
                  style == CaseStyle::Title || (style == CaseStyle::Camel && i > 0));
        text += word;
    }
    return text;
}

std::string NameGenerator::Number() {
    // Appending to one string keeps clear of GCC 12's false -Wrestrict on "x" + std::string.
    std::string text;
    switch (random_.Below(4)) {
        case 0:
            text += std::to_string(1990 + random_.Below(36));
            break;
        case 1:
            text += std::to_string(1990 + random_.Below(36));
            text += '-';
            text += std::to_string(10 + random_.Below(3));
            text += '-';
            text += std::to_string(10 + random_.Below(19));
            break;
        case 2:
            text += '(';
            text += std::to_string(1 + random_.Below(9));
            text += ')';
            break;
        default:
            text += 'v';
            text += std::to_string(random_.Below(100));
    }
    return text;
}

std::string NameGenerator::Extension() {
    std::string ext(kExtensions[random_.Below(kExtensions.size())]);
    const uint32_t roll = random_.Below(20);
    if (roll < 5) {
        ApplyCase(ext, true, false);
    } else if (roll == 5 && ext.size() > 1) {
        ext[1] = static_cast<char>(std::toupper(static_cast<unsigned char>(ext[1])));
    }
    return ext;
}

std::string_view NameGenerator::Separator(CaseStyle style) {
    if (style == CaseStyle::Camel) {
        return "";
    }
    constexpr std::array<std::string_view, 4> kSeparators = {" ", "_", "-", " "};
    return kSeparators[random_.Below(kSeparators.size())];
}

NameGenerator::CaseStyle NameGenerator::PickStyle() {
    constexpr std::array<CaseStyle, 6> kStyles = {CaseStyle::Title, CaseStyle::Title,
                                                  CaseStyle::Lower, CaseStyle::Lower,
                                                  CaseStyle::Upper, CaseStyle::Camel};
    return kStyles[random_.Below(kStyles.size())];
}

}  // namespace quorin::bench
