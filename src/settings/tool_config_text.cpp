#include "settings/tool_config_text.h"

#include "base/set_check_box.h"
#include "base/text_primitives.h"

namespace tarnwell {

namespace {

const QString kSeparator = QStringLiteral(" = ");

QString withoutAnyQuotes(QString text) {
    return text.remove(u'"');
}

int ticked(bool holds) {
    return holds ? 1 : 0;
}

QString yesOrNo(const ui::CheckBox& box) {
    return box.value == 1 ? "yes" : "no";
}

QString orElse(ui::TextBox& box, const QString& usual) {
    if (box.text.get().isEmpty())
        box.text = usual;
    return box.text;
}

void readSetting(const QString& key, const QString& value, const QString& folder,
                 ui::FrmSettings& frmSettings) {
    if (key == QLatin1String("auto_throttle"))
        SetCheckBox(frmSettings.chkAutoThrottle, value);
    else if (key == QLatin1String("disc_database_file"))
        frmSettings.txtDiscDatabase.text =
            value.isEmpty() ? folder + kDiscDatabase : QString(value).replace("\\\\", "\\");
    else if (key == QLatin1String("enable_aspi"))
        frmSettings.chkEnableASPI.value = ticked(value == QLatin1String("yes"));
    else if (key == QLatin1String("limit_to_28bit"))
        frmSettings.chkLimit28bit.value = ticked(value == QLatin1String("yes"));
    else if (key == QLatin1String("partition_naming") && value == QLatin1String("toxicos"))
        frmSettings.chkToxicOS.value = 1;
    else if (key == QLatin1String("target_kbps"))
        frmSettings.txtTargetkbps.text = value.isEmpty() ? kFirstSpeed : value;
    else if (key == QLatin1String("use_compression"))
        frmSettings.chkUseCompression.value = ticked(value == QLatin1String("yes"));
    // last_ip is not taken over: the program keeps the console's address in its own store.
}

void readLine(const QString& line, const QString& folder, ui::FrmSettings& frmSettings) {
    const qsizetype separator = line.indexOf(kSeparator);
    if (separator < 0)
        return;
    readSetting(Trim(withoutAnyQuotes(line.left(separator))),
                withoutAnyQuotes(line.mid(separator + kSeparator.size())), folder, frmSettings);
}

QString QuoteConf(const QString& text) {
    return '"' + text + '"';
}

void AppendConfLine(QString& conf, const QString& line) {
    conf += line + '\n';
}

} // namespace

void ReadToolConfig(const QString& text, const QString& folder, ui::FrmSettings& frmSettings) {
    QStringList lines = text.split(u'\n');
    lines.removeLast(); // what stands behind the last line feed is no line
    for (QString& line : lines)
        readLine(line.remove(u'\r'), folder, frmSettings);
}

QString WriteToolConfig(const QString& folder, ui::FrmSettings& frmSettings, ui::FrmMain& frmMain) {
    QString conf;
    const auto append = [&conf](const QString& key, const QString& value) {
        AppendConfLine(conf, QuoteConf(key) + kSeparator + QuoteConf(value));
    };
    const QString discDatabase = frmSettings.txtDiscDatabase.text;
    if (!Trim(discDatabase).isEmpty())
        append("disc_database_file", QString(discDatabase).replace("\\", "\\\\"));
    else if (!folder.isEmpty())
        frmSettings.txtDiscDatabase.text = folder + kDiscDatabase;
    append("auto_throttle", QString::number(frmSettings.chkAutoThrottle.value));
    append("enable_aspi", yesOrNo(frmSettings.chkEnableASPI));
    append("last_ip", orElse(frmMain.txtIP, ui::FrmMain::kFirstAddress));
    append("limit_to_28bit", yesOrNo(frmSettings.chkLimit28bit));
    append("partition_naming", frmSettings.chkToxicOS.value == 1 ? "toxicos" : "standard");
    append("target_kbps", orElse(frmSettings.txtTargetkbps, kFirstSpeed));
    append("use_compression", yesOrNo(frmSettings.chkUseCompression));
    return conf + "\r\n";
}

} // namespace tarnwell
