#include <gtest/gtest.h>

#include "platform/LenientConversions.h"

#include <cmath>
#include <string>

namespace quorin {
namespace {

using namespace std::string_literals;

TEST(ConversionsTest, NumbersAndLenientBooleans) {
    EXPECT_EQ(ParseWholeNumber("  42 "), 42);
    EXPECT_EQ(ParseWholeNumber("+7"), 7);
    EXPECT_EQ(ParseWholeNumber("-2147483648"), INT32_MIN);
    for (const std::string& bad : {""s, " "s, "abc"s, "4x"s, "1.5"s, "+-1"s, "2147483648"s, "- 1"s,
                                   "1e3"s, "0x10"s, "4 2"s, "--1"s, "\xE9"s, "4\0"s}) {
        EXPECT_EQ(ParseWholeNumber(bad), std::nullopt) << bad;
    }
    for (const char* yes : {"True", "TRUE", " true ", "-1", "2", "0.5", "99999999999"}) {
        EXPECT_EQ(ParseLenientBoolean(yes), true) << yes;
    }
    for (const char* no : {"False", "false", "0", " 0.0", "-0"}) {
        EXPECT_EQ(ParseLenientBoolean(no), false) << no;
    }
    for (const char* bad : {"", "yes", "Tru", "Truex", "nan", "inf", "1e999", "1,5"}) {
        EXPECT_EQ(ParseLenientBoolean(bad), std::nullopt) << bad;
    }
}

TEST(ConversionsTest, DecimalNumbersTakeTheWholeNumbersFormAndAFraction) {
    for (const auto& [text, expected] : {std::pair{" 2.5 ", 2.5},
                                         {"+7", 7.0},
                                         {"-3", -3.0},
                                         {".5", 0.5},
                                         {"5.", 5.0},
                                         {"\t1.50\t", 1.5}}) {
        EXPECT_EQ(ParseDecimalNumber(text), expected) << text;
    }
    for (const char* bad :
         {"", ".", "-", "abc", "1.2.3", "1e3", "&H10", "0x10", "1,5", "- 1", "inf", "nan", "2 5"}) {
        EXPECT_EQ(ParseDecimalNumber(bad), std::nullopt) << bad;
    }
    EXPECT_EQ(ParseDecimalNumber("9" + std::string(400, '0')), HUGE_VAL);
    EXPECT_EQ(ParseDecimalNumber("-9" + std::string(400, '0')), -HUGE_VAL);
    EXPECT_EQ(ParseDecimalNumber("0." + std::string(400, '0') + "1"), 0.0);
}

TEST(ConversionsTest, RoundingGoesToTheNearestAndHalvesToEvenAlsoWhenParsed) {
    for (const auto& [value, expected] : {std::pair{2.5, 2},
                                          {3.5, 4},
                                          {1.5, 2},
                                          {0.5, 0},
                                          {-2.5, -2},
                                          {-3.5, -4},
                                          {2.4999, 2},
                                          {2.5001, 3},
                                          {-0.4, 0},
                                          {2147483647.4, INT32_MAX},
                                          {-2147483648.5, INT32_MIN}}) {
        EXPECT_EQ(RoundToWholeNumber(value), expected) << value;
    }
    for (const double tooLarge :
         {2147483647.5, 2147483648.0, -2147483649.0, HUGE_VAL, double{NAN}}) {
        EXPECT_EQ(RoundToWholeNumber(tooLarge), std::nullopt) << tooLarge;
    }
    EXPECT_EQ(ParseRoundedNumber(" 1234.5 "), 1234);
    EXPECT_EQ(ParseRoundedNumber("-90.7"), -91);
    for (const char* bad : {"", "left", "12px", "3e3", "99999999999"}) {
        EXPECT_EQ(ParseRoundedNumber(bad), std::nullopt) << bad;
    }
}

}  // namespace
}  // namespace quorin
