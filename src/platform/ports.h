#pragma once

#include "ui/control.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

/// The program's doors to the outside world, one class a concern. The logic knows only these; real ones stand
/// under platform/qt, platform/posix and platform/windows, and the tests bring their own.
///
/// All calls are made on the one thread of the window events. The composition root owns the ports and keeps
/// them until the program has ended.
namespace tarnwell {

/// Thrown by every port call that waits, on its return, once the end of the program was asked for: no later
/// line of an interrupted handler may run. Only the dispatcher of events catches it.
struct ProgramEnded {};

/// Lets windows, tray, sockets and timers live while a handler waits. Any event may be served inside these
/// calls.
class EventPump {
public:
    virtual ~EventPump() = default;
    /// How often those who wait for something that raises no event look for it.
    static constexpr int kLookAgainMilliseconds = 30;
    /// Serves what is pending and returns.
    virtual void pump() = 0;
    /// Serves events as they come, asleep in between, until `milliseconds` have gone by.
    virtual void pumpFor(int milliseconds) = 0;
    /// Sleeps until an event comes and serves it; gives up after `milliseconds`.
    virtual void waitForEvent(int milliseconds) = 0;
    /// Asks the program to end, and returns. Every waiting call that is under way or still to come throws
    /// ProgramEnded.
    virtual void end() = 0;
    virtual bool ended() const = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    /// Milliseconds since some moment before the start of the program; wraps round.
    virtual qint32 tickCount() const = 0;
    /// Local time of day.
    virtual double secondsSinceMidnight() const = 0;
};

/// A console program that was started hidden with pipes on its standard streams. Destroying this object
/// neither ends the program nor waits for it; what the program still prints is then lost.
class ChildProcess {
public:
    virtual ~ChildProcess() = default;
    /// Whether the process lives. It may have printed more than was read so far either way.
    virtual bool running() = 0;
    /// Takes what has arrived of its standard output and standard error, in the order of arrival, at most
    /// `maximum` bytes; empty if nothing waits. Never blocks.
    virtual QByteArray read(qsizetype maximum) = 0;
    /// Writes to its standard input. Returns the number of bytes taken, -1 on failure.
    virtual qint64 write(const QByteArray& bytes) = 0;
    virtual qint64 processId() const = 0;
    /// Sends the interrupt that Ctrl+C at its console would send. Returns at once; the program may live on
    /// for as long as it likes. False if the interrupt could not be sent; it may be tried again.
    virtual bool interrupt() = 0;
    /// Ends the process at once, wherever it is. Does nothing when it has gone.
    virtual void endByForce() = 0;
};

class ProcessLauncher {
public:
    virtual ~ProcessLauncher() = default;
    /// Starts a command line: the program's path, which may hold blanks and is not quoted, a blank, the
    /// arguments. The program is the longest beginning, up to a blank, that names a file, and nothing else is
    /// started in its place; a path that ends in a blank or a dot, or that steps back (..), names none. On
    /// Windows the rest goes to the program as it is. Elsewhere it is split as a Windows program would split
    /// it: double quotes group, two of them are an empty argument, nothing is escaped. Null if the program
    /// cannot be started; `whyNot` then tells the user why, in the system's own words.
    virtual std::unique_ptr<ChildProcess> start(const QString& commandLine, QString& whyNot) = 0;
};

/// Other processes of this machine, by their id.
class Processes {
public:
    virtual ~Processes() = default;
    /// Asks a process to end as closing its window would. False if there is nothing that can be asked.
    virtual bool requestClose(qint64 processId) = 0;
    virtual bool exists(qint64 processId) const = 0;
};

enum class MessageIcon { Exclamation, Question, Stop };

/// What the open dialog offers: the filter is a list of "words|pattern|" pairs.
struct OpenFileRequest {
    QString title{}; ///< empty: the platform's own
    QString filter{};
    QString folder{};    ///< empty: where a file of the filter's first kind was picked last in this run
    QString extension{}; ///< goes behind a name that is typed without one and names no file as it is
    bool mustExist = false;
};

/// What the save dialog offers.
struct SaveFileRequest {
    QString title{}; ///< empty: the platform's own
    QString filter{};
    QString folder{};    ///< empty: where a file of the filter's first kind was picked last in this run
    QString fileName{};  ///< what stands in the dialog at first
    QString extension{}; ///< goes behind a name that is typed without one; "iso" and "*.iso" are the same
    bool askBeforeOverwriting = false;
};

/// What the folder dialog offers.
struct ChooseFolderRequest {
    QString title{};
    QString folder{}; ///< where it starts; empty: the folder that was picked last in this run
};

/// A box that shows how far a thing of many steps has come. It is up for as long as it lives, and meanwhile
/// no other window of the program can be used.
class ProgressBox {
public:
    virtual ~ProgressBox() = default;
    /// `text` is what is under way now. Nobody knows how long it takes if there are 0 steps.
    virtual void show(const QString& text, int done, int steps) = 0;
};

/// Boxes that wait for the user, with the program's title. All of them pump events while they are open.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    /// A plain text with one OK button.
    virtual void message(const QString& text, MessageIcon icon, const QString& title) = 0;
    /// A plain text with the buttons Yes and No. Whether the answer was Yes; closing the box is a No.
    virtual bool question(const QString& text, const QString& title,
                          MessageIcon icon = MessageIcon::Exclamation) = 0;
    /// A line for the user to write, filled with `text`. What stands in it on OK; nothing on Cancel.
    virtual std::optional<QString> input(const QString& prompt, const QString& title,
                                         const QString& text) = 0;
    /// The chosen path in the platform's own form; nothing if the user cancelled.
    virtual std::optional<QString> openFile(const OpenFileRequest& request) = 0;
    /// The same; nothing is written.
    virtual std::optional<QString> saveFile(const SaveFileRequest& request) = 0;
    /// The chosen folder in the platform's own form, without a separator at its end unless it is a root;
    /// nothing if the user cancelled.
    virtual std::optional<QString> chooseFolder(const ChooseFolderRequest& request) = 0;
    /// Starts at `current`, as far as that font is there; nothing if the user cancelled.
    virtual std::optional<ui::Font> chooseFont(const ui::Font& current) = 0;
    /// Starts at `current`, which may be a system colour; the answer is 0x00BBGGRR, nothing if the user
    /// cancelled.
    virtual std::optional<std::int32_t> chooseColor(std::int32_t current) = 0;
    /// Returns at once. `cancel` is called each time the user asks for an early end; the box stays.
    virtual std::unique_ptr<ProgressBox> progress(const QString& title, std::function<void()> cancel) = 0;
};

