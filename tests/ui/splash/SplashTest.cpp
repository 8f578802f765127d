#include "ui/splash/frmSplash.h"

#include <gtest/gtest.h>

#include "QuorinVersion.h"
#include "ui/Dpi.h"
#include "ui/WindowText.h"

namespace quorin {
namespace {

HWND SplashWindow() {
    return FindWindowW(kSplashClass, nullptr);
}

TEST(Splash, ShowsThePictureSizeTheVersionAndAnOkThatClosesIt) {
    frmSplash splash;
    splash.Show();
    const HWND window = SplashWindow();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE)) << "painted at once";

    RECT client{};
    GetClientRect(window, &client);
    EXPECT_EQ(client.right, MulDiv(400, ScreenDpi(), 96));
    EXPECT_EQ(client.bottom, MulDiv(220, ScreenDpi(), 96));
    EXPECT_EQ(WindowText(GetDlgItem(window, kSplashVersionId)), "Version " QUORIN_VERSION_TEXT);
    EXPECT_EQ(WindowText(GetDlgItem(window, kSplashOkId)), "OK");

    SendDlgItemMessageW(window, kSplashOkId, BM_CLICK, 0, 0);
    EXPECT_FALSE(IsWindow(window));
    splash.Unload();  // the caller's unload after OK does nothing
}

TEST(Splash, UnloadAndTheObjectsEndRemoveIt) {
    HWND window = nullptr;
    {
        frmSplash splash;
        splash.Show();
        window = SplashWindow();
        splash.Unload();
        EXPECT_FALSE(IsWindow(window));
        splash.Show();  // shown again by a later start-up step
        window = SplashWindow();
        EXPECT_TRUE(IsWindowVisible(window));
    }
    EXPECT_FALSE(IsWindow(window));
}

}  // namespace
}  // namespace quorin
