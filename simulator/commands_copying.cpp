#include "commands.h"
#include "disc_info.h"
#include "failure.h"
#include "os.h"
#include "transfer.h"
#include "units.h"

#include <algorithm>

namespace simulator {

namespace {

/// The widest size that the table of games can show.
constexpr std::uint64_t kLargestGameBytes = 9'999'999 * kKb;

/// "+1+3": entries from 1 to 8.
void checkFlags(const std::string& flags) {
    bool good = flags.size() % 2 == 0;
    for (std::size_t i = 0; i < flags.size(); ++i)
        good = good && (i % 2 == 0 ? flags[i] == '+' : flags[i] >= '1' && flags[i] <= '8');
    if (!good)
        throw Failure(words::kParameter);
}

struct InstalledGame {
    Disk disk;
    Game game;
};

/// "name@device": a game that is already on a disk. A file of that very name goes first.
std::optional<InstalledGame> installedGame(World& world, const std::string& source) {
    const auto at = source.rfind('@');
    if (at == std::string::npos)
        return std::nullopt;
    const std::string device = source.substr(at + 1);
    if (!isLocalDiskName(device) && !isNetworkAddress(device))
        return std::nullopt;
    std::error_code ignored;
    if (std::filesystem::exists(os::pathFromText(source), ignored))
        return std::nullopt;
    Disk disk = world.device(device);
    Game game = disk.get(source.substr(0, at));
    return InstalledGame{std::move(disk), std::move(game)};
}

/// Opens what is to be installed, and fills in what the game takes over from it.
ByteSource openSource(World& world, const std::string& source, Game& game) {
    const auto installed = installedGame(world, source);
    if (!installed)
        return world.openDisc(source);
    game.startup = installed->game.startup;
    game.flags = installed->game.flags;
    return installed->disk.open(installed->game);
}

void inject(Session& session, const Arguments& arguments, const char* type) {
    Disk disk = session.world.device(arguments[0]);
    disk.requireFormatted();
    Game game;
    game.name = arguments[1];
    game.type = type;
    checkGameName(game.name);

    ByteSource source = openSource(session.world, arguments[2], game);
    if (arguments.size() > 3 && !arguments[3].empty())
        game.startup = arguments[3];
    if (arguments.size() > 4)
        game.flags = arguments[4];
    checkFlags(game.flags);
    if (game.startup.empty())
        game.startup = readDiscInfo(source).startup;
    game.sizeBytes = source.size();
    if (game.sizeBytes == 0 || game.sizeBytes > kLargestGameBytes)
        throw Failure(words::kUnsupported);
    disk.checkRoomFor(game);

    Transfer transfer(session.conduct, session.output);
    {
        PendingFile data(disk.reserveData(game), game.name);
        transfer.copy(source, data);
    }
    disk.enter(game);
    transfer.announceEnd();
}

void copyToFile(Session& session, ByteSource source, const std::string& file) {
    PendingFile target(os::pathFromText(file), file);
    Transfer transfer(session.conduct, session.output);
    transfer.copy(source, target);
    transfer.announceEnd();
}

} // namespace

void injectCd(Session& session, const Arguments& arguments) {
    inject(session, arguments, "CD");
}

void injectDvd(Session& session, const Arguments& arguments) {
    inject(session, arguments, "DVD");
}

void extractGame(Session& session, const Arguments& arguments) {
    const Disk disk = session.world.device(arguments[0]);
    copyToFile(session, disk.open(disk.get(arguments[1])), arguments[2]);
}

void dumpDisc(Session& session, const Arguments& arguments) {
    const auto drive = session.world.drive(arguments[0]);
    if (!drive)
        throw Failure(words::kUnsupported);
    copyToFile(session, drive->open(), arguments[1]);
}

} // namespace simulator
