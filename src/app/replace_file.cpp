#include "app/replace_file.h"

#include "app/fault.h"

#include <QDir>
#include <QSaveFile>

namespace tarnwell {

void ReplaceFile(const QString& path, const QByteArray& bytes, const std::function<void()>& beforeStep) {
    QSaveFile file(path);
    const auto demand = [&](auto step) {
        if (beforeStep)
            beforeStep();
        if (!step())
            throw Fault(QDir::toNativeSeparators(path) + " could not be written (" + file.errorString() +
                        "). The file stands as it was.");
    };
    demand([&] { return file.open(QIODevice::WriteOnly); });
    demand([&] { return file.write(bytes) == bytes.size(); });
    // Without this a full disk goes unnoticed, and what is left of the bytes takes the old file's place.
    demand([&] { return file.flush(); });
    demand([&] { return file.commit(); });
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
