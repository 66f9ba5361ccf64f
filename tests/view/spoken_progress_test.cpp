#include "support/gtest_qt.h"
#include "ui/qt/spoken_progress.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace tarnwell::view {

namespace {

class WhatIsSaid : public testing::Test {
protected:
    WhatIsSaid() {
        new SpokenProgress(
            form, status, [this](const QString& text) { said_ += text; }, *parent);
        status.picOverall.scaleWidth = 100;
    }
    /// Since the last time.
    QStringList said() { return std::exchange(said_, {}); }
    void beginWork() { form.cmdSettings.enabled = false; }
    void endWork() { form.cmdSettings.enabled = true; }
    QStringList saidWhileGoing(int from, int to) {
        for (int percent = from; percent <= to; ++percent)
            status.picOverall.drawing =
                ui::PictureBox::Drawing{QString::number(percent) + '%', double(percent)};
        return said();
    }

    ui::FrmMain form;
    ui::FrmStatus status;
    std::unique_ptr<QObject> parent = std::make_unique<QObject>();

private:
    QStringList said_;
};

} // namespace

TEST_F(WhatIsSaid, IsEachJobThoughTwoAreTheSame) {
    status.lblJob.caption = "Installing HARVEST";
    EXPECT_EQ(said(), QStringList("Installing HARVEST"));
    status.lblJob.caption = "Installing HARVEST";
    EXPECT_EQ(said(), QStringList("Installing HARVEST"));
}

TEST_F(WhatIsSaid, IsEachTenth) {
    beginWork();
    EXPECT_EQ(saidWhileGoing(0, 100),
              QStringList({"10%", "20%", "30%", "40%", "50%", "60%", "70%", "80%", "90%", "100%"}));
    endWork();
    EXPECT_EQ(said(), QStringList("The work has ended."));
}

TEST_F(WhatIsSaid, IsEachTenthOnceHoweverOftenTheBarIsDrawn) {
    beginWork();
    EXPECT_EQ(saidWhileGoing(19, 20), QStringList({"19%", "20%"}));
    status.picOverall.drawing = ui::PictureBox::Drawing{"still 20%", 20};
    EXPECT_EQ(said(), QStringList());
}

TEST_F(WhatIsSaid, BeginsAgainWithEachJobWhereOnlyJobsAreCounted) {
    beginWork();
    EXPECT_EQ(saidWhileGoing(98, 100), QStringList({"98%", "100%"}));
    EXPECT_EQ(saidWhileGoing(0, 12), QStringList("10%"));
}

TEST_F(WhatIsSaid, TellsHowFarWorkHasComeThatEndsEarly) {
    beginWork();
    EXPECT_EQ(saidWhileGoing(48, 51), QStringList({"48%", "50%"}));
    endWork();
    EXPECT_EQ(said(), QStringList("The work has ended at 51%."));
}

TEST_F(WhatIsSaid, IsTheEndOfWorkWithoutABar) {
    beginWork();
    saidWhileGoing(48, 51);
    endWork();
    beginWork();
    EXPECT_EQ(said(), QStringList("The work has ended at 51%."));
    endWork();
    EXPECT_EQ(said(), QStringList("The work has ended."));
}

TEST_F(WhatIsSaid, IsNothingAfterTheEndOfTheWindow) {
    parent.reset();
    status.lblJob.caption = "Installing HARVEST";
    status.picOverall.drawing = ui::PictureBox::Drawing{"50%", 50};
    beginWork();
    endWork();
    EXPECT_EQ(said(), QStringList());
}

} // namespace tarnwell::view
