#include "platform/native.h"
#include "platform/windows/system.h"

#include <array>
#include <lmcons.h>
#include <shlobj.h>

namespace tarnwell {

namespace {

/// What a call that fills a buffer and returns the number of characters has to say.
template <typename Call>
QString textOf(Call call) {
    std::array<wchar_t, MAX_PATH> buffer{};
    const UINT length = call(buffer.data(), static_cast<UINT>(buffer.size()));
    return length < buffer.size() ? QString::fromWCharArray(buffer.data(), static_cast<qsizetype>(length))
                                  : QString();
}

QString userName() {
    std::array<wchar_t, UNLEN + 1> buffer{};
    auto size = static_cast<DWORD>(buffer.size());
    return GetUserNameW(buffer.data(), &size) ? QString::fromWCharArray(buffer.data()) : QString();
}

} // namespace

QString systemFolder() {
    return textOf(GetSystemDirectoryW);
}

QString native::commandInterpreter() {
    return systemFolder() + QStringLiteral("\\cmd.exe");
}

QString native::applicationData() {
    PWSTR path = nullptr;
    const HRESULT result = SHGetKnownFolderPath(FOLDERID_RoamingAppData, KF_FLAG_CREATE, nullptr, &path);
    QString folder = SUCCEEDED(result) ? QString::fromWCharArray(path) : QString();
    CoTaskMemFree(path);
    return folder;
}

std::optional<WindowsProfile> native::windowsProfile() {
    return WindowsProfile{userName(), textOf(GetWindowsDirectoryW)};
}

QString native::shortPath(const QString& path) {
    return textOf([&](wchar_t* buffer, UINT size) {
        return GetShortPathNameW(reinterpret_cast<const wchar_t*>(path.utf16()), buffer, size);
    });
}

} // namespace tarnwell
