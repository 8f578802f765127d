#include "ui/main/TrayRecord.h"

#include <algorithm>
#include <cstring>

namespace quorin {

TrayRecord MakeTrayRecord(uint32_t window, uint32_t icon, std::string_view tip) {
    TrayRecord record;
    record.hWnd = window;
    record.hIcon = icon;
    std::memcpy(record.szTip, tip.data(), std::min(tip.size(), kTrayTipBytes));
    return record;
}

std::string_view TrayTip(const TrayRecord& record) {
    const std::string_view bytes(record.szTip, kTrayTipBytes);
    return bytes.substr(0, bytes.find('\0'));
}

}  // namespace quorin
