#pragma once

#include <windows.h>

#include "platform/WinHandles.h"

namespace quorin {

// The program keeps positions and sizes in twips and converts them at the window's DPI.
inline constexpr int kTwipsPerInch = 1440;

// Both round half away from zero, so that negative positions (monitors left of or above the
// primary one) round like positive ones. Pixels to twips and back gives the same pixels at any
// DPI up to 1440.
int TwipsToPixels(int twips, int dpi);
int PixelsToTwips(int pixels, int dpi);

// A length designed in pixels at 96 DPI, at another DPI.
int ScaleForDpi(int pixelsAt96, int dpi);

// The DPI of the screen (the system DPI).
int ScreenDpi();

// The DPI a window is drawn at: GetDpiForWindow where the system has it, otherwise (or for a
// window it does not know) the screen's.
int WindowDpi(HWND window);

// The outer size of a window whose client area is `client` pixels: the client plus the frame the
// system draws for the style at the DPI (AdjustWindowRectExForDpi where the system has it).
SIZE OuterSize(SIZE client, DWORD style, DWORD exStyle, int dpi);

// The system's message font (the usual font of dialogs and controls) sized for a DPI.
LOGFONTW MessageFont(int dpi);

// Gives every child of the window the message font at the DPI. The caller keeps the font for
// as long as the controls use it.
UniqueFont SetMessageFont(HWND window, int dpi);

}  // namespace quorin
