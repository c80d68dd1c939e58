/// Tables and the options of their charts: lines "kind", "option=value" or "option", an empty line,
/// and the table. Whatever they say becomes a world or a complaint.
#include "Fuzz.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/tables/ChartKinds.h"

#include <string>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvane;
  std::string_view text = fuzz::Text(data, size);
  const auto line = [&text] {
    const auto end = text.find('\n');
    const auto taken = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return taken;
  };
  try {
    const auto& kind = tables::ChartKindOf(line());
    tables::ChartOptions options;
    for (auto option = line(); !option.empty(); option = line()) {
      const auto name = option.substr(0, option.find('='));
      const auto value = name.size() < option.size() ? option.substr(name.size() + 1) : "";
      if (name != "surface") tables::SetOption(kind, options, name, std::string(value));
    }
    const auto table = tables::TableText("table.csv", std::string(text));
    options.surface = table;
    const auto world = kind.make(table, options).chart->ExportToString(true, true);
    fuzz::Require(world.starts_with("#VRML V2.0 utf8\n"), "a world has its header");
  } catch (const tables::FileError& error) {
    fuzz::Require(*error.what() != '\0', "a complaint says something");
  } catch (const tables::OptionError& error) {
    fuzz::Require(*error.what() != '\0', "a complaint says something");
  } catch (const host::AutomationError& error) {
    fuzz::Require(*error.what() != '\0', "a complaint says something");
  }
  return 0;
}
