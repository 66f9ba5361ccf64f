#include "platform/posix/arguments.h"
#include "support/gtest_qt.h"

#include <gtest/gtest.h>

namespace tarnwell {
namespace {

TEST(SplitArguments, BlanksAndTabsPartThem) {
    EXPECT_EQ(splitArguments("a b\tc"), QStringList({"a", "b", "c"}));
    EXPECT_EQ(splitArguments("  a \t  b  \t"), QStringList({"a", "b"}));
}

TEST(SplitArguments, NothingIsNoArgument) {
    EXPECT_EQ(splitArguments(""), QStringList());
    EXPECT_EQ(splitArguments(" \t "), QStringList());
}

TEST(SplitArguments, QuotesGroup) {
    EXPECT_EQ(splitArguments("inject \"My Game\" x"), QStringList({"inject", "My Game", "x"}));
    EXPECT_EQ(splitArguments("\"a\tb\""), QStringList({"a\tb"}));
}

TEST(SplitArguments, TwoQuotesAreAnEmptyArgument) {
    EXPECT_EQ(splitArguments("a \"\" b"), QStringList({"a", "", "b"}));
    EXPECT_EQ(splitArguments("\"\""), QStringList({""}));
    EXPECT_EQ(splitArguments("\"\"\"\""), QStringList({""}));
    EXPECT_EQ(splitArguments("\"\" \"\""), QStringList({"", ""}));
}

TEST(SplitArguments, QuotesMayStandInTheMiddleOfAWord) {
    EXPECT_EQ(splitArguments("a\"b c\"d e"), QStringList({"ab cd", "e"}));
    EXPECT_EQ(splitArguments("a\"\"b"), QStringList({"ab"}));
    EXPECT_EQ(splitArguments("\"a\"\"b\""), QStringList({"ab"}));
}

TEST(SplitArguments, AQuoteThatIsNotClosedReachesToTheEnd) {
    EXPECT_EQ(splitArguments("a \"b c  "), QStringList({"a", "b c  "}));
    EXPECT_EQ(splitArguments("a \""), QStringList({"a", ""}));
}

TEST(SplitArguments, NothingIsEscaped) {
    EXPECT_EQ(splitArguments("\"C:\\dir\\\" b"), QStringList({"C:\\dir\\", "b"}));
    EXPECT_EQ(splitArguments("a\\ b 'c d' $x *"), QStringList({"a\\", "b", "'c", "d'", "$x", "*"}));
}

} // namespace
} // namespace tarnwell
