/// A host that knows no class: everything by name, as a scripting language reaches it.

#include <fstream>
#include <iostream>

#include <orvane/orvane.h>

int main(int argc, char** argv) {
  using orvane::host::AutomationError;

  const auto chart = orvane::CreateChart("AreaGraph");
  const auto get = [](const auto& object, const char* member) {
    return object->Get(member).AsObject();
  };
  get(chart, "TitleProps")->Let("Text", "By name");
  get(chart, "GridProps")->Let("ZAxisCellCount", 1);
  get(chart, "YAxisProps")->Let("Max", 5);
  const auto series = chart->Call("GetSeries", {1}).AsObject();
  for (const double height : {1.0, 3.0, 2.0, 4.0}) get(series, "Height")->Call("Append", {height});
  get(get(series, "Material"), "diffuseColor")->Let("Value", 0x00FF00);

  try {
    get(chart, "GridProps")->Let("Width", 0);
    return 1;
  } catch (const AutomationError& error) {
    std::cout << "refused: " << error.Description() << "\n";
  }

  const auto world = chart->Call("ExportToString", {true, true});
  std::ofstream file(argc > 1 ? argv[1] : "scripted.wrl", std::ios::binary);
  file << *world.If<std::string>();
  return file ? 0 : 1;
}
