#pragma once

#include "app/program.h"
#include "support/fake_ports.h"
#include "support/gtest_qt.h"
#include "ui/user_actions.h"

#include <QFile>

#include <gtest/gtest.h>

namespace tarnwell::test {

/// The whole program over ports that reach nothing: tests click, type and look, as a user would.
class ProgramTest : public testing::Test {
protected:
    ProgramTest() { putTool(); }

    void start() { program.start(); }

    void putTool() { writeFile("tarnwell.exe", "the simulated tool"); }
    void removeTool() { QFile::remove(path("tarnwell.exe")); }
    QString path(const QString& name) const { return ports.folders.folder + QDir::separator() + name; }
    void writeFile(const QString& name, const QByteArray& bytes) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void store(const QString& key, const QString& value) { program.shared().config.write(key, value); }
    QString stored(const QString& key) { return program.shared().config.text(key); }

    /// The commands that reached the tool so far, without its path.
    QStringList commands() const {
        QStringList all;
        for (const QString& line : ports.launcher.commandLines())
            all += withoutTool(line);
        return all;
    }
    /// What the program did through its ports so far, commands without the tool's path.
    Journal journal() const {
        Journal all;
        for (const QString& entry : ports.journal)
            all += entry.startsWith("run ") ? "run " + withoutTool(entry.mid(4)) : entry;
        return all;
    }
    QString lastMessage() const {
        return ports.dialogs.messages.empty() ? QString() : ports.dialogs.messages.back().text;
    }
    QStringList balloons() const {
        QStringList texts;
        for (const auto& balloon : ports.tray.balloons)
            texts += balloon.text;
        return texts;
    }
    static ChildScript silent() { return {}; }

    /// What the tool says when nothing goes wrong.
    void answerQueryWith(const QByteArray& lines) { ports.launcher.on("tarnwell.exe query", lines); }
    void answerTocWith(const QByteArray& lines) { ports.launcher.on("tarnwell.exe tarn_toc", lines); }
    void answerDiscInfoWith(const QByteArray& line) { ports.launcher.on("tarnwell.exe cdvd_info2", line); }

    static inline const QByteArray kTwoDisks = "\thdd1:  114473MB, formatted Playstation 2 HDD\r\n"
                                               "\thdd2:  38146MB, formatted Playstation 2 HDD\r\n";
    static inline const QByteArray kTwoGames = "type   size flags          dma startup      name\r\n"
                                               "DVD  4193280KB                SLUS_990.71 @@@Lantern\r\n"
                                               "CD    716800KB +1             SLES_990.03 @@@Copper Run\r\n"
                                               "total 114473MB, used 26712MB, available 87761MB\r\n";

    FakePorts ports;
    Program program{ports.ports()};
    ui::FrmMain& frmMain = program.shared().frmMain;
    ui::LoadedOnTouch<ui::FrmStatus>& frmStatus = program.shared().frmStatus;

private:
    QString withoutTool(const QString& commandLine) const {
        return commandLine.mid(ports.folders.folder.size() + QString("/tarnwell.exe ").size());
    }
};

} // namespace tarnwell::test
