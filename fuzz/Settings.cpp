/// Settings files, damaged or not: what is saved reads back, and the rest of the file stays.
#include "Fuzz.h"

#include "orvane/platform/IniText.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvane;
  const std::string_view text = fuzz::Text(data, size);
  const host::IniText before(text);
  fuzz::Require(host::IniText(before.Text()).Text() == before.Text(), "what is written reads back");
  host::IniText after = before;
  const std::string_view value = text.substr(text.size() / 2);
  after.Set("Fuzzed section", "Key", value);
  const host::IniText again(after.Text());
  fuzz::Require(again.Get("Fuzzed section", "Key") == value, "a value reads back");
  fuzz::Require(again.Get("ProtoPath", "ProtoDir") == before.Get("ProtoPath", "ProtoDir"),
                "other values stay");
  return 0;
}
