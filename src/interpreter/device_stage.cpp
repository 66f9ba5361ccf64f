#include "interpreter/device_stage.h"

#include "base/shared.h"
#include "base/text_primitives.h"
#include "interpreter/units.h"

namespace tarnwell {

namespace {

constexpr qsizetype kOpticalNameLength = 4;
const char kNoGameDisks[] = "There were no game disks found in any of your optical drives.";

/// The number between the device's name and the last "MB" of its line, which it may touch; none counts as 0.
double sizeInGigabytes(const QString& line) {
    const qsizetype colon = InStr(line, ":");
    const qsizetype length = InStrRev(line, "MB") - colon - 2;
    return length > 0 ? Val(Mid(line, colon + 2, length)) / kMegabytesPerGigabyte : 0;
}

QString diskEntry(const QString& line) {
    return Trim(Mid(line, 2, InStr(line, ":"))) + "  [" + FormatNumber(sizeInGigabytes(line), "#.0") + " GB]";
}

bool isFormatted(const QString& line) {
    return line.contains(QLatin1String("formatted Playstation 2 HDD"));
}

QString driveEntry(const QString& line) {
    return Mid(line, 2, kOpticalNameLength) + "  [" + FormatNumber(sizeInGigabytes(line), "#.00") + "GB]";
}

void hideBlankTargets(ui::FrmMain& form) {
    for (ui::MenuEntry& target : form.mnuHDD) {
        if (target.caption.get().isEmpty())
            target.visible = false;
    }
}

/// Fills the disk list, and the copy menu with as many disks as it has room for.
class DiskReader {
public:
    explicit DiskReader(ui::FrmMain& form) : form_(form) {}

    void read(const QString& line) {
        if (isFormatted(line))
            add(diskEntry(line));
        // The first disk is the one in use, and no target for a copy of its own games.
        if (targets_ > 0 && form_.optLocal.value)
            form_.mnuHDD[0].enabled = false;
    }

private:
    void add(const QString& entry) {
        form_.cmbHD.addItem(entry);
        form_.cmbHD.listIndex = 0;
        if (targets_ == form_.mnuHDD.size())
            return;
        ui::MenuEntry& target = form_.mnuHDD[targets_++];
        target.caption = entry;
        target.visible = true;
        target.enabled = true;
    }

    ui::FrmMain& form_;
    std::size_t targets_ = 0;
};

/// Fills the list of drives that hold a disc, and the map from the tool's drive numbers to the system's
/// drives.
class DriveReader {
public:
    explicit DriveReader(ui::ComboBox& drives) : drives_(drives) {}

    void read(const QString& line) {
        if (inDriveMap_)
            extendDriveMap(line);
        if (line.contains(QLatin1String("via SPTI:"))) {
            inDriveMap_ = true;
            drives_.tag = QString();
        }
        if (line.contains(QLatin1String("\tcd")) && line.contains(QLatin1String(" MB")))
            drives_.addItem(driveEntry(line));
    }

private:
    void extendDriveMap(const QString& line) {
        if (line.contains(QLatin1String("MB")))
            drives_.tag = drives_.tag + Mid(line, 2, 2) + ',';
        else if (line.contains(':'))
            drives_.tag = drives_.tag + "0,";
    }

    ui::ComboBox& drives_;
    bool inDriveMap_ = false;
};

} // namespace

Then ReadDevices(Shared& shared, const QString& text) {
    ui::FrmMain& form = shared.frmMain;
    for (ui::MenuEntry& target : form.mnuHDD)
        target.caption = QString();

    DiskReader disks(form);
    DriveReader drives(form.cmbOptical);
    for (const QString& line : text.split('\n')) {
        if (shared.blnQueryHD)
            disks.read(line);
        if (shared.blnQueryOptical)
            drives.read(line);
    }
    hideBlankTargets(form);

    shared.blnQueryHD = false;
    if (!shared.blnQueryOptical)
        return Then::NextStage;
    const bool noDrives = form.optOptical.value && form.cmbOptical.listCount() == 0;
    if (noDrives) {
        form.optISO.value = true;
        shared.message(kNoGameDisks);
    }
    shared.blnQueryOptical = false;
    return noDrives ? Then::Stop : Then::NextStage;
}

void ReadSettingsDisks(Shared& shared, const QString& text) {
    ui::ComboBox& disks = shared.frmSettings->cmbHD;
    for (const QString& line : text.split('\n')) {
        if (!line.contains(QLatin1String("\thdd")))
            continue;
        disks.addItem(diskEntry(line) +
                      (isFormatted(line) ? " - Playstation2 Formatted" : " - Unknown Format"));
        disks.listIndex = 0;
    }
    shared.blnQuerySettings = false;
}

} // namespace tarnwell
