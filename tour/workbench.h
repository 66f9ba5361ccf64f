#pragma once

#include <QString>
#include <QTemporaryDir>

namespace tarnwell::tour {

/// A folder for one run of the program, gone afterwards: a copy of the simulated tool in it, with a fresh
/// world of disks, drives and a console.
class Workbench {
public:
    /// `name` is the name of the program's folder. Throws std::runtime_error if there is no tool to be
    /// copied.
    explicit Workbench(const QString& name = "program");

    QString folder() const { return folder_; }
    /// As the system writes paths.
    QString path(const QString& file) const;
    QString tool() const { return path("tarnwell.exe"); }

    /// Replaces what the simulated tool does besides its work.
    void behave(const QString& lines) const;
    /// Every command that was run, and how it ended.
    QString log() const;
    /// Runs the simulated tool by itself and returns what it printed.
    QString run(const QStringList& arguments) const;
    /// A folder with the sample images.
    QString makeSamples() const;

private:
    QTemporaryDir scratch_;
    QString folder_;
};

/// A program that was built beside this one.
QString builtProgram(const QString& name);
/// Runs a program to its end and returns what it printed. Throws std::runtime_error if it fails.
QString runToEnd(const QString& program, const QStringList& arguments, const QString& folder = {});

} // namespace tarnwell::tour
