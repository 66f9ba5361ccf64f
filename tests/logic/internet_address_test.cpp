#include "base/internet_address.h"
#include "support/gtest_qt.h"

#include <gtest/gtest.h>

namespace tarnwell::test {
namespace {

std::optional<quint32> address(const char* text) {
    return parseInternetAddress(QString::fromLatin1(text));
}

TEST(InternetAddress, FourPartsAreFourBytes) {
    EXPECT_EQ(address("192.168.0.10"), 0xC0A8000A);
    EXPECT_EQ(address("0.0.0.0"), 0U);
    EXPECT_EQ(address("255.255.255.255"), 0xFFFFFFFF);
}

TEST(InternetAddress, TheLastPartFillsWhatIsLeft) {
    EXPECT_EQ(address("10.1.513"), 0x0A010201U);
    EXPECT_EQ(address("10.65537"), 0x0A010001U);
    EXPECT_EQ(address("3232235530"), 0xC0A8000A);
}

TEST(InternetAddress, PartsMayBeOctalOrHexadecimal) {
    EXPECT_EQ(address("0300.0250.0.012"), 0xC0A8000A);
    EXPECT_EQ(address("0xC0.0xa8.0X0.0x0A"), 0xC0A8000A);
    EXPECT_EQ(address("0xC0A8000A"), 0xC0A8000A);
    EXPECT_EQ(address("192.168.000.010"), 0xC0A80008) << "the console's own way of writing it is octal here";
}

TEST(InternetAddress, ABlankEndsTheText) {
    EXPECT_EQ(address("192.168.0.10 "), 0xC0A8000A);
    EXPECT_EQ(address("192.168.0.10 and more"), 0xC0A8000A);
    EXPECT_EQ(address("192.168.0.10\t"), 0xC0A8000A);
}

TEST(InternetAddress, APartThatIsTooLargeIsNoAddress) {
    for (const char* text : {"256.1.1.1", "1.256.1.1", "1.1.1.256", "1.1.65536", "1.16777216", "4294967296",
                             "99999999999999999999", "0x100000000"}) {
        EXPECT_EQ(address(text), std::nullopt) << text;
    }
}

TEST(InternetAddress, AnythingElseIsNoAddress) {
    for (const char* text : {"", " ", " 1.2.3.4", "playstation", "ps2.local", "1.2.3.4.5", "1.2.3.", ".1.2.3",
                             "1..2.3", "1.2.3.4x", "-1.2.3.4", "+1.2.3.4", "1.2.3.08", "0x", "0x.1", "0x-1",
                             "1,2,3,4", "::1", "12a.1.1.1"}) {
        EXPECT_EQ(address(text), std::nullopt) << text;
    }
    EXPECT_EQ(parseInternetAddress(QStringLiteral("\u0661.1.1.1")), std::nullopt)
        << "digits of other scripts";
}

} // namespace
} // namespace tarnwell::test
