#include "orvane/scene/OrvaneModule.h"

namespace orvane::OrvaneModule {
namespace {

std::string& Prefix() {
  static std::string prefix;
  return prefix;
}

}  // namespace

const std::string& RelativeProtoPath() { return Prefix(); }

void RelativeProtoPath(const std::string& prefix) { Prefix() = prefix; }

}  // namespace orvane::OrvaneModule
