#include <windows.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/MemorySettingsStore.h"
#include "ui/main/HotkeyText.h"
#include "ui/main/HotkeyToggle.h"
#include "ui/main/MainWindowFixture.h"
#include "ui/main/TrayRecord.h"

namespace quorin::test {
namespace {

// Combinations nobody else on the test desktop uses.
constexpr Hotkey kToggle{MOD_CONTROL | MOD_ALT | MOD_SHIFT, VK_F10};
constexpr Hotkey kHeld{MOD_CONTROL | MOD_ALT | MOD_SHIFT, VK_F11};

// Every kind of key goes to text and back; any case and blanks are read, but nothing else.
TEST(HotkeyText, EveryKindOfKeyGoesToTextAndBackAndOnlyThat) {
    const std::vector<std::pair<Hotkey, std::string>> cases = {
        {{MOD_ALT, VK_SPACE}, "Alt+Space"},
        {{MOD_CONTROL | MOD_ALT, 'Q'}, "Ctrl+Alt+Q"},
        {{MOD_SHIFT | MOD_CONTROL, VK_F12}, "Ctrl+Shift+F12"},
        {{MOD_ALT, '7'}, "Alt+7"},
        {{MOD_ALT, VK_NUMPAD5}, "Alt+Num 5"},
        {{MOD_CONTROL, VK_ADD}, "Ctrl+Num +"},
        {{MOD_ALT | MOD_SHIFT, VK_OEM_3}, "Alt+Shift+`"},
        {{MOD_CONTROL, VK_NEXT}, "Ctrl+PageDown"},
        {{MOD_CONTROL, 0xE2}, "Ctrl+Key 226"},
    };
    for (const auto& [hotkey, text] : cases) {
        EXPECT_EQ(FormatHotkey(hotkey), text);
        EXPECT_EQ(ParseHotkey(text), hotkey) << text;
    }
    EXPECT_EQ(ParseHotkey(" alt + SPACE "), (Hotkey{MOD_ALT, VK_SPACE}));
    EXPECT_EQ(ParseHotkey("shift+ctrl+f2"), (Hotkey{MOD_CONTROL | MOD_SHIFT, VK_F2}));
    for (const char* bad : {"", "Space", "Shift+A", "Alt+", "Ctrl+Alt", "Alt+Alt+X", "Win+X",
                            "Alt+Spacebar", "Alt+F25", "Alt+F0", "Alt+Num 10", "Alt+Key 0",
                            "Alt+Key 999", "Alt+Key", "+", "Alt+Q+W", "Alt+\xC3\xA9"}) {
        EXPECT_EQ(ParseHotkey(bad), std::nullopt) << bad;
    }
}

TEST(HotkeyText, TheSettingDefaultsToAltSpaceAndAnEmptyValueTurnsItOff) {
    MemorySettingsStore settings;
    EXPECT_EQ(LoadHotkey(settings), (Hotkey{MOD_ALT, VK_SPACE})) << "absent";
    settings.Save("Main", "Hotkey", "  ");
    EXPECT_EQ(LoadHotkey(settings), std::nullopt);
    settings.Save("Main", "Hotkey", "Ctrl+Alt+Q");
    EXPECT_EQ(LoadHotkey(settings), (Hotkey{MOD_CONTROL | MOD_ALT, 'Q'}));
    settings.Save("Main", "Hotkey", "Hyper+Q");
    EXPECT_EQ(LoadHotkey(settings), (Hotkey{MOD_ALT, VK_SPACE})) << "unreadable: the default";
    EXPECT_EQ(settings.Get("Main", "Hotkey", ""), "Hyper+Q") << "left for the user to change";

    SaveHotkey(settings, Hotkey{MOD_CONTROL, VK_F5});
    EXPECT_EQ(settings.Get("Main", "Hotkey", "-"), "Ctrl+F5");  // none: OptionsTest's
}

TEST(HotkeyToggle, OnlyAWindowInFrontIsPutAway) {
    EXPECT_EQ(DecideHotkey({.visible = true, .minimized = false, .foreground = true}),
              HotkeyAction::Hide);
    EXPECT_EQ(DecideHotkey({.visible = true, .minimized = false, .foreground = false}),
              HotkeyAction::ShowGo)
        << "behind another window: brought forward";
    EXPECT_EQ(DecideHotkey({.visible = true, .minimized = true, .foreground = true}),
              HotkeyAction::ShowGo);
    EXPECT_EQ(DecideHotkey({}), HotkeyAction::ShowGo);
    EXPECT_EQ(DecideHotkey({.indexing = true}), HotkeyAction::ShowAsItIs);
    EXPECT_EQ(DecideHotkey({.visible = true, .foreground = true, .indexing = true}),
              HotkeyAction::Hide);
}

// Another holder of a combination, as another program would be: this thread, with no window.
bool HeldElsewhere(const Hotkey& hotkey, bool hold) {
    return hold ? RegisterHotKey(nullptr, hotkey.key, hotkey.modifiers, hotkey.key) != FALSE
                : UnregisterHotKey(nullptr, hotkey.key) != FALSE;
}

// What the hotkey does to the window is the main window test's; here, whose it is.
TEST_F(MainWindowTest, TheHotkeyIsRefusedWhenHeldProbedWithoutKeepingAndReleasedWithNone) {
    ASSERT_TRUE(HeldElsewhere(kHeld, true));
    settings.Save("Main", "Hotkey", FormatHotkey(kHeld));
    Load();
    EXPECT_EQ(TrayTip(tray.Record()), "Quorin") << "only the General page tells it is held";
    EXPECT_FALSE(form->HotkeyFree(kHeld));
    EXPECT_TRUE(form->HotkeyFree(kToggle));
    EXPECT_TRUE(form->ApplyHotkey(kToggle)) << "probing left nothing registered";
    EXPECT_TRUE(form->HotkeyFree(kToggle)) << "its own";
    EXPECT_FALSE(HeldElsewhere(kToggle, true));
    EXPECT_TRUE(form->ApplyHotkey(std::nullopt)) << "none is never in use";
    EXPECT_TRUE(HeldElsewhere(kToggle, true)) << "released with none";
    EXPECT_TRUE(HeldElsewhere(kToggle, false));
    EXPECT_FALSE(form->ApplyHotkey(kHeld));
    EXPECT_EQ(TrayTip(tray.Record()), "Quorin");
    EXPECT_TRUE(HeldElsewhere(kHeld, false));
}

}  // namespace
}  // namespace quorin::test
