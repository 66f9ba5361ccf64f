#include "desktop/login_manager.h"
#include "platform/helpers.h"
#include "platform/native.h"
#include "support/gtest_qt.h"

#include <QEvent>

#include <csignal>

namespace tarnwell::test {

namespace {

class Session : public testing::Test {
protected:
    Session() {
        session->ending = [this] { ++ends; };
    }

    /// Time for news that must not have an effect.
    static void letNewsIn() { QtEventPump().pumpFor(100); }
    void holdUp() {
        session->holdUp("Work is under way");
        EXPECT_TRUE(pumpUntil([this] { return manager.held() == 2; }));
    }

    LoginManager manager{qgetenv("DBUS_SYSTEM_BUS_ADDRESS")};
    std::unique_ptr<DesktopSession> session = native::makeDesktopSession();
    int ends = 0;
};

} // namespace

TEST_F(Session, TheLoginManagerIsAskedNotToShutDownAndForSomeSecondsIfItMust) {
    holdUp();
    const QString name = "Tarnwell GUI", reason = "Work is under way";
    EXPECT_EQ(manager.requests, std::vector<QVariantList>({{"shutdown", name, reason, "block"},
                                                           {"shutdown", name, reason, "delay"}}));
    session->holdUp("again");
    letNewsIn();
    EXPECT_EQ(manager.requests.size(), 2U) << "it was asked already";
}

TEST_F(Session, TheLoginManagerGetsItsLocksBackOnReleaseAndIsAskedAnewForTheNextWork) {
    holdUp();
    session->release();
    EXPECT_TRUE(pumpUntil([this] { return manager.held() == 0; }));
    holdUp();
    EXPECT_EQ(manager.requests.size(), 4U);
}

TEST_F(Session, AShutdownThatComesAllTheSameIsTold) {
    holdUp();
    manager.prepareForShutdown(true);
    EXPECT_TRUE(pumpUntil([this] { return ends == 1; }));
}

TEST_F(Session, AShutdownThatWasCalledOffIsNotTold) {
    holdUp();
    manager.prepareForShutdown(false);
    letNewsIn();
    EXPECT_EQ(ends, 0);
}

TEST_F(Session, AfterTheWorkTheProgramIsEndedAsAnyOther) {
    holdUp();
    session->release();
    manager.prepareForShutdown(true);
    letNewsIn();
    EXPECT_EQ(ends, 0);
}

TEST_F(Session, ASignalToEndIsTold) {
    for (const int signal : {SIGTERM, SIGHUP}) {
        ends = 0;
        ::raise(signal);
        EXPECT_TRUE(pumpUntil([this] { return ends == 1; })) << signal;
    }
}

TEST_F(Session, ASecondSignalEndsAProgramThatHangs) {
    EXPECT_EXIT(
        {
            ::raise(SIGTERM);
            ::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

TEST_F(Session, ASessionManagersLastWordIsTold) {
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &quit);
    EXPECT_EQ(ends, 1);
}

} // namespace tarnwell::test
