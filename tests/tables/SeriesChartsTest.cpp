/// Charts of series from tables: where the numbers end up, and that labels keep clear of each
/// other.
#include "support/Tables.h"

#include "orvane/tables/SeriesCharts.h"
#include "orvane/tables/layout/GridLayout.h"

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

using tests::ExpectNear;
using tests::TableOf;

TEST(AreaChart, PutsValuesLabelsAndPopupsInTheirPlaces) {
  const Table table = TableOf("Year,Oil,\"Sun, wind\"\n2001,90,10\n2002,80.50,40\n2003,0,60\n");
  ChartOptions options;
  options.title = "Energy";
  options.size = GridSize{12, 5, 4};
  const auto chart = MakeAreaChart(table, options);
  chart->ExportToString(true, true);

  const auto grid = chart->GridProps();
  EXPECT_EQ(grid->Width(), 12);
  EXPECT_EQ(grid->XAxisCellCount(), 3);
  EXPECT_EQ(grid->YAxisCellCount(), 5);
  EXPECT_EQ(grid->ZAxisCellCount(), 2);
  ExpectNear(chart->GetSeries(1)->Height().Items(), {4.5F, 4.025F, 0});
  ExpectNear(chart->GetSeries(2)->Height().Items(), {0.5F, 2, 3});
  EXPECT_EQ(chart->GetSeries(2)->Root()->translation.Y(), 0);
  EXPECT_EQ(chart->GetSeries(2)->LegendText(), "Sun, wind");
  EXPECT_EQ(chart->GetSeries(1)->PopupProps()->PopupText().Item(2), "2002\nOil: 80.50");
  EXPECT_TRUE(chart->GetSeries(1)->PopupProps()->UsePopups());
  EXPECT_EQ(chart->XAxisProps()->Labels().Items(),
            (std::vector<std::string>{"2001", "2002", "2003"}));
  EXPECT_EQ(chart->XAxisProps()->Header(), "Year");
  EXPECT_EQ(chart->YAxisProps()->Max(), 100);
  EXPECT_EQ(chart->YAxisProps()->NumericFormat(), "#,##0");
  EXPECT_EQ(chart->TitleProps()->Text(), "Energy");
  EXPECT_TRUE(chart->LegendProps()->UseSeriesToggle());
  EXPECT_EQ(chart->Viewpoints()->Count(), 4);
  EXPECT_EQ(chart->Viewpoints()->GetViewpoint(1)->description.Value(), "Corner");
}

TEST(AreaChart, StandsOnThePlaneOfZeroAndLabelsLargeValuesInUnits) {
  ChartOptions options;
  options.size = GridSize{8, 6, 4};
  options.useToggles = false;
  options.usePopups = false;
  const auto chart = MakeAreaChart(TableOf("m,a\nx,-4\ny,8\n"), options);
  EXPECT_EQ(chart->YAxisProps()->Min(), -4);
  EXPECT_EQ(chart->YAxisProps()->Max(), 8);
  EXPECT_NEAR(chart->GetSeries(1)->Root()->translation.Y(), 2, 1e-6);
  ExpectNear(chart->GetSeries(1)->Height().Items(), {-2, 4});
  EXPECT_FALSE(chart->LegendProps()->UseSeriesToggle());
  EXPECT_FALSE(chart->GetSeries(1)->PopupProps()->UsePopups());

  const auto large = MakeAreaChart(TableOf("m,a\nx,2000000001\ny,3e9\n"), {});
  EXPECT_EQ(large->YAxisProps()->Max(), 3);
  EXPECT_EQ(large->YAxisProps()->Header(), "× 1,000,000,000");
  EXPECT_EQ(large->GetSeries(1)->PopupProps()->PopupText().Item(1), "x\na: 2000000001");
}

TEST(AreaChart, IsReadableOnAnyBackground) {
  for (const HostColor background : {0x000000, 0xFFFFFF, 0x808080, 0x0000FF, 0x00FFFF, 0x3A2410}) {
    ChartOptions options;
    options.background = background;
    const auto chart = MakeAreaChart(TableOf("m,a\nx,1\n"), options);
    for (const HostColor text :
         {chart->TitleProps()->TextColor(), chart->LegendProps()->TextColor(),
          chart->XAxisProps()->LabelColor(), chart->YAxisProps()->HeaderColor()}) {
      EXPECT_GE(Contrast(background, text), 3) << std::hex << background;
    }
  }
}

