/// The straight-line mapping.

#include "support/Raises.h"

#include "orvane/control/OrvaneScaler.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using tests::ErrorOf;

TEST(OrvaneScaler, MapsOneRangeIntoAnother) {
  struct Case {
    float fromMin, fromMax, toMin, toMax, value, image;
  };
  const Case cases[] = {{0, 1, 0, 1, 0.25F, 0.25F}, {0, 200, 0, 4, 50, 1},
                        {0, 200, 0, 4, 300, 6},     {0, 1, 10, 0, 0.25F, 7.5F},
                        {10, 0, 0, 1, 7.5F, 0.25F}, {-5, 5, 0, 10, -10, -5}};
  for (const auto& test : cases) {
    OrvaneScaler scaler;
    scaler.FromMin(test.fromMin);
    scaler.FromMax(test.fromMax);
    scaler.ToMin(test.toMin);
    scaler.ToMax(test.toMax);
    EXPECT_EQ(scaler.ScaledValue(test.value), test.image) << test.value;
  }
}

TEST(OrvaneScaler, RaisesWhereThereIsNoImage) {
  OrvaneScaler scaler;
  scaler.FromMin(5);
  scaler.FromMax(5);
  for (const float value : {5.0F, 6.0F}) {
    EXPECT_EQ(ErrorOf([&] { (void)scaler.ScaledValue(value); }).number,
              host::ErrorNumber::DivisionByZero);
  }
  scaler.FromMax(5.0000005F);
  EXPECT_EQ(ErrorOf([&] { (void)scaler.ScaledValue(3e38F); }).number, host::ErrorNumber::Overflow);
  EXPECT_EQ(scaler.FromMin(), 5);
}

}  // namespace
}  // namespace orvane
