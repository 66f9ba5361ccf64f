#include "settings/appearance.h"
#include "support/program_test.h"

#include <gmock/gmock.h>
#include <limits>

namespace tarnwell::test {
namespace {

using testing::HasSubstr;

constexpr qint32 kButtonFace = -2147483633;
constexpr qint32 kButtonText = -2147483630;
constexpr qint32 kNavy = 0x800000;
constexpr qint32 kCream = 0xCCFFFF;
const ui::Font kChosen{"DejaVu Serif", 8.25, true, false};

class AppearanceTest : public ProgramTest {
protected:
    AppearanceTest() {
        program.shared().title = "Tarnwell";
        program.shared().config.WriteDefaultConfig();
        frmMain.load();
        frmSettings.load();
        frmMain.show();
        frmSettings.show();
        frmSettings.fmGUI.visible = true;
    }

    /// As the window of settings does when it is loaded.
    void load() {
        frmSettings.chkColors.value = program.shared().config.wholeNumber("UseColor");
        appearance.load();
    }
    void storeColors(qint32 fore, qint32 back) {
        store("UseColor", "1");
        store("Forecolor", QString::number(fore));
        store("Backcolor", QString::number(back));
    }
    std::vector<ui::Control*> controls() {
        std::vector<ui::Control*> all;
        for (ui::Form* form : forms())
            all.insert(all.end(), form->controls().begin(), form->controls().end());
        return all;
    }
    std::vector<ui::Form*> forms() { return {&frmMain, &frmSettings, &*frmStatus}; }
    static std::string nameOf(const ui::Control& control) {
        return (control.form().name + '.' + control.name).toStdString();
    }
    void expectColors(std::optional<qint32> fore, std::optional<qint32> back) {
        for (const ui::Control* control : controls()) {
            const bool takes = control->hasColors() && control->name != "picDiskSpace";
            EXPECT_EQ(control->foreColor.get(), takes ? fore : std::nullopt) << nameOf(*control);
            EXPECT_EQ(control->backColor.get(), takes ? back : std::nullopt) << nameOf(*control);
        }
        for (const ui::Form* form : forms())
            EXPECT_EQ(form->backColor.get(), back) << form->name.toStdString();
    }
    void expectFontUntouched() {
        EXPECT_EQ(frmMain.cmdAttach.font.get(), std::nullopt);
        EXPECT_EQ(frmSettings.cmdFont.font.get(), std::nullopt);
    }

