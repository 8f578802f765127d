#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "ui/main/MainLayout.h"
#include "ui/main/ReindexSchedule.h"
#include "ui/main/TrayCallback.h"
#include "ui/main/TrayRecord.h"

namespace quorin {
namespace {

TEST(TrayRecord, HasTheClassicLayoutAndFields) {
    const TrayRecord record = MakeTrayRecord(0x1234, 0x5678, "Quorin");
    const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
    uint32_t fields[6] = {};
    std::memcpy(fields, bytes, sizeof(fields));
    EXPECT_EQ(fields[0], 88u);
    EXPECT_EQ(fields[1], 0x1234u);
    EXPECT_EQ(fields[2], 1u);
    EXPECT_EQ(fields[3], 7u);
    EXPECT_EQ(fields[4], 0x200u);
    EXPECT_EQ(fields[5], 0x5678u);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(bytes + 24)), "Quorin");
}

TEST(TrayRecord, CutsTheTipTo64BytesWithANulOnlyWhenShorter) {
    const std::string tip63(63, 'a');
    const TrayRecord fits = MakeTrayRecord(1, 2, tip63);
    EXPECT_EQ(TrayTip(fits), tip63);
    EXPECT_EQ(fits.szTip[63], '\0');

    const TrayRecord cut = MakeTrayRecord(1, 2, std::string(64, 'b') + "tail");
    EXPECT_EQ(TrayTip(cut), std::string(64, 'b'));
    EXPECT_EQ(cut.szTip[63], 'b') << "no room left for a NUL";
}

TEST(TrayCallback, DecodesOnlyGenuineCallbacks) {
    const POINT overIcon{900, 700};  // the pointer over the icon, far from the window
    EXPECT_EQ(DecodeTrayCallback(1, WM_LBUTTONUP, overIcon), TrayAction::Restore);
    EXPECT_EQ(DecodeTrayCallback(1, WM_LBUTTONDBLCLK, overIcon), TrayAction::Restore);
    EXPECT_EQ(DecodeTrayCallback(1, WM_RBUTTONUP, overIcon), TrayAction::Menu);
    for (const LPARAM ignored : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONUP}) {
        EXPECT_EQ(DecodeTrayCallback(1, ignored, overIcon), TrayAction::None) << ignored;
    }
    // Real mouse moves over the window: key flags in wParam, the pointer's y in the high word.
    EXPECT_EQ(DecodeTrayCallback(0, MAKELPARAM(WM_LBUTTONUP, 0), overIcon), TrayAction::None);
    EXPECT_EQ(DecodeTrayCallback(MK_LBUTTON, MAKELPARAM(WM_LBUTTONUP, 12), overIcon),
              TrayAction::None);
    EXPECT_EQ(DecodeTrayCallback(2, WM_LBUTTONUP, overIcon), TrayAction::None)
        << "another icon's id";
    // The left button held over the top row of a window wider than 517 pixels (150 % and up).
    for (const UINT x : {WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONUP}) {
        EXPECT_EQ(DecodeTrayCallback(MK_LBUTTON, x, POINT{static_cast<LONG>(x), 0}),
                  TrayAction::None)
            << x;
    }
}

TEST(MainLayout, TabsTouchAndExitSitsAtTheRightEdgeAtTwoDpis) {
    const std::vector<int> widths = {30, 45, 55, 40, 35};
    const MainLayout at96 = ComputeMainLayout(96, widths);
    EXPECT_EQ(at96.windowWidth, 360);   // 5400 twips
    EXPECT_EQ(at96.windowHeight, 100);  // 1500 twips
    EXPECT_EQ(at96.panelTop, 16);       // 240 twips
    EXPECT_EQ(at96.panelWidth, 360);
    EXPECT_EQ(at96.tabLefts, (std::vector<int>{0, 30, 75, 130, 360 - 35 - 4}));

    const std::vector<int> doubled = {60, 90, 110, 80, 70};
    const MainLayout at192 = ComputeMainLayout(192, doubled);
    EXPECT_EQ(at192.windowWidth, 720);
    EXPECT_EQ(at192.windowHeight, 200);
    EXPECT_EQ(at192.panelTop, 32);
    EXPECT_EQ(at192.tabLefts, (std::vector<int>{0, 60, 150, 260, 720 - 70 - 8}));

    const MainLayout at144 = ComputeMainLayout(144, widths);
    EXPECT_EQ(at144.windowHeight, 150);
    EXPECT_EQ(at144.panelTop, 24);
}

TEST(ReindexSchedule, RebuildsOnlyAfterAFullDay) {
    constexpr double kLast = 45000.25;
    constexpr double kTick = 1.0 / 86400.0;
    EXPECT_FALSE(ReindexDue(kLast + 23.0 / 24.0, kLast));
    EXPECT_FALSE(ReindexDue(kLast + 1.0, kLast)) << "strictly later than one day";
    EXPECT_TRUE(ReindexDue(kLast + 1.0 + kTick, kLast));
    EXPECT_TRUE(ReindexDue(kLast, 0)) << "never built";
}

}  // namespace
}  // namespace quorin
