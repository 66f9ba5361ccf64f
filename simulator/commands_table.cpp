#include "commands.h"
#include "failure.h"
#include "os.h"
#include "pending_file.h"
#include "units.h"

#include <algorithm>

namespace simulator {

namespace {

/// Whatever the user points at, no more than this is read into memory.
constexpr std::uint64_t kLargestTableBytes = 16 * kMb;

} // namespace

void deleteGame(Session& session, const Arguments& arguments) {
    Disk disk = session.world.device(arguments[0]);
    disk.remove(disk.get(arguments[1]));
}

void renameGame(Session& session, const Arguments& arguments) {
    Disk disk = session.world.device(arguments[0]);
    Game game = disk.get(arguments[1]);
    checkGameName(arguments[2]);
    if (disk.find(arguments[2]))
        throw failureOf(arguments[2], words::kFileExists);
    game.name = arguments[2];
    disk.enter(game);
}

void formatDisk(Session& session, const Arguments& arguments) {
    Disk disk = session.world.device(arguments[0]);
    if (!isLocalDiskName(arguments[0]))
        throw Failure(words::kUnsupported);
    disk.format();
}

void backupTable(Session& session, const Arguments& arguments) {
    const Disk disk = session.world.device(arguments[0]);
    disk.requireFormatted();
    PendingFile file(os::pathFromText(arguments[1]), arguments[1]);
    file.write(0, disk.tableText());
    file.keep();
}

void restoreTable(Session& session, const Arguments& arguments) {
    Disk disk = session.world.device(arguments[0]);
    disk.requireFormatted();
    ByteSource file(os::pathFromText(arguments[1]), arguments[1]);
    std::string text(static_cast<std::size_t>(std::min(file.size(), kLargestTableBytes)), '\0');
    file.read(0, text);
    for (const std::string& name : disk.restoreTable(text, arguments[1]))
        session.output.line(name + ": its data has been overwritten.");
}

void powerOff(Session& session, const Arguments& arguments) {
    const Disk console = session.world.device(arguments[0]);
    if (isLocalDiskName(arguments[0]))
        throw Failure(words::kUnsupported);
    if (session.conduct.behaviour().poweroffLasts)
        session.world.switchOff(console.device());
}

} // namespace simulator
