#pragma once

namespace tarnwell::ping_status {

// The codes by which an echo's failure is known.
constexpr int kSuccess = 0;
constexpr int kNetUnreachable = 11002;
constexpr int kHostUnreachable = 11003;
constexpr int kTimedOut = 11010;
constexpr int kGeneralFailure = 11050;

} // namespace tarnwell::ping_status
