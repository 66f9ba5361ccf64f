#pragma once

#include "interpreter/output_interpreter.h"
#include "tool/tool_channel.h"

namespace tarnwell {

class AwaitedAnswer;

/// The choice between a networked console and a local disk, the loading of its game list, and the shutdown of
/// the console. A device is active from a refresh on, until the mode or the address changes or the console is
/// shut down; a mere selection in the disk list leaves the old game list on view.
class DeviceSelection {
public:
    DeviceSelection(Shared& shared, ToolChannel& channel, OutputInterpreter& interpreter);

private:
    void chooseLan();
    void chooseLocal();
    void updateCopyTargets();
    void refresh();
    void shutDownConsole();
    void changeAddress();
    void pressKeyInAddress(int& key);

    void queryDisks();
    void chooseDiskAgain(int index);
    void readGameList(AwaitedAnswer& gameList);
    bool requireAddress();

    void resetDevice();
    void disableDeviceGroup();

    Shared& shared_;
    ToolChannel& channel_;
    OutputInterpreter& interpreter_;
};

/// What to check when no console answers at the address.
QString ConsoleNotFound(const QString& address);

/// Tells the user that no console answers at the address. Returns whether one does.
bool requireConsole(Shared& shared, const QString& address);

/// At the end of work: reads the list of games again, unless the console no longer answers.
void RefreshAfterWork(Shared& shared);

} // namespace tarnwell
