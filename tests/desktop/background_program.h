#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// What a desktop consists of, each test's own: nothing of the desktop on which the tests run is touched.
namespace tarnwell::test {

/// A program that runs beside the test and ends with it at the latest.
class BackgroundProgram {
public:
    enum class Complaints { Shown, Dropped };

    BackgroundProgram(const QString& program, const QStringList& arguments,
                      const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
                      Complaints complaints = Complaints::Shown);
    ~BackgroundProgram() { end(); }
    BackgroundProgram(const BackgroundProgram&) = delete;
    BackgroundProgram& operator=(const BackgroundProgram&) = delete;

    /// Waits for the next line of its output while events are served; throws std::runtime_error if none
    /// comes.
    QByteArray line();
    void write(const QByteArray& bytes) { process_.write(bytes); }
    bool running() const { return process_.state() != QProcess::NotRunning; }
    void end();

private:
    QProcess process_;
};

/// A message bus without any service.
class MessageBus {
public:
    MessageBus();
    QByteArray address() const { return address_; }

private:
    QString writeConfiguration() const;

    QTemporaryDir folder_;
    BackgroundProgram daemon_;
    QByteArray address_;
};

/// A display that nobody sees.
class Display {
public:
    Display();
    QString name() const { return name_; }

private:
    BackgroundProgram server_;
    QString name_;
};

} // namespace tarnwell::test
