#include "tour/guided_tour.h"
#include "ui/qt/application_font.h"

#include <QApplication>

#include <cstdio>

using namespace tarnwell;
using namespace tarnwell::tour;

namespace {

/// Slow enough that an install can be watched.
constexpr char kUnhurried[] = "delay_ms_per_step = 45\n";

/// The toolkit's notes about what a missing screen cannot do are no news here.
void tellErrorsOnly(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

/// Those of steps that the tour no longer has would stay for ever.
void removeOldPictures(QDir pictures) {
    for (const QString& picture : pictures.entryList({"[0-9][0-9]-*.png"}))
        pictures.remove(picture);
}

/// Pictures of the same windows are the same on every machine.
void lookTheSameEverywhere() {
    QApplication::setCursorFlashTime(0);
    if (QGuiApplication::platformName() == "offscreen")
        QApplication::setFont(QFont("DejaVu Sans", 9));
}

QString play(const QDir& pictures, const QString& lastPicture) {
    try {
        const Workbench bench;
        bench.behave(kUnhurried);
        DesktopProgram program{QtSystemFolders(bench.folder(), bench.folder())};
        return runWithUser(program, [&](User& user) { GuidedTour(user, bench, pictures).play(lastPicture); });
    } catch (const std::exception& error) {
        return QString::fromLocal8Bit(error.what());
    }
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", TARNWELL_TOUR_PLATFORM);
    qInstallMessageHandler(tellErrorsOnly);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    view::useOwnFont();
    lookTheSameEverywhere();
    if (argc != 2 && argc != 3) {
        std::fputs("usage: tarnwell-tour PICTURE_FOLDER [LAST_PICTURE]\n", stderr);
        return 2;
    }
    const QDir pictures(QString::fromLocal8Bit(argv[1]));
    pictures.mkpath(".");
    removeOldPictures(pictures);
    const QString trouble = play(pictures, QString::fromLocal8Bit(argv[2])); // nothing, if it is not given
    if (!trouble.isEmpty()) {
        std::fprintf(stderr, "The tour has ended early: %s\n", trouble.toLocal8Bit().constData());
        return 1;
    }
    std::printf("The pictures lie in %s\n", pictures.absolutePath().toLocal8Bit().constData());
    return 0;
}
