/// The ordered list in which every chart keeps its series, surfaces, slices or point frames.
#pragma once

#include "orvane/automation/Object.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvane {

/// The indexes 1 to `count`. A loop that counted in 16 bits itself would not end at 32767.
ORVANE_API std::vector<std::int16_t> Indexes(std::int16_t count);

/// The mark of everything that a SeriesCollection may hold.
class ORVANE_API ISeriesInfo {
 public:
  static constexpr const char* kClassName = "ISeriesInfo";
  virtual ~ISeriesInfo() = default;
};

/// Indexes count from 1; one outside 1..Count raises a component error. A collection may itself be
/// held in one.
class ORVANE_API SeriesCollection final : public host::Object, public ISeriesInfo {
 public:
  static constexpr const char* kClassName = "SeriesCollection";
  const host::TypeInfo& Type() const override;

  using Items = std::vector<std::shared_ptr<ISeriesInfo>>;
  using Make = std::function<std::shared_ptr<ISeriesInfo>()>;

  std::shared_ptr<ISeriesInfo> Get1Series(std::int16_t index) const;
  /// Removes one item; later ones move down by a place.
  void RemoveSeries(std::int16_t index);
  /// Adds an item at the end; neither duplicates nor nothing are checked for.
  void AddSeries(const std::shared_ptr<ISeriesInfo>& vNewValue);
  void ClearSeries() { m_items.clear(); }
  std::int16_t Count() const;

  /// Brings the list to `count` items, >= 0: drops trailing ones, or adds what `make` makes, all of
  /// it or none.
  void Resize(std::int16_t count, const Make& make) { Replace(Resized(count, make)); }
  /// The items that the list would have then.
  Items Resized(std::int16_t count, const Make& make) const;
  void Replace(Items items) noexcept { m_items = std::move(items); }

  /// Item `index` as the class that its chart put in.
  template <class T>
  std::shared_ptr<T> Get(std::int16_t index) const {
    return std::dynamic_pointer_cast<T>(Get1Series(index));
  }

 private:
  std::size_t Position(std::int16_t index) const;

  Items m_items;
};

}  // namespace orvane
