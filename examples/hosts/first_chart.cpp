/// The smallest host: a table of numbers in the program, a world in a file.

#include <iostream>

#include <orvane/orvane.h>

int main(int argc, char** argv) {
  const char* const months[] = {"January", "February", "March", "April"};
  const float millimetres[][4] = {{173, 93, 104, 68}, {92, 134, 142, 66}};

  auto chart = std::make_shared<orvane::AreaGraph>();
  chart->TitleProps()->Text("Rain in Seattle");
  chart->GridProps()->ZAxisCellCount(2);  // One series a Z cell.
  for (const char* month : months) chart->XAxisProps()->Labels().Append(month);
  chart->YAxisProps()->Max(200);
  chart->YAxisProps()->NumericFormat("0 \"mm\"");

  orvane::OrvaneScaler scaler;  // Millimetres into the height of the grid.
  scaler.FromMax(200);
  scaler.ToMax(chart->GridProps()->Height());
  const int colors[] = {0xB27200, 0x009EE6};  // Red in the low byte.
  for (std::int16_t i = 1; i <= 2; ++i) {
    const auto series = chart->GetSeries(i);
    for (const float value : millimetres[i - 1]) series->Height().Append(scaler.ScaledValue(value));
    series->LegendText(i == 1 ? "2012" : "2013");
    series->Material()->diffuseColor.Value(colors[i - 1]);
  }
  chart->Viewpoints()->AddViewpoint()->position.Z(30);

  const char* file = argc > 1 ? argv[1] : "first_chart.wrl";
  if (!chart->ExportToFile(file)) {
    std::cerr << "cannot write " << file << "\n";
    return 1;
  }
  std::cout << "wrote " << file << "\n";
}
