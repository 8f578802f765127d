#pragma once

#include <gtest/gtest.h>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/ConsolePrompter.h"
#include "cli/IdleEventPump.h"
#include "cli/SilentBuildProgress.h"
#include "index/clsIndex.h"
#include "platform/Clock.h"
#include "platform/MemorySettingsStore.h"
#include "support/TempFolder.h"
#include "support/TestClock.h"

namespace quorin {

// A program folder, a folder tree and an engine that nobody watches, as on the console.
class EngineFixture : public ::testing::Test {
  protected:
    // Roots below the tree, every file type included.
    void UseRoots(const std::vector<std::string>& roots) {
        settings.Save("Index", "DriveCount", std::to_string(roots.size()));
        for (size_t i = 0; i < roots.size(); ++i) {
            settings.Save("Index", "Drive" + std::to_string(i), tree.MakeFolder(roots[i]));
        }
        settings.Save("Index", "Filter", "");
        settings.Save("Index", "FilterIsInclude", "False");
    }

    std::unique_ptr<clsIndex> MakeIndex() {
        return std::make_unique<clsIndex>(
            IndexServices{settings, clock, prompter, events, program.Path()});
    }

    TempFolder program;
    TempFolder tree;
    MemorySettingsStore settings;
    test::TestClock clock;  // moved on so that every build writes a different first line
    ConsolePrompter prompter{std::cerr};
    IdleEventPump events;
    SilentBuildProgress window;
};

}  // namespace quorin
