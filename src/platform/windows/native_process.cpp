#include "platform/native.h"
#include "platform/windows/system.h"

#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <string>
#include <vector>

namespace tarnwell {

namespace {

class WindowsOutputPipe : public native::OutputPipe {
public:
    WindowsOutputPipe() {
        constexpr DWORD kRoomBytes = 65'536;
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        if (CreatePipe(&ours_, &theirs_, &inherited, kRoomBytes))
            SetHandleInformation(ours_, HANDLE_FLAG_INHERIT, 0);
    }
    ~WindowsOutputPipe() override {
        closeEnd(ours_);
        closeEnd(theirs_);
    }
    Q_DISABLE_COPY_MOVE(WindowsOutputPipe)

    bool isOpen() const { return ours_; }
    HANDLE endOfProcess() const { return theirs_; }

    QByteArray read(qsizetype maximum) override {
        DWORD waiting = 0;
        if (!PeekNamedPipe(ours_, nullptr, 0, nullptr, &waiting, nullptr) || waiting == 0)
            return {};
        QByteArray bytes(std::min<qsizetype>(waiting, maximum), Qt::Uninitialized);
        DWORD taken = 0;
        ReadFile(ours_, bytes.data(), static_cast<DWORD>(bytes.size()), &taken, nullptr);
        bytes.truncate(taken);
        return bytes;
    }
    void processHasStarted() override { closeEnd(theirs_); }

private:
    static void closeEnd(HANDLE& end) {
        if (end)
            CloseHandle(end);
        end = nullptr;
    }

    HANDLE ours_ = nullptr, theirs_ = nullptr;
};

/// Turns the call that QProcess is about to make into the one that is wanted, and keeps what it points to.
class Start {
public:
    Start(const QString& program, const QString& arguments, HANDLE output)
        : program_(program.toStdWString()), commandLine_((quoted(program) + arguments).toStdWString()),
          output_(output) {}
    ~Start() {
        if (!attributes_.empty())
            DeleteProcThreadAttributeList(attributes());
    }
    Q_DISABLE_COPY_MOVE(Start)

    void change(QProcess::CreateProcessArguments& call) {
        // Named apart: where a path with blanks ends the system would find out by trying the short ones
        // first.
        call.applicationName = program_.c_str();
        call.arguments = commandLine_.data();
        call.flags |= CREATE_NO_WINDOW; // but a console of its own, to which the interrupt can go
        startup_.StartupInfo = *call.startupInfo;
        startup_.StartupInfo.dwFlags |= STARTF_USESHOWWINDOW;
        startup_.StartupInfo.wShowWindow = SW_HIDE;
        startup_.StartupInfo.hStdOutput = startup_.StartupInfo.hStdError = output_;
        call.startupInfo = &startup_.StartupInfo;
        if (handDownOnlyStreams()) {
            startup_.StartupInfo.cb = sizeof startup_;
            call.flags |= EXTENDED_STARTUPINFO_PRESENT;
        }
        // Whether Ctrl+C is ignored is handed down, too, and we may have got it from whoever started us.
        SetConsoleCtrlHandler(nullptr, FALSE);
    }

private:
    /// As the system does it where it finds the program by itself: a program takes the first word, or what
    /// the first quotes hold, for its own name.
    static QString quoted(const QString& program) {
        return program.contains(u' ') ? '"' + program + '"' : program;
    }

    /// A program that outlives this one must not keep our sockets and files open.
    bool handDownOnlyStreams() {
        streams_ = {startup_.StartupInfo.hStdInput, output_}; // the system takes none twice
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        attributes_.resize(size);
        startup_.lpAttributeList = attributes();
        if (!InitializeProcThreadAttributeList(attributes(), 1, 0, &size)) {
            attributes_.clear();
            return false;
        }
        return UpdateProcThreadAttribute(attributes(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, streams_.data(),
                                         streams_.size() * sizeof(HANDLE), nullptr, nullptr);
    }

    LPPROC_THREAD_ATTRIBUTE_LIST attributes() {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(attributes_.data());
    }

    const std::wstring program_;
    std::wstring commandLine_;
    const HANDLE output_;
    STARTUPINFOEXW startup_{};
    std::vector<HANDLE> streams_;
    std::vector<std::byte> attributes_;
};

} // namespace

std::unique_ptr<native::OutputPipe> native::prepareProcess(QProcess& process, const QString& program,
                                                           const QString& arguments) {
    auto output = std::make_unique<WindowsOutputPipe>();
    if (!output->isOpen())
        return nullptr;
    process.setProgram(program);
    process.setProcessChannelMode(QProcess::ForwardedChannels); // QProcess makes no pipes of its own
    process.setCreateProcessArgumentsModifier(
        [start = std::make_shared<Start>(program, arguments, output->endOfProcess())](auto* call) {
            start->change(*call);
        });
    return output;
}

QString native::hintAtStart(const QString&) {
    return {};
}

QString native::wordsOfError(const QString& words) {
    // So the toolkit tells of errors whose words name a file.
    static const QRegularExpression onlyNumber("^Unknown error 0x([0-9a-f]+)");
    const auto match = onlyNumber.match(words);
    if (!match.hasMatch())
        return words;
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        match.captured(1).toUInt(nullptr, 16), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const QString found = QString::fromWCharArray(text, static_cast<qsizetype>(length)).trimmed();
    LocalFree(text);
    return found.isEmpty() ? words : found;
}

} // namespace tarnwell
