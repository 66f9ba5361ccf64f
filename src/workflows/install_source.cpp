#include "workflows/install_source.h"

#include "base/fault.h"
#include "base/picked_path.h"
#include "interpreter/tool_commands.h"
#include "workflows/command_arguments.h"
#include "workflows/query.h"

#include <QFileInfo>

namespace tarnwell {

namespace {

constexpr int kDvdRom = 1;
constexpr std::size_t kClearedFlags = 7;

const QString kInstallableImages = QStringLiteral(
    "ISO Files (*.iso)|*.iso|Nero Burning Image (*.nrg)|*.nrg|RecordNow! Global Image (*.gi)|*.gi|"
    "Sony CD/DVD Generator's Intermediate (*.iml)|*.iml|");

} // namespace

InstallSource::InstallSource(Shared& shared, ToolChannel& channel, OutputInterpreter& interpreter)
    : shared_(shared), channel_(channel), interpreter_(interpreter) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.optISO.Click = [this] { chooseIso(); };
    frmMain.optOptical.Click = [this] { chooseOptical(); };
    frmMain.cmbOptical.Click = [this] { readDisc(); };
    frmMain.cmdISO.Click = [this] { browse(); };
    frmMain.txtISO.Change = [&frmMain] { frmMain.cmdCompat.enabled = !frmMain.txtISO.text.get().isEmpty(); };
    frmMain.txtISO.GotFocus = [&frmMain] { frmMain.txtISO.caretVisible = false; };
    frmMain.txtGameSize.GotFocus = [&frmMain] { frmMain.txtGameSize.caretVisible = false; };
    frmMain.txtGameName.KeyPress = [this](int& key) { pressKeyInName(key); };
    frmMain.cmdCompat.Click = [this] { openFlagsMenu(); };
    for (ui::MenuEntry& flag : frmMain.mnuFlags)
        flag.Click = [&flag] { flag.checked = !flag.checked; };
    frmMain.mnuDone.Click = [&frmMain] { frmMain.mnuCompat.close(); };
}

void InstallSource::chooseIso() {
    forgetQuestion();
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.cmbOptical.listIndex = -1;
    frmMain.cmbOptical.enabled = false;
    frmMain.cmdISO.enabled = true;
    frmMain.txtISO.enabled = true;
    frmMain.txtGameName.text = QString();
    frmMain.txtGameStartup.text = QString();
    frmMain.cmdCompat.enabled = false;
    frmMain.cmdMakeISO.enabled = false;
    frmMain.lblDVD9.visible = false;
    clearCompatibilityFlags(frmMain);
}

void InstallSource::chooseOptical() {
    if (!requireTool(shared_))
        return;
    forgetQuestion();
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.txtISO.text = QString();
    frmMain.txtISO.enabled = false;
    frmMain.cmdISO.enabled = false;
    frmMain.txtGameName.text = QString();
    frmMain.txtGameStartup.text = QString();
    frmMain.txtGameSize.text = QString();
    frmMain.cmbType.listIndex = kDvdRom;
    frmMain.lblDVD9.visible = false;
    frmMain.cmbOptical.enabled = true;
    frmMain.cmdCompat.enabled = false;
    frmMain.cmbOptical.clear();
    {
        const Hourglass hourglass(frmMain);
        RunQuery(shared_.blnQueryOptical, channel_, interpreter_);
    }
    if (!frmMain.optOptical.value)
        return; // the user has gone back to images meanwhile
    if (frmMain.cmbOptical.listCount() == 1)
        frmMain.cmbOptical.listIndex = 0;
    clearCompatibilityFlags(frmMain);
}

void InstallSource::readDisc() {
    ui::ComboBox& cmbOptical = shared_.frmMain.cmbOptical;
    if (cmbOptical.listIndex == -1 || !requireTool(shared_))
        return;
    forgetGame();
    const AwaitedAnswer discInfo(shared_.blnDiscInfo);
    askForDiscInfo(DriveInfoCommand(ResolveOpticalDrive(shared_.frmMain, cmbOptical.text())));
}

void InstallSource::browse() {
    if (!requireTool(shared_))
        return;
    const auto path = shared_.ports.dialogs.openFile({.title = "Select Game Image",
                                                      .filter = kInstallableImages,
                                                      .folder = shared_.config.text("DefaultISO"),
                                                      .extension = "*.iso",
                                                      .mustExist = true});
    if (!path || path->isEmpty())
        forgetImage();
    else
        pick(*path);
}

