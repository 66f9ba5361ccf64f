// The commands of the tool. Each gets its arguments without its own name, as many as its entry in
// command_line.cpp allows, and throws Failure when it cannot do its work.
#pragma once

#include "conduct.h"
#include "output.h"
#include "world.h"

#include <string>
#include <vector>

namespace simulator {

struct Session {
    World& world;
    Output& output;
    Conduct& conduct;
};

using Arguments = std::vector<std::string>;

// What is there.
void query(Session& session, const Arguments& arguments);
void listGames(Session& session, const Arguments& arguments);    ///< device
void describeDisc(Session& session, const Arguments& arguments); ///< drive or image file

// Copies, which report their progress.
void injectCd(Session& session, const Arguments& arguments);    ///< device, name, source, [startup], [flags]
void injectDvd(Session& session, const Arguments& arguments);   ///< the same
void extractGame(Session& session, const Arguments& arguments); ///< device, name, file
void dumpDisc(Session& session, const Arguments& arguments);    ///< drive, file

// Changes of the table; silent when they succeed.
void deleteGame(Session& session, const Arguments& arguments);   ///< device, name
void renameGame(Session& session, const Arguments& arguments);   ///< device, name, new name
void formatDisk(Session& session, const Arguments& arguments);   ///< local disk
void backupTable(Session& session, const Arguments& arguments);  ///< device, file
void restoreTable(Session& session, const Arguments& arguments); ///< device, file
void powerOff(Session& session, const Arguments& arguments);     ///< address of a console

} // namespace simulator
