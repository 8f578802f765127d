#pragma once

#include <string_view>

#include "ui/RememberedPlace.h"

// Section "Main" of the settings store: where the program lives, its version, the main window's
// place, the hotkey and the first start. Each key is spelled here once.
namespace quorin::MainSettings {

inline constexpr std::string_view kSection = "Main";
inline constexpr std::string_view kPath = "Path";
inline constexpr std::string_view kVersionMajor = "VersionMajor";
inline constexpr std::string_view kVersionMinor = "VersionMinor";
inline constexpr std::string_view kVersionRevision = "VersionRevision";
// "1" once the wizard's Finish has built the first index on this machine.
inline constexpr std::string_view kConfigured = "Configured";
inline constexpr std::string_view kStartX = "StartX";
inline constexpr std::string_view kStartY = "StartY";
inline constexpr std::string_view kStartDpi = "StartDpi";
// Where the main window comes back from the tray.
inline constexpr PlaceKeys kStartPlace{
    .section = kSection, .left = kStartX, .top = kStartY, .dpi = kStartDpi};
inline constexpr std::string_view kHotkey = "Hotkey";

}  // namespace quorin::MainSettings
