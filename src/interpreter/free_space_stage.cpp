#include "interpreter/free_space_stage.h"

#include "base/fault.h"
#include "base/shared.h"
#include "base/text_primitives.h"
#include "interpreter/units.h"
#include "status/percent_bar.h"

namespace tarnwell {

namespace {

const char kDiskWithoutSize[] =
    "tarnwell reports a disk with no space at all. Refresh the device, and check the disk "
    "if this happens again.";

/// "total " is in front of the first number, "used " in front of the second.
constexpr qsizetype kTotalColumn = 7;
constexpr qsizetype kUsedWordLength = 5;

qint32 totalOf(const QString& line) {
    return RoundToInt32(Val(Mid(line, kTotalColumn, InStr(line, "MB") - kTotalColumn)));
}

qint32 usedOf(const QString& line) {
    const qsizetype start = InStr(line, "used ") + kUsedWordLength;
    return RoundToInt32(Val(Mid(line, start, InStr(line, "MB", start) - start)));
}

QString gigabytes(double megabytes) {
    return FormatNumber(megabytes / kMegabytesPerGigabyte, "0.00");
}

} // namespace

bool IsSummaryLine(const QString& line) {
    return line.contains(QLatin1String("total")) && line.contains(QLatin1String("used")) &&
           line.contains(QLatin1String("available"));
}

void ReadFreeSpace(Shared& shared, const QString& line) {
    ui::FrmMain& form = shared.frmMain;
    form.cmdAddGame.enabled = true;
    form.cmdInstall.enabled = true;

    const double total = totalOf(line);
    const double used = usedOf(line);
    form.picDiskSpace.tag = DecimalText(total - used);
    if (total == 0)
        throw Fault(kDiskWithoutSize);
    PercentBar(form.picDiskSpace, 100, RoundToInt32(used / total * 100), shared.ports.pump);
    form.lblDiskSpace.caption = gigabytes(total) + "GB Total - " + gigabytes(used) + "GB Used - " +
                                gigabytes(total - used) + "GB Available";
}

} // namespace tarnwell