/// The program's one icon in the system tray. On a desktop without a tray every call does nothing.
class Tray {
public:
    virtual ~Tray() = default;
    virtual bool available() const = 0;
    virtual void add(const QString& tip) = 0;
    virtual void setTip(const QString& tip) = 0;
    virtual void showBalloon(const QString& title, const QString& text) = 0;
    virtual void remove() = 0;
    /// What the user does to the icon; attached by the program before `add`.
    std::function<void()> doubleClicked;
    std::function<void()> rightClicked;
};

class Sound {
public:
    virtual ~Sound() = default;
    /// Starts a wave file in place of what still sounds, and returns at once. Silent if it cannot be played.
    virtual void play(const QString& path) = 0;
};

class Power {
public:
    virtual ~Power() = default;
    /// Both start the system's own command without a wait and without a window; a refusal goes unnoticed.
    virtual void shutDown() = 0;
    virtual void standBy() = 0;
};

/// One ICMP echo.
class Ping {
public:
    struct Reply {
        int status = -1;     ///< 0 for success, else the code of the failure
        int roundTripMs = 0; ///< meaningful with status 0; may be 0
    };
    virtual ~Ping() = default;
    /// Sends one packet to an IPv4 address (in host byte order) and waits for its reply without pumping
    /// events.
    virtual Reply sendEcho(quint32 address, const QByteArray& payload, int timeoutMs) = 0;
};

