#include "cli/ConsolePrompter.h"

namespace quorin {

PromptAnswer ConsolePrompter::Ask(std::string_view title, std::string_view text,
                                  PromptButtons buttons, PromptIcon /*icon*/) {
    err_ << title << ": " << text << '\n';
    return buttons == PromptButtons::Ok ? PromptAnswer::Ok : PromptAnswer::No;
}

}  // namespace quorin
