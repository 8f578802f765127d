#include <windows.h>

#include <iostream>
#include <string>
#include <vector>

#include "cli/CliApp.h"
#include "platform/Text.h"

// wmain, so that arguments outside the ANSI code page arrive whole.
int wmain(int argc, wchar_t** argv) {
    SetConsoleOutputCP(CP_UTF8);
    std::vector<std::string> args;
    for (int i = 1; i < argc; ++i) {
        // "/?" is how Windows programs are asked for their usage.
        const std::string arg = quorin::Narrow(argv[i]);
        args.push_back(arg == "/?" ? "--help" : arg);
    }
    return quorin::RunCli(args, std::cout, std::cerr);
}
