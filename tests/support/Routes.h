/// The ROUTE statements of a world's text.
#pragma once

#include <regex>
#include <string>
#include <vector>

namespace orvane::tests {

/// What stands behind each "ROUTE", in order.
inline std::vector<std::string> RoutesOf(const std::string& text) {
  std::vector<std::string> routes;
  const std::regex line("\nROUTE ([^\n]*)");
  for (std::sregex_iterator at(text.begin(), text.end(), line), end; at != end; ++at) {
    routes.push_back((*at)[1].str());
  }
  return routes;
}

}  // namespace orvane::tests
