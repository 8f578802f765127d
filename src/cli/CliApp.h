#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace quorin {

// Runs quorin-cli with the arguments after the program name. Results go to out; a failure goes
// to err as one sentence (with the usage line when the command line is wrong) and gives 1.
int RunCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace quorin
