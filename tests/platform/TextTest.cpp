#include "platform/Text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorin {
namespace {

std::string Replacements(size_t count) {
    std::string text;
    while (text.size() < 3 * count) {
        text += "\xEF\xBF\xBD";
    }
    return text;
}

TEST(Utf8, WidenAndNarrowRoundTripEveryLengthOfSequence) {
    const std::vector<std::string> samples = {
        "",
        "plain ascii.txt",
        "caf\xC3\xA9",                   // two bytes
        "\xE2\x82\xAC 100",              // three bytes
        "\xF0\x9F\x98\x80 smile",        // four bytes: a surrogate pair in UTF-16
        "\xF4\x8F\xBF\xBF",              // the last code point
        std::string("nul\0inside", 10),  // names never hold one, but the bytes must survive
    };
    for (const std::string& sample : samples) {
        EXPECT_EQ(Narrow(Widen(sample)), sample) << sample;
        EXPECT_TRUE(IsValidUtf8(sample)) << sample;
    }
    EXPECT_EQ(Widen("\xF0\x9F\x98\x80").size(), sizeof(wchar_t) == 2 ? 2u : 1u);
}

TEST(Utf8, EachIllFormedSequenceOrUnpairedSurrogateBecomesReplacementCharacters) {
    struct Case {
        std::string bytes;
        std::string narrowed;
    };
    const std::vector<Case> cases = {
        {"a\x80z", std::string("a") + Replacements(1) + "z"},  // lone continuation byte
        {"a\xC3", std::string("a") + Replacements(1)},         // cut off at the end
        {"\xE2\x82x", Replacements(1) + "x"},                  // broken in the middle
        {"\xC0\x80", Replacements(2)},                         // overlong NUL
        {"\xE0\x80\x80", Replacements(3)},                     // overlong three-byte form
        {"\xED\xA0\x80", Replacements(3)},                     // a UTF-16 surrogate
        {"\xF4\x90\x80\x80", Replacements(4)},                 // above U+10FFFF
        {"\xFF", Replacements(1)},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(IsValidUtf8(c.bytes)) << testing::PrintToString(c.bytes);
        EXPECT_EQ(Narrow(Widen(c.bytes)), c.narrowed) << testing::PrintToString(c.bytes);
    }
    const std::wstring unpaired = {L'a', static_cast<wchar_t>(0xD800), L'b',
                                   static_cast<wchar_t>(0xDC00)};
    EXPECT_EQ(Narrow(unpaired),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD");
}

TEST(AnsiToUtf8, DecodesALatin1LineThatIsNotUtf8) {
    const std::string latin1 = "R\xE9sum\xE9 d'\xE9t\xE9.doc";
    ASSERT_FALSE(IsValidUtf8(latin1));
    EXPECT_EQ(AnsiToUtf8(latin1), "R\xC3\xA9sum\xC3\xA9 d'\xC3\xA9t\xC3\xA9.doc");
    EXPECT_EQ(AnsiToUtf8("plain"), "plain");
    EXPECT_EQ(AnsiToUtf8(""), "");
#ifndef _WIN32
    EXPECT_EQ(AnsiToUtf8("\x80\x93\x9F"), "\xE2\x82\xAC\xE2\x80\x9C\xC5\xB8");  // Windows-1252
#endif
}

// ß has no one-character upper case: it stays, and the rest still changes.
TEST(ToUpper, MapsAsciiAndOtherLettersCharacterByCharacter) {
    for (const auto& [text, upper] :
         {std::pair{"readme.txt", "README.TXT"},
          {"a-z [{`~} 09 @", "A-Z [{`~} 09 @"},
          {"My r\xC3\xA9sum\xC3\xA9.Doc", "MY R\xC3\x89SUM\xC3\x89.DOC"},
          {"\xCF\x89\xD0\xB6", "\xCE\xA9\xD0\x96"},  // ωж
          {"straße", "STRAßE"},
          {"\xF0\x9F\x98\x80x", "\xF0\x9F\x98\x80X"},
          {"", ""}}) {
        EXPECT_EQ(ToUpper(text), upper) << text;
    }
}

}  // namespace
}  // namespace quorin
