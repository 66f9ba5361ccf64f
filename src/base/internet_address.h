#pragma once

#include <QString>

#include <optional>

namespace tarnwell {

/// Reads an IPv4 address in any of its classic forms, in host byte order: one to four parts parted by dots,
/// each decimal, octal (with a leading 0) or hexadecimal (0x); the last part fills all bytes that are left. A
/// blank ends the text. Nothing for anything else; names are not looked up.
std::optional<quint32> parseInternetAddress(const QString& text);

} // namespace tarnwell
