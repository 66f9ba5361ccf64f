#include "work/completion_actions.h"

#include "base/set_check_box.h"
#include "interpreter/tool_commands.h"

namespace tarnwell {

namespace {

/// A setting that no box can hold is no tick left from the run before.
void offer(ui::CheckBox& box, const QString& setting) {
    box.value = 0;
    SetCheckBox(box, setting);
}

} // namespace

void CompletionActions::offerChoices() {
    auto& frmStatus = shared_.frmStatus;
    const bool networked = shared_.frmMain.optLAN.value;
    frmStatus->chkShutdownPS2.enabled = networked;
    offer(frmStatus->chkShutdownPS2, networked ? shared_.config.text("TurnOffPS2") : QString());
    // The two exclude each other and the later stays: if the store holds both, it is the shutdown.
    offer(frmStatus->chkStandby, shared_.config.text("StandbyPC"));
    offer(frmStatus->chkShutdown, shared_.config.text("TurnOffPC"));
}

void CompletionActions::turnOffWhatIsTicked() {
    if (shared_.frmMain.optLAN.value && shared_.frmStatus->chkShutdownPS2.value == 1)
        channel_.Tarn_Execute(PowerOffCommand(shared_.frmMain.txtIP.text));
    turnPcOff();
}

void CompletionActions::turnPcOff() {
    if (shared_.frmStatus->chkShutdown.value == 1)
        shared_.ports.power.shutDown();
    else if (shared_.frmStatus->chkStandby.value == 1)
        shared_.ports.power.standBy();
}

} // namespace tarnwell
