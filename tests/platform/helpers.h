#pragma once

#include "platform/ports.h"
#include "platform/qt/qt_event_pump.h"
#include "platform/qt/qt_process_launcher.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QTimer>

#include <gtest/gtest.h>

/// What the tests of the real ports share.
namespace tarnwell::test {

constexpr int kPatienceMs = 10'000;

/// A program that was built beside the tests.
inline QString builtProgram(const char* name) {
    return QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
}

/// A path as the user would see it.
inline QString native(const QString& path) {
    return QDir::toNativeSeparators(path);
}

inline QString childCommand(const QString& act) {
    return native(builtProgram("child_helper")) + u' ' + act;
}

/// Null if it cannot be started.
inline std::unique_ptr<ChildProcess> startProgram(const QString& commandLine) {
    QString whyNot;
    return QtProcessLauncher().start(commandLine, whyNot);
}

inline std::unique_ptr<ChildProcess> startChild(const QString& act) {
    return startProgram(childCommand(act));
}

/// Serves events until the condition holds. False if that takes too long.
inline bool pumpUntil(const std::function<bool()>& condition) {
    QtEventPump pump;
    QElapsedTimer sinceStart;
    sinceStart.start();
    while (!condition()) {
        if (sinceStart.hasExpired(kPatienceMs)) {
            return false;
        }
        pump.waitForEvent(5);
    }
    return true;
}

/// Everything that the child prints until it has gone.
inline QByteArray readAll(ChildProcess& child, qsizetype chunk = 4096) {
    QByteArray output;
    EXPECT_TRUE(pumpUntil([&] {
        output += child.read(chunk);
        return !child.running();
    }));
    for (QByteArray rest = child.read(chunk); !rest.isEmpty(); rest = child.read(chunk)) {
        output += rest;
    }
    return output;
}

/// Reads until the text has arrived.
inline bool readUntil(ChildProcess& child, const QByteArray& text) {
    QByteArray output;
    return pumpUntil([&] {
        output += child.read(4096);
        return output.contains(text);
    });
}

/// Runs a program of one handler to its end, as the composition root does.
inline void runProgram(QtEventPump& pump, const std::function<void()>& handler) {
    QTimer watchdog;
    QTimer::singleShot(0, &watchdog, handler);
    QObject::connect(&watchdog, &QTimer::timeout, [] { qFatal("the program did not end"); });
    watchdog.start(kPatienceMs);
    pump.run();
}

} // namespace tarnwell::test
