/// Stands in for the tool where its timing must be known exactly:
///   progress LINES-PER-SECOND SECONDS   prints progress lines, evenly spread
///   cdvd_info2 IMAGE                    is asked about an image, and knows it at once
///   farewell MILLISECONDS               lives so long, prints the time in nanoseconds, and is gone
///   extract MILLISECONDS                lives so long, is a job that succeeds, and notes its start and its
///                                       end, in nanoseconds, in the file `stamps` beside it
///   extract work                        the same with always the same work: a hundred times a wait, as for a
///                                       disk, and some computing

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>

using Clock = std::chrono::steady_clock;

static void progress(int linesPerSecond, int seconds) {
    auto next = Clock::now();
    for (int i = 0; i < linesPerSecond * seconds; ++i) {
        std::printf("%3d%%, %d min remaining, %d.%02d MB/sec\r", i / 10 % 100, i / 50 % 60, i % 4, i % 100);
        std::fflush(stdout);
        next += std::chrono::nanoseconds(std::chrono::seconds(1)) / linesPerSecond;
        std::this_thread::sleep_until(next);
    }
}

static void farewell(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    std::printf("%lld\n", static_cast<long long>(Clock::now().time_since_epoch().count()));
    std::fflush(stdout);
    std::_Exit(0);
}

/// Notes the time since `start`, and is gone.
[[noreturn]] static void stamp(const std::string& program, Clock::time_point start) {
    std::FILE* const stamps = std::fopen((program.substr(0, program.rfind('/') + 1) + "stamps").c_str(), "a");
    if (!stamps)
        std::_Exit(1);
    std::fprintf(stamps, "%lld %lld\n", static_cast<long long>(start.time_since_epoch().count()),
                 static_cast<long long>(Clock::now().time_since_epoch().count()));
    std::fclose(stamps);
    std::_Exit(0);
}

static void discInfo() {
    std::printf("DVD 4193280KB \"LANTERN\" \"SLUS_990.71\"\r\n");
}

static void extract(const char* program, int milliseconds) {
    const auto start = Clock::now();
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    std::printf("100%%, 0 min remaining, 9.00 MB/sec\r");
    std::fflush(stdout);
    stamp(program, start);
}

static void work(const char* program) {
    constexpr auto kWait = std::chrono::milliseconds(5);
    constexpr int kRoundsPerPercent = 500'000;
    const auto start = Clock::now();
    volatile unsigned sum = 0;
    for (int percent = 1; percent <= 100; ++percent) {
        std::this_thread::sleep_for(kWait);
        for (int i = 0; i < kRoundsPerPercent; ++i)
            sum = sum * 31 + static_cast<unsigned>(i);
        std::printf("%3d%%, 1 min remaining, 9.00 MB/sec\r", percent);
        std::fflush(stdout);
    }
    stamp(program, start);
}

int main(int argc, char** argv) {
    if (argc == 4 && argv[1] == std::string_view("progress"))
        progress(std::atoi(argv[2]), std::atoi(argv[3]));
    else if (argc == 3 && argv[1] == std::string_view("cdvd_info2"))
        discInfo();
    else if (argc == 3 && argv[1] == std::string_view("farewell"))
        farewell(std::atoi(argv[2]));
    else if (argc == 3 && argv[1] == std::string_view("extract") && argv[2] == std::string_view("work"))
        work(argv[0]);
    else if (argc == 3 && argv[1] == std::string_view("extract"))
        extract(argv[0], std::atoi(argv[2]));
    else
        return 2;
    return 0;
}
