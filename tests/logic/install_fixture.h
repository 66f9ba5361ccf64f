#pragma once

#include "support/program_test.h"

#include <QRegularExpression>

namespace tarnwell::test {

/// A game of 4095 MB is ready to be installed onto the console, and no tool has been told how to take it.
class InstallTest : public ProgramTest {
protected:
    InstallTest() {
        answerQueryWith(kTwoDisks);
        answerTocWith(kTwoGames);
        answerDiscInfoWith("DVD 4193280KB \"LANTERN\" \"SLUS_990.71\"\r\n");
        start();
        ui::click(frmMain.cmdAttach);
        pickImage();
    }

    void pickImage() {
        ports.dialogs.openFileAnswers.push_back("/games/lantern.iso");
        ui::click(frmMain.cmdISO);
    }
    void answerInstallWith(const ChildScript& script) { ports.launcher.on("tarnwell.exe inject", script); }
    QString installCommand() const { return commands().filter(QRegularExpression("^inject")).value(0); }
};

/// The same with a tool that takes four seconds.
class InstallNow : public InstallTest {
protected:
    InstallNow() {
        answerInstallWith({.output = {{"1%, 12 min remaining, 3.50 MB/sec\r", 100},
                                      {"50%, 6 min remaining, 4.00 MB/sec\r", 2000},
                                      {"100%, 0 sec remaining, 4.00 MB/sec\r", 4000}},
                           .endsAtMs = 4100});
    }
};

/// What the user fills in is gone, and the usual type is chosen; the number behind the size is of use no
/// more, but stays.
inline void expectPageReset(const ui::FrmMain& frmMain) {
    EXPECT_EQ(frmMain.txtISO.text.get(), "");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "");
    EXPECT_EQ(frmMain.txtGameStartup.text.get(), "");
    EXPECT_EQ(frmMain.txtGameSize.text.get(), "");
    EXPECT_EQ(frmMain.txtGameSize.tag.get(), "4095");
    EXPECT_EQ(frmMain.cmbType.text(), "DVD-ROM");
    EXPECT_FALSE(frmMain.lblDVD9.visible);
}

} // namespace tarnwell::test
