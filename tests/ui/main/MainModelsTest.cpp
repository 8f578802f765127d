#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ui/RememberedPlace.h"
#include "ui/main/IndexSummary.h"
#include "ui/main/MainLayout.h"
#include "ui/main/ReindexSchedule.h"
#include "ui/main/TrayCallback.h"
#include "ui/main/TrayRecord.h"

namespace quorin {
namespace {

TEST(IndexSummary, CountsAreGroupedAndFoldersLeftOutMakeALink) {
    for (const auto& [count, text] : {std::pair{0, "0"},
                                      {999, "999"},
                                      {5001, "5,001"},
                                      {1500000, "1,500,000"},
                                      {INT32_MAX, "2,147,483,647"}}) {
        EXPECT_EQ(GroupedNumber(count), text);
    }
    // With and without folders left out: the main window's test after its builds.
    const IndexSummary beforeABuild = SummarizeIndex(5001, 48210, std::nullopt);
    EXPECT_EQ(beforeABuild.text, "5,001 folders and 48,210 files indexed.");
    EXPECT_FALSE(beforeABuild.linksToAllFolders);
}

// The classic layout; the tip is cut to 64 bytes, with a NUL only when shorter.
TEST(TrayRecord, HasTheClassicLayoutFieldsAndTip) {
    const TrayRecord record = MakeTrayRecord(0x1234, 0x5678, "Quorin");
    const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
    std::vector<uint32_t> fields(6);
    std::memcpy(fields.data(), bytes, 6 * sizeof(uint32_t));
    EXPECT_EQ(fields, (std::vector<uint32_t>{88, 0x1234, 1, 7, 0x200, 0x5678}));
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(bytes + 24)), "Quorin");

    const TrayRecord fits = MakeTrayRecord(1, 2, std::string(63, 'a'));
    EXPECT_EQ(TrayTip(fits), std::string(63, 'a'));
    EXPECT_EQ(fits.szTip[63], '\0');
    const TrayRecord cut = MakeTrayRecord(1, 2, std::string(64, 'b') + "tail");
    EXPECT_EQ(TrayTip(cut), std::string(64, 'b'));
    EXPECT_EQ(cut.szTip[63], 'b');
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

// The main window's test checks the same at the test desktop's DPI.
TEST(MainLayout, ClientFitsTheContentAndExitSitsAtItsRightEdgeAt192Dpi) {
    const MainLayout at192 = ComputeMainLayout(192, {60, 90, 110, 80, 70}, 128);
    EXPECT_EQ(at192.clientWidth, 708);             // 5310 twips
    EXPECT_EQ(at192.clientHeight, 32 + 128 + 12);  // the tab row, the content and 90 twips
    EXPECT_EQ(at192.panelTop, 32);
    EXPECT_EQ(at192.tabLefts, (std::vector<int>{0, 60, 150, 260, 708 - 70 - 8}));
}

// A 96 dpi monitor with a 144 dpi one right of it, and one left of it: a place comes back on the
// monitor it was kept on, also where the other monitor would hold its conversion too.
TEST(PlaceInPixels, ComesBackOnTheMonitorOfItsDpi) {
    const std::vector<MonitorDpi> right = {{{0, 0, 1280, 800}, 96}, {{1280, 0, 3200, 1080}, 144}};
    const std::vector<MonitorDpi> left = {{{0, 0, 1280, 800}, 96}, {{-1920, 0, 0, 1080}, 144}};
    struct Case {
        std::vector<MonitorDpi> monitors;
        POINT twips;
        int keptDpi;
        POINT pixels;
    };
    const Case kCases[] = {
        {right, {15000, 3000}, 144, {1500, 300}},  // on the right monitor
        {right, {15000, 3000}, 96, {1000, 200}},   // the same twips kept on the left one
        {right, {30000, 0}, 96, {3000, 0}},        // only the 144 dpi monitor holds it
        {right, {3000, 1500}, 0, {200, 100}},      // kept before the DPI was kept
        {left, {-15000, 4500}, 144, {-1500, 450}},
        {left, {-15000, 4500}, 96, {-1500, 450}},    // the 96 dpi conversion lies off every monitor
        {right, {-3000, 90000}, 144, {-300, 9000}},  // off every monitor: at the fallback DPI
    };
    for (const Case& c : kCases) {
        const POINT pixels = PlaceInPixels(c.twips, c.keptDpi, c.monitors, 144);
        EXPECT_EQ(std::pair(pixels.x, pixels.y), std::pair(c.pixels.x, c.pixels.y))
            << c.twips.x << ", " << c.twips.y << " kept at " << c.keptDpi;
    }
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