/// A TCP server with one client at a time: whoever connects takes the place of the one before, whose
/// connection stays open unheard until that side closes it. Browsers connect in reserve before they send the
/// request on their first connection: so who had not sent anything yet is still heard once. Only of hundreds
/// of connections the oldest are closed, lest clients use up what the machine has of them.
class HttpListener {
public:
    virtual ~HttpListener() = default;
    /// Listens on a port of all addresses of this machine. False if the port cannot be had.
    virtual bool listen(quint16 port) = 0;
    /// Takes no more clients and hears no more of those that are connected; their connections stay open. Does
    /// nothing when it does not listen.
    virtual void close() = 0;
    /// Sends to the client that was heard last; silent if that one has gone. Never waits: nothing is sent as
    /// long as that client has not taken what was sent before.
    virtual void send(const QByteArray& bytes) = 0;
    /// What a client sent: at most kMostBytes at a time, each piece as it came. Attached by the program
    /// before `listen`.
    std::function<void(const QByteArray& bytes)> received;
    static constexpr int kMostBytes = 1000;
};

/// Shows web pages.
class UrlOpener {
public:
    virtual ~UrlOpener() = default;
    /// Opens an address in the user's browser, without a wait; silent if there is none.
    virtual void open(const QString& url) = 0;
};

/// Keeps the machine from falling asleep by itself; the user and the program can still send it to sleep.
class WakeLock {
public:
    virtual ~WakeLock() = default;
    /// `reason` is for a user who asks the system what keeps it awake. Does nothing while it is held already,
    /// or where the system knows of no such thing. Ends with the program at the latest.
    virtual void hold(const QString& reason) = 0;
    virtual void release() = 0;
};

/// The user's session at the desktop, which may end while work runs: by a logout, or with the machine.
class DesktopSession {
public:
    virtual ~DesktopSession() = default;
    /// From now on the system is asked to wait with that end. `reason` is what it shows to the user then.
    /// Does nothing while the system has been asked already, or where it knows of no such thing.
    virtual void holdUp(const QString& reason) = 0;
    virtual void release() = 0;
    /// The session ends all the same, or the system asks the program to end. The program has little time
    /// left: what is done here must not wait. Attached by the program at its start.
    std::function<void()> ending;
};

/// How far work has come, on the button that the program's shown window has in the task bar. Does nothing
/// where buttons cannot show that.
class TaskbarProgress {
public:
    virtual ~TaskbarProgress() = default;
    /// `percent` from 0 to 100.
    virtual void show(int percent) = 0;
    virtual void clear() = 0;
};

/// What the folders of a user are called after on Windows.
struct WindowsProfile {
    QString userName{};      ///< as the system reports it, trailing blanks included
    QString windowsFolder{}; ///< such as C:\Windows
};

class SystemFolders {
public:
    virtual ~SystemFolders() = default;
    /// The folder that the program's file is in, in the platform's own form, without a separator at its end
    /// unless it is a root.
    virtual QString programFolder() const = 0;
    /// The system's command interpreter, as a path.
    virtual QString commandInterpreter() const = 0;
    /// The folder in which programs keep this user's settings, as the system knows it, in the platform's own
    /// form; empty if the system knows none. Where such a folder is made on first use, it is there on return.
    virtual QString applicationData() const = 0;
    /// Nothing on systems other than Windows.
    virtual std::optional<WindowsProfile> windowsProfile() const = 0;
    /// A name of a file or folder that is there, in characters of the system's 8-bit code page: the path
    /// itself or, where the system keeps one, its short form; empty if neither will do. A separator at its
    /// end stays.
    virtual QString pathInCodePage(const QString& path) const = 0;
};

/// The screen and what belongs to it, in the twips of the windows.
class WindowManager {
public:
    struct Size {
        int width = 0, height = 0;
    };
    virtual ~WindowManager() = default;
    virtual Size screenSize() const = 0;
};

/// All ports together, as the composition root hands them to the program.
struct Ports {
    EventPump& pump;
    Clock& clock;
    ProcessLauncher& launcher;
    Processes& processes;
    Dialogs& dialogs;
    Tray& tray;
    Sound& sound;
    Power& power;
    Ping& ping;
    HttpListener& listener;
    UrlOpener& browser;
    WakeLock& wakeLock;
    DesktopSession& session;
    TaskbarProgress& taskbar;
    SystemFolders& folders;
    WindowManager& windows;
};

} // namespace tarnwell
