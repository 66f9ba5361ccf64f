#include "log.h"

#include "os.h"

#include <ctime>
#include <fstream>
#include <iomanip>
#include <sstream>

namespace simulator {

Log::Log(std::filesystem::path file, const std::string& commandLine) : file_(std::move(file)) {
    note("> " + commandLine);
}

void Log::note(const std::string& text) const {
    const std::time_t now = std::time(nullptr);
    std::ostringstream line;
    line << std::put_time(std::localtime(&now), "%Y-%m-%d %H:%M:%S") << " [" << os::processId() << "] "
         << text << "\n";
    // One write: lines of tools that run at the same time do not mix.
    std::ofstream(file_, std::ios::binary | std::ios::app) << line.str();
}

} // namespace simulator
