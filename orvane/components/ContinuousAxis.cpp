#include "orvane/components/ContinuousAxis.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/components/DescribeAxis.h"
#include "orvane/components/NumberPicture.h"

#include <vector>

namespace orvane {

using host::Quotient;
using host::Single;

const host::TypeInfo& ContinuousAxis::Type() const {
  static const host::TypeInfo type =
      host::Describe<ContinuousAxis>("An axis of values.")
          .With(DescribeAxis<ContinuousAxis>)
          .Property<float>("Min", &ContinuousAxis::Min, &ContinuousAxis::Min,
                           {"Value at the low end", "data units"})
          .Property<float>("Max", &ContinuousAxis::Max, &ContinuousAxis::Max,
                           {"Value at the high end", "data units"})
          .Property<std::string>("NumericFormat", &ContinuousAxis::NumericFormat,
                                 &ContinuousAxis::NumericFormat,
                                 {"Picture of the labels, used when they are next made"});
  return type;
}

void ContinuousAxis::Min(float value) {
  m_min = Single(value);
  RegenerateLabels();
}

void ContinuousAxis::Max(float value) {
  m_max = Single(value);
  RegenerateLabels();
}

void ContinuousAxis::Count(std::int16_t count) {
  m_count = count;
  RegenerateLabels();
}

void ContinuousAxis::Order(LabelingOrder order) {
  if (order == m_order) return;
  m_order = order;
  RegenerateLabels();
}

void ContinuousAxis::RegenerateLabels() {
  const double range = static_cast<double>(m_max) - m_min;
  const float step = Single(Quotient(range, m_count - 1));
  const bool isDescending = m_order == LabelingOrder::MAX_TO_MIN;
  std::vector<std::string> labels;
  for (std::int32_t i = 0; i < m_count; ++i) {
    const double offset = static_cast<double>(step) * i;
    const float value = Single(isDescending ? m_max - offset : m_min + offset);
    labels.push_back(FormatNumber(value, m_numericFormat));
  }
  Lines().Clear();
  for (const auto& label : labels) Lines().Append(label);
}

}  // namespace orvane
