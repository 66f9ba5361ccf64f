#pragma once

/// Where the links of the program lead: the only place for addresses. The real pages are not published yet.
namespace tarnwell::web_pages {

inline constexpr char kCommunityName[] = "PS2 Drive Community";
inline constexpr char kCommunitySite[] = "https://community.example.org/";
inline constexpr char kReleaseThread[] = "https://community.example.org/threads/tarnwell-gui";
inline constexpr char kTool[] = "https://tarnwell.example.org/";

} // namespace tarnwell::web_pages
