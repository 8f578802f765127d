#pragma once

#include <windows.h>

#include <memory>
#include <string_view>

#include "ui/WindowErrors.h"

namespace quorin {

// Where and how a window is made; positions and sizes in pixels.
struct WindowSpec {
    std::string_view title;
    DWORD style = WS_OVERLAPPEDWINDOW;
    DWORD exStyle = 0;
    int x = CW_USEDEFAULT;
    int y = CW_USEDEFAULT;
    int width = CW_USEDEFAULT;
    int height = CW_USEDEFAULT;
    HWND parent = nullptr;
    int id = 0;  // a child window's control id
};

// Base of every window of the program. The window procedure binds the object to its window on
// WM_NCCREATE, hands every message to HandleMessage and unbinds on WM_NCDESTROY; nothing a
// handler throws leaves it (the error goes to ReportWindowError).
//
// HandleMessage decodes the messages every window needs and passes them to the On... members
// with typed arguments; a window overrides those it cares about, and its own HandleMessage only
// adds the messages that are particular to it.
//
// Two kinds of classes: windows owned by a C++ object (Create; the object's destructor
// destroys the window), and windows that make their own object (SelfOwnedProcedure), which can
// be created by class name alone, as custom controls and dialog templates do.
class Window {
  public:
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window();

    HWND hwnd() const { return hwnd_; }

    static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    template <typename T>
    static LRESULT CALLBACK SelfOwnedProcedure(HWND hwnd, UINT message, WPARAM wParam,
                                               LPARAM lParam) {
        if (message == WM_NCCREATE) {
            const bool adopted = CallGuarded(
                [hwnd] {
                    Adopt(hwnd, std::make_unique<T>());
                    return true;
                },
                [] { return false; });
            if (!adopted) {
                return FALSE;
            }
        }
        return Route(hwnd, message, wParam, lParam);
    }

    // Keys a window handles before the dialog manager (Ctrl+Tab between pages). True when the
    // message was taken. For the message pump; any active window may be passed.
    static bool TranslateKeys(HWND active, const MSG& message);

    // A child control of a system or registered class, visible, at (0, 0) with no size until
    // its parent lays it out. Throws Error when it cannot be created.
    static HWND CreateControl(HWND parent, const wchar_t* className, std::string_view text,
                              DWORD style, int id, DWORD exStyle = 0);

    // A child window's place and size in its parent's client area.
    static RECT RectInParent(HWND child);

  protected:
    Window() = default;

    // Creates this object's window of a class registered with Window::Procedure.
    // Throws Error when the window cannot be created.
    void Create(const wchar_t* className, const WindowSpec& layout);

    // CreateWindowExW with these values; `param` reaches WM_NCCREATE. Throws Error on failure.
    static HWND CreateHandle(const wchar_t* className, const WindowSpec& layout, void* param);

    // The icon of the caption and of the task switcher; the caller keeps it alive.
    void SetIcon(HICON icon) const;

    // The object bound to a window. Only for windows whose class uses one of the procedures
    // above: any other window keeps something else in its user data.
    static Window* FromHandle(HWND hwnd);

    virtual LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // What the system does with a message the window leaves alone.
    virtual LRESULT DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam);

    // False from OnCreate fails the creation.
    virtual bool OnCreate(const CREATESTRUCTW& create);
    virtual void OnDestroy() {}
    // The frame's close box or Alt+F4; destroys the window unless overridden.
    virtual void OnClose();
    virtual void OnSize(UINT sizeType, int width, int height);
    virtual void OnTimer(UINT_PTR id);
    virtual void OnCommand(int id, int code, HWND control);
    virtual LRESULT OnNotify(const NMHDR& header);
    // The colours of a child control; nullptr leaves them to the system.
    virtual HBRUSH OnControlColor(HWND control, HDC dc);
    // Moves the window to the place the system suggests for its new DPI.
    virtual void OnDpiChanged(int dpi, const RECT& suggested);
    virtual bool OnKey(const MSG&) { return false; }

    // Binds a window made by the system (a dialog) to this object.
    static void Bind(HWND hwnd, Window* window);
    // Runs one message through the window's HandleMessage with the error boundary, and unbinds
    // on WM_NCDESTROY. Returns the message's result.
    static LRESULT Route(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

  private:
    static void Adopt(HWND hwnd, std::unique_ptr<Window> window);

    HWND hwnd_ = nullptr;
    bool ownedByWindow_ = false;
};

}  // namespace quorin