    ui::FrmSettings& frmSettings = program.shared().frmSettings.untouched();
    Appearance appearance{program.shared()};
};

TEST_F(AppearanceTest, TheDefaultsLeaveTheWindowsAsTheyAreMade) {
    load();
    expectFontUntouched();
    expectColors(std::nullopt, std::nullopt);
    EXPECT_FALSE(frmSettings.cmdForecolor.enabled);
    EXPECT_FALSE(frmSettings.cmdBackcolor.enabled);
}

TEST_F(AppearanceTest, AStoredFontIsAppliedToEveryControlButTheOutput) {
    store("Font", "Tahoma,9,False,True,");
    const auto output = frmMain.txtOutput.font.get();
    load();
    for (const ui::Control* control : controls()) {
        if (control == &frmMain.txtOutput)
            EXPECT_EQ(control->font.get(), output);
        else if (control->hasFont())
            EXPECT_EQ(control->font.get(), (ui::Font{"Tahoma", 9, false, true})) << nameOf(*control);
        else
            EXPECT_EQ(control->font.get(), std::nullopt) << nameOf(*control);
    }
}

TEST_F(AppearanceTest, AMissingFontIsWrittenAsTheDefault) {
    store("Font", "");
    load();
    EXPECT_EQ(stored("Font"), "Tahoma,8,False,False,");
    expectFontUntouched();
}

TEST_F(AppearanceTest, AFractionalSizeIsAppliedAsAWholeOne) {
    store("Font", "Tahoma,8.25,True,False,");
    load();
    EXPECT_EQ(frmMain.cmdAttach.font.get(), (ui::Font{"Tahoma", 8, true, false}));
}

TEST_F(AppearanceTest, AFractionalSizeGoesToTheNearestWholeOneAndHalvesToTheEven) {
    for (const auto& [text, size] : {std::pair{"8.75", 9}, {"8.5", 8}, {"9.5", 10}}) {
        store("Font", QString("Tahoma,%1,False,False,").arg(text));
        load();
        EXPECT_EQ(frmMain.cmdAttach.font.get(), (ui::Font{"Tahoma", static_cast<double>(size)})) << text;
    }
}

TEST_F(AppearanceTest, AStatusWindowThatWasClosedGetsItsLooksAgain) {
    storeColors(kNavy, kCream);
    store("Font", "Tahoma,9,False,True,");
    load();
    frmStatus->unload();
    EXPECT_EQ(frmStatus.untouched().backColor.get(), std::nullopt);
    frmStatus->show();
    expectColors(kNavy, kCream);
    EXPECT_EQ(frmStatus->lblJob.font.get(), (ui::Font{"Tahoma", 9, false, true}));
}

TEST_F(AppearanceTest, AFontWithTooFewFieldsIsToldAndTheColoursFollow) {
    storeColors(kNavy, kCream);
    for (const char* value : {"Tahoma", "Tahoma,9", "Tahoma,9,True"}) {
        store("Font", value);
        load();
        EXPECT_THAT(lastMessage().toStdString(), HasSubstr(value));
    }
    EXPECT_EQ(ports.dialogs.messages.size(), 3U);
    expectFontUntouched();
    expectColors(kNavy, kCream);
}

TEST_F(AppearanceTest, TheWordsOfAFontMayBeNumbersAndStandInAnyCase) {
    for (const char* value : {"Tahoma,9,1,0,", "Tahoma,9,-1,0.0,", "Tahoma,9,TRUE,false,"}) {
        store("Font", value);
        frmMain.cmdAttach.font = std::nullopt;
        load();
        EXPECT_EQ(frmMain.cmdAttach.font.get(), (ui::Font{"Tahoma", 9, true, false})) << value;
    }
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(AppearanceTest, FieldsThatMakeNoSenseAreToldToo) {
    for (const char* value : {"Tahoma,big,False,False,", "Tahoma,99999,False,False,",
                              "Tahoma,9,perhaps,False,", "Tahoma,9,False,perhaps,"}) {
        store("Font", value);
        load();
        EXPECT_THAT(lastMessage().toStdString(), HasSubstr(value));
        expectFontUntouched();
    }
}

TEST_F(AppearanceTest, AnEmptyFieldMeansNoFont) {
    for (const char* value :
         {",9,False,False,", "Tahoma,,False,False,", "Tahoma,9,,False,", "Tahoma,9,False,,"}) {
        store("Font", value);
        load();
        expectFontUntouched();
    }
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(AppearanceTest, TheLargestAndTheSmallestSizeAreTaken) {
    for (const int size : {1, 2160}) {
        store("Font", QString("Tahoma,%1,False,False,").arg(size));
        load();
        EXPECT_EQ(frmMain.cmdAttach.font.get(), (ui::Font{"Tahoma", static_cast<double>(size)}));
    }
    store("Font", "Tahoma,2160.25,False,False,");
    load();
    EXPECT_THAT(lastMessage().toStdString(), HasSubstr("2160.25"));
}

TEST_F(AppearanceTest, ASizeThatNoFontHasIsPassedOver) {
    store("Font", "Tahoma,-3,True,False,");
    load();
    EXPECT_EQ(frmMain.cmdAttach.font.get(), (ui::Font{"Tahoma", 0, true, false}));
}

TEST_F(AppearanceTest, ColoursAreAppliedToEveryControlAndWindowButTheDiskSpace) {
    storeColors(kNavy, kCream);
    load();
    expectColors(kNavy, kCream);
    EXPECT_TRUE(frmSettings.cmdForecolor.enabled);
    EXPECT_TRUE(frmSettings.cmdBackcolor.enabled);
    EXPECT_EQ(frmMain.txtOutput.backColor.get(), kCream);
    EXPECT_EQ(frmStatus->picCurrent.foreColor.get(), kNavy);
}

TEST_F(AppearanceTest, TwoZerosCountAsNotSet) {
    storeColors(0, 0);
    load();
    EXPECT_EQ(stored("Forecolor"), QString::number(kButtonText));
    EXPECT_EQ(stored("Backcolor"), QString::number(kButtonFace));
    expectColors(kButtonText, kButtonFace);
}

TEST_F(AppearanceTest, BlackOnAnyColourCountsAsSet) {
    storeColors(0, kCream);
    load();
    expectColors(0, kCream);
    EXPECT_EQ(stored("Forecolor"), "0");
}

TEST_F(AppearanceTest, WhatIsNoColourIsPassedOver) {
    store("UseColor", "1");
    store("Forecolor", "99999999999999");
    store("Backcolor", "16777216");
    load();
    expectColors(std::nullopt, std::nullopt);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(AppearanceTest, MixturesAndTheColoursOfTheSystemAreColoursAndNothingBeside) {
    constexpr qint32 kFirstOfSystem = std::numeric_limits<qint32>::min(), kLastOfSystem = kFirstOfSystem + 24;
    for (const qint32 color : {0xFFFFFF, kFirstOfSystem, kLastOfSystem}) {
        storeColors(color, color);
        load();
        expectColors(color, color);
    }
    storeColors(0x1000000, kLastOfSystem + 1);
    load();
    expectColors(kLastOfSystem, kLastOfSystem);
}

TEST_F(AppearanceTest, ColoursAreTurnedOnAndOffByTheSwitch) {
    storeColors(kNavy, kCream);
    store("UseColor", "0");
    load();
    ui::click(frmSettings.chkColors);
    EXPECT_EQ(stored("UseColor"), "1");
    expectColors(kNavy, kCream);
    EXPECT_TRUE(frmSettings.cmdBackcolor.enabled);

    ui::click(frmSettings.chkColors);
    EXPECT_EQ(stored("UseColor"), "0");
    expectColors(kButtonText, kButtonFace);
    EXPECT_FALSE(frmSettings.cmdForecolor.enabled);
    EXPECT_FALSE(frmSettings.cmdBackcolor.enabled);
    EXPECT_EQ(stored("Forecolor"), QString::number(kNavy));
    EXPECT_EQ(stored("Backcolor"), QString::number(kCream));
}

TEST_F(AppearanceTest, TurningOnColoursThatAreNotSetAppliesNone) {
    storeColors(0, 0);
    store("UseColor", "0");
    load();
    ui::click(frmSettings.chkColors);
    expectColors(std::nullopt, std::nullopt);
    EXPECT_TRUE(frmSettings.cmdForecolor.enabled);
}

TEST_F(AppearanceTest, BlackAndAnotherColourAreTurnedOnByTheSwitch) {
    for (const auto& [fore, back] : {std::pair{0, kCream}, {kNavy, 0}}) {
        storeColors(fore, back);
        store("UseColor", "0");
        load();
        ui::click(frmSettings.chkColors);
        expectColors(fore, back);
    }
}

TEST_F(AppearanceTest, AChosenColourIsAppliedAndStoredAtOnce) {
    storeColors(kNavy, kCream);
    load();
    ports.dialogs.chooseColorAnswers = {0x0000FF, 0x00FF00};
    ui::click(frmSettings.cmdForecolor);
    expectColors(0x0000FF, kCream);
    EXPECT_EQ(stored("Forecolor"), "255");
    ui::click(frmSettings.cmdBackcolor);
    expectColors(0x0000FF, 0x00FF00);
    EXPECT_EQ(stored("Backcolor"), "65280");
    EXPECT_EQ(stored("UseColor"), "1");
}

TEST_F(AppearanceTest, ACancelledColourChangesNothing) {
    storeColors(kNavy, kCream);
    load();
    ui::click(frmSettings.cmdForecolor);
    ui::click(frmSettings.cmdBackcolor);
    EXPECT_EQ(ports.dialogs.chooseColorRequests, (std::vector<std::int32_t>{kNavy, kCream}));
    expectColors(kNavy, kCream);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(AppearanceTest, AChosenFontIsStoredWithItsFractionAndAppliedWithout) {
    ports.dialogs.chooseFontAnswers = {kChosen};
    ui::click(frmSettings.cmdFont);
    EXPECT_EQ(stored("Font"), "DejaVu Serif,8.25,True,False,");
    EXPECT_EQ(frmSettings.cmdFont.font.get(), (ui::Font{"DejaVu Serif", 8, true, false}));
    EXPECT_EQ(frmStatus->cmdStop.font.get(), frmSettings.cmdFont.font.get());
}

TEST_F(AppearanceTest, AStatusWindowThatIsUpGetsAFontThatIsChosenMeanwhile) {
    frmStatus->show();
    ports.dialogs.chooseFontAnswers = {kChosen};
    ui::click(frmSettings.cmdFont);
    EXPECT_EQ(frmStatus->cmdStop.font.get(), (ui::Font{"DejaVu Serif", 8, true, false}));
}

TEST_F(AppearanceTest, AChosenSizeGoesToTheNearestWholeOne) {
    ports.dialogs.chooseFontAnswers = {ui::Font{"DejaVu Serif", 8.75}};
    ui::click(frmSettings.cmdFont);
    EXPECT_EQ(frmMain.cmdAttach.font.get(), (ui::Font{"DejaVu Serif", 9}));
}

TEST_F(AppearanceTest, TheDialogStartsAtThePresentFont) {
    ports.dialogs.chooseFontAnswers = {kChosen};
    ui::click(frmSettings.cmdFont);
    ui::click(frmSettings.cmdFont);
    EXPECT_EQ(ports.dialogs.chooseFontRequests,
              (std::vector<ui::Font>{ui::Font{}, ui::Font{"DejaVu Serif", 8, true, false}}));
}

TEST_F(AppearanceTest, ACancelledFontChangesNothing) {
    ui::click(frmSettings.cmdFont);
    EXPECT_EQ(stored("Font"), "Tahoma,8,False,False,");
    expectFontUntouched();
}

class AppearanceAtStart : public ProgramTest {};

TEST_F(AppearanceAtStart, StoredFontAndColoursAreThereWhenTheMainWindowOpens) {
    store("Font", "Tahoma,10,False,False,");
    store("UseColor", "1");
    store("Backcolor", QString::number(kCream));
    start();
    EXPECT_EQ(frmMain.cmdAttach.font.get(), (ui::Font{"Tahoma", 10}));
    EXPECT_EQ(frmMain.backColor.get(), kCream);
}

TEST_F(AppearanceAtStart, AFontThatCannotBeReadDoesNotKeepTheProgramFromStarting) {
    store("Font", "Tahoma,10");
    start();
    EXPECT_TRUE(frmMain.shown());
    const QStringList told = ports.dialogs.messageTexts();
    EXPECT_EQ(told.filter("The font in config.cfg cannot be read").size(), 1);
}

} // namespace
} // namespace tarnwell::test
