#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "ui/help/Help.h"
#include "ui/help/HelpViewer.h"

namespace quorin {

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
