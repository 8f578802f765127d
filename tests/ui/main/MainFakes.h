#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "index/LazyIndex.h"
#include "platform/MemorySettingsStore.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"
#include "support/TestClock.h"
#include "ui/MessagePump.h"
#include "ui/help/Help.h"
#include "ui/main/MatchesOpener.h"
#include "ui/main/OptionsOpener.h"

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

class FakeMatchesOpener final : public MatchesOpener {
  public:
    void ShowMatches(const std::string& word, const MatchList& matches) override {
        words.push_back(word);
        counts.push_back(matches.Count());
    }
    std::vector<std::string> words;
    std::vector<int> counts;
};

class FakeOptionsOpener final : public OptionsOpener {
  public:
    void ShowOptions(int panel) override { panels.push_back(panel); }
    void ShowAllFoldersOption() override { panels.push_back(kAllFoldersOption); }
    void ShowOptionsModal(HWND owner, int panel) override {
        modalOwners.push_back(owner);
        panels.push_back(panel);
        if (onModal) {
            onModal();
        }
    }
    static constexpr int kAllFoldersOption = -1;  // in panels
    std::vector<int> panels;
    std::vector<HWND> modalOwners;
    std::function<void()> onModal;  // what the user does in the dialog
};

// The real message pump, with a hook where a build yields, as the user's clicks would come.
class HookedPump final : public EventPump {
  public:
    void DoEvents() override {
        pump.DoEvents();
        if (onEvents) {
            onEvents();
        }
    }
    MessagePump pump;
    std::function<void()> onEvents;
};

// A program folder, a tree to index (its root is the only drive) and the program's services.
class ProgramFixture : public ::testing::Test {
  protected:
    ProgramFixture() {
        settings.Save("Index", "DriveCount", "1");
        settings.Save("Index", "Drive0", tree.Path());
        settings.Save("Index", "Filter", "");
        settings.Save("Index", "FilterIsInclude", "False");
        // Test programs running side by side share one desktop's hotkeys; the tests of the
        // hotkey choose combinations of their own.
        settings.Save("Main", "Hotkey", "");
    }

    TempFolder program;
    TempFolder tree;
    MemorySettingsStore settings;
    TestClock clock;
    ScriptedPrompter prompter;
    RecordingShell shell;
    HookedPump events;
    LazyIndex index{IndexServices{settings, clock, prompter, events, program.Path()}};
    FakeMatchesOpener matches;
    FakeOptionsOpener options;
    RecordingHelp help;
    int unloads = 0;
};

}  // namespace quorin::test
