#include "app/replace_file.h"

#include "app/fault.h"

#include <QDir>
#include <QSaveFile>
#include <QThread>

namespace tarnwell {

namespace {

// On Windows, what looks for viruses or carries files into the net holds a file for a moment after each
// change, and nothing can take its place meanwhile.
constexpr int kTries = 4;
constexpr unsigned long kMillisecondsBetweenTries = 20;

bool writeAndCommit(QSaveFile& file, const QByteArray& bytes, const std::function<void()>& beforeStep) {
    const auto step = [&](auto act) {
        if (beforeStep)
            beforeStep();
        return act();
    };
    return step([&] { return file.open(QIODevice::WriteOnly); }) &&
           step([&] { return file.write(bytes) == bytes.size(); }) &&
           // Without this a full disk goes unnoticed, and what is left of the bytes takes the old file's
           // place.
           step([&] { return file.flush(); }) && step([&] { return file.commit(); });
}

} // namespace

void ReplaceFile(const QString& path, const QByteArray& bytes, const std::function<void()>& beforeStep) {
    for (int failures = 0;;) {
        QSaveFile file(path);
        if (writeAndCommit(file, bytes, beforeStep))
            return;
        if (file.error() != QFileDevice::RenameError || ++failures == kTries)
            throw Fault(QDir::toNativeSeparators(path) + " could not be written (" + file.errorString() +
                        "). The file stands as it was.");
        QThread::msleep(kMillisecondsBetweenTries);
    }
}

bool TryToReplaceFile(const QString& path, const QByteArray& bytes) {
    try {
        ReplaceFile(path, bytes);
        return true;
    } catch (const Fault&) {
        return false;
    }
}

} // namespace tarnwell
