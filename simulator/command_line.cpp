#include "command_line.h"

#include "commands.h"
#include "default_world.h"
#include "failure.h"
#include "log.h"

#include <algorithm>
#include <iterator>

namespace simulator {

namespace {

constexpr int kSuccess = 0;
constexpr int kFailed = 1;
constexpr int kWrongUse = 2;

struct Command {
    const char* name;
    std::size_t fewestArguments;
    std::size_t mostArguments;
    bool copies; ///< reports its progress in percent
    void (*run)(Session&, const Arguments&);
    const char* usage;
};

constexpr Command kCommands[] = {
    {"query", 0, 0, false, query, ""},
    {"tarn_toc", 1, 1, false, listGames, "device"},
    {"cdvd_info2", 1, 1, false, describeDisc, "drive | image"},
    {"inject_dvd", 3, 5, true, injectDvd, "device name source [startup [+flags]]"},
    {"inject_cd", 3, 5, true, injectCd, "device name source [startup [+flags]]"},
    {"extract", 3, 3, true, extractGame, "device name file"},
    {"dump", 2, 2, true, dumpDisc, "drive file"},
    {"delete", 2, 2, false, deleteGame, "device name"},
    {"modify", 3, 3, false, renameGame, "device name new-name"},
    {"poweroff", 1, 1, false, powerOff, "address"},
    {"initialize", 1, 1, false, formatDisk, "device"},
    {"backup_toc", 2, 2, false, backupTable, "device file"},
    {"restore_toc", 2, 2, false, restoreTable, "device file"},
};

const Command* findCommand(const std::string& name) {
    const auto* found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                     [&](const Command& c) { return name == c.name; });
    return found == std::end(kCommands) ? nullptr : found;
}

void printUsage(Output& output) {
    output.line("Usage: tarnwell command arguments");
    for (const Command& command : kCommands)
        output.line(std::string("  ") + command.name + " " + command.usage);
    output.line("A source is an image, a drive, or name@device. This is the simulated tool: it touches no "
                "real disk.");
}

std::string asTyped(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) {
        const bool quoted = word.empty() || word.find(' ') != std::string::npos;
        line += (line.empty() ? "" : " ") + (quoted ? '"' + word + '"' : word);
    }
    return line;
}

void runCommand(Session& session, const Command& command, const Arguments& arguments) {
    session.conduct.begin(command.copies);
    if (arguments.size() < command.fewestArguments || arguments.size() > command.mostArguments)
        throw Failure(words::kParameter);
    command.run(session, arguments);
    session.output.flush();
    if (!command.copies)
        session.conduct.reached(100);
}

int reportFailure(Output& output, const Log& log, const std::string& text) {
    output.failure(text);
    log.note("< failed: " + text);
    return kFailed;
}

/// Turns every end that a command can have into output, a note in the log and an exit code.
int runToEnd(Session& session, const Log& log, const Command& command, const Arguments& arguments) {
    try {
        runCommand(session, command, arguments);
        log.note("< done");
        return kSuccess;
    } catch (const Interrupted&) {
        return reportFailure(session.output, log, words::kInterrupted);
    } catch (const Failure& failure) {
        return reportFailure(session.output, log, failure.what());
    } catch (const std::filesystem::filesystem_error& error) {
        return reportFailure(session.output, log, systemWords(error.code()));
    }
}

} // namespace

int runTool(const std::filesystem::path& worldFolder, const std::vector<std::string>& words) {
    World world = openWorld(worldFolder);
    const std::string name = words.empty() ? "" : words.front();
    const Log log(worldFolder / "log.txt", asTyped(words));
    const Behaviour behaviour = Behaviour::read(worldFolder / "behaviour.txt", name);
    Output output(behaviour);
    const Command* command = findCommand(name);
    if (command == nullptr) {
        printUsage(output);
        output.flush();
        log.note("< no such command");
        return kWrongUse;
    }
    Conduct conduct(behaviour, output);
    Session session{world, output, conduct};
    const int code = runToEnd(session, log, *command, Arguments(words.begin() + 1, words.end()));
    return behaviour.exitCode.value_or(code);
}

} // namespace simulator
