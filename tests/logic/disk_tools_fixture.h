#pragma once

#include "support/program_test.h"

namespace tarnwell::test {

/// The tools page open.
class DiskToolsTest : public ProgramTest {
protected:
    static inline const QByteArray kDisks = "\thdd1:  114473MB, formatted Playstation 2 HDD\r\n"
                                            "\thdd2:  38146MB, unknown format\r\n";
    static inline const QString kFormatted = "hdd1:  [111.8 GB] - Playstation2 Formatted";
    static inline const QString kUnformatted = "hdd2:  [37.3 GB] - Unknown Format";
    static inline const QString kAddress = "192.168.0.10";

    DiskToolsTest() {
        start();
        frmSettings.show();
        frmSettings.TabStrip.selectedTab = ui::FrmSettings::kToolsTab;
        frmSettings.fmTools.visible = true;
    }

    void list(const QByteArray& disks = kDisks) {
        answerQueryWith(disks);
        ASSERT_TRUE(ui::click(frmSettings.cmdRefresh));
    }
    void expectEnabled(bool format, bool table) {
        EXPECT_EQ(frmSettings.cmdFormat.enabled, format);
        EXPECT_EQ(frmSettings.cmdBackupTOC.enabled, table);
        EXPECT_EQ(frmSettings.cmdRestoreTOC.enabled, table);
    }
    /// What happens while the tool carries out this command.
    void during(const QString& command, const std::function<void()>& event) {
        ports.launcher.on("tarnwell.exe " + command,
                          ChildScript{.output = {{"Working\r\n"}}, .endsAtMs = 500});
        ports.launcher.script = [this, command, event, usual = ports.launcher.script](const QString& line) {
            if (line.contains("tarnwell.exe " + command))
                ports.pump.after(100, event);
            return usual(line);
        };
    }
    QStringList questions() const { return ports.dialogs.questions; }

    ui::FrmSettings& frmSettings = program.shared().frmSettings.untouched();
};

} // namespace tarnwell::test
