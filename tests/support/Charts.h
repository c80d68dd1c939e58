/// What the tests of charts share: a chart with its text and ROUTEs, and where its parts stand.
#pragma once

#include "support/Raises.h"
#include "support/Routes.h"

#include "orvane/scene/GroupingNodes.h"

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace orvane::tests {

using Texts = std::vector<std::string>;

template <class G>
class ChartTest : public testing::Test {
 protected:
  std::string Written() { return chart->ExportToString(true, true); }
  Texts Routes() { return RoutesOf(Written()); }

  std::shared_ptr<G> chart = std::make_shared<G>();
};

inline void ExpectAt(const scene::Transform& part, float x, float y, float z) {
  const auto& at = part.translation;
  EXPECT_LT(std::hypot(at.X() - x, at.Y() - y, at.Z() - z), 1e-5)
      << "at " << at.X() << " " << at.Y() << " " << at.Z() << ", not " << x << " " << y << " " << z;
}

}  // namespace orvane::tests
