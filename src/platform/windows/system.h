#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <QString>

#include <windows.h>

namespace tarnwell {

inline const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

/// Where the system's own programs are, such as C:\Windows\system32.
QString systemFolder();

} // namespace tarnwell
