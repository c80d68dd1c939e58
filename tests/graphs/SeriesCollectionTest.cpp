/// The ordered list of series.

#include "support/Raises.h"

#include "orvane/graphs/SeriesCollection.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using tests::ErrorOf;

struct Item : ISeriesInfo {};

TEST(SeriesCollection, ClosesTheGapThatARemovedItemLeaves) {
  SeriesCollection list;
  const auto a = std::make_shared<Item>(), b = std::make_shared<Item>(),
             c = std::make_shared<Item>();
  for (const auto& item : {a, b, c}) list.AddSeries(item);
  list.RemoveSeries(2);
  EXPECT_EQ(list.Count(), 2);
  EXPECT_EQ(list.Get1Series(1), a);
  EXPECT_EQ(list.Get1Series(2), c);
  for (const std::int16_t index : std::initializer_list<std::int16_t>{0, 3, -1}) {
    tests::ExpectErrors({{[&] { (void)list.Get1Series(index); }, "Invalid index into the list"},
                         {[&] { list.RemoveSeries(index); }, "Invalid index into the list"}});
  }
  list.ClearSeries();
  EXPECT_EQ(list.Count(), 0);
}

TEST(SeriesCollection, HoldsNoMoreThanA16BitCount) {
  SeriesCollection list;
  for (int i = 0; i < 32767; ++i) list.AddSeries(nullptr);
  EXPECT_EQ(ErrorOf([&] { list.AddSeries(nullptr); }).number, host::ErrorNumber::Overflow);
  EXPECT_EQ(list.Count(), 32767);
}

}  // namespace
}  // namespace orvane
