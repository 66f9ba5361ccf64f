#include "default_world.h"

#include "behaviour.h"
#include "iso9660_writer.h"
#include "key_value_file.h"
#include "os.h"
#include "units.h"

namespace simulator {

namespace fs = std::filesystem;

namespace {

void addGame(Disk& disk, const std::string& name, const std::string& startup, std::uint64_t megabytes,
             const std::string& flags = {}) {
    Game game{0, name, megabytes > 800 ? "DVD" : "CD", startup, flags, megabytes * kMb};
    writeDiscHead(disk.reserveData(game), {startup.substr(0, 4) + "_GAME", startup, game.sizeBytes});
    disk.enter(game);
}

void addDisks(const fs::path& folder) {
    Disk first = Disk::create(folder / "hdd1", "hdd1:", 114473, true);
    addGame(first, "Marsh Runner", "SLUS_990.01", 4377, "+1+3");
    addGame(first, "Copper Valley", "SLES_990.02", 2150);
    addGame(first, "Lantern", "SLPM_990.03", 612, "+2");

    Disk full = Disk::create(folder / "hdd2", "hdd2:", 20480, true);
    for (int volume = 1; volume <= 4; ++volume) {
        const std::string number = std::to_string(volume);
        addGame(full, "Harbour Nights Vol. " + number, "SCES_990.1" + number, 4380);
    }
    addGame(full, "Tide Table", "SLES_990.20", 2200);

    Disk::create(folder / "hdd3", "hdd3:", 238475, false);
}

void addConsole(const fs::path& folder) {
    Disk disk = Disk::create(folder, "", 38154, true);
    writeWholeFile(folder / "console.ini", "# yes, refuses (the server is not running) or no (switched off)\n"
                                           "answers = yes\n");
    addGame(disk, "Glass Orchard", "SLUS_990.31", 3310);
    addGame(disk, "Paper Kites", "SLUS_990.32", 540, "+1");
}

void addDrive(const fs::path& world, int number, const std::string& disc = {},
              const DiscContents& contents = {}) {
    KeyValues values;
    if (!disc.empty()) {
        writeDiscHead(world / "discs" / disc, contents);
        values.set("image", "discs/" + disc);
        values.set("size_bytes", static_cast<long long>(contents.size));
    } else {
        values.set("image", "");
    }
    writeWholeFile(world / "drives" / ("cd" + std::to_string(number) + ".ini"), values.toText());
}

void addDrives(const fs::path& world) {
    fs::create_directories(world / "discs");
    fs::create_directories(world / "drives");
    addDrive(world, 0);
    addDrive(world, 1, "northern_ridge.iso", {"NORTHERN_RIDGE", "SLES_990.41", 4377 * kMb});
    addDrive(world, 2, "two_tides.iso", {"TWO_TIDES", "SLUS_990.42", 7960 * kMb});
    addDrive(world, 3, "holiday.iso", {"HOLIDAY_2004", "", 680 * kMb});
    addDrive(world, 4, "pocket_chess.iso", {"POCKET_CHESS", "SLPS_990.43", 560 * kMb});
}

void makeDefaultWorld(const fs::path& folder) {
    addDisks(folder / "disks");
    addConsole(folder / "console" / "127.0.0.1");
    addDrives(folder);
    writeWholeFile(folder / "behaviour.txt", Behaviour::explanation());
}

} // namespace

World openWorld(const fs::path& folder) {
    if (fs::exists(folder))
        return World(folder);
    // Made aside and moved: a second tool that starts meanwhile never sees half of a world.
    fs::path fresh = folder;
    fresh += ".new" + std::to_string(os::processId());
    makeDefaultWorld(fresh);
    std::error_code error;
    fs::rename(fresh, folder, error);
    if (error)
        fs::remove_all(fresh);
    return World(folder);
}

} // namespace simulator
