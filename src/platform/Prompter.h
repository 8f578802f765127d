#pragma once

#include <string_view>

namespace quorin {

enum class PromptButtons { Ok, YesNo, YesNoCancel };
enum class PromptIcon { None, Information, Question, Exclamation, Critical };
enum class PromptAnswer { Ok, Yes, No, Cancel };

// Message boxes: the one place the program tells or asks the user something.
class Prompter {
  public:
    virtual ~Prompter() = default;
    virtual PromptAnswer Ask(std::string_view title, std::string_view text, PromptButtons buttons,
                             PromptIcon icon) = 0;
};

}  // namespace quorin
