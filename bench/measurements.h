#pragma once

#include "fresh_process.h"
#include "report.h"

/// One file a measurement. Each has a part that reports, and one that runs in a fresh process, the child.
namespace tarnwell::bench {

/// How much of each is done.
struct Effort {
    int starts;
    int progressSeconds;
    int commands;
    int rounds;
    int jobs;
    int peerStarts; ///< after a first one that does not count; 0: that one counts
};

void measureFirstWindow(const FreshProcesses& processes, const Effort& effort, Report& report);
void measurePeers(const FreshProcesses& processes, const Effort& effort, Report& report);
/// Where the Windows programs were built.
void measureWineStarts(const FreshProcesses& processes, const Effort& effort, Report& report);
void measureProgressLoad(const FreshProcesses& processes, const Effort& effort, Report& report);
void measureCommandDelay(const FreshProcesses& processes, const Effort& effort, Report& report);
void measureInterpreterSpeed(const FreshProcesses& processes, const Effort& effort, Report& report);
void measureGameList(const FreshProcesses& processes, const Effort& effort, Report& report);
void measureSortedList(const FreshProcesses& processes, const Effort& effort, Report& report);
void measureScale(const FreshProcesses& processes, const Effort& effort, Report& report);
void measureQueueOverhead(const FreshProcesses& processes, const Effort& effort, Report& report);
void measureDroppedImages(const FreshProcesses& processes, const Effort& effort, Report& report);
void measureStatusPages(const FreshProcesses& processes, const Effort& effort, Report& report);

/// The children; the argument is the part of the effort that concerns them.
void progressLoad(int seconds);
void commandDelay(int commands);
void interpreterSpeed(int rounds);
void gameList(int rounds);
void sortedList(int rounds);
void scale(int rounds);
void queueOverhead(int jobs);
void droppedImages(int images);
void statusPages(int rounds);
void wineStarts(int starts);

} // namespace tarnwell::bench
