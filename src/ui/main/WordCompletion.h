#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quorin {

// What a change of the word box turns into: the whole entry as text, the caret where it was
// and the completed tail selected.
struct CompletionEdit {
    std::string text;
    int selStart = 0;
};

// The word box's completion. Backspace and Delete suppress the completion of the one change
// that follows them, so that the user can remove a completed tail.
class WordCompletion {
  public:
    // The first list entry that begins with the text, compared without case.
    using EntryFinder = std::function<std::optional<std::string>(std::string_view text)>;

    void KeyDown(int keyCode);
    std::optional<CompletionEdit> Change(std::string_view text, int caret,
                                         const EntryFinder& findEntry);

  private:
    bool bSkipComplete = false;
};

}  // namespace quorin
