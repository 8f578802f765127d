#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "index/IndexItems.h"
#include "platform/Errors.h"
#include "platform/Text.h"

namespace quorin {
namespace {

using namespace std::string_literals;

// Names of every length around the 8- and 16-byte steps of the packing, in random case.
std::vector<std::string> AwkwardNames() {
    std::vector<std::string> names = {
        "",
        "a",
        "Budget 98.XLS",
        "r\xC3\xA9sum\xC3\xA9.doc",
        "stra\xC3\x9F"
        "e.txt",
        "\xC4\xB1stanbul.txt",  // dotless i: its upper case is one byte shorter
        "\xC9\x90.txt",         // turned a: its upper case is one byte longer
        "nul\0inside.txt"s,
        "@[`{ punctuation around the letters z a Z A",
        std::string(20000, 'q')};
    std::mt19937 random(3);
    const std::string letters = "abcxyzABCXYZ019 .-_~";
    for (size_t length = 1; length <= 40; ++length) {
        std::string name;
        for (size_t i = 0; i < length; ++i) {
            name += letters[random() % letters.size()];
        }
        names.push_back(name);
    }
    return names;
}

TEST(PackedIndex, KeepsEveryNameItsCaseAndItsUpperCase) {
    const std::vector<std::string> names = AwkwardNames();
    IndexItems items;
    for (size_t i = 0; i < names.size(); ++i) {
        items.Add(names[i], static_cast<int32_t>(i % 5001));
    }
    ASSERT_EQ(items.Count(), static_cast<int32_t>(names.size()));
    for (size_t i = 0; i < names.size(); ++i) {
        const auto position = static_cast<int32_t>(i + 1);
        SCOPED_TRACE(names[i].substr(0, 40));
        EXPECT_EQ(items.Filename(position), names[i]);
        EXPECT_EQ(items.Item(position).UCFilename, ToUpper(names[i]));
        EXPECT_EQ(items.Directory(position), static_cast<int32_t>(i % 5001));
    }
    EXPECT_THROW(items.Add("x", -1), OutOfRangeError);
}

TEST(PackedIndex, FindsExactlyTheNamesAPlainSearchFinds) {
    const std::vector<std::string> names = AwkwardNames();
    IndexItems items;
    for (int round = 0; round < 3; ++round) {  // more than one block of 100 records
        for (const std::string& name : names) {
            items.Add(name, round);
        }
    }
    const std::vector<std::string> words = {
        "A",   "Z",        "ZA",           "XLS",      "Q",  "QQQQQQQQQQQQQQQQQQQQ",
        "A Z", "\xC3\x89", "NUL\0INSIDE"s, "ISTANBUL", "@[", "",
        "QZ"};
    for (const std::string& word : words) {
        SCOPED_TRACE(word);
        std::vector<int32_t> expected;
        for (int32_t position = 1; position <= items.Count(); ++position) {
            if (items.Item(position).UCFilename.find(word) != std::string::npos) {
                expected.push_back(position);
            }
        }
        EXPECT_EQ(items.Find(word, nullptr), expected);
    }
}

}  // namespace
}  // namespace quorin
