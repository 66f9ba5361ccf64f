#include "work/sounds.h"

#include "base/picked_path.h"

namespace tarnwell {

namespace {

const QString kNone = QStringLiteral("[none selected]");
const QString kTaskWords = QStringLiteral("Sound when task completes: ");
const QString kTasksWords = QStringLiteral("Sound when all tasks complete: ");
const QString kTaskKey = QStringLiteral("TaskSound");
const QString kTasksKey = QStringLiteral("TasksSound");

QString orNone(const QString& path) {
    return path.isEmpty() ? kNone : path;
}

/// The file that an entry's caption names, if it names one: a file's own colons come after the caption's.
QString chosen(const ui::MenuEntry& entry) {
    const QString& caption = entry.caption;
    return caption.mid(caption.indexOf(u':') + 2);
}

} // namespace

Sounds::Sounds(Shared& shared) : shared_(shared) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.mnuTaskSound.Click = [this, &frmMain] { choose(frmMain.mnuTaskSound, kTaskWords, kTaskKey); };
    frmMain.mnuTasksSound.Click = [this, &frmMain] { choose(frmMain.mnuTasksSound, kTasksWords, kTasksKey); };
}

void Sounds::load() {
    shared_.frmMain.mnuTaskSound.caption = kTaskWords + orNone(shared_.config.text(kTaskKey));
    shared_.frmMain.mnuTasksSound.caption = kTasksWords + orNone(shared_.config.text(kTasksKey));
}

void Sounds::choose(ui::MenuEntry& entry, const QString& words, const QString& key) {
    const auto path =
        shared_.ports.dialogs.openFile({.title = "Select Sound File",
                                        .filter = "Wave files (*.wav)|*.wav|All Files (*.*)|*.*|",
                                        .extension = "*.wav"});
    // Cancelling is how a sound is taken off.
    const auto name = path && !path->isEmpty() ? NameInCodePage(shared_, *path) : kNone;
    if (!name)
        return;
    entry.caption = words + *name;
    shared_.config.write(key, *name);
}

void Sounds::afterJob() {
    const QString sound = chosen(shared_.frmMain.mnuTaskSound);
    const bool endSoundFollows = chosen(shared_.frmMain.mnuTasksSound) != kNone;
    const int jobs = shared_.frmMain.lstJob.count();
    if (sound != kNone && (shared_.intJobIndex < jobs || !endSoundFollows))
        shared_.ports.sound.play(sound);
}

void Sounds::afterQueue() {
    const QString sound = chosen(shared_.frmMain.mnuTasksSound);
    if (sound != kNone)
        shared_.ports.sound.play(sound);
}

} // namespace tarnwell
