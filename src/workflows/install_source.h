#pragma once

#include "interpreter/output_interpreter.h"
#include "interpreter/tool_commands.h"
#include "tool/tool_channel.h"

namespace tarnwell {

/// The install page: an image file or an optical drive, what the tool says about it, and the compatibility
/// flags.
class InstallSource {
public:
    InstallSource(Shared& shared, ToolChannel& channel, OutputInterpreter& interpreter);

    /// Puts an image onto the page and asks the tool about it.
    void pick(const QString& image);
    /// The same for one of many images: nothing is told of a tool that does not answer. `image` has the name
    /// that the tool knows. Returns whether there was an answer.
    bool pickOneOfMany(const QString& image);

private:
    using Ask = QString (ToolChannel::*)(const QString& command);

    void chooseIso();
    void chooseOptical();
    void readDisc();
    void browse();
    bool readImage(const QString& path, Ask ask);
    void forgetImage();
    void forgetGame();
    bool askForDiscInfo(const QString& command, Ask ask = &ToolChannel::Tarn_Command);
    void forgetQuestion();
    void openFlagsMenu();
    void pressKeyInName(int& key);

    Shared& shared_;
    ToolChannel& channel_;
    OutputInterpreter& interpreter_;
};

/// Whether a file is of a kind that Browse offers, by its name.
bool isInstallableImage(const QString& file);

/// Asks the user for an image or a drive. Returns whether one is chosen.
bool requireSource(Shared& shared);

/// The game that the page describes, for the selected device. A drive that the last query does not know is a
/// Fault.
Installation ReadInstallPage(const ui::FrmMain& frmMain);

/// Unticks flags 1 to 7. Flag 8 stays as it is: it survives into the next game.
void clearCompatibilityFlags(ui::FrmMain& frmMain);

/// Empties the page after a game has been taken from it; the hidden size and flag 8 stay.
void resetInstallPage(ui::FrmMain& frmMain);

} // namespace tarnwell
