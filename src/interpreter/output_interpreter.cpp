#include "interpreter/output_interpreter.h"

#include "app/fault.h"
#include "app/shared.h"
#include "interpreter/device_stage.h"
#include "interpreter/disc_stage.h"
#include "interpreter/failure_stage.h"
#include "interpreter/game_list_stage.h"
#include "interpreter/progress_stage.h"

namespace tarnwell {

void OutputInterpreter::ParseToolOutput(const QString& text) {
    if (IsConnectionFailure(text)) {
        ReportConnectionFailure(shared_);
        return;
    }
    if ((shared_.blnQueryHD || shared_.blnQueryOptical) && ReadDevices(shared_, text) == Then::Stop)
        return;
    if (shared_.blnQuerySettings)
        ReadSettingsDisks(shared_, text);

    bool faultsIgnored = false;
    if (shared_.jobRunning()) {
        if (text.isEmpty())
            return;
        if (!text.contains('%')) {
            ReadJobFailure(shared_, text);
            return;
        }
        faultsIgnored = ReadProgress(shared_, text) == ProgressOf::Queue;
    }
    const auto attempt = [faultsIgnored](const auto& step) {
        try {
            return step();
        } catch (const Fault&) {
            if (!faultsIgnored)
                throw;
            return Then::NextStage;
        }
    };

    if (shared_.blnDiscInfo && attempt([&] { return ReadDisc(shared_, text); }) == Then::Stop)
        return;
    if (shared_.blnReadTOC && attempt([&] { return ReadGameList(shared_, text); }) == Then::Stop)
        return;

    // The whole text has just been read as if it were one line. Now each later line is, so that the last
    // counts.
    if (!shared_.jobRunning())
        return;
    const QStringList lines = text.split('\r');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        if (lines[i].isEmpty())
            continue;
        attempt([&] {
            ParseToolOutput(lines[i]);
            return Then::NextStage;
        });
    }
}

} // namespace tarnwell
