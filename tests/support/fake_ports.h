#pragma once

#include "platform/ports.h"

#include <QDir>
#include <QHash>
#include <QTemporaryDir>

#include <deque>
#include <map>
#include <vector>

/// Ports that do nothing outside the test: time passes only while somebody waits, and everything is
/// remembered.
namespace tarnwell::test {

/// What the program did through several ports, in the order of time: "run " and a command line, "balloon "
/// and its text, "tip " and its first line, "listen", "close", "shut down", "stand by".
using Journal = QStringList;

class FakeClock : public Clock {
public:
    qint64 now = 1000;                   ///< milliseconds
    double secondsAtZero = 12 * 60 * 60; ///< time of day when `now` was 0

    qint32 tickCount() const override { return static_cast<qint32>(now); }
    double secondsSinceMidnight() const override;
};

class FakeEventPump : public EventPump {
public:
    explicit FakeEventPump(FakeClock& clock) : clock_(clock) {}

    /// Something that happens when the program next lets events in.
    void queue(std::function<void()> event) { after(0, std::move(event)); }
    /// Something that happens when this much time has passed.
    void after(int milliseconds, std::function<void()> event);

    void pump() override;
    void pumpFor(int milliseconds) override;
    void waitForEvent(int milliseconds) override;
    void end() override;
    bool ended() const override { return ended_; }

    std::function<void()> whileWaiting; ///< what happens at every wait of the program
    std::function<void()> whenEnded;    ///< told when the end of the program is asked for

    void throwIfEnded() const;
    int pumps = 0; ///< calls of all kinds so far; a program that waits for ever is stopped

private:
    void countCall();
    void serveUntil(qint64 time, bool onlyOne);

    FakeClock& clock_;
    std::multimap<qint64, std::function<void()>> events_; ///< by the time at which they are due
    bool ended_ = false;
};

/// What a started program prints, and when: milliseconds since its start.
struct ChildScript {
    struct Output {
        QByteArray bytes;
        int atMs = 0;
    };
    std::vector<Output> output{};
    int endsAtMs = 30;
    bool hearsInterrupt = true; ///< false: it cannot be delivered
    bool heedsInterrupt = true;
    QByteArray farewell{"Interrupted.\r\n"}; ///< printed on an interrupt that it heeds
    int farewellTakesMs = 0;
};

/// A started program, as the test sees it; lives on when the program under test has let go of it.
struct FakeChild {
    QString commandLine;
    qint64 processId = 0;
    ChildScript script;
    qint64 startedAt = 0;
    int interrupts = 0;
    bool endedByForce = false;
    QByteArray written{};

    bool runningAt(qint64 now) const { return now - startedAt < script.endsAtMs; }
};

class FakeProcessLauncher : public ProcessLauncher {
public:
    FakeProcessLauncher(FakeClock& clock, Journal& journal) : clock_(clock), journal_(journal) {}

    /// What a program does is decided by its command line; nothing: it cannot be started.
    std::function<std::optional<ChildScript>(const QString& commandLine)> script =
        [this](const QString& line) { return answerTo(line); };
    /// The answer to every command line that holds `part`; the latest that fits counts. All other programs
    /// print nothing and end.
    void on(const QString& part, const ChildScript& answer) { answers_.push_front({part, answer}); }
    void on(const QString& part, const QByteArray& output) { on(part, ChildScript{.output = {{output}}}); }

    QString whyNot = "Access is denied."; ///< what is said of programs that cannot be started
    std::vector<std::shared_ptr<FakeChild>> children;
    QStringList commandLines() const;
    QString lastCommandLine() const { return children.empty() ? QString() : children.back()->commandLine; }

    std::unique_ptr<ChildProcess> start(const QString& commandLine, QString& reason) override;

private:
    ChildScript answerTo(const QString& commandLine) const;

