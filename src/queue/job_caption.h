#pragma once

#include <QString>

namespace tarnwell {

/// What a command of the tool does, in the user's words: the line that the status window shows of a job. A
/// command of another kind, or with too few words, stands for itself.
QString JobCaption(const QString& command);

} // namespace tarnwell
