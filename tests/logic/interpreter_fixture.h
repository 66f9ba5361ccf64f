#pragma once

#include "base/fault.h"
#include "base/shared.h"
#include "interpreter/output_interpreter.h"
#include "support/fake_ports.h"
#include "support/gtest_qt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwell {

/// The program's windows with nothing behind them but the interpreter.
class InterpreterTest : public ::testing::Test {
protected:
    test::FakePorts outside;
    Shared shared{outside.ports()};
    OutputInterpreter interpreter{shared};
    ui::FrmMain& form = shared.frmMain;
    ui::FrmStatus& status = shared.frmStatus.untouched();

    void read(const QString& text) { interpreter.ParseToolOutput(text); }

    void addJobs(int count) {
        for (int i = 0; i < count; ++i)
            form.lstJob.append({"Pending", {}, {}});
    }

    /// As the queue runner leaves things while the tool works on a job.
    void runJob(int index, int jobs) {
        addJobs(jobs);
        shared.intJobIndex = static_cast<qint16>(index);
        shared.blnQueueRunning = true;
    }

    void runInstall() { shared.blnInstallRunning = true; }

    QString result(int job) const { return form.lstJob.row(job - 1).text; }
    QStringList messages() const { return outside.dialogs.messageTexts(); }
};

} // namespace tarnwell
