#include "base/fault.h"
#include "base/text_primitives.h"
#include "support/gtest_qt.h"

#include <gtest/gtest.h>

namespace tarnwell {
namespace {

TEST(Val, ReadsTheNumberAtTheStart) {
    EXPECT_EQ(Val("114473MB"), 114473);
    EXPECT_EQ(Val("12.5%"), 12.5);
    EXPECT_EQ(Val(".68"), .68);
    EXPECT_EQ(Val("-3"), -3);
    EXPECT_EQ(Val("+3"), 3);
    EXPECT_EQ(Val("1.2.3"), 1.2);
    EXPECT_EQ(Val("1-2"), 1);
    EXPECT_EQ(Val("1+2"), 1);
    EXPECT_EQ(Val("1e2+3"), 100);
}

TEST(Val, ReadsExponentsOfBothLetters) {
    EXPECT_EQ(Val("1e2"), 100);
    EXPECT_EQ(Val("1D+2"), 100);
    EXPECT_EQ(Val("15e-1"), 1.5);
    EXPECT_EQ(Val("5DVD"), 5);
    EXPECT_EQ(Val("1e"), 1);
}

TEST(Val, SkipsBlanksTabsAndLineFeedsWhereverTheyStand) {
    EXPECT_EQ(Val(" \t\n 4482 MB"), 4482);
    EXPECT_EQ(Val("1 000"), 1000);
    EXPECT_EQ(Val("\r45"), 0);
}

TEST(Val, IsZeroWithoutANumber) {
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("MB"), 0);
    EXPECT_EQ(Val("-"), 0);
    EXPECT_EQ(Val("e5"), 0);
    EXPECT_EQ(Val("."), 0);
    EXPECT_EQ(Val("1e999"), 0);
    EXPECT_EQ(Val(QString::fromUtf8("\u0663")), 0);
}

TEST(Rounding, TakesHalvesToTheEvenNeighbour) {
    EXPECT_EQ(RoundToInt16(0.5), 0);
    EXPECT_EQ(RoundToInt16(1.5), 2);
    EXPECT_EQ(RoundToInt16(-2.5), -2);
    EXPECT_EQ(RoundToInt32(2.4999), 2);
    EXPECT_EQ(RoundToInt32(2147483646.5), 2147483646);
}

TEST(Rounding, RefusesWhatDoesNotFit) {
    EXPECT_EQ(RoundToInt16(32767.4), 32767);
    EXPECT_THROW(RoundToInt16(32767.5), Fault);
    EXPECT_THROW(RoundToInt16(-32769), Fault);
    EXPECT_THROW(RoundToInt32(2147483648.0), Fault);
    EXPECT_THROW(RoundToInt32(std::numeric_limits<double>::quiet_NaN()), Fault);
}

TEST(FormatNumber, ShowsALeadingZeroOnlyWhereThePatternHasOne) {
    EXPECT_EQ(FormatNumber(0.68, "#.00"), ".68");
    EXPECT_EQ(FormatNumber(0.68, "0.00"), "0.68");
    EXPECT_EQ(FormatNumber(0, "#.0"), ".0");
    EXPECT_EQ(FormatNumber(0, "0.00"), "0.00");
    EXPECT_EQ(FormatNumber(111.79, "#.0"), "111.8");
}

TEST(FormatNumber, RoundsHalvesOfTheDecimalTextAwayFromZero) {
    EXPECT_EQ(FormatNumber(0.25, "#.0"), ".3");
    EXPECT_EQ(FormatNumber(2.675, "0.00"), "2.68");
    EXPECT_EQ(FormatNumber(-0.25, "#.0"), "-.3");
    EXPECT_EQ(FormatNumber(9.995, "0.00"), "10.00");
    EXPECT_EQ(FormatNumber(0.05, "#.0"), ".1");
    EXPECT_EQ(FormatNumber(0.049, "#.0"), ".0");
    EXPECT_EQ(FormatNumber(0.5, "00"), "01");
}

TEST(FormatNumber, HasNoSignOnAResultOfZero) {
    EXPECT_EQ(FormatNumber(-0.001, "0.00"), "0.00");
}

TEST(FormatNumber, FillsWholeNumbersWithZeros) {
    EXPECT_EQ(FormatNumber(7, "00"), "07");
    EXPECT_EQ(FormatNumber(123, "00"), "123");
    EXPECT_EQ(FormatNumber(7, "00#"), "007");
    EXPECT_EQ(FormatNumber(7, "#"), "7");
    EXPECT_EQ(FormatNumber(1e17, "00"), "100000000000000000");
}

TEST(DecimalText, HasAsMuchFractionAsTheNumber) {
    EXPECT_EQ(DecimalText(4095), "4095");
    EXPECT_EQ(DecimalText(-12), "-12");
    EXPECT_EQ(DecimalText(4194305 / 1024.0), "4096.0009765625");
    EXPECT_EQ(DecimalText(0.1 + 0.2), "0.3");
}

TEST(Searching, CountsFromOneAndGivesZeroForNothing) {
    EXPECT_EQ(InStr("a,b,c", ","), 2);
    EXPECT_EQ(InStr("a,b,c", ",", 3), 4);
    EXPECT_EQ(InStr("a,b,c", ",", 9), 0);
    EXPECT_EQ(InStr("abc", "B"), 0);
    EXPECT_EQ(InStrRev("a,b,c", ",", 5), 4);
    EXPECT_EQ(InStrRev("a,b,c", ",", 3), 2);
    EXPECT_EQ(InStrRev("a,b,c", ",", 1), 0);
    EXPECT_THROW(InStr("a", "a", 0), Fault);
    EXPECT_THROW(InStrRev("a", "a", 0), Fault);
}

TEST(Cutting, TakesWhatIsThere) {
    EXPECT_EQ(Mid("abcdef", 2, 3), "bcd");
    EXPECT_EQ(Mid("abcdef", 5, 30), "ef");
    EXPECT_EQ(Mid("abcdef", 9), "");
    EXPECT_EQ(Mid("abcdef", 6), "f");
    EXPECT_THROW(Mid("abc", 0, 1), Fault);
    EXPECT_THROW(Mid("abc", 1, -1), Fault);
}

TEST(Trimming, TakesOffBlanksAlone) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(LTrim("  a "), "a ");
    EXPECT_EQ(RTrim("  a "), "  a");
    EXPECT_EQ(Trim("\ta\r"), "\ta\r");
    EXPECT_EQ(Trim("   "), "");
}

TEST(ElementAt, RefusesWhatIsNotThere) {
    EXPECT_EQ(ElementAt({"a", "b"}, 1), "b");
    EXPECT_THROW(ElementAt({"a"}, 1), Fault);
    EXPECT_THROW(ElementAt({"a"}, -1), Fault);
}

} // namespace
} // namespace tarnwell
