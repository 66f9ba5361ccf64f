#include "platform/windows/hidden_start.h"

#include "platform/windows/system.h"

namespace tarnwell {

void startHidden(const QString& program, const QString& arguments) {
    std::wstring commandLine = QString('"' + program + "\" " + arguments).toStdWString();
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_HIDE;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(wide(program), commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &startup, &process))
        return;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

} // namespace tarnwell
