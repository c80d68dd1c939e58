#include "orvane/graphs/SeriesCollection.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"

#include <algorithm>
#include <numeric>

namespace orvane {

std::vector<std::int16_t> Indexes(std::int16_t count) {
  std::vector<std::int16_t> indexes(static_cast<std::size_t>(count));
  std::iota(indexes.begin(), indexes.end(), std::int16_t{1});
  return indexes;
}

const host::TypeInfo& SeriesCollection::Type() const {
  using Collection = SeriesCollection;
  static const host::TypeInfo type =
      host::Describe<Collection>("An ordered list of series.")
          .Method("Get1Series", &Collection::Get1Series, {{"Index", host::UpTo("Count")}},
                  {"One item"})
          .Method("RemoveSeries", &Collection::RemoveSeries, {{"Index", host::UpTo("Count")}},
                  {"Removes one item"})
          .Method("AddSeries", &Collection::AddSeries, {"vNewValue"}, {"Adds an item at the end"})
          .Method("ClearSeries", &Collection::ClearSeries, {}, {"Removes all items"})
          .Property<std::int16_t>("Count", &Collection::Count, {"Number of items"});
  return type;
}

std::shared_ptr<ISeriesInfo> SeriesCollection::Get1Series(std::int16_t index) const {
  return m_items[Position(index)];
}

void SeriesCollection::RemoveSeries(std::int16_t index) {
  m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(Position(index)));
}

void SeriesCollection::AddSeries(const std::shared_ptr<ISeriesInfo>& vNewValue) {
  (void)host::Int16(Count() + 1);
  m_items.push_back(vNewValue);
}

SeriesCollection::Items SeriesCollection::Resized(std::int16_t count, const Make& make) const {
  if (count < Count()) (void)Position(host::Int16(count + 1));  // Rejects a negative count.
  Items items = m_items;
  items.resize(std::min(items.size(), static_cast<std::size_t>(count)));
  while (items.size() < static_cast<std::size_t>(count)) items.push_back(make());
  return items;
}

std::int16_t SeriesCollection::Count() const {
  return host::Int16(static_cast<std::int64_t>(m_items.size()));
}

std::size_t SeriesCollection::Position(std::int16_t index) const {
  host::Require(index >= 1 && index <= Count(), "Invalid index into the list");
  return static_cast<std::size_t>(index - 1);
}

}  // namespace orvane
