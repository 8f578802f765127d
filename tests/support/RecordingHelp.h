#pragma once

#include <vector>

#include "ui/help/Help.h"

namespace quorin::test {

// Records what the windows ask of help.
class RecordingHelp final : public Help {
  public:
    void Setup(HWND newOwner) override { owner = newOwner; }
    void ShowTopic(int32_t context) override { topics.push_back(context); }
    void Close() override { ++closes; }

    HWND owner = nullptr;
    std::vector<int32_t> topics;
    int closes = 0;
};

}  // namespace quorin::test
