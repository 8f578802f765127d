#pragma once

#include "index/IndexProgress.h"

namespace quorin {

// A build on the console shows no progress; its summary is printed at the end.
class SilentProgressWindow final : public ProgressWindow {
  public:
    void BeginIndexing(const std::string& /*animationPath*/) override {}
    void SetCounter(std::string_view /*text*/) override {}
    void EndIndexing() override {}
};

}  // namespace quorin
