#pragma once

#include "platform/UniqueHandle.h"

#include <windows.h>

#include <commctrl.h>

namespace quorin {

// Kernel objects whose "none" is null: mutexes, events, processes.
struct KernelHandleTraits {
    using Handle = HANDLE;
    static Handle None() { return nullptr; }
    static void Close(Handle handle) { CloseHandle(handle); }
};

// CreateFileW reports failure with INVALID_HANDLE_VALUE rather than null.
struct FileHandleTraits {
    using Handle = HANDLE;
    static Handle None() { return INVALID_HANDLE_VALUE; }
    static void Close(Handle handle) { CloseHandle(handle); }
};

struct FindHandleTraits {
    using Handle = HANDLE;
    static Handle None() { return INVALID_HANDLE_VALUE; }
    static void Close(Handle handle) { FindClose(handle); }
};

struct RegistryKeyTraits {
    using Handle = HKEY;
    static Handle None() { return nullptr; }
    static void Close(Handle key) { RegCloseKey(key); }
};

struct WindowTraits {
    using Handle = HWND;
    static Handle None() { return nullptr; }
    static void Close(Handle window) { DestroyWindow(window); }
};

struct IconTraits {
    using Handle = HICON;
    static Handle None() { return nullptr; }
    static void Close(Handle icon) { DestroyIcon(icon); }
};

template <typename GdiObject>
struct GdiObjectTraits {
    using Handle = GdiObject;
    static Handle None() { return nullptr; }
    static void Close(Handle object) { DeleteObject(object); }
};

struct MenuTraits {
    using Handle = HMENU;
    static Handle None() { return nullptr; }
    static void Close(Handle menu) { DestroyMenu(menu); }
};

struct ImageListTraits {
    using Handle = HIMAGELIST;
    static Handle None() { return nullptr; }
    static void Close(Handle list) { ImageList_Destroy(list); }
};

// Device contexts of CreateCompatibleDC; a window's DC is borrowed through WindowDC below.
struct MemoryDCTraits {
    using Handle = HDC;
    static Handle None() { return nullptr; }
    static void Close(Handle dc) { DeleteDC(dc); }
};

struct ModuleTraits {
    using Handle = HMODULE;
    static Handle None() { return nullptr; }
    static void Close(Handle module) { FreeLibrary(module); }
};

using UniqueKernelHandle = UniqueHandle<KernelHandleTraits>;
using UniqueFileHandle = UniqueHandle<FileHandleTraits>;
using UniqueFindHandle = UniqueHandle<FindHandleTraits>;
using UniqueKey = UniqueHandle<RegistryKeyTraits>;
using UniqueWindow = UniqueHandle<WindowTraits>;
using UniqueIcon = UniqueHandle<IconTraits>;
using UniqueFont = UniqueHandle<GdiObjectTraits<HFONT>>;
using UniqueBitmap = UniqueHandle<GdiObjectTraits<HBITMAP>>;
using UniqueBrush = UniqueHandle<GdiObjectTraits<HBRUSH>>;
using UniquePen = UniqueHandle<GdiObjectTraits<HPEN>>;
using UniqueMenu = UniqueHandle<MenuTraits>;
using UniqueImageList = UniqueHandle<ImageListTraits>;
using UniqueMemoryDC = UniqueHandle<MemoryDCTraits>;
using UniqueModule = UniqueHandle<ModuleTraits>;

// A window's device context for one scope (GetDC ... ReleaseDC).
class WindowDC {
  public:
    explicit WindowDC(HWND window) : window_(window), dc_(GetDC(window)) {}
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;
    ~WindowDC() {
        if (dc_ != nullptr) {
            ReleaseDC(window_, dc_);
        }
    }

    HDC get() const { return dc_; }

  private:
    HWND window_;
    HDC dc_;
};

// Selects a GDI object into a DC for one scope and puts the previous one back.
class SelectedObject {
  public:
    SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), previous_(SelectObject(dc, object)) {}
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;
    ~SelectedObject() {
        if (previous_ != nullptr && previous_ != HGDI_ERROR) {
            SelectObject(dc_, previous_);
        }
    }

  private:
    HDC dc_;
    HGDIOBJ previous_;
};

}  // namespace quorin
