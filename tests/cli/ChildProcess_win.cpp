#include <windows.h>

#include <stdexcept>
#include <string>

#include "ChildProcess.h"
#include "platform/Path.h"
#include "platform/Text.h"
#include "platform/TextFile.h"
#include "platform/WinHandles.h"

namespace quorin {
namespace {

UniqueFileHandle CreateOutputFile(const std::string& path) {
    SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
    UniqueFileHandle file(CreateFileW(Widen(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        throw std::runtime_error("Cannot create " + path);
    }
    return file;
}

std::string WithoutCarriageReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

}  // namespace

ProcessResult RunProgram(const std::string& program, const std::vector<std::string>& args,
                         const std::string& scratchFolder) {
    const std::string outPath = JoinPath(scratchFolder, "child.out");
    const std::string errPath = JoinPath(scratchFolder, "child.err");
    std::wstring commandLine = L"quorin-cli";
    for (const std::string& arg : args) {
        commandLine += L" \"" + Widen(arg) + L"\"";  // the tests pass no quotes
    }
    DWORD exitCode = 0;
    {
        const UniqueFileHandle out = CreateOutputFile(outPath);
        const UniqueFileHandle err = CreateOutputFile(errPath);
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = out.get();
        startup.hStdError = err.get();
        PROCESS_INFORMATION info{};
        if (!CreateProcessW(Widen(program).c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0,
                            nullptr, nullptr, &startup, &info)) {
            throw std::runtime_error("Cannot run " + program + " (error " +
                                     std::to_string(GetLastError()) + ")");
        }
        const UniqueKernelHandle process(info.hProcess);
        const UniqueKernelHandle thread(info.hThread);
        WaitForSingleObject(process.get(), INFINITE);
        GetExitCodeProcess(process.get(), &exitCode);
    }
    return ProcessResult{static_cast<int>(exitCode), WithoutCarriageReturns(ReadWholeFile(outPath)),
                         WithoutCarriageReturns(ReadWholeFile(errPath))};
}

}  // namespace quorin
