#include "base/file_name.h"
#include "logic/game_list_fixture.h"

namespace tarnwell::test {

namespace {

struct FileName : GameListTest {
    /// What the dialog proposes for a game of the list.
    QString proposedFor(const QString& game) {
        list({game});
        select({0});
        ui::click(frmMain.cmdBackupPC);
        return ports.dialogs.saveFileRequests.back().fileName;
    }
    QString proposedForDisc(const QString& game) {
        answerQueryWith("\tcd0:  4482 MB\r\nvia SPTI:\r\n\tE: disc 4482 MB\r\n");
        answerDiscInfoWith("DVD 4193280KB \"LANTERN\" \"SLUS_990.71\"\r\n");
        ui::click(frmMain.optInstall);
        ui::click(frmMain.optOptical);
        ui::type(frmMain.txtGameName, game);
        ui::click(frmMain.cmdMakeISO);
        return ports.dialogs.saveFileRequests.back().fileName;
    }
};

} // namespace

TEST_F(FileName, WhatFileSystemsForbidIsReplaced) {
    EXPECT_EQ(PermittedFileName("AC/DC Live.iso"), "AC-DC Live.iso");
    EXPECT_EQ(PermittedFileName("Foo: Bar.iso"), "Foo- Bar.iso");
    EXPECT_EQ(PermittedFileName("<a>\"b\"|c?d*e\\f\tg"), "-a--b--c-d-e-f-g");
}

TEST_F(FileName, WhatAllTakeStays) {
    for (const char* name : {"Lantern.iso", " Lantern & Quill (2) [b]; 100%'s, #1!.iso", ".hidden",
                             "Console.iso", "com10.iso", "a.con"})
        EXPECT_EQ(PermittedFileName(name), name);
    EXPECT_EQ(PermittedFileName(QString::fromUtf8("P\xc3\xa9rg.iso")), QString::fromUtf8("P\xc3\xa9rg.iso"));
}

TEST_F(FileName, ThatOfADeviceGetsSomethingInFront) {
    EXPECT_EQ(PermittedFileName("CON.iso"), "-CON.iso");
    EXPECT_EQ(PermittedFileName("nul"), "-nul");
    EXPECT_EQ(PermittedFileName("Lpt9 .two.iso"), "-Lpt9 .two.iso");
}

TEST_F(FileName, PointsAndBlanksAtItsEndAreLeftOut) {
    EXPECT_EQ(PermittedFileName("Lantern... . "), "Lantern");
    EXPECT_EQ(PermittedFileName("Lantern. .iso"), "Lantern. .iso");
}

TEST_F(FileName, AGameThatIsCopiedToThePcIsProposedUnderAPermittedOne) {
    EXPECT_EQ(proposedFor("AC/DC Live"), "AC-DC Live.iso");
    EXPECT_EQ(proposedFor("Foo: Bar"), "Foo- Bar.iso");
    EXPECT_EQ(proposedFor("Dusk\\Aux"), "-Aux.iso");
    EXPECT_EQ(proposedFor("Copper Run"), "Copper Run.iso");
}

TEST_F(FileName, ADiscIsProposedUnderAPermittedOne) {
    EXPECT_EQ(proposedForDisc("AC/DC Live"), "AC-DC Live.iso");
    EXPECT_EQ(proposedForDisc("Foo: Bar"), "Foo- Bar.iso");
    EXPECT_EQ(proposedForDisc("Dusk\\Dawn"), "Dusk-Dawn.iso");
}

} // namespace tarnwell::test
