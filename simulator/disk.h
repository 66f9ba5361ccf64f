// One simulated PS2 hard disk: a folder with its figures, its table of games and their data.
#pragma once

#include "byte_source.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

struct Game {
    long long id = 0; ///< given by the disk, never twice
    std::string name;
    std::string type; ///< "CD" or "DVD"
    std::string startup;
    std::string flags;
    std::uint64_t sizeBytes = 0;
};

/// A game takes a whole number of 128 MB units.
long long megabytesTaken(const Game& game);

/// Throws Failure for a name that is empty or would break a line of the table.
void checkGameName(const std::string& name);

class Disk {
public:
    /// `device` is the name that failure texts use.
    Disk(std::filesystem::path folder, std::string device);

    /// An empty formatted disk, or a blank one, in a folder that is made for it.
    static Disk create(const std::filesystem::path& folder, const std::string& device, long long sizeMb,
                       bool formatted);

    const std::string& device() const { return device_; }
    long long sizeMb() const;
    bool formatted() const;
    /// Throws Failure unless formatted.
    void requireFormatted() const;

    /// In the order of installation.
    std::vector<Game> games() const;
    long long usedMb() const;
    std::optional<Game> find(const std::string& name) const;
    /// Throws Failure if there is none of exactly this name.
    Game get(const std::string& name) const;
    ByteSource open(const Game& game) const;

    /// Throws Failure if the name is taken or the game does not fit.
    void checkRoomFor(const Game& game) const;
    /// Where the data of a game to come goes; it takes the room of games that are no longer in the table.
    /// Sets the game's id.
    std::filesystem::path reserveData(Game& game);
    /// Enters a game whose data is there into the table, or replaces its entry.
    void enter(const Game& game);
    /// Out of the table. The data stays until something is installed.
    void remove(const Game& game);
    /// Empties the table and makes the disk usable. The data stays until something is installed.
    void format();

    /// The table as text, and back. Games whose data is gone are left out and their names returned. Throws
    /// Failure if the text is no table.
    std::string tableText() const;
    std::vector<std::string> restoreTable(const std::string& text, const std::string& subject);

private:
    std::filesystem::path entryFile(long long id) const;
    std::filesystem::path dataFile(long long id) const;
    void clearTable();
    void dropUnlistedData();

    std::filesystem::path folder_;
    std::string device_;
};

} // namespace simulator