    FakeClock& clock_;
    Journal& journal_;
    std::deque<std::pair<QString, ChildScript>> answers_;
};

class FakeProcesses : public Processes {
public:
    FakeProcesses(const FakeProcessLauncher& launcher, const FakeClock& clock)
        : launcher_(launcher), clock_(clock) {}

    bool canBeClosed = true;
    std::vector<qint64> closeRequests;

    bool requestClose(qint64 processId) override;
    bool exists(qint64 processId) const override;

private:
    const FakeProcessLauncher& launcher_;
    const FakeClock& clock_;
};

class FakeDialogs : public Dialogs {
public:
    struct Message {
        QString text;
        MessageIcon icon;
        QString title;
    };

    explicit FakeDialogs(const FakeEventPump& pump) : pump_(pump) {}

    struct Input {
        QString prompt, title, text;
    };
    std::vector<Message> messages;
    QStringList questions;
    Message lastQuestion{};
    bool questionAnswer = true; ///< whether the user says Yes
    std::vector<Input> inputs;
    std::deque<std::optional<QString>> inputAnswers; ///< used up one by one; then the user cancels
    std::vector<OpenFileRequest> openFileRequests;
    std::deque<std::optional<QString>> openFileAnswers; ///< used up one by one; then the user cancels
    std::vector<SaveFileRequest> saveFileRequests;
    std::deque<std::optional<QString>> saveFileAnswers; ///< used up one by one; then the user cancels
    std::vector<ChooseFolderRequest> chooseFolderRequests;
    std::deque<std::optional<QString>> chooseFolderAnswers;     ///< used up one by one; then the user cancels
    std::vector<ui::Font> chooseFontRequests;                   ///< the fonts that the dialog started at
    std::deque<std::optional<ui::Font>> chooseFontAnswers;      ///< used up one by one; then the user cancels
    std::vector<std::int32_t> chooseColorRequests;              ///< the colours that the dialog started at
    std::deque<std::optional<std::int32_t>> chooseColorAnswers; ///< used up one by one; then the user cancels
    struct Progress {
        QString title, text;
        int done, steps;
    };
    std::vector<Progress> progressSteps;  ///< all that the progress boxes showed
    std::function<void()> cancelProgress; ///< the user's Cancel, as long as such a box is up
    std::function<void()> whileOpen;      ///< what happens while a box is open

    QStringList messageTexts() const;

    void message(const QString& text, MessageIcon icon, const QString& title) override;
    bool question(const QString& text, const QString& title, MessageIcon icon) override;
    std::optional<QString> input(const QString& prompt, const QString& title, const QString& text) override;
    std::optional<QString> openFile(const OpenFileRequest& request) override;
    std::optional<QString> saveFile(const SaveFileRequest& request) override;
    std::optional<QString> chooseFolder(const ChooseFolderRequest& request) override;
    std::optional<ui::Font> chooseFont(const ui::Font& current) override;
    std::optional<std::int32_t> chooseColor(std::int32_t current) override;
    std::unique_ptr<ProgressBox> progress(const QString& title, std::function<void()> cancel) override;

private:
    void waitForUser() const;

    const FakeEventPump& pump_;
};

class FakeTray : public Tray {
public:
    struct Balloon {
        QString title;
        QString text;
    };

    explicit FakeTray(Journal& journal) : journal_(journal) {}

    bool shown = false;
    QStringList tips; ///< all that were set, the one of `add` included
    std::vector<Balloon> balloons;

    QString tip() const { return tips.isEmpty() ? QString() : tips.last(); }

    bool available() const override { return true; }
    void add(const QString& tip) override;
    void setTip(const QString& tip) override;
    void showBalloon(const QString& title, const QString& text) override;
    void remove() override { shown = false; }

private:
    Journal& journal_;
};

class FakeSound : public Sound {
public:
    QStringList played;

    void play(const QString& path) override { played += path; }
};

class FakePower : public Power {
public:
    explicit FakePower(Journal& journal) : journal_(journal) {}

