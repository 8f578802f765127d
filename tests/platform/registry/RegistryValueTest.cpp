#include "platform/registry/RegistryValue.h"

#include "platform/Errors.h"

#include <gtest/gtest.h>

namespace quorin {
namespace {

TEST(RegistryValue, ConvertsBetweenTextAndNumbersAndOtherTextIsATypeMismatch) {
    EXPECT_EQ(RegistryValue().AsText(), "");
    EXPECT_EQ(RegistryValue(-2147483647 - 1).AsText(), "-2147483648");
    EXPECT_EQ(RegistryValue().AsNumber(), 0);
    EXPECT_EQ(RegistryValue("  -15 ").AsNumber(), -15);
    EXPECT_EQ(RegistryValue("2147483647").AsNumber(), 2147483647);
    // Which texts are whole numbers is ConversionsTest's; here only that the others throw.
    EXPECT_THROW(RegistryValue("12abc").AsNumber(), TypeMismatchError);
    EXPECT_THROW(RegistryValue("").AsNumber(), TypeMismatchError);
}

}  // namespace
}  // namespace quorin
