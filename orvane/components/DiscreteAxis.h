/// An axis whose cells are categories; the host supplies the labels.
#pragma once

#include "orvane/components/Axis.h"

#include <cstdint>

namespace orvane {

/// What a chart sets on a category axis at export.
class ORVANE_API IDiscreteAxis : public virtual IAxis {
 public:
  /// Number of labels. A let removes labels behind the given number; it adds none.
  virtual std::int16_t LabelCount() const = 0;
  virtual void LabelCount(std::int16_t count) = 0;
};

class ORVANE_API DiscreteAxis final : public Axis, public IDiscreteAxis {
 public:
  static constexpr const char* kClassName = "DiscreteAxis";
  const host::TypeInfo& Type() const override;

  /// The labels themselves: what is put into the list is in the scene at once.
  scene::MFString& Labels() { return Lines(); }

  std::int16_t LabelCount() const override;
  void LabelCount(std::int16_t count) override;
};

}  // namespace orvane
