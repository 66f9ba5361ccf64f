#include "ui/qt/main_window_hints.h"

#include "ui/qt/captions.h"
#include "ui/qt/rows_view.h"

#include <QComboBox>
#include <QLineEdit>

namespace tarnwell::view {

namespace {

QString pressTo(const ui::Button& button, const char* purpose) {
    return QStringLiteral("Press %1 to %2").arg(shownCaption(button.caption), QLatin1String(purpose));
}

void hintAtGames(ui::FrmMain& form, ControlBinder& controls) {
    auto* games = static_cast<RowsView*>(controls.widget(form.lstHD));
    const auto show = [&form, games, unread = form.lblDiskSpace.caption.get()] {
        const bool deviceRead = form.lblDiskSpace.caption.get() != unread;
        games->setHint(deviceRead ? QStringLiteral("There are no games here")
                                  : pressTo(form.cmdAttach, "list the games"));
    };
    controls.binding().follow(form.cmdAttach.caption.changed, *games, show);
    controls.binding().listen(form.lblDiskSpace.caption.changed, *games, show);
}

void hintAtJobs(ui::FrmMain& form, ControlBinder& controls) {
    static_cast<RowsView*>(controls.widget(form.lstJob))
        ->setHint("No jobs yet: installs, copies and deletes that you add to the queue wait here");
}

void hintAtSource(ui::FrmMain& form, ControlBinder& controls) {
    static_cast<QLineEdit*>(controls.widget(form.txtISO))
        ->setPlaceholderText(QStringLiteral("Choose one with %1").arg(shownCaption(form.cmdISO.caption)));
    static_cast<QComboBox*>(controls.widget(form.cmbOptical))
        ->setPlaceholderText("Choose the drive with the disc");
}

/// The page stays greyed until both the device and a source have been read.
void hintAtInstall(ui::FrmMain& form, ControlBinder& controls) {
    auto* name = static_cast<QLineEdit*>(controls.widget(form.txtGameName));
    const auto show = [&form, name] {
        name->setPlaceholderText(form.cmdInstall.enabled ? QStringLiteral("Comes from the image or disc")
                                                         : pressTo(form.cmdAttach, "be able to install"));
    };
    controls.binding().follow(form.cmdInstall.enabled.changed, *name, show);
    controls.binding().listen(form.cmdAttach.caption.changed, *name, show);
}

} // namespace

void showHints(ui::FrmMain& form, ControlBinder& controls) {
    hintAtGames(form, controls);
    hintAtJobs(form, controls);
    hintAtSource(form, controls);
    hintAtInstall(form, controls);
}

} // namespace tarnwell::view
