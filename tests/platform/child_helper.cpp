/// A console program that behaves in every way that the tests of the child process need. It uses nothing but
/// the system, so that what it does is what it says.

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>

namespace {

void print(const char* text) {
    [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, text, std::strlen(text));
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
        [[maybe_unused]] const ssize_t written =
            ::write(STDOUT_FILENO, bytes, static_cast<std::size_t>(count));
    }
    return 0;
}

void sayFarewell(int) {
    print("interrupted\n");
    ::_exit(3);
}

int hang() {
    for (;;) {
        ::pause();
    }
}

/// Leaves a file behind when it has outlived its parent and has tried to print to it.
int outlive(const char* markPath) {
    const pid_t parent = ::getppid();
    print("ready\n");
    for (int i = 0; i < 2000 && ::getppid() == parent; ++i) {
        ::usleep(5000);
    }
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
        return hang();
    }
    if (act == "exit") {
        return std::atoi(argument);
    }
    if (act == "hang") {
        print("ready\n");
        return hang();
    }
    if (act == "crash") {
        print("before the crash\n");
        return ::raise(SIGKILL); // the one crash that never leaves a core file behind
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
        return hang();
    }
    if (act == "deaf") {
        ::signal(SIGINT, SIG_IGN);
        print("ready\n");
        return hang();
    }
    if (act == "close-output") {
        print("last words\n");
        ::close(STDOUT_FILENO);
        ::close(STDERR_FILENO);
        return hang();
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
    if (act == "session") {
        std::printf("%d\n", ::getsid(0) == ::getpid() ? 1 : 0);
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
