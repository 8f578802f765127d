#include <sys/wait.h>

#include <cstdlib>
#include <stdexcept>

#include "ChildProcess.h"
#include "platform/Path.h"
#include "platform/TextFile.h"

namespace quorin {
namespace {

std::string ShellQuoted(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

}  // namespace

ProcessResult RunProgram(const std::string& program, const std::vector<std::string>& args,
                         const std::string& scratchFolder) {
    const std::string outPath = JoinPath(scratchFolder, "child.out");
    const std::string errPath = JoinPath(scratchFolder, "child.err");
    std::string command = ShellQuoted(program);
    for (const std::string& arg : args) {
        command += " " + ShellQuoted(arg);
    }
    command += " >" + ShellQuoted(outPath) + " 2>" + ShellQuoted(errPath);
    const int status = std::system(command.c_str());
    if (status == -1 || !WIFEXITED(status)) {
        throw std::runtime_error("Cannot run " + command);
    }
    return ProcessResult{WEXITSTATUS(status), ReadWholeFile(outPath), ReadWholeFile(errPath)};
}

}  // namespace quorin
