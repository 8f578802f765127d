// Times what the File Types page does when first shown, on a classes root of 8,000 scratch keys
// of which 3,000 are extensions: read the file types, pre-select from the saved filter, and fill
// two multi-select list boxes. Prints the figures; it checks nothing.

#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "platform/registry/ScratchClasses.h"
#include "ui/dialogs/FileTypeLists.h"
#include "ui/dialogs/KnownExtensions.h"

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace quorin {
namespace {

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

UniqueWindow CreateListBox(HWND parent, int x) {
    return UniqueWindow(
        CreateWindowExW(WS_EX_CLIENTEDGE, L"LISTBOX", nullptr,
                        WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_EXTENDEDSEL | LBS_NOTIFY, x, 0,
                        200, 300, parent, nullptr, GetModuleHandleW(nullptr), nullptr));
}

void Fill(HWND list, const FileTypeLists& lists, FileTypeList which) {
    const std::vector<bool>& selected = lists.Selection(which);
    for (size_t i = 0; i < lists.Extensions().size(); ++i) {
        const auto index = SendMessageW(
            list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Widen(lists.Extensions()[i]).c_str()));
        if (selected[i]) {
            SendMessageW(list, LB_SETSEL, TRUE, index);
        }
    }
}

int Run() {
    constexpr int kKeys = 8000;
    constexpr int kExtensions = 3000;
    ScratchClasses classes;
    const Clock::time_point made = Clock::now();
    for (int i = 0; i < kExtensions; ++i) {
        classes.CreateKey(".qz" + std::to_string(10000 + i));
    }
    // Named to stand before Wine's own 51-character "Microsoft.DirectMusic..." key, so that the
    // listing runs up to its bound as on a real machine.
    for (int i = 0; i < kKeys - kExtensions; ++i) {
        classes.CreateKey("Class.QuorinTest" + std::to_string(10000 + i));
    }
    std::printf("made %d scratch keys in %.0f ms\n", kKeys, MillisecondsSince(made));

    const UniqueWindow page(CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 420, 300,
                                            nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
    const clsRegistry registry;
    for (int round = 1; round <= 3; ++round) {
        const UniqueWindow include = CreateListBox(page.get(), 0);
        const UniqueWindow exclude = CreateListBox(page.get(), 210);
        const Clock::time_point start = Clock::now();
        std::vector<std::string> extensions = KnownExtensions(registry);
        const double read = MillisecondsSince(start);
        const FileTypeLists lists(std::move(extensions), ".QZ10000 .QZ11500 .TXT ", true);
        Fill(include.get(), lists, FileTypeList::Include);
        Fill(exclude.get(), lists, FileTypeList::Exclude);
        std::printf("round %d: %zu file types, read %.0f ms, whole fill %.0f ms\n", round,
                    lists.Extensions().size(), read, MillisecondsSince(start));
    }
    return 0;
}

}  // namespace
}  // namespace quorin

int main() {
    return quorin::Run();
}
