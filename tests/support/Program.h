/// The command-line program, run in this process.
#pragma once

#include "CommandLine.h"

#include <sstream>
#include <string>
#include <vector>

namespace orvane::tests {

struct Outcome {
  int status;
  std::string out, err;
};

inline Outcome RunOrvane(const std::vector<std::string>& arguments) {
  std::vector<const char*> argv = {"orvane"};
  for (const auto& argument : arguments) argv.push_back(argument.c_str());
  std::ostringstream out;
  std::ostringstream err;
  const int status = tool::RunCommandLine(static_cast<int>(argv.size()), argv.data(), out, err);
  return {status, out.str(), err.str()};
}

}  // namespace orvane::tests
