#include "platform/registry/RegistryValue.h"

#include "platform/Errors.h"

#include <gtest/gtest.h>

namespace quorin {
namespace {

TEST(RegistryValue, ConvertsBetweenTextAndNumbers) {
    EXPECT_EQ(RegistryValue().AsText(), "");
    EXPECT_EQ(RegistryValue(-2147483647 - 1).AsText(), "-2147483648");
    EXPECT_EQ(RegistryValue().AsNumber(), 0);
    EXPECT_EQ(RegistryValue("  -15 ").AsNumber(), -15);
    EXPECT_EQ(RegistryValue("2147483647").AsNumber(), 2147483647);
}

TEST(RegistryValue, TextThatIsNoWholeNumberIsATypeMismatch) {
    for (const char* text : {"", "  ", "1.5", "12abc", "2147483648", "0x10", "- 3"}) {
        EXPECT_THROW(RegistryValue(text).AsNumber(), TypeMismatchError) << text;
    }
}

}  // namespace
}  // namespace quorin
