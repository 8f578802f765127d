#pragma once

#include <ostream>

#include "platform/Prompter.h"

namespace quorin {

// Messages of the engine on a console: written out, and a question is answered with No, since
// nobody is there to answer it.
class ConsolePrompter final : public Prompter {
  public:
    explicit ConsolePrompter(std::ostream& err) : err_(err) {}

    PromptAnswer Ask(std::string_view title, std::string_view text, PromptButtons buttons,
                     PromptIcon icon) override;

  private:
    std::ostream& err_;
};

}  // namespace quorin
