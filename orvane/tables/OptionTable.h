/// Every option that some kind of chart has, each once.
#pragma once

#include "orvane/tables/ChartKinds.h"

#include <initializer_list>
#include <string_view>
#include <vector>

namespace orvane::tables {

using OptionNames = std::initializer_list<std::string_view>;

/// The options of these names, in this order. "slice-style" is the "style" of slices.
std::vector<Option> OptionsNamed(OptionNames names);

}  // namespace orvane::tables
