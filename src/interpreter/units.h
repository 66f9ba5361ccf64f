#pragma once

/// The units in which the tool tells sizes, and the program shows them.
namespace tarnwell {

constexpr double kKilobytesPerMegabyte = 1024;
constexpr double kMegabytesPerGigabyte = 1024;
constexpr double kKilobytesPerGigabyte = kKilobytesPerMegabyte * kMegabytesPerGigabyte;

} // namespace tarnwell
