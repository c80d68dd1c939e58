/// An axis of values; it makes its labels from a range, a count and a format picture.
#pragma once

#include "orvane/components/Axis.h"

#include <cstdint>
#include <string>

namespace orvane {

/// Where labels cannot be made of Min, Max, Count or Order, their let raises the error when it has
/// stored the new value, and the old labels stay.
class ORVANE_API ContinuousAxis final : public Axis {
 public:
  static constexpr const char* kClassName = "ContinuousAxis";
  const host::TypeInfo& Type() const override;

  /// Values at the two ends of the labelling, unchecked. A let makes the labels anew. Default 0.
  float Min() const { return m_min; }
  void Min(float value);
  float Max() const { return m_max; }
  void Max(float value);

  /// Picture of the labels, see FormatNumber; used when labels are next made. Default "###,##0.00".
  std::string NumericFormat() const { return m_numericFormat; }
  void NumericFormat(const std::string& picture) { m_numericFormat = picture; }

  /// Number of labels, unchecked; a let makes the labels anew. 1 raises DivisionByZero and leaves
  /// the labels.
  std::int16_t Count() const { return m_count; }
  void Count(std::int16_t count);
  /// Direction of the labels; a change makes them anew.
  LabelingOrder Order() const { return m_order; }
  void Order(LabelingOrder order);

 private:
  void RegenerateLabels();

  float m_min = 0;
  float m_max = 0;
  std::int16_t m_count = 0;
  LabelingOrder m_order = LabelingOrder::MAX_TO_MIN;
  std::string m_numericFormat = "###,##0.00";
};

}  // namespace orvane
