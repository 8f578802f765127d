#pragma once

#include <string>
#include <vector>

namespace quorin {

struct ProcessResult {
    int exitCode = -1;
    std::string out;  // line ends as "\n" on every platform
    std::string err;
};

// Runs a program to its end with its output caught in files of scratchFolder.
ProcessResult RunProgram(const std::string& program, const std::vector<std::string>& args,
                         const std::string& scratchFolder);

}  // namespace quorin
