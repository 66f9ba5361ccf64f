#include "ui/qt/dropped_files.h"

#include "ui/qt/event_watcher.h"
#include "ui/user_actions.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace tarnwell::view {

namespace {

bool isDrag(const QEvent& event) {
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
           event.type() == QEvent::Drop;
}

QStringList pathsOf(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            paths += url.toLocalFile();
    }
    return paths;
}

bool takes(const ui::Form& form, const QDropEvent& event, const QStringList& paths) {
    return QApplication::activeModalWidget() == nullptr && event.possibleActions().testFlag(Qt::CopyAction) &&
           !paths.isEmpty() && ui::takesFiles(form, paths);
}

} // namespace

void takeDroppedFiles(ui::Form& form, QWidget& window) {
    window.setAcceptDrops(true);
    new EventWatcher(window, [&form, &window](QEvent& event) {
        if (!isDrag(event))
            return false;
        auto& drag = static_cast<QDropEvent&>(event);
        const QStringList paths = pathsOf(*drag.mimeData());
        const bool taken = takes(form, drag, paths);
        // A file manager that took this for a move would delete its files.
        drag.setDropAction(taken ? Qt::CopyAction : Qt::IgnoreAction);
        drag.setAccepted(taken);
        // The file manager waits until this event is done, and reading images takes long.
        if (taken && event.type() == QEvent::Drop)
            QMetaObject::invokeMethod(
                &window,
                [&form, &window, paths] {
                    window.activateWindow();
                    ui::dropFiles(form, paths);
                },
                Qt::QueuedConnection);
        return true;
    });
}

bool leavesFilesToWindow(QEvent& event) {
    if (!isDrag(event) || !static_cast<QDropEvent&>(event).mimeData()->hasUrls())
        return false;
    event.ignore();
    return true;
}

} // namespace tarnwell::view
