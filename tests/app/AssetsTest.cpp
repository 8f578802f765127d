#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <vector>

#include "platform/Path.h"
#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "resource.h"

namespace quorin {
namespace {

// What Windows asks for from 100 % to 200 %: tray, title bar, taskbar, Start menu, Explorer.
const std::vector<int> kCarriedSizes = {16, 20, 24, 32, 40, 48, 64, 96, 128, 256};

std::string VersionString(const std::vector<char>& block, const wchar_t* name) {
    const std::wstring path = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
    void* value = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(block.data(), path.c_str(), &value, &length) || length == 0) {
        return {};
    }
    return Narrow(static_cast<const wchar_t*>(value));
}

// The icons carry and load every size Windows asks for; the splash picture is 400 x 170; the
// version information names the program in UTF-8 text; the search animation opens and plays.
TEST(Assets, IconsSplashPictureVersionInformationAndAnimationAreWhatTheProgramShips) {
    for (int id : {IDI_QUORIN, IDI_INDEXING}) {
        const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(id), RT_GROUP_ICON);
        ASSERT_NE(found, nullptr);
        const auto* group = static_cast<const BYTE*>(LockResource(LoadResource(nullptr, found)));
        const int count = group[4] | (group[5] << 8);
        std::vector<int> sizes;
        for (int i = 0; i < count; ++i) {
            const int width = group[6 + 14 * i];  // 0 stands for 256
            sizes.push_back(width == 0 ? 256 : width);
        }
        EXPECT_EQ(sizes, kCarriedSizes);
        for (int size : kCarriedSizes) {
            SCOPED_TRACE(testing::Message() << "icon " << id << " at " << size);
            const UniqueIcon icon(static_cast<HICON>(LoadImageW(
                GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, 0)));
            ASSERT_TRUE(icon);
            ICONINFO info{};
            ASSERT_TRUE(GetIconInfo(icon.get(), &info));
            const UniqueBitmap colour(info.hbmColor);
            const UniqueBitmap mask(info.hbmMask);
            BITMAP bitmap{};
            GetObjectW(colour.get(), sizeof(bitmap), &bitmap);
            EXPECT_EQ(bitmap.bmWidth, size);
            EXPECT_EQ(bitmap.bmHeight, size);
        }
    }
    const UniqueBitmap splash(
        static_cast<HBITMAP>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDB_SPLASH),
                                        IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    ASSERT_TRUE(splash);
    BITMAP bitmap{};
    GetObjectW(splash.get(), sizeof(bitmap), &bitmap);
    EXPECT_EQ(std::vector<int>({bitmap.bmWidth, bitmap.bmHeight, bitmap.bmBitsPixel}),
              std::vector<int>({400, 170, 24}))
        << "the splash picture";

    wchar_t exe[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, exe, MAX_PATH);
    DWORD ignored = 0;
    std::vector<char> block(GetFileVersionInfoSizeW(exe, &ignored));
    ASSERT_FALSE(block.empty());
    ASSERT_TRUE(GetFileVersionInfoW(exe, 0, static_cast<DWORD>(block.size()), block.data()));

    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(fixed->dwFileVersionMS, 0x00010000u);  // 1.0
    EXPECT_EQ(fixed->dwFileVersionLS, 0x00000000u);  // .0
    EXPECT_EQ(VersionString(block, L"ProductName"), "Quorin");
    EXPECT_EQ(VersionString(block, L"FileVersion"), "1.0.0");
    EXPECT_EQ(VersionString(block, L"LegalCopyright"), "\xC2\xA9 Veltaro, Inc.");

    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_ANIMATE_CLASS};
    ASSERT_TRUE(InitCommonControlsEx(&controls));
    const UniqueWindow player(
        CreateWindowExW(0, ANIMATE_CLASSW, L"", WS_POPUP | ACS_TRANSPARENT | ACS_CENTER, 0, 0, 96,
                        60, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
    ASSERT_TRUE(player);
    const std::wstring file = Widen(JoinPath(ExecutableFolder(), "findfile.avi"));
    ASSERT_TRUE(Animate_Open(player.get(), file.c_str()));
    EXPECT_TRUE(Animate_Play(player.get(), 0, -1, -1));
    EXPECT_TRUE(Animate_Stop(player.get()));
    EXPECT_TRUE(Animate_Seek(player.get(), 19));
}

}  // namespace
}  // namespace quorin
