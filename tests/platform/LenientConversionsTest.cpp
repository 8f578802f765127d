#include <gtest/gtest.h>

#include "platform/LenientConversions.h"

namespace quorin {
namespace {

TEST(ConversionsTest, NumbersAndLenientBooleans) {
    EXPECT_EQ(ParseWholeNumber("  42 "), 42);
    EXPECT_EQ(ParseWholeNumber("+7"), 7);
    EXPECT_EQ(ParseWholeNumber("-2147483648"), INT32_MIN);
    for (const char* bad : {"", " ", "abc", "4x", "1.5", "+-1", "2147483648", "- 1"}) {
        EXPECT_EQ(ParseWholeNumber(bad), std::nullopt) << bad;
    }
    for (const char* yes : {"True", "TRUE", " true ", "-1", "2", "0.5"}) {
        EXPECT_EQ(ParseLenientBoolean(yes), true) << yes;
    }
    for (const char* no : {"False", "false", "0", " 0.0", "-0"}) {
        EXPECT_EQ(ParseLenientBoolean(no), false) << no;
    }
    for (const char* bad : {"", "yes", "Truex", "nan", "inf", "1,5"}) {
        EXPECT_EQ(ParseLenientBoolean(bad), std::nullopt) << bad;
    }
}

}  // namespace
}  // namespace quorin
