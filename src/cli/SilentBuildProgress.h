#pragma once

#include "index/IndexProgress.h"

namespace quorin {

// A build on the console shows no progress; its summary is printed at the end.
class SilentBuildProgress final : public BuildProgress {
  public:
    void BuildStarted() override {}
    void SetCounter(std::string_view /*text*/) override {}
    void BuildEnded() override {}
};

}  // namespace quorin
