#include "interpreter/disc_stage.h"

#include "base/shared.h"
#include "base/text_primitives.h"
#include "interpreter/units.h"

namespace tarnwell {

namespace {

constexpr qsizetype kUnitLength = 2;      ///< "KB"
constexpr qsizetype kExtensionLength = 4; ///< ".iso"
constexpr QLatin1String kDualLayer("dual-layer");

const char kNoDisc[] = "There is either no disc in the drive or a PS2 game was not found on the disc.";
const char kNotAGameDisc[] = "The disc in the selected drive is not a PS2 game disc.";
const char kNotAGameDiscTitle[] = "Not a PS2 Game";

bool isDiscLine(const QString& text) {
    return text.startsWith(QLatin1String("DVD")) || text.startsWith(QLatin1String("CD"));
}

QString firstLine(const QString& text) {
    return text.left(text.indexOf('\n')).remove('\r');
}

QString withoutQuotes(QString word) {
    return word.remove('"');
}

/// What an image with an empty label is called: its file name without the extension.
QString nameFromImage(const QString& path) {
    const qsizetype separator = qMax(path.lastIndexOf('\\'), path.lastIndexOf('/'));
    const QString file = path.mid(separator + 1);
    return file.left(qMax<qsizetype>(file.size() - kExtensionLength, 0));
}

/// The tool's words are type, size, name and startup file. A name with a blank in it is cut there, which the
/// user sees and corrects.
void fillInstallPage(ui::FrmMain& form, const QStringList& words) {
    form.cmbType.listIndex = ElementAt(words, 0) == QLatin1String("DVD") ? 1 : 0;

    const QString size = ElementAt(words, 1);
    const double kilobytes = Val(Mid(size, 1, size.size() - kUnitLength));
    form.txtGameSize.text = FormatNumber(kilobytes / kKilobytesPerGigabyte, "0.00") + "GB";
    form.txtGameSize.tag = DecimalText(kilobytes / kKilobytesPerMegabyte);

    form.txtGameName.text = withoutQuotes(ElementAt(words, 2));
    form.txtGameStartup.text = withoutQuotes(ElementAt(words, 3));
    form.cmdCompat.enabled = true;
    if (form.optOptical.value)
        form.cmdMakeISO.enabled = true;
    if (form.optISO.value && form.txtGameName.text.get().isEmpty())
        form.txtGameName.text = nameFromImage(form.txtISO.text);
}

} // namespace

Then ReadDisc(Shared& shared, const QString& text) {
    ui::FrmMain& form = shared.frmMain;
    if (form.cmbOptical.listIndex != -1 && text.contains(QLatin1String("The device is not ready."))) {
        form.cmbOptical.listIndex = -1;
        shared.message(kNoDisc);
        shared.blnDiscInfo = false;
        return Then::Stop;
    }
    if (form.optOptical.value && (text.contains(QLatin1String("not a Playstation CD-ROM/DVD-ROM.")) ||
                                  text.contains(QLatin1String("bad ISOFS.")))) {
        shared.ports.dialogs.message(kNotAGameDisc, MessageIcon::Exclamation, kNotAGameDiscTitle);
        shared.blnDiscInfo = false;
        return Then::Stop;
    }

    QString disc = text;
    if (disc.startsWith(kDualLayer)) {
        form.lblDVD9.visible = true;
        disc.remove(0, kDualLayer.size() + 1);
    }
    if (isDiscLine(disc)) {
        fillInstallPage(form, firstLine(disc).split(' '));
        shared.blnDiscInfo = false;
    }
    return Then::NextStage;
}

} // namespace tarnwell
