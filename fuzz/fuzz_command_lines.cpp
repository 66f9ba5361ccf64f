// Commands as users may edit them: everything that splits one into words.

#include "platform/posix/arguments.h"
#include "platform/qt/command_line.h"
#include "queue/job_caption.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString command =
        QString::fromLocal8Bit(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    tarnwell::JobCaption(command);
    tarnwell::splitArguments(command);
    tarnwell::splitCommandLine(command);
    return 0;
}