TEST(ColumnChart, StandsInRowsOrSideBySideAndRibbonsAlike) {
  const Table table = TableOf("m,a,b\nx,1,2\ny,3,4\n");
  ChartOptions options;
  options.size = GridSize{4, 5, 3};
  const auto rows = MakeColumnChart(table, options);
  EXPECT_EQ(rows->ColumnsPerCell(), 1);
  EXPECT_EQ(rows->GridProps()->ZAxisCellCount(), 2);
  ExpectNear(rows->GetSeries(2)->Height().Items(), {2.5, 5});

  options.isGrouped = true;
  options.style = ShapeStyle::Rounded;
  const auto grouped = MakeColumnChart(table, options);
  grouped->ExportToString(true, true);
  EXPECT_EQ(grouped->ColumnsPerCell(), 2);
  EXPECT_EQ(grouped->GridProps()->ZAxisCellCount(), 1);
  ExpectNear(grouped->GetSeries(1, 2)->Height().Items(), {2.5, 5});
  EXPECT_EQ(grouped->GetSeries(1, 2)->LegendText(), "b");
  EXPECT_EQ(grouped->GetSeries(1, 1)->Style(), ColumnStyle::ROUNDED_COLUMN);
  // Together 0.8 of the cell of width 2, in its middle.
  EXPECT_FLOAT_EQ(grouped->GetSeries(1, 1)->Width(), 0.8F);
  EXPECT_FLOAT_EQ(grouped->GetSeries(1, 1)->Root()->translation.X(), 0.6F);
  EXPECT_FLOAT_EQ(grouped->GetSeries(1, 2)->Root()->translation.X(), 1.4F);
  options.isGrouped = false;
  const auto ribbons = MakeRibbonChart(table, options);
  ExpectNear(ribbons->GetSeries(1)->Height().Items(), {1.25, 3.75});
  EXPECT_EQ(ribbons->GetSeries(2)->Style(), RibbonStyle::ROUNDED_RIBBON);
}

/// A table of `categories` x `series` cells.
Table Large(int categories, int series) {
  std::string text = "Category";
  for (int j = 0; j < series; ++j) text += ",Series " + std::to_string(j);
  for (int i = 0; i < categories; ++i) {
    text += "\nCategory " + std::to_string(i);
    for (int j = 0; j < series; ++j) text += "," + std::to_string(i + j);
  }
  return TableOf(text);
}

TEST(GridLayout, KeepsLabelsApartAndReadable) {
  for (const int categories : {1, 2, 12, 60, 400, 5000}) {
    for (const int series : {1, 3, 20, 200}) {
      if (categories * series > 100000) continue;
      const GridLayout layout = LayOutSeries(Large(categories, series), {});
      const auto check = [&](const LabelColumn& column, double pitch) {
        double last = -1e9;
        int shown = 0;
        for (std::size_t i = 0; i < column.texts.size(); ++i) {
          if (column.texts[i].empty()) continue;
          const double place = static_cast<double>(i) * pitch;
          EXPECT_LE(column.height, 0.81 * (place - last));
          last = place;
          ++shown;
        }
        EXPECT_GE(shown, 1);
        EXPECT_GE(column.height, 0.69 * layout.textHeight);
      };
      SCOPED_TRACE(std::to_string(categories) + " x " + std::to_string(series));
      check(layout.xLabels, layout.size.width / 1.0 / categories);
      check(layout.zLabels, layout.CellDepth());
      check(layout.yLabels, layout.size.height / 1.0 / layout.scale.cells);
      EXPECT_LE(layout.LegendHeight(), layout.size.height);
    }
  }
}

TEST(GridLayout, CutsLongLabelsToOneLine) {
  const GridLayout layout =
      LayOutSeries(TableOf("m,a\n\"a\nb\",1\näöüäöüäöüäöüäöüäöüäöüäöüx,2\n"), {});
  EXPECT_EQ(layout.xLabels.texts, (std::vector<std::string>{"a b", "äöüäöüäöüäöüäöüäöüäöüäö…"}));
}

}  // namespace
}  // namespace orvane::tables
