/// Pies from tables: shares that close the ring, heights, labels that keep clear of each other.
#include "support/Tables.h"

#include "orvane/tables/PieChart.h"
#include "orvane/tables/layout/PieLayout.h"
#include "orvane/tables/layout/Texts.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

std::vector<PieShare> SharesOf(const std::string& text) {
  ReadOptions options;
  options.missing = Missing::Zero;
  return PieSharesOf(ReadTable(*TableText("t.csv", text).open(options), options));
}

/// Where each slice ends, clockwise from +x, as the exported scene has it.
std::vector<double> EndsOf(PieGraph& chart) {
  chart.ExportToString(false, false);
  std::vector<double> ends;
  for (std::int16_t i = 1; i <= chart.SliceCount(); ++i) {
    const PieSliceInfo& slice = *chart.GetSlice(i);
    ends.push_back(-slice.Root()->rotation.Angle() + slice.Angle() / 2.0);
  }
  return ends;
}

void ExpectClosed(const std::vector<PieShare>& shares) {
  const auto chart = MakePieChart(shares, {});
  const auto ends = EndsOf(*chart);
  ASSERT_EQ(ends.size(), shares.size());
  EXPECT_NEAR(ends.back(), 2 * std::numbers::pi, 1e-5) << shares.size() << " slices";
  double part = 0;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    part += shares[i].part;
    EXPECT_NEAR(ends[i], 2 * std::numbers::pi * part, 1e-5) << "slice " << i + 1;
  }
}

TEST(PieChart, ClosesTheRing) {
  const Table rain =
      ReadTable(*TableFile(ORVANE_SOURCE_DIR "/examples/data/seattle-rain.csv").open({}));
  std::string rows = "Month,Rain";
  int count = 0;
  for (const TableSeries& year : rain.series) {
    for (const TableCell& cell : year.cells) {
      rows += "\nx," + cell.text;
      if (++count >= 3 && count <= 30) ExpectClosed(SharesOf(rows));
    }
  }
  ASSERT_GE(count, 30);
  ExpectClosed(SharesOf("a,b\nx,1\n"));
  ExpectClosed(SharesOf("a,b\nx,0\ny,1e308\nz,1e308\nv,0\n"));
  for (int i = 0; i < 300; ++i) rows += "\nx," + std::to_string(i % 7 * 0.1);
  ExpectClosed(SharesOf(rows));
}

TEST(PieChart, GivesEachSliceItsNumbersAndLook) {
  const auto shares = SharesOf("Kind,Count,Mass\nOne,30,500\n\"Two, three\",10.0,250\nNone,0,0\n");
  ChartOptions options;
  options.title = "Birds";
  options.style = ShapeStyle::Ring;
  options.useSpinAxis = true;
  const auto chart = MakePieChart(shares, options);
  ASSERT_EQ(chart->SliceCount(), 3);
  const float parts[] = {0.75F, 0.25F, 0};
  const float rises[] = {1, 0.5F, 0.03F};
  const char* const legend[] = {"One, 75.0 %", "Two, three, 25.0 %", "None, 0.0 %"};
  const char* const labels[] = {"30", "10.0", "0"};
  const float height = chart->GetSlice(1)->Height();
  for (std::int16_t i = 1; i <= 3; ++i) {
    const PieSliceInfo& slice = *chart->GetSlice(i);
    EXPECT_NEAR(slice.Percentage(), parts[i - 1], 1e-6);
    EXPECT_NEAR(slice.Height(), rises[i - 1] * height, 1e-5);
    EXPECT_EQ(slice.Style(), SliceStyle::RING_SLICE);
    EXPECT_EQ(slice.LegendText(), legend[i - 1]);
    EXPECT_EQ(slice.SliceTextProps()->Text(), labels[i - 1]);
  }
  EXPECT_EQ(chart->TitleProps()->Text(), "Birds");
  EXPECT_TRUE(chart->UseSpinAxis());
  EXPECT_TRUE(chart->LegendProps()->UseSeriesToggle());
  EXPECT_EQ(chart->SliceTextDisplayStyle(), SliceTextVisibility::SHOW_ON_TOUCH);
  EXPECT_EQ(chart->Viewpoints()->Count(), 3);
}

TEST(PieChart, RefusesWhatMakesNoPie) {
  const std::pair<const char*, const char*> cases[] = {
      {"a,b\nx,1\ny,-2.5\n", "t.csv:3:3: the value -2.5 is negative"},
      {"a,b,c\nx,1,1\ny,2,-1\n", "t.csv:3:5: the height -1 is negative"},
      {"a,b\nx,0\ny,0\n", "t.csv:2:3: all values are 0"},
      {"a,b,c\nx,1,0\n", "t.csv:2:5: all heights are 0"},
      {"a,b,c,d\nx,1,1,1\n",
       "t.csv:1:7: a pie takes a column of labels, one of values and at most one of heights"},
      {"a,b\nx,one\n", "t.csv:2:3: \"one\" is not a number"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(tests::ComplaintOf([&] { SharesOf(row.first); }), row.second);
  }
}

/// Whether `point` lies within `half` of being under a text at `label`, seen from the top.
bool Covers(const PieLabel& label, double textHeight, double x, double z) {
  const double half = TextWidth(label.text, textHeight) / 2;
  return std::abs(x - label.distance * std::cos(label.angle)) < half &&
         std::abs(z - label.distance * std::sin(label.angle)) < textHeight / 2;
}

TEST(PieLayout, KeepsLabelsClearOfPieLegendAndEachOther) {
  for (const int count : {1, 2, 3, 7, 12, 30, 200}) {
    std::string rows = "a,b";
    for (int i = 0; i < count; ++i) rows += "\nSlice," + std::to_string(1 + i % 4);
    for (const auto when : {SliceLabels::Always, SliceLabels::Touch}) {
      ChartOptions options;
      options.sliceLabels = when;
      const PieLayout layout = LayOutPie(SharesOf(rows), options);
      int shown = 0;
      for (const PieLabel& label : layout.labels) {
        if (label.text.empty()) continue;
        ++shown;
        const double x = label.distance * std::cos(label.angle);
        const double z = label.distance * std::sin(label.angle);
        const double half = TextWidth(label.text, layout.textHeight) / 2;
        EXPECT_LT(x + half, layout.LegendPlace().x);
        for (const double corner : {x - half, x, x + half}) {
          EXPECT_GT(std::hypot(corner, z), layout.radius) << count;
        }
        for (const PieLabel& other : layout.labels) {
          if (&other == &label || when == SliceLabels::Touch) continue;
          EXPECT_FALSE(Covers(other, layout.textHeight, x, z)) << count;
        }
      }
      EXPECT_GE(shown, when == SliceLabels::Touch ? count : std::min(count, 7)) << count;
      EXPECT_LE(layout.LegendHeight(), 2.3 * layout.radius);
    }
  }
}

}  // namespace
}  // namespace orvane::tables
