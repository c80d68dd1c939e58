/// A table of numbers to a chart in one call, which is then changed as any other: from_table
/// [OUT.wrl]

#include <filesystem>

#include <orvane/orvane.h>

int main(int argc, char** argv) {
  using namespace orvane;
  const std::filesystem::path file = argc > 1 ? argv[1] : "rain.wrl";

  const auto table =
      tables::MakeTable({"January", "February", "March", "April"},
                        {{"2012", {173, 93, 104, 68}}, {"2013", {92, 134, 142, 66}}});
  tables::ChartOptions options;
  options.title = "Rain in Seattle, mm a month";
  const auto chart = tables::MakeColumnChart(table, options);
  chart->GetSeries(2)->Material()->diffuseColor.Value(0x0050E0);
  WriteProtos(file.parent_path());  // Beside the world, which looks for them there.
  return chart->ExportToFile(file) ? 0 : 1;
}
