#pragma once

#include "ui/form.h"

namespace tarnwell::ui {

/// The window that follows a running job. Its controls are the model of the running work: the interpreter
/// writes them, the tray tip and everyone else who wants to know reads them.
class FrmStatus : public Form {
public:
    FrmStatus();

    Frame fmOverall{*this, "fmOverall", {.caption = "Overall Completion"}};
    PictureBox picOverall{
        *this, "picOverall", {.in = &fmOverall, .accessibleName = "Overall completion", .width = 4335}};
    Label lblOverallElapsed{*this, "lblOverallElapsed", {.in = &fmOverall, .caption = "00:00:00"}};
    Label lblTask{*this, "lblTask", {.in = &fmOverall, .caption = ""}};

    Frame fmCurrent{*this, "fmCurrent", {.caption = "Current Job"}};
    PictureBox picCurrent{
        *this,
        "picCurrent",
        {.in = &fmCurrent, .accessibleName = "Completion of the current job", .width = 4335}};
    Label lblCurrentElapsed{*this, "lblCurrentElapsed", {.in = &fmCurrent, .caption = "00:00:00"}};
    Label lblJob{*this, "lblJob", {.in = &fmCurrent, .caption = ""}};
    Label lblSpeed{*this, "lblSpeed", {.in = &fmCurrent, .caption = "Speed: n/a"}};
    Label lblRemaining{*this, "lblRemaining", {.in = &fmCurrent, .caption = "Time Remaining: n/a"}};

    Label lblFinish{*this, "lblFinish", {.caption = "  When all jobs are complete:"}};
    CheckBox chkShutdown{*this, "chkShutdown", {.caption = "Shutdown PC"}};
    CheckBox chkStandby{*this, "chkStandby", {.caption = "Standby PC"}};
    CheckBox chkShutdownPS2{*this, "chkShutdownPS2", {.caption = "Shutdown PS2"}};
    Button cmdStop{*this, "cmdStop", {.caption = "Cancel"}};
    Button cmdMinimize{*this, "cmdMinimize", {.caption = "Minimize"}};
};

} // namespace tarnwell::ui
