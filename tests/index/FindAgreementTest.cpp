#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "index/IndexItems.h"

namespace quorin {
namespace {

// A lookup scans all names as one text, 64 bytes at a time, and gives each hit to its record by
// counting name ends: names and words of random lengths, across those boundaries and the text's
// end, must match exactly the records a name-by-name search finds.
TEST(FindAgreementTest, AgreesWithANameByNameSearch) {
    std::mt19937 random(11);
    const auto text = [&](size_t most, const char* letters) {
        std::string s(random() % (most + 1), ' ');
        for (char& c : s) {
            c = letters[random() % 3];
        }
        return s;
    };
    for (int round = 0; round < 300; ++round) {
        IndexItems items;
        std::vector<std::string> names;
        const size_t count = random() % 40;
        for (size_t i = 0; i < count; ++i) {
            names.push_back(text(round % 3 == 0 ? 150 : 6, "aAb"));
            items.Add(names.back(), 0);
        }
        for (int lookup = 0; lookup < 10; ++lookup) {
            const std::string word = text(lookup == 0 ? 70 : 4, "AAB");
            std::vector<int32_t> expected;
            for (size_t i = 0; i < names.size(); ++i) {
                std::string upper = names[i];
                for (char& c : upper) {
                    c = c == 'a' ? 'A' : c == 'b' ? 'B' : c;
                }
                if (upper.find(word) != std::string::npos) {
                    expected.push_back(static_cast<int32_t>(i) + 1);
                }
            }
            ASSERT_EQ(items.Find(word, nullptr), expected) << word;
        }
    }
}

}  // namespace
}  // namespace quorin
