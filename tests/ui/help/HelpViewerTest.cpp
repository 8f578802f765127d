#include <windows.h>

#include <richedit.h>

#include <gtest/gtest.h>

#include "platform/Path.h"
#include "support/TempFolder.h"
#include "ui/WindowText.h"
#include "ui/help/HelpViewer.h"
#include "ui/help/ProgramHelp.h"

namespace quorin {
namespace {

HWND Viewer() {
    return FindWindowW(kHelpViewerClass, nullptr);
}

HWND TextBox(HWND viewer) {
    return FindWindowExW(viewer, nullptr, MSFTEDIT_CLASS, nullptr);
}

std::string ShownText(HWND viewer) {
    return WindowText(TextBox(viewer));
}

bool IsBold(HWND box, LONG start, LONG end) {
    CHARRANGE range{start, end};
    SendMessageW(box, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
    CHARFORMAT2W format{};
    format.cbSize = sizeof(format);
    SendMessageW(box, EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    return (format.dwMask & CFM_BOLD) != 0 && (format.dwEffects & CFE_BOLD) != 0;
}

class HelpViewerTest : public ::testing::Test {
  protected:
    void SetUp() override {
        folder_.WriteFile("qn.HLP",
                          "@topic 10 Using Quorin\nType a word.\n@topic 20 Setting up\n"
                          "Choose the drives.\n");
        help_.Setup(nullptr);
    }
    void TearDown() override { help_.Close(); }

    TempFolder folder_;
    ProgramHelp help_{folder_.Path()};
};

TEST_F(HelpViewerTest, OpensTheTopicWhereThePositionRecordSaysAndReusesTheWindowUntilClosed) {
    EXPECT_EQ(help_.File(), JoinPath(folder_.Path(), "qn.HLP"));
    help_.ShowTopic(kHelpUsingQuorin);
    const HWND viewer = Viewer();
    ASSERT_NE(viewer, nullptr);
    EXPECT_TRUE(IsWindowVisible(viewer));
    EXPECT_EQ(GetWindow(viewer, GW_OWNER), nullptr);  // help outlives a hidden main window
    std::string text = ShownText(viewer);
    EXPECT_EQ(text.rfind("Using Quorin", 0), 0u) << text;
    EXPECT_NE(text.find("Type a word."), std::string::npos) << text;
    EXPECT_TRUE(IsBold(TextBox(viewer), 0, 5));
    EXPECT_FALSE(IsBold(TextBox(viewer), 14, 18));
    // 256/1024 of the screen from the left and the top, half the screen in size.
    RECT place{};
    GetWindowRect(viewer, &place);
    const int screenWidth = GetSystemMetrics(SM_CXSCREEN);
    const int screenHeight = GetSystemMetrics(SM_CYSCREEN);
    EXPECT_EQ(place.left, screenWidth / 4);
    EXPECT_EQ(place.top, screenHeight / 4);
    EXPECT_EQ(place.right - place.left, screenWidth / 2);
    EXPECT_EQ(place.bottom - place.top, screenHeight / 2);

    SetWindowPos(viewer, nullptr, 10, 20, 400, 300, SWP_NOZORDER);
    help_.ShowTopic(kHelpSettingUp);
    EXPECT_EQ(Viewer(), viewer);
    text = ShownText(viewer);
    EXPECT_NE(text.find("Choose the drives."), std::string::npos) << text;
    EXPECT_EQ(text.find("Type a word."), std::string::npos) << text;
    GetWindowRect(viewer, &place);
    EXPECT_EQ(place.left, 10);  // the user's place is kept
    help_.ShowTopic(55);        // LoadHelpTopic's explanation, as for a missing file
    EXPECT_NE(ShownText(viewer).find("no topic number 55"), std::string::npos);

    SendMessageW(viewer, WM_CLOSE, 0, 0);  // the user closes it
    EXPECT_FALSE(IsWindow(viewer));
    help_.ShowTopic(kHelpSettingUp);
    const HWND reopened = Viewer();
    ASSERT_NE(reopened, nullptr);
    EXPECT_TRUE(IsWindowVisible(reopened));
    help_.Close();
    EXPECT_FALSE(IsWindow(reopened));
    help_.Close();  // nothing open: nothing happens
}

TEST(HelpViewerPlace, HalfTheScreenButScaledWithTheDpiAndInsideTheWorkArea) {
    struct Case {
        RECT monitor;
        RECT workArea;
        int dpi;
        RECT place;
    };
    const Case kCases[] = {
        {{0, 0, 1280, 800}, {0, 0, 1280, 770}, 96, {320, 200, 960, 600}},
        {{0, 0, 1920, 1080}, {0, 0, 1920, 1040}, 96, {480, 270, 1440, 810}},
        {{0, 0, 1280, 800}, {0, 0, 1280, 770}, 144, {320, 170, 1280, 770}},  // 960 x 600
        {{1280, 0, 2560, 800}, {1280, 0, 2560, 800}, 192, {1280, 0, 2560, 800}},
    };
    for (const Case& c : kCases) {
        const RECT place = HelpViewerPlace(HelpWindowPosition{}, c.monitor, c.workArea, c.dpi);
        EXPECT_TRUE(EqualRect(&place, &c.place))
            << c.dpi << " dpi: " << place.left << "," << place.top << "-" << place.right << ","
            << place.bottom;
    }
}

}  // namespace
}  // namespace quorin
