#include "ui/main/MainBuilds.h"

#include "ui/Hourglass.h"

namespace quorin {

void MainBuilds::Run(bool Silent, BuildProgress& window) {
    clsIndex& index = index_.Get();
    if (index.Indexing()) {
        return;  // the build that runs is the one to finish first
    }
    {
        const Hourglass busy;
        index.CreateIndex(Silent, window);
    }
    if (unloadAfterBuild_) {
        unloadAfterBuild_ = false;
        unload_();
    }
}

void MainBuilds::EndSession() {
    if (index_.Exists() && index_.Get().Indexing()) {
        index_.Get().Cancel();
        unloadAfterBuild_ = true;
        return;
    }
    unload_();
}

}  // namespace quorin