    int shutDowns = 0;
    int standBys = 0;

    void shutDown() override;
    void standBy() override;

private:
    Journal& journal_;
};

class FakePing : public Ping {
public:
    struct Echo {
        quint32 address;
        QByteArray payload;
        int timeoutMs;
    };

    static constexpr int kTimedOut = 11010;
    Reply reply{.status = 0, .roundTripMs = 1}; ///< of every address that `replies` does not name
    std::map<quint32, Reply> replies;
    std::vector<Echo> echoes;

    Reply sendEcho(quint32 address, const QByteArray& payload, int timeoutMs) override;
};

class FakeHttpListener : public HttpListener {
public:
    explicit FakeHttpListener(Journal& journal) : journal_(journal) {}

    bool portIsFree = true;
    std::optional<quint16> port; ///< while it listens
    QByteArrayList sent;

    bool listen(quint16 wanted) override;
    void close() override;
    void send(const QByteArray& bytes) override { sent.append(bytes); }

    /// A client sends this; heard while somebody listens.
    void request(const QByteArray& bytes) const;

private:
    Journal& journal_;
};

class FakeUrlOpener : public UrlOpener {
public:
    QStringList opened;

    void open(const QString& url) override { opened.append(url); }
};

class FakeWakeLock : public WakeLock {
public:
    bool held = false;
    QStringList reasons; ///< of all that were asked for

    void hold(const QString& reason) override;
    void release() override { held = false; }
};

class FakeDesktopSession : public DesktopSession {
public:
    bool heldUp = false;
    QStringList reasons; ///< of all that were given

    void holdUp(const QString& reason) override;
    void release() override { heldUp = false; }
};

class FakeTaskbarProgress : public TaskbarProgress {
public:
    std::optional<int> percent; ///< while it is shown

    void show(int value) override { percent = value; }
    void clear() override { percent.reset(); }
};

class FakeSystemFolders : public SystemFolders {
    const QTemporaryDir temporary_;

public:
    /// At first a temporary folder that goes with the test.
    QString folder = QDir::toNativeSeparators(temporary_.path());

    QString data =
        folder + QDir::separator() + "data"; ///< the user's folder for settings; at first there and empty
    std::optional<WindowsProfile> profile;
    QHash<QString, QString> namesInCodePage; ///< of the paths that need another; an empty one is none

    FakeSystemFolders() { QDir().mkpath(data); }

    QString programFolder() const override { return folder; }
    QString applicationData() const override { return data; }
    std::optional<WindowsProfile> windowsProfile() const override { return profile; }
    QString pathInCodePage(const QString& path) const override { return namesInCodePage.value(path, path); }
    QString commandInterpreter() const override { return QStringLiteral("C:\\WINDOWS\\system32\\cmd.exe"); }
};

class FakeWindowManager : public WindowManager {
public:
    Size screen{.width = 1280 * 15, .height = 1024 * 15};

    Size screenSize() const override { return screen; }
};

/// One of each; hands out the bundle that the program takes.
struct FakePorts {
    Journal journal;
    FakeClock clock;
    FakeEventPump pump{clock};
    FakeProcessLauncher launcher{clock, journal};
    FakeProcesses processes{launcher, clock};
    FakeDialogs dialogs{pump};
    FakeTray tray{journal};
    FakeSound sound;
    FakePower power{journal};
    FakePing ping;
    FakeHttpListener listener{journal};
    FakeUrlOpener browser;
    FakeWakeLock wakeLock;
    FakeDesktopSession session;
    FakeTaskbarProgress taskbar;
    FakeSystemFolders folders;
    FakeWindowManager windows;

    Ports ports() {
        return {pump, clock,    launcher, processes, dialogs, tray,    sound,   power,
                ping, listener, browser,  wakeLock,  session, taskbar, folders, windows};
    }
};

} // namespace tarnwell::test
