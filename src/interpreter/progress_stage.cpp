#include "interpreter/progress_stage.h"

#include "base/fault.h"
#include "base/mod_tray_icon.h"
#include "base/shared.h"
#include "base/text_primitives.h"
#include "status/jobs.h"
#include "status/percent_bar.h"

#include <cmath>

namespace tarnwell {

namespace {

constexpr QLatin1String kSpeedPrefix("Speed: ");

/// The words between the first comma and the one in front of the speed.
QString remainingTime(const QString& text) {
    const qsizetype firstComma = InStr(text, ",");
    const qsizetype commaOfSpeed = InStrRev(text, ",", InStr(text, "MB/"));
    return Mid(text, firstComma + 2, commaOfSpeed - firstComma - 2);
}

QString speed(const QString& text) {
    return Mid(text, InStrRev(text, ",") + 2);
}

QString percentText(const QString& text) {
    return LTrim(text.left(text.indexOf('%')));
}

/// How much of the whole queue is done.
qint32 overallPercent(const Shared& shared, double percent, int jobs) {
    qint16 finished = 0;
    try {
        finished = RoundToInt16(100.0 / jobs * (shared.intJobIndex - 1));
    } catch (const Fault&) {
        // A row number far beyond the list: the running job alone is shown.
    }
    return static_cast<qint32>(std::floor(percent / jobs + finished));
}

void showOverall(Shared& shared, qint32 percent) {
    PercentBar(shared.frmStatus->picOverall, 100, percent, shared.ports.pump);
    shared.ports.taskbar.show(qBound(0, percent, 100));
}

void showQueue(Shared& shared, const QString& percent, int jobs) {
    const qint32 overall = overallPercent(shared, Val(percent), jobs);
    showOverall(shared, overall);
    shared.frmStatus->picOverall.tag = QString::number(overall);
    TrayTip(shared.ports.tray, QStringLiteral("Current: %1%\r\nOverall: %2%\r\nJob %3 of %4\r\n%5")
                                   .arg(percent, shared.frmStatus->picOverall.tag.get())
                                   .arg(shared.intJobIndex)
                                   .arg(jobs)
                                   .arg(shared.frmStatus->lblSpeed.caption.get()));
}

void showJob(Shared& shared, const QString& percent) {
    showOverall(shared, RoundToInt32(Val(percent)));
    TrayTip(shared.ports.tray, percent + "%\r\n" + shared.frmStatus->lblSpeed.caption.get());
}

/// The title of the status window: minimised, it is all that the user sees of it.
QString windowCaption(Shared& shared, const QString& percent, ProgressOf mode, int jobs) {
    if (shared.frmStatus->windowState != ui::WindowState::Minimised)
        return " Status";
    if (mode == ProgressOf::Job)
        return percent + "% Complete [" + shared.frmStatus->lblSpeed.caption.get().mid(kSpeedPrefix.size());
    return QStringLiteral("%1% - %2% - Job %3 / %4")
        .arg(percent, shared.frmStatus->picOverall.tag.get())
        .arg(shared.intJobIndex)
        .arg(jobs);
}

void completeJob(Shared& shared) {
    Jobs(shared).setRunningResult(kComplete);
    shared.blnJobDone = true;
    shared.blnQueueRunning = false;
    shared.blnInstallRunning = false;
}

} // namespace

ProgressOf ReadProgress(Shared& shared, const QString& text) {
    if (text.contains(QLatin1String("remaining")))
        shared.frmStatus->lblRemaining.caption = remainingTime(text);
    if (text.contains(QLatin1String("MB/sec")))
        shared.frmStatus->lblSpeed.caption = kSpeedPrefix + speed(text);

    const QString percent = percentText(text);
    PercentBar(shared.frmStatus->picCurrent, 100, RoundToInt32(Val(percent)), shared.ports.pump);
    shared.frmStatus->picCurrent.tag = percent;

    const int jobs = shared.frmMain.lstJob.count();
    const ProgressOf mode = !shared.blnInstallRunning && jobs >= 2 ? ProgressOf::Queue : ProgressOf::Job;
    if (mode == ProgressOf::Queue)
        showQueue(shared, percent, jobs);
    else
        showJob(shared, percent);
    shared.frmStatus->caption = windowCaption(shared, percent, mode, jobs);

    if (percent == QLatin1String("100"))
        completeJob(shared);
    return mode;
}

} // namespace tarnwell
