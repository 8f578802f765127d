#include "ui/dialogs/KnownExtensions.h"

#include "platform/registry/ScratchClasses.h"
#include "platform/registry/TooManyKeyNamesError.h"
#include "ui/dialogs/FileTypeLists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace quorin {
namespace {

using Names = std::vector<std::string>;

// The registry's own order: names compared in upper case.
bool UpperLess(const std::string& a, const std::string& b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::toupper(static_cast<unsigned char>(x)) <
               std::toupper(static_cast<unsigned char>(y));
    });
}

class KnownExtensionsTest : public ::testing::Test {
  protected:
    ScratchClasses classes_;
    clsRegistry registry_;
};

TEST_F(KnownExtensionsTest, ListsTheClassesRootsFileTypesInItsOrder) {
    // ".qk": the other tests' scratch types, made beside this one, start with ".qz".
    for (const char* name : {".qkb", ".QKA", ".qkc.gz", "QuorinTest.qkd", ".qk*"}) {
        classes_.CreateKey(name);
    }
    Names ours;
    for (const std::string& name : KnownExtensions(registry_)) {
        if (name.starts_with(".qk") || name.starts_with(".QK")) {
            ours.push_back(name);
        }
    }
    EXPECT_EQ(ours, (Names{".QKA", ".qkb"}));
}

// A real machine's classes root holds far more names than GetKeyNames lists.
TEST_F(KnownExtensionsTest, AClassesRootBeyondTheBoundStillGivesItsFileTypes) {
    constexpr int kExtensions = 3000;
    for (int i = 0; i < kExtensions; ++i) {
        classes_.CreateKey(".qk" + std::to_string(10000 + i));
    }
    // Named to stand before Wine's own 51-character "Microsoft.DirectMusic..." key, whose name
    // would end the listing before the bound.
    for (int i = 0; i < 8000 - kExtensions; ++i) {
        classes_.CreateKey("Class.QuorinTest" + std::to_string(10000 + i));
    }

    const Names known = KnownExtensions(registry_);
    EXPECT_TRUE(std::all_of(known.begin(), known.end(), IsFileTypeName));
    Names ours;
    std::copy_if(known.begin(), known.end(), std::back_inserter(ours),
                 [](const std::string& name) { return name.starts_with(".qk"); });
    ASSERT_EQ(ours.size(), size_t{kExtensions});
    EXPECT_EQ(ours.front(), ".qk10000");
    EXPECT_EQ(ours.back(), ".qk12999");

    // GetKeyNames keeps its bound and its failure; the names before the bound come in name
    // order, which puts the "." names first.
    try {
        registry_.GetKeyNames(HKEY_CLASSES_ROOT, "");
        ADD_FAILURE() << "no failure beyond the bound";
    } catch (const TooManyKeyNamesError& error) {
        const Names& before = error.NamesBeforeBound();
        EXPECT_EQ(before.size(), clsRegistry::kMaxKeyNames);
        EXPECT_TRUE(std::is_sorted(before.begin(), before.end(), UpperLess));
    }
}

}  // namespace
}  // namespace quorin