void InstallSource::pick(const QString& image) {
    if (const auto name = NameInCodePage(shared_, image))
        readImage(*name, &ToolChannel::Tarn_Command);
}

bool InstallSource::pickOneOfMany(const QString& image) {
    const bool answered = readImage(image, &ToolChannel::Tarn_Question);
    forgetQuestion();
    return answered;
}

bool InstallSource::readImage(const QString& path, Ask ask) {
    clearCompatibilityFlags(shared_.frmMain);
    forgetGame();
    ui::TextBox& txtISO = shared_.frmMain.txtISO;
    txtISO.text = path;
    // The end of a long path, the name of the file, is what the user wants to see of it.
    txtISO.selectionStart = static_cast<int>(path.size());
    shared_.blnDiscInfo = true;
    try {
        return askForDiscInfo(ImageInfoCommand(path), ask);
    } catch (const Fault&) {
        // An image that the tool cannot make sense of leaves the rest of the page for the user to fill in.
        return true;
    }
}

void InstallSource::forgetImage() {
    forgetQuestion();
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.txtISO.text = QString();
    frmMain.txtGameName.text = QString();
    frmMain.txtGameStartup.text = QString();
    frmMain.txtGameSize.text = QString();
    frmMain.cmbType.listIndex = kDvdRom;
    frmMain.cmdCompat.enabled = false;
}

/// One source must not be installed with what was read from another, if it turns out that it cannot be read.
void InstallSource::forgetGame() {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.txtGameName.text = QString();
    frmMain.txtGameStartup.text = QString();
    frmMain.txtGameSize.text = QString();
    frmMain.txtGameSize.tag = QString();
    frmMain.lblDVD9.visible = false;
}

bool InstallSource::askForDiscInfo(const QString& command, Ask ask) {
    const Hourglass hourglass(shared_.frmMain);
    const QString answer = (channel_.*ask)(command);
    interpreter_.ParseToolOutput(answer);
    if (answer.isEmpty())
        forgetQuestion();
    return !answer.isEmpty();
}

void InstallSource::forgetQuestion() {
    // What the tool still says about one source must not be taken for what it says about another.
    shared_.blnDiscInfo = false;
}

void InstallSource::openFlagsMenu() {
    shared_.frmMain.mnuCompat.popUpBelow(shared_.frmMain.cmdCompat);
}

void InstallSource::pressKeyInName(int& key) {
    if (key != ui::TextBox::kEnterKey)
        return;
    key = 0;
    if (shared_.frmMain.cmdAddGame.usable())
        shared_.frmMain.cmdAddGame.Click();
}

bool isInstallableImage(const QString& file) {
    const QString extension = "|*." + QFileInfo(file).suffix().toLower() + '|';
    return kInstallableImages.contains(extension);
}

bool requireSource(Shared& shared) {
    const ui::FrmMain& frmMain = shared.frmMain;
    if (frmMain.optISO.value && frmMain.txtISO.text.get().isEmpty()) {
        shared.message("Please select an ISO to install.");
        return false;
    }
    if (frmMain.optOptical.value && frmMain.cmbOptical.text().isEmpty()) {
        shared.message("Please select an optical drive with a PS2 game disc in it.");
        return false;
    }
    return true;
}

Installation ReadInstallPage(const ui::FrmMain& frmMain) {
    return {.type = frmMain.cmbType.text(),
            .device = ActiveDeviceShort(frmMain),
            .name = frmMain.txtGameName.text,
            .source = frmMain.optISO.value ? frmMain.txtISO.text.get()
                                           : ResolveOpticalDrive(frmMain, frmMain.cmbOptical.text()),
            .startup = frmMain.txtGameStartup.text,
            .flags = FlagsWord(frmMain)};
}

void clearCompatibilityFlags(ui::FrmMain& frmMain) {
    for (std::size_t i = 0; i < kClearedFlags; ++i)
        frmMain.mnuFlags[i].checked = false;
}

void resetInstallPage(ui::FrmMain& frmMain) {
    clearCompatibilityFlags(frmMain);
    frmMain.cmdCompat.enabled = false;
    frmMain.txtISO.text = QString();
    frmMain.txtGameName.text = QString();
    frmMain.txtGameStartup.text = QString();
    frmMain.txtGameSize.text = QString();
    frmMain.cmbType.listIndex = kDvdRom;
    frmMain.cmbOptical.listIndex = -1;
    frmMain.lblDVD9.visible = false;
}

} // namespace tarnwell
