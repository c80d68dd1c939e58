/// An axis whose cells are categories; the host supplies the labels.
#pragma once

#include "orvane/components/Axis.h"

#include <cstdint>

namespace orvane {

class ORVANE_API DiscreteAxis final : public Axis {
 public:
  static constexpr const char* kClassName = "DiscreteAxis";
  const host::TypeInfo& Type() const override;

  /// The labels themselves: what is put into the list is in the scene at once.
  scene::MFString& Labels() { return Lines(); }

  /// Number of labels. A let removes labels behind the given number; it adds none.
  std::int16_t LabelCount() const;
  void LabelCount(std::int16_t count);
};

}  // namespace orvane
