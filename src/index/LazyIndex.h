#pragma once

#include <memory>

#include "index/clsIndex.h"

namespace quorin {

// The one index engine of the process, made the first time any code touches it, so that its
// settings, index and words are read only then; a bad setting or file throws from Get.
// Start-up owns it; the windows reach it through their services.
class LazyIndex {
  public:
    explicit LazyIndex(IndexServices services) : services_(std::move(services)) {}

    clsIndex& Get() {
        if (!index_) {
            index_ = std::make_unique<clsIndex>(services_);
        }
        return *index_;
    }
    bool Exists() const { return index_ != nullptr; }
    void Release() { index_.reset(); }

  private:
    IndexServices services_;
    std::unique_ptr<clsIndex> index_;
};

}  // namespace quorin
