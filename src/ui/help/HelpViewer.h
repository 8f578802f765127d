#pragma once

#include <windows.h>

#include "platform/WinHandles.h"
#include "ui/Window.h"
#include "ui/help/HelpFile.h"

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
    bool OnCreate(const CREATESTRUCTW& create) override;
    void OnSize(UINT sizeType, int width, int height) override;

  private:
    void SetTopicText(const HelpTopic& topic);

    HWND txtTopic_ = nullptr;
};

}  // namespace quorin
