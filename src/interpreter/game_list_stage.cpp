#include "interpreter/game_list_stage.h"

#include "base/shared.h"
#include "base/text_primitives.h"
#include "interpreter/free_space_stage.h"
#include "interpreter/units.h"
#include "status/device_display.h"

#include <QScopeGuard>

namespace tarnwell {

namespace {

const char kConsoleNotFound[] = "The PS2 console could not be found at the IP address entered. Make sure "
                                "that the console has tarnd_svr.elf running "
                                "and the IP address is configured properly in IPCONFIG.DAT.";
const char kNotAPs2Disk[] = "This drive is not a PlayStation 2 HDD.";

bool isGameLine(const QString& line) {
    return line.startsWith(QLatin1String("CD")) || line.startsWith(QLatin1String("DVD"));
}

void enableGameButtons(ui::FrmMain& form) {
    for (ui::Button* button : {&form.cmdBackupPC, &form.cmdBackupPS2, &form.cmdDelete, &form.cmdSaveList})
        button->enabled = true;
    // A copy to a local disk needs one that is not the source: on a console every disk will do.
    const int disksNeeded = form.optLAN.value ? 1 : 2;
    if (form.cmbHD.listCount() >= disksNeeded)
        form.cmdBackupHDD.enabled = true;
}

void AddGameRow(ui::ListView& list, const QString& name, const QString& startup, const QString& size,
                const QString& type, const QString& flags) {
    list.append({name, {startup, size, type, flags}, list.tag});
}

/// A line of the tool's table: columns at fixed places, the name up to the end.
void readGame(ui::ListView& list, const QString& line) {
    const QString type = Trim(Mid(line, 1, 3));
    const QString size = Trim(Mid(line, 5, 7));
    const QString flags = Trim(Mid(line, 15, 15));
    const QString startup = Trim(Mid(line, 30, 11));
    const QString name = Trim(Mid(line, 44));
    AddGameRow(list, name, startup, FormatNumber(Val(size) / kKilobytesPerGigabyte, "0.00") + "GB", type,
               flags);
}

void readTable(Shared& shared, const QStringList& lines) {
    ui::FrmMain& form = shared.frmMain;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        if (isGameLine(lines[i])) {
            enableGameButtons(form);
            readGame(form.lstHD, lines[i]);
        }
        if (IsSummaryLine(lines[i]))
            ReadFreeSpace(shared, lines[i]);
    }
    ShowGameCount(shared, form.lstHD.count());
}

} // namespace

Then ReadGameList(Shared& shared, const QString& text) {
    // The one answer is here, whether it can be read or not. Left up, the flag would keep the output of every
    // later job from being read.
    const auto answered = qScopeGuard([&shared] { shared.blnReadTOC = false; });
    if (text.contains(QLatin1String("A connection attempt failed"))) {
        shared.message(kConsoleNotFound, MessageIcon::Stop);
        return Then::Stop;
    }
    if (text.contains(QLatin1String("not a PlayStation 2 HDD."))) {
        shared.message(kNotAPs2Disk);
        return Then::Stop;
    }
    ClearFreeSpace(shared);
    shared.frmMain.lstHD.clear();
    if (text.startsWith(QLatin1String("type")))
        readTable(shared, text.split(QLatin1String("\r\n")));
    return Then::NextStage;
}

} // namespace tarnwell
