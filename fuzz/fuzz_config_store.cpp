// config.cfg as anything may have left it: what is written is read back, and what is not touched survives.

#include "base/ini_text.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using tarnwell::IniText;

namespace {

void demand(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    IniText ini(bytes);
    demand(ini.bytes() == bytes);

    const auto other = ini.value("tarnwell", "Font");
    ini.setValue("tarnwell", "IP", "192.168.0.10");
    demand(ini.value("tarnwell", "IP") == "192.168.0.10");
    demand(ini.value("tarnwell", "Font") == other);

    const QByteArray written = ini.bytes();
    const IniText again(written);
    demand(again.bytes() == written);
    demand(again.value("tarnwell", "IP") == "192.168.0.10");
    demand(again.value("tarnwell", "Font") == other);
    return 0;
}
