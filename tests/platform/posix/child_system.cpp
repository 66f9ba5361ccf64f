#include "platform/child_system.h"

#include <csignal>
#include <unistd.h>

namespace child {

namespace {

pid_t parent = 0;

} // namespace

void prepare() {
    parent = ::getppid();
}

void hang() {
    for (;;)
        ::pause();
}

void crash() {
    ::raise(SIGKILL);
    ::_exit(1);
}

bool standsAlone() {
    return ::getsid(0) == ::getpid();
}

void waitForParentsEnd() {
    for (int i = 0; i < 2000 && ::getppid() == parent; ++i)
        ::usleep(5000);
}

} // namespace child
