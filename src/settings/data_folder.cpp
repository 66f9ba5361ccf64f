#include "settings/data_folder.h"

#include "base/picked_path.h"
#include "base/text_primitives.h"
#include "settings/tool_config_text.h"

#include <QDir>

namespace tarnwell {

namespace {

constexpr qsizetype kDrive = 2; ///< characters of a drive, such as C:
constexpr qsizetype kRoot = 3;  ///< and of its root

QString firstForm(const QString& root, const QString& user) {
    return root + "Documents and Settings\\" + user + "\\Application Data\\";
}

QString secondForm(const QString& root, const QString& user) {
    return root + "Users\\" + user + "\\AppData\\Roaming\\";
}

QString rootOf(const WindowsProfile& profile) {
    return profile.windowsFolder.left(kRoot);
}

bool holdsPlainFile(const QString& folder) {
    return FileExists(folder + '*');
}

/// A root keeps its separator. The folders of a Windows profile have backslashes wherever they are looked at.
QString forPicker(const QString& folder) {
    const bool ends = folder.endsWith(QDir::separator()) || folder.endsWith(u'\\');
    return folder.size() > kRoot && ends ? folder.chopped(1) : folder;
}

} // namespace

DataFolder::DataFolder(Shared& shared, ToolConfig& toolConfig) : shared_(shared), toolConfig_(toolConfig) {
    shared_.frmSettings.untouched().cmdApplicationData.Click = [this] { choose(); };
}

void DataFolder::settle() {
    find();
    shared_.frmSettings->txtApplicationData.text = toolConfig_.folder();
}

void DataFolder::find() {
    if (toolConfig_.exists())
        return;
    if (takeIfThere(systemFolder()))
        return;
    if (const auto profile = shared_.ports.folders.windowsProfile()) {
        const QString root = Trim(profile->windowsFolder).left(kDrive) + '\\', user = Trim(profile->userName);
        if (takeIfThere(firstForm(root, user)) || takeIfThere(secondForm(root, user)))
            return;
    }
    askUser();
}

void DataFolder::reset() {
    QString folder = systemFolder();
    const auto profile = shared_.ports.folders.windowsProfile();
    if (!DirExists(folder) && profile) {
        const QString known = firstForm(rootOf(*profile), profile->userName);
        folder = holdsPlainFile(known) ? known : QString();
    }
    if (!takeIfThere(folder)) {
        shared_.frmSettings->cmdApplicationData.Click();
        return;
    }
    auto& frmSettings = shared_.frmSettings;
    frmSettings->txtDiscDatabase.text = frmSettings->txtApplicationData.text + kDiscDatabase;
}

/// A folder whose name the store and the tool's file cannot hold, such as that of a user with a name from
/// elsewhere, counts as not there.
bool DataFolder::takeIfThere(const QString& folder) {
    const QString known = shared_.ports.folders.pathInCodePage(folder);
    if (!DirExists(known))
        return false;
    take(known);
    return true;
}

void DataFolder::take(const QString& folder) {
    toolConfig_.setFolder(folder);
    shared_.frmSettings->txtApplicationData.text = folder;
}

void DataFolder::askUser() {
    auto& frmSettings = shared_.frmSettings;
    frmSettings->show();
    frmSettings->TabStrip.selectedTab = ui::FrmSettings::kGuiTab;
    shared_.message(
        "Please locate your \"Application Data\" folder. If you feel as if you already selected the "
        "correct directory then try running a command with tarnwell so that the config file gets "
        "written.");
    frmSettings->cmdApplicationData.Click();
}

void DataFolder::choose() {
    auto& frmSettings = shared_.frmSettings;
    frmSettings->txtDefaultPath.text = startFolder();
    const auto chosen = shared_.ports.dialogs.chooseFolder(
        {.title = pickerTitle(), .folder = forPicker(frmSettings->txtDefaultPath.text)});
    if (!chosen)
        return;
    const auto folder = NameInCodePage(shared_, WithSeparator(*chosen));
    if (!folder)
        return;
    if (!ToolConfig::existsIn(*folder)) {
        shared_.message(
            "The tarnwell configuration file was not found in the selected directory. If you feel "
            "that you selected the correct directory and you still get this error message, try "
            "running tarnwell.exe from the command line so the config file will get written.");
        enableToolSettings(false);
        return;
    }
    take(*folder);
    toolConfig_.LoadToolSettings();
    enableToolSettings(true);
}

void DataFolder::enableToolSettings(bool enable) {
    ui::FrmSettings& form = *shared_.frmSettings;
    for (ui::Control* control : std::initializer_list<ui::Control*>{
             &form.chkAutoThrottle, &form.chkEnableASPI, &form.chkLimit28bit, &form.chkUseCompression,
             &form.chkToxicOS, &form.txtTargetkbps, &form.txtDiscDatabase})
        control->enabled = enable;
}

QString DataFolder::systemFolder() const {
    const QString folder = shared_.ports.folders.applicationData();
    return folder.isEmpty() ? folder : WithSeparator(folder);
}

QString DataFolder::startFolder() const {
    const auto profile = shared_.ports.folders.windowsProfile();
    if (!profile)
        return systemFolder();
    const QString root = rootOf(*profile);
    const QString home = root + "documents and settings\\" + profile->userName + '\\';
    return holdsPlainFile(home) ? home : root;
}

QString DataFolder::pickerTitle() const {
    const auto profile = shared_.ports.folders.windowsProfile();
    const QString folder = profile ? firstForm(rootOf(*profile), profile->userName) : systemFolder();
    return "Locate " + (folder.isEmpty() ? "Application Data" : folder.chopped(1));
}

} // namespace tarnwell
