/// Models in JSON: each becomes a world, the same one twice, or a complaint.
#include "Fuzz.h"
#include "ModelBuilder.h"

#include "orvane/automation/AutomationError.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvane;
  try {
    const tables::Source source("model.json", std::string(fuzz::Text(data, size)));
    fuzz::Require(tool::BuildWorld(source) == tool::BuildWorld(source), "one model is one world");
  } catch (const tables::FileError& error) {
    fuzz::Require(*error.what() != '\0', "a complaint says something");
  } catch (const host::AutomationError& error) {
    fuzz::Require(*error.what() != '\0', "a complaint says something");
  }
  return 0;
}
