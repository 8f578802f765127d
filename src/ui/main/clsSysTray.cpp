#include "ui/main/clsSysTray.h"

#include <cstdint>

#include "platform/Text.h"

namespace quorin {

namespace {

uint32_t Low32(const void* handle) {
    return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(handle));
}

// Window and icon handles are sign-extended from their 32 significant bits.
template <typename Handle>
Handle FromLow32(uint32_t value) {
    return reinterpret_cast<Handle>(static_cast<intptr_t>(static_cast<int32_t>(value)));
}

NOTIFYICONDATAW ToNotifyIconData(const TrayRecord& record) {
    NOTIFYICONDATAW data{};
    data.cbSize = sizeof(data);
    data.hWnd = FromLow32<HWND>(record.hWnd);
    data.uID = record.uID;
    data.uFlags = record.uFlags;
    data.uCallbackMessage = record.uCallbackMessage;
    data.hIcon = FromLow32<HICON>(record.hIcon);
    const std::wstring tip = Widen(TrayTip(record));
    tip.copy(data.szTip, std::size(data.szTip) - 1);
    return data;
}

}  // namespace

clsSysTray::clsSysTray()
    : notifier_([](DWORD message, NOTIFYICONDATAW& data) { Shell_NotifyIconW(message, &data); }) {}

void clsSysTray::CreateIcon(HWND hWnd, HICON hIcon, std::string_view Tip) {
    record_ = MakeTrayRecord(Low32(hWnd), Low32(hIcon), Tip);
    Notify(NIM_ADD);
}

void clsSysTray::ChangeIcon(HWND hWnd, HICON hIcon, std::string_view Tip) {
    record_ = MakeTrayRecord(Low32(hWnd), Low32(hIcon), Tip);
    Notify(NIM_MODIFY);
}

void clsSysTray::RemoveIcon() {
    Notify(NIM_DELETE);
}

void clsSysTray::RestoreIcon() {
    Notify(NIM_ADD);
}

void clsSysTray::Notify(DWORD message) const {
    NOTIFYICONDATAW data = ToNotifyIconData(record_);
    notifier_(message, data);
}

}  // namespace quorin
