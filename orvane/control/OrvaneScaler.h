/// A straight-line mapping from a host's data range into a chart's range.
#pragma once

#include "orvane/automation/Object.h"

namespace orvane {

/// Maps FromMin to ToMin and FromMax to ToMax; values outside are extrapolated, a reversed range
/// mirrors. A new scaler is the identity.
class ORVANE_API OrvaneScaler final : public host::Object {
 public:
  static constexpr const char* kClassName = "OrvaneScaler";
  const host::TypeInfo& Type() const override;

  /// Any numbers; defaults 0, 1, 0, 1.
  float ToMin() const { return m_toMin; }
  void ToMin(float value) { m_toMin = value; }
  float ToMax() const { return m_toMax; }
  void ToMax(float value) { m_toMax = value; }
  float FromMin() const { return m_fromMin; }
  void FromMin(float value) { m_fromMin = value; }
  float FromMax() const { return m_fromMax; }
  void FromMax(float value) { m_fromMax = value; }

  /// The image of `value`. Raises DivisionByZero when the From range is empty, Overflow when an
  /// intermediate result does not fit a 32-bit float.
  float ScaledValue(float value) const;

 private:
  float m_toMin = 0;
  float m_toMax = 1;
  float m_fromMin = 0;
  float m_fromMax = 1;
};

}  // namespace orvane
