#pragma once

#include <string>
#include <string_view>

namespace quorin {

// The Options dialog's question when OK finds no file type chosen.
inline constexpr std::string_view kNoFilterTitle = "No filter specified";
inline constexpr std::string_view kNoFilterText =
    "You have no file types selected. Would you like to use your existing file type filter?";

// OK refuses an interval that the next start could not read.
inline constexpr std::string_view kBadIntervalTitle = "Cannot save";
std::string BadIntervalText(std::string_view interval);

// The Words page's question before it removes an assignment.
inline constexpr std::string_view kConfirmDeleteTitle = "Confirm delete";
std::string ConfirmDeleteText(std::string_view word, std::string_view file);

// The Add New Word dialog's refusals; the misspelling is the program's own.
inline constexpr std::string_view kCannotAddTitle = "Cannot add";
inline constexpr std::string_view kNoWordText = "Pleae enter a word to assign.";
inline constexpr std::string_view kNoFileText = "That is not a valid filename.";
std::string WordAlreadyAssignedText(std::string_view word);

}  // namespace quorin
