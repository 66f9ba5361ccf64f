#include "queue/completion_actions.h"

#include "interpreter/tool_commands.h"

namespace tarnwell {

namespace {

int ticked(int setting) {
    return setting == 1 ? 1 : 0;
}

} // namespace

void CompletionActions::offerChoices() {
    auto& frmStatus = shared_.frmStatus;
    const bool networked = shared_.frmMain.optLAN.value;
    frmStatus->chkShutdownPS2.enabled = networked;
    frmStatus->chkShutdownPS2.value = networked ? ticked(shared_.config.number("TurnOffPS2")) : 0;
    // The two exclude each other and the later stays: if the store holds both, it is the shutdown.
    frmStatus->chkStandby.value = ticked(shared_.config.number("StandbyPC"));
    frmStatus->chkShutdown.value = ticked(shared_.config.number("TurnOffPC"));
}

void CompletionActions::afterInstall() {
    if (consoleGoesOff()) {
        // An install shows its last command even if the tool turns out to be busy.
        shared_.frmMain.txtCommand.text = powerOff();
        shared_.frmMain.txtOutput.text = QString();
    }
    turnOffWhatIsTicked();
}

void CompletionActions::turnOffWhatIsTicked() {
    if (consoleGoesOff())
        channel_.Tarn_Execute(powerOff());
    turnPcOff();
}

bool CompletionActions::consoleGoesOff() {
    return shared_.frmMain.optLAN.value && shared_.frmStatus->chkShutdownPS2.value == 1;
}

QString CompletionActions::powerOff() const {
    return PowerOffCommand(shared_.frmMain.txtIP.text);
}

void CompletionActions::turnPcOff() {
    if (shared_.frmStatus->chkShutdown.value == 1)
        shared_.ports.power.shutDown();
    else if (shared_.frmStatus->chkStandby.value == 1)
        shared_.ports.power.standBy();
}

} // namespace tarnwell
