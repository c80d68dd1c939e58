/// A chart as one HTML page that needs nothing else: the player, the world and its data are inside.
#pragma once

#include "orvane/graphs/Chart.h"
#include "orvane/tables/read/Rows.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::pages {

/// A world that a page carries. Links between the worlds of a page stay within it.
struct PageWorld {
  std::string name;  ///< What links call it: "sales.wrl".
  std::string text;  ///< VRML97; its PROTO files are not needed.
};

/// What stands in a page beside its worlds; all of it is text, whatever it holds.
struct PageFacts {
  std::string title;    ///< Empty: the page has no heading, and "Chart" in the browser's tab.
  std::string summary;  ///< What the chart shows, in words.
  std::vector<std::vector<std::string>> table;  ///< Its data, the header first; may be empty.
  std::string picture;  ///< A PNG file, shown where the player cannot run; may be empty.
};

/// The most cells of a table that stand in a page; the rest goes with it as a file to save.
inline constexpr std::size_t kMostPageCells = 5000;

/// The page of one or more worlds, of which the first is shown; UTF-8. Raises std::invalid_argument
/// for none.
std::string Page(const std::vector<PageWorld>& worlds, const PageFacts& facts);

/// The page of a chart as it is now, with its title.
std::string Page(Chart& chart);

/// The data of a table, and in words what a chart called `kind` shows of it: how much there is, and
/// between which extremes. Raises FileError for what cannot be read.
PageFacts FactsOf(std::string_view kind, tables::Rows& rows);

}  // namespace orvane::pages
