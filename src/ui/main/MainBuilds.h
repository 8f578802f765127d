#pragma once

#include <functional>

#include "index/IndexProgress.h"
#include "index/LazyIndex.h"

namespace quorin {

// The main window's builds. Each keeps the wait pointer for its whole length. The end of a
// Windows session can come while one yields, with the build below on the stack: it can only
// cancel the build, and the window unloads, releasing the engine, once the build has returned.
class MainBuilds {
  public:
    MainBuilds(LazyIndex& index, std::function<void()> unload)
        : index_(index), unload_(std::move(unload)) {}

    void Run(bool Silent, BuildProgress& window);
    // The session ends: unloads at once, or after the build that runs.
    void EndSession();

  private:
    LazyIndex& index_;
    std::function<void()> unload_;
    bool unloadAfterBuild_ = false;
};

}  // namespace quorin
