#include "ui/dialogs/DialogTexts.h"

#include <cstdint>

namespace quorin {

std::string BadIntervalText(std::string_view interval) {
    return "The update interval \"" + std::string(interval) +
           "\" cannot be saved. Please enter a number of hours from " + std::to_string(INT32_MIN) +
           " to " + std::to_string(INT32_MAX) + ".";
}

std::string ConfirmDeleteText(std::string_view word, std::string_view file) {
    return "Are you sure you want to disassociate the word '" + std::string(word) +
           "' from the file '" + std::string(file) + "'?";
}

std::string WordAlreadyAssignedText(std::string_view word) {
    return "The word '" + std::string(word) +
           "' is already assigned to a file. Delete it on the Words page first if it should open "
           "another file.";
}

}  // namespace quorin
