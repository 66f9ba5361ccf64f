#include "settings/replace_file.h"

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
    demand([&] { return file.flush(); });
    demand([&] { return file.commit(); });
}

} // namespace tarnwell
