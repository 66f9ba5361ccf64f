#include "desktop/background_program.h"
#include "desktop/login_manager.h"
#include "platform/helpers.h"
#include "platform/native.h"
#include "support/gtest_qt.h"

namespace tarnwell::test {

namespace {

constexpr int kNoTimeMs = 2000; // an answer is waited for much longer

class WakeLockTest : public testing::Test {
protected:
    /// Time for an answer that must not have an effect.
    static void letAnswersIn() { QtEventPump().pumpFor(100); }

    std::unique_ptr<WakeLock> lock = native::makeWakeLock();
};

class WithLoginManager : public WakeLockTest {
protected:
    void holdAndWait() {
        lock->hold("Work is under way");
        EXPECT_TRUE(pumpUntil([this] { return manager.held() == 1; }));
    }
    bool letGo() {
        return pumpUntil([this] { return manager.held() == 0; });
    }

    LoginManager manager{qgetenv("DBUS_SYSTEM_BUS_ADDRESS")};
};

} // namespace

TEST_F(WithLoginManager, IsAskedForALockAgainstFallingAsleepByItself) {
    holdAndWait();
    ASSERT_EQ(manager.requests.size(), 1U);
    EXPECT_EQ(manager.requests[0], QVariantList({"idle", "Tarnwell GUI", "Work is under way", "block"}));
    letAnswersIn();
    EXPECT_EQ(manager.held(), 1);
}

TEST_F(WithLoginManager, GetsItsLockBackOnRelease) {
    holdAndWait();
    lock->release();
    EXPECT_TRUE(letGo());
}

TEST_F(WithLoginManager, GetsItsLockBackFromAnOwnerThatIsGone) {
    holdAndWait();
    lock.reset();
    EXPECT_TRUE(letGo());
}

TEST_F(WithLoginManager, IsAskedOnceHoweverOftenTheLockIsHeld) {
    lock->hold("first");
    lock->hold("second");
    EXPECT_TRUE(pumpUntil([this] { return manager.held() == 1; }));
    lock->hold("third");
    letAnswersIn();
    EXPECT_EQ(manager.requests.size(), 1U);
    lock->release();
    EXPECT_TRUE(letGo());
}

TEST_F(WithLoginManager, IsAskedAgainAfterARelease) {
    holdAndWait();
    lock->release();
    EXPECT_TRUE(letGo());
    holdAndWait();
    EXPECT_EQ(manager.requests.size(), 2U);
}

TEST_F(WithLoginManager, AnswersTooLateAndGetsItsLockBackAtOnce) {
    manager.answers = LoginManager::Answer::WhenTold;
    lock->hold("Work is under way");
    ASSERT_TRUE(pumpUntil([this] { return !manager.requests.empty(); }));
    lock->release();
    manager.answerNow();
    EXPECT_TRUE(letGo());
}

TEST_F(WithLoginManager, AnswersTooLateForTheFirstRunButNotForTheSecond) {
    manager.answers = LoginManager::Answer::WhenTold;
    lock->hold("first run");
    ASSERT_TRUE(pumpUntil([this] { return !manager.requests.empty(); }));
    lock->release();
    manager.answers = LoginManager::Answer::AtOnce;
    holdAndWait();
    manager.answerNow();
    letAnswersIn();
    EXPECT_EQ(manager.held(), 1);
}

TEST_F(WithLoginManager, MayRefuse) {
    manager.answers = LoginManager::Answer::Refusal;
    lock->hold("Work is under way");
    ASSERT_TRUE(pumpUntil([this] { return !manager.requests.empty(); }));
    letAnswersIn();
    EXPECT_EQ(manager.held(), 0);
    lock->release();
}

TEST_F(WithLoginManager, IsNotWaitedFor) {
    manager.answers = LoginManager::Answer::WhenTold;
    QElapsedTimer sinceStart;
    sinceStart.start();
    lock->hold("Work is under way");
    lock->release();
    EXPECT_LT(sinceStart.elapsed(), kNoTimeMs);
}

TEST_F(WakeLockTest, WithoutALoginManagerNothingHappens) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    lock->hold("Work is under way");
    EXPECT_LT(sinceStart.elapsed(), kNoTimeMs);
    letAnswersIn();
    lock->release();
    lock->hold("again");
    lock.reset();
}

/// In a program of its own, since a program knows one such bus for all its life.
TEST(WakeLockWithoutABus, NothingHappensAndNothingIsWaitedFor) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere");
    BackgroundProgram program(builtProgram("desktop_helper"), {"wake-lock"}, environment);
    EXPECT_LT(program.line().toInt(), kNoTimeMs);
}

} // namespace tarnwell::test
