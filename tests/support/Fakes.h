#pragma once

#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Prompter.h"
#include "platform/Shell.h"

namespace quorin::test {

// Answers questions from a script (Ok once it runs out) and records every box.
class ScriptedPrompter final : public Prompter {
  public:
    struct Box {
        std::string title;
        std::string text;
        PromptButtons buttons;
        PromptIcon icon;

        bool operator==(const Box&) const = default;
        friend std::ostream& operator<<(std::ostream& out, const Box& box) {
            return out << '"' << box.title << "\": \"" << box.text << "\" ("
                       << static_cast<int>(box.buttons) << ", " << static_cast<int>(box.icon)
                       << ')';
        }
    };
    PromptAnswer Ask(std::string_view title, std::string_view text, PromptButtons buttons,
                     PromptIcon icon) override {
        boxes.push_back({std::string(title), std::string(text), buttons, icon});
        if (answers.empty()) {
            return PromptAnswer::Ok;
        }
        const PromptAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::deque<PromptAnswer> answers;
    std::vector<Box> boxes;
};

class RecordingShell final : public Shell {
  public:
    struct Opened {
        std::string file;
        std::string parameters;
        std::string workingFolder;
        int showCommand;
    };
    void Open(std::string_view file, std::string_view parameters, std::string_view workingFolder,
              int showCommand) override {
        opened.push_back(
            {std::string(file), std::string(parameters), std::string(workingFolder), showCommand});
        if (onOpen) {
            onOpen();
        }
    }
    std::vector<Opened> opened;
    std::function<void()> onOpen;
};

}  // namespace quorin::test
