#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "index/clsIndex.h"
#include "platform/MemorySettingsStore.h"
#include "platform/Path.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"
#include "support/TestClock.h"

namespace quorin {

using Paths = std::vector<std::string>;

// The window and event loop of a build, logged in the order the engine uses them; onEvents lets
// a test act where a window's handlers would run.
class ScriptedUi final : public BuildProgress, public EventPump {
  public:
    void BuildStarted() override { log.push_back("begin"); }
    void SetCounter(std::string_view text) override { log.emplace_back(text); }
    void BuildEnded() override { log.push_back("end"); }
    void DoEvents() override {
        log.push_back("events");
        if (onEvents) {
            onEvents();
        }
    }
    Paths log;
    std::function<void()> onEvents;
};

// A program folder, a folder tree and an engine over them.
class EngineFixture : public ::testing::Test {
  protected:
    // Roots relative to the tree, every file type indexed.
    void UseRoots(const Paths& roots) {
        settings.Save("Index", "DriveCount", std::to_string(roots.size()));
        for (size_t i = 0; i < roots.size(); ++i) {
            settings.Save("Index", "Drive" + std::to_string(i), tree.MakeFolder(roots[i]));
        }
        settings.Save("Index", "Filter", "");
        settings.Save("Index", "FilterIsInclude", "False");
    }

    std::unique_ptr<clsIndex> MakeIndex(const std::string& programFolder = {}) {
        return std::make_unique<clsIndex>(IndexServices{
            settings, clock, prompter, ui, programFolder.empty() ? program.Path() : programFolder});
    }

    // Full paths of the matches, in index order.
    static Paths Matches(const clsIndex& index, std::string_view word) {
        Paths paths;
        const std::optional<MatchList> matches = index.FindMatch(word);
        for (int32_t i = 1; matches && i <= matches->Count(); ++i) {
            const clsItem item = matches->Item(i);
            paths.push_back(JoinPath(index.GetPath(item.Directory), item.Filename));
        }
        return paths;
    }

    std::string TreePath(std::string_view relative) const {
        std::string path = JoinPath(tree.Path(), relative);
        std::replace(path.begin(), path.end(), '/', kPathSeparator);
        return path;
    }

    std::string ProgramFile(std::string_view name) const { return JoinPath(program.Path(), name); }

    TempFolder program;
    TempFolder tree;
    MemorySettingsStore settings;
    test::TestClock clock;
    ScriptedUi ui;
    test::ScriptedPrompter prompter;
};

}  // namespace quorin
