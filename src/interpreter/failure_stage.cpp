#include "interpreter/failure_stage.h"

#include "base/shared.h"
#include "base/text_primitives.h"
#include "status/jobs.h"

namespace tarnwell {

namespace {

const char kConnectionClosed[] = "existing connection was forcibly closed by the remote host";
const char kConnectionRefused[] =
    "No connection could be made because the target machine actively refused it.";
const char kSptiError[] = "SPTI error:";

const char kRestartServer[] =
    "An error has occurred and you may need to restart tarnd_svr.elf if this error message persists.";

/// What the tool and the system say, and what the job list makes of it. The first that fits counts.
struct Failure {
    const char* words;
    const char* result;
};
constexpr Failure kFailures[] = {
    {"Interrupted.", kAborted},
    {"Input or output is unsupported.", "Error (Input or output is unsupported)"},
    {": The file exists.", "Error (File already exists)"},
    {"not enough free space.", "Error (Insufficient disk space)"},
    {"There is not enough space on the disk.", "Error (Insufficient disk space)"},
    {"The parameter is incorrect.", "Error (The parameter is incorrect)"},
    {kConnectionRefused, "Error (Connection lost)"},
};

/// The code behind "SPTI error: ", up to the next blank or the end.
QString sptiCode(const QString& text) {
    constexpr qsizetype kCodeColumn = 13;
    const qsizetype blank = InStr(text, " ", kCodeColumn + 1);
    return blank == 0 ? Mid(text, kCodeColumn) : Mid(text, kCodeColumn, blank - kCodeColumn);
}

QString resultOf(const QString& text) {
    for (const Failure& failure : kFailures) {
        if (text.contains(QLatin1String(failure.words)))
            return failure.result;
    }
    if (text.contains(QLatin1String(kSptiError)))
        return "SPTI Error (" + sptiCode(text) + ')';
    return "Error (" + text + ')';
}

} // namespace

bool IsConnectionFailure(const QString& text) {
    return text.contains(QLatin1String(kConnectionClosed)) ||
           text.contains(QLatin1String(kConnectionRefused));
}

void ReportConnectionFailure(Shared& shared) {
    Jobs(shared).setRunningResult("Error (Could not connect to PS2, restart tarnd_svr.elf)");
    // The game list that was asked for will not come; the flag stays up, as the tool may still be talking.
    if (shared.blnReadTOC)
        shared.message(kRestartServer, MessageIcon::Stop);
}

void ReadJobFailure(Shared& shared, const QString& text) {
    Jobs(shared).setRunningResult(resultOf(text));
    shared.blnJobDone = true;
}

} // namespace tarnwell
