#include "interpreter_fixture.h"
#include "workflows/command_arguments.h"

namespace tarnwell {
namespace {

class CommandArguments : public InterpreterTest {};

TEST_F(CommandArguments, TakeTheDeviceFromTheChosenMode) {
    form.txtIP.text = " 10.0.0.1 ";
    form.cmbHD.addItem("hdd10:  [1.0 GB]");
    form.cmbHD.listIndex = 0;
    EXPECT_EQ(ActiveDeviceLong(form), " 10.0.0.1 ");
    EXPECT_EQ(ActiveDeviceShort(form), " 10.0.0.1 ");
    form.optLocal.value = true;
    EXPECT_EQ(ActiveDeviceLong(form), "hdd10:");
    EXPECT_EQ(ActiveDeviceShort(form), "hdd10");
}

TEST_F(CommandArguments, NameTheTickedFlags) {
    EXPECT_EQ(FlagsWord(form), "");
    for (const std::size_t i : {0u, 2u, 7u})
        form.mnuFlags[i].checked = true;
    EXPECT_EQ(FlagsWord(form), "+1+3+8");
}

TEST_F(CommandArguments, GiveTheSystemsDriveWhereItIsKnown) {
    form.cmbOptical.tag = "D:,0,F:,";
    EXPECT_EQ(ResolveOpticalDrive(form, "cd0:  [4.38GB]"), "D:");
    EXPECT_EQ(ResolveOpticalDrive(form, "cd1:  [4.38GB]"), "cd1:");
    EXPECT_EQ(ResolveOpticalDrive(form, "cd2:  [4.38GB]"), "F:");
}

TEST_F(CommandArguments, KnowADriveByTheFirstDigitOfItsNumber) {
    form.cmbOptical.tag = "D:,E:,";
    EXPECT_EQ(ResolveOpticalDrive(form, "cd12  [4.38GB]"), "E:");
}

TEST_F(CommandArguments, RefuseADriveThatTheLastQueryDoesNotKnow) {
    EXPECT_THROW(ResolveOpticalDrive(form, "cd0:  [4.38GB]"), Fault);
    form.cmbOptical.tag = "D:,";
    EXPECT_THROW(ResolveOpticalDrive(form, "cd5:  [4.38GB]"), Fault);
}

} // namespace
} // namespace tarnwell
