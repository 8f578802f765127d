// A window for people to look at, not a test: the icons the extractor finds for a dozen file
// types registered for the occasion (removed again at exit), for a type whose icon location
// names no file, for an unregistered extension and for a program. Built, never run by CTest.
// Usage: icon_look [seconds]   closes itself after that many seconds when given.

#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "platform/registry/ScratchClasses.h"
#include "ui/MessagePump.h"
#include "ui/Window.h"
#include "ui/WindowClass.h"
#include "ui/matches/ctlIconExtractor.h"

#include <windows.h>

#include <commctrl.h>

#include <cwchar>
#include <optional>
#include <string>

namespace quorin {
namespace {

struct LookType {
    const char* ext;
    const char* description;
    const char* iconLocation;
};

constexpr LookType kRegistered[] = {
    {".qzfind", "Saved search", "%SystemRoot%\\system32\\shell32.dll,-23"},
    {".qzdir", "Folder shortcut", "%SystemRoot%\\system32\\shell32.dll,-4"},
    {".qzflp", "Floppy image", "%SystemRoot%\\system32\\shell32.dll,-8"},
    {".qziso", "Disc image", "%SystemRoot%\\system32\\shell32.dll,-12"},
    {".qzpc", "Computer link", "%SystemRoot%\\system32\\shell32.dll,-16"},
    {".qzprn", "Print job", "%SystemRoot%\\system32\\shell32.dll,-17"},
    {".qzt", "Plain text", "%SystemRoot%\\system32\\shell32.dll,-152"},
    {".qznote", "Note", "%SystemRoot%\\system32\\notepad.exe,0"},
    {".qzreg", "Registry script", "%SystemRoot%\\regedit.exe,0"},
    {".qzmine", "Minefield", "%SystemRoot%\\system32\\winemine.exe,0"},
    {".qzhlp", "Help topic", "%SystemRoot%\\system32\\winhlp32.exe,0"},
    {".qzwarn", "Warning", "%SystemRoot%\\system32\\user32.dll,-32515"},
    {".qzself", "Icon location without index", "%1"},
};

constexpr char kUnregistered[] = ".qzunknown";
constexpr UINT_PTR kCloseTimer = 1;

class IconLookWindow : public Window {
  public:
    explicit IconLookWindow(UINT closeAfterMs) {
        static const ATOM windowClass = RegisterWindowClass({.name = L"QuorinIconLook"});
        Create(MAKEINTATOM(windowClass), {.title = "Icon extractor", .width = 760, .height = 520});
        if (closeAfterMs > 0) {
            SetTimer(hwnd(), kCloseTimer, closeAfterMs, nullptr);
        }
    }

  protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_CREATE:
                Form_Load();
                return 0;
            case WM_SIZE:
                MoveWindow(list_, 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
                return 0;
            case WM_TIMER:
                DestroyWindow(hwnd());
                return 0;
            case WM_DESTROY:
                PostQuitMessage(0);
                return 0;
            default:
                return Window::HandleMessage(message, wParam, lParam);
        }
    }

  private:
    // Crossed as the Matches window hands them over: the list given as large is the one
    // whose indexes come back, so it is the list view's small-icon list.
    void Form_Load() {
        extractor_.ImageListSmall(imlLarge_.get());
        extractor_.ImageListLarge(imlSmall_.get());
        list_ = CreateWindowExW(0, WC_LISTVIEWW, L"",
                                WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHAREIMAGELISTS, 0, 0, 0,
                                0, hwnd(), nullptr, GetModuleHandleW(nullptr), nullptr);
        ListView_SetExtendedListViewStyle(list_, LVS_EX_FULLROWSELECT);
        ListView_SetImageList(list_, imlSmall_.get(), LVSIL_SMALL);
        AddColumn(0, "Type", 110);
        AddColumn(1, "Description", 190);
        AddColumn(2, "Where the icon comes from", 420);

        for (const LookType& type : kRegistered) {
            classes_.RegisterType(type.ext, std::string("QuorinLook") + type.ext, type.description,
                                  type.iconLocation);
            AddRow(type.ext, type.description, type.iconLocation,
                   extractor_.RetrieveExtIcon(type.ext));
        }
        AddRow(kUnregistered, "Unregistered extension", "(nothing registered)",
               extractor_.RetrieveExtIcon(kUnregistered));
        wchar_t system[MAX_PATH] = {};
        GetSystemDirectoryW(system, MAX_PATH);
        AddRow("notepad.exe", "Program", "the program file itself, first icon",
               extractor_.RetrieveFileIcon("notepad.exe", Narrow(system)));
        AddRow("NOTEPAD.EXE", "Program, upper case", "looked up as the type \".EXE\"",
               extractor_.RetrieveFileIcon("NOTEPAD.EXE", Narrow(system)));
    }

    void AddColumn(int index, const std::string& title, int width) {
        std::wstring text = Widen(title);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = text.data();
        column.cx = width;
        ListView_InsertColumn(list_, index, &column);
    }

    void AddRow(const std::string& type, const std::string& description, const std::string& source,
                std::optional<int> image) {
        std::wstring text = Widen(type);
        LVITEMW item{};
        item.mask = LVIF_TEXT | LVIF_IMAGE;
        item.iItem = ListView_GetItemCount(list_);
        item.pszText = text.data();
        item.iImage = image.value_or(I_IMAGENONE);
        const int row = ListView_InsertItem(list_, &item);
        SetCell(row, 1, description);
        SetCell(row, 2, source);
    }

    void SetCell(int row, int column, const std::string& value) {
        std::wstring text = Widen(value);
        ListView_SetItemText(list_, row, column, text.data());
    }

    static UniqueImageList NewList() {
        return UniqueImageList(ImageList_Create(GetSystemMetrics(SM_CXSMICON),
                                                GetSystemMetrics(SM_CYSMICON),
                                                ILC_COLOR32 | ILC_MASK, 0, 16));
    }

    ScratchClasses classes_;
    UniqueImageList imlLarge_ = NewList();
    UniqueImageList imlSmall_ = NewList();
    ctlIconExtractor extractor_;
    HWND list_ = nullptr;
};

}  // namespace
}  // namespace quorin

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
    const INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX), ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    const auto seconds = std::wcstoul(commandLine, nullptr, 10);
    quorin::IconLookWindow window(static_cast<UINT>(seconds * 1000));
    ShowWindow(window.hwnd(), SW_SHOWNORMAL);
    return quorin::MessagePump::Run();
}
