#pragma once

#include "tour/user.h"
#include "tour/workbench.h"

#include <QDir>
#include <QImage>
#include <QStringList>

namespace tarnwell::tour {

/// Shows what the program can do: a console and a disk are looked at, a sample image is installed, a queue of
/// jobs is worked off, the settings are looked at. Each step leaves a picture and a line of plain words; one
/// that goes otherwise than expected ends the tour.
class GuidedTour {
public:
    GuidedTour(User& user, const Workbench& bench, const QDir& pictures)
        : user_(user), bench_(bench), pictures_(pictures), samples_(bench.makeSamples()),
          image_(samples_ + "/cd-game.iso"), backup_(bench.path("Salt and Sand.iso")) {}

    /// To the end, or to that of the scene with the picture `lastPicture`.
    void play(const QString& lastPicture = {});

private:
    void readConsole();
    void readDisk();
    void lookAtImage();
    void cancelInstall();
    void completeInstall();
    void lookAtResult();
    void queueJobs();
    void cancelQueue();
    void completeQueue();
    void dropImages();
    void sortGames();
    void useKeys();
    void lookAtSettings();
    void changeLook();
    void lookAtAbout();

    void queueInstall();
    void queueMakeIso();
    void waitForHalfOfJob(int job);
    void expectResults(const QStringList& results);
    void fillInstallPage();
    void startInstall();
    /// Side by side, while work is under way.
    void showBothWindows();
    /// Both windows hide when an install has ended; the status window comes back with the main window.
    void showWindows();
    void waitForPercent(int percent);
    void tell(const QString& picture, const QString& words);
    /// Of windows that look the same twice, unless work is under way in them.
    QImage calmPicture();

    User& user_;
    const Workbench& bench_;
    const QDir pictures_;
    const QString samples_, image_, backup_;
    QStringList told_;
};

} // namespace tarnwell::tour
