// How a command ends early, and the texts that it then leaves. Programs that drive the tool know the failures
// by these exact words.
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

namespace simulator {

/// The command has failed; `what()` is the text for the user, without a line end.
struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The user has pressed Ctrl+C.
struct Interrupted {};

namespace words {

inline constexpr const char* kInterrupted = "Interrupted.";
inline constexpr const char* kUnsupported = "Input or output is unsupported.";
inline constexpr const char* kFileExists = "The file exists.";
inline constexpr const char* kNoFreeSpace = "not enough free space.";
inline constexpr const char* kDiskFull = "There is not enough space on the disk.";
inline constexpr const char* kParameter = "The parameter is incorrect.";
inline constexpr const char* kSpti = "SPTI error: 0x03 (unrecovered read error)";
inline constexpr const char* kNotReady = "The device is not ready.";
inline constexpr const char* kNotPs2Disc = "not a Playstation CD-ROM/DVD-ROM.";
inline constexpr const char* kBadIso = "bad ISOFS.";
inline constexpr const char* kNotPs2Disk = "not a PlayStation 2 HDD.";
inline constexpr const char* kGameNotFound = "not found.";
inline constexpr const char* kFileNotFound = "The system cannot find the file specified.";
inline constexpr const char* kConnectionClosed =
    "An existing connection was forcibly closed by the remote host.";
inline constexpr const char* kRefused =
    "No connection could be made because the target machine actively refused it.";
inline constexpr const char* kNoAnswer =
    "A connection attempt failed because the connected party did not properly respond after a period of "
    "time, or "
    "established connection failed because connected host has failed to respond.";

} // namespace words

/// "subject: words"; a subject such as "hdd1:" brings its own colon.
Failure failureOf(const std::string& subject, const std::string& text);

/// What the system says of an error, in the words of the tool's home system.
std::string systemWords(const std::error_code& error);

/// The text of a failure by its short name ("refused", "no_space"); a name that is none is the text itself.
std::string failureText(const std::string& name);

} // namespace simulator
