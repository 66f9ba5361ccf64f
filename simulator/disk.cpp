#include "disk.h"

#include "failure.h"
#include "key_value_file.h"
#include "units.h"

#include <algorithm>

namespace simulator {

namespace fs = std::filesystem;

namespace {

constexpr long long kUnitMb = 128;
constexpr const char* kTableTitle = "# Table of games of a simulated disk\n";

KeyValues entryOf(const Game& game) {
    KeyValues entry;
    entry.set("name", game.name);
    entry.set("type", game.type);
    entry.set("startup", game.startup);
    entry.set("flags", game.flags);
    entry.set("size_bytes", static_cast<long long>(game.sizeBytes));
    return entry;
}

Game gameOf(long long id, const KeyValues& entry) {
    return {id,
            entry.text("name"),
            entry.text("type"),
            entry.text("startup"),
            entry.text("flags"),
            static_cast<std::uint64_t>(entry.number("size_bytes"))};
}

/// The number of a file such as "12.ini".
std::optional<long long> idOf(const fs::path& file, const char* extension) {
    return file.extension() == extension ? parseNumber(file.stem().string()) : std::nullopt;
}

std::vector<fs::path> filesIn(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder, error))
        files.push_back(entry.path());
    return files;
}

} // namespace

long long megabytesTaken(const Game& game) {
    const auto unitBytes = static_cast<std::uint64_t>(kUnitMb) * kMb;
    return static_cast<long long>((game.sizeBytes + unitBytes - 1) / unitBytes) * kUnitMb;
}

void checkGameName(const std::string& name) {
    const bool unprintable = std::any_of(name.begin(), name.end(), [](unsigned char c) { return c < ' '; });
    if (name.empty() || unprintable)
        throw Failure(words::kParameter);
}

Disk::Disk(fs::path folder, std::string device) : folder_(std::move(folder)), device_(std::move(device)) {}

Disk Disk::create(const fs::path& folder, const std::string& device, long long sizeMb, bool formatted) {
    fs::create_directories(folder / "games");
    KeyValues figures;
    figures.set("size_mb", sizeMb);
    figures.set("formatted", std::string(formatted ? "yes" : "no"));
    writeWholeFile(folder / "disk.ini", figures.toText());
    return {folder, device};
}

long long Disk::sizeMb() const {
    return readKeyValues(folder_ / "disk.ini").number("size_mb");
}

bool Disk::formatted() const {
    return readKeyValues(folder_ / "disk.ini").yes("formatted");
}

void Disk::requireFormatted() const {
    if (!formatted())
        throw failureOf(device_, words::kNotPs2Disk);
}

fs::path Disk::entryFile(long long id) const {
    return folder_ / "games" / (std::to_string(id) + ".ini");
}

fs::path Disk::dataFile(long long id) const {
    return folder_ / "games" / (std::to_string(id) + ".image");
}

std::vector<Game> Disk::games() const {
    std::vector<Game> games;
    for (const fs::path& file : filesIn(folder_ / "games")) {
        if (const auto id = idOf(file, ".ini"))
            games.push_back(gameOf(*id, readKeyValues(file)));
    }
    std::sort(games.begin(), games.end(), [](const Game& a, const Game& b) { return a.id < b.id; });
    return games;
}

long long Disk::usedMb() const {
    long long used = 0;
    for (const Game& game : games())
        used += megabytesTaken(game);
    return used;
}

std::optional<Game> Disk::find(const std::string& name) const {
    for (const Game& game : games()) {
        if (game.name == name)
            return game;
    }
    return std::nullopt;
}

Game Disk::get(const std::string& name) const {
    requireFormatted();
    const auto game = find(name);
    if (!game)
        throw failureOf(name, words::kGameNotFound);
    return *game;
}

ByteSource Disk::open(const Game& game) const {
    return {dataFile(game.id), game.name, game.sizeBytes};
}

void Disk::checkRoomFor(const Game& game) const {
    requireFormatted();
    if (find(game.name))
        throw failureOf(game.name, words::kFileExists);
    if (usedMb() + megabytesTaken(game) > sizeMb())
        throw failureOf(device_, words::kNoFreeSpace);
}

fs::path Disk::reserveData(Game& game) {
    dropUnlistedData();
    KeyValues figures = readKeyValues(folder_ / "disk.ini");
    const auto present = games();
    game.id = std::max(figures.number("next_game", 1), present.empty() ? 1 : present.back().id + 1);
    figures.set("next_game", game.id + 1);
    writeWholeFile(folder_ / "disk.ini", figures.toText());
    return dataFile(game.id);
}

void Disk::enter(const Game& game) {
    writeWholeFile(entryFile(game.id), entryOf(game).toText());
}

void Disk::remove(const Game& game) {
    fs::remove(entryFile(game.id));
}

void Disk::clearTable() {
    for (const Game& game : games())
        remove(game);
}

void Disk::format() {
    clearTable();
    KeyValues figures = readKeyValues(folder_ / "disk.ini");
    figures.set("formatted", std::string("yes"));
    writeWholeFile(folder_ / "disk.ini", figures.toText());
}

void Disk::dropUnlistedData() {
    for (const fs::path& file : filesIn(folder_ / "games")) {
        const auto id = idOf(file, ".image");
        if (id && !fs::exists(entryFile(*id)))
            fs::remove(file);
    }
}

std::string Disk::tableText() const {
    std::string text = kTableTitle;
    for (const Game& game : games())
        text += "\n[" + std::to_string(game.id) + "]\n" + entryOf(game).toText();
    return text;
}

std::vector<std::string> Disk::restoreTable(const std::string& text, const std::string& subject) {
    if (!text.starts_with(kTableTitle))
        throw failureOf(subject, words::kParameter);
    auto sections = parseSections(text);
    sections.erase(sections.begin());
    std::vector<std::string> lost;
    clearTable();
    for (const auto& [heading, entry] : sections) {
        const auto id = parseNumber(heading);
        if (id && fs::exists(dataFile(*id)))
            enter(gameOf(*id, entry));
        else
            lost.push_back(entry.text("name"));
    }
    return lost;
}

} // namespace simulator
