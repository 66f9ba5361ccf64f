#pragma once

#include "support/program_test.h"

namespace tarnwell::test {

/// A refreshed console and the job page open: jobs are put into the list, started and watched.
class QueueTest : public ProgramTest {
protected:
    static inline const QString kConsole = "192.168.0.10";
    static inline const QString kComplete = "Complete";
    static inline const QString kAborted = "Aborted";
    static inline const QString kDiskFull = "Error (Insufficient disk space)";
    static constexpr int kForEver = 100'000'000;

    QueueTest() {
        answerQueryWith(kTwoDisks);
        answerTocWith(kTwoGames);
        answerDiscInfoWith("DVD 4193280KB \"LANTERN\" \"SLUS_990.71\"\r\n");
        answerWith("inject", succeeding());
    }

    void startProgram() {
        start();
        ui::click(frmMain.cmdAttach);
        ui::click(frmMain.optJobQueue);
    }

    /// What the tool does with every command that begins with, or holds, `part`.
    void answerWith(const QString& part, const ChildScript& answer) { ports.launcher.on(part, answer); }
    static ChildScript succeeding() {
        return {.output = {{"1%, 12 min remaining, 3.50 MB/sec\r", 100},
                           {"50%, 6 min remaining, 4.00 MB/sec\r", 2000},
                           {"100%, 0 sec remaining, 4.00 MB/sec\r", 4000}},
                .endsAtMs = 4100};
    }
    static ChildScript failing(const QByteArray& words) {
        return {.output = {{"1%, 12 min remaining, 3.50 MB/sec\r", 100}, {words + "\r\n", 500}},
                .endsAtMs = 600};
    }
    static ChildScript endless() { return {.output = {{"1%\r", 100}}, .endsAtMs = kForEver}; }

    void addJob(const QString& command, const QString& task = "Install", const QString& source = "x.iso",
                const QString& destination = kConsole) {
        frmMain.lstJob.append(
            {.text = "Pending", .subItems = {task, source, destination, "", "", "", ""}, .tag = command});
        frmMain.cmdStart.enabled = true;
    }
    void addInstalls(int count) {
        for (int i = 1; i <= count; ++i)
            addJob("inject_dvd " + kConsole + " GAME" + QString::number(i) + " x.iso");
    }
    void runQueue() {
        showMain();
        EXPECT_TRUE(ui::click(frmMain.cmdStart));
    }
    void showMain() {
        if (!frmMain.shown())
            ports.tray.doubleClicked();
    }
    /// The user's way to change a job.
    void editCommand(int row, const QString& command) {
        showMain();
        frmMain.lstJob.select(row);
        ports.dialogs.inputAnswers.push_back(command);
        ui::pressMouse(frmMain.lstJob, 2);
    }
    /// The Cancel button, this long after now.
    void cancelAfter(int milliseconds) {
        ports.pump.after(milliseconds, [this] { EXPECT_TRUE(ui::click(frmStatus->cmdStop)); });
    }

    QStringList results() const {
        QStringList all;
        for (int i = 0; i < frmMain.lstJob.count(); ++i)
            all += frmMain.lstJob.row(i).text;
        return all;
    }
    /// The commands that jobs sent, by their kinds; queries and refreshes left out.
    QStringList jobCommands() const {
        QStringList all;
        for (const QString& command : commands()) {
            if (!command.startsWith("query") && !command.startsWith("tarn_toc") &&
                !command.startsWith("cdvd_info2"))
                all += command;
        }
        return all;
    }
    int refreshes() const { return static_cast<int>(commands().filter("tarn_toc").size()); }
};

/// The same with the program started.
class ReadyQueueTest : public QueueTest {
protected:
    ReadyQueueTest() { startProgram(); }
};

} // namespace tarnwell::test
