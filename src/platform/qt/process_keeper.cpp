#include "platform/qt/process_keeper.h"

#include <QProcess>

#include <set>

namespace tarnwell {

void keepUntilFinished(std::unique_ptr<QProcess> process) {
    if (process->state() == QProcess::NotRunning) {
        return;
    }
    // Never destroyed: the destructor of QProcess kills the process, and the end of this program is no reason
    // to.
    static auto& kept = *new std::set<QProcess*>;

    QProcess* const child = process.release();
    kept.insert(child);
    child->closeWriteChannel();
    QObject::connect(child, &QProcess::finished, child, [child] {
        kept.erase(child);
        child->deleteLater();
    });
}

} // namespace tarnwell
