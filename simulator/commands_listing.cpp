#include "commands.h"
#include "disc_info.h"
#include "units.h"

#include <array>
#include <cstdio>

namespace simulator {

namespace {

std::string megabytes(std::uint64_t bytes) {
    return std::to_string((bytes + kMb - 1) / kMb);
}

std::string kilobytes(std::uint64_t bytes) {
    return std::to_string((bytes + kKb - 1) / kKb);
}

void printDisks(Output& output, const std::vector<Disk>& disks) {
    if (disks.empty())
        return;
    output.line("Hard disks:");
    for (const Disk& disk : disks) {
        output.line("\t" + disk.device() + "  " + std::to_string(disk.sizeMb()) + "MB, " +
                    (disk.formatted() ? "formatted Playstation 2 HDD" : "unknown format"));
    }
}

std::string discWords(const Drive& drive) {
    const auto size = drive.discSize();
    return size ? megabytes(*size) + " MB" : "no disc";
}

void printDrives(Output& output, const std::vector<Drive>& drives) {
    if (drives.empty())
        return;
    output.line("Optical drives:");
    for (const Drive& drive : drives)
        output.line("\t" + drive.name + "  " + discWords(drive));
    output.line("Optical drives via SPTI:");
    for (const Drive& drive : drives)
        output.line("\t" + drive.letter + "  " + discWords(drive));
}

/// One row of the fixed columns: type 1-3, size 5-11, flags 15-29, startup file 30-40, name from 44.
std::string tableRow(const char* type, const std::string& size, const char* unit, const std::string& flags,
                     const std::string& startup, const std::string& name) {
    std::array<char, 64> columns{};
    std::snprintf(columns.data(), columns.size(), "%-4s%7s%-2s %-15.15s%-11.11s   ", type, size.c_str(), unit,
                  flags.c_str(), startup.c_str());
    return columns.data() + name;
}

} // namespace

void query(Session& session, const Arguments&) {
    printDisks(session.output, session.world.localDisks());
    printDrives(session.output, session.world.drives());
}

void listGames(Session& session, const Arguments& arguments) {
    const Disk disk = session.world.device(arguments[0]);
    disk.requireFormatted();
    session.output.line(tableRow("type", "size", "", "flags", "startup", "name"));
    for (const Game& game : disk.games()) {
        session.output.line(tableRow(game.type.c_str(), kilobytes(game.sizeBytes), "KB", game.flags,
                                     game.startup, game.name));
    }
    const long long total = disk.sizeMb();
    const long long used = disk.usedMb();
    session.output.line("total " + std::to_string(total) + "MB, used " + std::to_string(used) +
                        "MB, available " + std::to_string(total - used) + "MB");
}

void describeDisc(Session& session, const Arguments& arguments) {
    ByteSource disc = session.world.openDisc(arguments[0]);
    const DiscInfo info = readDiscInfo(disc);
    session.output.line((info.dualLayer ? "dual-layer " : "") + info.type + " " + kilobytes(info.sizeBytes) +
                        "KB \"" + info.label + "\" \"" + info.startup + "\"");
}

} // namespace simulator
