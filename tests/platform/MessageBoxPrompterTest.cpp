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
    const auto ownerOfTheBox = [&] {
        BoxWatch watch;
        EXPECT_EQ(watch.Ask(prompter), PromptAnswer::Yes);
        return watch.owner;
    };
    const std::optional<HWND> none = nullptr;
    EXPECT_EQ(ownerOfTheBox(), none) << "a hidden owner leaves the box without a button";
    ShowWindow(main, SW_SHOWNOACTIVATE);
    EXPECT_EQ(ownerOfTheBox(), main);
    DestroyWindow(main);
    EXPECT_EQ(ownerOfTheBox(), none);
}

}  // namespace
}  // namespace quorin
