#pragma once

#include <QString>

namespace tarnwell {

struct Shared;

bool IsConnectionFailure(const QString& text);
void ReportConnectionFailure(Shared& shared);

/// Turns a text that is no progress into the result of the running job.
void ReadJobFailure(Shared& shared, const QString& text);

} // namespace tarnwell
