#include "ui/main/WordCompletion.h"

namespace quorin {

namespace {
constexpr int kBackspace = 8;
constexpr int kDelete = 46;
}  // namespace

void WordCompletion::KeyDown(int keyCode) {
    if (keyCode == kBackspace || keyCode == kDelete) {
        bSkipComplete = true;
    }
}

std::optional<CompletionEdit> WordCompletion::Change(std::string_view text, int caret,
                                                     const EntryFinder& findEntry) {
    if (bSkipComplete) {
        bSkipComplete = false;
        return std::nullopt;
    }
    std::optional<std::string> entry = findEntry(text);
    if (!entry) {
        return std::nullopt;
    }
    return CompletionEdit{std::move(*entry), caret};
}

}  // namespace quorin
