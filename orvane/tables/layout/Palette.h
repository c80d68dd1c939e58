/// Series colours that people with any colour vision can tell apart.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/tables/layout/Color.h"

#include <cstddef>

namespace orvane::tables {

/// The colour of series `index`, counted from 0. The first eight are far apart for all kinds of
/// colour vision; darker, then lighter shades of the eight follow; after 24 the colours repeat.
ORVANE_API HostColor SeriesColor(std::size_t index);

}  // namespace orvane::tables
