#include "platform/UniqueHandle.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorin {
namespace {

std::vector<int> closed;

struct FakeTraits {
    using Handle = int;
    static constexpr int None() { return 0; }
    static void Close(int handle) { closed.push_back(handle); }
};
using FakeHandle = UniqueHandle<FakeTraits>;

TEST(UniqueHandle, ClosesExactlyOnceWhateverOwnsItAndNeverOnceReleased) {
    closed.clear();
    {
        FakeHandle a(7);
        FakeHandle b(std::move(a));
        EXPECT_FALSE(a);
        EXPECT_TRUE(b);
        FakeHandle c(9);
        c = std::move(b);  // 9 closes here, 7 moves on
        EXPECT_EQ(closed, std::vector<int>{9});
        EXPECT_EQ(c.get(), 7);
    }
    EXPECT_EQ(closed, (std::vector<int>{9, 7}));

    FakeHandle released(5);
    EXPECT_EQ(released.release(), 5);
    released.reset();
    EXPECT_EQ(closed, (std::vector<int>{9, 7})) << "release hands ownership back";
}

}  // namespace
}  // namespace quorin
