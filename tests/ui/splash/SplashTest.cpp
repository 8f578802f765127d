#include "ui/splash/frmSplash.h"

#include <gtest/gtest.h>

#include "QuorinVersion.h"
#include "ui/Dpi.h"
#include "ui/WindowText.h"

namespace quorin {
namespace {

TEST(Splash, ShowsThePictureSizeTheVersionAndGoesWithOkUnloadOrTheObjectsEnd) {
    HWND window = nullptr;
    {
        frmSplash splash;
        splash.Show();
        window = FindWindowW(kSplashClass, nullptr);
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

        splash.Show();  // shown again by a later start-up step
        window = FindWindowW(kSplashClass, nullptr);
        EXPECT_TRUE(IsWindowVisible(window));
        splash.Unload();
        EXPECT_FALSE(IsWindow(window));
        splash.Show();
        window = FindWindowW(kSplashClass, nullptr);
    }
    EXPECT_FALSE(IsWindow(window)) << "the object's end removes it";
}

}  // namespace
}  // namespace quorin
