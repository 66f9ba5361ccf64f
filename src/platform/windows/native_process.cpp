#include "platform/native.h"
#include "platform/windows/system.h"

#include <QProcess>

#include <string>
#include <vector>

namespace tarnwell {

namespace {

/// Turns the call that QProcess is about to make into the one that is wanted, and keeps what it points to.
class Start {
public:
    explicit Start(const QString& commandLine) : commandLine_(commandLine.toStdWString()) {}
    ~Start() {
        if (!attributes_.empty())
            DeleteProcThreadAttributeList(attributes());
    }
    Q_DISABLE_COPY_MOVE(Start)

    void change(QProcess::CreateProcessArguments& call) {
        // Without a separate name the system itself finds out where the program's path ends.
        call.applicationName = nullptr;
        call.arguments = commandLine_.data();
        call.flags |= CREATE_NO_WINDOW; // but a console of its own, to which the interrupt can go
        startup_.StartupInfo = *call.startupInfo;
        startup_.StartupInfo.dwFlags |= STARTF_USESHOWWINDOW;
        startup_.StartupInfo.wShowWindow = SW_HIDE;
        call.startupInfo = &startup_.StartupInfo;
        if (handDownOnlyStreams()) {
            startup_.StartupInfo.cb = sizeof startup_;
            call.flags |= EXTENDED_STARTUPINFO_PRESENT;
        }
        // Whether Ctrl+C is ignored is handed down, too, and we may have got it from whoever started us.
        SetConsoleCtrlHandler(nullptr, FALSE);
    }

private:
    /// A program that outlives this one must not keep our sockets and files open.
    bool handDownOnlyStreams() {
        const STARTUPINFOW& streams = startup_.StartupInfo;
        streams_ = {streams.hStdInput, streams.hStdOutput};
        if (streams.hStdError != streams.hStdOutput) // the system takes none twice
            streams_.push_back(streams.hStdError);
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

    std::wstring commandLine_;
    STARTUPINFOEXW startup_{};
    std::vector<HANDLE> streams_;
    std::vector<std::byte> attributes_;
};

} // namespace

bool native::prepareProcess(QProcess& process, const QString& commandLine) {
    if (commandLine.trimmed().isEmpty())
        return false;
    process.setProgram(commandLine); // QProcess starts nothing that has no name
    process.setCreateProcessArgumentsModifier(
        [start = std::make_shared<Start>(commandLine)](auto* call) { start->change(*call); });
    return true;
}

} // namespace tarnwell
