#include "command_line.h"
#include "os.h"

#include <exception>

int main(int argc, char** argv) {
    using namespace simulator;
    os::prepareProcess();
    try {
        return runTool(os::executableFolder(argv[0]) / "tarnwell-simulator",
                       std::vector<std::string>(argv + 1, argv + argc));
    } catch (const std::exception& fault) {
        os::write(os::Stream::Error,
                  std::string("The simulated disks cannot be used: ") + fault.what() + "\r\n");
        return 1;
    }
}
