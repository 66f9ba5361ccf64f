#pragma once

#include <QString>

namespace tarnwell {

/// Starts a program without a window and without a wait; a failure goes unnoticed. `program` is a whole path,
/// the arguments go to it as they are.
void startHidden(const QString& program, const QString& arguments);

} // namespace tarnwell
