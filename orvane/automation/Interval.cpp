#include "orvane/automation/Interval.h"

#include <charconv>
#include <cmath>

namespace orvane::host {
namespace {

std::string Shortest(double number) {
  char buffer[32];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
}

}  // namespace

std::string Range::Text() const {
  if (!highCount.empty()) return Shortest(low) + ".." + highCount;
  if (std::isinf(low) && std::isinf(high)) return "";
  if (!isOpen && !std::isinf(low) && !std::isinf(high))
    return Shortest(low) + ".." + Shortest(high);
  const std::string above = std::isinf(low) ? "" : (isOpen ? "> " : ">= ") + Shortest(low);
  const std::string below = std::isinf(high) ? "" : (isOpen ? "< " : "<= ") + Shortest(high);
  return above + (above.empty() || below.empty() ? "" : ", ") + below;
}

}  // namespace orvane::host
