#include "interpreter/output_interpreter.h"

#include "base/fault.h"
#include "base/shared.h"
#include "interpreter/device_stage.h"
#include "interpreter/disc_stage.h"
#include "interpreter/failure_stage.h"
#include "interpreter/game_list_stage.h"
#include "interpreter/progress_stage.h"

namespace tarnwell {

namespace {

/// The reading of one text, which goes through the stages in a fixed order. Each does its work if a flag asks
/// for it, and says whether the next may do its own.
class Reading {
public:
    Reading(Shared& shared, const QString& text) : shared_(shared), text_(text) {}

    /// A chunk of several lines is first read as if it were one. While a job runs, each later line is then
    /// read for itself, so that the last counts.
    void readText() {
        if (readAsOneLine() == Then::NextStage && shared_.jobRunning())
            readLaterLines();
    }

private:
    Then readAsOneLine() {
        if (IsConnectionFailure(text_)) {
            ReportConnectionFailure(shared_);
            return Then::Stop;
        }
        if ((shared_.blnQueryHD || shared_.blnQueryOptical) && ReadDevices(shared_, text_) == Then::Stop)
            return Then::Stop;
        if (shared_.blnQuerySettings)
            ReadSettingsDisks(shared_, text_);
        if (shared_.jobRunning() && readJob() == Then::Stop)
            return Then::Stop;
        if (shared_.blnDiscInfo && stage([&] { return ReadDisc(shared_, text_); }) == Then::Stop)
            return Then::Stop;
        if (shared_.blnReadTOC && stage([&] { return ReadGameList(shared_, text_); }) == Then::Stop)
            return Then::Stop;
        return Then::NextStage;
    }

    /// What is no progress is a failure, and ends the reading of the text.
    Then readJob() {
        if (text_.isEmpty())
            return Then::Stop;
        if (!text_.contains('%')) {
            ReadJobFailure(shared_, text_);
            return Then::Stop;
        }
        if (ReadProgress(shared_, text_) == ProgressOf::Queue)
            faultEnds_ = FaultEnds::Stage;
        return Then::NextStage;
    }

    void readLaterLines() {
        const QStringList lines = text_.split('\r');
        for (qsizetype i = 1; i < lines.size(); ++i) {
            if (lines[i].isEmpty())
                continue;
            // Whatever stops the reading of a line, the lines behind it are read.
            stage([&] { return Reading(shared_, lines[i]).readAsOneLine(); });
        }
    }

    /// What a fault is the end of: the reading of the whole text, until the overall percentage of a queued
    /// job has been seen in it; from then on only the stage, or the later line, that met the fault.
    enum class FaultEnds { Text, Stage };

    template <class Step>
    Then stage(Step step) {
        try {
            return step();
        } catch (const Fault&) {
            if (faultEnds_ == FaultEnds::Text)
                throw;
            return Then::NextStage;
        }
    }

    Shared& shared_;
    const QString& text_;
    FaultEnds faultEnds_ = FaultEnds::Text;
};

} // namespace

void OutputInterpreter::ParseToolOutput(const QString& text) {
    Reading(shared_, text).readText();
}

} // namespace tarnwell
