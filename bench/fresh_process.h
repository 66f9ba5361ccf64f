#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <vector>

namespace tarnwell {
class DesktopProgram;
}

namespace tarnwell::bench {

/// Starts copies of the benchmark in a folder of their own, where the scripted tool lies beside them by the
/// name of the real one: the program looks for its tool and keeps its settings where it lies itself.
class FreshProcesses {
public:
    FreshProcesses();

    /// The numbers that the benchmark prints as the child `act`; none if it failed.
    std::vector<double> child(const QString& act, const QStringList& arguments = {}) const;
    /// When the first window of the program, and of a bare one, had been painted, and the kilobytes in use
    /// by then.
    std::vector<double> firstWindow() const { return run("first-window", {}); }
    std::vector<double> bareWindow() const { return run("bare-window", {}); }

    /// The program itself and a bare window, to be started by somebody else.
    QString program() const { return folder_.filePath("tarnwell-gui"); }
    QString bareWindowProgram() const { return folder_.filePath("bare-window"); }
    /// For any program: its windows on that X screen, its settings in a folder of the benchmark's.
    QProcessEnvironment environmentOn(const QString& display) const;

private:
    std::vector<double> run(const QString& program, const QStringList& arguments) const;

    QTemporaryDir folder_;
};

/// What a program prints; none if it failed.
std::vector<double> numbersPrintedBy(const QString& program, const QStringList& arguments,
                                     const QProcessEnvironment& environment);

/// In such a child: opens the program's main window, runs `work` in an event handler, and ends the program.
void inProgram(const std::function<void(DesktopProgram&)>& work);

/// Hands numbers to the process that has started this one.
void tell(const std::vector<double>& figures);

} // namespace tarnwell::bench
