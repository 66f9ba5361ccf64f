#include "app/desktop/desktop_program.h"
#include "first_paint.h"
#include "measurements.h"
#include "ui/user_actions.h"

#include <QApplication>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

namespace tarnwell::bench {

namespace {

constexpr double kMostMsAnImage = 60;

QStringList makeImages(const QTemporaryDir& folder, int count) {
    QStringList images;
    for (int i = 0; i < count; ++i) {
        images += folder.filePath(QString("%1.iso").arg(i));
        (void)QFile(images.back()).open(QIODevice::WriteOnly);
    }
    return images;
}

} // namespace

void measureDroppedImages(const FreshProcesses& processes, const Effort& effort, Report& report) {
    const std::vector<double> figures = processes.child("dropped-images", {QString::number(effort.jobs)});
    const bool filled = figures.size() == 2 && static_cast<int>(figures[1]) == effort.jobs;
    report.add({.what = QString("From a drop of %1 images to the filled queue").arg(effort.jobs),
                .measured = filled ? figures[0] / kNanosecondsPerMillisecond : 0,
                .unit = "ms",
                .atMost = effort.jobs * kMostMsAnImage});
}

void droppedImages(int images) {
    inProgram([images](DesktopProgram& desktop) {
        ui::FrmMain& frmMain = desktop.program().shared().frmMain;
        frmMain.picDiskSpace.tag = QString("1000000");
        frmMain.cmdAddGame.enabled = true;
        const QTemporaryDir folder;
        const QStringList files = makeImages(folder, images);
        QTimer user; // who closes the box at the end
        QObject::connect(&user, &QTimer::timeout, [] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                box->accept();
        });
        user.start(1);
        const double time = nanosecondsOf([&] { ui::dropFiles(frmMain, files); });
        tell({time, static_cast<double>(frmMain.lstJob.count())});
    });
}

} // namespace tarnwell::bench
