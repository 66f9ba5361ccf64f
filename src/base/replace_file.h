#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace tarnwell {

/// Puts `bytes` in the place of a file, as a whole: whatever goes wrong on the way, the old file stands. In a
/// folder that takes no new files the old one is written over, if it may be written: there nothing is lost by
/// a full disk, but by the end of the program in the middle. A failure is a Fault. A file that another
/// program holds is waited for, 60 milliseconds at most. `beforeStep` is called before each single step on
/// the disk and may throw.
void ReplaceFile(
    const QString& path, const QByteArray& bytes, const std::function<void()>& beforeStep = [] {});

/// The same for files whose failure nobody is told of. Whether the new bytes are there.
bool TryToReplaceFile(const QString& path, const QByteArray& bytes);

} // namespace tarnwell
