#include "status/jobs.h"

#include "base/shared.h"

namespace tarnwell {

namespace {

/// The columns behind the result.
enum SubItem { kTask, kSource, kDestination, kName };

} // namespace

Jobs::Jobs(Shared& shared) : shared_(shared), lstJob_(shared.frmMain.lstJob) {}

int Jobs::count() const {
    return lstJob_.count();
}

void Jobs::AddJob(const Job& job) {
    lstJob_.append(
        {.text = kPending,
         .subItems = {job.task, job.source, job.destination, job.name, job.startup, job.type, job.flags}});
}

QString Jobs::command(int row) const {
    return lstJob_.row(row).tag;
}

void Jobs::setCommand(int row, const QString& command) {
    lstJob_.setTag(row, command);
}

bool Jobs::editable(int row) const {
    return lstJob_.row(row).text != kActive && !complete(row);
}

bool Jobs::complete(int row) const {
    return lstJob_.row(row).text == kComplete;
}

void Jobs::setResult(int row, const QString& result) {
    lstJob_.setText(row, result);
}

void Jobs::setRunningResult(const QString& result) {
    const int row = shared_.intJobIndex - 1;
    if (!shared_.blnInstallRunning && row >= 0 && row < count())
        setResult(row, result);
}

void Jobs::resetResults() {
    for (int row = 0; row < count(); ++row) {
        if (!complete(row))
            setResult(row, kPending);
    }
}

void Jobs::abortFrom(int row) {
    for (; row < count(); ++row)
        setResult(row, kAborted);
}

bool Jobs::touch(const QString& device) const {
    for (int row = 0; row < count(); ++row) {
        const QStringList& job = lstJob_.row(row).subItems;
        if (job[kDestination] == device || (job[kTask] == QLatin1String("Delete") && job[kSource] == device))
            return true;
    }
    return false;
}

bool Jobs::bring(const QString& name, const QString& device) const {
    for (int row = 0; row < count(); ++row) {
        const QStringList& job = lstJob_.row(row).subItems;
        if (job[kDestination] == device && job[kName] == name)
            return true;
    }
    return false;
}

} // namespace tarnwell
