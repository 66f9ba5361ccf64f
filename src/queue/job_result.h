#pragma once

namespace tarnwell {

/// What the first column of the job list says of a job. A failed job has words of its own instead, which
/// begin with "Error (" or "SPTI Error (".
inline constexpr char kPending[] = "Pending";
inline constexpr char kActive[] = "Active";
inline constexpr char kComplete[] = "Complete";
inline constexpr char kAborted[] = "Aborted";

} // namespace tarnwell
