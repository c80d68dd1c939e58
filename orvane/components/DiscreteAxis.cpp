#include "orvane/components/DiscreteAxis.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/components/DescribeAxis.h"

#include <algorithm>

namespace orvane {

const host::TypeInfo& DiscreteAxis::Type() const {
  static const host::TypeInfo type =
      host::Describe<DiscreteAxis>("An axis whose cells are categories.")
          .With(DescribeAxis<DiscreteAxis>)
          .Property<scene::MFString>("Labels", &DiscreteAxis::Labels,
                                     {"The labels, one a cell; a live list"});
  return type;
}

std::int16_t DiscreteAxis::LabelCount() const { return host::Int16(Lines().Count()); }

void DiscreteAxis::LabelCount(std::int16_t count) {
  const std::int32_t kept = std::max<std::int32_t>(count, 0);
  while (Lines().Count() > kept) Lines().RemoveAt(Lines().Count());
}

}  // namespace orvane
