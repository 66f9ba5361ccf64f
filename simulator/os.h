// What differs between operating systems; os_posix.cpp and os_windows.cpp each hold one whole answer.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace simulator::os {

enum class Stream { Output, Error };

/// Takes over the interrupt (Ctrl+C), makes the standard streams byte-exact, and lets the program outlive a
/// reader that has gone away.
void prepareProcess();

/// Whether the interrupt has come.
bool interrupted();

/// Writes at once, without a buffer. Bytes that nobody can take any more are dropped.
void write(Stream stream, std::string_view bytes);

/// The folder that the running program lies in.
std::filesystem::path executableFolder(const char* commandName);

/// A path from text as it stands on the command line.
std::filesystem::path pathFromText(const std::string& text);

/// The first position at or behind `offset` where the file may hold something other than a hole. `offset`
/// itself if that cannot be told; the largest number if only holes follow.
std::uint64_t nextData(const std::filesystem::path& path, std::uint64_t offset);

/// Lets parts of the file that are never written take no room, where that has to be asked for.
void markSparse(const std::filesystem::path& path);

long processId();

} // namespace simulator::os
