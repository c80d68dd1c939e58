/// The command-line program: charts from tables, worlds from models.
#include "CommandLine.h"

#include <iostream>

int main(int argc, char** argv) {
  return orvane::tool::RunCommandLine(argc, argv, std::cout, std::cerr);
}
