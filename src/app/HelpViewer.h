#pragma once

#include <windows.h>

#include "app/HelpFile.h"
#include "platform/WinHandles.h"
#include "ui/Window.h"

namespace quorin {

inline constexpr wchar_t kHelpViewerClass[] = L"QuorinHelpViewer";

// The program's help window: a resizable top-level window that shows one topic in a
// read-only rich edit box, the title in bold above its paragraphs.
class HelpViewer final : public Window {
  public:
    HelpViewer();

    // Shows the topic, creating the window at `place` (screen pixels) when it is not open.
    // An open window keeps the place and size the user gave it.
    void ShowTopic(const HelpTopic& topic, const RECT& place);
    void Close();
    bool IsOpen() const { return hwnd() != nullptr; }

  protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Form_Load();
    void Form_Resize();
    void SetTopicText(const HelpTopic& topic);
    void UpdateFonts();

    HWND txtTopic_ = nullptr;
};

}  // namespace quorin
