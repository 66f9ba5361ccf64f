// A client of the status page may send anything, and a game may be called anything: the answer is plain
// ASCII, and holds no markup but the page's own.

#include "services/status_page.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarnwell;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    asksForPage(bytes);

    const QString text = QString::fromLocal8Bit(bytes);
    const QByteArray plain = BuildStatusPage({.jobIndex = 1, .jobs = 2});
    const QByteArray page =
        BuildStatusPage({.job = text, .speed = "Speed: " + text, .jobIndex = 1, .jobs = 2});
    const bool ascii =
        std::all_of(page.begin(), page.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
    if (!ascii || page.count('<') != plain.count('<'))
        std::abort();
    return 0;
}
