#include "ui/dialogs/KnownExtensions.h"

#include "platform/registry/ScratchClasses.h"
#include "ui/dialogs/FileTypeLists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quorin {
namespace {

// A real machine's classes root holds far more names than GetKeyNames lists; the names before
// its bound come in the registry's order, case aside, which puts the "." names first.
TEST(KnownExtensions, ListsTheClassesRootsFileTypesInItsOrderBeyondTheBound) {
    ScratchClasses classes;
    // ".qk": the other tests' scratch types, made beside these, start with ".qz".
    for (const char* name : {".qkb", ".QKA", ".qkc.gz", "QuorinTest.qkd", ".qk*"}) {
        classes.CreateKey(name);
    }
    constexpr int kExtensions = 3000;
    for (int i = 0; i < kExtensions; ++i) {
        classes.CreateKey(".qk" + std::to_string(10000 + i));
    }
    // Named to stand before Wine's own 51-character "Microsoft.DirectMusic..." key, whose name
    // would end the listing before the bound.
    for (int i = 0; i < 8000 - kExtensions; ++i) {
        classes.CreateKey("Class.QuorinTest" + std::to_string(10000 + i));
    }

    const std::vector<std::string> known = KnownExtensions(clsRegistry());
    EXPECT_TRUE(std::all_of(known.begin(), known.end(), IsFileTypeName));
    std::vector<std::string> ours;
    std::copy_if(known.begin(), known.end(), std::back_inserter(ours), [](const std::string& name) {
        return name.rfind(".qk", 0) == 0 || name == ".QKA";
    });
    ASSERT_EQ(ours.size(), size_t{kExtensions + 2});
    EXPECT_TRUE(std::is_sorted(ours.begin(), ours.begin() + kExtensions));
    EXPECT_EQ(ours.front(), ".qk10000");
    EXPECT_EQ(ours[kExtensions - 1], ".qk12999");
    EXPECT_EQ(ours[kExtensions], ".QKA");
    EXPECT_EQ(ours.back(), ".qkb");
}

}  // namespace
}  // namespace quorin
