#include "ui/main/HotkeyText.h"

#include <windows.h>

#include <array>
#include <cctype>
#include <utility>

#include "platform/SettingsStore.h"
#include "platform/Text.h"
#include "ui/main/MainSettings.h"

namespace quorin {

namespace {

constexpr std::string_view kUnknownKeyPrefix = "Key ";

constexpr std::array<std::pair<unsigned, std::string_view>, 3> kModifierNames = {{
    {MOD_CONTROL, "Ctrl"},
    {MOD_ALT, "Alt"},
    {MOD_SHIFT, "Shift"},
}};

// Names of the keys that are neither letters, digits nor function keys.
constexpr std::array<std::pair<unsigned, std::string_view>, 37> kKeyNames = {{
    {VK_SPACE, "Space"},
    {VK_RETURN, "Enter"},
    {VK_TAB, "Tab"},
    {VK_BACK, "Backspace"},
    {VK_ESCAPE, "Esc"},
    {VK_INSERT, "Insert"},
    {VK_DELETE, "Delete"},
    {VK_HOME, "Home"},
    {VK_END, "End"},
    {VK_PRIOR, "PageUp"},
    {VK_NEXT, "PageDown"},
    {VK_LEFT, "Left"},
    {VK_RIGHT, "Right"},
    {VK_UP, "Up"},
    {VK_DOWN, "Down"},
    {VK_PAUSE, "Pause"},
    {VK_SNAPSHOT, "PrintScreen"},
    {VK_MULTIPLY, "Num *"},
    {VK_ADD, "Num +"},
    {VK_SUBTRACT, "Num -"},
    {VK_DECIMAL, "Num ."},
    {VK_DIVIDE, "Num /"},
    {VK_OEM_1, ";"},
    {VK_OEM_PLUS, "="},
    {VK_OEM_COMMA, ","},
    {VK_OEM_MINUS, "-"},
    {VK_OEM_PERIOD, "."},
    {VK_OEM_2, "/"},
    {VK_OEM_3, "`"},
    {VK_OEM_4, "["},
    {VK_OEM_5, "\\"},
    {VK_OEM_6, "]"},
    {VK_OEM_7, "'"},
    {VK_APPS, "Menu"},
    {VK_CLEAR, "Clear"},
    {VK_CANCEL, "Break"},
    {VK_SCROLL, "ScrollLock"},
}};

bool SameText(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (size_t i = 0; i < a.size(); ++i) {
        if (std::toupper(static_cast<unsigned char>(a[i])) !=
            std::toupper(static_cast<unsigned char>(b[i]))) {
            return false;
        }
    }
    return true;
}

std::optional<unsigned> Number(std::string_view digits, unsigned low, unsigned high) {
    if (digits.empty() || digits.size() > 3 ||
        digits.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    const unsigned value = static_cast<unsigned>(std::stoul(std::string(digits)));
    if (value < low || value > high) {
        return std::nullopt;
    }
    return value;
}

std::string KeyName(unsigned key) {
    if ((key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9')) {
        return std::string(1, static_cast<char>(key));
    }
    if (key >= VK_F1 && key <= VK_F24) {
        return std::string("F").append(std::to_string(key - VK_F1 + 1));
    }
    if (key >= VK_NUMPAD0 && key <= VK_NUMPAD9) {
        return std::string("Num ").append(std::to_string(key - VK_NUMPAD0));
    }
    for (const auto& [code, name] : kKeyNames) {
        if (code == key) {
            return std::string(name);
        }
    }
    return std::string(kUnknownKeyPrefix).append(std::to_string(key));
}

std::optional<unsigned> KeyCode(std::string_view name) {
    if (name.size() == 1 && std::isalnum(static_cast<unsigned char>(name[0]))) {
        return static_cast<unsigned>(std::toupper(static_cast<unsigned char>(name[0])));
    }
    for (const auto& [code, known] : kKeyNames) {
        if (SameText(known, name)) {
            return code;
        }
    }
    if (name.size() > 1 && (name[0] == 'F' || name[0] == 'f')) {
        if (const auto number = Number(name.substr(1), 1, 24)) {
            return VK_F1 + *number - 1;
        }
    }
    if (name.size() > 4 && SameText(name.substr(0, 4), "Num ")) {
        if (const auto digit = Number(name.substr(4), 0, 9)) {
            return VK_NUMPAD0 + *digit;
        }
    }
    if (name.size() > kUnknownKeyPrefix.size() &&
        SameText(name.substr(0, kUnknownKeyPrefix.size()), kUnknownKeyPrefix)) {
        return Number(name.substr(kUnknownKeyPrefix.size()), 1, 254);
    }
    return std::nullopt;
}

// Takes a leading "Ctrl+", "Alt+" or "Shift+" off the text and gives its flag.
unsigned TakeModifier(std::string_view& text) {
    const size_t plus = text.find('+');
    if (plus == std::string_view::npos) {
        return 0;
    }
    for (const auto& [flag, name] : kModifierNames) {
        if (SameText(TrimBlanks(text.substr(0, plus), " "), name)) {
            text.remove_prefix(plus + 1);
            return flag;
        }
    }
    return 0;
}

}  // namespace

std::string FormatHotkey(const Hotkey& hotkey) {
    std::string text;
    for (const auto& [flag, name] : kModifierNames) {
        if ((hotkey.modifiers & flag) != 0) {
            text.append(name).append("+");
        }
    }
    return text.append(KeyName(hotkey.key));
}

std::optional<Hotkey> ParseHotkey(std::string_view text) {
    Hotkey hotkey;
    while (const unsigned flag = TakeModifier(text)) {
        if ((hotkey.modifiers & flag) != 0) {
            return std::nullopt;
        }
        hotkey.modifiers |= flag;
    }
    const auto key = KeyCode(TrimBlanks(text, " "));
    if (!key || (hotkey.modifiers & ~static_cast<unsigned>(MOD_SHIFT)) == 0) {
        return std::nullopt;
    }
    hotkey.key = *key;
    return hotkey;
}

std::optional<Hotkey> LoadHotkey(const SettingsStore& settings) {
    const std::string text =
        settings.Get(MainSettings::kSection, MainSettings::kHotkey, kDefaultHotkeyText);
    if (TrimBlanks(text, " ").empty()) {
        return std::nullopt;
    }
    if (const auto hotkey = ParseHotkey(text)) {
        return hotkey;
    }
    return ParseHotkey(kDefaultHotkeyText);
}

void SaveHotkey(SettingsStore& settings, const std::optional<Hotkey>& hotkey) {
    settings.Save(MainSettings::kSection, MainSettings::kHotkey,
                  hotkey ? FormatHotkey(*hotkey) : "");
}

}  // namespace quorin
