#pragma once

#include <cstdint>
#include <string_view>

namespace quorin {

inline constexpr uint32_t kTrayIconId = 1;
inline constexpr uint32_t kTrayFlags = 7;                // message + icon + tip
inline constexpr uint32_t kTrayCallbackMessage = 0x200;  // arrives as a mouse move
inline constexpr size_t kTrayTipBytes = 64;

// The tray icon's notification record in its classic 88-byte form; handles are kept in their
// 32 significant bits, which is all Windows uses of them.
#pragma pack(push, 1)
struct TrayRecord {
    uint32_t cbSize = 88;
    uint32_t hWnd = 0;
    uint32_t uID = kTrayIconId;
    uint32_t uFlags = kTrayFlags;
    uint32_t uCallbackMessage = kTrayCallbackMessage;
    uint32_t hIcon = 0;
    char szTip[kTrayTipBytes] = {};
};
#pragma pack(pop)
static_assert(sizeof(TrayRecord) == 88);

// The tip is followed by one NUL and padded with NULs, then cut to 64 bytes: a tip of 64 bytes
// or more carries no NUL.
TrayRecord MakeTrayRecord(uint32_t window, uint32_t icon, std::string_view tip);

// The tip as text: up to the first NUL, or all 64 bytes when there is none.
std::string_view TrayTip(const TrayRecord& record);

}  // namespace quorin
