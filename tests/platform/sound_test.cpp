#include "platform/helpers.h"
#include "platform/posix/posix_sound.h"
#include "support/gtest_qt.h"

#include <QFile>
#include <QTemporaryDir>

namespace tarnwell {
namespace {

/// Players that only write down how they were called, and nothing else on PATH.
class SoundTest : public testing::Test {
protected:
    SoundTest() {
        qputenv("PATH", folder_.path().toLocal8Bit());
        write("ring.wav", "RIFF");
    }
    ~SoundTest() override { qputenv("PATH", path_); }

    QString path(const QString& name) const { return folder_.filePath(name); }

    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }
    void addPlayer(const QString& name, const QByteArray& ending) const {
        write(name, "#!/bin/sh\n"
                    "if read -r word; then echo \"input: $word\" >> \"${0%/*}/calls\"; fi\n"
                    "echo noise; echo noise >&2\n"
                    "echo \"${0##*/} $*\" >> \"${0%/*}/calls\"\n" +
                        ending + '\n');
        EXPECT_TRUE(QFile::setPermissions(path(name), QFile::ReadOwner | QFile::ExeOwner));
    }
    QStringList calls() const {
        QFile file(path("calls"));
        if (!file.open(QFile::ReadOnly))
            return {};
        return QString::fromLocal8Bit(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }
    void expectCalls(const QStringList& players) const {
        QStringList expected;
        for (const QString& player : players)
            expected += player + ' ' + path("ring.wav");
        EXPECT_TRUE(test::pumpUntil([&] { return calls().size() >= expected.size(); }));
        EXPECT_EQ(calls(), expected);
    }
    static void serveEventsFor(int milliseconds) { QtEventPump().pumpFor(milliseconds); }

    const QByteArray path_ = qgetenv("PATH");
    QTemporaryDir folder_;
};

TEST_F(SoundTest, IsPlayedByTheFirstPlayerThatIsThere) {
    addPlayer("pw-play", "exit 0");
    addPlayer("aplay", "exit 0");
    PosixSound sound;
    sound.play(path("ring.wav"));
    serveEventsFor(200);
    expectCalls({"pw-play"});
}

TEST_F(SoundTest, APlayerThatFailsHandsOnToTheNext) {
    addPlayer("pw-play", "exit 1");
    addPlayer("paplay", "kill -9 $$");
    addPlayer("aplay", "exit 0");
    PosixSound sound;
    sound.play(path("ring.wav"));
    expectCalls({"pw-play", "paplay", "aplay"});
}

TEST_F(SoundTest, APlayerThatCannotBeStartedHandsOnToTheNext) {
    write("pw-play", "#!/missing/interpreter\n");
    QFile::setPermissions(path("pw-play"), QFile::ReadOwner | QFile::ExeOwner);
    addPlayer("paplay", "exit 0");
    PosixSound sound;
    sound.play(path("ring.wav"));
    expectCalls({"paplay"});
}

TEST_F(SoundTest, NothingIsWaitedFor) {
    addPlayer("pw-play", "exec /bin/sleep 60");
    PosixSound sound;
    QElapsedTimer sinceStart;
    sinceStart.start();
    sound.play(path("ring.wav"));
    EXPECT_LT(sinceStart.elapsed(), 2000);
    expectCalls({"pw-play"});
}

TEST_F(SoundTest, ANewSoundTakesThePlaceOfTheOneThatStillSounds) {
    addPlayer("pw-play", "echo $$ >> \"${0%/*}/pids\"; exec /bin/sleep 60");
    PosixSound sound;
    const auto firstPlayer = [this] {
        QFile file(path("pids"));
        return file.open(QFile::ReadOnly) ? file.readLine().trimmed() : QByteArray();
    };
    sound.play(path("ring.wav"));
    ASSERT_TRUE(test::pumpUntil([&] { return !firstPlayer().isEmpty(); }));
    sound.play(path("ring.wav"));
    EXPECT_TRUE(test::pumpUntil([&] { return !QFile::exists("/proc/" + firstPlayer()); }));
    expectCalls({"pw-play", "pw-play"});
}

TEST_F(SoundTest, NoPlayerIsSilence) {
    PosixSound sound;
    EXPECT_NO_THROW(sound.play(path("ring.wav")));
    addPlayer("pw-play", "exit 1");
    sound.play(path("ring.wav"));
    expectCalls({"pw-play"});
    serveEventsFor(100);
}

TEST_F(SoundTest, AMissingFileIsSilence) {
    addPlayer("pw-play", "exit 0");
    PosixSound sound;
    sound.play(path("missing.wav"));
    sound.play(QString());
    sound.play(folder_.path());
    serveEventsFor(200);
    expectCalls({});
}

} // namespace
} // namespace tarnwell
