#include "base/replace_file.h"

#include "base/fault.h"

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
        beforeStep();
        return act();
    };
    return step([&] { return file.write(bytes) == bytes.size(); }) &&
           // Without this a full disk goes unnoticed, and what is left of the bytes takes the old file's
           // place.
           step([&] { return file.flush(); }) && step([&] { return file.commit(); });
}

bool writeAt(QFile& file, qint64 at, const QByteArray& bytes) {
    return file.seek(at) && file.write(bytes) == bytes.size();
}

/// A folder may take no new file though one in it may be written.
bool writeInPlace(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered))
        return false;
    const qint64 oldSize = file.size();
    const qsizetype withinOld = qMin(static_cast<qsizetype>(oldSize), bytes.size());
    // What needs new room comes first: if there is none, no old byte has been touched.
    if (!writeAt(file, withinOld, bytes.mid(withinOld))) {
        file.resize(oldSize);
        return false;
    }
    return writeAt(file, 0, bytes.first(withinOld)) && file.resize(bytes.size());
}

} // namespace

void ReplaceFile(const QString& path, const QByteArray& bytes, const std::function<void()>& beforeStep) {
    for (int failures = 0;;) {
        QSaveFile file(path);
        beforeStep();
        const bool folderTakesIt = file.open(QIODevice::WriteOnly);
        if (folderTakesIt ? writeAndCommit(file, bytes, beforeStep) : writeInPlace(path, bytes))
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
