#include "services/mod_ping.h"
#include "support/fake_ports.h"

#include <gtest/gtest.h>

namespace tarnwell::test {

TEST(PingConsole, SendsOneHelloAndWaitsHalfASecond) {
    FakePing ping;
    ping.reply = {0, 12};
    EXPECT_EQ(PingConsole("192.168.0.10", ping), 12);
    ASSERT_EQ(ping.echoes.size(), 1U);
    EXPECT_EQ(ping.echoes[0].address, 0xC0A8000A);
    EXPECT_EQ(ping.echoes[0].payload, "hello");
    EXPECT_EQ(ping.echoes[0].timeoutMs, 500);
}

TEST(PingConsole, AnAnswerInNoTimeIsAnAnswer) {
    FakePing ping;
    ping.reply = {0, 0};
    EXPECT_EQ(PingConsole("192.168.0.10", ping), 0);
}

TEST(PingConsole, EveryFailureIsUnreachable) {
    for (const int status : {11001, 11002, 11003, 11010, 11050, -1, 4711}) {
        FakePing ping;
        ping.reply = {status, 12};
        EXPECT_EQ(PingConsole("192.168.0.10", ping), -1) << status;
        EXPECT_EQ(ping.echoes.size(), 1U) << "no second try";
    }
}

TEST(PingConsole, NoPacketIsSentToWhatIsNoHost) {
    for (const char* text :
         {"", "0.0.0.0", "0", "255.255.255.255", "0xFFFFFFFF", "playstation", "1.2.3.999"}) {
        FakePing ping;
        EXPECT_EQ(PingConsole(QString::fromLatin1(text), ping), -1) << text;
        EXPECT_TRUE(ping.echoes.empty()) << text;
    }
}

} // namespace tarnwell::test
