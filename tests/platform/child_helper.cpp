/// A console program that behaves in every way that the tests of the child process need. It uses nothing but
/// the system, so that what it does is what it says.

#include "platform/child_system.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>

namespace {

void print(const char* text) {
    [[maybe_unused]] const ssize_t written =
        ::write(STDOUT_FILENO, text, static_cast<unsigned>(std::strlen(text)));
}

void printBytes(std::size_t count) {
    const std::string text(count, 'x');
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

int echoInput() {
    char bytes[4096];
    ssize_t count = 0;
    while ((count = ::read(STDIN_FILENO, bytes, sizeof bytes)) > 0) {
        [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, bytes, static_cast<unsigned>(count));
    }
    return 0;
}

void sayFarewell(int) {
    print("interrupted\n");
    ::_exit(3);
}

/// Leaves a file behind when it has outlived its parent and has tried to print to it.
int outlive(const char* markPath) {
    print("ready\n");
    child::waitForParentsEnd();
    print("a line that nobody reads\n");
    if (std::FILE* const mark = std::fopen(markPath, "w")) {
        std::fclose(mark);
    }
    return 0;
}

/// The same without a look at its parent: prints a lot, then leaves the file behind.
int floodAndMark(const char* markPath) {
    printBytes(1'000'000);
    if (std::FILE* const mark = std::fopen(markPath, "w")) {
        std::fclose(mark);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    child::prepare();
    const std::string act = argc > 1 ? argv[1] : "";
    const char* const argument = argc > 2 ? argv[2] : "0";
    if (act == "bytes") {
        printBytes(static_cast<std::size_t>(std::atol(argument)));
        return 0;
    }
    if (act == "arguments") {
        for (int i = 2; i < argc; ++i) {
            std::printf("[%s]\n", argv[i]);
        }
        return 0;
    }
    if (act == "half-line") {
        print("half a");
        child::hang();
    }
    if (act == "exit") {
        return std::atoi(argument);
    }
    if (act == "hang") {
        print("ready\n");
        child::hang();
    }
    if (act == "crash") {
        print("before the crash\n");
        child::crash();
    }
    if (act == "both-streams") {
        print("1 out\n");
        [[maybe_unused]] ssize_t written = ::write(STDERR_FILENO, "2 err\n", 6);
        print("3 out\n");
        written = ::write(STDERR_FILENO, "4 err\n", 6);
        return 0;
    }
    if (act == "farewell") {
        ::signal(SIGINT, sayFarewell);
        print("ready\n");
        child::hang();
    }
    if (act == "deaf") {
        ::signal(SIGINT, SIG_IGN);
        print("ready\n");
        child::hang();
    }
    if (act == "close-output") {
        print("last words\n");
        ::close(STDOUT_FILENO);
        ::close(STDERR_FILENO);
        child::hang();
    }
    if (act == "split-character") {
        print("\xC3");
        ::usleep(60'000);
        print("\xA9\n");
        return 0;
    }
    if (act == "echo-input") {
        return echoInput();
    }
    if (act == "surroundings") {
        char folder[4096];
        const char* const mark = std::getenv("TARNWELL_TEST_MARK");
        std::printf("%s\n%s\n", ::getcwd(folder, sizeof folder), mark != nullptr ? mark : "");
        return 0;
    }
    if (act == "stands-alone") {
        std::printf("%d\n", child::standsAlone() ? 1 : 0);
        return 0;
    }
    if (act == "outlive") {
        return outlive(argument);
    }
    if (act == "flood-and-mark") {
        return floodAndMark(argument);
    }
    std::fprintf(stderr, "child_helper: no such act: %s\n", act.c_str());
    return 2;
}
