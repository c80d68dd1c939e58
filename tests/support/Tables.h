/// What the tests of files and of charts from tables share.
#pragma once

#include "orvane/tables/read/Table.h"
#include "orvane/tables/read/TableInput.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace orvane::tests {

/// The message of the FileError that `call` ends with; "no complaint" when it returns.
template <class F>
std::string ComplaintOf(F&& call) {
  try {
    std::forward<F>(call)();
  } catch (const tables::FileError& error) {
    return error.what();
  }
  return "no complaint";
}

inline tables::Table TableOf(const std::string& text, const std::string& file = "t.csv") {
  return tables::ReadTable(*tables::TableText(file, text).open({}));
}

inline void ExpectNear(const std::vector<float>& actual, const std::vector<float>& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) EXPECT_NEAR(actual[i], expected[i], 1e-5) << i;
}

}  // namespace orvane::tests
