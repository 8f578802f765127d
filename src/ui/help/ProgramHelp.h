#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "ui/help/Help.h"
#include "ui/help/HelpViewer.h"

namespace quorin {

// Where the help window opens on a monitor: where the position record puts it, in 1/1024 of the
// monitor, but at least as large as the record makes it on a 1280 x 800 screen at 96 dpi, scaled
// to the DPI like every window, and moved back into the work area where that makes it stick out.
RECT HelpViewerPlace(const HelpWindowPosition& position, const RECT& monitor, const RECT& workArea,
                     int dpi);

// The program's help: topics of the help file in the program folder, shown in its own viewer.
class ProgramHelp final : public Help {
  public:
    explicit ProgramHelp(std::string programFolder);

    void Setup(HWND owner) override;
    void ShowTopic(int32_t context) override;
    void Close() override;

    // The help file that Setup chose.
    const std::string& File() const { return file_; }

  private:
    std::string programFolder_;
    HWND owner_ = nullptr;
    std::string file_;
    HelpWindowPosition position_;
    std::unique_ptr<HelpViewer> viewer_;
};

}  // namespace quorin
