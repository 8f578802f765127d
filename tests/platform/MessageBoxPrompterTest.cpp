#include <gtest/gtest.h>

#include <optional>

#include "platform/MessageBoxPrompter.h"
#include "platform/WinHandles.h"

namespace quorin {
namespace {

// Notes the owner of the box the prompter creates, then answers it Yes, or refuses its creation:
// a box that was shown costs Wine two seconds to hide on a display without a window manager.
class BoxWatch {
  public:
    explicit BoxWatch(bool answer)
        : answer_(answer),
          hook_(SetWindowsHookExW(WH_CBT, &BoxWatch::Cbt, nullptr, GetCurrentThreadId())) {
        watch_ = this;
    }
    ~BoxWatch() {
        UnhookWindowsHookEx(hook_);
        watch_ = nullptr;
    }
    BoxWatch(const BoxWatch&) = delete;
    BoxWatch& operator=(const BoxWatch&) = delete;

    std::optional<HWND> owner;

  private:
    static LRESULT CALLBACK Cbt(int code, WPARAM wParam, LPARAM lParam) {
        BoxWatch* watch = watch_;
        if (code == HCBT_CREATEWND && watch != nullptr && !watch->owner) {
            watch->owner = reinterpret_cast<const CBT_CREATEWNDW*>(lParam)->lpcs->hwndParent;
            if (!watch->answer_) {
                return 1;
            }
        }
        if (code == HCBT_ACTIVATE && watch != nullptr && watch->answer_) {
            watch->answer_ = false;
            PostMessageW(reinterpret_cast<HWND>(wParam), WM_COMMAND, IDYES, 0);
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    bool answer_;
    HHOOK hook_;
    static inline BoxWatch* watch_ = nullptr;
};

std::optional<HWND> OwnerOfTheBox(MessageBoxPrompter& prompter, bool answer) {
    BoxWatch watch(answer);
    EXPECT_EQ(prompter.Ask("Owner test", "Which window owns me?", PromptButtons::YesNo,
                           PromptIcon::Question),
              answer ? PromptAnswer::Yes : PromptAnswer::Cancel);  // a box that failed: Cancel
    return watch.owner;
}

TEST(MessageBoxPrompterTest, TheBoxBelongsToTheMainWindowOnlyWhileItIsShown) {
    const std::optional<HWND> none = nullptr;
    // A popup, which Wine leaves to no window manager and so hides at once.
    UniqueWindow main(CreateWindowExW(0, L"STATIC", L"Owner", WS_POPUP, 0, 0, 200, 100, nullptr,
                                      nullptr, nullptr, nullptr));
    MessageBoxPrompter prompter(main.get());
    EXPECT_EQ(OwnerOfTheBox(prompter, true), none)
        << "a hidden owner leaves the box without a button";
    ShowWindow(main.get(), SW_SHOWNOACTIVATE);
    EXPECT_EQ(OwnerOfTheBox(prompter, false), main.get());
    main.reset();
    EXPECT_EQ(OwnerOfTheBox(prompter, false), none);
}

}  // namespace
}  // namespace quorin
