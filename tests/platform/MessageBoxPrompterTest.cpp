#include <gtest/gtest.h>

#include <optional>

#include "platform/MessageBoxPrompter.h"

namespace quorin {
namespace {

// Answers the box the prompter shows from inside its modal loop and notes the box's owner and
// style.
class BoxWatch {
  public:
    BoxWatch() { watch_ = this; }
    ~BoxWatch() { watch_ = nullptr; }

    PromptAnswer Ask(MessageBoxPrompter& prompter) {
        const UINT_PTR timer = SetTimer(nullptr, 0, 10, &BoxWatch::Tick);
        const PromptAnswer answer = prompter.Ask("Owner test", "Which window owns me?",
                                                 PromptButtons::YesNo, PromptIcon::Question);
        KillTimer(nullptr, timer);
        return answer;
    }

    std::optional<HWND> owner;

  private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
        const HWND box = FindWindowW(L"#32770", L"Owner test");
        if (box != nullptr && watch_ != nullptr && !watch_->owner) {
            watch_->owner = GetWindow(box, GW_OWNER);
            PostMessageW(box, WM_COMMAND, IDYES, 0);
        }
    }

    static inline BoxWatch* watch_ = nullptr;
};

TEST(MessageBoxPrompterTest, TheBoxBelongsToTheMainWindowOnlyWhileItIsShown) {
    const HWND main = CreateWindowExW(0, L"STATIC", L"Owner", WS_OVERLAPPED, 0, 0, 200, 100,
                                      nullptr, nullptr, nullptr, nullptr);
    MessageBoxPrompter prompter(main);
    {
        BoxWatch hidden;
        EXPECT_EQ(hidden.Ask(prompter), PromptAnswer::Yes);
        ASSERT_TRUE(hidden.owner.has_value());
        EXPECT_EQ(*hidden.owner, nullptr) << "a hidden owner leaves the box without a button";
    }

    ShowWindow(main, SW_SHOWNOACTIVATE);
    {
        BoxWatch shown;
        shown.Ask(prompter);
        EXPECT_EQ(shown.owner, main);
    }

    DestroyWindow(main);
    {
        BoxWatch gone;
        gone.Ask(prompter);
        EXPECT_EQ(gone.owner, nullptr);
    }
}

}  // namespace
}  // namespace quorin
