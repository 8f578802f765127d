#include "platform/Text.h"

#include "platform/OsText.h"

namespace quorin {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kInvalid = 0xFFFFFFFF;
constexpr bool kWideIsUtf16 = sizeof(wchar_t) == 2;

unsigned char Byte(char c) {
    return static_cast<unsigned char>(c);
}

struct LeadByte {
    int continuations;
    char32_t bits;
    int secondMin;  // the second byte's range rules out overlongs, surrogates and
    int secondMax;  // code points above U+10FFFF
};

// Unicode's table of well-formed byte sequences, keyed by the lead byte.
bool ClassifyLead(unsigned char lead, LeadByte& info) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        info = {1, lead & 0x1Fu, 0x80, 0xBF};
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        info = {2, lead & 0x0Fu, lead == 0xE0 ? 0xA0 : 0x80, lead == 0xED ? 0x9F : 0xBF};
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        info = {3, lead & 0x07u, lead == 0xF0 ? 0x90 : 0x80, lead == 0xF4 ? 0x8F : 0xBF};
    } else {
        return false;
    }
    return true;
}

// Decodes the sequence at bytes[pos] and moves pos past it. An ill-formed sequence gives
// kInvalid and moves past its longest well-formed start, so that it becomes one U+FFFD.
char32_t DecodeUtf8(std::string_view bytes, size_t& pos) {
    const unsigned char lead = Byte(bytes[pos++]);
    if (lead < 0x80) {
        return lead;
    }
    LeadByte info{};
    if (!ClassifyLead(lead, info)) {
        return kInvalid;
    }
    char32_t codePoint = info.bits;
    for (int i = 0; i < info.continuations; ++i) {
        if (pos >= bytes.size()) {
            return kInvalid;
        }
        const unsigned char next = Byte(bytes[pos]);
        const int min = i == 0 ? info.secondMin : 0x80;
        const int max = i == 0 ? info.secondMax : 0xBF;
        if (next < min || next > max) {
            return kInvalid;
        }
        codePoint = (codePoint << 6) | (next & 0x3Fu);
        ++pos;
    }
    return codePoint;
}

void AppendUtf8(std::string& out, char32_t codePoint) {
    auto add = [&out](char32_t value) { out.push_back(static_cast<char>(value)); };
    if (codePoint < 0x80) {
        add(codePoint);
    } else if (codePoint < 0x800) {
        add(0xC0 | (codePoint >> 6));
        add(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        add(0xE0 | (codePoint >> 12));
        add(0x80 | ((codePoint >> 6) & 0x3F));
        add(0x80 | (codePoint & 0x3F));
    } else {
        add(0xF0 | (codePoint >> 18));
        add(0x80 | ((codePoint >> 12) & 0x3F));
        add(0x80 | ((codePoint >> 6) & 0x3F));
        add(0x80 | (codePoint & 0x3F));
    }
}

void AppendWide(std::wstring& out, char32_t codePoint) {
    if (kWideIsUtf16 && codePoint >= 0x10000) {
        const char32_t offset = codePoint - 0x10000;
        out.push_back(static_cast<wchar_t>(0xD800 + (offset >> 10)));
        out.push_back(static_cast<wchar_t>(0xDC00 + (offset & 0x3FF)));
    } else {
        out.push_back(static_cast<wchar_t>(codePoint));
    }
}

bool IsSurrogate(char32_t value) {
    return value >= 0xD800 && value <= 0xDFFF;
}

// Reads one character of a wide text; unpaired surrogates and out-of-range values give U+FFFD.
char32_t DecodeWide(std::wstring_view wide, size_t& pos) {
    const auto unit = static_cast<char32_t>(wide[pos++]);
    if (kWideIsUtf16 && unit >= 0xD800 && unit <= 0xDBFF && pos < wide.size()) {
        const auto low = static_cast<char32_t>(wide[pos]);
        if (low >= 0xDC00 && low <= 0xDFFF) {
            ++pos;
            return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
        }
    }
    return IsSurrogate(unit) || unit > 0x10FFFF ? kReplacement : unit;
}

}  // namespace

std::wstring Widen(std::string_view utf8) {
    std::wstring wide;
    wide.reserve(utf8.size());
    for (size_t pos = 0; pos < utf8.size();) {
        const char32_t codePoint = DecodeUtf8(utf8, pos);
        AppendWide(wide, codePoint == kInvalid ? kReplacement : codePoint);
    }
    return wide;
}

std::string Narrow(std::wstring_view wide) {
    std::string utf8;
    utf8.reserve(wide.size());
    for (size_t pos = 0; pos < wide.size();) {
        AppendUtf8(utf8, DecodeWide(wide, pos));
    }
    return utf8;
}

bool IsValidUtf8(std::string_view bytes) {
    for (size_t pos = 0; pos < bytes.size();) {
        if (DecodeUtf8(bytes, pos) == kInvalid) {
            return false;
        }
    }
    return true;
}

std::string ToUpper(std::string_view utf8) {
    std::string upper(utf8);
    for (char& c : upper) {
        if (Byte(c) >= 0x80) {
            return Narrow(OsUpperCase(Widen(utf8)));
        }
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
    }
    return upper;
}

}  // namespace quorin
