#include "platform/posix/termination_signals.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tarnwell {

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP};

/// A signal may come at any moment, in which hardly more than this can be done.
int writer = -1;
void tell(int) {
    [[maybe_unused]] const ssize_t written = ::write(writer, "", 1);
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> asked) : asked_(std::move(asked)) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    reader_ = ends[0];
    writer = ends[1];
    notifier_.emplace(reader_, QSocketNotifier::Read);
    QObject::connect(&*notifier_, &QSocketNotifier::activated, &*notifier_, [this] {
        char signal = 0;
        if (::read(reader_, &signal, 1) == 1)
            asked_();
    });
    struct sigaction action {};
    action.sa_handler = tell;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    for (const int signal : kSignals)
        ::sigaction(signal, &action, nullptr);
}

TerminationSignals::~TerminationSignals() {
    if (!notifier_)
        return;
    for (const int signal : kSignals)
        ::signal(signal, SIG_DFL);
    notifier_.reset();
    ::close(std::exchange(writer, -1));
    ::close(reader_);
}

} // namespace tarnwell
