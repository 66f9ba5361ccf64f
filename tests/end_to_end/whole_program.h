#pragma once

#include "support/gtest_qt.h"
#include "tour/user.h"
#include "tour/workbench.h"

#include <QFile>

#include <gtest/gtest.h>

namespace tarnwell::test {

using tour::User;
using tour::Workbench;

/// Whether something outside this process comes true within half a minute.
bool comesTrue(const std::function<bool()>& condition);

/// The program as people run it: its windows, its ports, a tool that is a process of its own. A scenario
/// plays the user.
class WholeProgram : public testing::Test {
public:
    // What users do again and again.
    static void openDisk(User& user);
    static void openConsole(User& user);
    static void startInstall(User& user);
    static void waitForPercent(User& user, int percent);

protected:
    explicit WholeProgram(const QString& programFolder = "program") : bench(programFolder) {}

    void play(const std::function<void(User&)>& scenario) const;
    void pickImage(User& user, const QString& image) const;

    /// An image of a game, made by another program where there is one. It starts `SLUS_999.99` and holds
    /// bytes of all values.
    QString makeImage(const QString& file = "game.iso", const QString& label = "HARVEST") const;
    /// Copies a game from the disk to a file, with the tool alone.
    QByteArray extract(const QString& device, const QString& game) const;
    QString logged(const QString& command) const;
    /// From here on a shell script answers one of the tool's commands.
    void replaceTool(const QByteArray& command, const QByteArray& script) const;

    static QByteArray contents(const QString& file);
    static void write(const QString& file, const QByteArray& bytes);

    Workbench bench;
};

} // namespace tarnwell::test
