#include <iostream>
#include <string>
#include <vector>

#include "cli/CliApp.h"

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    return quorin::RunCli(args, std::cout, std::cerr);
}
