#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorin {

class SettingsStore;

// A key combination that summons the program from anywhere: RegisterHotKey's modifier flags
// (MOD_CONTROL, MOD_ALT, MOD_SHIFT) and a virtual key.
struct Hotkey {
    unsigned modifiers = 0;
    unsigned key = 0;

    bool operator==(const Hotkey&) const = default;
};

inline constexpr std::string_view kDefaultHotkeyText = "Alt+Space";

// "Ctrl+Alt+Q": the modifiers in the order Ctrl, Alt, Shift, then the key's name.
std::string FormatHotkey(const Hotkey& hotkey);

// The combination written as FormatHotkey writes it, without regard to case or blanks around
// the parts; nothing for an unknown name, a missing key, or a key with no modifier but Shift,
// which would take a key that people type.
std::optional<Hotkey> ParseHotkey(std::string_view text);

// Section "Main", key "Hotkey": absent means Alt+Space, empty means none. A value that is not a
// combination also gives Alt+Space, so that the program can always be summoned; it stays
// stored until the user sets another.
std::optional<Hotkey> LoadHotkey(const SettingsStore& settings);
void SaveHotkey(SettingsStore& settings, const std::optional<Hotkey>& hotkey);

}  // namespace quorin
