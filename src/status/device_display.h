#pragma once

/// What the main window says about the device whose games it lists.
namespace tarnwell {

struct Shared;

/// The box with the space of the active device, as long as there is none.
void ClearFreeSpace(Shared& shared);

/// Says above the game list how many games there are.
void ShowGameCount(Shared& shared, int games);

} // namespace tarnwell
